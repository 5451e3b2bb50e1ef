#include "KopyaYazma.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStorageInfo>
#include <algorithm>
#include <map>
#include <optional>

#include "ApilerModulu.h"
#include "GeciciDosya.h"
#include "OdbcSurucu.h"
#include "OdbcYedek.h"
#include "Seyreltme.h"
#include "YedekOkuma.h"

namespace {

using Tür = KopyaSonucu::Tür;

const QString GÜNLÜK_EKİ = QStringLiteral("-journal");
const QString YARIM_EKİ = QStringLiteral(".yeni");

std::string Bayt(const QString& yol) {
    return QFile::encodeName(yol).toStdString();
}

// Mark and figures of the data file.
struct Kaynak {
    OdbcSonucu Sonuç;
    QString Damga;
    VeriSayıları Sayılar;
};

Kaynak KaynağıOku(const QString& yol) {
    Kaynak kaynak;
    OdbcBağlantısı bağlantı;
    kaynak.Sonuç = bağlantı.Aç(BağlantıMetni(yol));
    if (!kaynak.Sonuç.Başarılı()) return kaynak;
    kaynak.Damga = VeriDosyasıDamgası(bağlantı);
    kaynak.Sonuç = VeriSayılarınıOku(bağlantı, kaynak.Sayılar);
    return kaynak;
}

bool YerVar(const QString& klasör, qint64 kopya, qint64 dosya) {
    const QStorageInfo disk(klasör);
    return !disk.isValid() || disk.bytesAvailable() >= kopya + dosya;
}

// A compacted file becomes the copy, byte by byte.
KopyaSonucu HazırıKopyala(const Kopyaİşi& iş, const QString& hedef) {
    Dosya::GeçiciDosya eş(Bayt(hedef));
    const QString yarım = QFile::decodeName(QByteArray::fromStdString(eş.Yol()));
    if (!eş.Aç().Tamam() || !eş.Doldur(Bayt(iş.Hazır)).Tamam()) return {Tür::Olmadı, {}, hedef};
    if (!VeriDosyasıSağlam(yarım, iş.Dur)) return {Tür::Olmadı, {}, SürücüKurulumHataları().value(0)};
    if (!eş.Yerleştir(Dosya::Yerleştirme::Yeni).Tamam()) return {Tür::Olmadı, {}, hedef};
    return {Tür::Yazıldı, hedef, {}};
}

KopyaSonucu Sıkıştırarak(const Kopyaİşi& iş, const QString& hedef) {
    if (VeriDosyasınıYedekle(iş.Dosya, hedef, iş.Dur)) return {Tür::Yazıldı, hedef, {}};
    const QString neden = SürücüKurulumHataları().value(0);
    return {!iş.Dur.isEmpty() && QFileInfo::exists(iş.Dur) ? Tür::Durduruldu : Tür::Olmadı, {}, neden};
}

// The newest of its kind; what is kept before a restore is kept in any case.
const Kopya* Sonuncu(const std::vector<Kopya>& kopyalar, KopyaTürü tür) {
    if (tür == KopyaTürü::Önce) return nullptr;
    const auto yer =
        std::find_if(kopyalar.begin(), kopyalar.end(), [tür](const Kopya& kopya) { return kopya.Ad.Tür == tür; });
    return yer == kopyalar.end() ? nullptr : &*yer;
}

// As raw ones are as a rule: nothing sound is lost with it. Its folder stands in the backups'.
bool HamVeBozuk(const Kopya& kopya) {
    const QString kök = QFileInfo(QFileInfo(kopya.Yol).path()).path() + QDir::separator();
    return kopya.Ad.Tür == KopyaTürü::Ham && AçılmışYedek(kopya.Yol, kök).Denetle().Durum == YedekDurumu::Bozuk;
}

void YarımlarıSil(const QString& klasör) {
    const QString kopya = QStringLiteral("*.ydk");
    const QFileInfoList yarımlar =
        QDir(klasör).entryInfoList({kopya + YARIM_EKİ, kopya + GÜNLÜK_EKİ + YARIM_EKİ}, QDir::Files);
    for (const QFileInfo& yarım : yarımlar) YarımKopyayıSil(yarım.filePath().chopped(YARIM_EKİ.size()));
}

int SonrakiSıra(const std::vector<Kopya>& kopyalar) {
    return kopyalar.empty() ? 1 : kopyalar.front().Ad.Sıra + 1;
}

// The header's counters: changes of the file (24), of its schema (40), and the change at which the library's version
// was noted, with that version (92, 96).
void SayaçlarıSil(QByteArray& başlık) {
    constexpr int boy = 4;
    for (const int yer : {24, 40, 92, 96}) başlık.replace(yer, boy, QByteArray(boy, '\0'));
}

}  // namespace

bool İçerikleriAynı(const QString& a, const QString& b) {
    constexpr qint64 parça = 1 << 16;
    QFile ilk(a);
    QFile ikinci(b);
    if (!ilk.open(QIODevice::ReadOnly) || !ikinci.open(QIODevice::ReadOnly) || ilk.size() != ikinci.size())
        return false;
    bool baş = true;
    while (!ilk.atEnd()) {
        QByteArray x = ilk.read(parça);
        QByteArray y = ikinci.read(parça);
        if (baş && x.size() >= 100 && y.size() >= 100) {
            SayaçlarıSil(x);
            SayaçlarıSil(y);
        }
        baş = false;
        if (x.isEmpty() || x != y) return false;
    }
    return ikinci.atEnd();
}

