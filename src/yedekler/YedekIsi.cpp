#include "YedekIsi.h"

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>

#include "ArkaIs.h"
#include "DisKopya.h"
#include "GundeBir.h"
#include "MesajKutusu.h"
#include "OdbcSurucu.h"
#include "OdbcTanitici.h"
#include "OdbcYedek.h"
#include "OrtakFonksiyonlarModulu.h"
#include "YedekMetinleri.h"
#include "YedeklerFormu.h"

using MesajKutusu::Düğmeler;
using MesajKutusu::Simge;

namespace {

std::uint64_t yedeklenenDeğişiklikler = 0;

void Bildir(Simge simge, const QString& metin) {
    MesajKutusuOrtala();
    MesajKutusu::Göster(simge, Düğmeler::Tamam, metin);
}

KopyaSonucu ArkadaKopyala(Kopyaİşi iş, MetinNo metin, QWidget* sahip) {
    const std::uint64_t değişiklikler = OdbcBağlantısı::Değişiklikler();
    KopyaSonucu sonuç;
    ArkadaYürüt(metin, 0, sahip, [&](ArkaDurum& durum) {
        iş.Dur = durum.DurYolu();
        sonuç = KopyaYaz(iş);
    });
    if (sonuç.Ne == KopyaSonucu::Tür::Yazıldı || sonuç.Ne == KopyaSonucu::Tür::Aynı)
        yedeklenenDeğişiklikler = değişiklikler;
    return sonuç;
}

// Tells why there is no copy. True: there is one.
bool SonucuGöster(const KopyaSonucu& sonuç) {
    switch (sonuç.Ne) {
        case KopyaSonucu::Tür::Yazıldı:
        case KopyaSonucu::Tür::Aynı:
            return true;
        case KopyaSonucu::Tür::Boş:
            Bildir(Simge::Bilgi, Metin(YedekMetni::VeriBoş));
            return false;
        case KopyaSonucu::Tür::YerYok:
            Bildir(Simge::Ünlem, Metin(YedekMetni::YedekYeriYok).arg(sonuç.Neden));
            return false;
        case KopyaSonucu::Tür::Durduruldu:
            return false;
        case KopyaSonucu::Tür::Olmadı:
            break;
    }
    Bildir(Simge::Kritik, Metin(YedekMetni::YedekAlınamadı).arg(sonuç.Neden));
    return false;
}

Kopyaİşi İşYap(const VeriYolları& yollar, KopyaTürü tür) {
    return {yollar.YedekKlasörü, yollar.GerçekDosya, QFileInfo(yollar.GerçekDosya).lastModified(), tür, {}, {}};
}

const QString BÖLÜM = QStringLiteral("Ayarlar");
const QString KLASÖR_ANAHTARI = QStringLiteral("DisYedekKlasoru");

std::string Bayt(const QString& yol) {
    return QFile::encodeName(yol).toStdString();
}

// Empty: the user gave up.
QString KlasörSor(const VeriYolları& yollar, QWidget* sahip) {
    QString klasör = AyarOku(BÖLÜM, KLASÖR_ANAHTARI, {});
    if (!klasör.isEmpty() && !QFileInfo(klasör).isDir()) {
        Bildir(Simge::Ünlem, Metin(YedekMetni::KlasörYok).arg(klasör));
        klasör.clear();
    }
    QFileDialog kutu(sahip, Metin(YedekMetni::KlasörSeçBaşlığı), klasör.isEmpty() ? QDir::homePath() : klasör);
    kutu.setObjectName(QStringLiteral("YedekKlasörüFormu"));
    kutu.setFileMode(QFileDialog::Directory);
    kutu.setOption(QFileDialog::ShowDirsOnly);
    if (kutu.exec() != QDialog::Accepted) return {};
    klasör = kutu.selectedFiles().value(0);
    const bool aynı = Dosya::AynıDisk(Bayt(klasör), Bayt(yollar.GerçekDosya));
    return aynı && !Sor(Metin(YedekMetni::AynıDisk).arg(klasör)) ? QString() : klasör;
}

// A name that is free, of letters that every file system takes.
QString BoşAd(const QString& klasör, const QDateTime& değişme) {
    const QString kök =
        QDir(klasör).filePath(QStringLiteral("Varnek %1").arg(değişme.toString(QStringLiteral("yyyy-MM-dd HHmm"))));
    for (int sıra = 1;; ++sıra) {
        const QString ad = kök + (sıra == 1 ? QString() : QStringLiteral(" (%1)").arg(sıra)) + QStringLiteral(".ydk");
        if (!QFileInfo::exists(ad)) return ad;
    }
}

struct DışSonuç {
    bool Sıkıştırıldı = false;
    QString Neden;
    Dosya::DisKopyaSonucu Kopya = Dosya::DisKopyaSonucu::Durduruldu;
};

// Compacted into a folder of our own first: what goes to a slow stick is as small as can be, and whole.
DışSonuç DışarıYaz(const VeriYolları& yollar, const QString& hedef, ArkaDurum& durum) {
    DışSonuç sonuç;
    const QTemporaryDir klasör(yollar.YedekKlasörü + QStringLiteral("gecici-XXXXXX"));
    const QString ara = klasör.filePath(QStringLiteral("Varnek.ydk"));
    sonuç.Sıkıştırıldı = klasör.isValid() && VeriDosyasınıYedekle(yollar.GerçekDosya, ara, durum.DurYolu());
    if (!sonuç.Sıkıştırıldı) {
        sonuç.Neden = klasör.isValid() ? SürücüKurulumHataları().value(0) : klasör.errorString();
        return sonuç;
    }
    constexpr int parça = 1000;
    const std::int64_t bütünü = qMax<std::int64_t>(1, 2 * QFileInfo(ara).size());
    sonuç.Kopya = Dosya::DışarıKopyala(Bayt(ara), Bayt(hedef), [&](std::int64_t yapılan) {
        durum.Bildir(parça * yapılan / bütünü);
        return !durum.Durdu();
    });
    return sonuç;
}

}  // namespace

