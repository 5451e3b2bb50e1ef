#include "MaliyetSatirlari.h"

#include <algorithm>
#include <map>
#include <utility>

#include "DegiskenModulu.h"
#include "MetinTablosu.h"
#include "UrunMetinleri.h"
#include "SayiMetni.h"
#include "YariMamulMetinleri.h"

namespace {

// Nothing comes after everything.
int SonaBırakarakSırala(const std::optional<double>& a, const std::optional<double>& b) {
    if (a && b) return Sırala(*a, *b);
    return Sırala(!a, !b);
}

QString Biçimle(const std::optional<double>& sayı) {
    return sayı ? SayıBiçimle(*sayı, OndalıkBasamak).value_or(QString()) : QString();
}

// The sum is that of the figures on screen.
std::optional<Para> GösterilenPara(const std::optional<double>& sayı) {
    const std::optional<Ondalık> gösterilen = GösterilenSayı(sayı);
    return gösterilen ? Para::Ondalıktan(*gösterilen) : std::nullopt;
}

}  // namespace

QList<TabloSütunu> MaliyetSütunlarınıVer() {
    return {{MetinNo::GrubuSütunu, 12},
            {MetinNo::ÜrünSütunu, 20},
            {ÜrünMetni::DikkatSütunu, 14},
            {ÜrünMetni::MalzemeSayısıSütunu, 5, true},
            {ÜrünMetni::MalzemeMaliyetiSütunu, 11, true},
            {ÜrünMetni::İşçilikSütunu, 8, true},
            {ÜrünMetni::KârSütunu, 8, true},
            {ÜrünMetni::DiğerSütunu, 8, true},
            {ÜrünMetni::VadeSütunu, 8, true},
            {ÜrünMetni::ToplamSütunu, 11, true},
            {ÜrünMetni::BirimMaliyetSütunu, 9, true}};
}

QList<TabloSütunu> GrupToplamıSütunlarınıVer() {
    return {{MetinNo::GrubuSütunu, 20},
            {ÜrünMetni::ÜrünSayısıSütunu, 7, true},
            {ÜrünMetni::MalzemeMaliyetiSütunu, 14, true},
            {ÜrünMetni::İşçilikSütunu, 12, true},
            {ÜrünMetni::KârSütunu, 12, true},
            {ÜrünMetni::DiğerSütunu, 12, true},
            {ÜrünMetni::VadeSütunu, 12, true},
            {ÜrünMetni::ToplamSütunu, 14, true}};
}

QString DikkatMetni(unsigned dikkat) {
    constexpr std::pair<DikkatNedeni, MetinNo> metinler[] = {
        {MalzemesiYok, ÜrünMetni::DikkatMalzemesiYok}, {KatalogDışıMalzeme, ÜrünMetni::DikkatKatalogDışı},
        {SıfırFiyat, ÜrünMetni::DikkatSıfırFiyat},     {OkunamayanMiktar, ÜrünMetni::DikkatOkunamayanMiktar},
        {İkiKezYazılmış, ÜrünMetni::DikkatİkiKez},     {ToplamSıfır, ÜrünMetni::DikkatToplamSıfır},
        {TutarTaşıyor, ÜrünMetni::DikkatTutarTaşıyor}, {İzlemeyenBağ, YarıMamulMetni::DikkatBağ}};
    QStringList nedenler;
    for (const auto& [neden, metin] : metinler)
        if (dikkat & neden) nedenler.append(Metin(metin));
    return nedenler.join(QStringLiteral("; "));
}

std::optional<Ondalık> GösterilenSayı(const std::optional<double>& sayı) {
    const std::optional<Ondalık> ondalık = sayı ? OnBeşHaneyle(*sayı) : std::nullopt;
    return ondalık ? std::optional(Yuvarla(*ondalık, OndalıkBasamak, Yarım::SıfırdanUzağa)) : std::nullopt;
}

QString MaliyetSatırları::Hücre(std::size_t satır, int sütun) const {
    const MaliyetTablosuSatırı& s = Satırlar[satır];
    switch (sütun) {
        case CGrup:
            return s.Grup;
        case CAd:
            return s.Ad;
        case CSayı:
            return QString::number(s.MalzemeSayısı);
        case CMalzeme:
            return SayıBiçimle(s.MalzemeMaliyeti, OndalıkBasamak);
        case Cİşçilik:
        case CKâr:
        case CDiğer:
        case CVade:
            return Biçimle(s.Tutarlar[static_cast<std::size_t>(sütun - Cİşçilik)]);
        case CToplam:
            return SayıBiçimle(s.Toplam, OndalıkBasamak);
        case CBirim:
            return Biçimle(s.BirimMaliyet);
        default:
            return DikkatMetni(s.Dikkat);
    }
}

