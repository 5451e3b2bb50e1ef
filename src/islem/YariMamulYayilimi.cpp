#include "YariMamulYayilimi.h"

#include <algorithm>

#include "Deyimler.h"
#include "FiyatDeyimleri.h"
#include "OdbcHareketi.h"
#include "OdbcTanitici.h"

namespace {

// The ties of the open file.
struct Bellek {
    YarıMamulBağları Bağlar;
    std::uint64_t Açılış = 0;  // of the connection that they were read from; 0: none
    bool Onarılacak = false;   // something was left undone
};
Bellek bellek;

İşSonucu Hazırla(OdbcBağlantısı& bağlantı) {
    if (bellek.Açılış == bağlantı.Açılış() && bellek.Açılış != 0) return {};
    bellek.Açılış = 0;
    const İşSonucu sonuç = bellek.Bağlar.Oku(bağlantı);
    if (sonuç.Tamam()) bellek.Açılış = bağlantı.Açılış();
    return sonuç;
}

// Follows one change to its end; every step stops at the first failure.
class Yayıcı {
  public:
    Yayıcı(OdbcBağlantısı& bağlantı, const VeriDeğişimi& değişim)
        : m_bağlantı(bağlantı),
          m_değişim(değişim),
          m_hepsi(değişim.Hepsi || bellek.Onarılacak),
          m_bağlar(bellek.Bağlar) {}

    // Which ties the change concerns by itself. Writes nothing.
    bool İlgiliVar() {
        const auto işaretle = [this](const std::vector<std::uint32_t>& bağlar) {
            for (const std::uint32_t bağ : bağlar) m_kirli[bağ] = true;
        };
        m_kirli.assign(m_bağlar.Bağlar().size(), m_hepsi);
        for (const ÜrünAdı& ürün : m_değişim.Ürünler)
            if (m_değişim.Ürünler.size() == 1 || ürün.Ad.isEmpty() || m_bağlar.ÜrününBağıVar(ürün))
                işaretle(m_bağlar.ÜrününBağları(ürün));
        if (m_değişim.YeniAd) işaretle(m_bağlar.ÜrününBağları(*m_değişim.YeniAd));
        for (const QString& malzeme : m_değişim.Malzemeler) {
            işaretle(m_bağlar.Kullananlar(malzeme));
            if (const std::uint32_t bağ = m_bağlar.Bul(malzeme); bağ != YarıMamulBağları::YOK) m_kirli[bağ] = true;
        }
        const bool yuvarlanmış = YuvarlanmışVar();  // found in any case: they come first
        return yuvarlanmış || std::find(m_kirli.begin(), m_kirli.end(), true) != m_kirli.end();
    }

    // The materials whose price was to follow.
    QStringList Kirliler() const {
        QStringList adlar;
        for (std::size_t i = 0; i < m_kirli.size(); ++i)
            if (m_kirli[i]) adlar.append(m_bağlar.Bağlar()[i].Malzeme);
        for (const Yuvarlanan& satır : m_yuvarlananlar) adlar.append(satır.Malzeme);
        return adlar;
    }

    Yayılım Yay() {
        m_yayılım = {};
        static_cast<void>(AdıTaşı() && Çöz() && MalzemeleriOku() && YuvarlananlarıDüzelt() && Hesapla());
        return m_yayılım;
    }

  private:
    bool Tamam(const OdbcSonucu& odbc) {
        if (!odbc.Başarılı()) m_yayılım.Sonuç = İşSonucuYap(odbc);
        return odbc.Başarılı();
    }
    bool Çalıştır(const QString& deyim) { return Tamam(m_bağlantı.Çalıştır(deyim)); }

    bool Var(const QString& deyim, bool& var) {
        var = false;
        return Tamam(m_bağlantı.Oku(deyim, [&var](OdbcSatırı&) {
            var = true;
            return false;
        }));
    }

