#include "MalzemeDegisimi.h"

#include <algorithm>
#include <unordered_map>

#include "DegisimDeyimleri.h"
#include "Deyimler.h"
#include "MaliyetHesabi.h"
#include "MalzemeDegisimiOkuma.h"
#include "MalzemeToplami.h"
#include "OdbcTanitici.h"
#include "Ondalik.h"
#include "SayiMetni.h"
#include "TurkceSira.h"
#include "YariMamulYayilimi.h"
#include "UrunToplamlari.h"

namespace {

constexpr int MİKTAR_BASAMAĞI = 6;
constexpr qsizetype EN_UZUN_METİN = 254;

// As it is stored: without thousands dots and needless decimals.
QString MiktarYazımı(const Ondalık& sayı) {
    std::string_view kesir = sayı.Kesir();
    while (!kesir.empty() && kesir.back() == '0') kesir.remove_suffix(1);
    std::string metin = sayı.Eksi ? "-" : "";
    metin += sayı.Tam();
    if (!kesir.empty()) metin.append(1, ',').append(kesir);
    return QString::fromStdString(metin);
}

bool SıfırMı(const Ondalık& sayı) {
    return sayı.Rakamlar.find_first_not_of('0') == std::string::npos;
}

bool HepsiYazılabilir(const std::vector<KullanılanSatır>& satırlar) {
    return std::all_of(satırlar.begin(), satırlar.end(), [](const KullanılanSatır& s) {
        return Deyimler::Yazılabilir(s.Grup) && Deyimler::Yazılabilir(s.Ürün) && Deyimler::Yazılabilir(s.Malzeme) &&
               Deyimler::Yazılabilir(s.Miktar);
    });
}

// The tree's order.
void SırayaKoy(std::vector<DeğişenÜrün>& ürünler) {
    std::stable_sort(ürünler.begin(), ürünler.end(), [](const DeğişenÜrün& a, const DeğişenÜrün& b) {
        const int grup = Türkçe::Karşılaştır(QStringView(a.Grup), QStringView(b.Grup));
        return grup < 0 || (grup == 0 && Türkçe::Karşılaştır(QStringView(a.Ad), QStringView(b.Ad)) < 0);
    });
}

// What both materials' rows come to; the reason why there is no such quantity.
DeğişimNedeni MiktarıBul(const DeğişenÜrün& ürün, const DeğişimKuralı& kural, QString& miktar) {
    Ondalık toplam{false, "0", 0};
    QString birim;
    for (std::size_t i = 0; i < ürün.Önce.size(); ++i) {
        const KullanılanSatır& satır = ürün.Önce[i];
        const MiktarParçaları parçalar = MiktarıAyır(satır.Miktar);
        const std::optional<Ondalık> sayı = OndalıkOku(parçalar.Sayı, NoktaKuralı::Yerinde);
        if (!sayı) return DeğişimNedeni::MiktarOkunamaz;
        if (i > 0 && parçalar.Kalan != birim) return DeğişimNedeni::BirimFarklı;
        birim = parçalar.Kalan.toString();
        const bool eski = Türkçe::Aynı(satır.Malzeme, kural.Eski);
        toplam = Topla(toplam, eski ? Çarp(*sayı, Ölçekten(kural.Çarpan.OnBindeBir())) : *sayı);
    }
    toplam = Yuvarla(toplam, MİKTAR_BASAMAĞI, Yarım::SıfırdanUzağa);
    if (SıfırMı(toplam)) return DeğişimNedeni::SonuçSıfır;
    miktar = MiktarYazımı(toplam) + birim;
    return miktar.size() > EN_UZUN_METİN ? DeğişimNedeni::MetinUzun : DeğişimNedeni::Yok;
}

}  // namespace

std::int64_t DeğişenÜrün::GünündenÇıkan() const {
    return std::count_if(Önce.begin(), Önce.end(), [this](const KullanılanSatır& satır) {
        return std::none_of(Sonra.begin(), Sonra.end(),
                            [&satır](const KullanılanSatır& yeni) { return yeni.Tarih == satır.Tarih; });
    });
}

