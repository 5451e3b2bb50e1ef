#pragma once

#include <QDialog>

#include "SatisSatirlari.h"
#include "YuvarlamaSecimi.h"

class GirişKutusu;
class KomutDüğmesi;
class SayıKutusu;
class Tablo;
class QCheckBox;
class QLabel;
struct SatışListesi;
struct Yazdırılacak;

// The price list for customers. Rate, heading and footer are kept in the settings.
class SatışFiyatListesiFormu : public QDialog {
  public:
    explicit SatışFiyatListesiFormu(QWidget* sahip);
    ~SatışFiyatListesiFormu() override;

    // Reads everything. False: the user gave up, or has been told why it could not be read.
    bool Yükle();
    bool Boş() const { return m_kaynak.Satırlar.empty(); }

  private:
    void KontrolleriKur();
    void Yerleştir();
    QWidget* KuralBölümü();
    void Süz();
    void Hesapla();
    void SayıyıYaz();
    std::optional<Para> Oran() const;
    bool Basılır();
    void AyarlarıSakla() const;
    SatışListesi Liste() const;
    Yazdırılacak Rapor() const;
    void Çizelgeye();

    SatışSatırları m_kaynak;
    TabloModeli m_model;
    GirişKutusu* m_süz;
    QCheckBox* m_dikkat;
    SayıKutusu* m_kdv;
    YuvarlamaSeçimi m_yuvarlama;
    GirişKutusu* m_başlık;
    GirişKutusu* m_altYazı;
    QLabel* m_sayı;
    Tablo* m_tablo;
    KomutDüğmesi* m_yazdır;
    KomutDüğmesi* m_pdf;
    KomutDüğmesi* m_önizle;
    KomutDüğmesi* m_aktar;
};