void YarımKopyalarıSil(const QString& kök) {
    for (const QFileInfo& klasör : QDir(kök).entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot))
        YarımlarıSil(klasör.filePath());
}

void FazlalıklarıSil(const QString& klasör, int yeni) {
    std::map<int, Kopya> kopyalar;
    std::vector<KopyaAdı> adlar;
    for (const Kopya& kopya : KopyalarıOku(klasör)) {
        kopyalar[kopya.Ad.Sıra] = kopya;
        adlar.push_back(kopya.Ad);
    }
    const auto yazılan = kopyalar.find(yeni);
    const bool günlük = yazılan != kopyalar.end() && yazılan->second.Ad.Tür == KopyaTürü::Günlük;
    std::map<int, bool> sağlam{{yeni, true}};
    for (const Fazlalık& fazlalık : Seyrelt(adlar)) {
        const auto yerineKalan = kopyalar.find(fazlalık.YerineKalan);
        if (yerineKalan == kopyalar.end() || günlük != (yerineKalan->second.Ad.Tür == KopyaTürü::Günlük)) continue;
        const auto [kalan, ilk] = sağlam.try_emplace(fazlalık.YerineKalan, false);
        if (ilk) kalan->second = VeriDosyasıSağlam(yerineKalan->second.Yol);
        const Kopya& giden = kopyalar[fazlalık.Sıra];
        if ((kalan->second || HamVeBozuk(giden)) && QFile::remove(giden.Yol)) QFile::remove(giden.Yol + GÜNLÜK_EKİ);
    }
}

KopyaSonucu KopyaYaz(const Kopyaİşi& iş) {
    const Kaynak kaynak = KaynağıOku(iş.Hazır.isEmpty() ? iş.Dosya : iş.Hazır);
    if (!kaynak.Sonuç.Başarılı()) return {Tür::Olmadı, {}, OdbcİletileriniAl(kaynak.Sonuç.Hatalar).value(0)};
    if (iş.Tür != KopyaTürü::Önce && kaynak.Sayılar.Ürün == 0 && kaynak.Sayılar.Malzeme == 0) return {Tür::Boş, {}, {}};
    const QString klasör = KopyaKlasörü(iş.Kök, iş.Dosya, kaynak.Damga);
    if (!KopyaKlasörünüYap(klasör, iş.Dosya)) return {Tür::Olmadı, {}, klasör};
    YarımlarıSil(klasör);
    const std::vector<Kopya> kopyalar = KopyalarıOku(klasör);
    const Kopya* önceki = Sonuncu(kopyalar, iş.Tür);
    if (!iş.Hazır.isEmpty() && önceki && İçerikleriAynı(iş.Hazır, önceki->Yol)) {
        FazlalıklarıSil(klasör, önceki->Ad.Sıra);  // its bytes are those of a file that was checked just now
        return {Tür::Aynı, önceki->Yol, {}};
    }
    const qint64 dosyaBoyu = QFileInfo(iş.Dosya).size();
    const qint64 kopyaBoyu = iş.Hazır.isEmpty() ? dosyaBoyu : QFileInfo(iş.Hazır).size();
    if (!YerVar(klasör, kopyaBoyu, dosyaBoyu)) return {Tür::YerYok, {}, klasör};
    const int sıra = SonrakiSıra(kopyalar);
    const QString hedef = klasör + KopyaAdınıYaz({iş.Değişme, sıra, iş.Tür});
    if (!VeriDosyasıYoluSığıyor(hedef)) return {Tür::Olmadı, {}, hedef};
    const KopyaSonucu sonuç = iş.Hazır.isEmpty() ? Sıkıştırarak(iş, hedef) : HazırıKopyala(iş, hedef);
    if (sonuç.Ne != Tür::Yazıldı) return sonuç;
    if (önceki && İçerikleriAynı(hedef, önceki->Yol)) {
        QFile::remove(hedef);
        return {Tür::Aynı, önceki->Yol, {}};
    }
    if (iş.Tür == KopyaTürü::Elle || !iş.Hazır.isEmpty()) FazlalıklarıSil(klasör, sıra);
    return sonuç;
}

void ÖncekiKopyayıBağla(const QString& kopya, bool geriYüklendi) {
    if (kopya.isEmpty()) return;
    const QFileInfo dosya(kopya);
    const std::optional<KopyaAdı> ad = KopyaAdınıOku(dosya.fileName());
    if (!geriYüklendi) {
        QFile::remove(kopya);
        QFile::remove(kopya + GÜNLÜK_EKİ);
    } else if (ad) {
        // A raw one is not known to be sound.
        FazlalıklarıSil(dosya.path() + QDir::separator(), ad->Tür == KopyaTürü::Ham ? 0 : ad->Sıra);
    }
}

QString HamınıSakla(const QString& kök, const QString& dosya) {
    // Not even opened for its mark, which could already change something: the path alone says whose it is.
    const QString klasör = KopyaKlasörü(kök, dosya, {});
    if (!KopyaKlasörünüYap(klasör, dosya)) return {};
    const int sıra = SonrakiSıra(KopyalarıOku(klasör));
    const QString hedef = klasör + KopyaAdınıYaz({QFileInfo(dosya).lastModified(), sıra, KopyaTürü::Ham});
    // The journal second: it would not outlive the copying of its file.
    if (DosyaKopyala(dosya, hedef) &&
        (!QFileInfo::exists(dosya + GÜNLÜK_EKİ) || DosyaKopyala(dosya + GÜNLÜK_EKİ, hedef + GÜNLÜK_EKİ)))
        return hedef;
    QFile::remove(hedef);
    return {};
}
