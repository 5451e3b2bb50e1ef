#include "SutunTahmini.h"

#include <QSet>
#include <algorithm>
#include <array>

#include "FiyatMetni.h"
#include "TurkceMetin.h"

namespace {

enum class Başlık { Yok, Ad, Fiyat, Tutar, Başka };

constexpr int EnÇokBaşlıkSözü = 40;  // longer texts are no captions

// What a column's caption says. A "Tutar" is the price only where there is no "Fiyat"; codes, amounts and rates are
// neither price nor name.
Başlık Yorumla(const ÇizelgeHücresi& hücre) {
    if (hücre.Tür != ÇizelgeHücreTürü::Metin || hücre.Metin.size() > EnÇokBaşlıkSözü) return Başlık::Yok;
    const QString metin = TürkçeBüyükHarf(ListeAdı(hücre.Metin));
    const auto geçer = [&metin](auto... sözler) { return (metin.contains(QStringView(sözler)) || ...); };
    if (geçer(u"FİYAT", u"FIYAT", u"PRİCE", u"PRICE")) return Başlık::Fiyat;
    if (geçer(u"TUTAR", u"BEDEL")) return Başlık::Tutar;
    if (geçer(u"KOD", u"BARKOD", u"SIRA", u"MİKTAR", u"ADET", u"KDV", u"İSKONTO", u"BİRİM", u"STOK NO", u"MARKA"))
        return Başlık::Başka;
    if (geçer(u"ÜRÜN", u"MALZEME", u"CİNS", u"AÇIKLAMA", u"TANIM", u"STOK", u"NAME", u"DESCR", u"İSİM"))
        return Başlık::Ad;
    return metin == u"AD" || metin == u"ADI" || metin.endsWith(u" ADI") ? Başlık::Ad : Başlık::Yok;
}

bool FiyatMı(const ÇizelgeHücresi& hücre) {
    const FiyatTürü tür = FiyatOku(hücre).Tür;
    return tür == FiyatTürü::Sayı || tür == FiyatTürü::Kuşkulu;
}

int SütunSayısı(std::span<const ÇizelgeSatırı> satırlar) {
    std::size_t sayı = 0;
    for (const ÇizelgeSatırı& satır : satırlar) sayı = std::max(sayı, satır.Hücreler.size());
    return static_cast<int>(sayı);
}

// The row with the most captions: at least one, beside another text, and no price; -1: none.
int BaşlıkSırası(std::span<const ÇizelgeSatırı> satırlar) {
    int sıra = -1;
    int enÇok = 0;
    for (std::size_t i = 0; i < satırlar.size(); ++i) {
        const auto& hücreler = satırlar[i].Hücreler;
        const auto başlık = std::count_if(hücreler.begin(), hücreler.end(),
                                          [](const ÇizelgeHücresi& h) { return Yorumla(h) != Başlık::Yok; });
        const auto metin = std::count_if(hücreler.begin(), hücreler.end(),
                                         [](const ÇizelgeHücresi& h) { return h.Tür == ÇizelgeHücreTürü::Metin; });
        if (başlık > enÇok && metin > 1 && std::none_of(hücreler.begin(), hücreler.end(), FiyatMı)) {
            sıra = static_cast<int>(i);
            enÇok = static_cast<int>(başlık);
        }
    }
    return sıra;
}

struct SütunPuanı {
    double Ad = 0;
    double Fiyat = 0;
};

// 1, 2, 3 …: a list's own count of its rows.
bool SıraNumarası(std::span<const ÇizelgeSatırı> satırlar, int sütun) {
    qint64 önceki = -1;
    for (const ÇizelgeSatırı& satır : satırlar) {
        const ÇizelgeHücresi& hücre = satır.Sütun(sütun);
        if (hücre.Tür == ÇizelgeHücreTürü::Boş) continue;
        bool tamam = false;
        const qint64 no = hücre.Metin.toLongLong(&tamam);
        if (!tamam || (önceki >= 0 && no != önceki + 1)) return false;
        önceki = no;
    }
    return önceki > 0;
}

SütunPuanı Puanla(std::span<const ÇizelgeSatırı> satırlar, int sütun, Başlık başlık) {
    constexpr double enUzunAd = 40, başlıkKatı = 4;
    SütunPuanı puan;
    QSet<QString> ayrı;
    double metinSayısı = 0, boy = 0;
    for (const ÇizelgeSatırı& satır : satırlar) {
        const ÇizelgeHücresi& hücre = satır.Sütun(sütun);
        if (FiyatMı(hücre)) {
            // Decimals or a currency are a price's own; a bare whole number may be an amount, a code or a year.
            const bool belli = !hücre.ParaBirimi.isEmpty() || FiyatOku(hücre).Değer.Basamak > 0;
            puan.Fiyat += belli ? 2 : 1;
        } else if (hücre.Tür == ÇizelgeHücreTürü::Metin) {
            ++metinSayısı;
            boy += std::min<double>(enUzunAd, static_cast<double>(hücre.Metin.size()));
            ayrı.insert(hücre.Metin);
        }
    }
    if (metinSayısı > 0) puan.Ad = boy * static_cast<double>(ayrı.size()) / metinSayısı;
    if (SıraNumarası(satırlar, sütun)) puan.Fiyat = 0;
    puan.Ad *= başlık == Başlık::Ad ? başlıkKatı : başlık == Başlık::Yok ? 1 : 1 / başlıkKatı;
    puan.Fiyat *= başlık == Başlık::Fiyat   ? başlıkKatı * başlıkKatı
                  : başlık == Başlık::Tutar ? başlıkKatı
                  : başlık == Başlık::Yok   ? 1
                                            : 1 / başlıkKatı;
    return puan;
}

// A list without known captions: the row above the first price, if both its cells are texts.
qint64 BaşlıkAra(std::span<const ÇizelgeSatırı> satırlar, const SütunTahmini& tahmin) {
    const auto ilk = std::find_if(satırlar.begin(), satırlar.end(),
                                  [&](const ÇizelgeSatırı& s) { return FiyatMı(s.Sütun(tahmin.FiyatSütunu)); });
    if (ilk == satırlar.begin() || ilk == satırlar.end()) return 0;
    const ÇizelgeSatırı& üst = *(ilk - 1);
    const bool metinler = üst.Sütun(tahmin.AdSütunu).Tür == ÇizelgeHücreTürü::Metin &&
                          üst.Sütun(tahmin.FiyatSütunu).Tür == ÇizelgeHücreTürü::Metin;
    return metinler ? üst.No : 0;
}

}  // namespace

