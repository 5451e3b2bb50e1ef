#include "GeriYukleme.h"

#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <optional>
#include <utility>

#include "ArkaIs.h"
#include "DosyaKimligi.h"
#include "GetirmeMetinleri.h"
#include "KopyaYazma.h"
#include "MesajKutusu.h"
#include "OdbcModulu.h"
#include "OdbcYedek.h"
#include "YedekFarki.h"
#include "YedekMetinleri.h"

using MesajKutusu::Düğmeler;
using MesajKutusu::Simge;

namespace {

void Bildir(Simge simge, const QString& metin) {
    MesajKutusuOrtala();
    MesajKutusu::Göster(simge, Düğmeler::Tamam, metin);
}

// What the question tells.
struct Hazırlık {
    YedekBilgisi Yedek;
    std::optional<VeriSayıları> Şimdiki;  // nothing: the present file cannot be read
    YedekFarkı Fark;
};

Hazırlık Hazırlan(AçılmışYedek& yedek, const VeriYolları& yollar, bool bağlı, const QString& dur) {
    Hazırlık hazırlık;
    hazırlık.Yedek = yedek.Denetle(dur);
    if (hazırlık.Yedek.Durum != YedekDurumu::Sağlam || !bağlı) return hazırlık;
    OdbcBağlantısı şimdiki;
    OdbcBağlantısı yedekteki;
    VeriSayıları sayılar;
    if (şimdiki.Aç(BağlantıMetni(yollar.Dosya)).Başarılı() && yedekteki.Aç(BağlantıMetni(yedek.Yol())).Başarılı() &&
        VeriSayılarınıOku(şimdiki, sayılar).Başarılı() &&
        YedekteOlmayanlarıSay(şimdiki, yedekteki, hazırlık.Fark).Başarılı())
        hazırlık.Şimdiki = sayılar;
    return hazırlık;
}

bool Onaylanır(const YedekSatırı& satır, const Hazırlık& hazırlık) {
    const VeriSayıları& yedekteki = hazırlık.Yedek.Sayılar;
    const bool bilinen = hazırlık.Şimdiki.has_value();
    QString soru = Metin(bilinen ? YedekMetni::GeriYüklemeSorusu : YedekMetni::GeriYüklemeSorusuBilinmeyen);
    const QLocale yazım(QLocale::Turkish);
    const auto ekle = [&](std::int64_t sayı) { soru = soru.arg(yazım.toString(static_cast<qlonglong>(sayı))); };
    soru = soru.arg(GünMetni(satır));
    for (const std::int64_t sayı : {yedekteki.Ürün, yedekteki.Malzeme, yedekteki.Satır}) ekle(sayı);
    if (bilinen) {
        for (const std::int64_t sayı : {hazırlık.Şimdiki->Ürün, hazırlık.Şimdiki->Malzeme, hazırlık.Şimdiki->Satır,
                                        hazırlık.Fark.Ürün, hazırlık.Fark.Malzeme})
            ekle(sayı);
    }
    MesajKutusuOrtala();
    return MesajKutusu::Göster(Simge::Soru, Düğmeler::EvetHayır, soru, {}, MesajKutusu::Yanıt::Hayır) ==
           MesajKutusu::Yanıt::Evet;
}

struct Dönüş {
    enum class Tür {
        Tamam,
        Doğrulanamadı,  // done, but the disk may not keep it
        Saklanamadı,
        Olmadı,
        Durduruldu
    } Ne = Tür::Tamam;
    QString Saklanan;  // where the former data are; "": there were none
    QString Neden;
};

// A sound file as a copy, a damaged one as it stands. One that the program could not connect to is not opened again.
Dönüş Sakla(const VeriYolları& yollar, bool bağlı, const QString& dur) {
    if (!QFileInfo::exists(yollar.GerçekDosya)) return {};
    KopyaSonucu kopya;
    if (bağlı)
        kopya = KopyaYaz({yollar.YedekKlasörü,
                          yollar.GerçekDosya,
                          QFileInfo(yollar.GerçekDosya).lastModified(),
                          KopyaTürü::Önce,
                          {},
                          dur});
    if (kopya.Ne == KopyaSonucu::Tür::Yazıldı) return {Dönüş::Tür::Tamam, kopya.Yol, {}};
    if (kopya.Ne == KopyaSonucu::Tür::Durduruldu) return {Dönüş::Tür::Durduruldu, {}, {}};
    if (kopya.Ne == KopyaSonucu::Tür::YerYok)
        return {Dönüş::Tür::Saklanamadı, {}, Metin(GetirmeMetni::YerYok).arg(kopya.Neden)};
    const QString ham = HamınıSakla(yollar.YedekKlasörü, yollar.GerçekDosya);
    return {ham.isEmpty() ? Dönüş::Tür::Saklanamadı : Dönüş::Tür::Tamam, ham, kopya.Neden};
}

Dönüş YerineKoy(const VeriYolları& yollar, const AçılmışYedek& yedek, bool bağlı, const QString& dur) {
    Dönüş dönüş = Sakla(yollar, bağlı, dur);
    if (dönüş.Ne != Dönüş::Tür::Tamam) return dönüş;
    const auto dosyalar = [yol = QFile::encodeName(yollar.GerçekDosya).toStdString()] {
        return std::pair(Dosya::KimliğiAl(yol), Dosya::KimliğiAl(yol + "-journal"));
    };
    const auto önce = dosyalar();
    const bool geriYüklendi = VeriDosyasınıGeriYükle(yedek.Yol(), yollar.GerçekDosya);
    if (!geriYüklendi) dönüş.Neden = SürücüKurulumHataları().value(0);
    const auto sonra = dosyalar();
    if (!geriYüklendi) dönüş.Ne = önce.first == sonra.first ? Dönüş::Tür::Olmadı : Dönüş::Tür::Doğrulanamadı;
    // What was kept goes only if the file and its journal surely are the ones that were there.
    if (geriYüklendi || önce == sonra) ÖncekiKopyayıBağla(dönüş.Saklanan, geriYüklendi);
    return dönüş;
}

bool SonucuGöster(const Dönüş& dönüş) {
    switch (dönüş.Ne) {
        case Dönüş::Tür::Tamam:
            Bildir(Simge::Bilgi, dönüş.Saklanan.isEmpty() ? Metin(YedekMetni::GeriYüklendiSaklanansız)
                                                          : Metin(YedekMetni::GeriYüklendi).arg(dönüş.Saklanan));
            return true;
        case Dönüş::Tür::Doğrulanamadı:
            Bildir(Simge::Ünlem, Metin(YedekMetni::GeriYüklendiDoğrulanamadı).arg(dönüş.Neden, dönüş.Saklanan));
            return true;
        case Dönüş::Tür::Saklanamadı:
            Bildir(Simge::Kritik, Metin(YedekMetni::Saklanamadı).arg(dönüş.Neden));
            return false;
        case Dönüş::Tür::Olmadı:
            Bildir(Simge::Kritik, Metin(YedekMetni::GeriYüklenemedi).arg(dönüş.Neden));
            return false;
        case Dönüş::Tür::Durduruldu:
            break;
    }
    return false;
}

}  // namespace