    // Used rows of the changed products whose tied material has not the catalogue's price: a transfer writes prices
    // rounded to the decimals on display.
    bool YuvarlanmışVar() {
        m_yuvarlananlar.clear();
        if (m_değişim.FiyatlarTam || m_değişim.Silindi || m_bağlar.Boş()) return false;
        for (const ÜrünAdı& ürün : m_değişim.Ürünler) {
            if (ürün.Ad.isEmpty() || !Yazılabilir(ürün)) continue;
            std::vector<KatalogMalzemesi> satırlar;
            const OdbcSonucu odbc =
                m_bağlantı.Oku(Deyimler::KullanılanMalzemeler(ürün.Grup, ürün.Ad), [&](OdbcSatırı& satır) {
                    QString malzeme = satır.Metin(2);
                    if (m_bağlar.Bul(malzeme) != YarıMamulBağları::YOK)
                        satırlar.push_back({std::move(malzeme), ParaSütunu(satır, 3)});
                    return true;
                });
            if (!odbc.Başarılı()) return true;  // the transaction meets it again
            for (const KatalogMalzemesi& satır : satırlar) {
                std::optional<KatalogMalzemesi> katalogdaki;
                if (!MalzemeyiOku(m_bağlantı, satır.Ad, katalogdaki).Tamam()) return true;
                if (katalogdaki && katalogdaki->Fiyat != satır.Fiyat) m_yuvarlananlar.push_back({ürün, satır.Ad});
            }
        }
        return !m_yuvarlananlar.empty();
    }

    bool YuvarlananlarıDüzelt() {
        for (const auto& [ürün, malzeme] : m_yuvarlananlar) {
            std::optional<KatalogMalzemesi> katalogdaki;
            m_yayılım.Sonuç = MalzemeyiOku(m_bağlantı, malzeme, katalogdaki);
            if (!m_yayılım.Sonuç.Tamam()) return false;
            if (katalogdaki && !Çalıştır(Deyimler::YarıMamul::ÜründekiFiyat(
                                   ürün.Grup, ürün.Ad, malzeme, Deyimler::SaklanacakSayı(katalogdaki->Fiyat))))
                return false;
        }
        return true;
    }

    // A tie goes with its product's name, if that name was really given.
    bool AdıTaşı() {
        if (!m_değişim.YeniAd || m_değişim.Ürünler.size() != 1) return true;
        for (const std::uint32_t bağ : m_bağlar.ÜrününBağları(m_değişim.Ürünler.front())) {
            const YarıMamulBağı& eski = m_bağlar.Bağlar()[bağ];
            const ÜrünAdı yeni{m_değişim.YeniAd->Grup,
                               m_değişim.YeniAd->Ad.isEmpty() ? eski.Ürün.Ad : m_değişim.YeniAd->Ad};
            bool eskisiVar = false;
            bool yenisiVar = false;
            if (!Var(Deyimler::ÜrünVarMı(eski.Ürün.Grup, eski.Ürün.Ad), eskisiVar) ||
                !Var(Deyimler::ÜrünVarMı(yeni.Grup, yeni.Ad), yenisiVar))
                return false;
            // Where only the spelling changed, the old name finds the new one.
            if (!yenisiVar || (eskisiVar && !AynıÜrün(eski.Ürün, yeni))) continue;
            if (!Çalıştır(Deyimler::YarıMamul::ÜrünüYaz(eski.Malzeme, yeni.Grup, yeni.Ad))) return false;
            m_bağlar.ÜrünüKoy(bağ, yeni);
            m_kirli[bağ] = true;
        }
        return true;
    }

    // Ties of deleted products and materials.
    bool Çöz() {
        if (!m_değişim.Silindi) return true;
        std::vector<std::uint32_t> çözülenler;
        for (const ÜrünAdı& ürün : m_değişim.Ürünler)
            for (const std::uint32_t bağ : m_bağlar.ÜrününBağları(ürün)) {
                const ÜrünAdı& bağlı = m_bağlar.Bağlar()[bağ].Ürün;
                bool var = false;
                if (!Var(Deyimler::ÜrünVarMı(bağlı.Grup, bağlı.Ad), var)) return false;
                if (!var) çözülenler.push_back(bağ);
            }
        for (const QString& malzeme : m_değişim.Malzemeler) {
            const std::uint32_t bağ = m_bağlar.Bul(malzeme);
            if (bağ == YarıMamulBağları::YOK) continue;
            bool var = false;
            if (!Var(Deyimler::MalzemeVarMı(malzeme), var)) return false;
            if (!var) çözülenler.push_back(bağ);
        }
        std::sort(çözülenler.begin(), çözülenler.end());
        for (const std::uint32_t bağ : çözülenler) {
            m_yayılım.Çözülenler.append(m_bağlar.Bağlar()[bağ].Malzeme);
            if (!Çalıştır(Deyimler::YarıMamul::BağSil(m_yayılım.Çözülenler.last()))) return false;
        }
        for (auto yer = çözülenler.rbegin(); yer != çözülenler.rend(); ++yer) m_kirli.erase(m_kirli.begin() + *yer);
        m_bağlar.Çıkar(çözülenler);
        return true;
    }

