#pragma once

#include "SayfaYuzeyi.h"
#include "VarnekTesti.h"

// A page surface that keeps what is printed on it. Its letters have one width and its lines one height per font size,
// so that positions are the same on every machine.
class KayıtYüzeyi : public SayfaYüzeyi {
  public:
    struct BasılıMetin {
        int Sayfa;
        double X, Y, Genişlik;
        double Doğal;  // the text's width before it was narrowed
        QString Metin;
        Yer yer;
        double Sağ() const { return X + Genişlik; }
    };

    explicit KayıtYüzeyi(double genişlik = 210, double yükseklik = 297)
        : m_genişlik(genişlik), m_yükseklik(yükseklik) {}

    bool Başla() override { return true; }
    void Bitir() override { m_döküm.append("BİTTİ"); }
    double Genişlik() const override { return m_genişlik; }
    double Yükseklik() const override { return m_yükseklik; }
    double MetinGenişliği(const QString& metin) const override {
        return static_cast<double>(metin.size()) * GeçerliYazı().Punto * (GeçerliYazı().Kalın ? 0.20 : 0.18);
    }
    double SatırYüksekliği() const override { return GeçerliYazı().Punto * 0.4; }
    void Çiz(double x1, double y1, double x2, double y2, QColor renk) override;

    QList<BasılıMetin> Metinler;

    // The printed texts with exactly this content.
    QList<BasılıMetin> Bul(const QString& metin) const;
    // Of one page, in printed order, parted by "|".
    QString SayfaMetinleri(int sayfa) const;

    // Every operation, a line each.
    QString Döküm() const { return m_döküm.join('\n') + '\n'; }

  protected:
    double MetniKoy(const QString& metin, Yer yer) override;
    void SayfaAç() override { m_döküm.append("SAYFA"); }

  private:
    double m_genişlik, m_yükseklik;
    QStringList m_döküm;
};

// Compares with the golden text tests/reports/altin/<ad>.txt. A difference and a missing file fail the test; the text
// as it came out is then left in the build folder.
void AltınlaKarşılaştır(const QString& ad, const QString& metin);
