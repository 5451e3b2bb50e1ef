#include "FiyatOnizlemeFormu.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QSplitter>
#include <QVBoxLayout>

#include "CizelgeKaydi.h"
#include "DegiskenModulu.h"
#include "FiyatMetinleri.h"
#include "FormParcalari.h"
#include "IlerlemeKutusu.h"
#include "MesajKutusu.h"
#include "MetinTablosu.h"
#include "OdbcModulu.h"
#include "Saat.h"
#include "SayfaDuzeni.h"
#include "Tablo.h"
#include "YariMamulMetinleri.h"
#include "Yazdirma.h"

FiyatÖnizlemeFormu::FiyatÖnizlemeFormu(const Fiyatİşi& iş, QWidget* sahip)
    : QDialog(sahip),
      m_iş(iş),
      m_malzemeler(std::make_unique<PlanınMalzemeleri>(m_plan)),
      m_ürünler(std::make_unique<PlanınÜrünleri>(m_plan)),
      m_malzemeModeli(std::make_unique<TabloModeli>(*m_malzemeler, PlanınMalzemeSütunları())),
      m_ürünModeli(std::make_unique<TabloModeli>(*m_ürünler, PlanınÜrünSütunları())) {
    setObjectName(QStringLiteral("FiyatÖnizlemeFormu"));
    setWindowTitle(Metin(MetinNo::FiyatÖnizlemeBaşlığı));
    KontrolleriKur();
    DüğmeleriKur();
    Yerleştir();
}

FiyatÖnizlemeFormu::~FiyatÖnizlemeFormu() {
    // The views go before the models that they show.
    delete m_malzemeTablosu;
    delete m_ürünTablosu;
}

void FiyatÖnizlemeFormu::KontrolleriKur() {
    m_özet = new QLabel;
    m_özet->setObjectName(QStringLiteral("ÖzetEtiketi"));
    m_özet->setWordWrap(true);
    m_özet->setTextFormat(Qt::PlainText);
    m_malzemeTablosu = new Tablo(QStringLiteral("MalzemeFarkTablosu"), *m_malzemeModeli);
    m_ürünTablosu = new Tablo(QStringLiteral("ÜrünFarkTablosu"), *m_ürünModeli);
    m_malzemeModeli->İşaretlenince([this] { İşaretDeğişti(); });
}

void FiyatÖnizlemeFormu::DüğmeleriKur() {
    m_uygula = DüğmeOluştur(QStringLiteral("UygulaButonu"), MetinNo::Uygula, [this] { Uygula(); });
    m_yazdır = DüğmeOluştur(QStringLiteral("YazdırButonu"), MetinNo::Yazdır,
                            [this] { static_cast<void>(Yazdır(*this, *m_yazdır, Rapor())); });
    m_pdf = DüğmeOluştur(QStringLiteral("PdfKaydetButonu"), MetinNo::PdfKaydet,
                         [this] { PdfKaydet(*this, *m_pdf, Rapor()); });
}

void FiyatÖnizlemeFormu::Yerleştir() {
    auto* bölen = new QSplitter(Qt::Vertical);
    bölen->setObjectName(QStringLiteral("Bölen"));
    bölen->setChildrenCollapsible(false);
    bölen->addWidget(TabloBölümü(1, MetinNo::MalzemelerEtiketi, m_malzemeTablosu));
    bölen->addWidget(TabloBölümü(2, MetinNo::ÜrünlerEtiketi, m_ürünTablosu));
    auto* önizle =
        DüğmeOluştur(QStringLiteral("ÖnizlemeButonu"), MetinNo::Önizleme, [this] { Önizle(*this, Rapor()); });
    auto* iptal = DüğmeOluştur(QStringLiteral("İptalButonu"), MetinNo::Vazgeç, [this] { reject(); });
    auto* excel = DüğmeOluştur(QStringLiteral("TabloyaAktarButonu"), MetinNo::ExcelKaydet, [this] { ExceleKaydet(); });
    QHBoxLayout* düğmeler = DüğmeSırası({m_uygula, m_yazdır, m_pdf, önizle, excel, nullptr, iptal});
    auto* düzen = new QVBoxLayout(this);
    düzen->addWidget(m_özet);
    düzen->addWidget(bölen, 1);
    düzen->addLayout(düğmeler);
    m_malzemeTablosu->setFocus();
    BoyVer(*this, {980, 640});
}

