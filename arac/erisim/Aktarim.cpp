#include "Aktarim.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFile>
#include <QFileInfo>
#include <QScopeGuard>
#include <cerrno>

#include "AccessBasligi.h"
#include "Donusum.h"
#include "ErisimKilidi.h"
#include "GeciciDosya.h"
#include "OdbcSurucu.h"
#include "Saklama.h"
#include "VeriDosyasi.h"

using namespace Qt::StringLiterals;

namespace Erişim {

namespace {

constexpr int BÜTÜN = 1000;     // thousandths
constexpr int İKİ_OKUMA = 980;  // of the progress; the rest is for keeping the original

QString Ad(const QString& yol) {
    return QFileInfo(yol).fileName();
}

// The Access file, held for this process alone while it is worked on.
class Kaynak {
  public:
    explicit Kaynak(const QString& yol) : m_yol(QFile::encodeName(yol).toStdString()) {
        m_dosya = Dosya::Tanıtıcı(open(m_yol.c_str(), O_RDONLY | O_CLOEXEC));
        struct stat bilgi {};
        if (!m_dosya.Açık() || fstat(m_dosya.No(), &bilgi) != 0 || !S_ISREG(bilgi.st_mode))
            throw VeriHatası(u"Access dosyası açılamıyor; iznini denetleyin: "_s + Ad(yol));
        if (!Dosya::Kilitle(m_dosya.No()) && errno == EWOULDBLOCK)  // some network drives know no locks
            throw VeriHatası(
                u"Access dosyası şu anda başka bir program tarafından alınıyor; biraz sonra tekrar deneyin."_s);
        m_bilgi = bilgi;
        BaşlığıDenetle(yol);
        KilidiDenetle(yol);
    }

    const std::string& Yol() const { return m_yol; }
    bool Jet3() const { return m_tür == AccessTürü::Jet3; }
    const timespec& DeğişmeZamanı() const { return m_bilgi.st_mtim; }

    // Before its place is taken: nobody has written to it or put another file there.
    void DeğişmediMi() const {
        struct stat şimdi {};
        const bool aynı = fstat(m_dosya.No(), &şimdi) == 0 && şimdi.st_size == m_bilgi.st_size &&
                          şimdi.st_mtim.tv_sec == m_bilgi.st_mtim.tv_sec &&
                          şimdi.st_mtim.tv_nsec == m_bilgi.st_mtim.tv_nsec && Dosya::AynıDosya(m_dosya.No(), m_yol);
        if (!aynı) throw VeriHatası(u"Access dosyası alınırken başka bir program onu değiştirdi; yeniden deneyin."_s);
    }

  private:
    void BaşlığıDenetle(const QString& yol) {
        m_tür = AccessTürünüOku(m_yol);
        if (m_tür == AccessTürü::Değil) throw VeriHatası(u"Bu dosya bir Access dosyası değil: "_s + Ad(yol));
        if (m_tür == AccessTürü::Yeni)
            throw VeriHatası(
                u"Bu dosya Access 2007 ya da sonrasının biçiminde (.accdb). Access’te \"Access 2002-2003 Veritabanı\" "
                u"olarak kaydedip o dosyayı kullanın."_s);
        const off_t sayfa = Jet3() ? 2048 : 4096;
        if (m_bilgi.st_size % sayfa != 0) throw VeriHatası(u"Access dosyası bozuk: sonu eksik. Dosya değişmedi."_s);
    }

    static void KilidiDenetle(const QString& yol) {
        const std::string neden = AçıkGörünmeNedeni(QFile::encodeName(yol).toStdString());
        if (!neden.empty()) throw VeriHatası(QString::fromStdString(neden));
    }

    std::string m_yol;
    Dosya::Tanıtıcı m_dosya;
    struct stat m_bilgi {};
    AccessTürü m_tür = AccessTürü::Değil;
};

class İlerlemeSayacı {
  public:
    explicit İlerlemeSayacı(const std::function<void(int)>& bildir) : m_bildir(bildir) {}
    void Beklenen(std::uint64_t satır) { m_beklenen = 2 * satır; }
    void Arttır() {
        YarıdaKesildiMi();
        ++m_yapılan;
        const int binde =
            m_beklenen == 0 ? 0 : static_cast<int>(std::min(m_yapılan, m_beklenen) * İKİ_OKUMA / m_beklenen);
        if (binde == m_son) return;
        m_son = binde;
        if (m_bildir) m_bildir(binde);
    }

