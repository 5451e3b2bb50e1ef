#pragma once

#include <QAbstractTableModel>
#include <QList>
#include <QString>
#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

enum class MetinNo : int;

// What TabloKaynağı::Karşılaştır gives for two values.
template <typename T>
int Sırala(const T& a, const T& b) {
    return a < b ? -1 : b < a ? 1 : 0;
}

// The rows behind a table, numbered from 0 in the owner's order. The table holds no copy of them.
class TabloKaynağı {
  public:
    TabloKaynağı() = default;
    TabloKaynağı(const TabloKaynağı&) = delete;
    TabloKaynağı& operator=(const TabloKaynağı&) = delete;
    virtual ~TabloKaynağı() = default;

    virtual std::size_t SatırSayısı() const = 0;
    virtual QString Hücre(std::size_t satır, int sütun) const = 0;

    // The same for a spreadsheet: the stored text where what is shown hides some of its digits.
    virtual QString Saklanan(std::size_t satır, int sütun) const { return Hücre(satır, sütun); }

    // Below 0, 0 or above 0; texts as the data file orders them, unless a column holds figures.
    virtual int Karşılaştır(std::size_t a, std::size_t b, int sütun) const;

    // The tick in the first column. Nothing: the row cannot be ticked.
    virtual std::optional<bool> İşaret(std::size_t) const { return std::nullopt; }
    virtual void İşaretle(std::size_t, bool) {}

    // Said beside the pointer, and by screen readers.
    virtual QString Açıklama(std::size_t) const { return {}; }
};

// What a column's cells become in a spreadsheet.
enum class ÇizelgedeSütun {
    Gösterilen,
    Metin,   // what is shown, a text even where it looks like a figure
    Miktar,  // a quantity with its unit: two columns
    Tarih    // a day: where it is none, what is shown
};

struct TabloSütunu {
    MetinNo Başlık;
    int Harf;           // room for so many letters or digits
    bool Sayı = false;  // figures: right-aligned, the greatest first when sorted
    ÇizelgedeSütun Çizelgede = ÇizelgedeSütun::Gösterilen;
};

// Shows the rows that the filter lets through, in the order of a column.
class TabloModeli : public QAbstractTableModel {
  public:
    TabloModeli(TabloKaynağı& kaynak, QList<TabloSütunu> sütunlar, QObject* sahip = nullptr);

    // After the source has other rows.
    void Yenile();
    // After rows have other contents; keeps order and filter.
    void HücrelerDeğişti();

    // Empty: all rows.
    void Süz(std::function<bool(std::size_t satır)> süzgeç);

    std::size_t KaynakSatırı(int satır) const { return m_sıra.at(static_cast<std::size_t>(satır)); }
    const QList<TabloSütunu>& Sütunlar() const { return m_sütunlar; }
    TabloKaynağı& Kaynak() const { return m_kaynak; }

    // Ticks the shown rows, or takes their ticks away.
    void Görünenleriİşaretle(bool işaretli);
    // `iş` runs after the user ticked or unticked something.
    void İşaretlenince(std::function<void()> iş) { m_işaretlenince = std::move(iş); }

    int rowCount(const QModelIndex& üst = {}) const override;
    int columnCount(const QModelIndex& üst = {}) const override;
    QVariant data(const QModelIndex& yer, int rol) const override;
    bool setData(const QModelIndex& yer, const QVariant& değer, int rol) override;
    Qt::ItemFlags flags(const QModelIndex& yer) const override;
    QVariant headerData(int bölüm, Qt::Orientation yön, int rol) const override;
    void sort(int sütun, Qt::SortOrder yön) override;

  private:
    void Diz();

    TabloKaynağı& m_kaynak;
    QList<TabloSütunu> m_sütunlar;
    std::function<bool(std::size_t)> m_süzgeç;
    std::function<void()> m_işaretlenince;
    std::vector<std::uint32_t> m_sıra;
    int m_sıralananSütun = -1;
    Qt::SortOrder m_yön = Qt::AscendingOrder;
};
