#include <QUrl>

#include "Adresler.h"
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
        Aç();
        AdresAçıcıyıAyarla([this](const QUrl& adres) { m_açılanlar += adres.fileName(); });
    }
    ~YardımMenüsü() override { AdresAçıcıyıAyarla(nullptr); }

    void FormuOku() {
        ErişimiDenetle(Form());
        QTest::keyClick(&Form(), Qt::Key_F1);
    }

    QStringList m_açılanlar;
};

TEST_F(YardımMenüsü, EkranOkuyucuHerFormuOkurVeF1SayfasınıAçar) {
    const YardımTuşu yardım(nullptr);
    Seç("MASA", "Sehpa");
    FormuOku();
    Tıkla("İçindekilerMenüsü");
    const char* tarih = "GünlükMalzemeHareketleriGösterButonu";
    const char* toplu = "TopluFiyatMenüsü";
    for (const auto& [açan, form] : {std::pair("ÜrünEkleSilMenüsü", "ÜrünEkleSilFormu"),
                                     {"MalzemeEkleSilMenüsü", "MalzemeEkleSilFormu"},
                                     {"ListeyeMalzemeEkleButonu", "MalzemeListesiOluşturFormu"},
                                     {"MiktarlarıGösterDüğmesi", "MiktarGösterFormu"},
                                     {tarih, "MalzemeHareketleriFormu"},
                                     {"MalzemeListesiGösterButonu", "MalzemeListesiFormu"},
                                     {"ÜrünListesiGösterButonu", "ÜrünListesiFormu"},
                                     {toplu, "TopluFiyatFormu"},
                                     {"DövizKurlarıMenüsü", "DövizKurlarıFormu"},
                                     {"FiyatGeçmişiMenüsü", "FiyatGeçmişiFormu"},
                                     {"HakkındaMenüsü", "HakkındaFormu"},
                                     {"HataBildirmeMenüsü", "HataBildirmeFormu"}}) {
        SCOPED_TRACE(form);
        Modal(açan, form, [this, açan = açan, tarih, toplu] {
            FormuOku();
            if (açan == tarih) Modal("TarihDeğiştirButonu", "TarihDeğiştirFormu", [this] { FormuOku(); });
            if (açan != toplu) return;
            Tıkla("TümünüSeçButonu");
            Yaz("OranKutusu", "10");
            Modal("ÖnizleButonu", "FiyatÖnizlemeFormu", [this] { FormuOku(); });
        });
    }
    EXPECT_EQ(m_açılanlar.join(' ').remove(".html"),
              "AnaForm AnaForm UrunEkleSilFormu MalzemeEkleSilFormu MalzemeListesiOlusturFormu MiktarGosterFormu "
              "MalzemeHareketleriFormu TarihDegistirFormu MalzemeListesiFormu UrunListesiFormu TopluFiyatFormu "
              "FiyatOnizlemeFormu DovizKurlariFormu FiyatGecmisiFormu HakkindaFormu HataBildirmeFormu");
}

}  // namespace
