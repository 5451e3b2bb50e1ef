#include "ArsivKayitlari.h"
#include "Deyimler.h"
#include "FiyatDeyimleri.h"
#include "OrnekVeri.h"
#include "VeriDosyasi.h"

using namespace Qt::StringLiterals;

namespace {

const QString GRUP = u"MASA"_s;
const QString MASA = u"Çalışma Masası"_s;
const QString SEHPA = u"Zigon Sehpa"_s;
const QString ESKİ_SEHPA = u"Üçlü Sehpa"_s;

void FiyatlarıYaz(VeriYazıcısı& yazıcı, const std::map<QString, Para>& fiyatlar) {
    for (const auto& [ad, fiyat] : fiyatlar) {
        yazıcı.Çalıştır(Deyimler::FiyatDeğiştir(ad, Deyimler::SaklanacakSayı(fiyat)));
        yazıcı.Çalıştır(Deyimler::ÜrünlerdeFiyatDeğiştir(ad, Deyimler::SaklanacakSayı(fiyat)));
    }
}

void SehpayıAdlandır(VeriYazıcısı& yazıcı, const QString& eski, const QString& yeni) {
    yazıcı.Çalıştır(Deyimler::ÜrünAdınıDeğiştir(GRUP, eski, yeni));
    yazıcı.Çalıştır(Deyimler::MalzemelerdeÜrünAdınıDeğiştir(GRUP, eski, yeni));
}

// The desk took more wood and less work, and went without a box; the nest of tables bore another name. The prices come
// afterwards.
void Eskit(VeriYazıcısı& yazıcı, const QString& tarih) {
    yazıcı.Çalıştır(
        Deyimler::KullanılanMalzemeDeğiştir({GRUP, MASA, u"Masif Panel Kayın"_s, u"2,1 Metrekare"_s, u"0"_s, tarih}));
    yazıcı.Çalıştır(Deyimler::KullanılanMalzemeÇıkar(GRUP, MASA, u"Karton Kutu"_s));
    yazıcı.Çalıştır(Deyimler::YüzdeleriKaydet(u"22"_s, u"18"_s, u"3,5"_s, u"0"_s, GRUP, MASA));
    SehpayıAdlandır(yazıcı, SEHPA, ESKİ_SEHPA);
}

void Yenile(VeriYazıcısı& yazıcı, const QString& tarih) {
    yazıcı.Çalıştır(
        Deyimler::KullanılanMalzemeDeğiştir({GRUP, MASA, u"Masif Panel Kayın"_s, u"1,8 Metrekare"_s, u"0"_s, tarih}));
    yazıcı.Çalıştır(Deyimler::KullanılanMalzemeEkle({GRUP, MASA, u"Karton Kutu"_s, u"1 Adet"_s, u"0"_s, tarih}));
    yazıcı.Çalıştır(Deyimler::YüzdeleriKaydet(u"25"_s, u"18"_s, u"3,5"_s, u"0"_s, GRUP, MASA));
    SehpayıAdlandır(yazıcı, ESKİ_SEHPA, SEHPA);
}

void ArşivYaz(VeriYazıcısı& yazıcı, std::int64_t no, QDate gün, const QString& açıklama) {
    Başlık yeni{no, gün.toString(Qt::ISODate), açıklama};
    const İşSonucu sonuç = ArşiviYaz(yazıcı.Bağlantı(), no > 1, yeni);
    if (!sonuç.Tamam()) throw VeriHatası(u"Arşiv yazılamadı: "_s + OdbcİletileriniAl(sonuç.Odbc.Hatalar).value(0));
}

}  // namespace

// The products are set back, archived, and put as they are today.
void ÖrnekArşivleriYaz(VeriYazıcısı& yazıcı, QDate bugün) {
    constexpr int ilk = 120;
    constexpr int ikinci = 50;
    const QString tarih = Deyimler::Tarih(bugün);
    Eskit(yazıcı, tarih);
    FiyatlarıYaz(yazıcı, ÖrnekFiyatları(ilk));
    ArşivYaz(yazıcı, 1, bugün.addDays(-ilk), u"Yaz fiyatları"_s);
    Yenile(yazıcı, tarih);
    FiyatlarıYaz(yazıcı, ÖrnekFiyatları(ikinci));
    ArşivYaz(yazıcı, 2, bugün.addDays(-ikinci), u"Sonbahar fiyatları"_s);
    FiyatlarıYaz(yazıcı, ÖrnekFiyatları(0));
}
