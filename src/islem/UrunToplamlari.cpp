#include "UrunToplamlari.h"

#include "FiyatDeyimleri.h"
#include "OdbcTanitici.h"
#include "SayiMetni.h"

İşSonucu ÜrünKataloğu::Oku(OdbcBağlantısı& bağlantı, int basamak, const İlerleme& ilerleme) {
    Ürünler.clear();
    Dizin = {};
    bool vazgeçildi = false;
    std::int64_t okunan = 0;
    struct Oran {
        Para Tutar;
        std::optional<double> Sayı;
    };
    std::unordered_map<std::string, Oran> oranlar;  // few different ones
    const OdbcSonucu sonuç = bağlantı.Oku(Deyimler::TümÜrünler(), [&](OdbcSatırı& satır) {
        const std::string grup(satır.Baytlar(1).value_or(std::string_view()));
        const std::string ad(satır.Baytlar(2).value_or(std::string_view()));
        const auto yer = static_cast<std::uint32_t>(Ürünler.size());
        const std::uint32_t bulunan = Dizin.BulYaDaEkle(grup, ad, yer);
        if (bulunan == yer) {
            std::array<Oran, 4> okunanlar;
            for (int i = 0; i < 4; ++i) {
                const std::string saklanan(satır.Baytlar(3 + i).value_or(std::string_view()));
                const auto [oran, yeni] = oranlar.try_emplace(saklanan);
                if (yeni) {
                    const QString metin = YüzdeMetni(QString::fromStdString(saklanan), basamak);
                    oran->second = {YüzdeOranı(metin), DoubleOku(metin)};
                }
                okunanlar[static_cast<std::size_t>(i)] = oran->second;
            }
            const auto& [işçilik, kâr, diğer, vade] = okunanlar;
            KatalogÜrünü& ürün = Ürünler.emplace_back();
            ürün.Grup = QString::fromStdString(grup);
            ürün.Ad = QString::fromStdString(ad);
            ürün.Oranlar = {işçilik.Tutar, kâr.Tutar, diğer.Tutar, vade.Tutar};
            ürün.Yüzdeler = {işçilik.Sayı, kâr.Sayı, diğer.Sayı, vade.Sayı};
        } else {
            Ürünler[bulunan].İkiKez = true;
        }
        vazgeçildi = ilerleme && !ilerleme(++okunan);
        return !vazgeçildi;
    });
    return İşSonucuYap(sonuç, vazgeçildi);
}
