#pragma once

#include <QDialog>
#include <QString>

// The cost amounts of a product one by one, as texts; nothing is computed here and nothing is stored.
class MiktarGösterFormu : public QDialog {
  public:
    struct Tutarlar {
        QString MalzemeMaliyeti;
        QString İşçilik;
        QString Kâr;
        QString Vade;
        QString Diğer;
        QString Toplam;
    };

    explicit MiktarGösterFormu(const Tutarlar& tutarlar, QWidget* sahip = nullptr);
};
