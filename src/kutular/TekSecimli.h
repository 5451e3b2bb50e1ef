#pragma once

#include <QAbstractItemView>
#include <QItemSelectionModel>
#include <QMouseEvent>
#include <QPersistentModelIndex>
#include <functional>
#include <utility>

// A list or tree (QListWidget, QTreeWidget) in which the current row and the marked row are one, so that a command acts
// on nothing but what the user sees marked. Left to itself the toolkit lets the two part: it makes the first row
// current unseen when the focus comes in, and Ctrl takes the mark off the current row. Here the focus alone selects
// nothing, and a mark goes only to another row or by the program.
template <typename Görünüm>
class TekSeçimli : public Görünüm {
  public:
    explicit TekSeçimli(QWidget* sahip = nullptr) : Görünüm(sahip) {
        Görünüm::setSelectionMode(QAbstractItemView::SingleSelection);
    }

    // The marked row; nullptr when there is none.
    auto SeçiliÖğe() const {
        const auto seçililer = Görünüm::selectedItems();
        return seçililer.isEmpty() ? nullptr : seçililer.first();
    }

    // `iş` runs once for each choice: when another row (or none) is chosen, by whatever means, and when the user clicks
    // the row that was chosen already. It does not run while the view's signals are blocked. To be called once.
    void Seçilince(const std::function<void()>& iş) {
        QObject::connect(this, &Görünüm::currentItemChanged, this, iş);
        QObject::connect(this, &QAbstractItemView::clicked, this, [this, iş](const QModelIndex& yer) {
            // A click that changed the row has been answered already.
            if (std::exchange(m_yenidenBasılan, {}) == yer) iş();
        });
    }

  protected:
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& yer, const QEvent* olay) const override {
        // A click beside the rows changes nothing; the program may clear the selection.
        return yer.isValid() || !olay ? Seç() : QItemSelectionModel::NoUpdate;
    }

    void currentChanged(const QModelIndex& yeni, const QModelIndex& eski) override {
        m_yenidenBasılan = QPersistentModelIndex();
        // Before anyone hears of the new row: on a press the toolkit marks it only afterwards.
        if (yeni.isValid() && !Görünüm::selectionModel()->isSelected(yeni))
            Görünüm::selectionModel()->select(yeni, Seç());
        Görünüm::currentChanged(yeni, eski);
    }

    void focusInEvent(QFocusEvent* olay) override {
        // Says that there shall be no current row; without it the first one becomes current.
        if (!Görünüm::currentIndex().isValid()) Görünüm::setCurrentIndex(QModelIndex());
        Görünüm::focusInEvent(olay);
    }

    void mousePressEvent(QMouseEvent* olay) override {
        const QModelIndex yer = Görünüm::indexAt(olay->position().toPoint());
        m_yenidenBasılan = yer == Görünüm::currentIndex() ? yer : QModelIndex();
        Görünüm::mousePressEvent(olay);
    }

  private:
    QItemSelectionModel::SelectionFlags Seç() const {
        QItemSelectionModel::SelectionFlags bayraklar = QItemSelectionModel::ClearAndSelect;
        if (Görünüm::selectionBehavior() == QAbstractItemView::SelectRows) bayraklar |= QItemSelectionModel::Rows;
        return bayraklar;
    }

    QPersistentModelIndex m_yenidenBasılan;  // pressed while it was current already
};
