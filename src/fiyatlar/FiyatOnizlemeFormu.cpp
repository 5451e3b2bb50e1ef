#include "FiyatOnizlemeFormu.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QSplitter>
#include <QVBoxLayout>

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
#include "Yazdirma.h"

namespace {

enum MalzemeSütunları { MAd, MEski, MYeni, MFark, MYüzde, MSatır, MAyrı, MNeden };
enum ÜrünSütunları { ÜGrup, ÜAd, ÜÖnce, ÜSonra, ÜFark, ÜYüzde, ÜUyarı };

const QList<TabloSütunu> MALZEME_SÜTUNLARI{{MetinNo::MalzemeSütunu, 28},          {MetinNo::EskiFiyatSütunu, 12, true},
                                           {MetinNo::YeniFiyatSütunu, 12, true},  {MetinNo::FarkSütunu, 11, true},
                                           {MetinNo::YüzdeSütunu, 8, true},       {MetinNo::SatırSütunu, 5, true},
                                           {MetinNo::AyrıFiyatlıSütunu, 5, true}, {MetinNo::NedenSütunu, 20}};
const QList<TabloSütunu> ÜRÜN_SÜTUNLARI{{MetinNo::GrubuSütunu, 16},
                                        {MetinNo::ÜrünSütunu, 26},
                                        {MetinNo::ÖncekiToplamSütunu, 14, true},
                                        {MetinNo::SonrakiToplamSütunu, 14, true},
                                        {MetinNo::FarkSütunu, 12, true},
                                        {MetinNo::YüzdeSütunu, 8, true},
                                        {MetinNo::UyarıSütunu, 18}};

template <typename T>
int Sırala(const T& a, const T& b) {
    return a < b ? -1 : b < a ? 1 : 0;
}

double Büyüklük(Para önce, Para sonra) {
    return std::abs(sonra.Double() - önce.Double());
}

double OranBüyüklüğü(Para önce, Para sonra) {
    return önce.OnBindeBir() == 0 ? -1 : Büyüklük(önce, sonra) / std::abs(önce.Double());
}

}  // namespace

class FiyatÖnizlemeFormu::MalzemeKaynağı : public TabloKaynağı {
  public:
    explicit MalzemeKaynağı(FiyatPlanı& plan) : m_plan(plan) {}

    std::size_t SatırSayısı() const override { return m_plan.Malzemeler().size(); }
    QString Hücre(std::size_t satır, int sütun) const override {
        const PlanMalzemesi& m = m_plan.Malzemeler()[satır];
        const bool yazılır = Uygulanır(m.Neden);
        switch (sütun) {
            case MAd:
                return m.Malzeme;
            case MEski:
                return FiyatMetni(m.Eski);
            case MYeni:
                return yazılır ? FiyatMetni(m.Yeni) : QString();
            case MFark:
                return yazılır ? FiyatFarkı(m.Eski, m.Yeni) : QString();
            case MYüzde:
                return yazılır ? YüzdeFarkı(m.Eski, m.Yeni) : QString();
            case MSatır:
                return QString::number(m.DeğişenSatır);
            case MAyrı:
                return QString::number(m.Ayrılar.size());
            default:
                return Açıklama(satır);
        }
    }
    int Karşılaştır(std::size_t a, std::size_t b, int sütun) const override {
        const PlanMalzemesi& x = m_plan.Malzemeler()[a];
        const PlanMalzemesi& y = m_plan.Malzemeler()[b];
        switch (sütun) {
            case MEski:
                return Sırala(x.Eski, y.Eski);
            case MYeni:
                return Sırala(x.Yeni, y.Yeni);
            case MFark:
                return Sırala(Büyüklük(x.Eski, x.Yeni), Büyüklük(y.Eski, y.Yeni));
            case MYüzde:
                return Sırala(OranBüyüklüğü(x.Eski, x.Yeni), OranBüyüklüğü(y.Eski, y.Yeni));
            case MSatır:
                return Sırala(x.DeğişenSatır, y.DeğişenSatır);
            case MAyrı:
                return Sırala(x.Ayrılar.size(), y.Ayrılar.size());
            default:
                return TabloKaynağı::Karşılaştır(a, b, sütun);
        }
    }
    std::optional<bool> İşaret(std::size_t satır) const override {
        const PlanMalzemesi& m = m_plan.Malzemeler()[satır];
        return Uygulanır(m.Neden) ? std::optional(m.İşaretli) : std::nullopt;
    }
    void İşaretle(std::size_t satır, bool işaretli) override {
        static_cast<void>(m_plan.İşaretle(static_cast<std::uint32_t>(satır), işaretli));
    }
    QString Açıklama(std::size_t satır) const override {
        const PlanMalzemesi& m = m_plan.Malzemeler()[satır];
        QStringList metin;
        if (m.Neden != PlanNedeni::Yok) metin.append(NedenMetni(m.Neden));
        const auto eksik =
            std::count_if(m.Tekler.begin(), m.Tekler.end(), [](const TekSatır& t) { return !t.Bulundu; });
        if (eksik > 0) metin.append(Metin(MetinNo::BulunamayanSatırlar).arg(eksik));
        return metin.join(QStringLiteral("; "));
    }

