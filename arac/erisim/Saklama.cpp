#include "Saklama.h"

#include <QFile>
#include <QFileInfo>
#include <cerrno>
#include <system_error>

#include "YanKopya.h"
#include "VeriDosyasi.h"

using namespace Qt::StringLiterals;

namespace Erişim {

namespace {

std::string Yol(const QString& yol) {
    return QFile::encodeName(yol).toStdString();
}

[[noreturn]] void Yazılamadı(const QString& yol, int neden) {
    const QString ad = QFileInfo(yol).fileName();
    if (neden == ENOSPC || neden == EDQUOT || neden == EFBIG)
        throw VeriHatası(u"Diskte yer kalmadığı için %1 yazılamadı. Dosya değişmedi."_s.arg(ad));
    throw VeriHatası(u"%1 yazılamadı; klasörün yazma iznini ve diski denetleyin. Dosya değişmedi."_s.arg(ad));
}

// "Varnek.vtb.access.txt", "Varnek.vtb.access-2.txt", ...
QString Numaralı(const QString& kök, const QString& ek, int sıra) {
    return kök + (sıra == 1 ? QString() : u'-' + QString::number(sıra)) + ek;
}

bool Var(const QString& yol) {
    return Dosya::YolVar(Yol(yol));
}

}  // namespace

Saklanan ÖzgünüSakla(const QString& yol, const QString& yanına) {
    const Dosya::YanKopya kopya = Dosya::YanaKopyala(Yol(yol), Yol(yanına + u".access"_s), {}, YarıdaKesildiMi);
    const QString ad = QFile::decodeName(kopya.Yol.c_str());
    if (!kopya.Ne.Tamam()) Yazılamadı(ad, kopya.Ne.Neden);
    return {ad, kopya.Yeni};
}

QString ListeAdı(const QString& yol) {
    const QString kök = yol.endsWith(u".txt"_s) ? yol.chopped(4) : yol;
    int sıra = 1;
    while (Var(Numaralı(kök, u".txt"_s, sıra))) ++sıra;
    return Numaralı(kök, u".txt"_s, sıra);
}

void MetniYaz(const QString& yol, const std::string& metin, const std::string& örnek) {
    Dosya::GeçiciDosya dosya(Yol(yol));
    const Dosya::Sonuç açılış = dosya.Aç();
    if (!açılış.Tamam()) Yazılamadı(yol, açılış.Neden);
    QFile yazılan(QFile::decodeName(dosya.Yol().c_str()));
    const auto boy = static_cast<qint64>(metin.size());
    if (!yazılan.open(QIODevice::WriteOnly | QIODevice::ExistingOnly) || yazılan.write(metin.data(), boy) != boy ||
        !yazılan.flush())
        Yazılamadı(yol, errno);
    yazılan.close();
    dosya.İzinleriAl(örnek);
    const Dosya::Sonuç sonuç = dosya.Yerleştir(Dosya::Yerleştirme::Değiştir);
    if (!sonuç.Tamam()) Yazılamadı(yol, sonuç.Neden);
}

void YerineKoy(const std::string& yeni, const std::string& hedef, bool değiştir) {
    const QString ad = QFile::decodeName(hedef.c_str());
    if (Dosya::GünlükVar(hedef) && !Dosya::GünlükleriSil(hedef)) Yazılamadı(ad, errno);
    const Dosya::Sonuç sonuç =
        Dosya::Taşı(yeni, hedef, değiştir ? Dosya::Yerleştirme::Değiştir : Dosya::Yerleştirme::Yeni);
    if (!sonuç.Yapıldı()) Yazılamadı(ad, sonuç.Neden);
}

QString GerçekYoluBul(const QString& yol) {
    std::error_code hata;
    const std::string gerçek = Dosya::GerçekYol(Yol(yol), hata);
    if (hata) throw VeriHatası(u"Klasör bulunamadı: "_s + QFileInfo(yol).absolutePath());
    return QFile::decodeName(gerçek.c_str());
}

}  // namespace Erişim
