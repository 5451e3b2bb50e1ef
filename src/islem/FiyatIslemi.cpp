#include "FiyatIslemi.h"

#include <QMap>
#include <QPair>
#include <algorithm>

#include "OdbcHareketi.h"
#include "OdbcTanitici.h"

namespace {

QString AnahtarMetni(const KullanılanSatır& a) {
    return QStringList{a.Grup, a.Ürün, a.Miktar, a.Tarih, Deyimler::SaklanacakSayı(a.Fiyat)}.join(QChar(u'\x1f'));
}

// Writes one material after the other; stops at the first thing that is not as planned.
class Yazıcı {
  public:
    Yazıcı(OdbcBağlantısı& bağlantı, std::int64_t işlem) : m_bağlantı(bağlantı), m_işlem(işlem) {}

    UygulamaSonucu MalzemeyiYaz(const PlanMalzemesi& malzeme) {
        m_sonuç = {};
        static_cast<void>(Değiştir(Deyimler::KataloğunFiyatı(malzeme.Malzeme, malzeme.Eski, malzeme.Yeni), 1) &&
                          KullanılanlarıYaz(malzeme) && SayıyaBak(malzeme) && TekleriYaz(malzeme) &&
                          Ekle(Deyimler::Fiyat::DeğişimEkle({m_işlem, malzeme.Malzeme, malzeme.Eski, malzeme.Yeni})) &&
                          AyrılarıKaydet(malzeme));
        if (m_sonuç.Son == UygulamaSonu::Değişmiş) m_sonuç.Malzeme = malzeme.Malzeme;
        return m_sonuç;
    }

  private:
    bool Değiştir(const QString& deyim, std::int64_t satır) {
        m_sonuç.Odbc = m_bağlantı.Çalıştır(deyim);
        if (!m_sonuç.Odbc.Başarılı())
            m_sonuç.Son = UygulamaSonu::Olmadı;
        else if (m_sonuç.Odbc.Etkilenen != satır)
            m_sonuç.Son = UygulamaSonu::Değişmiş;
        return m_sonuç.Son == UygulamaSonu::Tamam;
    }

    bool Ekle(const QString& deyim) { return Değiştir(deyim, 1); }

    // Rows that have the new price already come first: after the others were changed, they could not be told apart.
    bool KullanılanlarıYaz(const PlanMalzemesi& malzeme) {
        for (const bool yenisi : {true, false})
            for (const FiyatlıSatırlar& satırlar : malzeme.Dağılım)
                if (satırlar.Değişir && (satırlar.Fiyat == malzeme.Yeni) == yenisi &&
                    !Değiştir(Deyimler::KullanılanlarınFiyatı(malzeme.Malzeme, satırlar.Fiyat, malzeme.Yeni),
                              satırlar.Sayı))
                    return false;
        return true;
    }

    bool SayıyaBak(const PlanMalzemesi& malzeme) {
        std::int64_t sayı = -1;
        m_sonuç.Odbc = m_bağlantı.Oku(Deyimler::KullanılanSayısı(malzeme.Malzeme), [&sayı](OdbcSatırı& satır) {
            sayı = SaklananSayı(satır.Baytlar(1).value_or(""));
            return false;
        });
        if (!m_sonuç.Odbc.Başarılı())
            m_sonuç.Son = UygulamaSonu::Olmadı;
        else if (sayı != malzeme.Satır)
            m_sonuç.Son = UygulamaSonu::Değişmiş;
        return m_sonuç.Son == UygulamaSonu::Tamam;
    }

    // After the others, whose change reached these rows too.
    bool TekleriYaz(const PlanMalzemesi& malzeme) {
        QMap<QString, QPair<KullanılanSatır, QList<Para>>> hedefler;  // rows that nothing tells apart
        for (const TekSatır& tek : malzeme.Tekler) {
            if (!tek.Bulundu) continue;
            const auto& fiyatlar = malzeme.Fiyatlar;
            const bool değişti =
                malzeme.HerSatır || std::find(fiyatlar.begin(), fiyatlar.end(), tek.Satır.Fiyat) != fiyatlar.end();
            const KullanılanSatır anahtar{tek.Satır.Grup,   tek.Satır.Ürün,  malzeme.Malzeme,
                                          tek.Satır.Miktar, tek.Satır.Tarih, değişti ? malzeme.Yeni : tek.Satır.Fiyat};
            auto& yer = hedefler[AnahtarMetni(anahtar)];
            yer.first = anahtar;
            yer.second.append(tek.Hedef);
        }
        return std::all_of(hedefler.cbegin(), hedefler.cend(),
                           [this](const auto& yer) { return AynılarıYaz(yer.first, yer.second); });
    }

