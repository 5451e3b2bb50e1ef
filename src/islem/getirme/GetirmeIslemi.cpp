#include "GetirmeIslemi.h"

#include <algorithm>

#include "DegisimDeyimleri.h"
#include "Deyimler.h"
#include "GetirmeDeyimleri.h"
#include "MalzemeDegisimi.h"
#include "OdbcHareketi.h"
#include "OdbcTanitici.h"
#include "SayiMetni.h"
#include "YariMamulYayilimi.h"

namespace {

UygulamaSonucu Olmadı(const OdbcSonucu& odbc) {
    return {UygulamaSonu::Olmadı, odbc, {}};
}

// Writes within the transaction that is under way; stops at the first thing that is not as it should be.
class Yazıcı {
  public:
    Yazıcı(OdbcBağlantısı& bağlantı, const Getirmeİşi& iş, std::int64_t işlem, const İlerleme& ilerleme)
        : m_bağlantı(bağlantı), m_iş(iş), m_işlem(işlem), m_ilerleme(ilerleme) {}

    GetirmeSonucu Yaz() {
        static_cast<void>(TablolarıOluştur() && Karşılaştır() && ÖncekileriKaydet() &&
                          (m_iş.ÖnceÜrünler || FiyatlarıDeğiştir()) && ÜrünleriYaz() &&
                          (!m_iş.ÖnceÜrünler || FiyatlarıDeğiştir()) && Yay() && SonrakileriKaydet());
        return m_sonuç;
    }

  private:
    bool Bak(const OdbcSonucu& odbc) {
        if (!odbc.Başarılı()) m_sonuç.Uygulama = Olmadı(odbc);
        return odbc.Başarılı();
    }
    bool Bak(const İşSonucu& sonuç) {
        if (sonuç.Son == İşSonu::Vazgeçildi) m_sonuç.Uygulama = {UygulamaSonu::Vazgeçildi, {}, {}};
        if (sonuç.Son == İşSonu::Olmadı) m_sonuç.Uygulama = Olmadı(sonuç.Odbc);
        return sonuç.Tamam();
    }
    bool Değişmiş(const QString& neyin) {
        m_sonuç.Uygulama = {UygulamaSonu::Değişmiş, {}, neyin};
        return false;
    }
    static QString Adı(const ÜrünAdı& ürün) { return ürün.Grup + QStringLiteral(" / ") + ürün.Ad; }

    bool TablolarıOluştur() {
        const auto yoksa = [this](const char* tablo, const QStringList& oluştur) {
            bool var = false;
            if (!Bak(m_bağlantı.TabloVar(QString::fromLatin1(tablo), var))) return false;
            return var || std::all_of(oluştur.begin(), oluştur.end(),
                                      [this](const QString& deyim) { return Bak(m_bağlantı.Çalıştır(deyim)); });
        };
        return yoksa(Deyimler::Değiştirme::TABLO, Deyimler::Değiştirme::TabloyuOluştur()) &&
               yoksa(Deyimler::Getirme::TABLO, Deyimler::Getirme::TabloyuOluştur());
    }

    bool ŞimdikiniOku(const ÜrünAdı& ürün, ÜrünHali& hal) {
        bool okunamaz = false;
        if (!Bak(ÜrünHaliniOku(m_bağlantı, ürün, hal, okunamaz))) return false;
        return !okunamaz || Değişmiş(Adı(ürün));
    }

    bool Karşılaştır() {
        for (const ÜrünDeğişimi& değişim : m_iş.Ürünler) {
            ÜrünHali şimdiki;
            if (!ŞimdikiniOku(değişim.Ürün, şimdiki)) return false;
            if (!AynıHal(şimdiki, değişim.Önce, true)) return Değişmiş(Adı(değişim.Ürün));
        }
        return true;
    }