void DeğişimPlanı::Değiştir(DeğişenÜrün& ürün, const DeğişimKuralı& kural, const QString& tarih,
                            const YarıMamulBağları& bağlar) const {
    KullanılanSatır satır{ürün.Grup, ürün.Ad, m_yeni->Ad, {}, tarih, m_yeni->Fiyat};
    if (ürün.Neden == DeğişimNedeni::Yok) ürün.Neden = MiktarıBul(ürün, kural, satır.Miktar);
    if (ürün.Neden == DeğişimNedeni::Yok && (!HepsiYazılabilir(ürün.Önce) || !HepsiYazılabilir({satır})))
        ürün.Neden = DeğişimNedeni::AdYazılamaz;
    if (ürün.Neden == DeğişimNedeni::Yok && !bağlar.Zincir({satır.Malzeme}, ÜrünAdı{ürün.Grup, ürün.Ad}).isEmpty())
        ürün.Neden = DeğişimNedeni::ÇemberKapatır;
    if (ürün.Neden == DeğişimNedeni::Yok) ürün.Sonra = {satır};
}

İşSonucu DeğişimPlanı::Kur(OdbcBağlantısı& bağlantı, const DeğişimKuralı& kural, QDate gün, int basamak,
                           const İlerleme& ilerleme) {
    *this = {};
    m_basamak = basamak;
    MalzemeKataloğu katalog;  // read whole: a name with an apostrophe cannot be asked for
    const YarıMamulBağları* bağlar = nullptr;
    İşSonucu sonuç = YarıMamulleriAl(bağlantı, bağlar);
    if (sonuç.Tamam()) sonuç = katalog.Oku(bağlantı, ilerleme);
    if (!sonuç.Tamam()) return sonuç;
    const std::uint32_t yeni = katalog.Dizin.Bul(kural.Yeni.toStdString());
    m_yeniYok = yeni == AdDizini::YOK || Türkçe::Aynı(kural.Eski, kural.Yeni);
    if (m_yeniYok) return sonuç;
    m_yeni = katalog.Malzemeler[yeni];
    m_malzemeler = {kural.Eski, m_yeni->Ad};
    Okuyucu okuyucu(m_malzemeler, katalog, m_yayılım);
    sonuç = okuyucu.Oku(bağlantı, basamak, ilerleme);
    if (!sonuç.Tamam()) return sonuç;
    const QString tarih = Deyimler::Tarih(gün);
    for (std::size_t i = 0; i < okuyucu.Ürünler.size(); ++i) {
        Okuyucu::Ürün& okunan = okuyucu.Ürünler[i];
        if (!okunan.Eski) continue;
        DeğişenÜrün ürün{okunan.Grup, okunan.Ad, std::move(okunan.Satırlar), {}, {}, {}};
        if (!okunan.Listede)
            ürün.Neden = DeğişimNedeni::ÜrünListedeYok;
        else if (okunan.Okunamaz)
            ürün.Neden = DeğişimNedeni::SatırOkunamaz;
        Değiştir(ürün, kural, tarih, *bağlar);
        okuyucu.ToplamlarıKoy(i, ürün);
        ürün.İşaretli = ürün.Neden == DeğişimNedeni::Yok;
        m_ürünler.push_back(std::move(ürün));
    }
    YayılımıKur(okuyucu, katalog);
    return sonuç;
}

// What the operation wrote about its products.
struct DeğişimPlanı::Kayıt {
    struct Ürün {
        std::vector<KullanılanSatır> Duran;    // what should stand now
        std::vector<KullanılanSatır> Gelecek;  // what comes back
    };
    std::vector<Ürün> Ürünler;
    AdDizini Dizin;
};

İşSonucu DeğişimPlanı::KaydıOku(OdbcBağlantısı& bağlantı, std::int64_t işlem, bool geri, Kayıt& kayıt) {
    AdDizini malzemeler;
    return İşSonucuYap(bağlantı.Oku(Deyimler::Değiştirme::İşleminSatırları(işlem), [&](OdbcSatırı& okunan) {
        std::optional<KullanılanSatır> satır = KullanılanSatırıAl(okunan, 2);
        if (!satır) return true;  // cannot be: all columns have a value
        const auto sayı = static_cast<std::uint32_t>(m_malzemeler.size());
        if (malzemeler.BulYaDaEkle(satır->Malzeme.toStdString(), sayı) == sayı) m_malzemeler.append(satır->Malzeme);
        const auto yeni = static_cast<std::uint32_t>(kayıt.Ürünler.size());
        const std::uint32_t yer = kayıt.Dizin.BulYaDaEkle(satır->Grup.toStdString(), satır->Ürün.toStdString(), yeni);
        if (yer == yeni) kayıt.Ürünler.emplace_back();
        const bool sonraki = SayıSütunu(okunan, 1) != 0;
        Kayıt::Ürün& ürün = kayıt.Ürünler[yer];
        (sonraki == geri ? ürün.Duran : ürün.Gelecek).push_back(std::move(*satır));
        return true;
    }));
}

