#pragma once

#include <QDialog>
#include <vector>

#include "KatalogKaynagi.h"
#include "YariMamulTablolari.h"

class GirişKutusu;
class KomutDüğmesi;
class QComboBox;
class QLabel;
class Tablo;
struct Fiyatİşi;
struct Yazdırılacak;

// Which materials stand for products: their list, and the means to tie and to dissolve.
class YarıMamulFormu : public QDialog {
  public:
    explicit YarıMamulFormu(QWidget* sahip);
    ~YarıMamulFormu() override;

    // Reads everything. False: it could not be read, the user has been told.
    bool Yükle();

    // Whether any price or tie was changed.
    bool Değişti() const { return m_değişti; }
    // The product to go to, once the form was accepted.
    const ÜrünAdı* Gidilecek() const { return result() == Accepted && m_gidilecek ? &*m_gidilecek : nullptr; }

  private:
    void TablolarıKur();
    void DüğmeleriKur();
    void Yerleştir();
    QWidget* SüzülenBölüm(int sıra, MetinNo süzEtiketi, GirişKutusu* süz, MetinNo başlık, Tablo* tablo);
    void MalzemeleriSüz();
    void ÜrünleriSüz();
    void DüğmeleriAyarla();
    void Bağla();
    bool Bağlanır(const YarıMamulBağı& bağ);
    bool DövizeBağlıDeğil(const YarıMamulBağı& bağ);
    bool DöngüOlmaz(const YarıMamulBağları& bağlar, const YarıMamulBağı& bağ);
    bool FiyatıVar(const YarıMamulBağı& bağ);
    Fiyatİşi İş(const YarıMamulBağı& bağ) const;
    void Çöz();
    void Git();
    Yazdırılacak Rapor() const;
    void Çizelgeye();

    std::vector<KatalogMalzemesi> m_malzemeler;
    BağlarınKaynağı m_bağKaynağı;
    KatalogKaynağı m_malzemeKaynağı;
    ÜrünlerinKaynağı m_ürünKaynağı;
    TabloModeli m_bağModeli;
    TabloModeli m_malzemeModeli;
    TabloModeli m_ürünModeli;
    std::optional<ÜrünAdı> m_gidilecek;
    bool m_değişti = false;
    Tablo* m_bağlar;
    QLabel* m_not;
    Tablo* m_malzemeTablosu;
    Tablo* m_ürünler;
    GirişKutusu* m_malzemeSüz;
    GirişKutusu* m_ürünSüz;
    QComboBox* m_tür;
    KomutDüğmesi* m_bağla;
    KomutDüğmesi* m_çöz;
    KomutDüğmesi* m_git;
    KomutDüğmesi* m_yazdır;
    KomutDüğmesi* m_pdf;
};
