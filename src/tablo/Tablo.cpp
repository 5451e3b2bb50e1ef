#include "Tablo.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QScrollBar>
#include <QVBoxLayout>

#include "FormParcalari.h"
#include "MetinTablosu.h"
#include "MetinTemsilcisi.h"
#include "TabloMetni.h"
#include "TurkceMetin.h"

Tablo::Tablo(const QString& ad, TabloModeli& model, QWidget* sahip) : QTableView(sahip), m_model(model) {
    setObjectName(ad);
    setModel(&model);
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setTabKeyNavigation(false);
    setAlternatingRowColors(true);
    setShowGrid(false);
    setWordWrap(false);
    setEditTriggers(NoEditTriggers);
    setSortingEnabled(true);
    verticalHeader()->hide();
    const int yükseklik = fontMetrics().height() + 6;
    verticalHeader()->setDefaultSectionSize(yükseklik);
    verticalHeader()->setMinimumSectionSize(yükseklik);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Interactive);
    MetinTemsilcisi::Sütunlar yerler;
    for (int sütun = 0; sütun < model.columnCount(); ++sütun) {
        setColumnWidth(sütun, sizeHintForColumn(sütun));
        if (model.Sütunlar().at(sütun).Sayı) yerler.Sayılar.append(sütun);
    }
    setItemDelegate(new MetinTemsilcisi(this, yerler));
    horizontalHeader()->setStretchLastSection(true);
}

// Never asks the rows: there may be a hundred thousand of them.
int Tablo::sizeHintForColumn(int sütun) const {
    const TabloSütunu& tanım = m_model.Sütunlar().at(sütun);
    const QString örnek(tanım.Harf, tanım.Sayı ? QLatin1Char('8') : QLatin1Char('n'));
    const int başlık = fontMetrics().horizontalAdvance(Metin(tanım.Başlık)) + 28;
    return qMax(başlık, fontMetrics().horizontalAdvance(örnek) + 16);
}

bool Tablo::SatırıSeç(const std::function<bool(std::size_t)>& aranan) {
    for (int satır = 0; satır < m_model.rowCount(); ++satır) {
        if (!aranan(m_model.KaynakSatırı(satır))) continue;
        setCurrentIndex(m_model.index(satır, 0));
        scrollTo(currentIndex());
        return true;
    }
    setCurrentIndex({});
    return false;
}

QSize Tablo::sizeHint() const {
    constexpr int satır = 12;
    int sütunlar = 0;  // the header's own length takes the stretched last column in
    for (int sütun = 0; sütun < m_model.columnCount(); ++sütun) sütunlar += sizeHintForColumn(sütun);
    return {sütunlar + verticalScrollBar()->sizeHint().width() + 2 * frameWidth() + 2,
            horizontalHeader()->sizeHint().height() + satır * verticalHeader()->defaultSectionSize()};
}

std::optional<std::size_t> Tablo::SeçiliSatır() const {
    const QModelIndexList seçili = selectionModel()->selectedRows();
    if (seçili.isEmpty()) return std::nullopt;
    return m_model.KaynakSatırı(seçili.first().row());
}

QString Tablo::SatırMetni(int satır) const {
    QStringList hücreler;
    for (int sütun = 0; sütun < m_model.columnCount(); ++sütun) {
        const QString hücre = m_model.index(satır, sütun).data().toString();
        const TabloSütunu& tanım = m_model.Sütunlar().at(sütun);
        const bool rakam = tanım.Sayı || tanım.Çizelgede == ÇizelgedeSütun::Miktar;
        hücreler.append(TekSatır(rakam ? TabloRakamı(hücre) : TabloMetni(hücre)));
    }
    return hücreler.join(QLatin1Char('\t'));
}

QString Tablo::GörünenlerinMetni() const {
    QStringList başlıklar;
    for (const TabloSütunu& sütun : m_model.Sütunlar()) başlıklar.append(Metin(sütun.Başlık));
    QString metin = başlıklar.join(QLatin1Char('\t')) + QLatin1Char('\n');
    for (int satır = 0; satır < m_model.rowCount(); ++satır) metin += SatırMetni(satır) + QLatin1Char('\n');
    return metin;
}

void Tablo::keyPressEvent(QKeyEvent* olay) {
    if (olay->key() == Qt::Key_Space && currentIndex().isValid() && selectionModel()->isSelected(currentIndex())) {
        const QModelIndex ilk = currentIndex().siblingAtColumn(0);
        const QVariant işaret = ilk.data(Qt::CheckStateRole);
        if (işaret.isValid())
            m_model.setData(ilk, işaret.toInt() == Qt::Checked ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
        olay->accept();
        return;
    }
    if (olay->key() == Qt::Key_C && olay->modifiers() == (Qt::ControlModifier | Qt::ShiftModifier)) {
        QApplication::clipboard()->setText(GörünenlerinMetni());
        return;
    }
    if (olay->matches(QKeySequence::Copy) && selectionModel()->hasSelection()) {
        QApplication::clipboard()->setText(SatırMetni(currentIndex().row()));
        return;
    }
    QTableView::keyPressEvent(olay);
}

// The first row is marked as it becomes current, so that Space ticks what is seen to be marked. The mouse marks the row
// that it points to: nothing may move under it.
void Tablo::focusInEvent(QFocusEvent* olay) {
    if (olay->reason() != Qt::MouseFocusReason && !currentIndex().isValid() && m_model.rowCount() > 0)
        setCurrentIndex(m_model.index(0, 0));
    QTableView::focusInEvent(olay);
}

QWidget* TabloBölümü(int sıra, MetinNo başlık, Tablo* tablo) {
    auto* bölüm = new QWidget;
    auto* düzen = new QVBoxLayout(bölüm);
    düzen->setContentsMargins(0, 0, 0, 0);
    düzen->addWidget(VurgulananEtiket(sıra, başlık, tablo));
    düzen->addWidget(tablo);
    return bölüm;
}

QLabel* TabloNotu(const QString& ad, Tablo& tablo) {
    auto* not_ = new QLabel;
    not_->setObjectName(ad);
    not_->setTextFormat(Qt::PlainText);
    not_->setWordWrap(true);
    not_->setAlignment(Qt::AlignCenter);
    not_->setForegroundRole(QPalette::Text);
    not_->setAttribute(Qt::WA_TransparentForMouseEvents);
    auto* düzen = new QVBoxLayout(tablo.viewport());
    düzen->addWidget(not_);
    return not_;
}

void NotuYaz(QLabel& not_, Tablo& tablo, const QString& metin) {
    not_.setText(tablo.model()->rowCount() == 0 ? metin : QString());
    not_.setVisible(!not_.text().isEmpty());
    tablo.setAccessibleDescription(not_.text());
}
