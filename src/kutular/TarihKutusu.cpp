#include "TarihKutusu.h"

#include <QCalendarWidget>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QRegularExpression>
#include <algorithm>

#include "Saat.h"

namespace {

enum Bölüm { Gün, Ay, Yıl };

// A year of two digits is the nearest one that is not more than 20 years ahead.
int DörtHaneliYıl(const QString& yıl) {
    constexpr int yüzyıl = 100;
    constexpr int ileri = 20;
    int tam = yıl.toInt();
    if (yıl.size() > 2) return tam;
    const int son = Bugün().year() + ileri;
    tam += son - son % yüzyıl;
    return tam > son ? tam - yüzyıl : tam;
}

}  // namespace

TarihKutusu::TarihKutusu(QWidget* sahip) : QDateEdit(sahip) {
    setDisplayFormat(QStringLiteral("dd.MM.yyyy"));
    setCalendarPopup(true);
    // Days and months read Turkish whatever the system's language.
    const QLocale türkçe(QLocale::Turkish, QLocale::Turkey);
    setLocale(türkçe);
    calendarWidget()->setLocale(türkçe);
    calendarWidget()->setFirstDayOfWeek(Qt::Monday);
    // The base class moves the cursor from part to part and puts an unfinished part back when it is left.
    disconnect(lineEdit(), &QLineEdit::cursorPositionChanged, this, nullptr);
    lineEdit()->installEventFilter(this);
    m_takvim = calendarWidget()->parentWidget();
    m_takvim->installEventFilter(this);
}

void TarihKutusu::Yazılınca(std::function<void()> iş) {
    connect(lineEdit(), &QLineEdit::textChanged, this, std::move(iş));
}

std::optional<QDate> TarihKutusu::YazılanTarih() const {
    return Oku(lineEdit()->text());
}

std::optional<QDate> TarihKutusu::Oku(const QString& metin) const {
    static const QRegularExpression biçimler[] = {
        QRegularExpression(QStringLiteral(R"(^(?<g>\d{1,2}) ?[./\- ] ?(?<a>\d{1,2}) ?[./\- ] ?(?<y>\d{4}|\d\d)$)")),
        QRegularExpression(QStringLiteral(R"(^(?<y>\d{4}) ?[./\- ] ?(?<a>\d{1,2}) ?[./\- ] ?(?<g>\d{1,2})$)")),
        QRegularExpression(QStringLiteral(R"(^(?<g>\d\d)(?<a>\d\d)(?<y>\d{4}|\d\d)$)")),
    };
    const QString yalın = metin.simplified();
    for (const QRegularExpression& biçim : biçimler) {
        const QRegularExpressionMatch eş = biçim.match(yalın);
        if (!eş.hasMatch()) continue;
        const QDate tarih(DörtHaneliYıl(eş.captured(u"y")), eş.captured(u"a").toInt(), eş.captured(u"g").toInt());
        if (tarih.isValid() && tarih >= minimumDate() && tarih <= maximumDate()) return tarih;
    }
    return std::nullopt;
}

// Any text may stand here on the way to a date.
QValidator::State TarihKutusu::validate(QString& metin, int& /*yer*/) const {
    return Oku(metin) ? QValidator::Acceptable : QValidator::Intermediate;
}

QDateTime TarihKutusu::dateTimeFromText(const QString& metin) const {
    return Oku(metin).value_or(date()).startOfDay();
}

void TarihKutusu::stepBy(int adım) {
    const std::optional<QDate> tarih = YazılanTarih();
    if (!tarih) return;
    const QString solu = lineEdit()->text().left(lineEdit()->hasSelectedText() ? lineEdit()->selectionStart()
                                                                               : lineEdit()->cursorPosition());
    setDate(*tarih);
    const int bölüm = static_cast<int>(std::min<qsizetype>(solu.count(QLatin1Char('.')), Yıl));
    switch (bölüm) {
        case Gün:
            setDate(tarih->addDays(adım));
            break;
        case Ay:
            setDate(tarih->addMonths(adım));
            break;
        case Yıl:
            setDate(tarih->addYears(adım));
            break;
    }
    BölümüSeç(bölüm);
}

void TarihKutusu::BölümüSeç(int bölüm) {
    const QStringList bölümler = lineEdit()->text().split(QLatin1Char('.'));
    if (bölüm >= bölümler.size()) return;
    const qsizetype baş = bölümler.mid(0, bölüm).join(QLatin1Char('.')).size() + (bölüm > 0 ? 1 : 0);
    lineEdit()->setSelection(static_cast<int>(baş), static_cast<int>(bölümler.at(bölüm).size()));
}

// As it closes without a choice, the base class would put the last date in the place of what is written.
bool TarihKutusu::TakvimOlayı(QEvent* olay) {
    if (olay->type() == QEvent::Show) {
        m_takvimdenÖnce = lineEdit()->text();
        m_vazgeçildi = false;
    } else if (olay->type() == QEvent::KeyPress) {
        m_vazgeçildi = static_cast<QKeyEvent*>(olay)->key() == Qt::Key_Escape;
    } else if (olay->type() == QEvent::Hide) {
        const bool seçildi = !m_vazgeçildi && lineEdit()->text() != m_takvimdenÖnce;
        static_cast<QObject*>(m_takvim)->event(olay);
        if (!seçildi) lineEdit()->setText(m_takvimdenÖnce);
        return true;
    }
    return false;
}

bool TarihKutusu::eventFilter(QObject* nesne, QEvent* olay) {
    if (nesne == m_takvim) return TakvimOlayı(olay);
    if (nesne != lineEdit() || olay->type() != QEvent::MouseButtonDblClick) return QDateEdit::eventFilter(nesne, olay);
    const QPoint yer = static_cast<QMouseEvent*>(olay)->position().toPoint();
    BölümüSeç(static_cast<int>(lineEdit()->text().left(lineEdit()->cursorPositionAt(yer)).count(QLatin1Char('.'))));
    return true;
}

void TarihKutusu::keyPressEvent(QKeyEvent* olay) {
    if (olay->key() == Qt::Key_Return || olay->key() == Qt::Key_Enter) {
        olay->ignore();  // the base class would put the last date back
    } else {
        QAbstractSpinBox::keyPressEvent(olay);
    }
}

void TarihKutusu::focusInEvent(QFocusEvent* olay) {
    lineEdit()->event(olay);
    QWidget::focusInEvent(olay);
    if (olay->reason() != Qt::MouseFocusReason && olay->reason() != Qt::PopupFocusReason) selectAll();
}

void TarihKutusu::focusOutEvent(QFocusEvent* olay) {
    lineEdit()->event(olay);
    QWidget::focusOutEvent(olay);
}

bool TarihKutusu::focusNextPrevChild(bool sonraki) {
    return QWidget::focusNextPrevChild(sonraki);
}
