#include "IlkSatirlar.h"

#include <QFont>
#include <algorithm>

#include "ListeMetinleri.h"
#include "MetinTablosu.h"

void İlkSatırlar::Göster(std::vector<ÇizelgeSatırı> satırlar, const SütunTahmini& seçilen) {
    beginResetModel();
    m_satırlar = std::move(satırlar);
    std::size_t sayı = 0;
    for (const ÇizelgeSatırı& satır : m_satırlar) sayı = std::max(sayı, satır.Hücreler.size());
    m_sütunSayısı = static_cast<int>(sayı);
    m_seçilen = seçilen;
    endResetModel();
}

void İlkSatırlar::Seç(const SütunTahmini& seçilen) {
    m_seçilen = seçilen;
    if (m_satırlar.empty() || m_sütunSayısı == 0) return;
    headerDataChanged(Qt::Horizontal, 0, m_sütunSayısı - 1);
    dataChanged(index(0, 0), index(rowCount() - 1, m_sütunSayısı - 1));
}

QString İlkSatırlar::Başlık(int sütun) const {
    for (const ÇizelgeSatırı& satır : m_satırlar)
        if (satır.No == m_seçilen.BaşlıkSatırı) return satır.Sütun(sütun).Metin.simplified();
    return {};
}

QString İlkSatırlar::SütunAdı(int sütun) const {
    const QString başlık = Başlık(sütun);
    return başlık.isEmpty() ? SütunHarfi(sütun) : SütunHarfi(sütun) + QStringLiteral(" – ") + başlık;
}

int İlkSatırlar::rowCount(const QModelIndex& üst) const {
    return üst.isValid() ? 0 : static_cast<int>(m_satırlar.size());
}

int İlkSatırlar::columnCount(const QModelIndex& üst) const {
    return üst.isValid() ? 0 : m_sütunSayısı;
}

QVariant İlkSatırlar::data(const QModelIndex& yer, int rol) const {
    const ÇizelgeSatırı& satır = m_satırlar[static_cast<std::size_t>(yer.row())];
    const ÇizelgeHücresi& hücre = satır.Sütun(yer.column());
    if (rol == Qt::DisplayRole || rol == Qt::ToolTipRole)
        return (hücre.Metin.isEmpty() ? hücre.Değer : hücre.Metin).simplified();
    if (rol == Qt::TextAlignmentRole && hücre.Tür == ÇizelgeHücreTürü::Sayı)
        return QVariant::fromValue(Qt::Alignment(Qt::AlignRight | Qt::AlignVCenter));
    if (rol == Qt::FontRole && satır.No == m_seçilen.BaşlıkSatırı) {
        QFont yazı;
        yazı.setBold(true);
        return yazı;
    }
    return {};
}

QVariant İlkSatırlar::headerData(int bölüm, Qt::Orientation yön, int rol) const {
    if (rol != Qt::DisplayRole) return {};
    if (yön == Qt::Vertical) return m_satırlar[static_cast<std::size_t>(bölüm)].No;
    QString ad = SütunHarfi(bölüm);
    if (bölüm == m_seçilen.AdSütunu) ad += QStringLiteral(" (%1)").arg(Metin(MetinNo::AdıSütunu));
    if (bölüm == m_seçilen.FiyatSütunu) ad += QStringLiteral(" (%1)").arg(Metin(MetinNo::FiyatıSütunu));
    return ad;
}
