#include "ErisimdenAlma.h"

#include <QCoreApplication>
#include <QFile>

#include "AccessBasligi.h"
#include "AlmaSureci.h"
#include "ErisimKilidi.h"
#include "ErisimMetinleri.h"
#include "MesajKutusu.h"
#include "YanKopya.h"
#include "YuklemeGosterFormu.h"

namespace {

using Erişim::AlmaSonucu;

std::string Yol(const QString& yol) {
    return QFile::encodeName(yol).toStdString();
}

bool ErişimDosyası(const QString& yol) {
    return Erişim::AccessTürünüOku(Yol(yol)) != Erişim::AccessTürü::Değil;
}

void Bildir(MesajKutusu::Simge simge, const QString& metin) {
    MesajKutusuOrtala();
    MesajKutusu::Göster(simge, MesajKutusu::Düğmeler::Tamam, metin);
}

ErişimSonu Al(Erişim::Almaİsteği istek) {
    istek.Araç = Yol(QCoreApplication::applicationDirPath() + QStringLiteral("/varnek-veri"));
    const QString kaynak = QFile::decodeName(istek.Kaynak.c_str());
    AlmaSonucu sonuç;
    YüklemeGösterFormu::ÇalıştırVazgeçilebilir(
        Metin(ErişimMetni::Alınıyor),
        [&](const std::function<bool(int)>& ilerleme) { sonuç = Erişim::ErişimdenAl(istek, ilerleme); });
    const QString metin = QString::fromStdString(sonuç.Metin);
    switch (sonuç.Ne) {
        case AlmaSonucu::Tür::Alındı:
            if (!metin.isEmpty()) Bildir(MesajKutusu::Simge::Bilgi, Metin(ErişimMetni::Değiştirilenler).arg(metin));
            return ErişimSonu::Alındı;
        case AlmaSonucu::Tür::Vazgeçildi:
            Bildir(MesajKutusu::Simge::Bilgi, Metin(ErişimMetni::Vazgeçildi).arg(kaynak));
            return ErişimSonu::Vazgeçildi;
        case AlmaSonucu::Tür::Alınamadı:
            break;
    }
    Bildir(MesajKutusu::Simge::Kritik, Metin(ErişimMetni::Alınamadı).arg(metin, kaynak));
    return Erişim::AçıkGörünmeNedeni(istek.Kaynak).empty() ? ErişimSonu::Alınamadı : ErişimSonu::AçıkGörünüyor;
}

}  // namespace

ErişimSonu ErişimDosyasınıAl(const VeriYolları& yollar) {
    return DosyaErişimDosyası(yollar) ? Al({{}, Yol(yollar.Dosya), {}, {}}) : ErişimSonu::Alındı;
}

ErişimSonu ErişimYedeğiniGeriYükle(const VeriYolları& yollar) {
    return Al({{}, Yol(yollar.Yedek), Yol(yollar.GerçekDosya), {}, true});
}

ErişimSonu ErişimYedeğiniAl(const VeriYolları& yollar) {
    return YedekErişimDosyası(yollar) ? Al({{}, Yol(yollar.Yedek), {}, {}}) : ErişimSonu::Alındı;
}

bool DosyaErişimDosyası(const VeriYolları& yollar) {
    return ErişimDosyası(yollar.GerçekDosya);
}

bool YedekErişimDosyası(const VeriYolları& yollar) {
    return ErişimDosyası(yollar.GerçekYedek);
}

bool ErişimYedeğiniSakla(const VeriYolları& yollar) {
    return !YedekErişimDosyası(yollar) ||
           Dosya::YanaKopyala(Yol(yollar.GerçekYedek), Yol(yollar.GerçekDosya + QStringLiteral(".access")), {})
               .Ne.Tamam();
}
