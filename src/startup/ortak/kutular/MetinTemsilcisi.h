#pragma once

#include <QList>
#include <QStyledItemDelegate>

// What a row tells besides the texts in its cells, as plain text; asked for when a tooltip comes up. Empty: nothing.
inline constexpr int AyrıntıRolü = Qt::UserRole + 1;

// Draws the texts of trees and lists. A figure that is too wide for its column is written smaller; a text that its
// column cuts even so ends in "…" and is told in full by a tooltip, as plain text.
class MetinTemsilcisi : public QStyledItemDelegate {
  public:
    struct Sütunlar {
        QList<int> Sağda;    // texts that stand at the right
        QList<int> Sayılar;  // figures
    };
    explicit MetinTemsilcisi(QObject* sahip, Sütunlar sütunlar = {});

    void paint(QPainter* çizici, const QStyleOptionViewItem& seçenek, const QModelIndex& yer) const override;
    QSize sizeHint(const QStyleOptionViewItem& seçenek, const QModelIndex& yer) const override;
    bool helpEvent(QHelpEvent* olay, QAbstractItemView* görünüm, const QStyleOptionViewItem& seçenek,
                   const QModelIndex& yer) override;

  protected:
    void initStyleOption(QStyleOptionViewItem* seçenek, const QModelIndex& yer) const override;

  private:
    Sütunlar m_sütunlar;
};