  private:
    const std::function<void(int)>& m_bildir;
    std::uint64_t m_beklenen = 0;
    std::uint64_t m_yapılan = 0;
    int m_son = -1;
};

std::string SütunAdları(Tablo tablo) {
    std::string adlar;
    for (const KaynakSütunu& sütun : TABLOLAR[tablo].Sütunlar) adlar.append(adlar.empty() ? "" : ", ").append(sütun.Ad);
    return adlar;
}

struct Sayılar {
    std::array<std::uint64_t, TABLOLAR.size()> Satır{};
    friend bool operator==(const Sayılar&, const Sayılar&) = default;
};

Sayılar Yaz(VeriYazıcısı& yazıcı, SatırAkışı& akış, İlerlemeSayacı& sayaç) {
    Sayılar sayılar;
    Satır satır;
    std::string deyim;
    for (const Tablo tablo : {MalzemeTablosu, ÜrünTablosu, KullanımTablosu}) {
        const std::string baş =
            "INSERT INTO " + std::string(TABLOLAR[tablo].Ad) + " (" + SütunAdları(tablo) + ") VALUES (";
        while (akış.Sonraki(tablo, satır)) {
            deyim = baş;
            for (std::size_t i = 0; i < TABLOLAR[tablo].Sütunlar.size(); ++i) {
                if (i > 0) deyim += ", ";
                satır[i].YazımEkle(deyim);
            }
            yazıcı.Çalıştır(QString::fromUtf8(deyim + ")"));
            ++sayılar.Satır[tablo];
            sayaç.Arttır();
        }
    }
    akış.Bitir();
    return sayılar;
}

[[noreturn]] void Uymuyor(Tablo tablo) {
    throw VeriHatası(u"Alınan değerler Access dosyasındakilere uymuyor (%1); diski denetleyin. Dosya değişmedi."_s.arg(
        QString::fromUtf8(TABLOLAR[tablo].Ad)));
}

// Reads both files anew and compares them value by value.
Sayılar Karşılaştır(const QString& yeni, SatırAkışı& akış, İlerlemeSayacı& sayaç) {
    OdbcBağlantısı bağlantı;
    if (!bağlantı.Aç(BağlantıMetni(yeni)).Başarılı()) throw VeriHatası(u"Alınan veri dosyası açılamadı."_s);
    Sayılar sayılar;
    for (const Tablo tablo : {MalzemeTablosu, ÜrünTablosu, KullanımTablosu}) {
        Satır satır;
        const std::string sorgu = "SELECT " + SütunAdları(tablo) + " FROM " + std::string(TABLOLAR[tablo].Ad);
        const OdbcSonucu sonuç = bağlantı.Oku(QString::fromUtf8(sorgu), [&](OdbcSatırı& okunan) {
            if (!akış.Sonraki(tablo, satır)) Uymuyor(tablo);
            for (std::size_t i = 0; i < TABLOLAR[tablo].Sütunlar.size(); ++i) {
                const auto değer = okunan.Baytlar(static_cast<int>(i) + 1);
                if (!değer || !satır[i].Aynı(*değer)) Uymuyor(tablo);
            }
            ++sayılar.Satır[tablo];
            sayaç.Arttır();
            return true;
        });
        if (!sonuç.Başarılı() || akış.Sonraki(tablo, satır)) Uymuyor(tablo);
    }
    akış.Bitir();
    return sayılar;
}

void YarımıSil(const QString& yol) {
    for (const QString& ek : {u""_s, u".yeni"_s}) {
        const std::string dosya = QFile::encodeName(yol + ek).toStdString();
        Dosya::GünlükleriSil(dosya);
        Dosya::Sil(dosya);
    }
}

// The file's time of change and whom it lets in, on disk with all the rest.
void ZamanıVer(const std::string& yol, const timespec& zaman, const std::string& örnek) {
    const Dosya::Tanıtıcı no(open(yol.c_str(), O_RDWR | O_CLOEXEC));
    const timespec zamanlar[2] = {zaman, zaman};
    if (no.Açık()) Dosya::İzinleriVer(no.No(), örnek);
    if (!no.Açık() || futimens(no.No(), zamanlar) != 0 || fsync(no.No()) != 0)
        throw VeriHatası(u"Alınan veri dosyası diske yazılamadı; diski denetleyin. Dosya değişmedi."_s);
}

AktarımSonucu Sonuç(const Sayılar& sayılar, const DeğişiklikListesi& liste, const QString& listeYolu) {
    AktarımSonucu sonuç;
    sonuç.Özet = u"%1 ürün, %2 malzeme ve %3 kullanılan malzeme satırı alındı."_s.arg(sayılar.Satır[ÜrünTablosu])
                     .arg(sayılar.Satır[MalzemeTablosu])
                     .arg(sayılar.Satır[KullanımTablosu]);
    if (!liste.Boş()) sonuç.Not = QString::fromStdString(liste.Özet()) + u". Liste: "_s + Ad(listeYolu);
    return sonuç;
}

}  // namespace

AktarımSonucu ErişimDosyasınıAl(const Aktarımİsteği& istek) {
    const QString yol = GerçekYoluBul(istek.Kaynak);
    const bool yerinde = istek.Hedef.isEmpty();
    const QString hedef = yerinde ? yol : GerçekYoluBul(istek.Hedef);
    const std::string hedefYolu = QFile::encodeName(hedef).toStdString();
    const Kaynak kaynak(yol);
    if (!yerinde && Dosya::YolVar(hedefYolu))
        throw VeriHatası(u"%1 zaten var; var olan bir dosyanın üzerine yazılmaz."_s.arg(hedef));
    const QString yeni = hedef + u".aliniyor"_s;
    YarımıSil(yeni);  // of a run that was cut off; the source's lock is ours
    const auto temizlik = qScopeGuard([&] { YarımıSil(yeni); });

    İlerlemeSayacı sayaç(istek.İlerleme);
    DeğişiklikListesi liste;
    Sayılar yazılan;
    VeriDosyasınıDoldur(yeni, [&](VeriYazıcısı& yazıcı) {
        SatırAkışı akış(kaynak.Yol(), kaynak.Jet3(), liste);
        sayaç.Beklenen(akış.BeklenenSatır());
        yazılan = Yaz(yazıcı, akış, sayaç);
    });
    {
        DeğişiklikListesi ikinci;
        SatırAkışı akış(kaynak.Yol(), kaynak.Jet3(), ikinci);
        if (Karşılaştır(yeni, akış, sayaç) != yazılan || ikinci.Metin() != liste.Metin()) Uymuyor(KullanımTablosu);
    }
    const std::string yeniYolu = QFile::encodeName(yeni).toStdString();
    ZamanıVer(yeniYolu, kaynak.DeğişmeZamanı(), yerinde ? hedefYolu : std::string());

    const Saklanan saklanan = yerinde || istek.Sakla ? ÖzgünüSakla(yol, hedef) : Saklanan();
    const QString listeYolu = !saklanan.Yol.isEmpty() ? saklanan.Yol + u".txt"_s
                              : istek.Liste.isEmpty() ? ListeAdı(hedef + u".access.txt"_s)
                                                      : ListeAdı(istek.Liste);
    const bool listeYeni = !liste.Boş() && !QFileInfo::exists(listeYolu);
    auto geriAl = qScopeGuard([&] {
        if (saklanan.Yeni) QFile::remove(saklanan.Yol);
        if (listeYeni) QFile::remove(listeYolu);
    });
    if (!liste.Boş()) MetniYaz(listeYolu, liste.Metin(), kaynak.Yol());
    if (istek.İlerleme) istek.İlerleme(BÜTÜN);
    YarıdaKesildiMi();
    kaynak.DeğişmediMi();
    YerineKoy(yeniYolu, hedefYolu, yerinde);
    geriAl.dismiss();
    return Sonuç(yazılan, liste, listeYolu);
}

}  // namespace Erişim
