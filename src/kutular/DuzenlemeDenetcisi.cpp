#include "DuzenlemeDenetcisi.h"

#include <QLineEdit>
#include <QToolTip>
#include <utility>

#include "MetinTablosu.h"
#include "TurkceMetin.h"

DüzenlemeDenetçisi::DüzenlemeDenetçisi(QLineEdit* satır) : QValidator(satır), m_satır(satır) {
    satır->setValidator(this);
    connect(satır, &QLineEdit::textChanged, this, [this] { YinelemeyiOnar(); });
    const auto kalanıSakla = [this] { m_kalan = m_satır->text().size() - m_satır->selectedText().size(); };
    connect(satır, &QLineEdit::textChanged, this, kalanıSakla);
    connect(satır, &QLineEdit::selectionChanged, this, kalanıSakla);
}

// The toolkit undoes a refused edit and takes it out of the undo history. Setting a text empties that history, and
// while something can be redone the text came by undo or redo.
QValidator::State DüzenlemeDenetçisi::validate(QString& metin, int& imleç) const {
    const bool düzenleme = !m_onarılıyor && m_satır->isUndoAvailable() && !m_satır->isRedoAvailable();
    const qsizetype boy = metin.size();
    m_reddedildi = düzenleme && (!Denetle(metin, imleç) || !Sığar(boy, metin.size()));
    return m_reddedildi ? Invalid : Acceptable;
}

// `önceki` is the length before the edit was corrected: at the toolkit's own limit the text has been cut already. A key
// that does nothing explains itself; a paste that does nothing does not.
bool DüzenlemeDenetçisi::Sığar(qsizetype önceki, qsizetype sonraki) const {
    if (önceki < m_satır->maxLength() && sonraki <= m_enUzun) return true;
    const bool yapıştırıldı = önceki - m_kalan > 1;
    if (yapıştırıldı) {
        const QString neden = Metin(MetinNo::MetinÇokUzun).arg(m_enUzun);
        QToolTip::showText(m_satır->mapToGlobal(QPoint(0, m_satır->height())), neden, m_satır);
    }
    return false;
}

// The last redo looks like an edit. It joins several edits, and what each of them was allowed may be refused to all at
// once; the text stays nevertheless, but the toolkit would now let the next refused edit stay as well. Seeing the text
// again as what redo brings sets that right.
void DüzenlemeDenetçisi::YinelemeyiOnar() {
    if (!std::exchange(m_reddedildi, false)) return;
    const QSignalBlocker sessiz(m_satır);
    m_onarılıyor = true;
    m_satır->undo();
    while (m_satır->isRedoAvailable()) m_satır->redo();
    m_onarılıyor = false;
}

void TekSatıraİndir(QString& metin, int& imleç) {
    const auto temiz = [](const QString& ham) { return TekSatır(GörünmezleriAt(ham)); };
    imleç = static_cast<int>(temiz(metin.left(imleç)).size());
    metin = temiz(metin);
}

void AdYazılsın(QLineEdit* satır) {
    class TekSatırDenetçisi : public DüzenlemeDenetçisi {
      public:
        using DüzenlemeDenetçisi::DüzenlemeDenetçisi;

      protected:
        bool Denetle(QString& metin, int& imleç) const override {
            TekSatıraİndir(metin, imleç);
            return true;
        }
    };
    new TekSatırDenetçisi(satır);
}
