#include "ArsivKayitlari.h"

#include "OdbcHareketi.h"
#include "OdbcTanitici.h"

namespace {

namespace D = Deyimler::Arşiv;

// What a row and a sheet add to the data file on the average, with their indexes.
constexpr std::int64_t SATIR_BOYU = 95;
constexpr std::int64_t FÖY_BOYU = 380;

İşSonucu TablolarVar(OdbcBağlantısı& bağlantı, bool& var) {
    return İşSonucuYap(bağlantı.TabloVar(QString::fromLatin1(D::TABLO), var));
}

İşSonucu SayıOku(OdbcBağlantısı& bağlantı, const QString& deyim, std::int64_t& sayı) {
    sayı = 0;
    return İşSonucuYap(bağlantı.Oku(deyim, [&sayı](OdbcSatırı& satır) {
        sayı = SayıSütunu(satır, 1);
        return false;
    }));
}

// Runs one statement after the other on one handle: there are tens of thousands of them.
class Yazıcı {
  public:
    explicit Yazıcı(OdbcBağlantısı& bağlantı) {
        if (const std::int16_t kod = m_deyim.Aç(bağlantı)) m_açılış = İşSonucuYap({kod, bağlantı.HatalarınıAl()});
    }

    İşSonucu Yaz(const QString& deyim) {
        if (!m_açılış.Tamam()) return m_açılış;
        const std::int16_t kod = m_deyim.Çalıştır(deyim);
        return kod == 0 ? İşSonucu() : İşSonucuYap({kod, m_deyim.HatalarınıAl()});
    }

    İşSonucu FöyüYaz(const Başlık& arşiv, ArşivFöyü& föy) {
        föy.Arşiv = arşiv.No;
        föy.Özet = FöyÖzeti(arşiv, föy);
        if (İşSonucu s = Yaz(D::FöyEkle(föy)); !s.Tamam()) return s;
        std::int64_t no = 0;
        for (const D::Satır& satır : föy.Satırlar)
            if (İşSonucu s = Yaz(D::SatırEkle(arşiv.No, föy.No, ++no, satır)); !s.Tamam()) return s;
        return {};
    }

  private:
    OdbcDeyimi m_deyim;
    İşSonucu m_açılış;
};

ArşivFöyü FöySatırı(OdbcSatırı& satır) {
    ArşivFöyü föy;
    int sütun = 0;
    const auto metin = [&] { return satır.Metin(++sütun); };
    const auto sayı = [&] { return SayıSütunu(satır, ++sütun); };
    const auto para = [&] { return ParaSütunu(satır, ++sütun); };
    föy.Arşiv = sayı();
    föy.No = sayı();
    föy.Grup = metin();
    föy.Ürün = metin();
    föy.MalzemeMetni = metin();
    for (QString& yüzde : föy.YüzdeMetinleri) yüzde = metin();
    föy.ToplamMetni = metin();
    föy.MiktarMetni = metin();
    föy.BirimMetni = metin();
    for (Para& yüzde : föy.Yüzdeler) yüzde = para();
    föy.Malzeme = para();
    föy.Toplam = para();
    föy.SatırSayısı = sayı();
    föy.Dikkat = static_cast<unsigned>(sayı());
    föy.Özet = metin();
    return föy;
}

D::Satır KullanımSatırı(OdbcSatırı& satır) {
    return {satır.Metin(2), satır.Metin(3),       satır.Metin(4),           satır.Metin(5),
            satır.Metin(6), ParaSütunu(satır, 7), SayıSütunu(satır, 8) != 0};
}

bool Sağlam(const Başlık& arşiv, const ArşivFöyü& föy) {
    return föy.Özet == FöyÖzeti(arşiv, föy);
}

}  // namespace