    bool FiyatlarıDeğiştir() {
        if (!m_iş.FiyatÖner) return true;
        FiyatTeklifi teklif;
        m_sonuç.Uygulama = m_iş.FiyatÖner(m_bağlantı, teklif);
        if (!m_sonuç.Tamam()) return false;
        if (teklif.Öneriler.empty()) return true;
        const auto sürsün = [this](std::int64_t) { return !m_ilerleme || m_ilerleme(m_biten); };
        FiyatPlanı plan;
        if (!Bak(plan.Kur(m_bağlantı, std::move(teklif), m_iş.Basamak, sürsün))) return false;
        for (const PlanMalzemesi& malzeme : plan.Malzemeler()) {
            if (malzeme.İşaretli)
                m_malzemeler.append(malzeme.Malzeme);
            else
                m_sonuç.Kalanlar.push_back({malzeme.Malzeme, malzeme.Neden});
        }
        m_sonuç.Uygulama = FiyatlarıYaz(m_bağlantı, plan, m_işlem, sürsün);
        return m_sonuç.Uygulama.Son == UygulamaSonu::Tamam;
    }

    bool ÜrünleriYaz() {
        for (const ÜrünDeğişimi& değişim : m_iş.Ürünler) {
            if (!ÜrünüYaz(değişim)) return false;
            if (m_ilerleme && !m_ilerleme(++m_biten)) {
                m_sonuç.Uygulama = {UygulamaSonu::Vazgeçildi, {}, {}};
                return false;
            }
        }
        return true;
    }

    bool Çalıştır(const QString& deyim, std::size_t satır, const ÜrünAdı& ürün) {
        const OdbcSonucu odbc = m_bağlantı.Çalıştır(deyim);
        if (!Bak(odbc)) return false;
        return odbc.Etkilenen == static_cast<std::int64_t>(satır) || Değişmiş(Adı(ürün));
    }

    bool ÜrünüYaz(const ÜrünDeğişimi& değişim) {
        const ÜrünAdı& ürün = değişim.Ürün;
        const auto çalıştır = [&](const QString& deyim, std::size_t satır) { return Çalıştır(deyim, satır, ürün); };
        const ÜrünHali& önce = değişim.Önce;
        ÜrünHali sonra = değişim.Sonra;
        if (!FiyatlarıKoy(sonra, değişim.KendiFiyatıyla)) return false;
        if (!önce.Satırlar.empty() &&
            !çalıştır(Deyimler::ÜrününMalzemeleriniSil(ürün.Grup, ürün.Ad), önce.Satırlar.size()))
            return false;
        if (önce.Var && !sonra.Var && !çalıştır(Deyimler::ÜrünüSil(ürün.Grup, ürün.Ad), 1)) return false;
        if (!önce.Var && sonra.Var && !çalıştır(Deyimler::ÜrünEkle(ürün.Grup, ürün.Ad), 1)) return false;
        m_silindi |= önce.Var && !sonra.Var;
        if (sonra.Var && !çalıştır(YüzdeDeyimi(ürün, sonra), 1)) return false;
        return std::all_of(sonra.Satırlar.begin(), sonra.Satırlar.end(), [&](const KullanılanSatır& satır) {
            return çalıştır(Deyimler::KullanılanıEkle(satır, satır.Fiyat), 1);
        });
    }

    // As they stood before anything was done, with the rows whose price is not the catalogue's.
    bool ÖncekileriKaydet() {
        return std::all_of(m_iş.Ürünler.begin(), m_iş.Ürünler.end(), [this](const ÜrünDeğişimi& değişim) {
            return HaliKaydet(değişim.Ürün, değişim.Önce, false) && AyrılarıKaydet(değişim);
        });
    }
    bool AyrılarıKaydet(const ÜrünDeğişimi& değişim) {
        for (const KullanılanSatır& satır : değişim.Önce.Satırlar) {
            std::optional<Para> fiyat;
            if (!KataloğunFiyatı(satır.Malzeme, fiyat)) return false;
            if (fiyat != satır.Fiyat && !Çalıştır(Deyimler::Fiyat::AyrıSatırEkle(m_işlem, satır), 1, değişim.Ürün))
                return false;
        }
        m_fiyatDizini = {};  // the prices are about to change
        m_fiyatlar.clear();
        return true;
    }

