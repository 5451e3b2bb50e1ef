#include "ArsivFoyu.h"

#include <QCryptographicHash>
#include <unordered_map>

#include "FiyatDeyimleri.h"
#include "MaliyetTablosu.h"
#include "MalzemeToplami.h"
#include "OdbcTanitici.h"
#include "SayiMetni.h"
#include "TurkceSira.h"

namespace {

constexpr int SAKLANAN_BASAMAK = 4;
constexpr const char* SÜRÜM = "foy-1";

// A percentage as the product has it, in both its forms; there are few different ones.
struct Yüzde {
    QString Metin;
    Para Oran;
};

struct Ürün {
    std::string Grup;
    std::string Ad;
    std::array<Yüzde, 4> Yüzdeler;
    bool İkiKez = false;
};

int Sırala(const Ürün& ürün, std::string_view grup, std::string_view ad) {
    const auto sırala = [](std::string_view a, std::string_view b) { return a == b ? 0 : Türkçe::Karşılaştır(a, b); };
    const int gruplar = sırala(ürün.Grup, grup);
    return gruplar != 0 ? gruplar : sırala(ürün.Ad, ad);
}

std::string_view Baytlar(OdbcSatırı& satır, int sütun) {
    return satır.Baytlar(sütun).value_or(std::string_view());
}

İşSonucu ÜrünleriOku(OdbcBağlantısı& bağlantı, const Deyimler::Arşiv::Kapsam& kapsam, int basamak,
                     std::vector<Ürün>& ürünler, const İlerleme& ilerleme) {
    std::unordered_map<std::string, Yüzde> yüzdeler;
    bool vazgeçildi = false;
    const OdbcSonucu sonuç = bağlantı.Oku(Deyimler::Arşiv::Ürünler(kapsam), [&](OdbcSatırı& satır) {
        const std::string_view grup = Baytlar(satır, 1);
        const std::string_view ad = Baytlar(satır, 2);
        if (!ürünler.empty() && Sırala(ürünler.back(), grup, ad) == 0) {
            ürünler.back().İkiKez = true;  // the file's first counts
            return true;
        }
        Ürün& ürün = ürünler.emplace_back();
        ürün.Grup = grup;
        ürün.Ad = ad;
        for (int i = 0; i < 4; ++i) {
            const auto [yer, yeni] = yüzdeler.try_emplace(std::string(Baytlar(satır, 3 + i)));
            if (yeni) {
                const QString saklanan = QString::fromStdString(yer->first);
                yer->second = {YüzdeMetni(saklanan, basamak), YüzdeOranı(YüzdeMetni(saklanan, SAKLANAN_BASAMAK))};
            }
            ürün.Yüzdeler[static_cast<std::size_t>(i)] = yer->second;
        }
        vazgeçildi = ilerleme && !ilerleme(0);
        return !vazgeçildi;
    });
    return İşSonucuYap(sonuç, vazgeçildi);
}

// Puts the sheets together; the used rows come in the products' order.
class FöyYapıcı {
  public:
    FöyYapıcı(const std::vector<Ürün>& ürünler, const MalzemeKataloğu& malzemeler, int basamak, const FöyAlıcı& al)
        : m_ürünler(ürünler), m_malzemeler(malzemeler), m_basamak(basamak), m_al(al) {
        Başla();
    }

    İşSonucu Al(OdbcSatırı& satır) {
        const std::string_view grup = Baytlar(satır, 1);
        const std::string_view ad = Baytlar(satır, 2);
        while (m_yer < m_ürünler.size()) {
            const int sıra = Sırala(m_ürünler[m_yer], grup, ad);
            if (sıra > 0) break;  // of no product
            if (sıra == 0) {
                SatırEkle(satır);
                break;
            }
            if (İşSonucu s = Ver(); !s.Tamam()) return s;
        }
        return {};
    }

    İşSonucu Bitir() {
        while (m_yer < m_ürünler.size())
            if (İşSonucu s = Ver(); !s.Tamam()) return s;
        return {};
    }

  private:
    void Başla() {
        m_föy = {};
        m_toplam = {};
        m_sonMalzeme.clear();
    }

    // As a column takes it.
    QString Metni(const QString& metin) {
        QString saklanan = Deyimler::SaklanacakMetin(metin);
        if (saklanan.size() != metin.size()) m_föy.Dikkat |= MetinKısaltıldı;
        return saklanan;
    }