bool ŞimdiYedekle(const VeriYolları& yollar, QWidget* sahip) {
    const KopyaSonucu sonuç = ArkadaKopyala(İşYap(yollar, KopyaTürü::Elle), YedekMetni::Yedekleniyor, sahip);
    if (!SonucuGöster(sonuç)) return false;
    const bool aynı = sonuç.Ne == KopyaSonucu::Tür::Aynı;
    Bildir(Simge::Bilgi, Metin(aynı ? YedekMetni::ZatenSaklı : YedekMetni::YedekAlındı).arg(sonuç.Yol));
    return true;
}

void BaşkaKlasöreYedekle(const VeriYolları& yollar, QWidget* sahip) {
    const QString klasör = KlasörSor(yollar, sahip);
    if (klasör.isEmpty()) return;
    const QString hedef = BoşAd(klasör, QFileInfo(yollar.GerçekDosya).lastModified());
    constexpr int parça = 1000;
    DışSonuç sonuç;
    bool durdu = false;
    ArkadaYürüt(YedekMetni::DışarıYazılıyor, parça, sahip, [&](ArkaDurum& durum) {
        sonuç = DışarıYaz(yollar, hedef, durum);
        durdu = durum.Durdu();
    });
    if (!sonuç.Sıkıştırıldı) {
        if (!durdu) Bildir(Simge::Kritik, Metin(YedekMetni::YedekAlınamadı).arg(sonuç.Neden));
        return;
    }
    switch (sonuç.Kopya) {
        case Dosya::DisKopyaSonucu::Yazıldı:
            AyarYaz(BÖLÜM, KLASÖR_ANAHTARI, klasör);
            Bildir(Simge::Bilgi, Metin(YedekMetni::DışarıYazıldı).arg(hedef));
            break;
        case Dosya::DisKopyaSonucu::Tutmadı:
            Bildir(Simge::Kritik, Metin(YedekMetni::DışarıTutmadı).arg(hedef));
            break;
        case Dosya::DisKopyaSonucu::Var:
        case Dosya::DisKopyaSonucu::Yazılamadı:
            Bildir(Simge::Kritik, Metin(YedekMetni::DışarıYazılamadı).arg(hedef));
            break;
        case Dosya::DisKopyaSonucu::Durduruldu:
            break;
    }
}

void KapanıştaYedekle() {
    if (OdbcBağlantısı::Değişiklikler() == yedeklenenDeğişiklikler) return;
    const VeriYolları yollar = VeriYollarınıBul();
    const KopyaSonucu sonuç =
        ArkadaKopyala(İşYap(yollar, KopyaTürü::Günlük), YedekMetni::KapanıştaYedekleniyor, nullptr);
    if (sonuç.Ne == KopyaSonucu::Tür::YerYok)
        GündeBirUyar(YER_UYARISI_ANAHTARI, Metin(YedekMetni::YedekYeriYok).arg(sonuç.Neden));
    else if (sonuç.Ne != KopyaSonucu::Tür::Boş)
        SonucuGöster(sonuç);
}

bool YedekleriSun() {
    if (!Sor(Metin(YedekMetni::BaşlangıçtaSunum))) return false;
    YedeklerFormu form(YedeklerFormu::Açılış::YalnızGeriYükleme, nullptr);
    form.Yükle();
    form.exec();
    return form.GeriYüklendi();
}