    // As they stand at the end: sub-assemblies' prices have followed.
    bool SonrakileriKaydet() {
        return std::all_of(m_iş.Ürünler.begin(), m_iş.Ürünler.end(), [this](const ÜrünDeğişimi& değişim) {
            ÜrünHali hal;
            return ŞimdikiniOku(değişim.Ürün, hal) && HaliKaydet(değişim.Ürün, hal, true);
        });
    }

    static std::array<QString, 4> Yazılan(const ÜrünHali& hal) {
        std::array<QString, 4> yüzdeler;
        std::transform(hal.Yüzdeler.begin(), hal.Yüzdeler.end(), yüzdeler.begin(), NoktayıVirgüleÇevir);
        return yüzdeler;
    }
    static QString YüzdeDeyimi(const ÜrünAdı& ürün, const ÜrünHali& hal) {
        const auto [işçilik, kâr, diğer, vade] = Yazılan(hal);
        return Deyimler::YüzdeleriKaydet(işçilik, kâr, diğer, vade, ürün.Grup, ürün.Ad);
    }

    bool HaliKaydet(const ÜrünAdı& ürün, const ÜrünHali& hal, bool sonraki) {
        if (hal.Var &&
            !Çalıştır(Deyimler::Getirme::ÜrünEkle({m_işlem, sonraki, ürün.Grup, ürün.Ad, Yazılan(hal)}), 1, ürün))
            return false;
        return std::all_of(hal.Satırlar.begin(), hal.Satırlar.end(), [&](const KullanılanSatır& satır) {
            return Çalıştır(Deyimler::Değiştirme::SatırEkle(m_işlem, sonraki, satır), 1, ürün);
        });
    }

    // The catalogue's price at this moment; nothing: it does not have the material.
    bool KataloğunFiyatı(const QString& ad, std::optional<Para>& fiyat) {
        const auto yeni = static_cast<std::uint32_t>(m_fiyatlar.size());
        const std::uint32_t yer = m_fiyatDizini.BulYaDaEkle(ad.toStdString(), yeni);
        if (yer == yeni) {
            std::optional<KatalogMalzemesi> malzeme;
            if (!Bak(MalzemeyiOku(m_bağlantı, ad, malzeme))) return false;
            m_fiyatlar.push_back(malzeme ? std::optional(malzeme->Fiyat) : std::nullopt);
        }
        fiyat = m_fiyatlar[yer];
        return true;
    }

    // What the catalogue does not have keeps its own.
    bool FiyatlarıKoy(ÜrünHali& hal, const std::vector<bool>& kendi) {
        for (std::size_t i = 0; i < hal.Satırlar.size(); ++i) {
            KullanılanSatır& satır = hal.Satırlar[i];
            std::optional<Para> fiyat;
            if (i < kendi.size() && kendi[i]) continue;
            if (!KataloğunFiyatı(satır.Malzeme, fiyat)) return false;
            satır.Fiyat = fiyat.value_or(satır.Fiyat);
        }
        return true;
    }

    QStringList Döngüdekiler() {
        const YarıMamulBağları* bağlar = nullptr;
        QStringList adlar;
        if (!Bak(YarıMamulleriAl(m_bağlantı, bağlar))) return adlar;
        for (const YarıMamulBağı& bağ : bağlar->Bağlar())
            if (bağ.Durum == BağDurumu::Döngüde) adlar.append(bağ.Malzeme);
        return adlar;
    }

    bool Yay() {
        VeriDeğişimi değişim{.Malzemeler = m_malzemeler, .Silindi = m_silindi, .FiyatlarTam = !m_iş.ÖnceÜrünler};
        for (const ÜrünDeğişimi& ürün : m_iş.Ürünler) değişim.Ürünler.push_back(ürün.Ürün);
        const QStringList önceki = Döngüdekiler();
        const Yayılım yayılım = YarıMamulleriYay(m_bağlantı, değişim);
        if (!Bak(yayılım.Sonuç)) return false;
        m_sonuç.Çözülenler = yayılım.Çözülenler;
        for (const QString& malzeme : Döngüdekiler())
            if (!önceki.contains(malzeme)) m_sonuç.Çember.append(malzeme);
        return m_sonuç.Tamam();
    }