bool FiyatÖnizlemeFormu::PlanıKur() {
    FiyatTeklifi teklif;
    m_notlar.clear();
    İlerlemeKutusu kutu(MetinNo::PlanKuruluyor, 0, parentWidget());
    İşSonucu sonuç = m_iş.Öner(teklif, m_notlar);
    if (sonuç.Tamam())
        sonuç = m_plan.Kur(ODBCBağlantısı(), std::move(teklif), OndalıkBasamak,
                           [&kutu](std::int64_t okunan) { return kutu.Bildir(okunan); });
    if (sonuç.Tamam()) sonuç = BugünDeğişenleriSay();
    if (!İşSonucunuGöster(sonuç)) return false;
    m_malzemeModeli->Yenile();
    m_ürünTablosu->sortByColumn(ÜFark, Qt::DescendingOrder);
    m_ürünModeli->Yenile();
    ÖzetiYaz();
    return true;
}

İşSonucu FiyatÖnizlemeFormu::BugünDeğişenleriSay() {
    m_bugünDeğişti.assign(m_plan.Malzemeler().size(), false);
    AdDizini bugün;
    const İşSonucu sonuç = BugünDeğişenler(ODBCBağlantısı(), ŞimdikiZaman().left(10), bugün);
    if (!sonuç.Tamam()) return sonuç;
    for (std::size_t i = 0; i < m_bugünDeğişti.size(); ++i)
        m_bugünDeğişti[i] = bugün.Bul(m_plan.Malzemeler()[i].Malzeme.toStdString()) != AdDizini::YOK;
    return sonuç;
}

void FiyatÖnizlemeFormu::ÖzetiYaz() {
    const PlanÖzeti özet = m_plan.Özet();
    QStringList satırlar{m_iş.Bilgi.Açıklama,
                         Metin(MetinNo::PlanÖzeti).arg(özet.Malzeme).arg(özet.Satır).arg(özet.Ürün)};
    if (özet.YayılanSatır > 0) satırlar.append(Metin(YarıMamulMetni::YayılanSatırSayısı).arg(özet.YayılanSatır));
    if (özet.Eklenen > 0) satırlar.append(Metin(MetinNo::EklenecekSayısı).arg(özet.Eklenen));
    if (özet.Silinen > 0) satırlar.append(Metin(MetinNo::SilinecekSayısı).arg(özet.Silinen));
    if (const auto& kur = m_plan.DövizKuru())
        satırlar.append(Metin(MetinNo::KurÖzeti)
                            .arg(kur->Kod, FiyatMetni(kur->Eski), FiyatMetni(kur->Yeni), GünMetni(kur->YeniGün)));
    std::int64_t bugün = 0;
    for (std::size_t i = 0; i < m_bugünDeğişti.size(); ++i)
        bugün += m_bugünDeğişti[i] && m_plan.Malzemeler()[i].İşaretli;
    if (bugün > 0) satırlar.append(Metin(MetinNo::BugünDeğişenSayısı).arg(bugün));
    if (özet.AyrıSatır > 0) satırlar.append(Metin(MetinNo::AyrıSatırSayısı).arg(özet.AyrıSatır));
    if (özet.ÜrünsüzSatır > 0) satırlar.append(Metin(MetinNo::ÜrünsüzSatırSayısı).arg(özet.ÜrünsüzSatır));
    m_özet->setText((satırlar + m_notlar).join(QLatin1Char('\n')));
    m_uygula->setEnabled(özet.Malzeme > 0 || m_plan.DövizKuru() || m_plan.Bağ());
}

void FiyatÖnizlemeFormu::İşaretDeğişti() {
    m_plan.YayılımıYenile();
    m_ürünModeli->HücrelerDeğişti();
    ÖzetiYaz();
}

void FiyatÖnizlemeFormu::Uygula() {
    UygulamaSonucu sonuç;
    {
        İlerlemeKutusu kutu(MetinNo::FiyatlarYazılıyor, m_plan.Özet().Malzeme, this);
        sonuç = FiyatlarıUygula(ODBCBağlantısı(), m_plan, m_iş.Bilgi, ŞimdikiZaman(),
                                [&kutu](std::int64_t biten) { return kutu.Bildir(biten); });
    }
    switch (UygulamayıBildir(sonuç, MetinNo::FiyatlarYazılamadı)) {
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

Yazdırılacak FiyatÖnizlemeFormu::Rapor() const {
    return {windowTitle(), [this](SayfaYüzeyi& yüzey) { PlanıYaz(yüzey, windowTitle(), Görünen()); }, true};
}

GörünenPlan FiyatÖnizlemeFormu::Görünen() const {
    return {*m_malzemeler, *m_malzemeModeli, *m_ürünler, *m_ürünModeli};
}

void FiyatÖnizlemeFormu::ExceleKaydet() {
    ÇizelgeyeKaydet(*this, windowTitle(),
                    [this](const QString& yol) { return PlanıÇizelgeyeYaz(yol, windowTitle(), Görünen()); });
}
