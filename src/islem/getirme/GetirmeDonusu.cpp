// The way back from what was brought in, and forward again: the plan from the operation's record.

#include <QHash>
#include <algorithm>

#include "DegisimDeyimleri.h"
#include "GeriAlma.h"
#include "GetirmeDeyimleri.h"
#include "GetirmePlani.h"
#include "MalzemeDegisimi.h"
#include "OdbcTanitici.h"
#include "TurkceSira.h"

namespace {

// The rows whose price was not the catalogue's when the operation began.
class AyrıSatırlar {
  public:
    İşSonucu Oku(OdbcBağlantısı& bağlantı, std::int64_t işlem) {
        return İşSonucuYap(bağlantı.Oku(Deyimler::Fiyat::İşleminAyrıSatırları(işlem), [this](OdbcSatırı& satır) {
            const Para fiyat = ParaSütunu(satır, 6);
            ++m_sayılar[Anahtar(
                {satır.Metin(1), satır.Metin(2), satır.Metin(3), satır.Metin(5), TarihYazımı(satır.Metin(4)), fiyat})];
            return true;
        }));
    }
    std::vector<bool> Bul(const ÜrünHali& hal) {
        std::vector<bool> bulunanlar;
        for (const KullanılanSatır& satır : hal.Satırlar) {
            int& sayı = m_sayılar[Anahtar(satır)];
            bulunanlar.push_back(sayı > 0);
            if (sayı > 0) --sayı;
        }
        return bulunanlar;
    }

  private:
    static QString Anahtar(const KullanılanSatır& s) {
        return QStringList{s.Grup, s.Ürün, s.Malzeme, s.Miktar, s.Tarih, Deyimler::SaklanacakSayı(s.Fiyat)}.join(
            QChar(u'\x1f'));
    }

    QHash<QString, int> m_sayılar;
};

}  // namespace

// What the operation wrote about a product.
struct GetirmePlanı::Kayıt {
    ÜrünAdı Ürün;
    ÜrünHali Duran{};    // what should stand now
    ÜrünHali Gelecek{};  // what comes back
};

İşSonucu GetirmePlanı::KaydıOku(std::int64_t işlem, bool geri, std::vector<Kayıt>& kayıtlar) {
    AdDizini dizin;
    const auto hali = [&](const QString& grup, const QString& ad, bool sonraki) -> ÜrünHali& {
        const auto yeni = static_cast<std::uint32_t>(kayıtlar.size());
        const std::uint32_t yer = dizin.BulYaDaEkle(grup.toStdString(), ad.toStdString(), yeni);
        if (yer == yeni) kayıtlar.push_back({{grup, ad}});
        return sonraki == geri ? kayıtlar[yer].Duran : kayıtlar[yer].Gelecek;
    };
    OdbcSonucu odbc = m_deneme->Oku(Deyimler::Getirme::İşleminÜrünleri(işlem), [&](OdbcSatırı& satır) {
        ÜrünHali& hal = hali(satır.Metin(2), satır.Metin(3), SayıSütunu(satır, 1) != 0);
        hal.Var = true;
        for (int i = 0; i < 4; ++i) hal.Yüzdeler[static_cast<std::size_t>(i)] = satır.Metin(4 + i);
        return true;
    });
    if (odbc.Başarılı())
        odbc = m_deneme->Oku(Deyimler::Değiştirme::İşleminSatırları(işlem), [&](OdbcSatırı& okunan) {
            std::optional<KullanılanSatır> satır = KullanılanSatırıAl(okunan, 2);
            if (!satır) return true;  // cannot be: all columns have a value
            ÜrünHali& hal = hali(satır->Grup, satır->Ürün, SayıSütunu(okunan, 1) != 0);
            hal.Satırlar.push_back(std::move(*satır));
            return true;
        });
    std::stable_sort(kayıtlar.begin(), kayıtlar.end(), [](const Kayıt& a, const Kayıt& b) {
        const int grup = Türkçe::Karşılaştır(QStringView(a.Ürün.Grup), QStringView(b.Ürün.Grup));
        return grup < 0 || (grup == 0 && Türkçe::Karşılaştır(QStringView(a.Ürün.Ad), QStringView(b.Ürün.Ad)) < 0);
    });
    return İşSonucuYap(odbc);
}