    OdbcBağlantısı& m_bağlantı;
    const Getirmeİşi& m_iş;
    const std::int64_t m_işlem;
    const İlerleme& m_ilerleme;
    std::int64_t m_biten = 0;
    bool m_silindi = false;
    QStringList m_malzemeler;  // whose prices were changed
    AdDizini m_fiyatDizini;
    std::vector<std::optional<Para>> m_fiyatlar;  // the catalogue's
    GetirmeSonucu m_sonuç;
};

}  // namespace

İşSonucu ÜrünHaliniOku(OdbcBağlantısı& bağlantı, const ÜrünAdı& ürün, ÜrünHali& hal, bool& okunamaz) {
    hal = {};
    okunamaz = false;
    OdbcSonucu odbc = bağlantı.Oku(Deyimler::Yüzdeler(ürün.Grup, ürün.Ad), [&hal](OdbcSatırı& satır) {
        hal.Var = true;
        for (int i = 0; i < 4; ++i) hal.Yüzdeler[static_cast<std::size_t>(i)] = satır.Metin(i + 1);
        return false;
    });
    if (odbc.Başarılı())
        odbc = bağlantı.Oku(Deyimler::ÜrününSatırları(ürün.Grup, ürün.Ad), [&](OdbcSatırı& okunan) {
            if (std::optional<KullanılanSatır> satır = KullanılanSatırıAl(okunan))
                hal.Satırlar.push_back(std::move(*satır));
            else
                okunamaz = true;
            return true;
        });
    return İşSonucuYap(odbc);
}

bool AynıHal(const ÜrünHali& a, const ÜrünHali& b, bool fiyatıyla) {
    if (a.Var != b.Var || a.Yüzdeler != b.Yüzdeler || a.Satırlar.size() != b.Satırlar.size()) return false;
    QStringList malzemeler;
    for (const ÜrünHali* hal : {&a, &b})
        for (const KullanılanSatır& satır : hal->Satırlar) malzemeler.append(satır.Malzeme);
    if (fiyatıyla) return AynıSatırlar(a.Satırlar, b.Satırlar, malzemeler);
    const auto fiyatsız = [](std::vector<KullanılanSatır> satırlar) {
        for (KullanılanSatır& satır : satırlar) satır.Fiyat = {};
        return satırlar;
    };
    return AynıSatırlar(fiyatsız(a.Satırlar), fiyatsız(b.Satırlar), malzemeler);
}

GetirmeSonucu Getir(OdbcBağlantısı& bağlantı, const Getirmeİşi& iş, const İşlemBilgisi& bilgi, const QString& zaman,
                    const std::function<UygulamaSonucu(const GetirmeSonucu&)>& bak, const İlerleme& ilerleme) {
    Deyimler::Fiyat::İşlem işlem;
    işlem.Zaman = zaman;
    const YarıMamulBağları* bağlar = nullptr;
    if (const İşSonucu s = YarıMamulleriAl(bağlantı, bağlar); !s.Tamam()) return {Olmadı(s.Odbc)};
    GetirmeSonucu sonuç;
    {
        OdbcHareketi hareket(bağlantı);  // rolls back on every way out but the commit's success
        sonuç.Uygulama = İşlemiAç(bağlantı, hareket, bilgi, işlem);
        if (sonuç.Tamam()) sonuç = Yazıcı(bağlantı, iş, işlem.No, ilerleme).Yaz();
        if (sonuç.Tamam()) sonuç.Uygulama = bak(sonuç);
        if (sonuç.Tamam() && !zaman.isEmpty())
            if (const OdbcSonucu s = hareket.Onayla(); !s.Başarılı()) sonuç.Uygulama = Olmadı(s);
    }
    if (!sonuç.Tamam() || zaman.isEmpty()) YarıMamulleriUnut();
    return sonuç;
}
