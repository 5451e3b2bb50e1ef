#include "TabloModeli.h"

#include <algorithm>
#include <utility>

#include "MetinTablosu.h"
#include "MetinTemsilcisi.h"
#include "TurkceSira.h"

int TabloKaynağı::Karşılaştır(std::size_t a, std::size_t b, int sütun) const {
    return Türkçe::Karşılaştır(Hücre(a, sütun), Hücre(b, sütun));
}

TabloModeli::TabloModeli(TabloKaynağı& kaynak, QList<TabloSütunu> sütunlar, QObject* sahip)
    : QAbstractTableModel(sahip), m_kaynak(kaynak), m_sütunlar(std::move(sütunlar)) {
    Diz();
}

void TabloModeli::Yenile() {
    beginResetModel();
    Diz();
    endResetModel();
}

void TabloModeli::HücrelerDeğişti() {
    if (!m_sıra.empty()) dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
}

void TabloModeli::Süz(std::function<bool(std::size_t)> süzgeç) {
    m_süzgeç = std::move(süzgeç);
    Yenile();
}

void TabloModeli::Diz() {
    m_sıra.clear();
    for (std::uint32_t satır = 0; satır < m_kaynak.SatırSayısı(); ++satır)
        if (!m_süzgeç || m_süzgeç(satır)) m_sıra.push_back(satır);
    if (m_sıralananSütun < 0) return;
    const int işaret = m_yön == Qt::AscendingOrder ? 1 : -1;
    std::stable_sort(m_sıra.begin(), m_sıra.end(), [this, işaret](std::uint32_t a, std::uint32_t b) {
        return işaret * m_kaynak.Karşılaştır(a, b, m_sıralananSütun) < 0;
    });
}

// The rows stay the same ones: who holds a place in the table keeps his row.
void TabloModeli::sort(int sütun, Qt::SortOrder yön) {
    layoutAboutToBeChanged({}, VerticalSortHint);
    m_sıralananSütun = sütun;
    m_yön = yön;
    const QModelIndexList eskiler = persistentIndexList();
    std::vector<std::uint32_t> satırlar;
    for (const QModelIndex& eski : eskiler) satırlar.push_back(m_sıra[static_cast<std::size_t>(eski.row())]);
    Diz();
    if (!eskiler.isEmpty()) {
        std::vector<int> yerler(m_kaynak.SatırSayısı(), -1);
        for (std::size_t i = 0; i < m_sıra.size(); ++i) yerler[m_sıra[i]] = static_cast<int>(i);
        QModelIndexList yeniler;
        for (qsizetype i = 0; i < eskiler.size(); ++i)
            yeniler.append(index(yerler[satırlar[static_cast<std::size_t>(i)]], eskiler[i].column()));
        changePersistentIndexList(eskiler, yeniler);
    }
    layoutChanged({}, VerticalSortHint);
}

void TabloModeli::Görünenleriİşaretle(bool işaretli) {
    for (const std::uint32_t satır : m_sıra)
        if (m_kaynak.İşaret(satır)) m_kaynak.İşaretle(satır, işaretli);
    HücrelerDeğişti();
    if (m_işaretlenince) m_işaretlenince();
}

int TabloModeli::rowCount(const QModelIndex& üst) const {
    return üst.isValid() ? 0 : static_cast<int>(m_sıra.size());
}

int TabloModeli::columnCount(const QModelIndex& üst) const {
    return üst.isValid() ? 0 : static_cast<int>(m_sütunlar.size());
}

QVariant TabloModeli::data(const QModelIndex& yer, int rol) const {
    const std::size_t satır = KaynakSatırı(yer.row());
    const TabloSütunu& sütun = m_sütunlar.at(yer.column());
    switch (rol) {
        case Qt::DisplayRole:
            return m_kaynak.Hücre(satır, yer.column());
        case Qt::TextAlignmentRole:
            return QVariant::fromValue(Qt::Alignment((sütun.Sayı ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter));
        case Qt::CheckStateRole: {
            if (yer.column() != 0) return {};
            const std::optional<bool> işaret = m_kaynak.İşaret(satır);
            return işaret ? QVariant(*işaret ? Qt::Checked : Qt::Unchecked) : QVariant();
        }
        case AyrıntıRolü:
        case Qt::AccessibleDescriptionRole: {
            const QString açıklama = m_kaynak.Açıklama(satır);
            return açıklama.isEmpty() ? QVariant() : QVariant(açıklama);
        }
        default:
            return {};
    }
}

bool TabloModeli::setData(const QModelIndex& yer, const QVariant& değer, int rol) {
    const std::size_t satır = KaynakSatırı(yer.row());
    if (rol != Qt::CheckStateRole || yer.column() != 0 || !m_kaynak.İşaret(satır)) return false;
    m_kaynak.İşaretle(satır, değer.toInt() == Qt::Checked);
    dataChanged(index(yer.row(), 0), index(yer.row(), columnCount() - 1));
    if (m_işaretlenince) m_işaretlenince();
    return true;
}

Qt::ItemFlags TabloModeli::flags(const QModelIndex& yer) const {
    Qt::ItemFlags bayraklar = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
    if (yer.column() == 0 && m_kaynak.İşaret(KaynakSatırı(yer.row()))) bayraklar |= Qt::ItemIsUserCheckable;
    return bayraklar;
}

QVariant TabloModeli::headerData(int bölüm, Qt::Orientation yön, int rol) const {
    if (yön != Qt::Horizontal) return {};
    if (rol == Qt::DisplayRole) return Metin(m_sütunlar.at(bölüm).Başlık);
    if (rol == Qt::TextAlignmentRole)
        return QVariant::fromValue(
            Qt::Alignment((m_sütunlar.at(bölüm).Sayı ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter));
    return {};
}
