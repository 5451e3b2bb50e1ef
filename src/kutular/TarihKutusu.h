#pragma once

#include <QDateEdit>
#include <functional>
#include <optional>

// A date picker whose text is written like any other text: day, month, year, with points, other separators or none
// ("1.2.2026", "01022026", "1/2/26", "2026-02-01"). Nothing is put right or put back while the user writes; whoever
// takes the date asks YazılanTarih. Up and Down change the part in which the cursor stands, a double click selects it,
// the button at the right opens a calendar. A calendar that is left without a choice leaves the text as it was.
class TarihKutusu : public QDateEdit {
  public:
    explicit TarihKutusu(QWidget* sahip = nullptr);

    // What stands in the box; null: no complete date of the calendar from 14.09.1752 to 31.12.9999.
    // date() is the last date that could be read.
    std::optional<QDate> YazılanTarih() const;

    // `iş` runs whenever another text stands in the box, readable or not.
    void Yazılınca(std::function<void()> iş);

    void stepBy(int adım) override;

  protected:
    StepEnabled stepEnabled() const override { return StepUpEnabled | StepDownEnabled; }
    QValidator::State validate(QString& metin, int& yer) const override;
    void fixup(QString& /*metin*/) const override {}
    QDateTime dateTimeFromText(const QString& metin) const override;
    bool eventFilter(QObject* nesne, QEvent* olay) override;
    void keyPressEvent(QKeyEvent* olay) override;
    void focusInEvent(QFocusEvent* olay) override;
    void focusOutEvent(QFocusEvent* olay) override;
    bool focusNextPrevChild(bool sonraki) override;

  private:
    std::optional<QDate> Oku(const QString& metin) const;
    void BölümüSeç(int bölüm);
    bool TakvimOlayı(QEvent* olay);

    QWidget* m_takvim;          // the window that the calendar opens in
    QString m_takvimdenÖnce;    // the text when it was opened
    bool m_vazgeçildi = false;  // by Esc
};
