// Saves what can be read of a damaged data file.
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include "Komut.h"
#include "OdbcSurucu.h"
#include "Uc.h"
#include "VeriDosyasi.h"

using namespace Qt::StringLiterals;

namespace {

int Onar(const QStringList& sözler) {
    const QString kaynak = QFileInfo(Sözler(sözler, 2)[0]).absoluteFilePath();
    const QFileInfo hedef(sözler[1]);
    if (hedef.exists() || hedef.isSymLink())
        throw VeriHatası(u"%1 zaten var; var olan bir dosyanın üzerine yazılmaz."_s.arg(hedef.absoluteFilePath()));
    const QTemporaryDir klasör(QDir::tempPath() + u"/varnek-veri-XXXXXX"_s);
    if (!klasör.isValid()) throw VeriHatası(u"Geçici klasöre yazılamıyor: "_s + QDir::tempPath());
    QFile rapor(klasör.filePath(u"rapor.txt"_s));
    {
        const İlerlemeSatırı ilerleme(u"Veri dosyası kurtarılıyor"_s);
        if (!VeriDosyasınıOnar(kaynak, hedef.absoluteFilePath(), rapor.fileName()))
            throw VeriHatası(u"Kurtarılamadı: "_s + SürücüKurulumHataları().value(0));
    }
    if (!rapor.open(QIODevice::ReadOnly)) throw VeriHatası(u"Raporu okunamadı: "_s + rapor.errorString());
    const QByteArray kayıplar = rapor.readAll();
    ÇıktıYaz({kayıplar.constData(), static_cast<std::size_t>(kayıplar.size())});
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
    u"Bozuk sayfaların önündeki ve arkasındaki satırlar alınır; alınamayanlar birer satırda bildirilir. DOSYA\n"
    u"değişmez: günlüğüyle birlikte bir kopyası üzerinde çalışılır. Var olan bir dosyanın üzerine yazılmaz.\n\n"
    u"Çıkış kodu: 0 her şey okundu, 1 hiçbir şey kurtarılamadı, 2 yanlış kullanım, 3 kayıplarla kurtarıldı",
    Onar};
