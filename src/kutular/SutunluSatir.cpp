#include "SutunluSatir.h"

#include <QTreeWidget>

#include "MetinTemsilcisi.h"
#include "SayiMetni.h"

namespace {

// The number that the text begins with, up to the first blank.
QStringView Sayısı(const QString& metin) {
    const qsizetype boşluk = metin.indexOf(u' ');
    return boşluk < 0 ? QStringView(metin) : QStringView(metin).left(boşluk);
}

// The stored text with as many decimals as it has; empty: it has no more to tell than what is shown.
QString Gizlenen(const QString& saklanan, const QString& gösterilen) {
    const QStringView sayı = Sayısı(saklanan);
    const auto değer = DoubleOku(sayı, NoktaKuralı::Yerinde);
    if (!değer || değer == DoubleOku(Sayısı(gösterilen), NoktaKuralı::Yerinde)) return {};
    const qsizetype virgül = sayı.indexOf(u',');
    const int basamak = virgül < 0 ? 0 : static_cast<int>(sayı.size() - virgül - 1);
    return SayıMetniBiçimle(sayı, basamak).value_or(QString()) + saklanan.mid(sayı.size());
}

}  // namespace

QVariant SütunluSatır::data(int sütun, int rol) const {
    if (rol == Qt::DisplayRole || rol == Qt::EditRole) {
        return sütun >= 0 && sütun < m_hücreler.size() ? m_hücreler.at(sütun) : QString();
    }
    if (rol == Qt::AccessibleDescriptionRole && !m_not.isEmpty()) return m_not;
    return rol == AyrıntıRolü ? Ayrıntı() : QTreeWidgetItem::data(sütun, rol);
}

QString SütunluSatır::Ayrıntı() const {
    QStringList satırlar;
    for (qsizetype sütun = 0; sütun < m_saklananlar.size(); ++sütun) {
        const QString gizlenen = Gizlenen(m_saklananlar.at(sütun), m_hücreler.value(sütun));
        if (gizlenen.isEmpty() || !treeWidget()) continue;
        satırlar.append(treeWidget()->headerItem()->text(static_cast<int>(sütun)) + QStringLiteral(": ") + gizlenen);
    }
    if (!m_not.isEmpty()) satırlar.prepend(m_not);
    return satırlar.join(QLatin1Char('\n'));
}
