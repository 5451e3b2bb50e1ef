#include <QCoreApplication>
#include <QDate>
#include <QStringList>
#include <csignal>
#include <cstdio>

#include "BuyukVeri.h"
#include "ErisimKomutu.h"
#include "OdbcSurucu.h"
#include "OrnekVeri.h"
#include "VeriDosyasi.h"

using namespace Qt::StringLiterals;

namespace {

enum ÇıkışKodu { Tamam = 0, Başarısız = 1, YanlışKullanım = 2 };

constexpr int EN_ÇOK_SATIR = 100'000'000;

void Yaz(std::FILE* nereye, const QString& metin) {
    std::fprintf(nereye, "%s\n", metin.toUtf8().constData());
}

int KullanımıGöster() {
    Yaz(stderr,
        u"Varnek veri dosyası aracı\n\n"
        u"  varnek-veri yeni DOSYA      boş bir veri dosyası oluşturur\n"
        u"  varnek-veri ornek DOSYA     örnek bir mobilya atölyesinin verileriyle oluşturur\n"
        u"  varnek-veri buyuk DOSYA N   ölçme için N kullanılan malzeme satırıyla oluşturur\n"
        u"  varnek-veri erisimden-al DOSYA\n"
        u"                              bir Access dosyasının verilerini alır (--help ile ayrıntısı)\n\n"
        u"Var olan bir dosyanın üzerine yazılmaz.\n"
        u"Çıkış kodu: 0 başarılı, 1 dosya oluşturulamadı, 2 yanlış kullanım"_s);
    return YanlışKullanım;
}

int Oluştur(const QString& dosya, const std::function<void(VeriYazıcısı&)>& doldur) {
    for (int sinyal : {SIGINT, SIGTERM, SIGHUP}) std::signal(sinyal, [](int) { YarıdaKes(); });
    try {
        SürücüKlasörünüAyarla(QCoreApplication::applicationDirPath());
        VeriDosyasıYap(dosya, doldur);
    } catch (const VeriHatası& hata) {
        Yaz(stderr, hata.Metin());
        return Başarısız;
    }
    Yaz(stdout, u"%1 oluşturuldu."_s.arg(dosya));
    return Tamam;
}

}  // namespace

int main(int argc, char** argv) {
    const QCoreApplication uygulama(argc, argv);
    const QStringList sözler = QCoreApplication::arguments().mid(1);
    const QDate bugün = QDate::currentDate();
    const QString komut = sözler.value(0);
    if (sözler.size() == 2 && komut == u"yeni") {
        return Oluştur(sözler[1], [](VeriYazıcısı&) {});
    }
    if (sözler.size() == 2 && komut == u"ornek") {
        return Oluştur(sözler[1], [&](VeriYazıcısı& yazıcı) { ÖrnekVeriYaz(yazıcı, bugün); });
    }
    if (sözler.size() == 3 && komut == u"buyuk") {
        bool sayı = false;
        const int satır = sözler[2].toInt(&sayı);
        if (sayı && satır > 0 && satır <= EN_ÇOK_SATIR) {
            return Oluştur(sözler[1], [&](VeriYazıcısı& yazıcı) { BüyükVeriYaz(yazıcı, satır, bugün); });
        }
    }
    if (komut == u"erisimden-al") return ErişimKomutu(sözler.mid(1));
    return KullanımıGöster();
}
