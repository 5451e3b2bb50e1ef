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
    MetinTemsilcisi::Sütunlar yerler;
    for (const Sütun& sütun : sütunlar) {
        const int sıra = static_cast<int>(m_bölenler.size());
        if (sütun.Sayı) yerler.Sağda.append(sıra);
        if (sütun.Sayı || sütun.Miktar) yerler.Sayılar.append(sıra);
        başlıklar.append(Metin(sütun.Başlık));
        m_bölenler.append(sütun.Bölen);
    }
    setHeaderLabels(başlıklar);
    for (const int sıra : yerler.Sağda) headerItem()->setTextAlignment(sıra, Qt::AlignRight | Qt::AlignVCenter);
    setItemDelegate(new MetinTemsilcisi(this, yerler));
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