    bool AynılarıYaz(const KullanılanSatır& anahtar, const QList<Para>& hedefler) {
        // Their spelling may differ, so they are read before they are written anew.
        QList<KullanılanSatır> satırlar;
        m_sonuç.Odbc = m_bağlantı.Oku(Deyimler::AynıKullanılanlar(anahtar), [&](OdbcSatırı& satır) {
            satırlar.append(
                {satır.Metin(1), satır.Metin(2), satır.Metin(3), satır.Metin(4), anahtar.Tarih, anahtar.Fiyat});
            return true;
        });
        if (!m_sonuç.Odbc.Başarılı()) m_sonuç.Son = UygulamaSonu::Olmadı;
        if (m_sonuç.Son != UygulamaSonu::Tamam) return false;
        const bool hepsiBir = std::count(hedefler.begin(), hedefler.end(), hedefler.front()) == hedefler.size();
        if (hepsiBir && satırlar.size() == hedefler.size())
            return Değiştir(Deyimler::KullanılanınFiyatı(anahtar, hedefler.front()), satırlar.size());
        if (!Değiştir(Deyimler::KullanılanıSil(anahtar), satırlar.size())) return false;
        for (qsizetype i = 0; i < satırlar.size(); ++i)
            if (!Ekle(Deyimler::KullanılanıEkle(satırlar[i], hedefler.value(i, anahtar.Fiyat)))) return false;
        return true;
    }

    bool AyrılarıKaydet(const PlanMalzemesi& malzeme) {
        for (const KullanılanSatır& satır : malzeme.Ayrılar)
            if (!Ekle(Deyimler::Fiyat::AyrıSatırEkle(m_işlem, satır))) return false;
        return true;
    }

    OdbcBağlantısı& m_bağlantı;
    std::int64_t m_işlem;
    UygulamaSonucu m_sonuç;
};

UygulamaSonucu Olmadı(const OdbcSonucu& odbc) {
    return {UygulamaSonu::Olmadı, odbc, {}};
}

UygulamaSonucu MalzemeleriYaz(Yazıcı& yazıcı, const FiyatPlanı& plan, const İlerleme& ilerleme) {
    std::int64_t biten = 0;
    for (const PlanMalzemesi& malzeme : plan.Malzemeler()) {
        if (!malzeme.İşaretli) continue;
        UygulamaSonucu sonuç = yazıcı.MalzemeyiYaz(malzeme);
        if (sonuç.Son != UygulamaSonu::Tamam) return sonuç;
        if (ilerleme && !ilerleme(++biten)) return {UygulamaSonu::Vazgeçildi, {}, {}};
    }
    return {};
}

}  // namespace

UygulamaSonucu FiyatlarıUygula(OdbcBağlantısı& bağlantı, const FiyatPlanı& plan, const İşlemBilgisi& bilgi,
                               const QString& zaman, const İlerleme& ilerleme) {
    Deyimler::Fiyat::İşlem işlem{0, zaman, TürSözcüğü(bilgi.Tür), bilgi.Açıklama, bilgi.Karşılığı, 0};
    bool tablolarVar = false;
    if (const İşSonucu s = FiyatTablolarıVar(bağlantı, tablolarVar); !s.Tamam()) return Olmadı(s.Odbc);
    if (const İşSonucu s = SıradakiİşlemNo(bağlantı, tablolarVar, işlem.No); !s.Tamam()) return Olmadı(s.Odbc);

    OdbcHareketi hareket(bağlantı);  // rolls back on every way out but the commit's success
    if (const OdbcSonucu s = hareket.Başla(); !s.Başarılı()) return Olmadı(s);
    if (const İşSonucu s = İşlemiYaz(bağlantı, tablolarVar, işlem); !s.Tamam()) return Olmadı(s.Odbc);
    if (bilgi.Karşılığı != 0) {
        const bool geri = bilgi.Tür == İşlemTürü::GeriAlma;
        const OdbcSonucu s = bağlantı.Çalıştır(
            Deyimler::Fiyat::GeriAlanıYaz(bilgi.Karşılığı, bilgi.KarşılığıGeriAlan, geri ? işlem.No : 0));
        if (!s.Başarılı()) return Olmadı(s);
        if (s.Etkilenen != 1) return {UygulamaSonu::İşlemDeğişmiş, s, {}};
    }
    Yazıcı yazıcı(bağlantı, işlem.No);
    if (UygulamaSonucu s = MalzemeleriYaz(yazıcı, plan, ilerleme); s.Son != UygulamaSonu::Tamam) return s;
    if (const OdbcSonucu s = hareket.Onayla(); !s.Başarılı()) return Olmadı(s);
    return {};
}
