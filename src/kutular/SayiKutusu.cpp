#include "SayiKutusu.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QShortcutEvent>
#include <QTimer>
#include <QToolTip>
#include <algorithm>
#include <limits>

#include "DegiskenModulu.h"
#include "MesajKutusu.h"
#include "MetinTablosu.h"
#include "SayiMetni.h"
#include "SayiSigdirma.h"

namespace {

// No text that the program sets is longer (27 digits grouped, with decimals). What is longer is cut there and then
// refused: so a huge paste costs no more than a small one.
constexpr int EnUzunMetin = 64;

void Söyle(MesajKutusu::Simge simge, const QString& metin) {
    MesajKutusuOrtala();
    MesajKutusu::Göster(simge, MesajKutusu::Düğmeler::Tamam, metin);
}

// Digits behind the comma.
qsizetype OndalıkSayısı(const QString& metin) {
    const qsizetype virgül = metin.indexOf(QLatin1Char(','));
    return virgül < 0 ? 0 : metin.size() - virgül - 1;
}

// Stops the press or the turn of the wheel that has taken the focus and is still on its way to the control there.
class OlayDurduran : public QObject {
  public:
    explicit OlayDurduran(QObject* sahip) : QObject(sahip) {
        qApp->installEventFilter(this);
        QTimer::singleShot(0, this, &QObject::deleteLater);  // it is delivered at once, or there is none
    }

    bool eventFilter(QObject* hedef, QEvent* olay) override {
        const QEvent::Type tür = olay->type();
        if (!hedef->isWidgetType() || (tür != QEvent::MouseButtonPress && tür != QEvent::MouseButtonDblClick &&
                                       tür != QEvent::Wheel && tür != QEvent::TouchBegin))
            return false;
        qApp->removeEventFilter(this);
        olay->accept();
        return true;
    }
};

}  // namespace

SayıKutusu::SayıKutusu(Tür tür, QWidget* sahip) : GirişKutusu(sahip), m_tür(tür) {
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    setAcceptDrops(false);
    setMaxLength(EnUzunMetin);
    SayıyıSığdır(this);
    connect(this, &QLineEdit::selectionChanged, this, [this] { YeriSakla(); });
    connect(this, &QLineEdit::cursorPositionChanged, this, [this] { YeriSakla(); });
    connect(this, &QLineEdit::textChanged, this, [this](const QString& metin) { m_önceki = metin; });
}

void SayıKutusu::keyPressEvent(QKeyEvent* olay) {
    if (!TuşGeçer(*olay)) return;
    const QString yazılan = YazılanMetin(*olay);
    const QString önü = m_önceki.left(m_ekinYeri);
    m_alındı = true;
    if (yazılan == u"," && (önü.isEmpty() || önü == u"-")) {
        insert(QStringLiteral("0,"));  // 5 must not come out of ",5"
    } else {
        GirişKutusu::keyPressEvent(olay);
    }
    if (!yazılan.isEmpty() && !m_alındı) DüzenlendiğiniBildir();  // a second comma was typed and is undone
}

// The cursor moves on before the text is looked at.
void SayıKutusu::inputMethodEvent(QInputMethodEvent* olay) {
    m_yöntemYazıyor = true;
    GirişKutusu::inputMethodEvent(olay);
    m_yöntemYazıyor = false;
    YeriSakla();
}

void SayıKutusu::YeriSakla() {
    if (!m_yöntemYazıyor) m_ekinYeri = hasSelectedText() ? selectionStart() : cursorPosition();
}

bool SayıKutusu::TuşGeçer(const QKeyEvent& tuş) const {
    const QString yazı = YazılanMetin(tuş);
    return std::all_of(yazı.begin(), yazı.end(), [this](QChar harf) {
        return (harf >= u'0' && harf <= u'9') || harf == u',' || (harf == u'-' && EksiOlur());
    });
}

bool SayıKutusu::Denetle(QString& metin, int& imleç) {
    const QString ek = Ek(metin, imleç);
    m_alındı = ek.isEmpty() || KabulEdilir(metin, ek);
    // A key that does nothing explains itself; a paste that does nothing does not.
    if (!m_alındı && ek.size() > 1)
        QToolTip::showText(mapToGlobal(QPoint(0, height())), Metin(MetinNo::SayıAlınmadı), this);
    return m_alındı;
}

