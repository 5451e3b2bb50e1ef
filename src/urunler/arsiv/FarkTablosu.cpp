#include "FarkTablosu.h"

#include "ArsivMetinleri.h"
#include "ArsivMetni.h"
#include "DegiskenModulu.h"
#include "SayiMetni.h"

namespace {

// Nothing comes first.
int BoşuÖneKoy(const std::optional<Para>& a, const std::optional<Para>& b) {
    if (a && b) return Sırala(*a, *b);
    return Sırala(a.has_value(), b.has_value());
}

bool AdıDeğişmiş(const ÜrünFarkı& fark) {
    return fark.Eski && fark.Yeni && !AynıÜrün(*fark.Eski, *fark.Yeni);
}

double Oranı(const ÜrünFarkı& fark) {
    constexpr double yok = -1e300;
    if (!fark.Eski || !fark.Yeni || fark.EskiToplam == Para()) return yok;
    return (fark.YeniToplam.Double() - fark.EskiToplam.Double()) / fark.EskiToplam.Double();
}

MetinNo ParçaMetni(FarkTürü tür) {
    constexpr MetinNo metinler[] = {ArşivMetni::ParçaÇıkan,   ArşivMetni::ParçaMiktar,  ArşivMetni::ParçaFiyat,
                                    ArşivMetni::ParçaEklenen, ArşivMetni::Parçaİşçilik, ArşivMetni::ParçaKâr,
                                    ArşivMetni::ParçaDiğer,   ArşivMetni::ParçaVade};
    static_assert(std::size(metinler) == FARK_TÜRÜ_SAYISI);
    return metinler[static_cast<std::size_t>(tür)];
}

}  // namespace

QList<TabloSütunu> FarkSütunlarınıVer() {
    return {{MetinNo::GrubuSütunu, 8},
            {MetinNo::ÜrünSütunu, 14},
            {ArşivMetni::EskiSütunu, 9, true},
            {ArşivMetni::YeniSütunu, 9, true},
            {ArşivMetni::FarkSütunu, 9, true},
            {ArşivMetni::YüzdeSütunu, 6, true},
            {ArşivMetni::ÇıkanSütunu, 8, true},
            {ArşivMetni::MiktarSütunu, 8, true},
            {ArşivMetni::FiyatSütunu, 8, true},
            {ArşivMetni::EklenenSütunu, 8, true},
            {ArşivMetni::YüzdelerSütunu, 8, true},
            {ArşivMetni::YuvarlamaSütunu, 5, true},
            {ArşivMetni::DurumSütunu, 16}};
}

GösterilenFark FarkıGöster(const ÜrünFarkı& fark) {
    GösterilenFark sonuç;
    if (fark.Eski) sonuç.Eski = ArşivGösterimi(fark.EskiToplam);
    if (fark.Yeni) sonuç.Yeni = ArşivGösterimi(fark.YeniToplam);
    sonuç.Fark = TutarFarkı(sonuç.Yeni.value_or(Para()), sonuç.Eski.value_or(Para()));
    if (!fark.Eski || !fark.Yeni) return sonuç;
    std::array<Para, 5> parçalar;
    for (std::size_t i = 0; i < FARK_TÜRÜ_SAYISI; ++i) {
        Para& parça = parçalar[std::min(i, İLK_YÜZDE)];
        parça = Topla(parça, fark.Ayrım.Parçalar[i]).value_or(parça);
    }
    for (std::size_t i = 0; i < parçalar.size(); ++i) sonuç.Parçalar[i] = ArşivGösterimi(parçalar[i]);
    sonuç.Parçalar.back() = YuvarlamaKalanı(sonuç.Fark, parçalar, OndalıkBasamak);
    return sonuç;
}

