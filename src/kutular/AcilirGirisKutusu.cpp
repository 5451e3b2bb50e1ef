#include "AcilirGirisKutusu.h"

#include <QKeyEvent>
#include <algorithm>

#include "GirisKutusu.h"
#include "TurkceMetin.h"
#include "TurkceSira.h"

namespace {

class AçılırKutuSatırı : public GirişKutusu {
  public:
    explicit AçılırKutuSatırı(const AçılırGirişKutusu& kutu) : m_kutu(kutu) {}

    bool Denetle(QString& metin, int& imleç) override {
        GirişKutusu::Denetle(metin, imleç);
        imleç = static_cast<int>(m_kutu.Düzelt(metin.left(imleç)).size());
        metin = m_kutu.Düzelt(metin);
        return true;
    }

  private:
    const AçılırGirişKutusu& m_kutu;
};

// The apostrophe ends a text in a statement.
bool AlınmazMı(QChar harf) {
    return harf.isDigit() || harf == u'\'';
}

}  // namespace

AçılırGirişKutusu::AçılırGirişKutusu(QWidget* sahip)
    : QComboBox(sahip),
      m_satır(new AçılırKutuSatırı(*this)),
      m_odak(
          this, [this](Qt::FocusReason neden) { m_satır->Girildi(neden); },
          [this](Odakİzleyici::Çıkış çıkış) {
              if (çıkış != Odakİzleyici::Çıkış::FormKapanıyor) Bitir();
          }) {
    setLineEdit(m_satır);  // makes the box editable
    setInsertPolicy(QComboBox::NoInsert);
    setCompleter(nullptr);
    m_satır->setAcceptDrops(false);
    Enterİleİlerlesin(this);
}

void AçılırGirişKutusu::EnUzunOlsun(int boy) {
    m_satır->EnUzunOlsun(boy);
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

void GrupKutusu::Bitir() {
    const bool listede = findText(currentText(), Qt::MatchFixedString | Qt::MatchCaseSensitive) >= 0;
    if (!listede) setEditText(currentText().trimmed());
}

// What is not taken is swallowed before it can take the place of a selected text.
void MiktarTürüKutusu::keyPressEvent(QKeyEvent* olay) {
    const QString yazı = YazılanMetin(*olay);
    if (std::none_of(yazı.begin(), yazı.end(), AlınmazMı)) AçılırGirişKutusu::keyPressEvent(olay);
}

QString MiktarTürüKutusu::Düzelt(const QString& metin) const {
    QString sonuç = metin;
    sonuç.removeIf(AlınmazMı);
    return sonuç;
}
