#include "RaporListesi.h"

#include <QHeaderView>

#include "MetinTablosu.h"
#include "MetinTemsilcisi.h"

RaporListesi::RaporListesi(const QList<Sütun>& sütunlar, QWidget* sahip) : TekSeçimli(sahip) {
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setTabKeyNavigation(false);
    QStringList başlıklar;
    QList<int> sayılar;
    for (const Sütun& sütun : sütunlar) {
        if (sütun.Sayı) sayılar.append(static_cast<int>(m_bölenler.size()));
        başlıklar.append(Metin(sütun.Başlık));
        m_bölenler.append(sütun.Bölen);
    }
    setHeaderLabels(başlıklar);
    for (const int sayı : sayılar) headerItem()->setTextAlignment(sayı, Qt::AlignRight | Qt::AlignVCenter);
    setItemDelegate(new MetinTemsilcisi(this, sayılar));
    header()->setStretchLastSection(false);
    header()->setSectionsMovable(false);
}

void RaporListesi::SatırlarıKoy(const QList<QTreeWidgetItem*>& satırlar) {
    clear();
    addTopLevelItems(satırlar);
    setCurrentItem(topLevelItem(0));
}

QString RaporListesi::SeçiliMetin(int sütun) const {
    const QTreeWidgetItem* seçili = SeçiliÖğe();
    return seçili ? seçili->text(sütun) : QString();
}

void RaporListesi::resizeEvent(QResizeEvent* olay) {
    QTreeWidget::resizeEvent(olay);
    for (int sütun = 0; sütun < m_bölenler.size(); ++sütun) {
        header()->resizeSection(sütun, static_cast<int>(width() / m_bölenler.at(sütun)));
    }
}
