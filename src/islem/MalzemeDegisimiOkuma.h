#pragma once

#include <string_view>

#include "FiyatDeyimleri.h"
#include "MaliyetHesabi.h"
#include "MalzemeDegisimi.h"
#include "MalzemeToplami.h"
#include "OdbcTanitici.h"
#include "TurkceMetin.h"
#include "UrunToplamlari.h"

// The reading pass of DeğişimPlanı, for its own sources alone.

// Goes through all used rows: what every product costs without the materials' rows, and those rows of it.
class DeğişimPlanı::Okuyucu {
  public:
    struct Ürün {
        std::int64_t Malzeme = 0;  // ten-thousandths, of the rows that count
        std::int64_t Kalan = 0;    // without the materials' rows
        std::vector<KullanılanSatır> Satırlar;
        bool Listede = true;
        bool Okunamaz = false;
        bool Eski = false;  // a row is of the first material
        QString Grup;
        QString Ad;
    };
    std::vector<Ürün> Ürünler;  // those of the product table first
    ÜrünKataloğu Katalog;

    Okuyucu(const QStringList& malzemeler, const MalzemeKataloğu& katalog, PlanYayılımı& yayılım)
        : m_katalog(katalog), m_yayılım(yayılım) {
        for (std::uint32_t i = 0; i < malzemeler.size(); ++i) m_malzemeler.BulYaDaEkle(malzemeler[i].toStdString(), i);
    }

    İşSonucu Oku(OdbcBağlantısı& bağlantı, int basamak, const İlerleme& ilerleme) {
        m_basamak = basamak;
        İşSonucu sonuç = Katalog.Oku(bağlantı, basamak, ilerleme);
        if (sonuç.Tamam()) sonuç = m_yayılım.Kur(bağlantı, m_katalog, Katalog);
        if (!sonuç.Tamam()) return sonuç;
        Ürünler.resize(Katalog.Ürünler.size());
        for (std::size_t i = 0; i < Ürünler.size(); ++i) {
            Ürünler[i].Grup = Katalog.Ürünler[i].Grup;
            Ürünler[i].Ad = Katalog.Ürünler[i].Ad;
        }
        std::int64_t okunan = 0;
        bool vazgeçildi = false;
        const OdbcSonucu odbc = bağlantı.Oku(Deyimler::TümKullanılanlar(), [&](OdbcSatırı& satır) {
            Al(satır);
            vazgeçildi = ilerleme && !ilerleme(++okunan);
            return !vazgeçildi;
        });
        return İşSonucuYap(odbc, vazgeçildi);
    }

    std::uint32_t Bul(const QString& grup, const QString& ad) const {
        return Katalog.Dizin.Bul(grup.toStdString(), ad.toStdString());
    }

    // The total as the main form shows it, of a material cost in ten-thousandths.
    Para Toplam(std::size_t yer, std::int64_t malzeme) const {
        const MaliyetOranları oranlar = Ürünler[yer].Listede ? Katalog.Ürünler[yer].Oranlar : MaliyetOranları();
        return GösterilenToplam(Para::OnBindeBirden(malzeme), oranlar, m_basamak);
    }

    // With the totals; those beyond the range of money leave it out.
    void ToplamlarıKoy(std::size_t yer, DeğişenÜrün& ürün) const {
        ürün.ÖncekiToplam = ürün.SonrakiToplam = Toplam(yer, Ürünler[yer].Malzeme);
        ürün.Hesabı = HesapYap(yer);
        if (!Uygulanır(ürün.Neden)) return;
        std::optional<Para> sonra = Para::OnBindeBirden(Ürünler[yer].Kalan);
        for (const KullanılanSatır& satır : ürün.Sonra) {
            const std::optional<Para> tutar = Tutarı(satır);
            if (!tutar && MiktarSayısı(QStringView(satır.Miktar))) sonra.reset();
            if (sonra && tutar) sonra = Topla(*sonra, *tutar);
        }
        if (sonra) {
            ürün.SonrakiToplam = Toplam(yer, sonra->OnBindeBir());
            ürün.Hesabı.Sonra = sonra->OnBindeBir();
        } else {
            ürün.Neden = DeğişimNedeni::TutarBüyük;
            ürün.Sonra.clear();
        }
    }

