#include <QDate>
#include <algorithm>

#include "DegisimDeyimleri.h"
#include "Deyimler.h"
#include "MalzemeDegisimi.h"
#include "OdbcHareketi.h"
#include "OdbcTanitici.h"
#include "YariMamulYayilimi.h"

namespace {

// What tells rows of a product apart; names go by the data file's comparison, all else to the letter.
QStringList Anahtarlar(const std::vector<KullanılanSatır>& satırlar, const AdDizini& malzemeler) {
    QStringList anahtarlar;
    for (const KullanılanSatır& s : satırlar)
        anahtarlar.append(QString::number(malzemeler.Bul(s.Malzeme.toStdString())) + QLatin1Char('|') +
                          Deyimler::SaklanacakSayı(s.Fiyat) + QLatin1Char('|') + s.Tarih + QLatin1Char('|') + s.Miktar);
    anahtarlar.sort();
    return anahtarlar;
}

AdDizini DizinYap(const QStringList& adlar) {
    AdDizini dizin;
    for (std::uint32_t i = 0; i < adlar.size(); ++i) dizin.BulYaDaEkle(adlar[i].toStdString(), i);
    return dizin;
}

QString ÜrünMetni(const QString& grup, const QString& ad) {
    return grup + QStringLiteral(" / ") + ad;
}

UygulamaSonucu Değişmiş(const QString& neyin) {
    return {UygulamaSonu::Değişmiş, {}, neyin};
}

// Compares and writes within the transaction that is under way.
class Yazıcı {
  public:
    Yazıcı(OdbcBağlantısı& bağlantı, const DeğişimPlanı& plan, std::int64_t işlem)
        : m_bağlantı(bağlantı), m_plan(plan), m_işlem(işlem), m_malzemeler(DizinYap(plan.Malzemeler())) {}

    // The present rows of the materials against those that the plan was made from.
    UygulamaSonucu Karşılaştır() {
        if (const auto& yeni = m_plan.Yeni()) {
            std::optional<KatalogMalzemesi> şimdiki;
            const İşSonucu s = MalzemeyiOku(m_bağlantı, yeni->Ad, şimdiki);
            if (!s.Tamam()) return {UygulamaSonu::Olmadı, s.Odbc, {}};
            if (!şimdiki || şimdiki->Fiyat != yeni->Fiyat) return Değişmiş(yeni->Ad);
        }
        UygulamaSonucu sonuç = ŞimdikileriOku();
        if (sonuç.Son != UygulamaSonu::Tamam) return sonuç;
        for (std::size_t i = 0; i < m_plan.Ürünler().size(); ++i) {
            const DeğişenÜrün& ürün = m_plan.Ürünler()[i];
            if (ürün.İşaretli && Anahtarlar(ürün.Önce, m_malzemeler) != Anahtarlar(m_şimdikiler[i], m_malzemeler))
                return Değişmiş(ÜrünMetni(ürün.Grup, ürün.Ad));
        }
        return sonuç;
    }

    UygulamaSonucu ÜrünüYaz(const DeğişenÜrün& ürün) {
        for (const QString& malzeme : m_plan.Malzemeler()) {
            const std::uint32_t yer = m_malzemeler.Bul(malzeme.toStdString());
            const auto sayı = std::count_if(ürün.Önce.begin(), ürün.Önce.end(), [this, yer](const auto& s) {
                return m_malzemeler.Bul(s.Malzeme.toStdString()) == yer;
            });
            if (sayı > 0 && !Yaz(Deyimler::KullanılanMalzemeÇıkar(ürün.Grup, ürün.Ad, malzeme), sayı, ürün))
                return m_sonuç;
        }
        for (const KullanılanSatır& satır : ürün.Sonra)
            if (!Yaz(Deyimler::KullanılanıEkle(satır, satır.Fiyat), 1, ürün)) return m_sonuç;
        for (const bool sonraki : {false, true})
            for (const KullanılanSatır& satır : sonraki ? ürün.Sonra : ürün.Önce)
                if (!Yaz(Deyimler::Değiştirme::SatırEkle(m_işlem, sonraki, satır), 1, ürün)) return m_sonuç;
        return {};
    }

  private:
    UygulamaSonucu ŞimdikileriOku() {
        AdDizini ürünler;
        for (std::uint32_t i = 0; i < m_plan.Ürünler().size(); ++i)
            ürünler.BulYaDaEkle(m_plan.Ürünler()[i].Grup.toStdString(), m_plan.Ürünler()[i].Ad.toStdString(), i);
        m_şimdikiler.assign(m_plan.Ürünler().size(), {});
        QString yeniÜrün;  // uses the material, and the plan does not know it
        for (const QString& malzeme : m_plan.Malzemeler()) {
            const bool aranan = m_plan.Yeni() && malzeme == m_plan.Malzemeler().first();
            const OdbcSonucu s = m_bağlantı.Oku(Deyimler::MalzemeninSatırları(malzeme), [&](OdbcSatırı& okunan) {
                const std::uint32_t yer = ürünler.Bul(okunan.Baytlar(1).value_or(""), okunan.Baytlar(2).value_or(""));
                if (yer == AdDizini::YOK) {
                    if (aranan) yeniÜrün = ÜrünMetni(okunan.Metin(1), okunan.Metin(2));
                } else if (m_plan.Ürünler()[yer].İşaretli) {
                    // One that cannot be read is none that the plan knows.
                    m_şimdikiler[yer].push_back(KullanılanSatırıAl(okunan).value_or(KullanılanSatır()));
                }
                return true;
            });
            if (!s.Başarılı()) return {UygulamaSonu::Olmadı, s, {}};
        }
        return yeniÜrün.isEmpty() ? UygulamaSonucu() : Değişmiş(yeniÜrün);
    }

