#include "KatalogOkuma.h"

#include <charconv>

#include "FiyatDeyimleri.h"
#include "OdbcTanitici.h"

İşSonucu İşSonucuYap(const OdbcSonucu& odbc, bool vazgeçildi) {
    if (!odbc.Başarılı()) return {İşSonu::Olmadı, odbc};
    return {vazgeçildi ? İşSonu::Vazgeçildi : İşSonu::Tamam, odbc};
}

std::optional<Para> SaklananPara(std::string_view baytlar) {
    const bool eksi = baytlar.starts_with('-');
    if (eksi) baytlar.remove_prefix(1);
    std::uint64_t tam = 0;
    const char* son = baytlar.data() + baytlar.size();
    auto [yer, hata] = std::from_chars(baytlar.data(), son, tam);
    if (hata != std::errc{} || tam > std::uint64_t{922'337'203'685'477}) return std::nullopt;
    std::uint64_t kesir = 0;
    if (yer != son) {
        if (*yer++ != '.' || yer == son || son - yer > 4) return std::nullopt;
        const auto hane = son - yer;
        const auto sonuç = std::from_chars(yer, son, kesir);
        if (sonuç.ec != std::errc{} || sonuç.ptr != son) return std::nullopt;
        for (auto i = hane; i < 4; ++i) kesir *= 10;
    }
    const std::uint64_t sayım = tam * Para::Ölçek + kesir;
    constexpr std::uint64_t sınır = std::uint64_t{1} << 63;
    if (sayım > sınır - (eksi ? 0 : 1)) return std::nullopt;
    return Para::OnBindeBirden(static_cast<std::int64_t>(eksi ? -sayım : sayım));
}

std::int64_t SaklananSayı(std::string_view baytlar) {
    std::int64_t sayı = 0;
    std::from_chars(baytlar.data(), baytlar.data() + baytlar.size(), sayı);
    return sayı;
}

İşSonucu MalzemeKataloğu::Oku(OdbcBağlantısı& bağlantı, const İlerleme& ilerleme) {
    Malzemeler.clear();
    Dizin = {};
    bool vazgeçildi = false;
    const OdbcSonucu sonuç = bağlantı.Oku(Deyimler::TümMalzemeler(), [&](OdbcSatırı& satır) {
        const std::string ad(satır.Baytlar(1).value_or(std::string_view()));
        const std::optional<Para> fiyat = SaklananPara(satır.Baytlar(2).value_or(std::string_view()));
        const auto yer = static_cast<std::uint32_t>(Malzemeler.size());
        if (Dizin.BulYaDaEkle(ad, yer) == yer)
            Malzemeler.push_back(
                {QString::fromUtf8(ad.data(), static_cast<qsizetype>(ad.size())), fiyat.value_or(Para())});
        vazgeçildi = ilerleme && !ilerleme(static_cast<std::int64_t>(Malzemeler.size()));
        return !vazgeçildi;
    });
    return İşSonucuYap(sonuç, vazgeçildi);
}