    DeğişenÜrün::Hesap HesapYap(std::size_t yer) const {
        const bool listede = Ürünler[yer].Listede;
        return {listede ? static_cast<std::uint32_t>(yer) : AdDizini::YOK,
                listede ? Katalog.Ürünler[yer].Oranlar : MaliyetOranları(), Ürünler[yer].Malzeme, Ürünler[yer].Malzeme};
    }

  private:
    static std::optional<Para> Tutarı(const KullanılanSatır& satır) {
        const std::optional<double> miktar = MiktarSayısı(QStringView(satır.Miktar));
        return miktar ? MalzemeTutarı(*miktar, satır.Fiyat) : std::nullopt;
    }

    void Al(OdbcSatırı& okunan) {
        const auto baytlar = [&okunan](int sütun) { return okunan.Baytlar(sütun).value_or(std::string_view()); };
        const std::uint32_t malzeme = m_malzemeler.Bul(baytlar(3));
        const std::uint32_t yer = ÜrünüBul(baytlar(1), baytlar(2), malzeme != AdDizini::YOK);
        if (yer == AdDizini::YOK) return;
        Ürün& ürün = Ürünler[yer];
        const std::optional<double> miktar = MiktarSayısı(baytlar(4));
        const std::optional<Para> fiyat = SaklananPara(baytlar(5));
        if (!m_yayılım.Boş() && ürün.Listede) {
            const bool gider = malzeme != AdDizini::YOK;
            const std::uint32_t katalogda = m_katalog.Dizin.Bul(baytlar(3));
            if (m_yayılım.İlgili(yer, katalogda))
                m_yayılım.Ekle({yer,
                                katalogda,
                                miktar,
                                fiyat,
                                gider ? yer : AdDizini::YOK,
                                {},
                                gider ? PlanYayılımı::SatırTürü::Gider : PlanYayılımı::SatırTürü::Durur},
                               baytlar(3), baytlar(4));
        }
        const std::optional<Para> tutar = miktar && fiyat ? MalzemeTutarı(*miktar, *fiyat) : std::nullopt;
        Ekle(ürün.Malzeme, tutar);
        if (malzeme == AdDizini::YOK) {
            Ekle(ürün.Kalan, tutar);
            return;
        }
        ürün.Eski |= malzeme == 0;
        if (std::optional<KullanılanSatır> satır = KullanılanSatırıAl(okunan))
            ürün.Satırlar.push_back(std::move(*satır));
        else
            ürün.Okunamaz = true;
    }

    static void Ekle(std::int64_t& toplam, std::optional<Para> tutar) {
        const std::optional<Para> sonuç = tutar ? Topla(Para::OnBindeBirden(toplam), *tutar) : std::nullopt;
        if (sonuç) toplam = sonuç->OnBindeBir();
    }

    // Rows without a product are kept where they are of the materials.
    std::uint32_t ÜrünüBul(std::string_view grup, std::string_view ad, bool saklanır) {
        const std::uint32_t yer = Katalog.Dizin.Bul(grup, ad);
        if (yer != AdDizini::YOK || !saklanır) return yer;
        const auto yeni = static_cast<std::uint32_t>(Ürünler.size());
        const std::uint32_t bulunan = m_ürünsüzler.BulYaDaEkle(grup, ad, yeni);
        if (bulunan != yeni) return bulunan;
        Ürün& ürün = Ürünler.emplace_back();
        ürün.Listede = false;
        ürün.Grup = Utf8Metni(grup);
        ürün.Ad = Utf8Metni(ad);
        return bulunan;
    }

    const MalzemeKataloğu& m_katalog;
    PlanYayılımı& m_yayılım;
    int m_basamak = 2;
    AdDizini m_malzemeler;
    AdDizini m_ürünsüzler;
};
