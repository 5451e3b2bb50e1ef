#include "Adresler.h"

#include <QDesktopServices>
#include <utility>

#include "SurumKaydi.h"

namespace {

std::function<void(const QUrl&)> Açıcı;

}  // namespace

void AdresAç(const QUrl& adres) {
    if (Açıcı) {
        Açıcı(adres);
    } else {
        QDesktopServices::openUrl(adres);
    }
}

void AdresAçıcıyıAyarla(std::function<void(const QUrl&)> açıcı) {
    Açıcı = std::move(açıcı);
}

QString SiteAdresi() {
    return QStringLiteral("https://www.tovrek.example");
}

QString MesajSayfasıAdresi() {
    return SiteAdresi() + QStringLiteral("/asp/mesaj/mesaj.asp?ProgramAdi=") +
           QString::fromLatin1(QUrl::toPercentEncoding(Sürüm().ÜrünAdı));
}

QString PostaAdresi() {
    return QStringLiteral("mailto:destek@tovrek.example");
}