QString FarkDurumu(const ÜrünFarkı& fark) {
    QStringList durumlar;
    if (fark.Bozuk) durumlar.append(Metin(ArşivMetni::DurumBozuk));
    if (!fark.Eski) durumlar.append(Metin(ArşivMetni::DurumYeni));
    if (!fark.Yeni) durumlar.append(Metin(ArşivMetni::DurumSilinmiş));
    if (AdıDeğişmiş(fark))
        durumlar.append(Metin(ArşivMetni::DurumAdıDeğişmiş).arg(KapsamMetni({fark.Eski->Grup, fark.Eski->Ürün})));
    if (fark.Ayrım.Taştı) durumlar.append(Metin(ArşivMetni::DurumTaştı));
    const QString dikkat = ArşivDikkatMetni(fark.EskiDikkat | fark.YeniDikkat);
    if (!dikkat.isEmpty())
        durumlar.append(FöyEksik(fark.EskiDikkat | fark.YeniDikkat) ? Metin(ArşivMetni::DurumEksik).arg(dikkat)
                                                                    : dikkat);
    return durumlar.join(QStringLiteral("; "));
}

std::optional<Para> FarkSatırları::Tutar(std::size_t satır, int sütun) const {
    const GösterilenFark fark = FarkıGöster(Satırlar[satır]);
    switch (sütun) {
        case KEski:
            return fark.Eski;
        case KYeni:
            return fark.Yeni;
        case KFark:
            return fark.Fark;
        default:
            return fark.Parçalar[static_cast<std::size_t>(sütun - KÇıkan)];
    }
}

QString FarkSatırları::Hücre(std::size_t satır, int sütun) const {
    const ÜrünFarkı& s = Satırlar[satır];
    switch (sütun) {
        case KGrup:
            return s.Adı().Grup;
        case KÜrün:
            return s.Adı().Ürün;
        case KYüzde:
            return s.Eski && s.Yeni ? ArşivYüzdesi(s.EskiToplam, s.YeniToplam) : QString();
        case KDurum:
            return FarkDurumu(s);
        default: {
            const std::optional<Para> tutar = Tutar(satır, sütun);
            const bool boş = !tutar || (sütun >= KÇıkan && *tutar == Para());  // what there is stands out
            return boş ? QString() : ArşivTutarı(*tutar);
        }
    }
}

int FarkSatırları::Karşılaştır(std::size_t a, std::size_t b, int sütun) const {
    if (sütun == KYüzde) return Sırala(Oranı(Satırlar[a]), Oranı(Satırlar[b]));
    if (sütun >= KEski && sütun < KDurum) return BoşuÖneKoy(Tutar(a, sütun), Tutar(b, sütun));
    return TabloKaynağı::Karşılaştır(a, b, sütun);
}

QList<TabloSütunu> ParçaSütunlarınıVer() {
    return {{ArşivMetni::TutarSütunu, 12, true}, {ArşivMetni::ParçaSütunu, 14}, {MetinNo::MalzemeSütunu, 22}};
}

void ParçaSatırları::Göster(const ÜrünFarkı& fark) {
    m_satırlar.clear();
    std::vector<Para> parçalar;
    for (const FarkKalemi& kalem : fark.Ayrım.Kalemler) {
        parçalar.push_back(kalem.Tutar);
        m_satırlar.push_back({ParçaMetni(kalem.Tür), kalem.Malzeme, ArşivGösterimi(kalem.Tutar)});
    }
    const Para kalan = YuvarlamaKalanı(FarkıGöster(fark).Fark, parçalar, OndalıkBasamak);
    if (kalan != Para()) m_satırlar.push_back({ArşivMetni::ParçaYuvarlama, {}, kalan});
}

QString ParçaSatırları::Hücre(std::size_t satır, int sütun) const {
    const Satır& s = m_satırlar[satır];
    if (sütun == 0) return ArşivTutarı(s.Tutar);
    return sütun == 1 ? Metin(s.Parça) : s.Malzeme;
}

int ParçaSatırları::Karşılaştır(std::size_t a, std::size_t b, int sütun) const {
    if (sütun == 0) return Sırala(m_satırlar[a].Tutar, m_satırlar[b].Tutar);
    return sütun == 1 ? Sırala(a, b) : TabloKaynağı::Karşılaştır(a, b, sütun);
}
