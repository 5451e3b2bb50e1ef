#include "BasamakGrafigi.h"

#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QSaveFile>
#include <algorithm>
#include <cmath>
#include <limits>

#include "ArsivMetinleri.h"
#include "KayitYeri.h"
#include "MesajKutusu.h"
#include "SayiMetni.h"

namespace {

constexpr double SATIR_ARASI = 1.35;  // lines of text
constexpr int ÇİZGİ_SAYISI = 5;       // of the scale, at most

struct Ölçek {
    double Alt = 0;
    double Üst = 1;
    double Adım = 1;
    int Basamak = 0;
};

// A scale of round numbers that takes the values in.
Ölçek ÖlçekBul(double en, double boy) {
    const double aralık = std::max(boy - en, std::max(std::abs(boy) * 0.02, 0.0001));
    const double kaba = aralık / (ÇİZGİ_SAYISI - 1);
    const double on = std::pow(10, std::floor(std::log10(kaba)));
    const double oran = kaba / on;
    const double adım = on * (oran <= 1 ? 1 : oran <= 2 ? 2 : oran <= 5 ? 5 : 10);
    const int basamak = std::clamp(static_cast<int>(-std::floor(std::log10(adım))), 0, 4);
    return {std::floor(en / adım) * adım, std::ceil(boy / adım) * adım, adım, basamak};
}

class Çizer {
  public:
    Çizer(QPainter& boyacı, const QRectF& alan, const QList<BasamakDizisi>& diziler, const QDateTime& son)
        : m_boyacı(boyacı), m_diziler(diziler), m_son(son.toMSecsSinceEpoch()), m_satır(boyacı.fontMetrics().height()) {
        double en = std::numeric_limits<double>::max();
        double boy = std::numeric_limits<double>::lowest();
        m_ilk = m_son;
        for (const BasamakDizisi& dizi : diziler) {
            en = std::min(en, dizi.İlkDeğer);
            boy = std::max(boy, dizi.İlkDeğer);
            for (const auto& nokta : dizi.Noktalar) {
                en = std::min(en, nokta.Değer);
                boy = std::max(boy, nokta.Değer);
                m_ilk = std::min(m_ilk, nokta.Zaman.toMSecsSinceEpoch());
            }
        }
        constexpr qint64 gün = 86'400'000;
        m_ilk -= std::max(gün, (m_son - m_ilk) / 20);  // the old prices are seen in front of the first step
        m_ölçek = ÖlçekBul(en, boy);
        double sol = 0;
        for (double değer = m_ölçek.Alt; değer <= m_ölçek.Üst + m_ölçek.Adım / 2; değer += m_ölçek.Adım)
            sol = std::max<double>(sol, boyacı.fontMetrics().horizontalAdvance(Metni(değer)));
        m_alan =
            alan.adjusted(sol + 8, m_satır / 2, -8, -m_satır * (0.5 + SATIR_ARASI * (1 + SıraSayısı(alan.width()))));
    }

    void Çiz(const QPalette& palet) {
        m_boyacı.setRenderHint(QPainter::Antialiasing);
        ÖlçeğiÇiz(palet);
        for (int i = 0; i < m_diziler.size(); ++i) DiziyiÇiz(i);
        AçıklamaÇiz(palet);
    }

  private:
    double Tarihler() const { return m_alan.bottom() + m_satır / 2; }  // clear of the scale's lowest figure

    static QString Metni(double değer, int basamak) { return SayıBiçimle(değer, basamak).value_or(QString()); }
    QString Metni(double değer) const { return Metni(değer, m_ölçek.Basamak); }

    double X(qint64 zaman) const {
        return m_alan.left() + m_alan.width() * static_cast<double>(zaman - m_ilk) / static_cast<double>(m_son - m_ilk);
    }
    double Y(double değer) const {
        return m_alan.bottom() - m_alan.height() * (değer - m_ölçek.Alt) / (m_ölçek.Üst - m_ölçek.Alt);
    }

