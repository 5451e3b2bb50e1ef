#pragma once

#include <QStringList>
#include <QTreeWidgetItem>

// A row of a report list. It holds its cells' texts itself, which takes less than the toolkit's own cells do; they do
// not change. Beside a figure it may hold the stored text that the figure was made from: where the decimals in force
// hide some of its digits, the row tells the whole (AyrıntıRolü).
class SütunluSatır : public QTreeWidgetItem {
  public:
    // saklananlar: stored texts by column, with "," as their decimal mark; empty where there is none to tell.
    explicit SütunluSatır(QStringList hücreler, QStringList saklananlar = {})
        : m_hücreler(std::move(hücreler)), m_saklananlar(std::move(saklananlar)) {}

    // Told with the row's tooltip, and to screen readers.
    void NotKoy(QString metin) { m_not = std::move(metin); }

    // The stored text; empty: none is told.
    QString Saklanan(int sütun) const { return m_saklananlar.value(sütun); }

    QVariant data(int sütun, int rol) const override;

  private:
    QString Ayrıntı() const;

    QStringList m_hücreler;
    QStringList m_saklananlar;
    QString m_not;
};
