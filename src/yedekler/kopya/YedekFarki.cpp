#include "YedekFarki.h"

#include <string>
#include <vector>

#include "Deyimler.h"
#include "TurkceSira.h"

namespace {

using Adlar = std::vector<std::vector<std::string>>;

int Karşılaştır(const std::vector<std::string>& a, const std::vector<std::string>& b) {
    for (std::size_t i = 0; i < a.size(); ++i)
        if (const int sonuç = Türkçe::Karşılaştır(std::string_view(a[i]), std::string_view(b[i])); sonuç != 0)
            return sonuç;
    return 0;
}

OdbcSonucu Oku(OdbcBağlantısı& bağlantı, const QString& deyim, Adlar& adlar) {
    OdbcSonucu sonuç = bağlantı.Oku(deyim, [&adlar](OdbcSatırı& satır) {
        std::vector<std::string> ad;
        for (int sütun = 1; sütun <= satır.SütunSayısı(); ++sütun)
            ad.emplace_back(satır.Baytlar(sütun).value_or(std::string_view()));
        adlar.push_back(std::move(ad));
        return true;
    });
    const bool tabloYok = sonuç.Hatalar.value(0).Durum == QLatin1String("S0002");
    return tabloYok ? OdbcSonucu() : sonuç;
}

// Both statements give the names in the data file's order.
OdbcSonucu Say(OdbcBağlantısı& şimdiki, OdbcBağlantısı& yedek, const QString& deyim, std::int64_t& olmayan) {
    Adlar şimdikiler;
    Adlar yedektekiler;
    OdbcSonucu sonuç = Oku(şimdiki, deyim, şimdikiler);
    if (sonuç.Başarılı()) sonuç = Oku(yedek, deyim, yedektekiler);
    std::size_t yer = 0;
    for (const std::vector<std::string>& ad : şimdikiler) {
        while (yer < yedektekiler.size() && Karşılaştır(yedektekiler[yer], ad) < 0) ++yer;
        if (yer == yedektekiler.size() || Karşılaştır(yedektekiler[yer], ad) != 0) ++olmayan;
    }
    return sonuç;
}

}  // namespace

OdbcSonucu YedekteOlmayanlarıSay(OdbcBağlantısı& şimdiki, OdbcBağlantısı& yedek, YedekFarkı& fark) {
    const OdbcSonucu sonuç = Say(şimdiki, yedek, Deyimler::ÜrünAğacı(), fark.Ürün);
    return sonuç.Başarılı() ? Say(şimdiki, yedek, Deyimler::MalzemeListesi(), fark.Malzeme) : sonuç;
}