void ErişimdenDeğişenleriBildir(const AçılmışYedek& yedek, const VeriYolları& yollar) {
    const QString değişenler = yedek.Değişenler();
    if (değişenler.isEmpty()) return;
    const QString liste = yedek.DeğişenleriSakla(yollar.GerçekDosya);
    Bildir(Simge::Bilgi, liste.isEmpty() ? Metin(YedekMetni::ErişimdenDeğişenlerListesiz).arg(değişenler)
                                         : Metin(YedekMetni::ErişimdenDeğişenler).arg(değişenler, liste));
}

bool YedeğiGeriYükle(const VeriYolları& yollar, const YedekSatırı& satır, bool bağlı, QWidget* sahip) {
    std::optional<AçılmışYedek> yedek;
    Hazırlık hazırlık;
    ArkadaYürüt(YedekMetni::Hazırlanıyor, 0, sahip, [&](ArkaDurum& durum) {
        yedek.emplace(satır.Yol, yollar.YedekKlasörü);
        hazırlık = Hazırlan(*yedek, yollar, bağlı, durum.DurYolu());
    });
    if (hazırlık.Yedek.Durum == YedekDurumu::Durduruldu) return false;
    if (hazırlık.Yedek.Durum != YedekDurumu::Sağlam) {
        YedekSatırı okunan = satır;
        okunan.Aşama = YedekSatırı::Denetim::Bitti;
        okunan.Bilgi = hazırlık.Yedek;
        Bildir(Simge::Kritik, Metin(YedekMetni::YedekKullanılamaz).arg(DenetimMetni(okunan), okunan.Bilgi.Neden));
        return false;
    }
    if (!Onaylanır(satır, hazırlık)) return false;
    if (bağlı) ODBCBağlantısınıKapat();
    Dönüş dönüş;
    ArkadaYürüt(YedekMetni::GeriYükleniyor, 0, sahip,
                [&](ArkaDurum& durum) { dönüş = YerineKoy(yollar, *yedek, bağlı, durum.DurYolu()); });
    const bool bağlandı = !bağlı || ODBCBağlan();
    const bool geriYüklendi = SonucuGöster(dönüş);
    if (geriYüklendi) ErişimdenDeğişenleriBildir(*yedek, yollar);
    if (!bağlandı) Bildir(Simge::Kritik, Metin(YedekMetni::BağlantıKurulamadı));
    return geriYüklendi;
}
