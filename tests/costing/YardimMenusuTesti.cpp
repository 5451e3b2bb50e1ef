#include <QTabWidget>

#include "AcilanAdresler.h"
#include "AnaFormOrtami.h"
#include "ErisimDenetimi.h"
#include "Yardim.h"

namespace {

class YardımMenüsü : public AnaFormOrtamı {
  protected:
    YardımMenüsü() {
        ÜrünEkle("MASA", "Sehpa");
        KullanımEkle("MASA", "Sehpa", "Çam Kereste", "2,5 Metre", "4");
        MalzemeEkle("Çam Kereste", "4");
        MalzemeEkle("Meşe Kereste", "9");
        Aç();
    }

    void FormuOku() {
        ErişimiDenetle(Form());
        QTest::keyClick(&Form(), Qt::Key_F1);
    }

    AçılanAdresler m_açılanlar;
};

TEST_F(YardımMenüsü, EkranOkuyucuHerFormuOkurVeF1SayfasınıAçar) {
    const YardımTuşu yardım(nullptr);
    Seç("MASA", "Sehpa");
    FormuOku();
    Tıkla("İçindekilerMenüsü");
    const char* tarih = "GünlükMalzemeHareketleriGösterButonu";
    const char* nerede = "NeredeKullanılıyorMenüsü";
    const char* yedekler = "YedeklerMenüsü";
    const char* toplu = "TopluFiyatMenüsü";
    const char* arşiv = "MaliyetArşiviMenüsü";
    for (const auto& [açan, form] : {std::pair("ÜrünEkleSilMenüsü", "ÜrünEkleSilFormu"),
                                     {"MalzemeEkleSilMenüsü", "MalzemeEkleSilFormu"},
                                     {"ListeyeMalzemeEkleButonu", "MalzemeListesiOluşturFormu"},
                                     {"MiktarlarıGösterDüğmesi", "MiktarGösterFormu"},
                                     {tarih, "MalzemeHareketleriFormu"},
                                     {"MalzemeListesiGösterButonu", "MalzemeListesiFormu"},
                                     {"ÜrünListesiGösterButonu", "ÜrünListesiFormu"},
                                     {"MaliyetTablosuMenüsü", "MaliyetTablosuFormu"},
                                     {"MaliyetDağılımıMenüsü", "MaliyetDağılımıFormu"},
                                     {"ÜrünKopyalaMenüsü", "ÜrünKopyalaFormu"},
                                     {nerede, "NeredeKullanılıyorFormu"},
                                     {"YarıMamulMenüsü", "YarıMamulFormu"},
                                     {"YarıMamulAğacıMenüsü", "YarıMamulAğacıFormu"},
                                     {arşiv, "MaliyetArşiviFormu"},
                                     {"SatışFiyatListesiMenüsü", "SatışFiyatListesiFormu"},
                                     {"BulMenüsü", "BulFormu"},
                                     {toplu, "TopluFiyatFormu"},
                                     {"FiyatListesiAlMenüsü", "FiyatListesiAlFormu"},
                                     {"DövizKurlarıMenüsü", "DövizKurlarıFormu"},
                                     {"FiyatGeçmişiMenüsü", "FiyatGeçmişiFormu"},
                                     {"HakkındaMenüsü", "HakkındaFormu"},
                                     {"HataBildirmeMenüsü", "HataBildirmeFormu"},
                                     {yedekler, "YedeklerFormu"}}) {
        SCOPED_TRACE(form);
        Modal(açan, form, [this, açan = açan, tarih, toplu, arşiv, nerede, yedekler] {
            FormuOku();
            if (açan == tarih) Modal("TarihDeğiştirButonu", "TarihDeğiştirFormu", [this] { FormuOku(); });
            if (açan == arşiv) {
                Tıkla("ArşivleButonu");  // the selected product, which nothing is asked about
                Tıkla("FöyTablosu", Yer("FöyTablosu", "MASA"));
                Modal("FöyüGösterButonu", "ArşivFöyüFormu", [this] { FormuOku(); });
                Tıkla("KarşılaştırButonu");
                for (const int sayfa : {0, 1}) {
                    Bul<QTabWidget>("BölümSayfaları").setCurrentIndex(sayfa);
                    ErişimiDenetle(Form());
                }
            }
            if (açan == yedekler) {
                Kutular().Yanıtla(Yanıt::Tamam);
                Tıkla("ŞimdiYedekleButonu");
                Veri().Çalıştır("DELETE FROM UrunTablosu WHERE UrunAdi= 'Sehpa'");
                m_veri.reset();
                Modal("SeçerekGetirButonu", "SeçerekGetirFormu", [this] { FormuOku(); });
            }
            if (açan == nerede)
                Modal("DeğiştirButonu", "MalzemeDeğiştirFormu", [this] {
                    FormuOku();
                    Yaz("YeniMalzemeListesi", "Meşe Kereste");
                    Modal("ÖnizleButonu", "DeğişimÖnizlemeFormu", [this] { FormuOku(); });
                });
            if (açan != toplu) return;
            Tıkla("TümünüSeçButonu");
            Yaz("OranKutusu", "10");
            Modal("ÖnizleButonu", "FiyatÖnizlemeFormu", [this] { FormuOku(); });
        });
    }
    QStringList sayfalar;
    for (const QUrl& adres : m_açılanlar) sayfalar += adres.fileName().remove(".html");
    EXPECT_EQ(sayfalar.join(' '),
              "AnaForm AnaForm UrunEkleSilFormu MalzemeEkleSilFormu MalzemeListesiOlusturFormu "
              "MiktarGosterFormu "
              "MalzemeHareketleriFormu TarihDegistirFormu MalzemeListesiFormu UrunListesiFormu MaliyetTablosuFormu "
              "MaliyetDagilimiFormu UrunKopyalaFormu NeredeKullaniliyorFormu MalzemeDegistirFormu "
              "DegisimOnizlemeFormu YariMamulFormu YariMamulAgaciFormu MaliyetArsiviFormu ArsivFoyuFormu "
              "SatisFiyatListesiFormu BulFormu TopluFiyatFormu FiyatOnizlemeFormu FiyatListesiAlFormu "
              "DovizKurlariFormu FiyatGecmisiFormu HakkindaFormu HataBildirmeFormu YedeklerFormu SecerekGetirFormu");
}

}  // namespace
