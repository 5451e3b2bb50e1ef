#pragma once

#include <QDialog>
#include <memory>
#include <unordered_map>

#include "FiyatIsi.h"
#include "TabloModeli.h"

class BasamakGrafiği;
class GirişKutusu;
class KomutDüğmesi;
struct BasamakDizisi;
class QLabel;
class Tablo;

// Every recorded price change: of the ticked materials, with a plot; without a tick the latest of all.
class FiyatGeçmişiFormu : public QDialog {
  public:
    // `çevir`: takes back what changed used rows. Empty: nothing is taken back from here.
    FiyatGeçmişiFormu(DeğişimÇevirici çevir, QWidget* sahip);
    ~FiyatGeçmişiFormu() override;

    // Reads the catalogue and the records; ticks stay, `malzeme` gets one. False: the user has been told why not.
    bool Yükle(const QString& malzeme = {});
    bool Uygulandı() const { return m_uygulandı; }

  private:
    class MalzemeKaynağı;
    class GeçmişKaynağı;

    void KontrolleriKur();
    void Yerleştir();
    void GeçmişiOku();
    İşSonucu DeğiştirmeleriEkle(std::size_t ilk, const QString& malzeme);
    void HerDeğiştirmeyiEkle();
    İşSonucu MalzemeninGeçmişiniOku(const KatalogMalzemesi& malzeme, BasamakDizisi& dizi);
    const Deyimler::Fiyat::İşlem* İşlemiBul(std::int64_t no) const;
    void GeriAl();
    void DüğmeyiAyarla();
    const Deyimler::Fiyat::İşlem* Seçiliİşlem() const;

    DeğişimÇevirici m_çevir;
    bool m_uygulandı = false;
    bool m_değiştirmeVar = false;  // an operation changed used rows
    bool m_fazlaVar = false;       // more records than are shown
    std::vector<Deyimler::Fiyat::İşlem> m_işlemler;
    std::unordered_map<std::int64_t, std::size_t> m_işlemYerleri;
    std::unique_ptr<MalzemeKaynağı> m_malzemeler;
    std::unique_ptr<GeçmişKaynağı> m_geçmiş;
    std::unique_ptr<TabloModeli> m_malzemeModeli;
    std::unique_ptr<TabloModeli> m_geçmişModeli;
    GirişKutusu* m_süz;
    Tablo* m_malzemeTablosu;
    Tablo* m_geçmişTablosu;
    BasamakGrafiği* m_grafik;
    QLabel* m_not;
    KomutDüğmesi* m_geriAl;
};
