#include "DovizKayitlari.h"

#include <algorithm>

#include "OdbcHareketi.h"
#include "OdbcTanitici.h"

using Deyimler::Döviz::Bağ;
using Deyimler::Döviz::Döviz;

namespace {

İşSonucu TablolarVar(OdbcBağlantısı& bağlantı, bool& var) {
    return İşSonucuYap(bağlantı.TabloVar(QString::fromLatin1(Deyimler::Döviz::TABLO), var));
}

İşSonucu BağlarıOku(OdbcBağlantısı& bağlantı, const QString& deyim, std::vector<Bağ>& bağlar) {
    bağlar.clear();
    bool var = false;
    const İşSonucu tablolar = TablolarVar(bağlantı, var);
    if (!tablolar.Tamam() || !var) return tablolar;
    return İşSonucuYap(bağlantı.Oku(deyim, [&bağlar](OdbcSatırı& satır) {
        bağlar.push_back({satır.Metin(1), satır.Metin(2), ParaSütunu(satır, 3), ParaSütunu(satır, 4),
                          ParaSütunu(satır, 5), SayıSütunu(satır, 6)});
        return true;
    }));
}

}  // namespace

İşSonucu DövizleriOku(OdbcBağlantısı& bağlantı, std::vector<Döviz>& dövizler) {
    dövizler.clear();
    bool var = false;
    const İşSonucu tablolar = TablolarVar(bağlantı, var);
    if (!tablolar.Tamam() || !var) return tablolar;
    return İşSonucuYap(bağlantı.Oku(Deyimler::Döviz::Dövizler(), [&dövizler](OdbcSatırı& satır) {
        dövizler.push_back({satır.Metin(1), ParaSütunu(satır, 2), satır.Metin(3)});
        return true;
    }));
}

İşSonucu DövizVar(OdbcBağlantısı& bağlantı, const QString& kod, bool& var) {
    std::vector<Döviz> dövizler;
    const İşSonucu sonuç = DövizleriOku(bağlantı, dövizler);
    var = std::any_of(dövizler.begin(), dövizler.end(), [&kod](const Döviz& d) { return d.Kod == kod; });
    return sonuç;
}

İşSonucu DövizBağlarınıOku(OdbcBağlantısı& bağlantı, std::vector<Bağ>& bağlar) {
    return BağlarıOku(bağlantı, Deyimler::Döviz::Bağlar(), bağlar);
}

İşSonucu MalzemeninBağınıOku(OdbcBağlantısı& bağlantı, const QString& malzeme, std::optional<Bağ>& bağ) {
    bağ.reset();
    if (!Deyimler::Yazılabilir(malzeme)) return {};
    std::vector<Bağ> bağlar;
    const İşSonucu sonuç = BağlarıOku(bağlantı, Deyimler::Döviz::BağıMalzemenin(malzeme), bağlar);
    if (!bağlar.empty()) bağ = bağlar.front();
    return sonuç;
}

İşSonucu DövizEkle(OdbcBağlantısı& bağlantı, const Döviz& döviz) {
    return TablolaraYaz(bağlantı, QString::fromLatin1(Deyimler::Döviz::TABLO), Deyimler::Döviz::TablolarıOluştur(),
                        {Deyimler::Döviz::DövizEkle(döviz)});
}

İşSonucu DövizSil(OdbcBağlantısı& bağlantı, const QString& kod) {
    return İşSonucuYap(bağlantı.Çalıştır(Deyimler::Döviz::DövizSil(kod)));
}

İşSonucu BağıYaz(OdbcBağlantısı& bağlantı, const Bağ& bağ) {
    return TablolaraYaz(bağlantı, QString::fromLatin1(Deyimler::Döviz::TABLO), Deyimler::Döviz::TablolarıOluştur(),
                        {Deyimler::Döviz::BağSil(bağ.Malzeme), Deyimler::Döviz::BağEkle(bağ)});
}

İşSonucu BağıSil(OdbcBağlantısı& bağlantı, const QString& malzeme) {
    return İşSonucuYap(bağlantı.Çalıştır(Deyimler::Döviz::BağSil(malzeme)));
}

İşSonucu KurÖnerileri(OdbcBağlantısı& bağlantı, KurDeğişimi kur, const Yuvarlama& yuvarlama, FiyatTeklifi& teklif,
                      QStringList& eksikler) {
    teklif = {};
    eksikler.clear();
    std::vector<Döviz> dövizler;
    std::vector<Bağ> bağlar;
    MalzemeKataloğu katalog;
    İşSonucu sonuç = DövizleriOku(bağlantı, dövizler);
    if (sonuç.Tamam()) sonuç = DövizBağlarınıOku(bağlantı, bağlar);
    if (sonuç.Tamam()) sonuç = katalog.Oku(bağlantı);
    if (!sonuç.Tamam()) return sonuç;
    const auto döviz =
        std::find_if(dövizler.begin(), dövizler.end(), [&kur](const Döviz& d) { return d.Kod == kur.Kod; });
    if (döviz == dövizler.end()) return sonuç;
    kur.Eski = döviz->Kur;
    kur.EskiGün = döviz->Gün;
    for (Bağ& bağ : bağlar) {
        if (bağ.Kod != kur.Kod) continue;
        const std::uint32_t yer = katalog.Dizin.Bul(bağ.Malzeme.toStdString());
        if (yer == AdDizini::YOK) {
            eksikler.append(bağ.Malzeme);
            continue;
        }
        const KatalogMalzemesi& malzeme = katalog.Malzemeler[yer];
        const YeniFiyat yeni = FiyatıBelirle(malzeme.Fiyat, KesinTutar(bağ.Fiyat).Kat(kur.Yeni), yuvarlama);
        FiyatÖnerisi öneri{malzeme.Ad, malzeme.Fiyat, yeni.Fiyat, NedenBul(yeni.Durum)};
        const bool elle = malzeme.Fiyat != bağ.Yazılan;
        if (elle && (öneri.Neden == PlanNedeni::Yok || öneri.Neden == PlanNedeni::Olağandışı))
            öneri.Neden = PlanNedeni::ElleDeğişmiş;
        öneri.İşaretli = öneri.Neden == PlanNedeni::Yok;
        teklif.Öneriler.push_back(std::move(öneri));
        bağ.Önceki = bağ.Yazılan;
        bağ.Yazılan = yeni.Fiyat;
        bağ.İşlem = 0;
        kur.Bağlar.push_back(bağ);
    }
    teklif.Kur = std::move(kur);
    return sonuç;
}
