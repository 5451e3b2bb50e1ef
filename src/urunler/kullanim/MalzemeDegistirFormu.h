#pragma once

#include <QDialog>

#include "KatalogOkuma.h"

class KomutDüğmesi;
class MalzemeKutusu;
class SayıKutusu;

// Which material takes the place of another, and how much of it; the preview carries it out.
class MalzemeDeğiştirFormu : public QDialog {
  public:
    MalzemeDeğiştirFormu(const QString& eski, QWidget* sahip);

    // Reads the catalogue. False: the user has been told why it could not be read.
    bool Yükle();

  private:
    void Yerleştir();
    std::optional<Para> Çarpan();
    void Önizle();

    QString m_eski;
    QStringList m_adlar;  // beside the list
    MalzemeKutusu* m_yeni;
    SayıKutusu* m_çarpan;
    KomutDüğmesi* m_önizle;
};
