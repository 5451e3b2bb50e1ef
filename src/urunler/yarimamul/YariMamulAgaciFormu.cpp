#include "YariMamulAgaciFormu.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QSplitter>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "CizelgeKaydi.h"
#include "FiyatIsi.h"
#include "FormParcalari.h"
#include "MetinTablosu.h"
#include "MetinTemsilcisi.h"
#include "OdbcModulu.h"
#include "SayiKutusu.h"
#include "SayiMetni.h"
#include "SutunluListe.h"
#include "Tablo.h"
#include "TekSecimli.h"
#include "UrunMetinleri.h"
#include "YariMamulCiktilari.h"
#include "YariMamulMetinleri.h"
#include "YariMamulSozleri.h"
#include "Yazdirma.h"

namespace {

enum AğaçSütunları { ASAd, ASMiktar, ASToplam, ASNot };
enum ToplamSütunları { TMalzeme, TMiktar, TBirim, TNot };

// On the node: the product that it stands for, and how many of it one piece of the whole takes.
constexpr int ÜrünRolü = Qt::UserRole + 10;
constexpr int KatRolü = Qt::UserRole + 11;

// Ctrl+C copies the marked row.
class Ağaç : public TekSeçimli<QTreeWidget> {
  protected:
    void keyPressEvent(QKeyEvent* olay) override {
        const QTreeWidgetItem* seçili = SeçiliÖğe();
        if (!olay->matches(QKeySequence::Copy) || !seçili) return TekSeçimli::keyPressEvent(olay);
        SatırıPanoyaKoy(*seçili, {false, true, true, false});
    }
};

QString Miktar(double miktar, const QString& birim) {
    return birim.isEmpty() ? AçılımMiktarı(miktar) : AçılımMiktarı(miktar) + QLatin1Char(' ') + birim;
}

QString SatırNotu(const AçılımSatırı& satır) {
    QStringList notlar;
    if (!satır.Miktar) notlar.append(Metin(YarıMamulMetni::NotOkunamayan));
    if (satır.FarklıBirim) notlar.append(Metin(YarıMamulMetni::NotFarklıBirim));
    if (satır.Durum != BağDurumu::Uyuyor)
        notlar.append(Metin(YarıMamulMetni::NotAçılamaz).arg(DurumMetni(satır.Durum)));
    return notlar.join(QStringLiteral("; "));
}

}  // namespace

QList<TabloSütunu> AçılımKaynağı::Sütunlar() {
    return {{MetinNo::MalzemeSütunu, 28},
            {YarıMamulMetni::ToplamSütunu, 14, true},
            {YarıMamulMetni::BirimSütunu, 12},
            {YarıMamulMetni::NotSütunu, 24}};
}

QString AçılımKaynağı::Hücre(std::size_t satır, int sütun) const {
    const AçılımToplamı& toplam = Satırlar[satır];
    switch (sütun) {
        case TMalzeme:
            return toplam.Malzeme;
        case TMiktar:
            return AçılımMiktarı(toplam.Miktar);
        case TBirim:
            return toplam.Birim;
        default:
            return AçılımNotu(toplam);
    }
}

int AçılımKaynağı::Karşılaştır(std::size_t a, std::size_t b, int sütun) const {
    return sütun == TMiktar ? Sırala(Satırlar[a].Miktar, Satırlar[b].Miktar) : TabloKaynağı::Karşılaştır(a, b, sütun);
}

YarıMamulAğacıFormu::YarıMamulAğacıFormu(ÜrünAdı ürün, QWidget* sahip)
    : QDialog(sahip), m_ürün(std::move(ürün)), m_model(m_kaynak, AçılımKaynağı::Sütunlar()) {
    setObjectName(QStringLiteral("YarıMamulAğacıFormu"));
    setWindowTitle(Metin(YarıMamulMetni::AğaçBaşlığı));
    KontrolleriKur();
    Yerleştir();
}

