#include "SecerekGetirme.h"

#include "ArkaIs.h"
#include "GetirmeMetinleri.h"
#include "MesajKutusu.h"
#include "OdbcModulu.h"
#include "OdbcSurucu.h"
#include "OdbcYedek.h"
#include "OrtakFonksiyonlarModulu.h"
#include "SecerekGetirFormu.h"
#include "YedekMetinleri.h"

namespace {

void KritikGöster(const QString& metin) {
    MesajKutusuOrtala();
    MesajKutusu::Göster(MesajKutusu::Simge::Kritik, MesajKutusu::Düğmeler::Tamam, metin);
}

bool Bağlan(OdbcBağlantısı& bağlantı, const QString& yol) {
    const OdbcSonucu sonuç = bağlantı.Aç(BağlantıMetni(yol));
    if (!sonuç.Başarılı()) KritikGöster(OdbcİletileriniAl(sonuç.Hatalar).join(QLatin1Char('\n')));
    return sonuç.Başarılı();
}

}  // namespace

bool GetirmeOrtamı::Hazırla(const Getirmeİsteği& istek, QWidget* sahip) {
    m_deneme.Kapat();
    m_yedek.Kapat();
    m_açılan.reset();
    m_klasör = std::make_unique<QTemporaryDir>(istek.Yollar.YedekKlasörü + QStringLiteral("gecici-XXXXXX"));
    const QString kopya = m_klasör->filePath(QStringLiteral("Varnek.vtb"));
    YedekBilgisi bilgi{YedekDurumu::Sağlam, {}, {}};
    bool kopyalandı = false;
    bool durdu = false;
    QString neden;
    ArkadaYürüt(GetirmeMetni::Hazırlanıyor, 0, sahip, [&](ArkaDurum& durum) {
        if (istek.Yedek) {
            m_açılan = std::make_unique<AçılmışYedek>(istek.Yedek->Yol, istek.Yollar.YedekKlasörü);
            bilgi = m_açılan->Denetle(durum.DurYolu());
        }
        if (bilgi.Durum == YedekDurumu::Sağlam) {
            kopyalandı = m_klasör->isValid() && VeriDosyasınıYedekle(istek.Yollar.GerçekDosya, kopya, durum.DurYolu());
            if (!kopyalandı) neden = m_klasör->isValid() ? SürücüKurulumHataları().value(0) : m_klasör->errorString();
        }
        durdu = durum.Durdu();
    });
    if (durdu || bilgi.Durum == YedekDurumu::Durduruldu) return false;
    if (bilgi.Durum != YedekDurumu::Sağlam) {
        YedekSatırı okunan = *istek.Yedek;
        okunan.Aşama = YedekSatırı::Denetim::Bitti;
        okunan.Bilgi = bilgi;
        KritikGöster(Metin(YedekMetni::YedekKullanılamaz).arg(DenetimMetni(okunan), bilgi.Neden));
        return false;
    }
    if (!kopyalandı) {
        KritikGöster(Metin(GetirmeMetni::KopyaAlınamadı).arg(neden));
        return false;
    }
    return Bağlan(m_deneme, kopya) && (!m_açılan || Bağlan(m_yedek, m_açılan->Yol()));
}

namespace {

bool Yürüt(const Getirmeİsteği& istek, QWidget* sahip) {
    SeçerekGetirFormu form(istek, sahip);
    return form.Yükle() && form.exec() == QDialog::Accepted;
}

}  // namespace

bool SeçerekGetir(const VeriYolları& yollar, const YedekSatırı& yedek, QWidget* sahip) {
    return Yürüt({yollar, yedek}, sahip);
}

bool GetirmeyiÇevir(const Deyimler::Fiyat::İşlem& işlem, İşlemTürü tür, QWidget* sahip) {
    return Yürüt({VeriYollarınıBul(), {}, işlem, tür}, sahip);
}
