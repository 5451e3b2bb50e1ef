#include "YedektenDonus.h"

#include <QDate>
#include <QDateTime>
#include <QFile>
#include <QFileInfo>

#include "ApilerModulu.h"
#include "ErisimdenAlma.h"
#include "MesajKutusu.h"
#include "MetinTablosu.h"
#include "OdbcModulu.h"
#include "OrtakFonksiyonlarModulu.h"
#include "Saat.h"
#include "VeriDosyasiDenetimi.h"

namespace {

void Bildir(MesajKutusu::Simge simge, MetinNo metin, const QString& yol) {
    MesajKutusuOrtala();
    MesajKutusu::Göster(simge, MesajKutusu::Düğmeler::Tamam, Metin(metin) + QLatin1Char('\n') + yol);
}

// The texts that name what went wrong, with the data file missing or empty.
struct Metinler {
    MetinNo Kopyalanamadı;
    MetinNo ZararGörmüş;
};
constexpr Metinler EKSİKTE{MetinNo::YedekGeriYüklenemedi, MetinNo::YedekZararGörmüş};
constexpr Metinler BOŞTA{MetinNo::BoştaYedekGeriYüklenemedi, MetinNo::BoştaYedekZararGörmüş};

enum class Sağlamlık { Sağlam, Bozuk, YerYok };

QString SınamaDosyası(const VeriYolları& yollar) {
    return yollar.GerçekDosya + QStringLiteral(".sinama");
}

// Compacting reads every page. The compacted file is put beside the data file, where the backup is to go, and taken
// away again.
Sağlamlık HerSayfasınıOku(const VeriYolları& yollar) {
    const QString sınama = SınamaDosyası(yollar);
    const bool okundu = VeritabanınıSıkıştır(KısaYolAl(yollar.GerçekYedek), KısaYolAl(sınama));
    // The driver gives one code for every failure: where as much can be written, it was the reading.
    const bool yerVar = okundu || DosyaKopyala(yollar.Yedek, sınama);
    QFile::remove(sınama);
    return okundu ? Sağlamlık::Sağlam : yerVar ? Sağlamlık::Bozuk : Sağlamlık::YerYok;
}

bool YedekGeriYüklenebilir(const VeriYolları& yollar, const Metinler& metinler) {
    const DosyaDenetimi yedek = VeriDosyasınıDenetle(yollar.Yedek);
    if (yedek.Durum == DosyaDurumu::Okunamadı) {
        QStringList hatalar = yedek.Hatalar.isEmpty() ? QStringList{QString()} : yedek.Hatalar;
        if (!hatalar.last().isEmpty()) hatalar.last() += QLatin1Char('\n') + yollar.Yedek;  // the driver names no file
        HatalarıGöster(hatalar);
        return false;
    }
    const Sağlamlık sağlamlık = yedek.Durum == DosyaDurumu::Bozuk ? Sağlamlık::Bozuk : HerSayfasınıOku(yollar);
    if (sağlamlık == Sağlamlık::Bozuk) Bildir(MesajKutusu::Simge::Kritik, metinler.ZararGörmüş, yollar.Yedek);
    if (sağlamlık == Sağlamlık::YerYok) Bildir(MesajKutusu::Simge::Kritik, metinler.Kopyalanamadı, yollar.Dosya);
    return sağlamlık == Sağlamlık::Sağlam;
}

// With the backup's time of change: the day test goes by it.
bool YedeğiKopyala(const VeriYolları& yollar, const Metinler& metinler) {
    if (DosyaKopyala(yollar.Yedek, yollar.Dosya)) return true;
    Bildir(MesajKutusu::Simge::Kritik, metinler.Kopyalanamadı, yollar.Dosya);
    return false;
}

// "folder/stem-day.ending", with a number where that name is taken by something else than `aynı`.
QString BoşAd(const QString& kök, QDate gün, const QString& ek, const QString& aynı) {
    const QFileInfo asıl(aynı);
    for (int sıra = 1;; ++sıra) {
        const QString ad = kök + QLatin1Char('-') + gün.toString(Qt::ISODate) +
                           (sıra == 1 ? QString() : QLatin1Char('-') + QString::number(sıra)) + ek;
        const QFileInfo bilgi(ad);
        const bool kendisi = bilgi.size() == asıl.size() && bilgi.lastModified() == asıl.lastModified();
        if ((!bilgi.exists() && !bilgi.isSymLink()) || kendisi) return ad;
    }
}

// Where each file's content is kept when the other is preferred.
struct SaklamaAdları {
    QString BoşDosya;
    QString Yedek;
};

SaklamaAdları AdlarıBul(const VeriYolları& yollar) {
    const QString dosya = QFileInfo(yollar.GerçekDosya).path() + QStringLiteral("/Varnek-bos");
    return {BoşAd(dosya, Bugün(), QStringLiteral(".vtb"), yollar.GerçekDosya),
            BoşAd(yollar.YedekKlasörü + QStringLiteral("Varnek"), QFileInfo(yollar.Yedek).lastModified().date(),
                  QStringLiteral(".ydk"), yollar.Yedek)};
}

bool GeriYüklensinMi(const VeriYolları& yollar, const SaklamaAdları& adlar) {
    const QString gün = QFileInfo(yollar.Yedek).lastModified().date().toString(QStringLiteral("dd.MM.yyyy"));
    return Sor(Metin(MetinNo::YedekGeriYüklemeSorusu)
                   .arg(gün, yollar.Dosya, yollar.Yedek, QFileInfo(adlar.BoşDosya).fileName(),
                        QFileInfo(adlar.Yedek).fileName()));
}

bool Sakla(const QString& dosya, const QString& ad) {
    return DosyaVar(ad) || DosyayıSakla(dosya, ad);
}

BoşDosyaSonucu YedeğiYeğle(const VeriYolları& yollar, const SaklamaAdları& adlar) {
    if (!YedekGeriYüklenebilir(yollar, BOŞTA)) return BoşDosyaSonucu::Bitir;
    if (!Sakla(yollar.Dosya, adlar.BoşDosya)) {
        Bildir(MesajKutusu::Simge::Kritik, BOŞTA.Kopyalanamadı, adlar.BoşDosya);
        return BoşDosyaSonucu::Bitir;
    }
    return YedeğiKopyala(yollar, BOŞTA) ? BoşDosyaSonucu::Sorunsuz : BoşDosyaSonucu::Bitir;
}

}  // namespace

