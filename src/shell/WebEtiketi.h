#pragma once

#include <QFont>
#include <QPoint>
#include <QString>
#include <QVariantMap>
#include <QWidget>
#include <cstdint>
#include <functional>

class QLabel;

// A text that behaves as a web link: a click on it (or Enter or the space bar while it has the focus) opens its Url.
// Its colours while the mouse is over it are the containing form's business (KabukFormu). The control always hugs its
// text with a margin of 30 twips. Colours are values as in Renk.h.
class WebEtiketi : public QWidget {
  public:
    explicit WebEtiketi(QWidget* kap = nullptr);

    QString Caption() const;
    void CaptionAyarla(const QString& caption);
    bool FontUnderline() const;
    void FontUnderlineAyarla(bool altıÇizili);
    std::uint32_t ForeColor() const { return m_foreColor; }
    void ForeColorAyarla(std::uint32_t renk);
    QFont Font() const;
    void FontAyarla(const QFont& font);
    std::uint32_t PasifRenk() const { return m_pasifRenk; }
    void PasifRenkAyarla(std::uint32_t renk);
    // Asking for the active colour shows it: the text takes it (ForeColor too) before it is returned. Setting does so
    // as well.
    std::uint32_t AktifRenk();
    void AktifRenkAyarla(std::uint32_t renk);
    QString Url() const { return m_url; }
    void UrlAyarla(const QString& url);
    bool RenkDeğiştir() const { return m_renkDeğiştir; }
    void RenkDeğiştirAyarla(bool değiştir);

    // The properties that differ from their defaults, under their names (Font, without its underline, as its text
    // form). Reading sets every property, those without an entry to their defaults, and reports no change.
    QVariantMap ÖzellikleriYaz() const;
    void ÖzellikleriOku(const QVariantMap& özellikler);

    // Called with a property's name after its writer has set it.
    void DeğişiklikBildiriciAyarla(std::function<void(const QString& özellik)> bildirici);

    // Called whenever the mouse moves over the text: buttons, modifier keys, position within the text in pixels.
    using FareHareketi = std::function<void(Qt::MouseButtons, Qt::KeyboardModifiers, QPoint)>;
    void MouseMoveAyarla(FareHareketi mouseMove);

    // What a click does.
    void Tıkla() const;

  protected:
    bool eventFilter(QObject* nesne, QEvent* olay) override;
    void changeEvent(QEvent* olay) override;
    void keyPressEvent(QKeyEvent* olay) override;
    void mouseMoveEvent(QMouseEvent* olay) override;
    void paintEvent(QPaintEvent* olay) override;
    void focusInEvent(QFocusEvent* olay) override;
    void focusOutEvent(QFocusEvent* olay) override;

  private:
    QFont OrtamFontu() const;
    void Boyutlandır();
    void Boya(std::uint32_t renk);
    void Bildir(const char* özellik) const;

    QLabel* m_etiket;
    std::uint32_t m_foreColor;
    std::uint32_t m_pasifRenk;
    std::uint32_t m_aktifRenk;
    QString m_url;
    bool m_renkDeğiştir;
    bool m_basılı = false;
    std::function<void(const QString&)> m_bildirici;
    FareHareketi m_mouseMove;
};
