#include "UrunAgaci.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPersistentModelIndex>
#include <QSet>
#include <QSignalBlocker>
#include <QTimer>
#include <set>

#include "DuzenlemeDenetcisi.h"
#include "FormParcalari.h"
#include "MesajKutusu.h"
#include "MetinTablosu.h"
#include "MetinTemsilcisi.h"
#include "TurkceSira.h"
#include "UrunAdlandirma.h"
#include "Yukleyiciler.h"

namespace {

// The name editor. It hands the typed name over instead of writing it into the node: the data file decides.
class AdTemsilcisi : public MetinTemsilcisi {
  public:
    AdTemsilcisi(QObject* sahip, std::function<void(const QModelIndex&, const QString&)> adVerildi)
        : MetinTemsilcisi(sahip), m_adVerildi(std::move(adVerildi)) {}

    QWidget* createEditor(QWidget* sahip, const QStyleOptionViewItem& seçenek, const QModelIndex& yer) const override {
        QWidget* düzenleyici = QStyledItemDelegate::createEditor(sahip, seçenek, yer);
        if (auto* kutu = qobject_cast<QLineEdit*>(düzenleyici)) {
            AdYazılsın(kutu);
            kutu->setObjectName(QStringLiteral("AdDüzenleyici"));
        }
        return düzenleyici;
    }

    // A name is being typed: what would lead away from it does nothing.
    bool eventFilter(QObject* düzenleyici, QEvent* olay) override {
        const bool tuş = olay->type() == QEvent::ShortcutOverride || olay->type() == QEvent::KeyPress;
        if (!tuş || !static_cast<QKeyEvent*>(olay)->matches(QKeySequence::Find))
            return MetinTemsilcisi::eventFilter(düzenleyici, olay);
        olay->accept();
        return true;
    }

    void setModelData(QWidget* düzenleyici, QAbstractItemModel*, const QModelIndex& yer) const override {
        if (const auto* kutu = qobject_cast<QLineEdit*>(düzenleyici)) m_adVerildi(yer, kutu->text());
    }

  private:
    std::function<void(const QModelIndex&, const QString&)> m_adVerildi;
};

constexpr qsizetype EnÇokSayılanÜrün = 10;  // products that a message box names

struct TürkçeÖnce {
    bool operator()(const QString& a, const QString& b) const { return Türkçe::Karşılaştır(a, b) < 0; }
};

}  // namespace

ÜrünAğacı::ÜrünAğacı(QWidget* sahip) : TekSeçimli(sahip) {
    setObjectName(QStringLiteral("ÜrünListesi"));
    setHeaderHidden(true);
    setUniformRowHeights(true);
    setEditTriggers(QAbstractItemView::SelectedClicked | QAbstractItemView::EditKeyPressed);
    setItemDelegate(new AdTemsilcisi(this, [this](const QModelIndex& yer, const QString& ad) { AdıSıraya(yer, ad); }));

    Seçilince([this] { m_olaylar.DüğümTıklandı(); });
    connect(this, &QTreeWidget::itemCollapsed, this, [this](QTreeWidgetItem* grup) {
        SessizceSeç(grup);
        m_olaylar.SeçimiYükle();
    });
}

void ÜrünAğacı::Yükle() {
    m_tam = ÜrünAğacınıYükle(*this) == Okuma::Tamam;
    SessizceSeç(topLevelItem(0));
    m_olaylar.Dolduruldu();
}

bool ÜrünAğacı::ÜrünSeçili() const {
    return currentItem() && currentItem()->parent();
}

QString ÜrünAğacı::SeçiliGrup() const {
    return ŞimdikiSeçim().Grup;
}

QString ÜrünAğacı::SeçiliÜrün() const {
    return ŞimdikiSeçim().Ürün;
}

std::int32_t ÜrünAğacı::SeçiliSıra() const {
    const QTreeWidgetItem* düğüm = currentItem();
    if (!düğüm) return -1;
    const QTreeWidgetItem* grup = düğüm->parent() ? düğüm->parent() : düğüm;
    std::int32_t sıra = düğüm == grup ? 0 : grup->indexOfChild(const_cast<QTreeWidgetItem*>(düğüm)) + 1;
    for (int i = 0; topLevelItem(i) != grup; ++i) sıra += topLevelItem(i)->childCount() + 1;
    return sıra;
}

bool ÜrünAğacı::SırayıSeç(std::int32_t sıra) {
    for (int i = 0; i < topLevelItemCount() && sıra >= 0; ++i) {
        QTreeWidgetItem* grup = topLevelItem(i);
        if (sıra <= grup->childCount()) {
            QTreeWidgetItem* düğüm = sıra == 0 ? grup : grup->child(sıra - 1);
            SessizceSeç(düğüm);
            scrollToItem(düğüm);
            return true;
        }
        sıra -= grup->childCount() + 1;
    }
    return false;
}

