#pragma once

#include <QList>
#include <QStyledItemDelegate>

// Draws the texts of trees and lists: figures stand at the right, and a text that its column cuts is told in full by a
// tooltip, as plain text.
class MetinTemsilcisi : public QStyledItemDelegate {
  public:
    explicit MetinTemsilcisi(QObject* sahip, QList<int> sayıSütunları = {});

    QSize sizeHint(const QStyleOptionViewItem& seçenek, const QModelIndex& yer) const override;
    bool helpEvent(QHelpEvent* olay, QAbstractItemView* görünüm, const QStyleOptionViewItem& seçenek,
                   const QModelIndex& yer) override;

  protected:
    void initStyleOption(QStyleOptionViewItem* seçenek, const QModelIndex& yer) const override;

  private:
    QList<int> m_sayıSütunları;
};
