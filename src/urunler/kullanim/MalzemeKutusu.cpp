#include "MalzemeKutusu.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QLineEdit>
#include <QListView>
#include <QStringListModel>

#include "TurkceSira.h"

namespace {

constexpr int EN_ÇOK_ÖNERİ = 200;  // more are found by typing on
constexpr int GÖRÜNEN_HARF = 24;

}  // namespace

MalzemeKutusu::MalzemeKutusu(const QString& ad)
    : m_liste(new QStringListModel(this)), m_öneriler(new QStringListModel(this)) {
    setObjectName(ad);
    // The widest of ten thousand names is not looked for.
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(GÖRÜNEN_HARF);
    auto* görünüm = new QListView(this);
    görünüm->setUniformItemSizes(true);
    setView(görünüm);
    setModel(m_liste);
    auto* tamamlayıcı = new QCompleter(m_öneriler, this);
    tamamlayıcı->setCompletionMode(QCompleter::UnfilteredPopupCompletion);
    tamamlayıcı->setMaxVisibleItems(12);
    setCompleter(tamamlayıcı);
    connect(lineEdit(), &QLineEdit::textEdited, this, [this](const QString& metin) { Öner(metin); });
    connect(this, &QComboBox::editTextChanged, this, [this] { MetinDeğişti(); });
}

void MalzemeKutusu::MalzemeleriKoy(const QList<Öğe>& öğeler) {
    const QString önceki = currentText();
    m_metinler.clear();
    m_yerler = {};
    for (const Öğe& öğe : öğeler) {
        m_yerler.BulYaDaEkle(öğe.Ad.toStdString(), static_cast<std::uint32_t>(m_metinler.size()));
        m_metinler.append(öğe.Ad + öğe.Ek);
    }
    // A name counts before another one's text.
    for (std::uint32_t i = 0; i < m_metinler.size(); ++i) m_yerler.BulYaDaEkle(m_metinler[i].toStdString(), i);
    const QSignalBlocker sessiz(this);
    m_liste->setStringList(m_metinler);
    m_seçilen = Bul(önceki);
    setCurrentIndex(m_seçilen ? static_cast<int>(*m_seçilen) : -1);
    if (!m_seçilen) setEditText(önceki);
}

std::optional<std::size_t> MalzemeKutusu::Bul(const QString& metin) const {
    for (const QString& ad : {metin, metin.simplified()}) {  // a name may have blanks around it
        const std::uint32_t yer = m_yerler.Bul(ad.toStdString());
        if (yer != AdDizini::YOK) return yer;
    }
    return std::nullopt;
}

void MalzemeKutusu::Seç(std::size_t yer) {
    setCurrentIndex(static_cast<int>(yer));
}

bool MalzemeKutusu::AdıylaSeç(const QString& ad) {
    const std::uint32_t yer = m_yerler.Bul(ad.toStdString());
    if (yer == AdDizini::YOK) return false;
    Seç(yer);
    return true;
}

void MalzemeKutusu::MetinDeğişti() {
    const std::optional<std::size_t> seçilen = Bul(currentText());
    if (seçilen == m_seçilen) return;
    m_seçilen = seçilen;
    if (m_seçilince) m_seçilince();
}

// The name as the list has it.
void MalzemeKutusu::Bitir() {
    if (m_seçilen && currentText() != m_metinler[static_cast<qsizetype>(*m_seçilen)]) Seç(*m_seçilen);
}

void MalzemeKutusu::Öner(const QString& aranan) {
    QStringList öneriler;
    const QString parça = aranan.simplified();
    for (const QString& metin : m_metinler) {
        if (öneriler.size() == EN_ÇOK_ÖNERİ) break;
        if (Türkçe::İçerir(metin, parça)) öneriler.append(metin);
    }
    const bool bulundu = öneriler.size() == 1 && Bul(aranan).has_value();  // nothing is left to be offered
    m_öneriler->setStringList(bulundu ? QStringList() : öneriler);
}
