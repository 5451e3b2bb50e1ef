#include "MaliyetDagilimi.h"

#include <algorithm>

#include "MaliyetHesabi.h"
#include "MalzemeToplami.h"
#include "SayiMetni.h"

namespace {

Ondalık Eksilisi(Ondalık sayı) {
    sayı.Eksi = !sayı.Eksi;
    return sayı;
}

bool SıfırMı(const Ondalık& sayı) {
    return sayı.Rakamlar.find_first_not_of('0') == std::string::npos;
}

std::optional<double> Pay(const Ondalık& parça, const Ondalık& bütün) {
    if (bütün.Eksi || SıfırMı(bütün)) return std::nullopt;
    const std::optional<double> a = EnYakınDouble(parça);
    const std::optional<double> b = EnYakınDouble(bütün);
    return a && b ? std::optional(*a / *b * 100) : std::nullopt;
}

DağılımParçası Parça(const Ondalık& tutar, const Ondalık& bütün) {
    return {tutar, Pay(tutar, bütün)};
}

// What a box that shows this text counts.
Ondalık Okunan(const QString& metin, int basamak) {
    return Yuvarla(OndalıkOku(metin).value_or(Ondalık{false, "0", 0}), basamak, Yarım::SıfırdanUzağa);
}

std::optional<DağılımParçası> Eksik(const Ondalık& toplam, const Ondalık& bütün) {
    const Ondalık fark = Topla(bütün, Eksilisi(toplam));
    return SıfırMı(fark) ? std::nullopt : std::optional(Parça(fark, bütün));
}

// The largest first; their sum is what they are a part of but for rounding.
void MalzemeleriDiz(MaliyetDağılımı& dağılım, int basamak) {
    const auto büyüklük = [](const DağılımMalzemesi& m) {
        return m.Parça.Tutar ? EnYakınDouble(*m.Parça.Tutar).value_or(0) : 0;
    };
    std::stable_sort(dağılım.Malzemeler.begin(), dağılım.Malzemeler.end(),
                     [&](const DağılımMalzemesi& a, const DağılımMalzemesi& b) {
                         if (a.Sayıldı != b.Sayıldı) return a.Sayıldı;
                         return büyüklük(a) > büyüklük(b);
                     });
    Ondalık toplam = Okunan({}, basamak);
    for (DağılımMalzemesi& malzeme : dağılım.Malzemeler) {
        if (!malzeme.Parça.Tutar) continue;
        malzeme.Parça = Parça(*malzeme.Parça.Tutar, dağılım.MalzemeMaliyeti);
        toplam = Topla(toplam, *malzeme.Parça.Tutar);
        malzeme.BirikimliPay = Pay(toplam, dağılım.MalzemeMaliyeti);
    }
    dağılım.MalzemeYuvarlaması = Eksik(toplam, dağılım.MalzemeMaliyeti);
}

}  // namespace

DağılımParçası MaliyetDağılımı::Kalanlar(std::size_t ilk) const {
    Ondalık toplam = Okunan({}, static_cast<int>(MalzemeMaliyeti.Basamak));
    for (std::size_t i = ilk; i < Malzemeler.size(); ++i)
        if (const auto& tutar = Malzemeler[i].Parça.Tutar) toplam = Topla(toplam, *tutar);
    return Parça(toplam, MalzemeMaliyeti);
}

MaliyetDağılımı MaliyetiDağıt(const DağılımGirdisi& girdi, int basamak) {
    MaliyetDağılımı dağılım;
    MalzemeToplamı malzemeler;
    for (const DağılımGirdisi::Satır& satır : girdi.Satırlar) {
        const MalzemeSatırı gösterilen = malzemeler.Ekle(satır.Miktar, satır.Fiyat, basamak);
        DağılımMalzemesi& malzeme = dağılım.Malzemeler.emplace_back();
        malzeme.Ad = satır.Malzeme;
        malzeme.Miktar = gösterilen.Miktar;
        malzeme.SaklananMiktar = satır.Miktar;
        malzeme.Sayıldı = gösterilen.Sayıldı;
        if (malzeme.Sayıldı) malzeme.Parça.Tutar = Okunan(gösterilen.Tutar, basamak);
    }
    // As the main form's boxes read them.
    std::array<QString, 4> yüzdeler;
    for (std::size_t i = 0; i < yüzdeler.size(); ++i) yüzdeler[i] = YüzdeMetni(girdi.Yüzdeler[i], basamak);
    const QString maliyet = SayıBiçimle(malzemeler.Tutar(), basamak);
    const MaliyetTutarları tutarlar = MaliyetHesapla({maliyet, yüzdeler[0], yüzdeler[1], yüzdeler[2], yüzdeler[3]});
    dağılım.MalzemeMaliyeti = Okunan(maliyet, basamak);
    dağılım.Toplam = Okunan(SayıBiçimle(tutarlar.Toplam, basamak), basamak);
    MalzemeleriDiz(dağılım, basamak);

    dağılım.Parçalar[0] = Parça(dağılım.MalzemeMaliyeti, dağılım.Toplam);
    Ondalık toplam = dağılım.MalzemeMaliyeti;
    for (std::size_t i = 0; i < yüzdeler.size(); ++i) {
        const std::optional<double> tutar = YüzdeTutarı(maliyet, yüzdeler[i]);
        const std::optional<Ondalık> haneler = tutar ? OnBeşHaneyle(*tutar) : std::nullopt;
        if (!haneler) continue;
        const Ondalık gösterilen = Yuvarla(*haneler, basamak, Yarım::SıfırdanUzağa);
        dağılım.Parçalar[i + 1] = Parça(gösterilen, dağılım.Toplam);
        toplam = Topla(toplam, gösterilen);
    }
    dağılım.Yuvarlama = Eksik(toplam, dağılım.Toplam);
    return dağılım;
}