bool ÜrünAğacı::ÜrünüSeç(const QString& grup, const QString& ürün) {
    for (int i = 0; i < topLevelItemCount(); ++i) {
        if (!Türkçe::Aynı(topLevelItem(i)->text(0), grup)) continue;
        for (int j = 0; j < topLevelItem(i)->childCount(); ++j) {
            QTreeWidgetItem* düğüm = topLevelItem(i)->child(j);
            if (!Türkçe::Aynı(düğüm->text(0), ürün)) continue;
            SessizceSeç(düğüm);
            scrollToItem(düğüm);
            return true;
        }
    }
    return false;
}

void ÜrünAğacı::Sustur() {
    m_sustu = true;
    blockSignals(true);
}

bool ÜrünAğacı::edit(const QModelIndex& yer, EditTrigger neden, QEvent* olay) {
    if (!m_tam) return false;
    // Nodes are made editable as they are needed: marking each of a large tree's would cost its filling dear.
    QTreeWidgetItem* düğüm = itemFromIndex(yer);
    if (düğüm && !(düğüm->flags() & Qt::ItemIsEditable)) {
        const QSignalBlocker sessiz(this);
        düğüm->setFlags(düğüm->flags() | Qt::ItemIsEditable);
    }
    return QTreeWidget::edit(yer, neden, olay);
}

void ÜrünAğacı::mousePressEvent(QMouseEvent* olay) {
    m_boşaBasıldı = !indexAt(olay->position().toPoint()).isValid();
    TekSeçimli::mousePressEvent(olay);
}

void ÜrünAğacı::mouseReleaseEvent(QMouseEvent* olay) {
    TekSeçimli::mouseReleaseEvent(olay);
    const bool boşta = m_boşaBasıldı && !indexAt(olay->position().toPoint()).isValid();
    if (boşta && olay->button() == Qt::LeftButton && !m_sustu) m_olaylar.BoşlukTıklandı();
}

ÜrünAğacı::Seçim ÜrünAğacı::ŞimdikiSeçim() const {
    const QTreeWidgetItem* düğüm = currentItem();
    if (!düğüm) return {};
    if (!düğüm->parent()) return {düğüm->text(0), {}};
    return {düğüm->parent()->text(0), düğüm->text(0)};
}

void ÜrünAğacı::Seç(const Seçim& seçim) {
    for (int i = 0; i < topLevelItemCount(); ++i) {
        QTreeWidgetItem* grup = topLevelItem(i);
        if (grup->text(0) != seçim.Grup) continue;
        QTreeWidgetItem* seçilen = grup;
        for (int j = 0; j < grup->childCount() && !seçim.Ürün.isEmpty(); ++j) {
            if (grup->child(j)->text(0) == seçim.Ürün) seçilen = grup->child(j);
        }
        SessizceSeç(seçilen);
        return;
    }
}

void ÜrünAğacı::SessizceSeç(QTreeWidgetItem* düğüm) {
    const QSignalBlocker sessiz(this);
    setCurrentItem(düğüm);
}

void ÜrünAğacı::AdıSıraya(const QModelIndex& yer, const QString& yeni) {
    // The editor closes first: a message box may follow, and the node may have to be edited again.
    QTimer::singleShot(0, this, [this, kalıcı = QPersistentModelIndex(yer), yeni] {
        if (kalıcı.isValid() && !m_sustu) Adlandır(itemFromIndex(kalıcı), yeni);
    });
}

void ÜrünAğacı::Adlandır(QTreeWidgetItem* düğüm, const QString& yeni) {
    const QString eski = düğüm->text(0);
    if (yeni == eski || yeni.trimmed().isEmpty()) return;
    const QTreeWidgetItem* grup = düğüm->parent();
    const QString gönderilen = grup ? yeni : GrubunYazımı(düğüm, yeni);
    if (!grup && !Birleşsin(düğüm, gönderilen)) return;
    const AdlandırmaSonucu sonuç =
        grup ? ÜrünüAdlandır(grup->text(0), eski, gönderilen) : GrubuAdlandır(eski, gönderilen);
    if (sonuç == AdlandırmaSonucu::Değişti || sonuç == AdlandırmaSonucu::MalzemelerKaldı) {
        const QString grupAdı = grup ? grup->text(0) : QString();
        grup ? m_olaylar.AdDeğişti({grupAdı, eski}, {grupAdı, gönderilen})
             : m_olaylar.AdDeğişti({eski, {}}, {gönderilen, {}});
    }
    switch (sonuç) {
        case AdlandırmaSonucu::Değişti:
            AdıYerleştir(düğüm, gönderilen);
            break;
        case AdlandırmaSonucu::MalzemelerKaldı:
            YarımKaldı(MetinNo::MalzemelerEskiAdda, eski);
            AdıYerleştir(düğüm, gönderilen);
            m_olaylar.SeçimiYükle();  // the materials on display are no longer the selected product's
            break;
        case AdlandırmaSonucu::Yinelenen:
            MesajKutusuOrtala();
            MesajKutusu::Göster(MesajKutusu::Simge::Bilgi, MesajKutusu::Düğmeler::Tamam,
                                Metin(MetinNo::ÜrünListedeVar));
            editItem(düğüm);
            break;
        case AdlandırmaSonucu::Değişmedi:
            break;
    }
}