YarıMamulAğacıFormu::~YarıMamulAğacıFormu() {
    delete m_tablo;  // before the model that it shows
}

void YarıMamulAğacıFormu::KontrolleriKur() {
    m_ağaç = new Ağaç;
    m_ağaç->setObjectName(QStringLiteral("MalzemeAğacı"));
    m_ağaç->setUniformRowHeights(true);
    m_ağaç->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_ağaç->setItemDelegate(new MetinTemsilcisi(m_ağaç, {{}, {ASMiktar, ASToplam}}));
    m_ağaç->setHeaderLabels({Metin(MetinNo::MalzemeSütunu), Metin(MetinNo::MiktarıSütunu),
                             Metin(YarıMamulMetni::ToplamSütunu), Metin(YarıMamulMetni::NotSütunu)});
    Enterİleİlerlesin(m_ağaç);
    connect(m_ağaç, &QTreeWidget::itemExpanded, this, [this](QTreeWidgetItem* düğüm) { Aç(düğüm); });
    m_adetKutusu = new SayıKutusu(SayıKutusu::Tür::Serbest);
    m_adetKutusu->setObjectName(QStringLiteral("AdetKutusu"));
    m_adetKutusu->setText(QStringLiteral("1"));
    connect(m_adetKutusu, &QLineEdit::textChanged, this, [this] { AdetDeğişti(); });
    m_tablo = new Tablo(QStringLiteral("ToplamlarTablosu"), m_model);
    m_not = TabloNotu(QStringLiteral("ToplamlarNotu"), *m_tablo);
    m_yazdır = DüğmeOluştur(QStringLiteral("YazdırButonu"), MetinNo::Yazdır,
                            [this] { static_cast<void>(Yazdır(*this, *m_yazdır, Rapor())); });
    m_pdf = DüğmeOluştur(QStringLiteral("PdfKaydetButonu"), MetinNo::PdfKaydet,
                         [this] { PdfKaydet(*this, *m_pdf, Rapor()); });
}

void YarıMamulAğacıFormu::Yerleştir() {
    auto* ad = new QLabel(Metin(YarıMamulMetni::AğaçÜrünü).arg(m_ürün.Grup, m_ürün.Ad));
    ad->setObjectName(QStringLiteral("ÜrünEtiketi"));
    ad->setTextFormat(Qt::PlainText);
    ad->setWordWrap(true);
    auto* üst = new QHBoxLayout;
    üst->addWidget(ad, 1);
    üst->addWidget(VurgulananEtiket(1, YarıMamulMetni::AdetEtiketi, m_adetKutusu));
    üst->addWidget(m_adetKutusu);
    auto* ağaçBölümü = new QWidget;
    auto* ağaçDüzeni = new QVBoxLayout(ağaçBölümü);
    ağaçDüzeni->setContentsMargins(0, 0, 0, 0);
    ağaçDüzeni->addWidget(VurgulananEtiket(2, YarıMamulMetni::AğaçEtiketi, m_ağaç));
    ağaçDüzeni->addWidget(m_ağaç, 1);
    auto* bölen = new QSplitter(Qt::Vertical);
    bölen->setObjectName(QStringLiteral("Bölen"));
    bölen->setChildrenCollapsible(false);
    bölen->addWidget(ağaçBölümü);
    bölen->addWidget(TabloBölümü(3, YarıMamulMetni::ToplamlarEtiketi, m_tablo));
    auto* önizle =
        DüğmeOluştur(QStringLiteral("ÖnizlemeButonu"), MetinNo::Önizleme, [this] { Önizle(*this, Rapor()); });
    auto* aktar = DüğmeOluştur(QStringLiteral("TabloyaAktarButonu"), ÜrünMetni::TabloyaAktar, [this] { Çizelgeye(); });
    auto* kapat = DüğmeOluştur(QStringLiteral("KapatButonu"), MetinNo::Kapat, [this] { reject(); });
    auto* düzen = new QVBoxLayout(this);
    düzen->addLayout(üst);
    düzen->addWidget(bölen, 1);
    düzen->addLayout(DüğmeSırası({m_yazdır, m_pdf, önizle, aktar, nullptr, kapat}));
    m_adetKutusu->setFocus();
    BoyVer(*this, {860, 680});
    m_ağaç->header()->resizeSection(ASAd, 330);
    m_ağaç->header()->resizeSection(ASMiktar, 140);
    m_ağaç->header()->resizeSection(ASToplam, 140);
}

