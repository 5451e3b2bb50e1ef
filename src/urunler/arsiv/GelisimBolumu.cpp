#include "GelisimBolumu.h"

#include <QComboBox>
#include <QDateTime>
#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QSplitter>
#include <QVBoxLayout>
#include <algorithm>

#include "ArsivMetinleri.h"
#include "ArsivMetni.h"
#include "BasamakGrafigi.h"
#include "CizelgeKaydi.h"
#include "DegiskenModulu.h"
#include "FarkAyrimi.h"
#include "FiyatDeyimleri.h"
#include "FormParcalari.h"
#include "GirisKutusu.h"
#include "OdbcModulu.h"
#include "Saat.h"
#include "SayiMetni.h"
#include "Tablo.h"
#include "UrunMetinleri.h"

namespace {

enum Sütunlar { GGün, GArşiv, GToplam, GFark, GYüzde, GDurum };

const QList<TabloSütunu> SÜTUNLAR{{ArşivMetni::GünSütunu, 8, false, ÇizelgedeSütun::Tarih},
                                  {ArşivMetni::NoSütunu, 5, true},
                                  {ÜrünMetni::ToplamSütunu, 11, true},
                                  {ArşivMetni::FarkSütunu, 10, true},
                                  {ArşivMetni::YüzdeSütunu, 7, true},
                                  {ArşivMetni::DurumSütunu, 16}};

QDateTime GününBaşı(const QString& gün) {
    return QDate::fromString(gün, Qt::ISODate).startOfDay();
}

}  // namespace

class GelişimBölümü::Kaynak : public TabloKaynağı {
  public:
    std::vector<Nokta> Satırlar;  // the earliest first

    std::size_t SatırSayısı() const override { return Satırlar.size(); }
    QString Hücre(std::size_t satır, int sütun) const override {
        const Nokta& s = Satırlar[satır];
        const Nokta* önceki = satır > 0 ? &Satırlar[satır - 1] : nullptr;
        switch (sütun) {
            case GGün:
                return s.Arşiv ? GünMetni(s.Arşiv->Gün) : Metin(ArşivMetni::BugünSatırı);
            case GArşiv:
                return s.Arşiv ? QString::number(s.Arşiv->No) : QString();
            case GToplam:
                return ArşivTutarı(ArşivGösterimi(s.Toplam));
            case GFark:
                return önceki ? ArşivTutarı(TutarFarkı(ArşivGösterimi(s.Toplam), ArşivGösterimi(önceki->Toplam)))
                              : QString();
            case GYüzde:
                return önceki ? ArşivYüzdesi(önceki->Toplam, s.Toplam) : QString();
            default:
                return ArşivDikkatMetni(s.Dikkat);
        }
    }
    int Karşılaştır(std::size_t a, std::size_t b, int sütun) const override {
        if (sütun == GToplam) return Sırala(Satırlar[a].Toplam, Satırlar[b].Toplam);
        if (sütun == GFark) return Sırala(Fark(a), Fark(b));
        if (sütun == GYüzde) return Sırala(Oran(a), Oran(b));
        return sütun == GDurum ? TabloKaynağı::Karşılaştır(a, b, sütun) : Sırala(a, b);
    }
    QString Açıklama(std::size_t satır) const override { return Hücre(satır, GDurum); }

  private:
    Para Fark(std::size_t yer) const {
        return yer == 0 ? Para() : TutarFarkı(Satırlar[yer].Toplam, Satırlar[yer - 1].Toplam);
    }
    double Oran(std::size_t yer) const {
        const double önceki = yer == 0 ? 0 : Satırlar[yer - 1].Toplam.Double();
        return önceki == 0 ? 0 : Fark(yer).Double() / önceki;
    }
};