// The data file takes names that differ in their letters' case for one: another group's rows bear its name as it is
// written there, so that those which join them belong to the same node.
QString ÜrünAğacı::GrubunYazımı(const QTreeWidgetItem* grup, const QString& yeni) const {
    if (Türkçe::Aynı(grup->text(0), yeni)) return yeni;
    QString yazım;
    for (int i = 0; i < topLevelItemCount(); ++i) {
        const QString ad = topLevelItem(i)->text(0);
        if (ad == yeni) return yeni;
        if (yazım.isEmpty() && Türkçe::Aynı(ad, yeni)) yazım = ad;
    }
    return yazım.isEmpty() ? yeni : yazım;
}

// Products that both groups have become one, which nothing takes apart again: the user is asked. True without a
// question where there are none.
bool ÜrünAğacı::Birleşsin(const QTreeWidgetItem* grup, const QString& yeni) const {
    if (Türkçe::Aynı(grup->text(0), yeni)) return true;
    const QStringList buradakiler = GrubunÜrünleri(grup->text(0));
    const std::set<QString, TürkçeÖnce> buradaki(buradakiler.begin(), buradakiler.end());
    QStringList ortaklar = GrubunÜrünleri(yeni);
    ortaklar.removeIf([&](const QString& ad) { return !buradaki.count(ad); });
    if (ortaklar.isEmpty()) return true;
    if (ortaklar.size() > EnÇokSayılanÜrün) {
        ortaklar.resize(EnÇokSayılanÜrün);
        ortaklar.append(QStringLiteral("..."));
    }
    ortaklar.prepend(Metin(MetinNo::GrupBirleştirmeSorusu));
    return Sor(ortaklar.join(QLatin1Char('\n')));
}

QStringList ÜrünAğacı::GrubunÜrünleri(const QString& ad) const {
    QStringList ürünler;
    for (int i = 0; i < topLevelItemCount(); ++i) {
        const QTreeWidgetItem* grup = topLevelItem(i);
        if (!Türkçe::Aynı(grup->text(0), ad)) continue;
        for (int j = 0; j < grup->childCount(); ++j) ürünler.append(grup->child(j)->text(0));
    }
    return ürünler;
}

void ÜrünAğacı::AdıYerleştir(QTreeWidgetItem* düğüm, const QString& yeni) {
    const bool yenidenKur = BaşkaDüğümüEtkiler(düğüm, yeni);
    const QString eski = düğüm->text(0);
    {
        const QSignalBlocker sessiz(this);
        düğüm->setText(0, yeni);
    }
    if (!yenidenKur) return;

    Seçim seçim = ŞimdikiSeçim();
    if (!düğüm->parent() && Türkçe::Aynı(seçim.Grup, eski)) seçim.Grup = yeni;
    if (düğüm->parent() && Türkçe::Aynı(seçim.Ürün, eski) && seçim.Grup == düğüm->parent()->text(0)) seçim.Ürün = yeni;
    QSet<QString> açıkGruplar;
    for (int i = 0; i < topLevelItemCount(); ++i) {
        if (topLevelItem(i)->isExpanded()) açıkGruplar.insert(topLevelItem(i)->text(0));
    }
    Yükle();
    {
        const QSignalBlocker sessiz(this);
        for (int i = 0; i < topLevelItemCount(); ++i) {
            topLevelItem(i)->setExpanded(açıkGruplar.contains(topLevelItem(i)->text(0)));
        }
    }
    Seç(seçim);
    m_olaylar.SeçimiYükle();
}

bool ÜrünAğacı::BaşkaDüğümüEtkiler(const QTreeWidgetItem* düğüm, const QString& yeni) const {
    // The data file compares without regard to case, so nodes that differ from the old name in case only have been
    // renamed with it; a node of the new name is now the same group.
    const QTreeWidgetItem* üst = düğüm->parent() ? düğüm->parent() : invisibleRootItem();
    for (int i = 0; i < üst->childCount(); ++i) {
        const QTreeWidgetItem* öteki = üst->child(i);
        if (öteki != düğüm && (öteki->text(0) == yeni || Türkçe::Aynı(öteki->text(0), düğüm->text(0)))) return true;
    }
    return false;
}