  private:
    FiyatPlanı& m_plan;
};

class FiyatÖnizlemeFormu::ÜrünKaynağı : public TabloKaynağı {
  public:
    explicit ÜrünKaynağı(const FiyatPlanı& plan) : m_plan(plan) {}

    std::size_t SatırSayısı() const override { return m_plan.Ürünler().size(); }
    QString Hücre(std::size_t satır, int sütun) const override {
        const PlanÜrünü& ü = m_plan.Ürünler()[satır];
        switch (sütun) {
            case ÜGrup:
                return ü.Grup;
            case ÜAd:
                return ü.Ad;
            case ÜÖnce:
                return ToplamMetni(ü.Önce);
            case ÜSonra:
                return ToplamMetni(ü.Sonra);
            case ÜFark:
                return ToplamFarkı(ü.Önce, ü.Sonra);
            case ÜYüzde:
                return YüzdeFarkı(ü.Önce, ü.Sonra);
            default:
                return Açıklama(satır);
        }
    }
    int Karşılaştır(std::size_t a, std::size_t b, int sütun) const override {
        const PlanÜrünü& x = m_plan.Ürünler()[a];
        const PlanÜrünü& y = m_plan.Ürünler()[b];
        switch (sütun) {
            case ÜÖnce:
                return Sırala(x.Önce, y.Önce);
            case ÜSonra:
                return Sırala(x.Sonra, y.Sonra);
            case ÜFark:
                return Sırala(Büyüklük(x.Önce, x.Sonra), Büyüklük(y.Önce, y.Sonra));
            case ÜYüzde:
                return Sırala(OranBüyüklüğü(x.Önce, x.Sonra), OranBüyüklüğü(y.Önce, y.Sonra));
            default:
                return TabloKaynağı::Karşılaştır(a, b, sütun);
        }
    }
    QString Açıklama(std::size_t satır) const override {
        const PlanÜrünü& ü = m_plan.Ürünler()[satır];
        QStringList metin;
        if (ü.Eksik) metin.append(Metin(MetinNo::UyarıSayılmayan));
        if (ü.KatalogDışı) metin.append(Metin(MetinNo::UyarıKatalogDışı));
        return metin.join(QStringLiteral("; "));
    }

  private:
    const FiyatPlanı& m_plan;
};

