#include "GirisKutusu.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <utility>

#include "TurkceMetin.h"

namespace {

class KutuDenetçisi : public DüzenlemeDenetçisi {
  public:
    explicit KutuDenetçisi(GirişKutusu* kutu) : DüzenlemeDenetçisi(kutu), m_kutu(kutu) {}

  protected:
    bool Denetle(QString& metin, int& imleç) const override { return m_kutu->Denetle(metin, imleç); }

  private:
    GirişKutusu* m_kutu;
};

class EnterSüzgeci : public QObject {
  public:
    using QObject::QObject;

    bool eventFilter(QObject* kutu, QEvent* olay) override {
        if (olay->type() != QEvent::KeyPress) return false;
        const auto* tuş = static_cast<QKeyEvent*>(olay);
        if (tuş->key() != Qt::Key_Return && tuş->key() != Qt::Key_Enter) return false;
        if (!tuş->isAutoRepeat()) {  // a key held down must not run through the form
            QKeyEvent sekme(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier);
            QCoreApplication::sendEvent(kutu, &sekme);
        }
        return true;
    }
};

}  // namespace

void Enterİleİlerlesin(QWidget* kutu) {
    kutu->installEventFilter(new EnterSüzgeci(kutu));
}

QString YazılanMetin(const QKeyEvent& tuş) {
    const auto değiştirici = tuş.modifiers();
    if ((değiştirici & Qt::ControlModifier) && !(değiştirici & Qt::AltModifier)) return {};  // both: AltGr
    return tuş.text().removeIf([](QChar harf) { return !harf.isPrint(); });
}

GirişKutusu::GirişKutusu(QWidget* sahip)
    : QLineEdit(sahip),
      m_denetçi(new KutuDenetçisi(this)),
      m_odak(
          this, [this](Qt::FocusReason neden) { Girildi(neden); },
          [this](Odakİzleyici::Çıkış çıkış) {
              if (çıkış != Odakİzleyici::Çıkış::FormKapanıyor) m_bitti = Bitir();
          }) {
    Enterİleİlerlesin(this);
    connect(this, &QLineEdit::textEdited, this, [this] { DüzenlendiğiniBildir(); });
}

void GirişKutusu::Girildi(Qt::FocusReason neden) {
    m_bitti = true;
    selectAll();
    m_tıklamaylaGirildi = neden == Qt::MouseFocusReason;
}

bool GirişKutusu::Denetle(QString& metin, int& imleç) {
    TekSatıraİndir(metin, imleç);
    return true;
}

void GirişKutusu::DüzenlendiğiniBildir() {
    if (m_düzenlenince) m_düzenlenince();
}

// The press that brought the focus has set the cursor by now and so taken the selection away.
void GirişKutusu::mouseReleaseEvent(QMouseEvent* olay) {
    QLineEdit::mouseReleaseEvent(olay);
    if (std::exchange(m_tıklamaylaGirildi, false) && !hasSelectedText()) selectAll();
}

bool OdaktakiKutuBitti() {
    auto* kutu = dynamic_cast<GirişKutusu*>(QApplication::focusWidget());
    return !kutu || kutu->Bitir();
}

bool AdKutusu::Bitir() {
    setText(TürkçeBaşHarfBüyüt(text()));
    return true;
}