void YarımKalanlarıSil(const VeriYolları& yollar) {
    QFile::remove(SınamaDosyası(yollar));
    for (const QString& yol : {yollar.Dosya, yollar.Yedek, SınamaDosyası(yollar)}) YarımKopyayıSil(yol);
}

bool EksikDosyayıGeriYükle(const VeriYolları& yollar) {
    return YedekGeriYüklenebilir(yollar, EKSİKTE) && YedeğiKopyala(yollar, EKSİKTE);
}

BoşDosyaSonucu BoşDosyayıGözet(const VeriYolları& yollar, QString& neden) {
    if (!DosyaVar(yollar.Yedek)) return BoşDosyaSonucu::Sorunsuz;
    const DosyaDenetimi dosya = VeriDosyasınıDenetle(yollar.Dosya);
    if (dosya.Durum == DosyaDurumu::Dolu) return BoşDosyaSonucu::Sorunsuz;
    if (dosya.Durum != DosyaDurumu::Boş) {
        neden = dosya.Hatalar.value(0);  // perhaps gone by the connecting that follows: another client's lock
        return BoşDosyaSonucu::YedekKorunur;
    }
    if (ErişimYedeğiniAl(yollar) != ErişimSonu::Alındı) return BoşDosyaSonucu::YedekKorunur;
    const DosyaDenetimi yedek = VeriDosyasınıDenetle(yollar.Yedek);
    if (yedek.Durum == DosyaDurumu::Boş) return BoşDosyaSonucu::Sorunsuz;
    if (yedek.Durum != DosyaDurumu::Dolu) {
        // The driver's words for damage advise to restore the backup.
        neden = yedek.Durum == DosyaDurumu::Bozuk ? Metin(MetinNo::BoştaYedekBozuk)
                                                  : Metin(MetinNo::BoştaYedekOkunamıyor).arg(yedek.Hatalar.value(0));
        return BoşDosyaSonucu::YedekOkunamıyor;
    }
    const SaklamaAdları adlar = AdlarıBul(yollar);
    if (GeriYüklensinMi(yollar, adlar)) return YedeğiYeğle(yollar, adlar);
    if (!Sakla(yollar.Yedek, adlar.Yedek))
        Bildir(MesajKutusu::Simge::Ünlem, MetinNo::YedeğinEşiSaklanamadı, yollar.Yedek);
    return BoşDosyaSonucu::YedekKorunur;
}
