#include "YedekOkuma.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <algorithm>

#include "AccessBasligi.h"
#include "ApilerModulu.h"
#include "DegisiklikOzeti.h"
#include "Deyimler.h"
#include "ErisimKilidi.h"
#include "OdbcSurucu.h"
#include "OdbcYedek.h"
#include "YanKopya.h"

namespace {

// The driver's numbers for damage; the lower eight bits count.
constexpr int BOZUK = 11;
constexpr int VERİ_DOSYASI_DEĞİL = 26;
const QString TABLO_YOK = QStringLiteral("S0002");
const QString GEÇİCİ = QStringLiteral("gecici-");

std::string Bayt(const QString& yol) {
    return QFile::encodeName(yol).toStdString();
}

OdbcSonucu Say(OdbcBağlantısı& bağlantı, const QString& sayma, std::int64_t& sayı) {
    OdbcSonucu sonuç = bağlantı.Oku(sayma, [&sayı](OdbcSatırı& satır) {
        sayı = satır.Metin(1).toLongLong();
        return false;
    });
    const bool tabloYok = std::any_of(sonuç.Hatalar.begin(), sonuç.Hatalar.end(),
                                      [](const OdbcHatası& hata) { return hata.Durum == TABLO_YOK; });
    return tabloYok ? OdbcSonucu() : sonuç;
}

// Whole, and of a version that this one does not know: its header says whose it is.
bool BaşkaSürümün(const QString& yol) {
    constexpr qsizetype başlık = 100;
    QFile dosya(yol);
    if (!dosya.open(QIODevice::ReadOnly)) return false;
    const QByteArray baytlar = dosya.read(başlık);
    return baytlar.size() == başlık && baytlar.mid(68, 4) == "VRNK" && baytlar.mid(60, 4) != QByteArray("\0\0\0\1", 4);
}

YedekBilgisi Hatalı(const QString& yol, const OdbcSonucu& sonuç) {
    YedekBilgisi bilgi;
    bilgi.Neden = OdbcİletileriniAl(sonuç.Hatalar).value(0);
    for (const OdbcHatası& hata : sonuç.Hatalar) {
        const int yerel = hata.Yerel & 0xFF;
        if (yerel == BOZUK || yerel == VERİ_DOSYASI_DEĞİL) bilgi.Durum = YedekDurumu::Bozuk;
    }
    if (bilgi.Durum != YedekDurumu::Bozuk && BaşkaSürümün(yol)) bilgi.Durum = YedekDurumu::BaşkaSürüm;
    return bilgi;
}

}  // namespace

OdbcSonucu VeriSayılarınıOku(OdbcBağlantısı& bağlantı, VeriSayıları& sayılar) {
    OdbcSonucu sonuç = Say(bağlantı, Deyimler::ÜrünSayısı(), sayılar.Ürün);
    if (sonuç.Başarılı()) sonuç = Say(bağlantı, Deyimler::MalzemeSayısı(), sayılar.Malzeme);
    if (sonuç.Başarılı()) sonuç = Say(bağlantı, Deyimler::KullanılanMalzemeSayısı(), sayılar.Satır);
    return sonuç;
}

AçılmışYedek::AçılmışYedek(const QString& yol, const QString& kök) : m_klasör(kök + GEÇİCİ + QStringLiteral("XXXXXX")) {
    m_yol = m_klasör.filePath(QStringLiteral("Varnek.ydk"));
    const QString ek = QStringLiteral("-journal");
    const bool kopyalandı = m_klasör.isValid() && DosyaKopyala(yol, m_yol) &&
                            (!QFileInfo::exists(yol + ek) || DosyaKopyala(yol + ek, m_yol + ek));
    if (!kopyalandı) m_neden = yol;
    // What another program is writing to may be half written; the lock lies beside the file, not beside its copy.
    if (kopyalandı && Erişim::AccessTürünüOku(Bayt(m_yol)) != Erişim::AccessTürü::Değil)
        m_neden = QString::fromStdString(Erişim::AçıkGörünmeNedeni(Bayt(yol)));
}

QString AçılmışYedek::Değişenler() const {
    return QString::fromStdString(Erişim::ListeninÖzeti(Bayt(m_yol) + std::string(Erişim::LİSTE_EKİ)));
}

QString AçılmışYedek::DeğişenleriSakla(const QString& dosya) const {
    const Dosya::YanKopya liste =
        Dosya::YanaKopyala(Bayt(m_yol) + std::string(Erişim::LİSTE_EKİ), Bayt(dosya) + ".access", ".txt");
    return liste.Ne.Yapıldı() ? QFile::decodeName(liste.Yol.c_str()) : QString();
}

YedekBilgisi AçılmışYedek::Denetle(const QString& dur) {
    if (!m_neden.isEmpty()) return {YedekDurumu::Okunamadı, {}, m_neden};
    VeriSayıları sayılar;
    {
        OdbcBağlantısı bağlantı;
        OdbcSonucu sonuç = bağlantı.Aç(BağlantıMetni(m_yol));
        if (sonuç.Başarılı()) sonuç = VeriSayılarınıOku(bağlantı, sayılar);
        if (!sonuç.Başarılı()) return Hatalı(m_yol, sonuç);
    }
    if (VeriDosyasıSağlam(m_yol, dur)) return {YedekDurumu::Sağlam, sayılar, {}};
    const QString neden = SürücüKurulumHataları().value(0);
    const bool durduruldu = !dur.isEmpty() && QFileInfo::exists(dur);
    return {durduruldu ? YedekDurumu::Durduruldu : YedekDurumu::Bozuk, {}, neden};
}

void YarımAçılmışlarıSil(const QString& kök) {
    const QFileInfoList kalanlar = QDir(kök).entryInfoList({GEÇİCİ + QLatin1Char('*')}, QDir::Dirs);
    for (const QFileInfo& kalan : kalanlar)
        if (kalan.lastModified() < QDateTime::currentDateTime().addDays(-1)) QDir(kalan.filePath()).removeRecursively();
}
