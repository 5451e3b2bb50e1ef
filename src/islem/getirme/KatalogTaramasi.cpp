#include "KatalogTaramasi.h"

#include <QDate>
#include <functional>

#include "FiyatDeyimleri.h"
#include "OdbcTanitici.h"
#include "TurkceSira.h"

namespace {

bool Yazılabilir(std::string_view metin) {
    return metin.find('\'') == std::string_view::npos;
}

// Mixed, so that the rows' sums differ where the rows do.
std::uint64_t Karıştır(std::uint64_t özet) {
    constexpr std::uint64_t çarpan1 = 0xbf58476d1ce4e5b9U;
    constexpr std::uint64_t çarpan2 = 0x94d049bb133111ebU;
    özet = (özet ^ (özet >> 30)) * çarpan1;
    özet = (özet ^ (özet >> 27)) * çarpan2;
    return özet ^ (özet >> 31);
}

}  // namespace

bool ToplamıEksik(const MaliyetTablosuSatırı& satır) {
    return (satır.Dikkat & (OkunamayanMiktar | TutarTaşıyor)) != 0;
}

İşSonucu KatalogTaraması::Oku(OdbcBağlantısı& bağlantı, int basamak, const İlerleme& ilerleme) {
    *this = {};
    std::vector<MaliyetTablosuSatırı> tablo;
    İşSonucu sonuç = MaliyetTablosunuOku(bağlantı, basamak, tablo, ilerleme);
    if (sonuç.Tamam()) sonuç = Malzemeler.Oku(bağlantı, ilerleme);
    if (!sonuç.Tamam()) return sonuç;
    Ürünler.reserve(tablo.size());
    for (MaliyetTablosuSatırı& satır : tablo) {
        TarananÜrün& ürün = Ürünler.emplace_back();
        ürün.Toplam = satır.Toplam;
        ürün.Eksik = ToplamıEksik(satır);
        ürün.Yazılamaz = !Deyimler::Yazılabilir(satır.Grup) || !Deyimler::Yazılabilir(satır.Ad);
        m_dizin.BulYaDaEkle(satır.Grup.toStdString(), satır.Ad.toStdString(),
                            static_cast<std::uint32_t>(Ürünler.size() - 1));
        ürün.Grup = std::move(satır.Grup);
        ürün.Ad = std::move(satır.Ad);
    }
    sonuç = YüzdeleriOku(bağlantı);
    return sonuç.Tamam() ? SatırlarıOku(bağlantı, ilerleme) : sonuç;
}

İşSonucu KatalogTaraması::YüzdeleriOku(OdbcBağlantısı& bağlantı) {
    std::vector<bool> görüldü(Ürünler.size(), false);
    return İşSonucuYap(bağlantı.Oku(Deyimler::TümÜrünler(), [&](OdbcSatırı& satır) {
        const std::uint32_t yer = m_dizin.Bul(satır.Baytlar(1).value_or(""), satır.Baytlar(2).value_or(""));
        if (yer == AdDizini::YOK) return true;
        TarananÜrün& ürün = Ürünler[yer];
        ürün.İkiKez = görüldü[yer];
        if (!ürün.İkiKez)
            for (int i = 0; i < 4; ++i) ürün.Yüzdeler[static_cast<std::size_t>(i)] = satır.Metin(3 + i);
        görüldü[yer] = true;
        return true;
    }));
}

İşSonucu KatalogTaraması::SatırlarıOku(OdbcBağlantısı& bağlantı, const İlerleme& ilerleme) {
    std::int64_t okunan = 0;
    bool vazgeçildi = false;
    const std::hash<std::string_view> özetle;
    const OdbcSonucu odbc = bağlantı.Oku(Deyimler::TümKullanılanlar(), [&](OdbcSatırı& satır) {
        const auto baytlar = [&satır](int sütun) { return satır.Baytlar(sütun).value_or(std::string_view()); };
        vazgeçildi = ilerleme && !ilerleme(++okunan);
        const std::uint32_t yer = m_dizin.Bul(baytlar(1), baytlar(2));
        if (yer == AdDizini::YOK) return !vazgeçildi;
        TarananÜrün& ürün = Ürünler[yer];
        ++ürün.Satır;
        ürün.Yazılamaz |= !Yazılabilir(baytlar(3)) || !Yazılabilir(baytlar(4));
        ürün.Okunamaz |=
            !SaklananPara(baytlar(5)) || !QDate::fromString(satır.Metin(6).left(10), Qt::ISODate).isValid();
        ürün.Özet += Karıştır(Türkçe::Özet(baytlar(3), Karıştır(özetle(baytlar(4)) ^ Karıştır(özetle(baytlar(6))))));
        return !vazgeçildi;
    });
    return İşSonucuYap(odbc, vazgeçildi);
}

const TarananÜrün* KatalogTaraması::Bul(const QString& grup, const QString& ad) const {
    const std::uint32_t yer = m_dizin.Bul(grup.toStdString(), ad.toStdString());
    return yer == AdDizini::YOK ? nullptr : &Ürünler[yer];
}