bool YarıMamulAğacıFormu::Yükle() {
    if (!İşSonucunuGöster(m_açılım.Oku(ODBCBağlantısı(), m_ürün))) return false;
    AdetDeğişti();
    return true;
}

void YarıMamulAğacıFormu::Doldur(QTreeWidgetItem* düğüm, std::uint32_t ürün, double kat) {
    QList<QTreeWidgetItem*> çocuklar;
    for (const AçılımSatırı& satır : m_açılım.Ürünler()[ürün].Satırlar) {
        auto* çocuk = new QTreeWidgetItem;
        çocuk->setText(ASAd, satır.Malzeme);
        çocuk->setText(ASMiktar, satır.MiktarMetni);
        if (satır.Miktar) çocuk->setText(ASToplam, Miktar(m_adet * kat * *satır.Miktar, satır.Birim));
        çocuk->setText(ASNot, SatırNotu(satır));
        if (satır.Ürün != AçılımSatırı::YOK) {
            çocuk->setChildIndicatorPolicy(QTreeWidgetItem::ShowIndicator);
            çocuk->setData(ASAd, ÜrünRolü, satır.Ürün);
            çocuk->setData(ASAd, KatRolü, kat * satır.Miktar.value_or(0) * satır.Oran);
        }
        çocuklar.append(çocuk);
    }
    düğüm ? düğüm->addChildren(çocuklar) : m_ağaç->addTopLevelItems(çocuklar);
}

void YarıMamulAğacıFormu::Aç(QTreeWidgetItem* düğüm) {
    const QVariant ürün = düğüm->data(ASAd, ÜrünRolü);
    if (düğüm->childCount() == 0 && ürün.isValid()) Doldur(düğüm, ürün.toUInt(), düğüm->data(ASAd, KatRolü).toDouble());
}

// The tree begins anew, closed; a number that is none, or not above 0, shows nothing rather than something wrong.
void YarıMamulAğacıFormu::AdetDeğişti() {
    const std::optional<Para> adet = ParaOku(m_adetKutusu->text());
    const bool geçerli = adet && *adet > Para();
    m_adet = geçerli ? adet->Double() : 0;
    m_ağaç->clear();
    m_kaynak.Satırlar.clear();
    if (geçerli) {
        Doldur(nullptr, 0, 1);
        m_kaynak.Satırlar = m_açılım.Toplamlar(m_adet);
    }
    m_model.Yenile();
    NotuYaz(*m_not, *m_tablo, geçerli ? QString() : Metin(YarıMamulMetni::AdetGerekli));
    for (QPushButton* düğme : findChildren<QPushButton*>())
        if (düğme->objectName() != QLatin1String("KapatButonu")) düğme->setEnabled(geçerli);
}

Yazdırılacak YarıMamulAğacıFormu::Rapor() const {
    const QString başlık = Metin(YarıMamulMetni::AğaçRaporu).arg(m_ürün.Grup, m_ürün.Ad, AçılımMiktarı(m_adet));
    return {windowTitle(), [this, başlık](SayfaYüzeyi& yüzey) { AçılımıYaz(yüzey, başlık, m_kaynak.Satırlar); }, true};
}

void YarıMamulAğacıFormu::Çizelgeye() {
    ÇizelgeyeKaydet(*this, windowTitle() + QLatin1Char(' ') + m_ürün.Ad,
                    [this](const QString& yol) { return AçılımıÇizelgeyeYaz(yol, windowTitle(), m_kaynak.Satırlar); });
}
