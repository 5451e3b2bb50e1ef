#include "VarnekTesti.h"

#include <QApplication>
#include <QDir>
#include <QSettings>

#include "DegiskenModulu.h"
#include "Deyimler.h"
#include "OdbcModulu.h"
#include "Saat.h"
#include "SurumKaydi.h"

namespace {

void PaylaşılanlarıKur(const QString& programKlasörü) {
    UygulamaBaşlığı = Sürüm().Başlık();
    UygulamaYolu = programKlasörü;
    AyarUygulamaAdı = QStringLiteral("Tovrek\\") + Sürüm().ÜrünAdı;
    EtkinEtiketRengi = 0x00C00000;
    OndalıkBasamak = 2;
    YazıcıVar = false;
    NTTabanlı = false;
    SeçiliÜrünSırası = -1;
    HareketTarihi = QDate();
    HareketTarihiSQL.clear();
    SQLMetni.clear();
    SonDönüşKodu = 0;
    YüklenenKayıt = 0;
}

}  // namespace

VarnekTesti::VarnekTesti() : m_klasör(QStringLiteral(VARNEK_BIN "/test-XXXXXX")) {
    const QDir klasör(m_klasör.path());
    for (const char* ad : {"program", "kullanici", "ayarlar"}) klasör.mkdir(QLatin1String(ad));
    qputenv("XDG_DATA_HOME", QFile::encodeName(klasör.filePath(QStringLiteral("kullanici"))));
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(klasör.filePath(QStringLiteral("ayarlar"))));
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(m_çalışmaKlasörü.path()));
    qputenv("ODBCINI", QFile::encodeName(OdbcDosyası()));
    // The toolkit reads XDG_CONFIG_HOME once for the whole run.
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, klasör.filePath(QStringLiteral("ayarlar")));
    PaylaşılanlarıKur(ProgramKlasörü());
    SaatiAyarla(nullptr);
}

VarnekTesti::~VarnekTesti() {
    m_veri.reset();
    ODBCBağlantısınıKapat();
}

void VarnekTesti::TearDown() {
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr) << "a modal form was left open";
    m_kutular.Bitir();
    SaatiAyarla(nullptr);
}

void VarnekTesti::VeriyeBağlan(const QString& tür) {
    VeriDosyasıOluştur(VeriDosyası(), tür);
    ASSERT_TRUE(ODBCBağlan());
}

TestVerisi& VarnekTesti::Veri() {
    if (!m_veri) m_veri = std::make_unique<TestVerisi>(VeriDosyası());
    return *m_veri;
}

QString VarnekTesti::Oku(const QString& sql) {
    QStringList satırlar;
    for (const QStringList& satır : Veri().Oku(sql)) satırlar += satır.join('|');
    return satırlar.join("; ");
}

void VarnekTesti::ÜrünEkle(const QString& grup, const QString& ad, const QStringList& yüzdeler) {
    Çalıştır(Deyimler::ÜrünEkle(grup, ad));
    if (yüzdeler.size() == 4)
        Çalıştır(Deyimler::YüzdeleriKaydet(yüzdeler[0], yüzdeler[1], yüzdeler[2], yüzdeler[3], grup, ad));
}

void VarnekTesti::MalzemeEkle(const QString& ad, const QString& fiyat) {
    Çalıştır(Deyimler::MalzemeEkle(ad, fiyat));
}

void VarnekTesti::KullanımEkle(const QString& grup, const QString& ürün, const QString& malzeme, const QString& miktar,
                               const QString& fiyat, const QString& tarih) {
    Çalıştır(Deyimler::KullanılanMalzemeEkle({grup, ürün, malzeme, miktar, fiyat, tarih}));
}

QByteArray VarnekTesti::Baytlar(const QString& yol) {
    QFile dosya(yol);
    return dosya.open(QIODevice::ReadOnly) ? dosya.readAll() : QByteArray("yok");
}

void VarnekTesti::DosyaYaz(const QString& yol, const QByteArray& baytlar) {
    QDir().mkpath(QFileInfo(yol).path());
    QFile dosya(yol);
    ASSERT_TRUE(dosya.open(QIODevice::WriteOnly)) << yol.toStdString();
    dosya.write(baytlar);
}
