#pragma once

#include <QAbstractTableModel>
#include <vector>

#include "Cizelge.h"
#include "SutunTahmini.h"

// The first rows of a sheet as they stand in the file, so that its columns can be told apart.
class İlkSatırlar : public QAbstractTableModel {
  public:
    using QAbstractTableModel::QAbstractTableModel;

    void Göster(std::vector<ÇizelgeSatırı> satırlar, const SütunTahmini& seçilen);
    void Seç(const SütunTahmini& seçilen);
    const std::vector<ÇizelgeSatırı>& Satırlar() const { return m_satırlar; }

    // "B – Ürün Adı"
    QString SütunAdı(int sütun) const;
    // What stands in the captions' row.
    QString Başlık(int sütun) const;

    int rowCount(const QModelIndex& üst = {}) const override;
    int columnCount(const QModelIndex& üst = {}) const override;
    QVariant data(const QModelIndex& yer, int rol) const override;
    QVariant headerData(int bölüm, Qt::Orientation yön, int rol) const override;

  private:
    std::vector<ÇizelgeSatırı> m_satırlar;
    int m_sütunSayısı = 0;
    SütunTahmini m_seçilen;
};