    // What the touched products use now.
    bool MalzemeleriOku() {
        for (std::uint32_t i = 0; i < m_kirli.size(); ++i) {
            if (!m_kirli[i]) continue;
            QStringList malzemeler;
            m_yayılım.Sonuç = ÜrününMalzemeleri(m_bağlantı, m_bağlar.Bağlar()[i].Ürün, malzemeler);
            if (!m_yayılım.Sonuç.Tamam()) return false;
            m_bağlar.MalzemeleriKoy(i, std::move(malzemeler));
        }
        m_bağlar.Kur();
        return true;
    }

    // Each tie once, those first that others depend on; nothing runs round a circle.
    bool Hesapla() {
        const YarıMamulBağları::Sıra sıra = m_bağlar.SırayaKoy();
        for (const std::uint32_t bağ : sıra.Döngüdekiler)
            if (!DurumuYaz(bağ, BağDurumu::Döngüde)) return false;
        for (const std::uint32_t bağ : sıra.Bağlar) {
            // What was in a circle and no longer is has to be made up for.
            if (m_bağlar.Bağlar()[bağ].Durum == BağDurumu::Döngüde) m_kirli[bağ] = true;
            YarıMamulFiyatı fiyat;
            if (m_kirli[bağ] && !(FiyatıHesapla(bağ, fiyat) && FiyatıYaz(bağ, fiyat) && DurumuYaz(bağ, fiyat.Durum)))
                return false;
        }
        return true;
    }

    bool FiyatıHesapla(std::uint32_t bağ, YarıMamulFiyatı& fiyat) {
        const YarıMamulBağı& b = m_bağlar.Bağlar()[bağ];
        m_yayılım.Sonuç = ÜrününFiyatınıHesapla(m_bağlantı, b.Ürün, b.Tür, fiyat);
        return m_yayılım.Sonuç.Tamam();
    }

    // A price that does not follow stays as it is.
    bool FiyatıYaz(std::uint32_t bağ, YarıMamulFiyatı& fiyat) {
        if (fiyat.Durum != BağDurumu::Uyuyor) return true;
        const QString malzeme = m_bağlar.Bağlar()[bağ].Malzeme;
        bool var = false;
        bool farklı = false;
        if (!Tamam(m_bağlantı.Oku(Deyimler::MalzemeFiyatı(malzeme), [&](OdbcSatırı& satır) {
                var = true;
                farklı = farklı || ParaSütunu(satır, 1) != fiyat.Fiyat;
                return true;
            })))
            return false;
        if (!var) {
            fiyat.Durum = BağDurumu::MalzemeYok;
            return true;
        }
        const QString yazılan = Deyimler::SaklanacakSayı(fiyat.Fiyat);
        if (farklı && !Çalıştır(Deyimler::FiyatDeğiştir(malzeme, yazılan))) return false;
        bool satırlarFarklı = farklı;
        if (!farklı && (m_hepsi || Dokunuldu(malzeme)) && !SatırlarFarklı(malzeme, fiyat.Fiyat, satırlarFarklı))
            return false;
        if (!satırlarFarklı) return true;
        if (!Çalıştır(Deyimler::ÜrünlerdeFiyatDeğiştir(malzeme, yazılan))) return false;
        ++m_yayılım.Değişenler;
        for (const std::uint32_t kullanan : m_bağlar.Kullananlar(malzeme)) m_kirli[kullanan] = true;
        return true;
    }

    bool Dokunuldu(const QString& malzeme) const {
        return std::any_of(m_değişim.Malzemeler.begin(), m_değişim.Malzemeler.end(),
                           [&](const QString& m) { return m_bağlar.Bul(m) == m_bağlar.Bul(malzeme); });
    }

    bool SatırlarFarklı(const QString& malzeme, Para fiyat, bool& farklı) {
        std::int64_t hepsi = 0;
        std::int64_t aynılar = 0;
        if (!Tamam(SayımıOku(m_bağlantı, Deyimler::KullanılanSayısı(malzeme), hepsi)) ||
            !Tamam(SayımıOku(m_bağlantı, Deyimler::KullanılanSayısı(malzeme, fiyat), aynılar)))
            return false;
        farklı = hepsi != aynılar;
        return true;
    }

    bool DurumuYaz(std::uint32_t bağ, BağDurumu durum) {
        if (m_bağlar.Bağlar()[bağ].Durum == durum) return true;
        if (!Çalıştır(Deyimler::YarıMamul::DurumuYaz(m_bağlar.Bağlar()[bağ].Malzeme, DurumSözcüğü(durum))))
            return false;
        m_bağlar.DurumuKoy(bağ, durum);
        return true;
    }