void DeğişimPlanı::Dön(DeğişenÜrün& ürün, const Kayıt& kayıt, std::size_t yer, bool geri,
                       const MalzemeKataloğu& katalog, const YarıMamulBağları& bağlar) {
    const Kayıt::Ürün& yazılan = kayıt.Ürünler[yer];
    if (ürün.Neden == DeğişimNedeni::Yok && !AynıSatırlar(ürün.Önce, yazılan.Duran, m_malzemeler))
        ürün.Neden = DeğişimNedeni::SatırlarıDeğişmiş;
    if (ürün.Neden != DeğişimNedeni::Yok) return;
    ürün.Sonra = yazılan.Gelecek;
    for (const KullanılanSatır& satır : ürün.Sonra) {
        const std::uint32_t malzeme = katalog.Dizin.Bul(satır.Malzeme.toStdString());
        ürün.FiyatAyrı |= malzeme != AdDizini::YOK && katalog.Malzemeler[malzeme].Fiyat != satır.Fiyat;
    }
    QStringList gelenler;
    for (const KullanılanSatır& satır : ürün.Sonra) gelenler.append(satır.Malzeme);
    if (!bağlar.Zincir(gelenler, ÜrünAdı{ürün.Grup, ürün.Ad}).isEmpty()) {
        ürün.Neden = DeğişimNedeni::ÇemberKapatır;
        ürün.Sonra.clear();
        return;
    }
    // What is put forward again is meant to have the catalogue's price.
    if (ürün.FiyatAyrı && !geri) ürün.Neden = DeğişimNedeni::FiyatıAyrı;
}

İşSonucu DeğişimPlanı::DönüşüKur(OdbcBağlantısı& bağlantı, std::int64_t işlem, bool geri, int basamak,
                                 const İlerleme& ilerleme) {
    *this = {};
    m_basamak = basamak;
    Kayıt kayıt;
    MalzemeKataloğu katalog;
    const YarıMamulBağları* bağlar = nullptr;
    İşSonucu sonuç = YarıMamulleriAl(bağlantı, bağlar);
    if (sonuç.Tamam()) sonuç = KaydıOku(bağlantı, işlem, geri, kayıt);
    if (sonuç.Tamam()) sonuç = katalog.Oku(bağlantı, ilerleme);
    if (!sonuç.Tamam()) return sonuç;
    Okuyucu okuyucu(m_malzemeler, katalog, m_yayılım);
    sonuç = okuyucu.Oku(bağlantı, basamak, ilerleme);
    if (!sonuç.Tamam()) return sonuç;
    for (std::size_t i = 0; i < kayıt.Ürünler.size(); ++i) {
        const Kayıt::Ürün& yazılan = kayıt.Ürünler[i];
        const KullanılanSatır& örnek = yazılan.Duran.empty() ? yazılan.Gelecek.front() : yazılan.Duran.front();
        DeğişenÜrün ürün{örnek.Grup, örnek.Ürün, {}, {}, {}, {}};
        const std::uint32_t yer = okuyucu.Bul(örnek.Grup, örnek.Ürün);
        if (yer == AdDizini::YOK) {
            ürün.Neden = DeğişimNedeni::ÜrünListedeYok;
            m_ürünler.push_back(std::move(ürün));
            continue;
        }
        ürün.Önce = std::move(okuyucu.Ürünler[yer].Satırlar);
        if (okuyucu.Ürünler[yer].Okunamaz) ürün.Neden = DeğişimNedeni::SatırOkunamaz;
        Dön(ürün, kayıt, i, geri, katalog, *bağlar);
        okuyucu.ToplamlarıKoy(yer, ürün);
        ürün.İşaretli = ürün.Neden == DeğişimNedeni::Yok;
        m_ürünler.push_back(std::move(ürün));
    }
    YayılımıKur(okuyucu, katalog);
    return sonuç;
}

