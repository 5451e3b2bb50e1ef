#pragma once

#include <QDialog>

#include "KullanimSatirlari.h"

class KomutDüğmesi;
class MalzemeKutusu;
class QLabel;
class Tablo;
struct Yazdırılacak;

// Which products use a material, and what it means in each of them.
class NeredeKullanılıyorFormu : public QDialog {
  public:
    explicit NeredeKullanılıyorFormu(QWidget* sahip);
    ~NeredeKullanılıyorFormu() override;

    // Reads everything and shows `malzeme`; "": what was shown before. False: the user gave up, or has been told why it
    // could not be read.
    bool Yükle(const QString& malzeme = {});
    bool Boş() const { return m_kullanım.Malzemeler().empty(); }

    // A replacement was carried out while the form was open.
    bool Uygulandı() const { return m_uygulandı; }

    // The product to go to, once the form was accepted.
    const MalzemeKullanımı::Ürün* Gidilecek() const { return m_gidilecek; }

  private:
    void KontrolleriKur();
    void Yerleştir();
    void MalzemeSeçildi();
    void DüğmeleriAyarla();
    void Git();
    void Değiştir();
    void Çizelgeye();
    QString Başlık() const;
    Yazdırılacak Rapor() const;

    MalzemeKullanımı m_kullanım;
    KullanımSatırları m_kaynak;
    TabloModeli m_model;
    const MalzemeKullanımı::Ürün* m_gidilecek = nullptr;
    bool m_uygulandı = false;
    MalzemeKutusu* m_malzeme;
    QLabel* m_sayı;
    Tablo* m_tablo;
    KomutDüğmesi* m_git;
    KomutDüğmesi* m_değiştir;
    KomutDüğmesi* m_yazdır;
    KomutDüğmesi* m_pdf;
    KomutDüğmesi* m_önizle;
    KomutDüğmesi* m_aktar;
};
