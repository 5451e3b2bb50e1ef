#pragma once

#include <QColor>
#include <QRectF>
#include <QString>
#include <functional>
#include <limits>

class QPainter;

// A document to print on, page after page. Every position and width is in millimetres, measured from the printable
// area's top left corner; a text's position is its top left corner. The current position starts each page at (0, 0).
//
// Printing goes Başla, texts and lines, Bitir. What a surface cannot do it leaves out without a word, as a printout
// runs to its end whatever the printer says.
class SayfaYüzeyi {
  public:
    static constexpr double SINIRSIZ = std::numeric_limits<double>::infinity();

    struct Yazı {
        int Punto = 11;
        bool Kalın = false;
        bool AltıÇizili = false;
        bool operator==(const Yazı&) const = default;
    };

    // Room for a text that may not run into what stands at its right: a wider one is narrowed, and cut where that is
    // not enough; the first `Korunan` characters (a figure) are never cut.
    struct Yer {
        double Genişlik = SINIRSIZ;
        qsizetype Korunan = 0;
    };

    SayfaYüzeyi() = default;
    SayfaYüzeyi(const SayfaYüzeyi&) = delete;
    SayfaYüzeyi& operator=(const SayfaYüzeyi&) = delete;
    virtual ~SayfaYüzeyi() = default;

    // Opens the document, in millimetres. False: it cannot be opened, and nothing else is to be called.
    virtual bool Başla() = 0;
    // Closes the document; a printer takes its pages now.
    virtual void Bitir() = 0;

    // Of the printable area.
    virtual double Genişlik() const = 0;
    virtual double Yükseklik() const = 0;

    void PuntoAyarla(int punto) { m_yazı.Punto = punto; }
    void KalınAyarla(bool kalın) { m_yazı.Kalın = kalın; }
    void AltÇizgiAyarla(bool altıÇizili) { m_yazı.AltıÇizili = altıÇizili; }

    double X() const { return m_x; }
    double Y() const { return m_y; }
    void XAyarla(double x) { m_x = x; }
    void YAyarla(double y) { m_y = y; }

    // In the current font.
    virtual double MetinGenişliği(const QString& metin) const = 0;
    virtual double SatırYüksekliği() const = 0;

    // Prints at the current position, which moves to the text's end on the same line...
    void Yaz(const QString& metin, Yer yer = {SINIRSIZ, 0});
    // ...or to the start of the next line.
    void YazVeSatırıBitir(const QString& metin, Yer yer = {SINIRSIZ, 0});

    // A straight line; the current position stays.
    virtual void Çiz(double x1, double y1, double x2, double y2, QColor renk) = 0;

    // Lets `çizen` draw into a rectangle of this size, in millimetres, whose top left corner is the current position;
    // that stays. The painter's unit is 1/96 inch, so that the drawing is that of a screen.
    virtual void Şekil(QSizeF, const std::function<void(QPainter&, const QRectF&)>&) {}

    void YeniSayfa();
    int SayfaNo() const { return m_sayfaNo; }

  protected:
    const Yazı& GeçerliYazı() const { return m_yazı; }

    // Prints in the current font and gives the width that the text takes.
    virtual double MetniKoy(const QString& metin, Yer yer) = 0;
    virtual void SayfaAç() = 0;

  private:
    Yazı m_yazı;
    double m_x = 0;
    double m_y = 0;
    int m_sayfaNo = 1;
};