İşSonucu GetirmePlanı::KayıttanKur(OdbcBağlantısı& deneme, const Deyimler::Fiyat::İşlem& işlem, İşlemTürü tür,
                                   int basamak, const İlerleme& ilerleme) {
    *this = {};
    m_deneme = &deneme;
    m_basamak = basamak;
    m_işlem = işlem;
    m_tür = tür;
    const bool geri = tür == İşlemTürü::GeriAlma;
    std::vector<Kayıt> kayıtlar;
    İşSonucu sonuç = m_şimdi.Oku(deneme, basamak, ilerleme);
    if (sonuç.Tamam()) sonuç = KaydıOku(işlem.No, geri, kayıtlar);
    AyrıSatırlar ayrılar;
    if (sonuç.Tamam()) sonuç = ayrılar.Oku(deneme, işlem.No);
    if (!sonuç.Tamam()) return sonuç;
    for (Kayıt& kayıt : kayıtlar) {
        GetirmeKalemi kalem{.Grup = kayıt.Ürün.Grup, .Ad = kayıt.Ürün.Ad};
        const TarananÜrün* şimdiki = m_şimdi.Bul(kalem.Grup, kalem.Ad);
        if (şimdiki) kalem.Şimdiki = kalem.Sonraki = şimdiki->Toplam;
        kalem.Eksik = şimdiki && şimdiki->Eksik;
        ÜrünDeğişimi değişim{kayıt.Ürün, {}, std::move(kayıt.Gelecek)};
        bool okunamaz = false;
        sonuç = ÜrünHaliniOku(deneme, kayıt.Ürün, değişim.Önce, okunamaz);
        if (!sonuç.Tamam()) return sonuç;
        if (şimdiki && şimdiki->İkiKez)
            kalem.Neden = GetirmeNedeni::İkiKez;
        else if (okunamaz)
            kalem.Neden = GetirmeNedeni::SatırOkunamaz;
        else if (!AynıHal(değişim.Önce, kayıt.Duran, false))
            kalem.Neden = GetirmeNedeni::SonradanDeğişmiş;
        else if (geri && değişim.Sonra.Var && !AynıHal(değişim.Önce, kayıt.Duran, true))
            kalem.Neden = GetirmeNedeni::FiyatlarıDeğişmiş;
        if (geri) değişim.KendiFiyatıyla = ayrılar.Bul(değişim.Sonra);
        kalem.İşaretli = kalem.Neden == GetirmeNedeni::Yok;
        ÜrünEkle(std::move(kalem));
        m_değişimler.back() = std::move(değişim);
    }
    return FiyatlarıEkle();
}

// The prices that the operation changed, and the materials that it added.
İşSonucu GetirmePlanı::FiyatlarıEkle() {
    FiyatTeklifi teklif;
    GeriAlmaEksikleri eksikler;
    const İşSonucu sonuç = GeriAlmaÖnerileri(*m_deneme, m_işlem, m_tür, teklif, eksikler);
    m_eksikler = eksikler.Malzemeler;
    for (FiyatÖnerisi& öneri : teklif.Öneriler) {
        GetirmeKalemi kalem{.Ürün = false, .Ad = öneri.Malzeme};
        const std::uint32_t yer = m_şimdi.Malzemeler.Dizin.Bul(öneri.Malzeme.toStdString());
        if (yer != AdDizini::YOK) kalem.Şimdiki = kalem.Sonraki = m_şimdi.Malzemeler.Malzemeler[yer].Fiyat;
        kalem.FiyatNedeni = öneri.Neden;
        if (öneri.Neden != PlanNedeni::Yok)
            kalem.Neden = Uygulanır(öneri.Neden) ? GetirmeNedeni::Fiyatta : GetirmeNedeni::FiyatEngeli;
        kalem.İşaretli = kalem.Neden == GetirmeNedeni::Yok;
        m_malzemeDizini.BulYaDaEkle(öneri.Malzeme.toStdString(), static_cast<std::uint32_t>(m_kalemler.size()));
        m_kalemler.push_back(std::move(kalem));
        m_değişimler.emplace_back();
        m_öneriler.push_back(std::move(öneri));
    }
    return sonuç;
}

// From a backup: as it was read. From the record: asked again, as the rows are different once products are back.
UygulamaSonucu GetirmePlanı::FiyatÖner(OdbcBağlantısı& bağlantı, FiyatTeklifi& teklif) const {
    const auto seçili = [this](std::size_t kalem) {
        return !m_kalemler[kalem].Ürün && (m_kalemler[kalem].İşaretli || m_kalemler[kalem].Birlikte);
    };
    if (Yedekten()) {
        for (std::size_t i = 0; i < m_kalemler.size(); ++i)
            if (seçili(i)) teklif.Öneriler.push_back(m_öneriler[i]);
        return {};
    }
    FiyatTeklifi hepsi;
    GeriAlmaEksikleri eksikler;
    if (const İşSonucu s = GeriAlmaÖnerileri(bağlantı, m_işlem, m_tür, hepsi, eksikler); !s.Tamam())
        return {UygulamaSonu::Olmadı, s.Odbc, {}};
    for (FiyatÖnerisi& öneri : hepsi.Öneriler) {
        const std::uint32_t yer = m_malzemeDizini.Bul(öneri.Malzeme.toStdString());
        if (yer == AdDizini::YOK || !seçili(yer)) continue;
        const FiyatÖnerisi& gösterilen = m_öneriler[yer];
        if (öneri.Eski != gösterilen.Eski || öneri.Yeni != gösterilen.Yeni ||
            öneri.Malzemenin != gösterilen.Malzemenin || öneri.Neden != gösterilen.Neden)
            return {UygulamaSonu::Değişmiş, {}, öneri.Malzeme};
        öneri.İşaretli = true;
        teklif.Öneriler.push_back(std::move(öneri));
    }
    return {};
}
