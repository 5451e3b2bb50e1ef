#include "FiyatKayitlari.h"

#include <iterator>

#include "OdbcTanitici.h"

namespace {

// The stored words are part of the file format.
constexpr const char* SÖZCÜKLER[] = {"elle", "toplu", "liste", "kur", "geri", "yine", "yari", "degistir", "getir"};

}  // namespace

QString TürSözcüğü(İşlemTürü tür) {
    return QString::fromLatin1(SÖZCÜKLER[static_cast<int>(tür)]);
}

std::optional<İşlemTürü> SözcüğünTürü(const QString& sözcük) {
    for (int i = 0; i < static_cast<int>(std::size(SÖZCÜKLER)); ++i)
        if (sözcük == QLatin1String(SÖZCÜKLER[i])) return static_cast<İşlemTürü>(i);
    return std::nullopt;
}

bool ÜrünleriDeğiştirir(const Deyimler::Fiyat::İşlem& işlem) {
    const std::optional<İşlemTürü> tür = SözcüğünTürü(işlem.Tür);
    return tür == İşlemTürü::Değiştir || tür == İşlemTürü::Getir;
}

İşSonucu FiyatTablolarıVar(OdbcBağlantısı& bağlantı, bool& var) {
    return İşSonucuYap(bağlantı.TabloVar(QString::fromLatin1(Deyimler::Fiyat::İŞLEM_TABLOSU), var));
}

İşSonucu İşlemleriOku(OdbcBağlantısı& bağlantı, std::vector<Deyimler::Fiyat::İşlem>& işlemler) {
    işlemler.clear();
    bool var = false;
    const İşSonucu tablolar = FiyatTablolarıVar(bağlantı, var);
    if (!tablolar.Tamam() || !var) return tablolar;
    return İşSonucuYap(bağlantı.Oku(Deyimler::Fiyat::İşlemler(), [&](OdbcSatırı& satır) {
        const auto sayı = [&satır](int sütun) { return SayıSütunu(satır, sütun); };
        const auto para = [&satır](int sütun) { return ParaSütunu(satır, sütun); };
        işlemler.push_back({sayı(1), satır.Metin(2), satır.Metin(3), satır.Metin(4), sayı(5), sayı(6), satır.Metin(7),
                            para(8), para(9), satır.Metin(10), satır.Metin(11)});
        return true;
    }));
}

İşSonucu DeğişimleriOku(OdbcBağlantısı& bağlantı, const QString& deyim,
                        std::vector<Deyimler::Fiyat::Değişim>& değişimler, std::size_t enÇok, bool& fazlaVar) {
    değişimler.clear();
    fazlaVar = false;
    return İşSonucuYap(bağlantı.Oku(deyim, [&](OdbcSatırı& satır) {
        fazlaVar = değişimler.size() == enÇok;
        if (fazlaVar) return false;
        değişimler.push_back({SayıSütunu(satır, 1), satır.Metin(2), ParaSütunu(satır, 3), ParaSütunu(satır, 4),
                              static_cast<Deyimler::Fiyat::Varlık>(SayıSütunu(satır, 5))});
        return true;
    }));
}

İşSonucu SıradakiİşlemNo(OdbcBağlantısı& bağlantı, bool tablolarVar, std::int64_t& no) {
    no = 1;
    if (!tablolarVar) return {};
    return İşSonucuYap(bağlantı.Oku(Deyimler::Fiyat::İşlemler(), [&no](OdbcSatırı& satır) {
        no = SayıSütunu(satır, 1) + 1;
        return false;
    }));
}

İşSonucu İşlemiYaz(OdbcBağlantısı& bağlantı, bool tablolarVar, const Deyimler::Fiyat::İşlem& işlem) {
    if (!tablolarVar) {
        for (const QString& deyim : Deyimler::Fiyat::TablolarıOluştur())
            if (const OdbcSonucu sonuç = bağlantı.Çalıştır(deyim); !sonuç.Başarılı()) return İşSonucuYap(sonuç);
    }
    return İşSonucuYap(bağlantı.Çalıştır(Deyimler::Fiyat::İşlemEkle(işlem)));
}

İşSonucu BugünDeğişenler(OdbcBağlantısı& bağlantı, const QString& gün, AdDizini& adlar) {
    std::vector<Deyimler::Fiyat::İşlem> işlemler;
    İşSonucu sonuç = İşlemleriOku(bağlantı, işlemler);
    for (const Deyimler::Fiyat::İşlem& işlem : işlemler) {
        if (!sonuç.Tamam()) break;
        if (!işlem.Zaman.startsWith(gün)) continue;
        sonuç = İşSonucuYap(bağlantı.Oku(Deyimler::Fiyat::İşleminDeğişimleri(işlem.No), [&adlar](OdbcSatırı& satır) {
            adlar.BulYaDaEkle(satır.Baytlar(2).value_or(""), 0);
            return true;
        }));
    }
    return sonuç;
}

İşSonucu SonDeğişimleri(OdbcBağlantısı& bağlantı, std::vector<SonDeğişim>& değişimler) {
    değişimler.clear();
    std::vector<Deyimler::Fiyat::İşlem> işlemler;
    const İşSonucu sonuç = İşlemleriOku(bağlantı, işlemler);
    if (!sonuç.Tamam() || işlemler.empty()) return sonuç;
    std::unordered_map<std::int64_t, QString> günler;
    for (const Deyimler::Fiyat::İşlem& işlem : işlemler) günler[işlem.No] = işlem.Zaman.left(10);
    AdDizini görülenler;
    return İşSonucuYap(bağlantı.Oku(Deyimler::Fiyat::Değişimler(), [&](OdbcSatırı& satır) {
        const std::string ad(satır.Baytlar(2).value_or(""));
        const auto yer = static_cast<std::uint32_t>(değişimler.size());
        if (görülenler.BulYaDaEkle(ad, yer) == yer)
            değişimler.push_back({QString::fromStdString(ad), günler[SayıSütunu(satır, 1)]});
        return true;
    }));
}

İşSonucu KullanılanAdlar(OdbcBağlantısı& bağlantı, AdDizini& adlar, const İlerleme& ilerleme) {
    bool vazgeçildi = false;
    std::int64_t okunan = 0;
    const OdbcSonucu sonuç = bağlantı.Oku(Deyimler::KullanılanAdlar(), [&](OdbcSatırı& satır) {
        adlar.BulYaDaEkle(satır.Baytlar(1).value_or(""), 0);
        vazgeçildi = ilerleme && !ilerleme(++okunan);
        return !vazgeçildi;
    });
    return İşSonucuYap(sonuç, vazgeçildi);
}