GelişimBölümü::GelişimBölümü(QWidget* sahip)
    : QWidget(sahip),
      m_kaynak(std::make_unique<Kaynak>()),
      m_model(std::make_unique<TabloModeli>(*m_kaynak, SÜTUNLAR)) {
    m_başlık = new QLabel;
    m_başlık->setObjectName(QStringLiteral("GelişimÜrünüEtiketi"));
    m_başlık->setTextFormat(Qt::PlainText);
    m_başlık->setWordWrap(true);
    m_öncekiAd = new QComboBox;
    m_öncekiAd->setObjectName(QStringLiteral("ÖncekiAdListesi"));
    m_öncekiAd->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    Enterİleİlerlesin(m_öncekiAd);
    connect(m_öncekiAd, &QComboBox::currentIndexChanged, this, [this] { Oku(); });
    m_grafik = new BasamakGrafiği(QStringLiteral("GelişimGrafiği"), Metin(ArşivMetni::GrafikBoş));
    m_tablo = new Tablo(QStringLiteral("GelişimTablosu"), *m_model);
    m_kaydet = DüğmeOluştur(QStringLiteral("GrafiğiKaydetButonu"), ArşivMetni::GrafiğiKaydet,
                            [this] { m_grafik->Kaydet(*this, KapsamMetni(m_ürün)); });
    Yerleştir();
    Çiz();
}

GelişimBölümü::~GelişimBölümü() {
    delete m_tablo;  // goes before the model that it shows
}

void GelişimBölümü::Yerleştir() {
    auto* üst = new QHBoxLayout;
    üst->addWidget(m_başlık, 1);
    üst->addWidget(VurgulananEtiket(21, ArşivMetni::ÖncekiAdı, m_öncekiAd));
    üst->addWidget(m_öncekiAd, 1);
    auto* bölen = new QSplitter(Qt::Vertical);
    bölen->setObjectName(QStringLiteral("GelişimBölen"));
    bölen->setChildrenCollapsible(false);
    bölen->addWidget(m_grafik);
    bölen->addWidget(TabloBölümü(22, ArşivMetni::GelişimTablosuEtiketi, m_tablo));
    bölen->setStretchFactor(0, 1);
    bölen->setSizes({400, 200});
    auto* düzen = new QVBoxLayout(this);
    düzen->addLayout(üst);
    düzen->addWidget(bölen, 1);
    auto* aktar = TabloyaAktarDüğmesi(ÜrünMetni::TabloyaAktar, *m_model, QStringLiteral("GelişimiAktarButonu"),
                                      [this] { return KapsamMetni(m_ürün); });
    düzen->addLayout(DüğmeSırası({m_kaydet, aktar, nullptr}));
}

void GelişimBölümü::ÜrünüAyarla(const Kapsam& ürün) {
    if (ürün == m_ürün) return;
    m_ürün = ürün;
    {
        const QSignalBlocker sessiz(m_öncekiAd);
        m_öncekiAd->setCurrentIndex(m_öncekiAd->count() > 0 ? 0 : -1);  // a former name is one product's alone
    }
    Oku();
}

void GelişimBölümü::ArşivleriAyarla(std::vector<Başlık> arşivler) {
    // The shown points name the archives.
    m_kaynak->Satırlar.clear();
    m_model->Yenile();
    m_arşivler = std::move(arşivler);
    m_adlarEski = true;
    Oku();
}

void GelişimBölümü::showEvent(QShowEvent* olay) {
    QWidget::showEvent(olay);
    if (m_eski) Oku();
}

void GelişimBölümü::AdlarıOku() {
    m_adlarEski = false;
    std::vector<Kapsam> adlar;
    if (!m_arşivler.empty()) {
        const İşSonucu sonuç = ArşivdekiAdlar(ODBCBağlantısı(), adlar);
        if (!sonuç.Tamam()) adlar.clear();
        ArşivSonucunuGöster(sonuç);
    }
    const QSignalBlocker sessiz(m_öncekiAd);
    m_öncekiAd->clear();
    m_öncekiAd->addItem(Metin(ArşivMetni::ÖncekiAdYok));
    QStringList metinler;
    for (const Kapsam& ad : adlar) metinler.append(KapsamMetni(ad));
    m_öncekiAd->addItems(metinler);
    m_öncekiAd->setCurrentIndex(0);
    m_adlar = std::move(adlar);
}