FiyatÖnizlemeFormu::FiyatÖnizlemeFormu(const Fiyatİşi& iş, QWidget* sahip)
    : QDialog(sahip),
      m_iş(iş),
      m_malzemeler(std::make_unique<MalzemeKaynağı>(m_plan)),
      m_ürünler(std::make_unique<ÜrünKaynağı>(m_plan)),
      m_malzemeModeli(std::make_unique<TabloModeli>(*m_malzemeler, MALZEME_SÜTUNLARI)),
      m_ürünModeli(std::make_unique<TabloModeli>(*m_ürünler, ÜRÜN_SÜTUNLARI)) {
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
    const auto bölüm = [](int sıra, MetinNo başlık, Tablo* tablo) {
        auto* parça = new QWidget;
        auto* düzen = new QVBoxLayout(parça);
        düzen->setContentsMargins(0, 0, 0, 0);
        düzen->addWidget(VurgulananEtiket(sıra, başlık, tablo));
        düzen->addWidget(tablo);
        return parça;
    };
    auto* bölen = new QSplitter(Qt::Vertical);
    bölen->setObjectName(QStringLiteral("Bölen"));
    bölen->setChildrenCollapsible(false);
    bölen->addWidget(bölüm(1, MetinNo::MalzemelerEtiketi, m_malzemeTablosu));
    bölen->addWidget(bölüm(2, MetinNo::ÜrünlerEtiketi, m_ürünTablosu));
    auto* önizle =
        DüğmeOluştur(QStringLiteral("ÖnizlemeButonu"), MetinNo::Önizleme, [this] { Önizle(*this, Rapor()); });
    auto* iptal = DüğmeOluştur(QStringLiteral("İptalButonu"), MetinNo::Vazgeç, [this] { reject(); });
    QHBoxLayout* düğmeler = DüğmeSırası({m_uygula, m_yazdır, m_pdf, önizle, nullptr, iptal});
    auto* düzen = new QVBoxLayout(this);
    düzen->addWidget(m_özet);
    düzen->addWidget(bölen, 1);
    düzen->addLayout(düğmeler);
    m_malzemeTablosu->setFocus();
    resize(980, 640);
}

bool FiyatÖnizlemeFormu::PlanıKur() {
    std::vector<FiyatÖnerisi> öneriler;
    m_notlar.clear();
    İlerlemeKutusu kutu(MetinNo::PlanKuruluyor, 0, parentWidget());
    İşSonucu sonuç = m_iş.Öner(öneriler, m_notlar);
    if (sonuç.Tamam())
        sonuç = m_plan.Kur(ODBCBağlantısı(), std::move(öneriler), OndalıkBasamak,
                           [&kutu](std::int64_t okunan) { return kutu.Bildir(okunan); });
    if (!sonuç.Tamam()) {
        İşSonucunuGöster(sonuç);
        return false;
    }
    BugünDeğişenleriSay();
    m_malzemeModeli->Yenile();
    m_ürünTablosu->sortByColumn(ÜFark, Qt::DescendingOrder);
    m_ürünModeli->Yenile();
    ÖzetiYaz();
    return true;
}

void FiyatÖnizlemeFormu::BugünDeğişenleriSay() {
    m_bugünDeğişti.assign(m_plan.Malzemeler().size(), false);
    AdDizini bugün;
    if (!BugünDeğişenler(ODBCBağlantısı(), ŞimdikiZaman().left(10), bugün).Tamam()) return;
    for (std::size_t i = 0; i < m_bugünDeğişti.size(); ++i)
        m_bugünDeğişti[i] = bugün.Bul(m_plan.Malzemeler()[i].Malzeme.toStdString()) != AdDizini::YOK;
}

