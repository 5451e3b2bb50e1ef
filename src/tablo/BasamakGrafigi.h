#pragma once

#include <QDateTime>
#include <QList>
#include <QWidget>

class QPainter;

// Values over time that hold until the next one: steps, not slopes. Dates on the axis.
struct BasamakDizisi {
    struct Nokta {
        QDateTime Zaman;
        double Değer;
    };
    QString Ad;
    double İlkDeğer = 0;     // before the first point
    QList<Nokta> Noktalar;   // in order of time
    bool ÖncesiYok = false;  // nothing is known of the time before the first point; İlkDeğer is that point's
    bool Noktalı = false;    // each point is marked
};

// Draws the series into `alan`: the same on screen, on paper and in a picture. `son`: the right end of the axis.
void BasamaklarıÇiz(QPainter& boyacı, const QRectF& alan, const QList<BasamakDizisi>& diziler, const QDateTime& son,
                    const QString& boşMetni);

class BasamakGrafiği : public QWidget {
  public:
    // `boşMetni`: what stands there while there is nothing to draw.
    BasamakGrafiği(const QString& ad, QString boşMetni, QWidget* sahip = nullptr);

    void Göster(QList<BasamakDizisi> diziler, const QDateTime& son);

    // The same as a picture, offered under `ad`; a failure is told and leaves what stood there.
    void Kaydet(QWidget& form, const QString& ad) const;

    QSize sizeHint() const override { return {480, 220}; }
    QSize minimumSizeHint() const override { return {240, 140}; }

  protected:
    void paintEvent(QPaintEvent* olay) override;

  private:
    QString m_boşMetni;
    QList<BasamakDizisi> m_diziler;
    QDateTime m_son;
};
