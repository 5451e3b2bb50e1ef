#pragma once

#include <QTableView>

#include "TabloModeli.h"

class QLabel;

// A long list: one row is marked at a time, Space ticks it, a click on a caption sorts, Ctrl+C copies the marked row
// and, with Shift, all shown ones; Tab leaves the list. No figure is cut unseen (MetinTemsilcisi).
class Tablo : public QTableView {
  public:
    // `model` belongs to the caller and outlives the table.
    Tablo(const QString& ad, TabloModeli& model, QWidget* sahip = nullptr);

    // The marked row's number in the source.
    std::optional<std::size_t> SeçiliSatır() const;

    // Marks the first shown row of which this holds and brings it into view. False: there is none, and none is marked.
    bool SatırıSeç(const std::function<bool(std::size_t satır)>& aranan);

    // Wide enough for all columns.
    QSize sizeHint() const override;

    // All shown rows, tab between cells, with the captions.
    QString GörünenlerinMetni() const;

  protected:
    void keyPressEvent(QKeyEvent* olay) override;
    void focusInEvent(QFocusEvent* olay) override;
    int sizeHintForColumn(int sütun) const override;

  private:
    QString SatırMetni(int satır) const;

    TabloModeli& m_model;
};

// The table with its caption above it, as a part of a form.
QWidget* TabloBölümü(int sıra, MetinNo başlık, Tablo* tablo);

// A line of text amid an empty table, for what it has to say then.
QLabel* TabloNotu(const QString& ad, Tablo& tablo);
// "" where the table has rows.
void NotuYaz(QLabel& not_, Tablo& tablo, const QString& metin);
