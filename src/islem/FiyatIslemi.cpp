#include "FiyatIslemi.h"

#include <QMap>
#include <QPair>
#include <algorithm>

#include "Deyimler.h"
#include "OdbcHareketi.h"
#include "OdbcTanitici.h"
#include "YariMamulYayilimi.h"

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
        static_cast<void>(KatalogdaYaz(malzeme) &&
                          Ekle(Deyimler::Fiyat::DeğişimEkle(
                              {m_işlem, malzeme.Malzeme, malzeme.Eski, malzeme.Yeni, malzeme.Malzemenin})) &&
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

    bool KatalogdaYaz(const PlanMalzemesi& malzeme) {
        switch (malzeme.Malzemenin) {
            case Varlık::Eklendi:
                return Say(Deyimler::AdınSayısı(malzeme.Malzeme), 0) &&
                       Ekle(Deyimler::MalzemeEkle(malzeme.Malzeme, Deyimler::SaklanacakSayı(malzeme.Yeni)));
            case Varlık::Silindi:
                return Değiştir(Deyimler::FiyatıylaSil(malzeme.Malzeme, malzeme.Eski), 1) &&
                       Say(Deyimler::KullanılanSayısı(malzeme.Malzeme), malzeme.Satır);
            case Varlık::Aynı:
                break;
        }
        return Değiştir(Deyimler::KataloğunFiyatı(malzeme.Malzeme, malzeme.Eski, malzeme.Yeni), 1) &&
               KullanılanlarıYaz(malzeme) && Say(Deyimler::KullanılanSayısı(malzeme.Malzeme), malzeme.Satır) &&
               TekleriYaz(malzeme);
    }

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

    bool Say(const QString& deyim, std::int64_t beklenen) {
        std::int64_t sayı = -1;
        m_sonuç.Odbc = SayımıOku(m_bağlantı, deyim, sayı);
        if (!m_sonuç.Odbc.Başarılı())
            m_sonuç.Son = UygulamaSonu::Olmadı;
        else if (sayı != beklenen)
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

OdbcSonucu BağıYaz(OdbcBağlantısı& bağlantı, const FiyatPlanı& plan, bool tabloVar) {
    const YarıMamulBağı* bağ = plan.Bağ();
    if (!bağ) return {};
    YarıMamulleriUnut();
    for (const QString& deyim : tabloVar ? QStringList() : Deyimler::YarıMamul::TablolarıOluştur())
        if (OdbcSonucu s = bağlantı.Çalıştır(deyim); !s.Başarılı()) return s;
    return bağlantı.Çalıştır(Deyimler::YarıMamul::BağEkle(Saklanan(*bağ)));
}

// The rate itself, and in its ties the prices that it wrote.
UygulamaSonucu KuruYaz(OdbcBağlantısı& bağlantı, const FiyatPlanı& plan, std::int64_t işlem) {
    const KurDeğişimi& kur = *plan.DövizKuru();
    const auto yaz = [&](const QString& deyim, const QString& ad) -> UygulamaSonucu {
        const OdbcSonucu s = bağlantı.Çalıştır(deyim);
        if (!s.Başarılı()) return Olmadı(s);
        if (s.Etkilenen != 1) return {UygulamaSonu::Değişmiş, s, ad};
        return {};
    };
    UygulamaSonucu sonuç = yaz(Deyimler::Döviz::KuruYaz(kur.Kod, kur.Eski, kur.Yeni, kur.YeniGün), kur.Kod);
    AdDizini yazılanlar;
    for (const PlanMalzemesi& malzeme : plan.Malzemeler())
        if (malzeme.İşaretli || malzeme.Neden == PlanNedeni::Değişmiyor)
            yazılanlar.BulYaDaEkle(malzeme.Malzeme.toStdString(), 0);
    for (Deyimler::Döviz::Bağ bağ : kur.Bağlar) {
        if (sonuç.Son != UygulamaSonu::Tamam) break;
        if (yazılanlar.Bul(bağ.Malzeme.toStdString()) == AdDizini::YOK) continue;
        if (bağ.İşlem == 0) bağ.İşlem = işlem;
        sonuç = yaz(Deyimler::Döviz::BağınYazılanı(bağ), bağ.Malzeme);
    }
    return sonuç;
}

}  // namespace

UygulamaSonucu FiyatlarıYaz(OdbcBağlantısı& bağlantı, const FiyatPlanı& plan, std::int64_t işlem,
                            const İlerleme& ilerleme) {
    Yazıcı yazıcı(bağlantı, işlem);
    std::int64_t biten = 0;
    for (const PlanMalzemesi& malzeme : plan.Malzemeler()) {
        if (!malzeme.İşaretli) continue;
        UygulamaSonucu sonuç = yazıcı.MalzemeyiYaz(malzeme);
        if (sonuç.Son != UygulamaSonu::Tamam) return sonuç;
        if (ilerleme && !ilerleme(++biten)) return {UygulamaSonu::Vazgeçildi, {}, {}};
    }
    return {};
}

UygulamaSonucu İşlemiAç(OdbcBağlantısı& bağlantı, OdbcHareketi& hareket, const İşlemBilgisi& bilgi,
                        Deyimler::Fiyat::İşlem& işlem) {
    işlem.Tür = TürSözcüğü(bilgi.Tür);
    işlem.Açıklama = bilgi.Açıklama;
    işlem.Karşılığı = bilgi.Karşılığı;
    bool tablolarVar = false;
    if (const İşSonucu s = FiyatTablolarıVar(bağlantı, tablolarVar); !s.Tamam()) return Olmadı(s.Odbc);
    if (const İşSonucu s = SıradakiİşlemNo(bağlantı, tablolarVar, işlem.No); !s.Tamam()) return Olmadı(s.Odbc);
    if (const OdbcSonucu s = hareket.Başla(); !s.Başarılı()) return Olmadı(s);
    if (const İşSonucu s = İşlemiYaz(bağlantı, tablolarVar, işlem); !s.Tamam()) return Olmadı(s.Odbc);
    if (bilgi.Karşılığı == 0) return {};
    const bool geri = bilgi.Tür == İşlemTürü::GeriAlma;
    const OdbcSonucu s =
        bağlantı.Çalıştır(Deyimler::Fiyat::GeriAlanıYaz(bilgi.Karşılığı, bilgi.KarşılığıGeriAlan, geri ? işlem.No : 0));
    if (!s.Başarılı()) return Olmadı(s);
    if (s.Etkilenen != 1) return {UygulamaSonu::İşlemDeğişmiş, s, {}};
    return {};
}

UygulamaSonucu FiyatlarıUygula(OdbcBağlantısı& bağlantı, const FiyatPlanı& plan, const İşlemBilgisi& bilgi,
                               const QString& zaman, const İlerleme& ilerleme) {
    Deyimler::Fiyat::İşlem işlem;
    işlem.Zaman = zaman;
    if (const std::optional<KurDeğişimi>& kur = plan.DövizKuru()) {
        işlem.DövizKodu = kur->Kod;
        işlem.EskiKur = kur->Eski;
        işlem.YeniKur = kur->Yeni;
        işlem.EskiKurGünü = kur->EskiGün;
        işlem.YeniKurGünü = kur->YeniGün;
    }
    bool bağTablosuVar = true;
    if (plan.Bağ()) {
        const QString tablo = QString::fromLatin1(Deyimler::YarıMamul::TABLO);
        if (const OdbcSonucu s = bağlantı.TabloVar(tablo, bağTablosuVar); !s.Başarılı()) return Olmadı(s);
    }
    OdbcHareketi hareket(bağlantı);  // rolls back on every way out but the commit's success
    if (UygulamaSonucu s = İşlemiAç(bağlantı, hareket, bilgi, işlem); s.Son != UygulamaSonu::Tamam) return s;
    if (plan.DövizKuru())
        if (UygulamaSonucu s = KuruYaz(bağlantı, plan, işlem.No); s.Son != UygulamaSonu::Tamam) return s;
    if (UygulamaSonucu s = FiyatlarıYaz(bağlantı, plan, işlem.No, ilerleme); s.Son != UygulamaSonu::Tamam) return s;
    if (const OdbcSonucu s = BağıYaz(bağlantı, plan, bağTablosuVar); !s.Başarılı()) return Olmadı(s);
    VeriDeğişimi değişim;
    değişim.FiyatlarTam = true;
    for (const PlanMalzemesi& malzeme : plan.Malzemeler())
        if (malzeme.İşaretli || plan.Bağ()) değişim.Malzemeler.append(malzeme.Malzeme);
    if (const Yayılım y = YarıMamulleriYay(bağlantı, değişim); !y.Sonuç.Tamam()) return Olmadı(y.Sonuç.Odbc);
    if (const OdbcSonucu s = hareket.Onayla(); !s.Başarılı()) {
        YarıMamulleriUnut();
        return Olmadı(s);
    }
    return {};
}
