#pragma once

#include <QDialog>

#include "SiraliDenetim.h"
#include "YedekSatirlari.h"

class KomutDüğmesi;
class QLabel;
class Tablo;

// All backups of the data file, and those of other places. Days and sizes stand there at once, counts and checks follow
// one by one.
class YedeklerFormu : public QDialog {
  public:
    enum class Açılış {
        Program,
        YalnızGeriYükleme  // before the start: there is no connection, and nothing to back up
    };
    YedeklerFormu(Açılış açılış, QWidget* sahip);
    ~YedeklerFormu() override;

    void Yükle();
    bool GeriYüklendi() const { return m_geriYüklendi; }

  private:
    void Yerleştir();
    void Denetle();
    void SeçimDeğişti();
    void Yedekle();
    void DışarıYaz();
    void DosyaAç();
    void GeriYükle();
    QString Damga() const;

    Açılış m_açılış;
    VeriYolları m_yollar;
    YedekSatırları m_kaynak;
    TabloModeli m_model;
    Tablo* m_tablo;
    QLabel* m_not;
    KomutDüğmesi* m_geriYükle;
    bool m_geriYüklendi = false;
    SıralıDenetim m_denetim;  // the last to be made, the first to go
};