    void SatırEkle(OdbcSatırı& okunan) {
        const std::string_view malzeme = Baytlar(okunan, 3);
        if (!m_föy.Satırlar.empty() && Türkçe::Karşılaştır(malzeme, m_sonMalzeme) == 0) m_föy.Dikkat |= İkiKezYazılmış;
        if (m_malzemeler.Dizin.Bul(malzeme) == AdDizini::YOK) m_föy.Dikkat |= KatalogDışıMalzeme;
        m_sonMalzeme = malzeme;
        const QString miktar = okunan.Metin(4);
        const QString fiyat = NoktayıVirgüleÇevir(okunan.Metin(5));
        const MalzemeSatırı gösterilen = m_toplam.Ekle(miktar, fiyat, m_basamak);
        Deyimler::Arşiv::Satır& satır = m_föy.Satırlar.emplace_back();
        satır = {Metni(okunan.Metin(3)),  Metni(gösterilen.Miktar),
                 Metni(gösterilen.Fiyat), Metni(gösterilen.Tutar),
                 Metni(miktar),           SaklananPara(Baytlar(okunan, 5)).value_or(Para()),
                 gösterilen.Sayıldı};
        if (satır.Fiyat == Para()) m_föy.Dikkat |= SıfırFiyat;
        if (!satır.Sayıldı) m_föy.Dikkat |= MiktarSayısı(miktar) ? TutarTaşıyor : OkunamayanMiktar;
    }

    İşSonucu Ver() {
        const Ürün& ürün = m_ürünler[m_yer++];
        m_föy.No = static_cast<std::int64_t>(m_yer);
        m_föy.Grup = Metni(QString::fromStdString(ürün.Grup));
        m_föy.Ürün = Metni(QString::fromStdString(ürün.Ad));
        m_föy.SatırSayısı = static_cast<std::int64_t>(m_föy.Satırlar.size());
        MetinleriYaz(ürün);
        for (std::size_t i = 0; i < m_föy.Yüzdeler.size(); ++i) m_föy.Yüzdeler[i] = ürün.Yüzdeler[i].Oran;
        m_föy.Malzeme = m_toplam.Tutar();
        m_föy.Toplam = GösterilenToplam(m_toplam.Tutar(), m_föy.Oranlar(), SAKLANAN_BASAMAK);
        if (!GösterilenTutar(m_toplam.Tutar(), m_basamak)) m_föy.Dikkat |= TutarTaşıyor;
        if (ürün.İkiKez) m_föy.Dikkat |= İkiKezYazılmış;
        if (m_föy.Satırlar.empty()) m_föy.Dikkat |= MalzemesiYok;
        if (!m_föy.Satırlar.empty() && m_föy.Toplam <= Para()) m_föy.Dikkat |= ToplamSıfır;
        İşSonucu sonuç = m_al(m_föy);
        Başla();
        return sonuç;
    }

    // As the main form fills its boxes.
    void MetinleriYaz(const Ürün& ürün) {
        MaliyetGirdisi girdi{SayıBiçimle(m_toplam.Tutar(), m_basamak), ürün.Yüzdeler[0].Metin, ürün.Yüzdeler[1].Metin,
                             ürün.Yüzdeler[2].Metin, ürün.Yüzdeler[3].Metin};
        const QString toplam = SayıBiçimle(MaliyetHesapla(girdi).Toplam, m_basamak);
        m_föy.MalzemeMetni = Metni(girdi.MalzemeMaliyeti);
        for (std::size_t i = 0; i < m_föy.YüzdeMetinleri.size(); ++i)
            m_föy.YüzdeMetinleri[i] = Metni(ürün.Yüzdeler[i].Metin);
        m_föy.ToplamMetni = Metni(toplam);
        if (m_toplam.BirimlerFarklı() || m_toplam.ToplamMiktar() <= 0) return;
        const std::optional<double> birim = BirimMaliyet(toplam, m_toplam.ToplamMiktar());
        m_föy.MiktarMetni = Metni(SayıBiçimle(m_toplam.ToplamMiktar(), m_basamak).value_or(QString()));
        m_föy.BirimMetni = Metni(birim ? SayıBiçimle(*birim, m_basamak).value_or(QString()) : QString());
    }

