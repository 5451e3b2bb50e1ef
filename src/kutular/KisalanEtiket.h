#pragma once

#include <QLabel>

// A line of text that takes the room that there is: where it does not fit it ends in "…" and is told in full by a
// tooltip, as plain text.
class KısalanEtiket : public QLabel {
  public:
    explicit KısalanEtiket(const QString& ad);

    QSize sizeHint() const override { return {0, QLabel::sizeHint().height()}; }
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    bool event(QEvent* olay) override;
    void paintEvent(QPaintEvent* olay) override;

  private:
    QString Sığan() const;
};
