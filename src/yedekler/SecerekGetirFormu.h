#pragma once

#include <QDialog>

#include "GetirmeTablosu.h"
#include "SecerekGetirme.h"

class KomutDüğmesi;
class QLabel;
class Tablo;

// What a backup has and the data lack or have differently, or what a taking back gives: to be picked from, with what it
// comes to, before anything is written.
class SeçerekGetirFormu : public QDialog {
  public:
    SeçerekGetirFormu(const Getirmeİsteği& istek, QWidget* sahip);
    ~SeçerekGetirFormu() override;

    // Opens backup and data and compares them. False: the user gave up, or has been told why there is nothing to see.
    bool Yükle();

  private:
    void KontrolleriKur();
    void Yerleştir();
    bool PlanıKur();
    void Dene();
    void ÖzetiYaz();
    void AyrıntıyıYaz();
    void Tümünüİşaretle();
    void Getir();
    UygulamaSonucu Yürüt(QStringList& çözülenler);
    void SaklananıBağla(const QString& saklanan, bool getirildi, bool yazılmadı);

    Getirmeİsteği m_istek;
    GetirmeOrtamı m_ortam;
    GetirmePlanı m_plan;
    GetirmeSonucu m_denenen;  // what came of the last trial
    GetirmeSatırları m_kaynak;
    TabloModeli m_model;
    GetirmeAyrıntısı m_ayrıntı;
    TabloModeli m_ayrıntıModeli;
    Tablo* m_tablo;
    Tablo* m_ayrıntıTablosu;
    QLabel* m_özet;
    KomutDüğmesi* m_getir;
};