    bool Yaz(const QString& deyim, std::int64_t satır, const DeğişenÜrün& ürün) {
        m_sonuç = {};
        const OdbcSonucu s = m_bağlantı.Çalıştır(deyim);
        if (!s.Başarılı())
            m_sonuç = {UygulamaSonu::Olmadı, s, {}};
        else if (s.Etkilenen != satır)
            m_sonuç = Değişmiş(ÜrünMetni(ürün.Grup, ürün.Ad));
        return m_sonuç.Son == UygulamaSonu::Tamam;
    }

    OdbcBağlantısı& m_bağlantı;
    const DeğişimPlanı& m_plan;
    std::int64_t m_işlem;
    AdDizini m_malzemeler;
    std::vector<std::vector<KullanılanSatır>> m_şimdikiler;  // beside the plan's products
    UygulamaSonucu m_sonuç;
};

}  // namespace

bool AynıSatırlar(const std::vector<KullanılanSatır>& a, const std::vector<KullanılanSatır>& b,
                  const QStringList& malzemeler) {
    const AdDizini dizin = DizinYap(malzemeler);
    return Anahtarlar(a, dizin) == Anahtarlar(b, dizin);
}

std::optional<KullanılanSatır> KullanılanSatırıAl(OdbcSatırı& satır, int ilk) {
    const std::optional<Para> fiyat = SaklananPara(satır.Baytlar(ilk + 4).value_or(""));
    const QString tarih = satır.Metin(ilk + 5);
    if (!fiyat || !QDate::fromString(tarih.left(10), Qt::ISODate).isValid()) return std::nullopt;
    return KullanılanSatır{satır.Metin(ilk),     satır.Metin(ilk + 1), satır.Metin(ilk + 2),
                           satır.Metin(ilk + 3), TarihYazımı(tarih),   *fiyat};
}

İşSonucu MalzemeninDeğiştirmeleri(OdbcBağlantısı& bağlantı, const QString& malzeme,
                                  std::vector<std::int64_t>& işlemler) {
    işlemler.clear();
    if (!Deyimler::Yazılabilir(malzeme)) return {};
    return İşSonucuYap(bağlantı.Oku(Deyimler::Değiştirme::Malzemeninİşlemleri(malzeme), [&](OdbcSatırı& satır) {
        işlemler.push_back(SayıSütunu(satır, 1));
        return true;
    }));
}

UygulamaSonucu DeğişimiUygula(OdbcBağlantısı& bağlantı, const DeğişimPlanı& plan, const İşlemBilgisi& bilgi,
                              const QString& zaman, const İlerleme& ilerleme) {
    const auto olmadı = [](const OdbcSonucu& s) { return UygulamaSonucu{UygulamaSonu::Olmadı, s, {}}; };
    bool tabloVar = false;
    const OdbcSonucu tablo = bağlantı.TabloVar(QString::fromLatin1(Deyimler::Değiştirme::TABLO), tabloVar);
    if (!tablo.Başarılı()) return olmadı(tablo);
    Deyimler::Fiyat::İşlem işlem;
    işlem.Zaman = zaman;
    OdbcHareketi hareket(bağlantı);  // rolls back on every way out but the commit's success
    UygulamaSonucu sonuç = İşlemiAç(bağlantı, hareket, bilgi, işlem);
    if (sonuç.Son != UygulamaSonu::Tamam) return sonuç;
    for (const QString& deyim : tabloVar ? QStringList() : Deyimler::Değiştirme::TabloyuOluştur())
        if (const OdbcSonucu s = bağlantı.Çalıştır(deyim); !s.Başarılı()) return olmadı(s);
    Yazıcı yazıcı(bağlantı, plan, işlem.No);
    sonuç = yazıcı.Karşılaştır();
    std::int64_t biten = 0;
    for (const DeğişenÜrün& ürün : plan.Ürünler()) {
        if (sonuç.Son != UygulamaSonu::Tamam) return sonuç;
        if (!ürün.İşaretli) continue;
        sonuç = yazıcı.ÜrünüYaz(ürün);
        if (ilerleme && !ilerleme(++biten)) return {UygulamaSonu::Vazgeçildi, {}, {}};
    }
    if (sonuç.Son != UygulamaSonu::Tamam) return sonuç;
    VeriDeğişimi değişim{.Malzemeler = plan.Malzemeler(), .FiyatlarTam = true};
    for (const DeğişenÜrün& ürün : plan.Ürünler())
        if (ürün.İşaretli) değişim.Ürünler.push_back({ürün.Grup, ürün.Ad});
    if (const Yayılım y = YarıMamulleriYay(bağlantı, değişim); !y.Sonuç.Tamam()) return olmadı(y.Sonuç.Odbc);
    if (const OdbcSonucu s = hareket.Onayla(); !s.Başarılı()) {
        YarıMamulleriUnut();
        return olmadı(s);
    }
    return {};
}
