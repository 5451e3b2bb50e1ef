#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <QHash>
#include <QPainter>

#include "SayfaYuzeyi.h"

class QPagedPaintDevice;

// Pages on a paint device: printer, PDF file or print preview. The document is drawn in the device's own resolution and
// with its metrics. One font family stands for all printouts, and lines advance by its design height, so that pages
// break at the same rows on every device.
class AygıtYüzeyi : public SayfaYüzeyi {
  public:
    // The device must outlive the surface; its page layout gives the printable area.
    explicit AygıtYüzeyi(QPagedPaintDevice& aygıt);

    bool Başla() override;
    void Bitir() override;
    double Genişlik() const override;
    double Yükseklik() const override;
    double MetinGenişliği(const QString& metin) const override;
    double SatırYüksekliği() const override;
    void Çiz(double x1, double y1, double x2, double y2, QColor renk) override;
    void Şekil(QSizeF boy, const std::function<void(QPainter&, const QRectF&)>& çizen) override;

  protected:
    double MetniKoy(const QString& metin, Yer yer) override;
    void SayfaAç() override;

  private:
    // A font as it stands on the device.
    struct Yüz {
        int Punto;
        bool Kalın;
        QFont Font;
        QFontMetricsF Ölçü;
        double SatırYüksekliği;              // millimetres
        QHash<QString, double> Genişlikler;  // of the texts last measured, in device units

        double Genişlik(const QString& metin);
    };
    Yüz& GeçerliYüz() const;
    Yüz YüzOluştur(const Yazı& yazı) const;

    QPagedPaintDevice& m_aygıt;
    QPainter m_boyacı;
    double m_ölçek = 1;  // device units in one millimetre
    mutable QList<Yüz> m_yüzler;
};