İşSonucu GelişimBölümü::NoktalarıOku(std::vector<Nokta>& noktalar) const {
    if (m_ürün.Tümü()) return {};
    std::vector<ArşivToplamı> toplamlar;
    std::vector<Kapsam> adlar{m_ürün};
    if (const int sıra = m_öncekiAd->currentIndex(); sıra > 0)
        adlar.push_back(m_adlar[static_cast<std::size_t>(sıra - 1)]);
    for (const Kapsam& ad : adlar) {
        if (m_arşivler.empty() || !Deyimler::Yazılabilir(ad.Grup + ad.Ürün)) continue;
        std::vector<ArşivToplamı> okunan;
        if (İşSonucu s = ÜrününToplamları(ODBCBağlantısı(), ad, okunan); !s.Tamam()) return s;
        // Where an archive holds both names, the present one counts.
        for (const ArşivToplamı& toplam : okunan)
            if (std::none_of(toplamlar.begin(), toplamlar.end(),
                             [&](const ArşivToplamı& t) { return t.Arşiv == toplam.Arşiv; }))
                toplamlar.push_back(toplam);
    }
    std::sort(toplamlar.begin(), toplamlar.end(), [](const auto& a, const auto& b) { return a.Arşiv < b.Arşiv; });
    for (const ArşivToplamı& toplam : toplamlar) {
        const auto arşiv = std::find_if(m_arşivler.begin(), m_arşivler.end(),
                                        [&](const Başlık& başlık) { return başlık.No == toplam.Arşiv; });
        if (arşiv != m_arşivler.end()) noktalar.push_back({&*arşiv, toplam.Toplam, toplam.Dikkat});
    }
    if (!Deyimler::Yazılabilir(m_ürün.Grup + m_ürün.Ürün)) return {};
    return BugünküFöyleriOku(ODBCBağlantısı(), m_ürün, OndalıkBasamak, [&](ArşivFöyü& föy) -> İşSonucu {
        noktalar.push_back({nullptr, föy.Toplam, föy.Dikkat});
        return {};
    });
}

void GelişimBölümü::Oku() {
    m_eski = !isVisible();
    if (m_eski) return;
    if (m_adlarEski) AdlarıOku();
    std::vector<Nokta> noktalar;
    const İşSonucu sonuç = NoktalarıOku(noktalar);
    if (!sonuç.Tamam()) noktalar.clear();  // a part is no history
    m_kaynak->Satırlar = std::move(noktalar);
    m_model->Yenile();
    Çiz();
    ArşivSonucunuGöster(sonuç);
}

void GelişimBölümü::Çiz() {
    const std::vector<Nokta>& noktalar = m_kaynak->Satırlar;
    m_başlık->setText(m_ürün.Tümü() ? QString() : SatırlaraBölünür(KapsamMetni(m_ürün)));
    const QDateTime şimdi(Bugün(), QTime::currentTime());
    QList<BasamakDizisi> diziler;
    if (!noktalar.empty()) {
        BasamakDizisi dizi{KapsamMetni(m_ürün), noktalar.front().Toplam.Double(), {}, true, true};
        for (const Nokta& nokta : noktalar) {
            QDateTime zaman = nokta.Arşiv ? GününBaşı(nokta.Arşiv->Gün) : şimdi;
            // A clock that was set back: the order of the archives holds.
            if (!dizi.Noktalar.isEmpty()) zaman = std::max(zaman, dizi.Noktalar.last().Zaman);
            dizi.Noktalar.append({zaman, nokta.Toplam.Double()});
        }
        diziler.append(dizi);
    }
    m_grafik->Göster(diziler, diziler.isEmpty() ? şimdi : std::max(şimdi, diziler.first().Noktalar.last().Zaman));
    m_grafik->setAccessibleName(GrafikMetni());
    m_kaydet->setEnabled(!noktalar.empty());
}

QString GelişimBölümü::GrafikMetni() const {
    const std::vector<Nokta>& noktalar = m_kaynak->Satırlar;
    if (noktalar.empty()) return Metin(ArşivMetni::GrafikAdıBoş);
    const auto [en, boy] = std::minmax_element(noktalar.begin(), noktalar.end(),
                                               [](const Nokta& a, const Nokta& b) { return a.Toplam < b.Toplam; });
    const auto tutar = [](const Nokta& nokta) { return ArşivTutarı(ArşivGösterimi(nokta.Toplam)); };
    const std::size_t son = noktalar.size() - 1;
    return Metin(ArşivMetni::GrafikAdı)
        .arg(KapsamMetni(m_ürün), tutar(noktalar.front()), m_kaynak->Hücre(0, GGün), tutar(noktalar.back()),
             m_kaynak->Hücre(son, GGün), tutar(*en), tutar(*boy));
}
