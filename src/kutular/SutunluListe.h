#pragma once

#include <QList>
#include <QTreeWidget>

#include "TekSecimli.h"

enum class MetinNo : int;

// A list of rows with columns. Each column's width is the list's own width divided by the column's divisor, also after
// resizing; figures stand at the right; the first row is current once rows are put in.
class SütunluListe : public TekSeçimli<QTreeWidget> {
  public:
    struct Sütun {
        MetinNo Başlık;
        double Bölen;         // list width / Bölen = column width
        bool Sayı;            // figures: right-aligned
        bool Miktar = false;  // figures with their unit: left-aligned
    };

    explicit SütunluListe(const QList<Sütun>& sütunlar, QWidget* sahip = nullptr);

    bool Boş() const { return topLevelItemCount() == 0; }

    // Replaces the rows; takes ownership of them.
    void SatırlarıKoy(const QList<QTreeWidgetItem*>& satırlar);

    // A text of the marked row; empty when there is none.
    QString SeçiliMetin(int sütun) const;

  protected:
    void resizeEvent(QResizeEvent* olay) override;
    void keyPressEvent(QKeyEvent* olay) override;  // Ctrl+C copies the marked row, tab between cells

  private:
    QList<double> m_bölenler;
    QList<bool> m_sayılar;  // the columns of figures
};

// A row on the clipboard as a spreadsheet pastes it, tab between cells; `sayılar`: of each column whether it holds
// figures.
void SatırıPanoyaKoy(const QTreeWidgetItem& satır, const QList<bool>& sayılar);
