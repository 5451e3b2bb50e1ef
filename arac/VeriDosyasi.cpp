#include "VeriDosyasi.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "GeciciDosya.h"
#include "OdbcHareketi.h"
#include "OdbcSurucu.h"
#include "Tablolar.h"

using namespace Qt::StringLiterals;

namespace {

volatile std::sig_atomic_t yarıdaKesildi = 0;
std::atomic<const char*> durmaDosyası = nullptr;

QString Neden(const QList<OdbcHatası>& hatalar) {
    return OdbcİletileriniAl(hatalar).value(0);
}

}  // namespace

void VeriDosyasınıDoldur(const QString& dosya, const std::function<void(VeriYazıcısı&)>& doldur) {
    VeriDosyasınıDoldur(dosya, Deyimler::TabloTakımları().constFirst(), doldur);
}

void VeriDosyasınıDoldur(const QString& dosya, const QStringList& tablolar,
                         const std::function<void(VeriYazıcısı&)>& doldur) {
    if (!BoşVeriDosyasıOluştur(dosya))
        throw VeriHatası(u"Veri dosyası oluşturulamadı: "_s + SürücüKurulumHataları().value(0));
    OdbcBağlantısı bağlantı;
    const OdbcSonucu açılış = bağlantı.Aç(BağlantıMetni(dosya));
    if (!bağlantı.Tanıtıcı()) throw VeriHatası(u"ODBC sürücülerine erişilemiyor."_s);
    if (!açılış.Başarılı()) throw VeriHatası(u"Veri dosyası açılamadı: "_s + Neden(açılış.Hatalar));
    VeriYazıcısı yazıcı(bağlantı);
    for (const QString& bildirim : tablolar)
        if (!Deyimler::HızDizini(bildirim)) yazıcı.Çalıştır(bildirim);
    OdbcHareketi hareket(bağlantı);
    const OdbcSonucu başlangıç = hareket.Başla();
    if (!başlangıç.Başarılı()) throw VeriHatası(u"Toplu yazma açılamadı: "_s + Neden(başlangıç.Hatalar));
    doldur(yazıcı);
    const OdbcSonucu onay = hareket.Onayla();
    if (!onay.Başarılı()) throw VeriHatası(u"Yazılanlar onaylanamadı: "_s + Neden(onay.Hatalar));
    for (const QString& bildirim : tablolar) {
        YarıdaKesildiMi();
        if (Deyimler::HızDizini(bildirim)) yazıcı.Çalıştır(bildirim);
    }
}

VeriYazıcısı::VeriYazıcısı(OdbcBağlantısı& bağlantı) : m_bağlantı(bağlantı) {
    if (m_deyim.Aç(bağlantı) != 0) throw VeriHatası(u"Veri dosyası açılamadı: "_s + Neden(bağlantı.HatalarınıAl()));
}

void VeriYazıcısı::Çalıştır(const QString& deyim) {
    const QString neden = Dene(deyim);
    if (!neden.isEmpty()) throw VeriHatası(u"Deyim çalıştırılamadı: %1\n%2"_s.arg(neden, deyim));
}

QString VeriYazıcısı::Dene(const QString& deyim) {
    if (m_deyim.Çalıştır(deyim) == 0) return {};
    const QString neden = Neden(m_deyim.HatalarınıAl());
    return neden.isEmpty() ? u"nedeni bilinmiyor"_s : neden;
}

QList<OdbcSütunu> VeriYazıcısı::Sütunlar(const QString& tablo) {
    QList<OdbcSütunu> sütunlar;
    const OdbcSonucu sonuç = m_bağlantı.Sütunlar(tablo, sütunlar);
    if (!sonuç.Başarılı()) throw VeriHatası(u"%1 okunamadı: %2"_s.arg(tablo, Neden(sonuç.Hatalar)));
    return sütunlar;
}

void YarıdaKes() noexcept {
    yarıdaKesildi = 1;
    const char* yol = durmaDosyası;
    if (!yol) return;
    const int hata = errno;
    if (const int dosya = open(yol, O_CREAT | O_WRONLY | O_CLOEXEC, S_IRUSR | S_IWUSR); dosya >= 0) close(dosya);
    errno = hata;
}

DurmaDosyası::DurmaDosyası(const QString& yol) : m_yol(QFile::encodeName(yol)) {
    durmaDosyası = m_yol.constData();
    if (!yarıdaKesildi) return;
    durmaDosyası = nullptr;
    YarıdaKesildiMi();
}

DurmaDosyası::~DurmaDosyası() {
    durmaDosyası = nullptr;
}

void YarıdaKesildiMi() {
    if (yarıdaKesildi) throw VeriHatası(u"İşlem yarıda kesildi."_s);
}

void VeriDosyasıYap(const QString& hedef, const std::function<void(VeriYazıcısı&)>& doldur) {
    VeriDosyasıYap(hedef, Deyimler::TabloTakımları().constFirst(), doldur);
}

void VeriDosyasıYap(const QString& hedef, const QStringList& tablolar,
                    const std::function<void(VeriYazıcısı&)>& doldur) {
    const QFileInfo bilgi(hedef);
    const QString yol = bilgi.absoluteFilePath();
    if (bilgi.exists() || bilgi.isSymLink()) {
        throw VeriHatası(u"%1 zaten var; var olan bir dosyanın üzerine yazılmaz."_s.arg(yol));
    }
    const QTemporaryDir klasör(yol + u".yapiliyor-XXXXXX"_s);
    if (!klasör.isValid()) {
        throw VeriHatası(u"%1 klasörüne yazılamıyor; yazma iznini ve diski denetleyin."_s.arg(bilgi.absolutePath()));
    }
    const QString geçici = klasör.filePath(u"Yeni.vtb"_s);
    VeriDosyasınıDoldur(geçici, tablolar, doldur);
    VeriDosyasınıYerleştir(geçici, yol);
}

void VeriDosyasınıYerleştir(const QString& geçici, const QString& hedef) {
    YarıdaKesildiMi();
    const std::string yol = QFile::encodeName(hedef).toStdString();
    if (Dosya::GünlükVar(yol))
        throw VeriHatası(u"%1 adında eski bir günlük var; onu kaldırın ya da dosyaya başka bir ad verin."_s.arg(hedef));
    const Dosya::Sonuç taşıma = Dosya::Taşı(QFile::encodeName(geçici).toStdString(), yol, Dosya::Yerleştirme::Yeni);
    if (!taşıma.Yapıldı())
        throw VeriHatası(
            u"%1 adı verilemedi (sistem hatası %2); klasörü ve diski denetleyin."_s.arg(hedef).arg(taşıma.Neden));
}