void FiyatÖnizlemeFormu::ÖzetiYaz() {
    const PlanÖzeti özet = m_plan.Özet();
    QStringList satırlar{m_iş.Bilgi.Açıklama,
                         Metin(MetinNo::PlanÖzeti).arg(özet.Malzeme).arg(özet.Satır).arg(özet.Ürün)};
    std::int64_t bugün = 0;
    for (std::size_t i = 0; i < m_bugünDeğişti.size(); ++i)
        bugün += m_bugünDeğişti[i] && m_plan.Malzemeler()[i].İşaretli;
    if (bugün > 0) satırlar.append(Metin(MetinNo::BugünDeğişenSayısı).arg(bugün));
    if (özet.AyrıSatır > 0) satırlar.append(Metin(MetinNo::AyrıSatırSayısı).arg(özet.AyrıSatır));
    if (özet.ÜrünsüzSatır > 0) satırlar.append(Metin(MetinNo::ÜrünsüzSatırSayısı).arg(özet.ÜrünsüzSatır));
    m_özet->setText((satırlar + m_notlar).join(QLatin1Char('\n')));
    m_uygula->setEnabled(özet.Malzeme > 0);
}

void FiyatÖnizlemeFormu::İşaretDeğişti() {
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
    switch (sonuç.Son) {
        case UygulamaSonu::Tamam:
            accept();
            return;
        case UygulamaSonu::Vazgeçildi:
            return;  // everything is as it was, the preview stays
        case UygulamaSonu::Olmadı:
            MesajKutusuOrtala();
            MesajKutusu::Göster(
                MesajKutusu::Simge::Kritik, MesajKutusu::Düğmeler::Tamam,
                Metin(MetinNo::FiyatlarYazılamadı).arg(OdbcİletileriniAl(sonuç.Odbc.Hatalar).join(QLatin1Char('\n'))));
            return;
        case UygulamaSonu::Değişmiş:
            MesajKutusuOrtala();
            MesajKutusu::Göster(MesajKutusu::Simge::Ünlem, MesajKutusu::Düğmeler::Tamam,
                                Metin(MetinNo::VerilerDeğişmiş).arg(sonuç.Malzeme));
            if (!PlanıKur()) reject();
            return;
    }
}

// The rows as they stand on screen; what is left out comes last, with its reason.
void FiyatÖnizlemeFormu::Yaz(SayfaYüzeyi& yüzey) const {
    SayfaDüzeni düzen(yüzey, windowTitle(),
                      {{MetinNo::MalzemeSütunu, 13.5, HücreTürü::Metin},
                       {MetinNo::EskiFiyatSütunu, 2.3, HücreTürü::Sayı},
                       {MetinNo::YeniFiyatSütunu, 1.75, HücreTürü::Sayı},
                       {MetinNo::FarkSütunu, 1.35, HücreTürü::Sayı},
                       {MetinNo::YüzdeSütunu, 1.15, HücreTürü::Sayı}});
    if (!düzen.Başla()) return;
    for (const bool alınan : {true, false}) {
        for (int satır = 0; satır < m_malzemeModeli->rowCount(); ++satır) {
            const std::size_t yer = m_malzemeModeli->KaynakSatırı(satır);
            if (m_plan.Malzemeler()[yer].İşaretli != alınan) continue;
            QStringList hücreler;
            for (int sütun = MAd; sütun <= MYüzde; ++sütun) hücreler.append(m_malzemeler->Hücre(yer, sütun));
            if (!alınan) {
                const QString neden = m_malzemeler->Açıklama(yer);
                hücreler[MAd] += QStringLiteral(" (%1)").arg(neden.isEmpty() ? Metin(MetinNo::İşaretsiz) : neden);
            }
            düzen.SatırYaz(hücreler);
        }
    }
    for (int satır = 0; satır < m_ürünModeli->rowCount(); ++satır) {
        const std::size_t yer = m_ürünModeli->KaynakSatırı(satır);
        const auto hücre = [&](int sütun) { return m_ürünler->Hücre(yer, sütun); };
        düzen.SatırYaz({hücre(ÜGrup) + QStringLiteral(" / ") + hücre(ÜAd), hücre(ÜÖnce), hücre(ÜSonra), hücre(ÜFark),
                        hücre(ÜYüzde)});
    }
    düzen.Bitir();
}

Yazdırılacak FiyatÖnizlemeFormu::Rapor() const {
    return {windowTitle(), [this](SayfaYüzeyi& yüzey) { Yaz(yüzey); }};
}
