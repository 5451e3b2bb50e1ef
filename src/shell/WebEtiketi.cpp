#include "WebEtiketi.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>
#include <utility>

#include "Adresler.h"
#include "Renk.h"

namespace {

constexpr int Kenar = 2;  // pixels: 30 twips
constexpr std::uint32_t DüğmeYazısıRengi = 0x80000012;
constexpr std::uint32_t Mavi = 0x00FF0000;

constexpr const char* CaptionAdı = "Caption";
constexpr const char* FontUnderlineAdı = "FontUnderline";
constexpr const char* ForeColorAdı = "ForeColor";
constexpr const char* FontAdı = "Font";
constexpr const char* PasifRenkAdı = "PasifRenk";
constexpr const char* AktifRenkAdı = "AktifRenk";
constexpr const char* UrlAdı = "Url";
constexpr const char* RenkDeğiştirAdı = "RenkDeğiştir";

QString VarsayılanCaption() {
    return QStringLiteral("...");
}

QFont AltıÇizgisiz(QFont font) {
    font.setUnderline(false);
    return font;
}

void FarklıysaYaz(QVariantMap& özellikler, const char* ad, const QVariant& değer, const QVariant& varsayılan) {
    if (değer != varsayılan) özellikler.insert(QString::fromUtf8(ad), değer);
}

// A screen reader meets the label as a link that bears its caption and can be followed.
class WebEtiketiErişimi : public QAccessibleWidget {
  public:
    explicit WebEtiketiErişimi(WebEtiketi* etiket) : QAccessibleWidget(etiket, QAccessible::Link), m_etiket(etiket) {}

    QString text(QAccessible::Text tür) const override {
        switch (tür) {
            case QAccessible::Name:
                return m_etiket->Caption();
            case QAccessible::Description:
                return m_etiket->Url();
            default:
                return QAccessibleWidget::text(tür);
        }
    }

    QStringList actionNames() const override { return QStringList(pressAction()) + QAccessibleWidget::actionNames(); }

    void doAction(const QString& eylem) override {
        if (eylem == pressAction()) {
            m_etiket->Tıkla();
        } else {
            QAccessibleWidget::doAction(eylem);
        }
    }

  private:
    WebEtiketi* m_etiket;
};

QAccessibleInterface* ErişimÜret(const QString&, QObject* nesne) {
    auto* etiket = dynamic_cast<WebEtiketi*>(nesne);
    return etiket ? new WebEtiketiErişimi(etiket) : nullptr;
}

}  // namespace

WebEtiketi::WebEtiketi(QWidget* kap) : QWidget(kap), m_etiket(new QLabel(this)) {
    [[maybe_unused]] static const bool erişimKuruldu = (QAccessible::installFactory(&ErişimÜret), true);
    m_etiket->setObjectName(QStringLiteral("Etiket"));
    m_etiket->setTextFormat(Qt::PlainText);
    m_etiket->setCursor(Qt::PointingHandCursor);
    m_etiket->setMouseTracking(true);
    m_etiket->move(Kenar, Kenar);
    m_etiket->installEventFilter(this);
    setMouseTracking(true);
    setFocusPolicy(Qt::TabFocus);
    ÖzellikleriOku({});
}

QString WebEtiketi::Caption() const {
    return m_etiket->text();
}

void WebEtiketi::CaptionAyarla(const QString& caption) {
    m_etiket->setText(caption);
    Boyutlandır();
    Bildir(CaptionAdı);
}

bool WebEtiketi::FontUnderline() const {
    return m_etiket->font().underline();
}

void WebEtiketi::FontUnderlineAyarla(bool altıÇizili) {
    QFont font = m_etiket->font();
    font.setUnderline(altıÇizili);
    m_etiket->setFont(font);
    Bildir(FontUnderlineAdı);
}

void WebEtiketi::ForeColorAyarla(std::uint32_t renk) {
    Boya(renk);
    Bildir(ForeColorAdı);
}

QFont WebEtiketi::Font() const {
    return m_etiket->font();
}

void WebEtiketi::FontAyarla(const QFont& font) {
    m_etiket->setFont(font);
    Boyutlandır();
    Bildir(FontAdı);
}

void WebEtiketi::PasifRenkAyarla(std::uint32_t renk) {
    m_pasifRenk = renk;
    Bildir(PasifRenkAdı);
}

std::uint32_t WebEtiketi::AktifRenk() {
    Boya(m_aktifRenk);
    return m_aktifRenk;
}

void WebEtiketi::AktifRenkAyarla(std::uint32_t renk) {
    m_aktifRenk = renk;
    Bildir(AktifRenkAdı);
    Boya(renk);
}

void WebEtiketi::UrlAyarla(const QString& url) {
    m_url = url;
    Bildir(UrlAdı);
}

void WebEtiketi::RenkDeğiştirAyarla(bool değiştir) {
    m_renkDeğiştir = değiştir;
    Bildir(RenkDeğiştirAdı);
}

