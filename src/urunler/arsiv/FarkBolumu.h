#pragma once

#include <QWidget>
#include <functional>

#include "FarkTablosu.h"

class KomutDüğmesi;
class Tablo;
class QComboBox;
class QLabel;
struct Yazdırılacak;

// Two days beside each other: the products' differences, and the parts of the marked one.
class FarkBölümü : public QWidget {
  public:
    struct Bağlar {
        std::function<const Başlık*()> SeçiliArşiv;  // null: none is marked
        std::function<void(const Kapsam& ürün)> ÜrünSeçildi;
    };
    explicit FarkBölümü(Bağlar bağlar, QWidget* sahip = nullptr);
    ~FarkBölümü() override;

    // After archives came or went. A comparison with one that is gone goes too.
    void ArşivleriAyarla(std::vector<Başlık> arşivler);
    void Karşılaştır();

  private:
    void KontrolleriKur();
    void Yerleştir();
    void Boşalt();
    void ÖzetiYaz();
    void SatırSeçildi();
    void ParçalarıOku(std::size_t yer);
    void AdaylarıOku(const ÜrünFarkı& fark);
    void Eşleştir();
    void Çizelgeye();
    Yazdırılacak Rapor() const;
    QString RaporBaşlığı() const;
    bool Oku(std::size_t yer, const FöyYeri& eski, const FöyYeri& yeni);

    Bağlar m_bağlar;
    std::vector<Başlık> m_arşivler;  // behind the first entry of the list of days
    std::optional<Başlık> m_eski;    // what is compared; nothing: nothing yet
    std::optional<Başlık> m_yeni;    // nothing: today
    std::int64_t m_eksikFöy = 0;
    std::vector<FöyYeri> m_adaylar;  // in the list of other names
    FarkSatırları m_kaynak;
    ParçaSatırları m_parçaKaynağı;
    TabloModeli m_model;
    TabloModeli m_parçaModeli;
    QComboBox* m_günler;
    QLabel* m_özet;
    Tablo* m_tablo;
    QComboBox* m_öteki;
    Tablo* m_parçalar;
    KomutDüğmesi* m_karşılaştır;
    KomutDüğmesi* m_eşleştir;
    KomutDüğmesi* m_yazdır;
    KomutDüğmesi* m_pdf;
    KomutDüğmesi* m_önizle;
    KomutDüğmesi* m_aktar;
};
