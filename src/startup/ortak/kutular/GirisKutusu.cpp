#include "GirisKutusu.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <utility>

#include "EnterTusu.h"
#include "TurkceMetin.h"

QString YazılanMetin(const QKeyEvent& tuş) {
    const auto değiştirici = tuş.modifiers();
    if ((değiştirici & Qt::ControlModifier) && !(değiştirici & Qt::AltModifier)) return {};  // both: AltGr
    return tuş.text().removeIf([](QChar harf) { return !harf.isPrint(); });
}

GirişKutusu::GirişKutusu(QWidget* sahip)
    : QLineEdit(sahip),
      m_odak(
          this, [this](Qt::FocusReason neden) { Girildi(neden); },
          [this](Odakİzleyici::Çıkış çıkış) {
              if (çıkış == Odakİzleyici::Çıkış::FormKapanıyor) return;
              ÇıkıştaBiçimle();
              if (m_bırakılınca) m_bırakılınca();
          }) {
    Enterİleİlerlesin(this);
    connect(this, &QLineEdit::textEdited, this, [this] {
        if (m_denetleniyor) return;
        m_denetleniyor = true;
        DüzenlemeyiDenetle();
        m_denetleniyor = false;
        if (m_düzenlenince) m_düzenlenince();
    });
}

void GirişKutusu::Girildi(Qt::FocusReason neden) {
    selectAll();
    m_tıklamaylaGirildi = neden == Qt::MouseFocusReason;
}

// The press that brought the focus has set the cursor by now and so taken the selection away.
void GirişKutusu::mouseReleaseEvent(QMouseEvent* olay) {
    QLineEdit::mouseReleaseEvent(olay);
    if (std::exchange(m_tıklamaylaGirildi, false) && !hasSelectedText()) selectAll();
}

AdKutusu::AdKutusu(QWidget* sahip) : GirişKutusu(sahip) {
    setMaxLength(EnUzunAd);
}

void AdKutusu::ÇıkıştaBiçimle() {
    setText(TürkçeBaşHarfBüyüt(text()));
}