QVariantMap WebEtiketi::ÖzellikleriYaz() const {
    QVariantMap özellikler;
    FarklıysaYaz(özellikler, CaptionAdı, Caption(), VarsayılanCaption());
    FarklıysaYaz(özellikler, FontUnderlineAdı, FontUnderline(), false);
    FarklıysaYaz(özellikler, ForeColorAdı, m_foreColor, DüğmeYazısıRengi);
    // The text form holds the whole font, not only what differs from the container's.
    FarklıysaYaz(özellikler, FontAdı, AltıÇizgisiz(Font()).toString(), AltıÇizgisiz(OrtamFontu()).toString());
    FarklıysaYaz(özellikler, AktifRenkAdı, m_aktifRenk, Mavi);
    FarklıysaYaz(özellikler, PasifRenkAdı, m_pasifRenk, std::uint32_t{0});
    FarklıysaYaz(özellikler, RenkDeğiştirAdı, m_renkDeğiştir, false);
    FarklıysaYaz(özellikler, UrlAdı, m_url, SiteAdresi());
    return özellikler;
}

void WebEtiketi::ÖzellikleriOku(const QVariantMap& özellikler) {
    const auto oku = [&özellikler](const char* ad, const QVariant& varsayılan) {
        return özellikler.value(QString::fromUtf8(ad), varsayılan);
    };
    m_etiket->setText(oku(CaptionAdı, VarsayılanCaption()).toString());
    QFont font;  // as it stands it follows the container's
    const QString fontMetni = oku(FontAdı, QString()).toString();
    if (!fontMetni.isEmpty()) font.fromString(fontMetni);
    if (oku(FontUnderlineAdı, false).toBool()) font.setUnderline(true);
    m_etiket->setFont(font);
    m_aktifRenk = oku(AktifRenkAdı, Mavi).toUInt();
    m_pasifRenk = oku(PasifRenkAdı, 0u).toUInt();
    m_renkDeğiştir = oku(RenkDeğiştirAdı, false).toBool();
    m_url = oku(UrlAdı, SiteAdresi()).toString();
    Boya(oku(ForeColorAdı, DüğmeYazısıRengi).toUInt());
    Boyutlandır();
}

void WebEtiketi::DeğişiklikBildiriciAyarla(std::function<void(const QString&)> bildirici) {
    m_bildirici = std::move(bildirici);
}

void WebEtiketi::MouseMoveAyarla(FareHareketi mouseMove) {
    m_mouseMove = std::move(mouseMove);
}

void WebEtiketi::Tıkla() const {
    AdresAç(QUrl(m_url));
}

bool WebEtiketi::eventFilter(QObject* nesne, QEvent* olay) {
    if (nesne != m_etiket) return QWidget::eventFilter(nesne, olay);
    switch (olay->type()) {
        case QEvent::MouseMove: {
            const auto* fare = static_cast<QMouseEvent*>(olay);
            if (m_mouseMove) m_mouseMove(fare->buttons(), fare->modifiers(), fare->position().toPoint());
            return true;
        }
        case QEvent::MouseButtonPress:
            m_basılı = static_cast<QMouseEvent*>(olay)->button() == Qt::LeftButton;
            return true;
        case QEvent::MouseButtonRelease: {
            // The second release of a double click had no press of its own: one double click opens once.
            const bool tıklandı = std::exchange(m_basılı, false);
            const QPoint yer = static_cast<QMouseEvent*>(olay)->position().toPoint();
            if (tıklandı && m_etiket->rect().contains(yer)) Tıkla();
            return true;
        }
        case QEvent::FontChange:
            Boyutlandır();
            break;
        default:
            break;
    }
    return QWidget::eventFilter(nesne, olay);
}

void WebEtiketi::changeEvent(QEvent* olay) {
    QWidget::changeEvent(olay);
    // Another theme: the same value may have to be painted otherwise.
    if (olay->type() == QEvent::PaletteChange) Boya(m_foreColor);
}

void WebEtiketi::keyPressEvent(QKeyEvent* olay) {
    switch (olay->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Space:
            if (!olay->isAutoRepeat()) Tıkla();
            break;
        default:
            QWidget::keyPressEvent(olay);
    }
}

void WebEtiketi::mouseMoveEvent(QMouseEvent* olay) {
    // The margin is neither text nor form: nothing happens, and the form behind does not get the event either.
    olay->accept();
}

void WebEtiketi::paintEvent(QPaintEvent*) {
    if (!hasFocus()) return;
    QPainter boyacı(this);
    QStyleOptionFocusRect seçenek;
    seçenek.initFrom(this);
    seçenek.backgroundColor = palette().color(QPalette::Window);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &seçenek, &boyacı, this);
}

void WebEtiketi::focusInEvent(QFocusEvent* olay) {
    QWidget::focusInEvent(olay);
    update();
}

void WebEtiketi::focusOutEvent(QFocusEvent* olay) {
    QWidget::focusOutEvent(olay);
    update();
}

QFont WebEtiketi::OrtamFontu() const {
    return parentWidget() ? parentWidget()->font() : QApplication::font();
}

void WebEtiketi::Boyutlandır() {
    m_etiket->adjustSize();
    setFixedSize(m_etiket->size() + QSize(2 * Kenar, 2 * Kenar));
}

void WebEtiketi::Boya(std::uint32_t renk) {
    m_foreColor = renk;
    QPalette palet;
    palet.setColor(QPalette::WindowText, YazıRengi(renk, palette()));
    m_etiket->setPalette(palet);
}

void WebEtiketi::Bildir(const char* özellik) const {
    if (m_bildirici) m_bildirici(QString::fromUtf8(özellik));
}
