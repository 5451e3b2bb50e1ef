#include "SayiKutusu.h"

#include <QKeyEvent>
#include <algorithm>

#include "DegiskenModulu.h"
#include "MesajKutusu.h"
#include "MetinTablosu.h"
#include "SayiMetni.h"
#include "SayiSigdirma.h"

namespace {

constexpr int SayıDeğilMetni = 2111;

int BaşarısızÇıkışlar = 0;

}  // namespace

SayıKutusu::SayıKutusu(Tür tür, QWidget* sahip) : GirişKutusu(sahip), m_tür(tür) {
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    setAcceptDrops(false);
    SayıyıSığdır(this);
    const auto yeriSakla = [this] { m_ekinYeri = hasSelectedText() ? selectionStart() : cursorPosition(); };
    connect(this, &QLineEdit::selectionChanged, this, yeriSakla);
    connect(this, &QLineEdit::cursorPositionChanged, this, yeriSakla);
}

bool SayıKutusu::OdağıTaşı(QWidget* hedef, Qt::FocusReason neden) {
    const int önceki = BaşarısızÇıkışlar;
    hedef->setFocus(neden);
    return BaşarısızÇıkışlar == önceki;
}

void SayıKutusu::keyPressEvent(QKeyEvent* olay) {
    if (TuşGeçer(*olay)) GirişKutusu::keyPressEvent(olay);
}

bool SayıKutusu::TuşGeçer(const QKeyEvent& tuş) const {
    const QString yazı = YazılanMetin(tuş);
    return std::all_of(yazı.begin(), yazı.end(), [this](QChar harf) {
        return (harf >= u'0' && harf <= u'9') || harf == u',' || (harf == u'-' && m_tür == Tür::EksiliYüzde);
    });
}

void SayıKutusu::DüzenlemeyiDenetle() {
    const int ekinBaşı = m_ekinYeri;
    const bool geriAlma = isRedoAvailable();
    while (!KabulEdilir(ekinBaşı, geriAlma) && cursorPosition() > 0) backspace();
}

// Dots that an edit has left behind in odd places do not harm, for the number's value is the same without them. In a
// text that comes in from elsewhere a dot in an odd place means a decimal point: that one must not be read over.
bool SayıKutusu::KabulEdilir(int ekinBaşı, bool geriAlma) const {
    const QString metin = text();
    if (metin.isEmpty() || (m_tür == Tür::EksiliYüzde && metin == u"-")) return true;
    if (!SayıMı(metin, NoktaKuralı::Serbest)) return false;
    if (geriAlma) return true;
    const QString ek = metin.mid(ekinBaşı, std::max(0, cursorPosition() - ekinBaşı));
    if (m_tür != Tür::EksiliYüzde && (ek.contains(QChar(u'-')) || ek.contains(QChar(u'+')))) return false;
    return !ek.contains(QChar(u'.')) || SayıMı(metin);
}

void SayıKutusu::ÇıkıştaBiçimle() {
    if (m_tür == Tür::Tutar && text().isEmpty()) return;
    const auto biçimli = SayıMetniBiçimle(text().isEmpty() ? QStringLiteral("0") : text(), OndalıkBasamak);
    if (biçimli) {
        setText(*biçimli);
    } else if (m_tür != Tür::Tutar) {
        ++BaşarısızÇıkışlar;
        MesajKutusuOrtala();
        MesajKutusu::Göster(MesajKutusu::Simge::Kritik, MesajKutusu::Düğmeler::Tamam, Metin(SayıDeğilMetni));
    }
}
