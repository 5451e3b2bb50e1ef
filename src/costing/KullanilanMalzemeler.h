#pragma once

#include <QStringList>
#include <functional>

#include "MalzemeToplami.h"
#include "SutunluListe.h"

// The list of the materials that the selected product uses. A material that stands for a product bears a mark beside
// its name; a double click with Ctrl, or Ctrl+Enter, leads to that product.
class KullanılanMalzemeListesi : public SütunluListe {
  public:
    explicit KullanılanMalzemeListesi(QWidget* sahip = nullptr);

    struct Yüklenen {
        MalzemeToplamı Toplam;
        QStringList Sayılmayanlar;  // rows whose figures could not be read, as stored
        bool Tamam = false;         // all rows were read
    };
    // Reads the product's rows, figures with `basamak` decimals; the first row becomes current.
    Yüklenen Yükle(const QString& grup, const QString& ürün, int basamak);

    QString SeçiliMiktar() const;
    QString SeçiliMalzeme() const;
    QStringList MalzemeAdları() const;

    void YarıMamuleGidince(std::function<void(const QString& malzeme)> iş) { m_yarıMamuleGit = std::move(iş); }

  protected:
    void mouseDoubleClickEvent(QMouseEvent* olay) override;
    void keyPressEvent(QKeyEvent* olay) override;

  private:
    bool Git(const QTreeWidgetItem* satır);

    std::function<void(const QString&)> m_yarıMamuleGit;
};
