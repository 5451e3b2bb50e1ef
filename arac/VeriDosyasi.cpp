#include "VeriDosyasi.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <csignal>

#include "GeciciDosya.h"
#include "OdbcHareketi.h"
#include "OdbcSurucu.h"

using namespace Qt::StringLiterals;

namespace {

volatile std::sig_atomic_t yarıdaKesildi = 0;

// Percentages have a default, because the program's INSERT does not name them. Only material names are unique: merged
// groups may hold the same product twice, and a product the same material twice.
constexpr const char16_t* TABLOLAR[] = {
    u"CREATE TABLE UrunTablosu (UrunGrubu TEXT(255) NOT NULL, UrunAdi TEXT(255) NOT NULL, "
    u"IscilikYuzdesi DOUBLE DEFAULT 0 NOT NULL, KarYuzdesi DOUBLE DEFAULT 0 NOT NULL, "
    u"DigerVarnekYuzdesi DOUBLE DEFAULT 0 NOT NULL, VadeFarkiYuzdesi DOUBLE DEFAULT 0 NOT NULL)",
    u"CREATE INDEX UrunSirasi ON UrunTablosu (UrunGrubu, UrunAdi)",
    u"CREATE TABLE MalzemeTablosu (MalzemeAdi TEXT(255) NOT NULL, MalzemeFiyati CURRENCY NOT NULL)",
    u"CREATE UNIQUE INDEX MalzemeSirasi ON MalzemeTablosu (MalzemeAdi)",
    u"CREATE TABLE UrunMalzemeTablosu (KullanimTarihi DATETIME NOT NULL, UrunGrubu TEXT(255) NOT NULL, "
    u"UrunAdi TEXT(255) NOT NULL, KullanilanMalzemeAdi TEXT(255) NOT NULL, "
    u"KullanilanMalzemeMiktari TEXT(255) NOT NULL, KullanilanMalzemeFiyati CURRENCY NOT NULL)",
};

// The ways in which the program looks used materials up or orders them. They are made once the rows are there, which is
// much faster for many rows.
constexpr const char16_t* KULLANIM_DİZİNLERİ[] = {
    u"CREATE INDEX UrununMalzemeleri ON UrunMalzemeTablosu (UrunGrubu, UrunAdi, KullanilanMalzemeAdi)",
    u"CREATE INDEX MalzemeninUrunleri ON UrunMalzemeTablosu (KullanilanMalzemeAdi)",
    u"CREATE INDEX GununHareketleri ON UrunMalzemeTablosu (KullanimTarihi, UrunAdi)",
};

QString Neden(const QList<OdbcHatası>& hatalar) {
    return OdbcİletileriniAl(hatalar).value(0);
}

}  // namespace

void VeriDosyasınıDoldur(const QString& dosya, const std::function<void(VeriYazıcısı&)>& doldur) {
    if (!BoşVeriDosyasıOluştur(dosya))
        throw VeriHatası(u"Veri dosyası oluşturulamadı: "_s + SürücüKurulumHataları().value(0));
    OdbcBağlantısı bağlantı;
    const OdbcSonucu açılış = bağlantı.Aç(BağlantıMetni(dosya));
    if (!bağlantı.Tanıtıcı()) throw VeriHatası(u"ODBC sürücülerine erişilemiyor."_s);
    if (!açılış.Başarılı()) throw VeriHatası(u"Veri dosyası açılamadı: "_s + Neden(açılış.Hatalar));
    VeriYazıcısı yazıcı(bağlantı);
    for (const char16_t* tablo : TABLOLAR) yazıcı.Çalıştır(QString::fromUtf16(tablo));
    OdbcHareketi hareket(bağlantı);
    const OdbcSonucu başlangıç = hareket.Başla();
    if (!başlangıç.Başarılı()) throw VeriHatası(u"Toplu yazma açılamadı: "_s + Neden(başlangıç.Hatalar));
    doldur(yazıcı);
    const OdbcSonucu onay = hareket.Onayla();
    if (!onay.Başarılı()) throw VeriHatası(u"Yazılanlar onaylanamadı: "_s + Neden(onay.Hatalar));
    for (const char16_t* dizin : KULLANIM_DİZİNLERİ) {
        YarıdaKesildiMi();
        yazıcı.Çalıştır(QString::fromUtf16(dizin));
    }
}

VeriYazıcısı::VeriYazıcısı(OdbcBağlantısı& bağlantı) {
    if (m_deyim.Aç(bağlantı) != 0) throw VeriHatası(u"Veri dosyası açılamadı: "_s + Neden(bağlantı.HatalarınıAl()));
}

void VeriYazıcısı::Çalıştır(const QString& deyim) {
    if (m_deyim.Çalıştır(deyim) != 0)
        throw VeriHatası(u"Deyim çalıştırılamadı: %1\n%2"_s.arg(Neden(m_deyim.HatalarınıAl()), deyim));
}

void YarıdaKes() noexcept {
    yarıdaKesildi = 1;
}

void YarıdaKesildiMi() {
    if (yarıdaKesildi) throw VeriHatası(u"İşlem yarıda kesildi."_s);
}

void VeriDosyasıYap(const QString& hedef, const std::function<void(VeriYazıcısı&)>& doldur) {
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
    VeriDosyasınıDoldur(geçici, doldur);
    YarıdaKesildiMi();
    const Dosya::Sonuç taşıma = Dosya::Taşı(QFile::encodeName(geçici).toStdString(),
                                            QFile::encodeName(yol).toStdString(), Dosya::Yerleştirme::Yeni);
    if (!taşıma.Yapıldı())
        throw VeriHatası(
            u"%1 adı verilemedi (sistem hatası %2); klasörü ve diski denetleyin."_s.arg(yol).arg(taşıma.Neden));
}