İşSonucu ArşiviYaz(OdbcBağlantısı& bağlantı, bool tablolarVar, Başlık& yeni, const İlerleme& ilerleme) {
    yeni.FöySayısı = 0;
    const QStringList oluştur = tablolarVar ? QStringList() : D::TablolarıOluştur();
    Yazıcı yazıcı(bağlantı);
    for (const QString& deyim : oluştur + QStringList(D::Ekle(yeni)))
        if (İşSonucu s = yazıcı.Yaz(deyim); !s.Tamam()) return s;
    std::int64_t föyler = 0;
    const İşSonucu sonuç = BugünküFöyleriOku(
        bağlantı, yeni.Neyin, yeni.Basamak,
        [&](ArşivFöyü& föy) {
            ++föyler;
            return yazıcı.FöyüYaz(yeni, föy);
        },
        ilerleme);
    if (!sonuç.Tamam()) return sonuç;
    yeni.FöySayısı = föyler;
    return yazıcı.Yaz(D::FöySayısınıYaz(yeni.No, föyler));
}

İşSonucu Arşivle(OdbcBağlantısı& bağlantı, Başlık& yeni, const İlerleme& ilerleme) {
    bool tablolarVar = false;
    if (İşSonucu s = TablolarVar(bağlantı, tablolarVar); !s.Tamam()) return s;
    std::int64_t son = 0;
    if (tablolarVar)
        if (İşSonucu s = SayıOku(bağlantı, D::SonNumara(), son); !s.Tamam()) return s;
    yeni.No = son + 1;
    OdbcHareketi hareket(bağlantı);  // rolls back on every way out but the commit's success
    if (const OdbcSonucu s = hareket.Başla(); !s.Başarılı()) return İşSonucuYap(s);
    if (İşSonucu s = ArşiviYaz(bağlantı, tablolarVar, yeni, ilerleme); !s.Tamam() || yeni.FöySayısı == 0) return s;
    return İşSonucuYap(hareket.Onayla());
}

İşSonucu ArşivBoyunuBul(OdbcBağlantısı& bağlantı, const Kapsam& kapsam, ArşivBoyu& boy) {
    İşSonucu sonuç = SayıOku(bağlantı, D::ÜrünSayısı(kapsam), boy.Ürün);
    if (sonuç.Tamam()) sonuç = SayıOku(bağlantı, D::KullanımSayısı(kapsam), boy.Satır);
    boy.Bayt = boy.Ürün * FÖY_BOYU + boy.Satır * SATIR_BOYU;
    return sonuç;
}

İşSonucu ArşivleriOku(OdbcBağlantısı& bağlantı, std::vector<Başlık>& arşivler) {
    arşivler.clear();
    bool var = false;
    const İşSonucu tablolar = TablolarVar(bağlantı, var);
    if (!tablolar.Tamam() || !var) return tablolar;
    return İşSonucuYap(bağlantı.Oku(D::Arşivler(), [&arşivler](OdbcSatırı& satır) {
        arşivler.push_back({SayıSütunu(satır, 1),
                            satır.Metin(2),
                            satır.Metin(3),
                            {satır.Metin(4), satır.Metin(5)},
                            static_cast<int>(SayıSütunu(satır, 6)),
                            SayıSütunu(satır, 7)});
        return true;
    }));
}

İşSonucu FöyListesiniOku(OdbcBağlantısı& bağlantı, std::int64_t arşiv, std::vector<FöyBaşlığı>& föyler,
                         const İlerleme& ilerleme) {
    föyler.clear();
    bool vazgeçildi = false;
    const OdbcSonucu sonuç = bağlantı.Oku(D::FöyListesi(arşiv), [&](OdbcSatırı& satır) {
        föyler.push_back({SayıSütunu(satır, 1), satır.Metin(2), satır.Metin(3), satır.Metin(4), ParaSütunu(satır, 5),
                          static_cast<unsigned>(SayıSütunu(satır, 6))});
        vazgeçildi = ilerleme && !ilerleme(static_cast<std::int64_t>(föyler.size()));
        return !vazgeçildi;
    });
    return İşSonucuYap(sonuç, vazgeçildi);
}

