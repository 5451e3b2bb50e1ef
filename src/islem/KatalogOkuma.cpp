#include "KatalogOkuma.h"

#include <algorithm>
#include <charconv>
#include <iterator>

#include "Deyimler.h"
#include "OdbcHareketi.h"
#include "OdbcTanitici.h"
#include "SayiCozumu.h"
#include "TurkceMetin.h"

İşSonucu İşSonucuYap(const OdbcSonucu& odbc, bool vazgeçildi) {
    if (!odbc.Başarılı()) return {İşSonu::Olmadı, odbc};
    return {vazgeçildi ? İşSonu::Vazgeçildi : İşSonu::Tamam, odbc};
}

std::optional<Para> SaklananPara(std::string_view baytlar) {
    // As the driver writes them: digits, a dot and up to four more where there are decimals. Anything else goes the
    // long way.
    constexpr std::size_t azamiTam = 14;
    constexpr std::int64_t onlar[] = {10000, 1000, 100, 10, 1};
    const std::size_t tam = std::min(baytlar.find('.'), baytlar.size());
    const std::size_t kesir = tam == baytlar.size() ? 0 : baytlar.size() - tam - 1;
    if (tam > 0 && tam <= azamiTam && kesir < std::size(onlar)) {
        std::int64_t sayı = 0;
        std::size_t yer = 0;
        for (; yer < baytlar.size(); ++yer) {
            if (yer == tam) continue;
            if (baytlar[yer] < '0' || baytlar[yer] > '9') break;
            sayı = sayı * 10 + (baytlar[yer] - '0');
        }
        if (yer == baytlar.size()) return Para::OnBindeBirden(sayı * onlar[kesir]);
    }
    const auto sayı = SayıÇöz(baytlar, NoktaKuralı::Virgül, [](char) { return false; });
    return sayı ? Para::Ondalıktan(*sayı) : std::nullopt;
}

std::int64_t SaklananSayı(std::string_view baytlar) {
    std::int64_t sayı = 0;
    std::from_chars(baytlar.data(), baytlar.data() + baytlar.size(), sayı);
    return sayı;
}

OdbcSonucu SayımıOku(OdbcBağlantısı& bağlantı, const QString& deyim, std::int64_t& sayı) {
    return bağlantı.Oku(deyim, [&sayı](OdbcSatırı& satır) {
        sayı = SayıSütunu(satır, 1);
        return false;
    });
}

Para ParaSütunu(OdbcSatırı& satır, int sütun) {
    return SaklananPara(satır.Baytlar(sütun).value_or("")).value_or(Para());
}

std::int64_t SayıSütunu(OdbcSatırı& satır, int sütun) {
    return SaklananSayı(satır.Baytlar(sütun).value_or(""));
}

İşSonucu TablolaraYaz(OdbcBağlantısı& bağlantı, const QString& tablo, const QStringList& oluştur,
                      const QStringList& deyimler) {
    bool var = false;
    if (const OdbcSonucu s = bağlantı.TabloVar(tablo, var); !s.Başarılı()) return İşSonucuYap(s);
    OdbcHareketi hareket(bağlantı);
    if (const OdbcSonucu s = hareket.Başla(); !s.Başarılı()) return İşSonucuYap(s);
    for (const QString& deyim : var ? deyimler : oluştur + deyimler)
        if (const OdbcSonucu s = bağlantı.Çalıştır(deyim); !s.Başarılı()) return İşSonucuYap(s);
    return İşSonucuYap(hareket.Onayla());
}

İşSonucu MalzemeKataloğu::Oku(OdbcBağlantısı& bağlantı, const İlerleme& ilerleme) {
    Malzemeler.clear();
    Dizin = {};
    bool vazgeçildi = false;
    const OdbcSonucu sonuç = bağlantı.Oku(Deyimler::MalzemeKataloğuRaporu(), [&](OdbcSatırı& satır) {
        const std::string ad(satır.Baytlar(1).value_or(std::string_view()));
        const std::optional<Para> fiyat = SaklananPara(satır.Baytlar(2).value_or(std::string_view()));
        const auto yer = static_cast<std::uint32_t>(Malzemeler.size());
        if (Dizin.BulYaDaEkle(ad, yer) == yer) Malzemeler.push_back({Utf8Metni(ad), fiyat.value_or(Para())});
        vazgeçildi = ilerleme && !ilerleme(static_cast<std::int64_t>(Malzemeler.size()));
        return !vazgeçildi;
    });
    return İşSonucuYap(sonuç, vazgeçildi);
}

İşSonucu MalzemeyiOku(OdbcBağlantısı& bağlantı, const QString& ad, std::optional<KatalogMalzemesi>& malzeme) {
    malzeme.reset();
    return İşSonucuYap(bağlantı.Oku(Deyimler::MalzemeVeFiyatı(ad), [&malzeme](OdbcSatırı& satır) {
        malzeme = KatalogMalzemesi{satır.Metin(1), ParaSütunu(satır, 2)};
        return false;
    }));
}
