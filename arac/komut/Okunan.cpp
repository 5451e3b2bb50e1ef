#include "Okunan.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "DegisiklikOzeti.h"
#include "OdbcSurucu.h"
#include "Uc.h"
#include "VeriDosyasi.h"

using namespace Qt::StringLiterals;

OkunanDosya::OkunanDosya(const QString& dosya) : m_klasör(QDir::tempPath() + u"/varnek-veri-XXXXXX"_s) {
    if (!m_klasör.isValid()) throw VeriHatası(u"Geçici klasöre yazılamıyor: "_s + QDir::tempPath());
    const QString kopya = m_klasör.filePath(u"Okunan.vtb"_s);
    {
        const İlerlemeSatırı ilerleme(u"Veri dosyası denetlenip kopyalanıyor"_s);
        const QString durYolu = m_klasör.filePath(u"dur"_s);
        const DurmaDosyası dur(durYolu);
        if (!VeritabanınıSıkıştır(SürücüYolu(QFileInfo(dosya).absoluteFilePath()), SürücüYolu(kopya), durYolu)) {
            YarıdaKesildiMi();
            throw VeriHatası(u"%1 okunamadı: %2"_s.arg(dosya, SürücüKurulumHataları().value(0)));
        }
    }
    YarıdaKesildiMi();
    const std::string değişenler =
        Erişim::ListeninÖzeti(QFile::encodeName(kopya).toStdString() + std::string(Erişim::LİSTE_EKİ));
    if (!değişenler.empty()) Bildir(u"Access dosyası: "_s + QString::fromStdString(değişenler));
    Denetle(m_bağlantı.Aç(BağlantıMetni(kopya)));
}

void Denetle(const OdbcSonucu& sonuç) {
    if (!sonuç.Başarılı()) throw VeriHatası(u"Veri dosyası okunamadı: "_s + OdbcİletileriniAl(sonuç.Hatalar).value(0));
}

void Denetle(const İşSonucu& sonuç) {
    if (sonuç.Son == İşSonu::Vazgeçildi) throw VeriHatası(u"İşlem yarıda kesildi."_s);
    if (!sonuç.Tamam()) Denetle(sonuç.Odbc);
}
