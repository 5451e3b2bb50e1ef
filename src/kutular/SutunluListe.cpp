#include "SutunluListe.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>

#include "MetinTablosu.h"
#include "MetinTemsilcisi.h"
#include "TabloMetni.h"
#include "TurkceMetin.h"

SütunluListe::SütunluListe(const QList<Sütun>& sütunlar, QWidget* sahip) : TekSeçimli(sahip) {
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setTabKeyNavigation(false);
    QStringList başlıklar;
    MetinTemsilcisi::Sütunlar yerler;
    for (const Sütun& sütun : sütunlar) {
        const int sıra = static_cast<int>(m_bölenler.size());
        if (sütun.Sayı) yerler.Sağda.append(sıra);
        if (sütun.Sayı || sütun.Miktar) yerler.Sayılar.append(sıra);
        başlıklar.append(Metin(sütun.Başlık));
        m_bölenler.append(sütun.Bölen);
        m_sayılar.append(sütun.Sayı || sütun.Miktar);
    }
    setHeaderLabels(başlıklar);
    for (const int sıra : yerler.Sağda) headerItem()->setTextAlignment(sıra, Qt::AlignRight | Qt::AlignVCenter);
    setItemDelegate(new MetinTemsilcisi(this, yerler));
    header()->setStretchLastSection(false);
    header()->setSectionsMovable(false);
}

void SütunluListe::SatırlarıKoy(const QList<QTreeWidgetItem*>& satırlar) {
    clear();
    addTopLevelItems(satırlar);
    setCurrentItem(topLevelItem(0));
}

QString SütunluListe::SeçiliMetin(int sütun) const {
    const QTreeWidgetItem* seçili = SeçiliÖğe();
    return seçili ? seçili->text(sütun) : QString();
}

void SütunluListe::keyPressEvent(QKeyEvent* olay) {
    const QTreeWidgetItem* seçili = SeçiliÖğe();
    if (!olay->matches(QKeySequence::Copy) || !seçili) return TekSeçimli::keyPressEvent(olay);
    SatırıPanoyaKoy(*seçili, m_sayılar);
}

void SatırıPanoyaKoy(const QTreeWidgetItem& satır, const QList<bool>& sayılar) {
    QStringList hücreler;
    for (int sütun = 0; sütun < sayılar.size(); ++sütun) {
        const QString hücre = satır.text(sütun);
        hücreler.append(TekSatır(sayılar.at(sütun) ? TabloRakamı(hücre) : TabloMetni(hücre)));
    }
    QGuiApplication::clipboard()->setText(hücreler.join(QLatin1Char('\t')));
}

void SütunluListe::resizeEvent(QResizeEvent* olay) {
    QTreeWidget::resizeEvent(olay);
    for (int sütun = 0; sütun < m_bölenler.size(); ++sütun) {
        header()->resizeSection(sütun, static_cast<int>(width() / m_bölenler.at(sütun)));
    }
}
