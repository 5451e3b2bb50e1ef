// Saves what can be read of a damaged data file.
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include "Komut.h"
#include "OdbcSurucu.h"
#include "Tablolar.h"
#include "Uc.h"
#include "VeriDosyasi.h"

using namespace Qt::StringLiterals;

namespace {

// Every table that the program has, in a file of its own: the driver knows none.
void BildirimleriYaz(const QString& dosya) {
    QStringList bildirimler;
    for (const QStringList& takım : Deyimler::TabloTakımları()) bildirimler += takım;
    VeriDosyasınıDoldur(dosya, bildirimler, [](VeriYazıcısı&) {});
}

// The new file gets its name after what is lost has been said.
int Onar(const QStringList& sözler) {
    const QString kaynak = QFileInfo(Sözler(sözler, 2)[0]).absoluteFilePath();
    const QFileInfo bilgi(sözler[1]);
    const QString hedef = bilgi.absoluteFilePath();
    if (bilgi.exists() || bilgi.isSymLink())
        throw VeriHatası(u"%1 zaten var; var olan bir dosyanın üzerine yazılmaz."_s.arg(hedef));
    const QTemporaryDir klasör(QDir::tempPath() + u"/varnek-veri-XXXXXX"_s);
    if (!klasör.isValid()) throw VeriHatası(u"Geçici klasöre yazılamıyor: "_s + QDir::tempPath());
    const QTemporaryDir yeri(hedef + u".yapiliyor-XXXXXX"_s);
    if (!yeri.isValid())
        throw VeriHatası(u"%1 klasörüne yazılamıyor; yazma iznini ve diski denetleyin."_s.arg(bilgi.absolutePath()));
    const QString yeni = yeri.filePath(u"Yeni.vtb"_s);
    QFile rapor(klasör.filePath(u"rapor.txt"_s));
    {
        const İlerlemeSatırı ilerleme(u"Veri dosyası kurtarılıyor"_s);
        const QString bildirimler = klasör.filePath(u"Bildirimler.vtb"_s);
        BildirimleriYaz(bildirimler);
        const DurmaDosyası dur(klasör.filePath(u"dur"_s));
        if (!VeriDosyasınıOnar(kaynak, yeni, rapor.fileName(), bildirimler, klasör.filePath(u"dur"_s))) {
            YarıdaKesildiMi();
            throw VeriHatası(u"Kurtarılamadı: "_s + SürücüKurulumHataları().value(0));
        }
    }
    if (!rapor.open(QIODevice::ReadOnly)) throw VeriHatası(u"Raporu okunamadı: "_s + rapor.errorString());
    const QByteArray kayıplar = rapor.readAll();
    ÇıktıYaz({kayıplar.constData(), static_cast<std::size_t>(kayıplar.size())});
    ÇıktıyıBitir();
    VeriDosyasınıYerleştir(yeni, hedef);
    if (kayıplar.isEmpty()) {
        Bildir(u"%1 oluşturuldu; her şey okunabildi."_s.arg(sözler[1]));
        return Tamam;
    }
    Bildir(u"%1 oluşturuldu; okunamayanlar yukarıda."_s.arg(sözler[1]));
    return BulguVar;
}

}  // namespace

const Komut OnarKomutu{
    u"onar", u"DOSYA YENI", u"bozuk bir dosyadan okunabilenleri yeni bir dosyaya kurtarır",
    u"Bozuk sayfaların önündeki ve arkasındaki satırlar alınır; alınamayanlar, dizinlerin bildiği adlarıyla birer\n"
    u"satırda bildirilir. Bütünlük denetiminden geçmeyen tablolar da anılır: orada bunlardan başka kayıp olabilir.\n"
    u"DOSYA değişmez: günlüğüyle birlikte bir kopyası üzerinde çalışılır. Var olan bir dosyanın üzerine yazılmaz.\n\n"
    u"Çıkış kodu: 0 dosya sağlam, her şey okundu; 1 hiçbir şey kurtarılamadı, yarıda kesildi ya da yazılamadı\n"
    u"(geride bir şey kalmaz); 2 yanlış kullanım; 3 bozuk dosyadan kurtarıldı, okunamayanlar bildirildi",
    Onar};
