#include "Deyimler.h"
#include "DovizKurlariFormu.h"
#include "FormTesti.h"

namespace {

constexpr const char* Dövizler = "DövizTablosu";
constexpr const char* Bağlılar = "BağlıMalzemelerTablosu";
constexpr const char* Adaylar = "BağlanacakMalzemelerTablosu";

class DövizKurları : public FormTesti {
  protected:
    DövizKurları() {
        MalzemeEkle("Menteşe", "40");
        MalzemeEkle("Ray", "100,5");
        SaatiAyarla([] { return QDate(2026, 11, 23); });
        m_form = &Aç<DövizKurlarıFormu>(nullptr);
    }
    ~DövizKurları() override { SaatiAyarla(nullptr); }

    void Ekle(const QString& kod, const QString& kur) {
        Yaz("KurKutusu", kur);
        Yaz("DövizKoduKutusu", kod);
        Tıkla("DövizEkleButonu");
    }
    void Bağla(const QString& malzeme, const QString& fiyat) {
        Tıkla(Adaylar, Yer(Adaylar, malzeme));
        Yaz("DövizFiyatıKutusu", fiyat);
        Tıkla("BağlaButonu");
    }
    void Reddedilir(const QString& metin, const std::function<void()>& adım) {
        Kutular().Yanıtla(Yanıt::Tamam);
        adım();
        Kutular().TekKutu(Simge::Bilgi, metin);
    }
    QString Bağlar() {
        return Oku(
            "SELECT MalzemeAdi, DovizKodu, DovizFiyati, YazilanFiyat, IslemNo FROM DovizBagiTablosu "
            "ORDER BY MalzemeAdi ASC");
    }

    DövizKurlarıFormu* m_form;
};

TEST_F(DövizKurları, KodKurVeGünDenetlenir) {
    Yaz("DövizKoduKutusu", "ils1");
    EXPECT_EQ(Yazı("DövizKoduKutusu"), "ILS") << "i is I, and a digit is refused";
    Reddedilir(Metin(MetinNo::DövizKoduKısa), [this] { Ekle("u", "41,5"); });
    Reddedilir(Metin(MetinNo::DövizKoduTL), [this] { Ekle("try", "41,5"); });
    Reddedilir(Metin(MetinNo::KurSıfır), [this] { Ekle("usd", "0,0000"); });
    Yaz("KurGünüKutusu", "31.2.2026");
    Reddedilir(Metin(MetinNo::TarihGeçersiz), [this] { Ekle("usd", "34,5678"); });
    EXPECT_EQ(Yazılar({"DövizKoduKutusu", "KurKutusu"}), "USD 34,5678") << "nothing typed is lost";
    Yaz("KurGünüKutusu", "20.11.2026");
    Tıkla("DövizEkleButonu");
    EXPECT_EQ(Seçili(Dövizler), "USD|34,5678|20.11.2026|0");
    Reddedilir(Metin(MetinNo::DövizListedeVar).arg("USD"), [this] { Ekle("Usd", "1"); });
}

TEST_F(DövizKurları, BağDosyadakiFiyatlaYazılırVeHiçbirFiyatıDeğiştirmez) {
    Ekle("EUR", "48");
    Ekle("USD", "41,5");
    Çalıştır(Deyimler::FiyatDeğiştir("Menteşe", "41"));  // while the form shows 40
    Bağla("Menteşe", "0,9999");
    EXPECT_EQ(Bağlar(), "Menteşe|USD|0.9999|41|0");
    Reddedilir(Metin(MetinNo::DövizFiyatıSıfır), [this] { Bağla("Ray", "0"); });
    Reddedilir(Metin(MetinNo::DövizKullanılıyor).arg("USD").arg(1), [this] { Tıkla("DövizSilButonu"); });

    Çalıştır(Deyimler::FiyatDeğiştir("Menteşe", "45"));
    Bağla("Menteşe", "1,25");
    EXPECT_EQ(Bağlar(), "Menteşe|USD|1.25|41|0") << "a new currency price is no new tie";
    EXPECT_EQ(Satırlar(Bağlılar), "Menteşe|1,25|45,00|elle değiştirildi");

    Tıkla(Dövizler, Yer(Dövizler, "EUR"));
    EXPECT_EQ(Satırlar(Bağlılar), "");
    for (const Yanıt yanıt : {Yanıt::Hayır, Yanıt::Evet}) {
        Kutular().Yanıtla(yanıt);
        Bağla("Menteşe", "2");
        Kutular().TekKutu(Simge::Soru, Metin(MetinNo::BaşkaDövizeBağlı).arg("Menteşe", "USD", "EUR"));
        EXPECT_EQ(Bağlar(), yanıt == Yanıt::Evet ? "Menteşe|EUR|2|45|0" : "Menteşe|USD|1.25|41|0");
    }
    Çalıştır(Deyimler::MalzemeSil("Menteşe"));
    ASSERT_TRUE(m_form->Yükle());
    EXPECT_EQ(Satırlar(Bağlılar), "Menteşe|2,00||katalogda yok");
    EXPECT_FALSE(Etkin("ÇözButonu")) << "nothing is marked";
    Tıkla(Bağlılar, Yer(Bağlılar, "Menteşe"));
    Tıkla("ÇözButonu");
    EXPECT_EQ(Bağlar(), "");
    EXPECT_EQ(Oku("SELECT MalzemeAdi, MalzemeFiyati FROM MalzemeTablosu"), "Ray|100.5");
}

TEST_F(DövizKurları, KurÖnizlemedeUygulanırVeYalnızİşaretliFiyatlarıDeğiştirir) {
    Ekle("USD", "40");
    Bağla("Menteşe", "1,0001");
    Bağla("Ray", "2,5");
    Çalıştır(Deyimler::FiyatDeğiştir("Ray", "99"));
    Tıkla(Dövizler, Yer(Dövizler, "USD"), Qt::ControlModifier);
    EXPECT_EQ(Etkinler({"ÖnizleButonu", "DövizSilButonu", "BağlaButonu"}), "") << "no currency is marked";
    Tıkla(Dövizler, Yer(Dövizler, "USD"));
    Yaz("KurKutusu", "34,5678");
    Modal("ÖnizleButonu", "FiyatÖnizlemeFormu");
    EXPECT_EQ(Oku("SELECT Kur FROM DovizTablosu"), "40") << "given up";
    Modal("ÖnizleButonu", "FiyatÖnizlemeFormu", [this] {
        EXPECT_TRUE(Yazı("ÖzetEtiketi").startsWith("USD kuru 34,5678 (23.11.2026)\n"));
        Tıkla("UygulaButonu");
    });
    EXPECT_TRUE(m_form->Uygulandı());
    EXPECT_EQ(Seçili(Dövizler) + "/" + Yazı("KurKutusu"), "USD|34,5678|23.11.2026|2/");
    EXPECT_EQ(Satırlar(Bağlılar), "Menteşe|1,0001|34,5713|; Ray|2,50|99,00|elle değiştirildi");

    Yaz("KurKutusu", "35");
    Çalıştır("DELETE FROM DovizTablosu WHERE DovizKodu= 'USD'");
    Reddedilir(Metin(MetinNo::DövizSilinmiş).arg("USD"), [this] { Tıkla("ÖnizleButonu"); });
    EXPECT_EQ(Satırlar(Dövizler), "");
}

}  // namespace
