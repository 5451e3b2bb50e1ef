#include "UrunToplamlari.h"

#include "FiyatDeyimleri.h"
#include "OdbcTanitici.h"

İşSonucu ÜrünKataloğu::Oku(OdbcBağlantısı& bağlantı, int basamak, const İlerleme& ilerleme) {
    Ürünler.clear();
    Dizin = {};
    bool vazgeçildi = false;
    std::int64_t okunan = 0;
    std::unordered_map<std::string, Para> oranlar;  // few different ones
    const OdbcSonucu sonuç = bağlantı.Oku(Deyimler::TümÜrünler(), [&](OdbcSatırı& satır) {
        const std::string grup(satır.Baytlar(1).value_or(std::string_view()));
        const std::string ad(satır.Baytlar(2).value_or(std::string_view()));
        const auto yer = static_cast<std::uint32_t>(Ürünler.size());
        if (Dizin.BulYaDaEkle(grup, ad, yer) == yer) {
            const auto oran = [&](int sütun) {
                const std::string saklanan(satır.Baytlar(sütun).value_or(std::string_view()));
                const auto [bulunan, yeni] = oranlar.try_emplace(saklanan);
                if (yeni) bulunan->second = YüzdeOranı(YüzdeMetni(QString::fromStdString(saklanan), basamak));
                return bulunan->second;
            };
            Ürünler.push_back(
                {QString::fromStdString(grup), QString::fromStdString(ad), {oran(3), oran(4), oran(5), oran(6)}});
        }
        vazgeçildi = ilerleme && !ilerleme(++okunan);
        return !vazgeçildi;
    });
    return İşSonucuYap(sonuç, vazgeçildi);
}
