#include "DegisimOnizlemeFormu.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "CizelgeKaydi.h"
#include "DegisimCiktilari.h"
#include "FiyatIsi.h"
#include "FormParcalari.h"
#include "IlerlemeKutusu.h"
#include "KullanimMetinleri.h"
#include "MesajKutusu.h"
#include "OdbcModulu.h"
#include "Saat.h"
#include "Tablo.h"
#include "UrunMetinleri.h"
#include "Yazdirma.h"

DeğişimÖnizlemeFormu::DeğişimÖnizlemeFormu(const Değişimİşi& iş, QWidget* sahip)
    : QDialog(sahip), m_iş(iş), m_kaynak(m_plan), m_model(m_kaynak, DeğişimSütunlarınıVer()) {
    setObjectName(QStringLiteral("DeğişimÖnizlemeFormu"));
    setWindowTitle(Metin(KullanımMetni::DeğişimÖnizlemeBaşlığı));
    KontrolleriKur();
    Yerleştir();
}

DeğişimÖnizlemeFormu::~DeğişimÖnizlemeFormu() {
    delete m_tablo;  // before the model that it shows
}

void DeğişimÖnizlemeFormu::KontrolleriKur() {
    m_özet = new QLabel;
    m_özet->setObjectName(QStringLiteral("ÖzetEtiketi"));
    m_özet->setWordWrap(true);
    m_özet->setTextFormat(Qt::PlainText);
    m_tablo = new Tablo(QStringLiteral("DeğişimTablosu"), m_model);
    m_model.İşaretlenince([this] {
        m_plan.YayılımıYenile();
        m_model.HücrelerDeğişti();
        ÖzetiYaz();
    });
    m_uygula = DüğmeOluştur(QStringLiteral("UygulaButonu"), MetinNo::Uygula, [this] { Uygula(); });
    m_yazdır = DüğmeOluştur(QStringLiteral("YazdırButonu"), MetinNo::Yazdır,
                            [this] { static_cast<void>(Yazdır(*this, *m_yazdır, Rapor())); });
    m_pdf = DüğmeOluştur(QStringLiteral("PdfKaydetButonu"), MetinNo::PdfKaydet,
                         [this] { PdfKaydet(*this, *m_pdf, Rapor()); });
}

void DeğişimÖnizlemeFormu::Yerleştir() {
    auto* önizle =
        DüğmeOluştur(QStringLiteral("ÖnizlemeButonu"), MetinNo::Önizleme, [this] { Önizle(*this, Rapor()); });
    auto* aktar = DüğmeOluştur(QStringLiteral("TabloyaAktarButonu"), ÜrünMetni::TabloyaAktar, [this] { Çizelgeye(); });
    auto* iptal = DüğmeOluştur(QStringLiteral("İptalButonu"), MetinNo::Vazgeç, [this] { reject(); });
    auto* düzen = new QVBoxLayout(this);
    düzen->addWidget(m_özet);
    düzen->addWidget(TabloBölümü(1, MetinNo::ÜrünlerEtiketi, m_tablo), 1);
    düzen->addLayout(DüğmeSırası({m_uygula, m_yazdır, m_pdf, önizle, aktar, nullptr, iptal}));
    m_tablo->setFocus();
    BoyVer(*this, {1280, 600});
}

bool DeğişimÖnizlemeFormu::PlanıKur() {
    İşSonucu sonuç;
    {
        İlerlemeKutusu kutu(KullanımMetni::DeğişimHesaplanıyor, 0, isVisible() ? this : parentWidget());
        sonuç = m_iş.PlanıKur(m_plan, [&kutu](std::int64_t okunan) { return kutu.Bildir(okunan); });
    }
    m_model.Yenile();
    if (!İşSonucunuGöster(sonuç)) return false;
    if (m_plan.YeniYok()) YarımKaldı(KullanımMetni::YeniMalzemeKatalogdaYok);
    ÖzetiYaz();
    return !m_plan.YeniYok();
}

void DeğişimÖnizlemeFormu::ÖzetiYaz() {
    const DeğişimÖzeti özet = m_plan.Özet();
    QStringList satırlar{m_iş.Bilgi.Açıklama,
                         Metin(KullanımMetni::DeğişimÖzeti).arg(özet.Ürün).arg(özet.Silinen).arg(özet.Yazılan)};
    if (özet.GünündenÇıkan > 0) satırlar.append(Metin(KullanımMetni::GünündenÇıkanSayısı).arg(özet.GünündenÇıkan));
    if (özet.Dışarıda > 0) satırlar.append(Metin(KullanımMetni::DışarıdaKalanSayısı).arg(özet.Dışarıda));
    m_özet->setText(Bölünebilir(satırlar.join(QLatin1Char('\n'))));
    m_uygula->setEnabled(özet.Ürün > 0);
}

void DeğişimÖnizlemeFormu::Uygula() {
    UygulamaSonucu sonuç;
    m_plan.GünüDeğiştir(Bugün());  // the preview may have been open over midnight
    {
        İlerlemeKutusu kutu(KullanımMetni::DeğişimYazılıyor, m_plan.Özet().Ürün, this);
        sonuç = DeğişimiUygula(ODBCBağlantısı(), m_plan, m_iş.Bilgi, ŞimdikiZaman(),
                               [&kutu](std::int64_t biten) { return kutu.Bildir(biten); });
    }
    switch (UygulamayıBildir(sonuç, KullanımMetni::DeğişimYazılamadı)) {
        case ÖnizlemeAdımı::Kabul:
            accept();
            return;
        case ÖnizlemeAdımı::Kal:
            return;
        case ÖnizlemeAdımı::YenidenKur:
            if (PlanıKur()) return;
            break;
        case ÖnizlemeAdımı::Ret:
            break;
    }
    reject();
}

Yazdırılacak DeğişimÖnizlemeFormu::Rapor() const {
    return {windowTitle(), [this](SayfaYüzeyi& yüzey) { DeğişimiYaz(yüzey, m_iş.Bilgi.Açıklama, m_kaynak, m_model); },
            true, true};
}

void DeğişimÖnizlemeFormu::Çizelgeye() {
    ÇizelgeyeKaydet(*this, windowTitle(),
                    [this](const QString& yol) { return DeğişimiÇizelgeyeYaz(yol, windowTitle(), m_kaynak, m_model); });
}
