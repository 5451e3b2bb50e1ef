#include "ErisimdenAlma.h"

#include <QCoreApplication>
#include <QFile>

#include "AccessBasligi.h"
#include "AlmaSureci.h"
#include "ErisimMetinleri.h"
#include "MesajKutusu.h"
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

bool Al(const QString& kaynak, const QString& hedef) {
    const std::string araç = Yol(QCoreApplication::applicationDirPath() + QStringLiteral("/varnek-veri"));
    const Erişim::Almaİsteği istek{araç, Yol(kaynak), Yol(hedef), {}};
    AlmaSonucu sonuç;
    YüklemeGösterFormu::ÇalıştırVazgeçilebilir(
        Metin(ErişimMetni::Alınıyor),
        [&](const std::function<bool(int)>& ilerleme) { sonuç = Erişim::ErişimdenAl(istek, ilerleme); });
    const QString metin = QString::fromStdString(sonuç.Metin);
    switch (sonuç.Ne) {
        case AlmaSonucu::Tür::Alındı:
            if (!metin.isEmpty()) Bildir(MesajKutusu::Simge::Bilgi, Metin(ErişimMetni::Değiştirilenler).arg(metin));
            return true;
        case AlmaSonucu::Tür::Vazgeçildi:
            Bildir(MesajKutusu::Simge::Bilgi, Metin(ErişimMetni::Vazgeçildi).arg(kaynak));
            return false;
        case AlmaSonucu::Tür::Alınamadı:
            break;
    }
    Bildir(MesajKutusu::Simge::Kritik, Metin(ErişimMetni::Alınamadı).arg(metin, kaynak));
    return false;
}

}  // namespace

bool ErişimDosyasınıAl(const VeriYolları& yollar) {
    return !ErişimDosyası(yollar.GerçekDosya) || Al(yollar.Dosya, {});
}

bool YedekErişimDosyası(const VeriYolları& yollar) {
    return ErişimDosyası(yollar.GerçekYedek);
}

bool ErişimDosyasıVar(const VeriYolları& yollar) {
    return ErişimDosyası(yollar.GerçekDosya) || YedekErişimDosyası(yollar);
}

bool ErişimYedeğiniGeriYükle(const VeriYolları& yollar) {
    return Al(yollar.Yedek, yollar.GerçekDosya);
}