    struct Yuvarlanan {
        ÜrünAdı Ürün;
        QString Malzeme;
    };

    OdbcBağlantısı& m_bağlantı;
    const VeriDeğişimi& m_değişim;
    const bool m_hepsi;  // whatever there is; also to make up for what was left undone
    YarıMamulBağları& m_bağlar;
    std::vector<bool> m_kirli;  // beside the ties: to be reckoned anew
    std::vector<Yuvarlanan> m_yuvarlananlar;
    Yayılım m_yayılım;
};

// What failed leaves the file as it was; the ties in memory are marked and made up for the next time.
void YarımKaldığınıİşle(OdbcBağlantısı& bağlantı, const QStringList& malzemeler) {
    YarıMamulleriUnut();
    if (!Hazırla(bağlantı).Tamam()) return;
    bellek.Onarılacak = true;
    for (const QString& malzeme : malzemeler)
        if (const std::uint32_t bağ = bellek.Bağlar.Bul(malzeme); bağ != YarıMamulBağları::YOK)
            bellek.Bağlar.DurumuKoy(bağ, BağDurumu::Yazılamadı);
}

}  // namespace

İşSonucu YarıMamulleriAl(OdbcBağlantısı& bağlantı, const YarıMamulBağları*& bağlar) {
    const İşSonucu sonuç = Hazırla(bağlantı);
    bağlar = &bellek.Bağlar;
    return sonuç;
}

void YarıMamulleriUnut() {
    bellek.Bağlar = {};
    bellek.Açılış = 0;
}

Yayılım YarıMamulleriYay(OdbcBağlantısı& bağlantı, const VeriDeğişimi& değişim) {
    Yayılım yayılım;
    yayılım.Sonuç = Hazırla(bağlantı);
    if (!yayılım.Sonuç.Tamam() || bellek.Bağlar.Boş()) return yayılım;
    Yayıcı yayıcı(bağlantı, değişim);
    if (!yayıcı.İlgiliVar()) return yayılım;
    yayılım = yayıcı.Yay();
    if (!yayılım.Sonuç.Tamam()) YarıMamulleriUnut();
    return yayılım;
}

Yayılım YarıMamulleriYürüt(OdbcBağlantısı& bağlantı, const VeriDeğişimi& değişim) {
    Yayılım yayılım;
    // Whether there are any is not known: what cannot be read is told by those who show it.
    if (!Hazırla(bağlantı).Tamam()) bellek.Onarılacak = true;
    if (bellek.Bağlar.Boş()) return yayılım;
    Yayıcı yayıcı(bağlantı, değişim);
    if (!yayıcı.İlgiliVar()) return yayılım;

    const QStringList ilgililer = yayıcı.Kirliler();
    OdbcHareketi hareket(bağlantı);
    // It begins with a write: what is read after that is read under the lock.
    const YarıMamulBağı& ilk = bellek.Bağlar.Bağlar().front();
    OdbcSonucu odbc = hareket.Başla();
    if (odbc.Başarılı()) odbc = bağlantı.Çalıştır(Deyimler::YarıMamul::DurumuYaz(ilk.Malzeme, DurumSözcüğü(ilk.Durum)));
    yayılım.Sonuç = İşSonucuYap(odbc);
    if (odbc.Başarılı()) yayılım = yayıcı.Yay();
    if (yayılım.Sonuç.Tamam()) yayılım.Sonuç = İşSonucuYap(hareket.Onayla());
    if (yayılım.Sonuç.Tamam()) {
        bellek.Onarılacak = false;
        return yayılım;
    }
    static_cast<void>(hareket.GeriAl());
    YarımKaldığınıİşle(bağlantı, ilgililer);
    yayılım.Çözülenler.clear();
    yayılım.Değişenler = 0;
    return yayılım;
}

İşSonucu YarıMamulBağınıÇöz(OdbcBağlantısı& bağlantı, const QString& malzeme) {
    const İşSonucu sonuç = İşSonucuYap(bağlantı.Çalıştır(Deyimler::YarıMamul::BağSil(malzeme)));
    if (!sonuç.Tamam()) return sonuç;
    YarıMamulleriUnut();
    // A circle may be open now: what stood still in it follows again.
    return YarıMamulleriYürüt(bağlantı, {.Hepsi = true}).Sonuç;
}
