#include <QComboBox>

#include "FormTesti.h"
#include "KullanimMetinleri.h"
#include "SatisFiyatListesiFormu.h"
#include "Yazdirma.h"

namespace {

constexpr const char* TABLO = "FiyatTablosu";

class SatışListesiFormu : public FormTesti {
  protected:
    SatışListesiFormu() {
        MalzemeEkle("Çam", "4,26");
        for (const char* ad : {"Sehpa", "Boş", "Kuşkulu"}) ÜrünEkle("MASA", ad, {"0", "0", "0", "0"});
        KullanımEkle("MASA", "Sehpa", "Çam", "1 Metre", "4,26");
        KullanımEkle("MASA", "Kuşkulu", "Silinmiş", "2 Metre", "6");
        YazıcıVar = true;
        YazıcıyıAyarla([this](const Yazdırılacak&) { ++m_baskı; });
    }
    ~SatışListesiFormu() override { YazıcıyıAyarla(nullptr); }
    QString İşaretler() {
        const auto& model = *Bul<QAbstractItemView>(TABLO).model();
        QString işaretler;
        for (int i = 0; i < model.rowCount(); ++i) {
            const QVariant işaret = model.index(i, 0).data(Qt::CheckStateRole);
            işaretler += !işaret.isValid() ? "-" : işaret.toInt() == Qt::Checked ? "x" : "o";
        }
        return işaretler;
    }
    int m_baskı = 0;
};

TEST_F(SatışListesiFormu, KuşkuluİşaretsizGelirOranVeYazılarHatırlanır) {
    Aç<SatışFiyatListesiFormu>(nullptr);
    Yaz("KdvKutusu", "18");
    EXPECT_EQ(Satırlar(TABLO),
              "MASA|Boş|0,00|18|0,00|fiyat sıfır ya da altında; malzemesi yok; MASA|Kuşkulu|12,00|18|14,16|katalogda "
              "olmayan malzeme; MASA|Sehpa|4,26|18|5,03|");
    EXPECT_EQ(İşaretler(), "-ox");
    // Down to nothing by rounding, and back: the tick is the user's.
    Bul<QComboBox>("YuvarlamaListesi").setCurrentText("5");
    Bul<QComboBox>("YuvarlamaYönüListesi").setCurrentText("Aşağı");
    EXPECT_EQ(İşaretler(), "-o-");
    EXPECT_FALSE(Etkin("YazdırButonu"));
    Bul<QComboBox>("YuvarlamaYönüListesi").setCurrentText("Yukarı");
    EXPECT_EQ(İşaretler(), "-ox");
    for (const char* oran : {"100,5", ""}) {
        Yaz("KdvKutusu", oran);
        Beklenen(Simge::Bilgi, KullanımMetni::KdvAralıkDışı, Yanıt::Tamam);
        Tıkla("YazdırButonu");
    }
    EXPECT_EQ(m_baskı, 0);
    Yaz("KdvKutusu", "8,5");
    Yaz("BaşlıkKutusu", "Usta'nın Listesi");
    Yaz("AltYazıKutusu", "Peşin.");
    Tıkla("YazdırButonu");
    EXPECT_EQ(m_baskı, 1);
    Aç<SatışFiyatListesiFormu>(nullptr);
    EXPECT_EQ(Yazılar({"KdvKutusu", "BaşlıkKutusu", "AltYazıKutusu"}), "8,5 Usta’nın Listesi Peşin.");
    // What the filter hides is not printed, and the form says so.
    Yaz("SüzKutusu", "boş");
    EXPECT_EQ(Yazı("İşaretliSayısıEtiketi"), "0 ürün basılacak; süzgeç dışındaki 1 işaretli ürün basılmaz");
    EXPECT_FALSE(Etkin("PdfKaydetButonu"));
}

}  // namespace
