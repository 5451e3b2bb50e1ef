#pragma once

#include <QList>
#include <QPalette>
#include <QWidget>

class QPainter;

// Horizontal bars from a common zero, a line each: the name at the left, the figures at the right. What is below zero
// goes to the left.
struct Çubuk {
    QString Ad;
    double Değer = 0;
    QString Yazı;  // the figures; never cut
    int Doku = 0;  // colour and hatching, told apart without colours: 0 to 5
};

struct ÇubukDizisi {
    QString Başlık;
    QList<Çubuk> Çubuklar;
};

// Draws into `alan`: the same on screen, on paper and in a picture. The painter's unit is 1/96 inch.
void ÇubuklarıÇiz(QPainter& boyacı, const QRectF& alan, const ÇubukDizisi& dizi, const QPalette& palet);

// How high a plot is drawn, with a font of this line height.
double ÇubuklarınBoyu(const ÇubukDizisi& dizi, double satır);

// Black on white, whatever the screen's theme.
QPalette KâğıtPaleti();

class ÇubukGrafiği : public QWidget {
  public:
    explicit ÇubukGrafiği(const QString& ad, QWidget* sahip = nullptr);

    // Its name tells the caption and the first bars, its description all of them.
    void Göster(ÇubukDizisi dizi);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* olay) override;

  private:
    ÇubukDizisi m_dizi;
};