// What an edit has put in before the cursor. Where it is not plain that the rest stood there before, all is new.
QString SayıKutusu::Ek(const QString& metin, int imleç) const {
    const int başı = std::min(m_ekinYeri, imleç);
    const QString önü = metin.left(başı);
    const QString ardı = metin.mid(imleç);
    const bool gerisiEski =
        önü.size() + ardı.size() <= m_önceki.size() && m_önceki.startsWith(önü) && m_önceki.endsWith(ardı);
    return gerisiEski ? metin.mid(başı, imleç - başı) : metin;
}

// Dots that an edit has left behind in odd places do not harm, for the number's value is the same without them. In a
// text that comes in from elsewhere a dot in an odd place means a decimal point: that one must not be read over.
bool SayıKutusu::KabulEdilir(const QString& metin, const QString& ek) const {
    if (metin.size() > EnUzunSayı) return false;
    if (m_tür == Tür::Serbest && OndalıkSayısı(metin) > 4) return false;
    const bool eksiOlur = EksiOlur();
    if (eksiOlur && metin == u"-") return true;
    if (!eksiOlur && (ek.contains(QChar(u'-')) || ek.contains(QChar(u'+')))) return false;
    return SayıMı(metin, ek.contains(QChar(u'.')) ? NoktaKuralı::Yerinde : NoktaKuralı::Serbest);
}

bool SayıKutusu::Bitir() {
    if (m_tür == Tür::Serbest || (!Yüzdeli() && text().isEmpty())) return true;
    const auto biçimli = SayıMetniBiçimle(text().isEmpty() ? QStringLiteral("0") : text(), OndalıkBasamak);
    if (biçimli) {
        setText(*biçimli);
    } else if (Yüzdeli()) {
        Söyle(MesajKutusu::Simge::Kritik, Metin(MetinNo::SayıDeğil));
        return false;
    }
    return true;
}

bool SayıKutusu::Saklanır() {
    if (!SayıMı(text(), NoktaKuralı::Serbest)) {
        Söyle(MesajKutusu::Simge::Kritik, Metin(MetinNo::SayıDeğil));
    } else {
        const QString neden = SığmamaNedeni();
        if (neden.isEmpty()) return true;
        Söyle(MesajKutusu::Simge::Bilgi, neden);
    }
    setFocus();
    return false;
}

// The calculation multiplies a percentage, read as money, by the material cost, and what leaves the range of money (a
// 64-bit count of ten-thousandths) it cannot count: up to a million it counts right for a material cost of 922 million.
// A price is money itself. A quantity is read as a double, which is sure of 15 digits: the range of money in whole
// units.
Para SayıKutusu::EnBüyük() const {
    constexpr std::int64_t paranınSonu = std::numeric_limits<std::int64_t>::max();
    if (Yüzdeli()) return Para::OnBindeBirden(1'000'000 * Para::Ölçek);
    return Para::OnBindeBirden(Parasal() ? paranınSonu : paranınSonu / Para::Ölçek * Para::Ölçek);
}

QString SayıKutusu::SığmamaNedeni() const {
    const Para enBüyük = EnBüyük();
    const auto sayı = ParaOku(text());
    if (!sayı || *sayı > enBüyük || *sayı < Para::OnBindeBirden(-enBüyük.OnBindeBir()))
        return Metin(MetinNo::SayıÇokBüyük) + QLatin1Char(' ') + SayıBiçimle(enBüyük, Parasal() ? 4 : 0);
    if (m_tür == Tür::Miktar && !DoubleSaklar(text())) return Metin(MetinNo::BasamakÇokFazla);
    return {};
}

void SayıKutusu::focusInEvent(QFocusEvent* olay) {
    GirişKutusu::focusInEvent(olay);
    qApp->installEventFilter(this);
}

// By now the box has been left and has given its answer.
void SayıKutusu::focusOutEvent(QFocusEvent* olay) {
    qApp->removeEventFilter(this);
    if (!Bitti() && olay->reason() == Qt::MouseFocusReason) new OlayDurduran(this);
    GirişKutusu::focusOutEvent(olay);
}

// A button or check box acts on its mnemonic whether the box could be left or not: the focus goes there first.
bool SayıKutusu::eventFilter(QObject* hedef, QEvent* olay) {
    if (olay->type() != QEvent::Shortcut || static_cast<QShortcutEvent*>(olay)->isAmbiguous()) return false;
    auto* düğme = qobject_cast<QAbstractButton*>(hedef);
    if (!düğme || düğme->window() != window() || düğme->focusPolicy() == Qt::NoFocus) return false;
    düğme->setFocus(Qt::ShortcutFocusReason);
    return !Bitti();
}