    const std::vector<Ürün>& m_ürünler;
    const MalzemeKataloğu& m_malzemeler;
    const int m_basamak;
    const FöyAlıcı& m_al;
    std::size_t m_yer = 0;  // the product whose rows come
    ArşivFöyü m_föy;
    MalzemeToplamı m_toplam;
    std::string m_sonMalzeme;
};

// Fields one behind the other, each with its length: no two lists of fields give the same bytes.
class Alanlar {
  public:
    Alanlar& operator<<(const QString& metin) {
        const QByteArray baytlar = metin.toUtf8();
        m_hepsi += QByteArray::number(baytlar.size());
        m_hepsi += ':';
        m_hepsi += baytlar;
        return *this;
    }
    Alanlar& operator<<(std::int64_t sayı) {
        const QByteArray baytlar = QByteArray::number(static_cast<qlonglong>(sayı));
        m_hepsi += QByteArray::number(baytlar.size());
        m_hepsi += ':';
        m_hepsi += baytlar;
        return *this;
    }
    Alanlar& operator<<(Para tutar) { return *this << tutar.OnBindeBir(); }
    QString Özet() const {
        return QString::fromLatin1(QCryptographicHash::hash(m_hepsi, QCryptographicHash::Sha256).toHex());
    }

  private:
    QByteArray m_hepsi;
};

}  // namespace

bool FöyEksik(unsigned dikkat) {
    return (dikkat & (OkunamayanMiktar | TutarTaşıyor | MetinKısaltıldı)) != 0;
}

QString FöyÖzeti(const Deyimler::Arşiv::Başlık& arşiv, const ArşivFöyü& f) {
    Alanlar alanlar;
    alanlar << QString::fromLatin1(SÜRÜM) << arşiv.No << arşiv.Gün << arşiv.Not << arşiv.Neyin.Grup << arşiv.Neyin.Ürün
            << std::int64_t{arşiv.Basamak} << f.Arşiv << f.No << f.Grup << f.Ürün << f.MalzemeMetni;
    for (const QString& yüzde : f.YüzdeMetinleri) alanlar << yüzde;
    alanlar << f.ToplamMetni << f.MiktarMetni << f.BirimMetni;
    for (const Para yüzde : f.Yüzdeler) alanlar << yüzde;
    alanlar << f.Malzeme << f.Toplam << f.SatırSayısı << static_cast<std::int64_t>(f.Dikkat)
            << static_cast<std::int64_t>(f.Satırlar.size());
    for (const Deyimler::Arşiv::Satır& s : f.Satırlar)
        alanlar << s.Malzeme << s.MiktarMetni << s.FiyatMetni << s.TutarMetni << s.Miktar << s.Fiyat
                << std::int64_t{s.Sayıldı};
    return alanlar.Özet();
}

İşSonucu BugünküFöyleriOku(OdbcBağlantısı& bağlantı, const Deyimler::Arşiv::Kapsam& kapsam, int basamak,
                           const FöyAlıcı& al, const İlerleme& ilerleme) {
    MalzemeKataloğu malzemeler;
    std::vector<Ürün> ürünler;
    const İlerleme başta = ilerleme ? İlerleme([&](std::int64_t) { return ilerleme(0); }) : İlerleme();
    İşSonucu sonuç = malzemeler.Oku(bağlantı, başta);
    if (sonuç.Tamam()) sonuç = ÜrünleriOku(bağlantı, kapsam, basamak, ürünler, başta);
    if (!sonuç.Tamam()) return sonuç;
    FöyYapıcı yapıcı(ürünler, malzemeler, basamak, al);
    std::int64_t okunan = 0;
    bool vazgeçildi = false;
    const OdbcSonucu odbc = bağlantı.Oku(Deyimler::Arşiv::Kullanımlar(kapsam), [&](OdbcSatırı& satır) {
        sonuç = yapıcı.Al(satır);
        vazgeçildi = ilerleme && !ilerleme(++okunan);
        return sonuç.Tamam() && !vazgeçildi;
    });
    if (!sonuç.Tamam()) return sonuç;
    sonuç = İşSonucuYap(odbc, vazgeçildi);
    return sonuç.Tamam() ? yapıcı.Bitir() : sonuç;
}