    // Colours that are told apart in both themes and by the colour-blind; beyond them the strokes differ.
    static QPen Kalem(int sıra) {
        constexpr QRgb renkler[] = {0x0072B2, 0xD55E00, 0x009E73, 0xCC79A7, 0xE69F00, 0x56B4E9};
        constexpr int sayı = std::size(renkler);
        constexpr Qt::PenStyle biçimler[] = {Qt::SolidLine, Qt::DashLine, Qt::DotLine, Qt::DashDotLine};
        return QPen(QColor(renkler[sıra % sayı]), 2, biçimler[sıra / sayı % 4], Qt::FlatCap, Qt::MiterJoin);
    }

    double AçıklamaGenişliği(int sıra) const {
        return m_boyacı.fontMetrics().horizontalAdvance(m_diziler[sıra].Ad) + 44;
    }
    int SıraSayısı(double genişlik) const {
        int sıralar = 1;
        double x = 0;
        for (int i = 0; i < m_diziler.size(); ++i) {
            if (x > 0 && x + AçıklamaGenişliği(i) > genişlik) {
                ++sıralar;
                x = 0;
            }
            x += AçıklamaGenişliği(i);
        }
        return sıralar;
    }

    void ÖlçeğiÇiz(const QPalette& palet) {
        const QColor yazı = palet.color(QPalette::Text);
        QColor ince = yazı;
        ince.setAlpha(50);
        for (double değer = m_ölçek.Alt; değer <= m_ölçek.Üst + m_ölçek.Adım / 2; değer += m_ölçek.Adım) {
            const double y = Y(değer);
            m_boyacı.setPen(ince);
            m_boyacı.drawLine(QPointF(m_alan.left(), y), QPointF(m_alan.right(), y));
            m_boyacı.setPen(yazı);
            m_boyacı.drawText(QRectF(0, y - m_satır / 2, m_alan.left() - 6, m_satır), Qt::AlignRight | Qt::AlignVCenter,
                              Metni(değer));
        }
        TarihleriÇiz(yazı, ince);
    }

    void TarihleriÇiz(const QColor& yazı, const QColor& ince) {
        const double genişlik = m_boyacı.fontMetrics().horizontalAdvance(QStringLiteral("88.88.8888")) + 16;
        const auto sığan = static_cast<qint64>(m_alan.width() / genişlik) - 1;
        const QDate ilkGün = QDateTime::fromMSecsSinceEpoch(m_ilk).date().addDays(1);
        const qint64 günler = ilkGün.daysTo(QDateTime::fromMSecsSinceEpoch(m_son).date());
        const qint64 sayı = std::clamp<qint64>(sığan, 1, std::max<qint64>(günler, 1));
        for (qint64 i = 0; i <= (günler > 0 ? sayı : 0); ++i) {
            const QDate gün = ilkGün.addDays(günler * i / sayı);
            const double x = X(gün.startOfDay().toMSecsSinceEpoch());
            m_boyacı.setPen(ince);
            m_boyacı.drawLine(QPointF(x, m_alan.bottom()), QPointF(x, m_alan.bottom() + 4));
            m_boyacı.setPen(yazı);
            const double sol = std::clamp(x - genişlik / 2, 0.0, m_alan.right() + 8 - genişlik);
            m_boyacı.drawText(QRectF(sol, Tarihler(), genişlik, m_satır), Qt::AlignCenter,
                              gün.toString(QStringLiteral("dd.MM.yyyy")));
        }
    }

    void DiziyiÇiz(int sıra) {
        const BasamakDizisi& dizi = m_diziler[sıra];
        const bool içeride = dizi.ÖncesiYok && !dizi.Noktalar.isEmpty();
        const qint64 başı = içeride ? dizi.Noktalar.first().Zaman.toMSecsSinceEpoch() : m_ilk;
        QPainterPath yol(QPointF(X(başı), Y(dizi.İlkDeğer)));
        for (const auto& nokta : dizi.Noktalar) {
            const double x = X(nokta.Zaman.toMSecsSinceEpoch());
            yol.lineTo(x, yol.currentPosition().y());
            yol.lineTo(x, Y(nokta.Değer));
        }
        yol.lineTo(X(m_son), yol.currentPosition().y());
        m_boyacı.setPen(Kalem(sıra));
        m_boyacı.setBrush(Qt::NoBrush);
        m_boyacı.drawPath(yol);
        if (!dizi.Noktalı) return;
        m_boyacı.setBrush(m_boyacı.pen().color());
        constexpr double yarıçap = 3.5;
        for (const auto& nokta : dizi.Noktalar)
            m_boyacı.drawEllipse(QPointF(X(nokta.Zaman.toMSecsSinceEpoch()), Y(nokta.Değer)), yarıçap, yarıçap);
    }

