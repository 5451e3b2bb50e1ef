#include <QCoreApplication>
#include <csignal>

#include "ErisimKomutu.h"
#include "Komut.h"
#include "OdbcSurucu.h"
#include "SayiYereli.h"
#include "Uc.h"
#include "VeriDosyasi.h"

using namespace Qt::StringLiterals;

namespace {

constexpr const Komut* Komutlar[] = {&YeniKomutu,        &ÖrnekKomutu,      &BüyükKomutu,
                                     &DışarıAktarKomutu, &İçeriAktarKomutu, &MaliyetKomutu,
                                     &DenetleKomutu,     &OnarKomutu,       &ErişimdenAlKomutu};

QString Kullanım(const Komut& komut) {
    return u"varnek-veri %1 %2"_s.arg(komut.Ad, komut.Yazılış);
}

QString GenelKullanım() {
    QString metin = u"Varnek veri dosyası aracı\n\n"_s;
    for (const Komut* komut : Komutlar)
        metin += u"  %1\n      %2\n"_s.arg(Kullanım(*komut), QString::fromUtf16(komut->Özet));
    return metin + u"\nBir komutun ayrıntıları ve çıkış kodları: varnek-veri KOMUT --help"_s;
}

QString KomutYardımı(const Komut& komut) {
    return u"%1\n%2\n\n%3"_s.arg(Kullanım(komut), QString::fromUtf16(komut.Özet), QString::fromUtf16(komut.Yardım));
}

bool Yardımİstiyor(const QStringList& sözler) {
    return sözler.contains(u"--help"_s) || sözler.contains(u"-h"_s);
}

int KomutuYürüt(const Komut& komut, const QStringList& sözler) {
    if (Yardımİstiyor(sözler)) {
        ÇıktıSatırı(KomutYardımı(komut));
        return Tamam;
    }
    try {
        return komut.Yürüt(sözler);
    } catch (const KullanımHatası& hata) {
        if (!hata.Metin().isEmpty()) Bildir(hata.Metin());
        Bildir(u"Kullanım: %1\nAyrıntılar: varnek-veri %2 --help"_s.arg(Kullanım(komut), komut.Ad));
        return YanlışKullanım;
    }
}

int Yürüt(const QStringList& sözler) {
    for (const Komut* komut : Komutlar)
        if (sözler.value(0) == komut->Ad) return KomutuYürüt(*komut, sözler.mid(1));
    if (Yardımİstiyor(sözler)) {
        ÇıktıSatırı(GenelKullanım());
        return Tamam;
    }
    if (!sözler.isEmpty()) Bildir(u"Bilinmeyen komut: %1\n"_s.arg(sözler[0]));
    Bildir(GenelKullanım());
    return YanlışKullanım;
}

}  // namespace

int main(int argc, char** argv) {
    const QCoreApplication uygulama(argc, argv);
    SayıYereliniSabitle();
    for (int sinyal : {SIGINT, SIGTERM, SIGHUP}) std::signal(sinyal, [](int) { YarıdaKes(); });
    std::signal(SIGPIPE, SIG_IGN);  // a reader that is gone is a failure to write, after which things are put away
    SürücüKlasörünüAyarla(QCoreApplication::applicationDirPath());
    try {
        const int kod = Yürüt(QCoreApplication::arguments().mid(1));
        ÇıktıyıBitir();
        return kod;
    } catch (const VeriHatası& hata) {
        Bildir(hata.Metin());
        return Başarısız;
    }
}