İşSonucu FöyüOku(OdbcBağlantısı& bağlantı, const Başlık& arşiv, std::int64_t no, std::optional<OkunanFöy>& föy) {
    föy.reset();
    İşSonucu sonuç = İşSonucuYap(bağlantı.Oku(D::TekFöy(arşiv.No, no), [&föy](OdbcSatırı& satır) {
        föy = OkunanFöy{FöySatırı(satır), false};
        return false;
    }));
    if (!sonuç.Tamam() || !föy) return sonuç;
    sonuç = İşSonucuYap(bağlantı.Oku(D::FöyünSatırları(arşiv.No, no), [&föy](OdbcSatırı& satır) {
        föy->Föy.Satırlar.push_back(KullanımSatırı(satır));
        return true;
    }));
    föy->Sağlam = Sağlam(arşiv, föy->Föy);
    return sonuç;
}

İşSonucu FöyleriOku(OdbcBağlantısı& bağlantı, const Başlık& arşiv, const OkunanFöyAlıcı& al, const İlerleme& ilerleme) {
    std::vector<ArşivFöyü> föyler;
    bool vazgeçildi = false;
    const OdbcSonucu başlıklar = bağlantı.Oku(D::Föyler(arşiv.No), [&](OdbcSatırı& satır) {
        föyler.push_back(FöySatırı(satır));
        vazgeçildi = ilerleme && !ilerleme(0);
        return !vazgeçildi;
    });
    İşSonucu sonuç = İşSonucuYap(başlıklar, vazgeçildi);
    if (!sonuç.Tamam()) return sonuç;
    std::size_t yer = 0;
    const auto ver = [&] {
        OkunanFöy föy{std::move(föyler[yer++]), false};
        föy.Sağlam = Sağlam(arşiv, föy.Föy);
        return al(föy);
    };
    std::int64_t okunan = 0;
    const OdbcSonucu odbc = bağlantı.Oku(D::Satırlar(arşiv.No), [&](OdbcSatırı& satır) {
        const std::int64_t no = SayıSütunu(satır, 1);
        while (sonuç.Tamam() && yer < föyler.size() && föyler[yer].No < no) sonuç = ver();
        if (yer < föyler.size() && föyler[yer].No == no) föyler[yer].Satırlar.push_back(KullanımSatırı(satır));
        vazgeçildi = ilerleme && !ilerleme(++okunan);
        return sonuç.Tamam() && !vazgeçildi;
    });
    if (!sonuç.Tamam()) return sonuç;
    sonuç = İşSonucuYap(odbc, vazgeçildi);
    while (sonuç.Tamam() && yer < föyler.size()) sonuç = ver();
    return sonuç;
}

İşSonucu ÜrününToplamları(OdbcBağlantısı& bağlantı, const Kapsam& ürün, std::vector<ArşivToplamı>& toplamlar) {
    toplamlar.clear();
    return İşSonucuYap(bağlantı.Oku(D::ÜrününFöyleri(ürün.Grup, ürün.Ürün), [&toplamlar](OdbcSatırı& satır) {
        toplamlar.push_back({SayıSütunu(satır, 1), ParaSütunu(satır, 3), static_cast<unsigned>(SayıSütunu(satır, 4))});
        return true;
    }));
}

İşSonucu ArşivdekiAdlar(OdbcBağlantısı& bağlantı, std::vector<Kapsam>& adlar) {
    adlar.clear();
    return İşSonucuYap(bağlantı.Oku(D::Adlar(), [&adlar](OdbcSatırı& satır) {
        adlar.push_back({satır.Metin(1), satır.Metin(2)});
        return true;
    }));
}

İşSonucu ArşiviSil(OdbcBağlantısı& bağlantı, std::int64_t arşiv) {
    return TablolaraYaz(bağlantı, QString::fromLatin1(D::TABLO), {}, D::Sil(arşiv));
}