    void AçıklamaÇiz(const QPalette& palet) {
        double x = 0;
        double y = Tarihler() + m_satır * SATIR_ARASI;
        for (int i = 0; i < m_diziler.size(); ++i) {
            if (x > 0 && x + AçıklamaGenişliği(i) > m_alan.right() + 8) {
                x = 0;
                y += m_satır * SATIR_ARASI;
            }
            m_boyacı.setPen(Kalem(i));
            m_boyacı.drawLine(QPointF(x, y + m_satır / 2), QPointF(x + 24, y + m_satır / 2));
            m_boyacı.setPen(palet.color(QPalette::Text));
            const auto yer = static_cast<int>(m_alan.right() + 8 - x - 30);
            m_boyacı.drawText(QPointF(x + 30, y + m_boyacı.fontMetrics().ascent()),
                              m_boyacı.fontMetrics().elidedText(m_diziler[i].Ad, Qt::ElideRight, yer));
            x += AçıklamaGenişliği(i);
        }
    }

    QPainter& m_boyacı;
    const QList<BasamakDizisi>& m_diziler;
    qint64 m_ilk = 0;
    qint64 m_son;
    double m_satır;
    QRectF m_alan;
    Ölçek m_ölçek;
};

}  // namespace

void BasamaklarıÇiz(QPainter& boyacı, const QRectF& alan, const QList<BasamakDizisi>& diziler, const QDateTime& son,
                    const QString& boşMetni) {
    const QPalette palet;
    if (diziler.isEmpty()) {
        boyacı.setPen(palet.color(QPalette::PlaceholderText));
        boyacı.drawText(alan, Qt::AlignCenter | Qt::TextWordWrap, boşMetni);
        return;
    }
    Çizer(boyacı, alan, diziler, son).Çiz(palet);
}

BasamakGrafiği::BasamakGrafiği(const QString& ad, QString boşMetni, QWidget* sahip)
    : QWidget(sahip), m_boşMetni(std::move(boşMetni)) {
    setObjectName(ad);
    setBackgroundRole(QPalette::Base);
    setAutoFillBackground(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void BasamakGrafiği::Göster(QList<BasamakDizisi> diziler, const QDateTime& son) {
    m_diziler = std::move(diziler);
    m_son = son;
    QStringList adlar;
    for (const BasamakDizisi& dizi : m_diziler) adlar.append(dizi.Ad);
    setAccessibleDescription(adlar.isEmpty() ? m_boşMetni : adlar.join(QStringLiteral(", ")));
    update();
}

void BasamakGrafiği::paintEvent(QPaintEvent*) {
    QPainter boyacı(this);
    BasamaklarıÇiz(boyacı, QRectF(rect()).adjusted(6, 6, -6, -6), m_diziler, m_son, m_boşMetni);
}

void BasamakGrafiği::Kaydet(QWidget& form, const QString& ad) const {
    const QString yol = KaydedilecekYer(
        form, ad,
        {QStringLiteral("PngDosyasıFormu"), QStringLiteral("png"), ArşivMetni::PngBaşlığı, ArşivMetni::PngSüzgeci});
    if (yol.isEmpty()) return;
    constexpr qreal büyütme = 2;
    QImage resim(size() * büyütme, QImage::Format_RGB32);
    resim.setDevicePixelRatio(büyütme);
    resim.fill(QPalette().color(QPalette::Base));
    {
        QPainter boyacı(&resim);
        boyacı.setFont(font());
        BasamaklarıÇiz(boyacı, QRectF(rect()).adjusted(6, 6, -6, -6), m_diziler, m_son, m_boşMetni);
    }
    QSaveFile dosya(yol);
    if (dosya.open(QIODevice::WriteOnly) && resim.save(&dosya, "PNG") && dosya.flush() && dosya.commit()) return;
    MesajKutusuOrtala();
    MesajKutusu::Göster(MesajKutusu::Simge::Kritik, MesajKutusu::Düğmeler::Tamam,
                        Metin(ArşivMetni::PngYazılamadı) + QLatin1Char('\n') + yol);
}