int MaliyetSatırları::Karşılaştır(std::size_t a, std::size_t b, int sütun) const {
    const MaliyetTablosuSatırı& x = Satırlar[a];
    const MaliyetTablosuSatırı& y = Satırlar[b];
    switch (sütun) {
        case CGrup:
            return Sırala(x.GrupSırası, y.GrupSırası);
        case CAd:
            return Sırala(x.AdSırası, y.AdSırası);
        case CSayı:
            return Sırala(x.MalzemeSayısı, y.MalzemeSayısı);
        case CMalzeme:
            return Sırala(x.MalzemeMaliyeti, y.MalzemeMaliyeti);
        case Cİşçilik:
        case CKâr:
        case CDiğer:
        case CVade: {
            const auto tutar = static_cast<std::size_t>(sütun - Cİşçilik);
            return SonaBırakarakSırala(x.Tutarlar[tutar], y.Tutarlar[tutar]);
        }
        case CToplam:
            return Sırala(x.Toplam, y.Toplam);
        case CBirim:
            return SonaBırakarakSırala(x.BirimMaliyet, y.BirimMaliyet);
        default:
            return Sırala(x.Dikkat, y.Dikkat);
    }
}

void GrupToplamları::Hesapla(const MaliyetSatırları& ürünler, const std::vector<std::size_t>& yerler) {
    std::map<std::uint32_t, Satır> gruplar;
    Satır hepsi;
    hepsi.Toplamlar.fill(Para());
    const auto ekle = [](Satır& satır, const std::array<std::optional<Para>, 6>& tutarlar) {
        ++satır.Ürün;
        for (std::size_t i = 0; i < tutarlar.size(); ++i)
            satır.Toplamlar[i] =
                satır.Toplamlar[i] ? Topla(*satır.Toplamlar[i], tutarlar[i].value_or(Para())) : std::nullopt;
    };
    for (const std::size_t yer : yerler) {
        const MaliyetTablosuSatırı& ürün = ürünler.Satırlar[yer];
        const auto [grup, yeni] = gruplar.try_emplace(ürün.GrupSırası);
        if (yeni) {
            grup->second.Grup = ürün.Grup;
            grup->second.Toplamlar.fill(Para());
        }
        std::array<std::optional<Para>, 6> tutarlar;
        tutarlar.front() = ürün.MalzemeMaliyeti;
        tutarlar.back() = ürün.Toplam;
        for (std::size_t i = 0; i < ürün.Tutarlar.size(); ++i) tutarlar[i + 1] = GösterilenPara(ürün.Tutarlar[i]);
        ekle(grup->second, tutarlar);
        ekle(hepsi, tutarlar);
    }
    Satırlar.clear();
    for (auto& [sıra, satır] : gruplar) Satırlar.push_back(std::move(satır));
    hepsi.Grup = Metin(ÜrünMetni::BütünGruplar);
    if (!Satırlar.empty()) Satırlar.push_back(std::move(hepsi));
}

QString GrupToplamları::Hücre(std::size_t satır, int sütun) const {
    const Satır& s = Satırlar[satır];
    if (sütun == 0) return s.Grup;
    if (sütun == 1) return QString::number(s.Ürün);
    const std::optional<Para>& tutar = s.Toplamlar[static_cast<std::size_t>(sütun - 2)];
    return tutar ? SayıBiçimle(*tutar, OndalıkBasamak) : Metin(MetinNo::NedenÇokBüyük);
}

int GrupToplamları::Karşılaştır(std::size_t a, std::size_t b, int sütun) const {
    const Satır& x = Satırlar[a];
    const Satır& y = Satırlar[b];
    if (sütun == 0) return Sırala(a, b);  // the tree's order, the sum of all last
    if (sütun == 1) return Sırala(x.Ürün, y.Ürün);
    const auto tutar = static_cast<std::size_t>(sütun - 2);
    return Sırala(x.Toplamlar[tutar], y.Toplamlar[tutar]);
}
