#include "AcilirGirisKutusu.h"

#include <QKeyEvent>
#include <algorithm>

#include "EnterTusu.h"
#include "GirisKutusu.h"
#include "TurkceMetin.h"
#include "TurkceSira.h"

AçılırGirişKutusu::AçılırGirişKutusu(QWidget* sahip)
    : QComboBox(sahip),
      m_satır(new GirişKutusu),
      m_odak(
          this, [this](Qt::FocusReason neden) { m_satır->Girildi(neden); }, [](Odakİzleyici::Çıkış) {}) {
    setLineEdit(m_satır);  // makes the box editable
    setInsertPolicy(QComboBox::NoInsert);
    setCompleter(nullptr);
    m_satır->setMaxLength(EnUzunAd);
    m_satır->setAcceptDrops(false);
    Enterİleİlerlesin(this);
    m_satır->Düzenlenince([this] {
        const QString metin = m_satır->text();
        const QString düzeltilmiş = Düzelt(metin);
        if (düzeltilmiş == metin) return;
        const auto imleç = Düzelt(metin.left(m_satır->cursorPosition())).size();
        m_satır->setText(düzeltilmiş);
        m_satır->setCursorPosition(static_cast<int>(imleç));
    });
}

void AçılırGirişKutusu::Doldur(const QStringList& öğeler) {
    clear();
    addItems(öğeler);
    setCurrentIndex(-1);
    clearEditText();
}

void AçılırGirişKutusu::ÖğeEkle(int sıra, const QString& öğe) {
    const QString yazılan = currentText();
    insertItem(sıra, öğe);
    setEditText(yazılan);
}

void AçılırGirişKutusu::ÖğeÇıkar(int sıra) {
    const QString yazılan = currentText();
    removeItem(sıra);
    setEditText(yazılan);
}

int AçılırGirişKutusu::ÖnEkleBul(const QString& ön) const {
    for (int sıra = 0; sıra < count(); ++sıra)
        if (Türkçe::İleBaşlar(itemText(sıra), ön)) return sıra;
    return -1;
}

QString GrupKutusu::Düzelt(const QString& metin) const {
    return TürkçeBüyükHarf(metin);
}

// A digit is swallowed before it can take the place of a selected text.
void MiktarTürüKutusu::keyPressEvent(QKeyEvent* olay) {
    const QString yazı = YazılanMetin(*olay);
    if (std::none_of(yazı.begin(), yazı.end(), [](QChar harf) { return harf.isDigit(); }))
        AçılırGirişKutusu::keyPressEvent(olay);
}

QString MiktarTürüKutusu::Düzelt(const QString& metin) const {
    QString sonuç = metin;
    sonuç.removeIf([](QChar harf) { return harf.isDigit(); });
    return sonuç;
}