// The rows that come; and products that only a sub-assembly's price reaches.
void DeğişimPlanı::YayılımıKur(Okuyucu& okuyucu, const MalzemeKataloğu& katalog) {
    if (!m_yayılım.Boş()) {
        for (const DeğişenÜrün& ürün : m_ürünler)
            for (const KullanılanSatır& satır : ürün.Sonra) {
                const QByteArray miktar = satır.Miktar.toUtf8();
                const std::string ad = satır.Malzeme.toStdString();
                const std::uint32_t yer = ürün.Hesabı.Yer;
                m_yayılım.Ekle({yer,
                                katalog.Dizin.Bul(ad),
                                MiktarSayısı(QStringView(satır.Miktar)),
                                satır.Fiyat,
                                yer,
                                {},
                                PlanYayılımı::SatırTürü::Gelir},
                               ad, {miktar.constData(), static_cast<std::size_t>(miktar.size())});
            }
        m_yayılım.Bitir();
        std::vector<bool> var(okuyucu.Katalog.Ürünler.size(), false);
        for (const DeğişenÜrün& ürün : m_ürünler)
            if (ürün.Hesabı.Yer != AdDizini::YOK) var[ürün.Hesabı.Yer] = true;
        m_yayılım.ÜrünleriNumarala([&](std::uint32_t yer) {
            if (!var[yer]) {
                const KatalogÜrünü& ürün = okuyucu.Katalog.Ürünler[yer];
                DeğişenÜrün yeni{ürün.Grup, ürün.Ad, {}, {}, {}, {}, DeğişimNedeni::YarıMamulünden};
                yeni.ÖncekiToplam = yeni.SonrakiToplam = okuyucu.Toplam(yer, okuyucu.Ürünler[yer].Malzeme);
                yeni.Hesabı = okuyucu.HesapYap(yer);
                m_ürünler.push_back(std::move(yeni));
                var[yer] = true;
            }
            return yer;
        });
    }
    SırayaKoy(m_ürünler);
    YayılımıYenile();
}

void DeğişimPlanı::YayılımıYenile() {
    if (m_yayılım.Boş()) return;
    std::unordered_map<std::uint32_t, DeğişenÜrün*> ürünler;
    for (DeğişenÜrün& ürün : m_ürünler)
        if (ürün.Hesabı.Yer != AdDizini::YOK) ürünler[ürün.Hesabı.Yer] = &ürün;
    const auto işaretli = [&ürünler](std::uint32_t yer) {
        const auto bulunan = ürünler.find(yer);
        return bulunan != ürünler.end() && bulunan->second->İşaretli;
    };
    for (const PlanYayılımı::Etki& etki : m_yayılım.Yenile(işaretli))
        ürünler.at(etki.Ürün)->Hesabı.Yayılan += etki.Fark;
    for (DeğişenÜrün& ürün : m_ürünler) {
        const DeğişenÜrün::Hesap& hesap = ürün.Hesabı;
        const std::int64_t malzeme = (ürün.İşaretli ? hesap.Sonra : hesap.Önce) + hesap.Yayılan;
        ürün.SonrakiToplam = GösterilenToplam(Para::OnBindeBirden(malzeme), hesap.Oranlar, m_basamak);
    }
}

DeğişimÖzeti DeğişimPlanı::Özet() const {
    DeğişimÖzeti özet;
    for (const DeğişenÜrün& ürün : m_ürünler) {
        if (!Uygulanır(ürün.Neden) && ürün.Neden != DeğişimNedeni::YarıMamulünden) ++özet.Dışarıda;
        if (!ürün.İşaretli) continue;
        ++özet.Ürün;
        özet.Silinen += static_cast<std::int64_t>(ürün.Önce.size());
        özet.Yazılan += static_cast<std::int64_t>(ürün.Sonra.size());
        özet.GünündenÇıkan += ürün.GünündenÇıkan();
    }
    return özet;
}

void DeğişimPlanı::İşaretle(std::size_t ürün, bool işaretli) {
    m_ürünler[ürün].İşaretli = işaretli && Uygulanır(m_ürünler[ürün].Neden);
}

void DeğişimPlanı::GünüDeğiştir(QDate gün) {
    if (!m_yeni) return;
    for (DeğişenÜrün& ürün : m_ürünler)
        for (KullanılanSatır& satır : ürün.Sonra) satır.Tarih = Deyimler::Tarih(gün);
}