SütunTahmini SütunlarıTahminEt(std::span<const ÇizelgeSatırı> satırlar) {
    satırlar = satırlar.first(std::min<std::size_t>(satırlar.size(), TahmineYetenSatır));
    const int başlık = BaşlıkSırası(satırlar);
    const auto veriler = satırlar.subspan(static_cast<std::size_t>(başlık) + 1);
    SütunTahmini tahmin;
    SütunPuanı enİyi;
    for (int sütun = 0; sütun < SütunSayısı(satırlar); ++sütun) {
        const SütunPuanı puan =
            Puanla(veriler, sütun, başlık < 0 ? Başlık::Yok : Yorumla(satırlar[başlık].Sütun(sütun)));
        if (puan.Ad > enİyi.Ad) {
            enİyi.Ad = puan.Ad;
            tahmin.AdSütunu = sütun;
        }
        if (puan.Fiyat > enİyi.Fiyat) {
            enİyi.Fiyat = puan.Fiyat;
            tahmin.FiyatSütunu = sütun;
        }
    }
    if (başlık >= 0)
        tahmin.BaşlıkSatırı = satırlar[başlık].No;
    else if (tahmin.AdSütunu >= 0 && tahmin.FiyatSütunu >= 0)
        tahmin.BaşlıkSatırı = BaşlıkAra(satırlar, tahmin);
    return tahmin;
}
