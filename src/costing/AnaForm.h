#pragma once

#include <QMainWindow>
#include <QPoint>
#include <functional>

#include "AnaFormErisimi.h"
#include "FiyatIsi.h"

enum class MetinNo : int;
class KomutDüğmesi;
class KullanılanMalzemeListesi;
class MaliyetAlanı;
class MiktarAlanı;
struct MaliyetFişi;
class QAction;
class QComboBox;
class YüklenemediBildirimi;
class ÜrünAğacı;

// What the form needs of the program around it.
struct AnaFormBağları {
    std::function<void()> KarşılamayıKapat;  // the welcome form goes as the form comes
    // Asks whether to end; on yes closes the data connection, saves the settings and gives true.
    std::function<bool(bool simgeDurumunda, QPoint solÜst)> Kapanış;
};

// The program's main window: the product tree, and for the selected product its used materials, percentages and cost.
class AnaForm : public QMainWindow, private AnaFormErişimi {
  public:
    explicit AnaForm(AnaFormBağları bağlar);
    ~AnaForm() override;

    // Fills the tree, places and shows the form; an empty product list is met by a question.
    void Yükle();

    // Shows what the tree's current node stands for; for other forms too, after they changed the data.
    void ÜrünListesiTıkla();
    // Loads used materials and percentages of the selected product anew; does nothing while a group is selected. What
    // could not be loaded whole is neither shown as figures nor changed nor printed, until a load has succeeded.
    void MalzemeTablosuYükle() override;
    void ToplamMaliyetHesapla();

  protected:
    bool eventFilter(QObject* hedef, QEvent* olay) override;
    void closeEvent(QCloseEvent* olay) override;

  private:
    void AlanlarıKur();
    void KomutlarıKur();
    QAction* KomutOluştur(const QString& ad, MetinNo metin, std::function<void()> iş);
    QAction* ÇıkışKomutu();
    QAction* TuşKomutu(int tuş) const;
    void MenüleriKur();
    void DüzeniKur();
    QWidget* AğaçAltlığı();
    QWidget* ListeAltlığı();
    QWidget* MaliyetAltlığı();
    QWidget* DüğmeAltlığı();
    void DurumÇubuğunuKur();
    void Yerleş();

    void AğacaGirildi();
    void DüğümTıklandı();
    void AğacıYenidenYükle();
    void ÜrünüYenidenYükle();
    bool SeçiliÜrünüYükle(QStringList& sayılmayanlar);
    void YüklemeyiUygula(bool yüklendi);
    void SayılmayanlarıGöster(const QStringList& satırlar);

    // For the catalogue forms.
    void ÜrünAğacınıYenile() override;
    void DüğümüSeç(std::int32_t sıra) override;
    std::optional<Ürün> SeçiliÜrün() const override;
    QStringList KullanılanMalzemeAdları() const override;
    void FiyatGeçmişiniGöster(const QString& malzeme, QWidget* sahip) override;
    void VeriDeğişti(const VeriDeğişimi& değişim) override;

    void ÜrünEkleSil();
    void İlkÜrünüEkle();
    void MalzemeEkleSil();
    void ListeyeMalzemeEkle();
    void ListedenMalzemeSil();
    void DeğişiklikleriKaydet();
    void MiktarlarıGöster();

    void ÜrünMenüsünüKur();
    bool KaydedilmemişiSor();
    void MaliyetTablosu();
    bool ÜrüneGit(const QString& grup, const QString& ürün);
    void AdDeğişti(const ÜrünAdı& eski, const ÜrünAdı& yeni);
    void YarıMamuller();
    void YarıMamulAğacı();
    void YarıMamuleGit(const QString& malzeme);
    void MaliyetDağılımınıGöster();
    void ÜrünüKopyala();
    void BuluAç();
    void MalzemeKullanımınıGöster(const QString& malzeme);
    void MaliyetArşivi();
    void SatışFiyatListesi();

    void Yedekler();

    void FiyatMenüsünüKur();
    void ToplucaFiyatDeğiştir();
    void YazılanıKoru(const std::function<bool()>& yükle);
    void FiyatlarDeğişti();
    void ÜrünlerDeğişti();
    DeğişimÇevirici İşlemÇevirici();
    bool İşlemiÇevir(const Deyimler::Fiyat::İşlem& işlem, İşlemTürü tür, QWidget* sahip);

    void RaporKomutlarınıKur();
    void YazdırmayaİzinVer(bool izin);
    MaliyetFişi Fiş() const;
    void FişiAktar();

    // The commands of buttons and function keys; one that the selection does not allow is disabled.
    struct Komutlar {
        QAction* ListeyeMalzemeEkle;
        QAction* ListedenMalzemeSil;
        QAction* Yazdır;
        QAction* PdfKaydet;
        QAction* Önizle;
        QAction* TabloyaAktar;
        QAction* DeğişiklikleriKaydet;
        QAction* MiktarlarıGöster;
        QAction* GünlükMalzemeHareketleri;
        QAction* MalzemeListesi;
        QAction* ÜrünListesi;
        QAction* YarıMamulAğacı;
        QAction* MaliyetDağılımı;
        QAction* ÜrünKopyala;
        QAction* Çıkış;
    };

    AnaFormBağları m_bağlar;
    Komutlar m_komutlar;
    bool m_kapandı = false;
    bool m_ürünYüklendi = false;  // the selected product is on screen, whole

    ÜrünAğacı* m_ağaç;
    YüklenemediBildirimi* m_ağaçBildirimi;
    YüklenemediBildirimi* m_ürünBildirimi;
    KullanılanMalzemeListesi* m_liste;
    KomutDüğmesi* m_yazdır;
    KomutDüğmesi* m_pdfKaydet;
    QComboBox* m_haneSayısı;
    MaliyetAlanı* m_maliyet;
    MiktarAlanı* m_miktar;
};
