#pragma once

#include <QStringList>

#include "MalzemeToplami.h"
#include "SutunluListe.h"

// The list of the materials that the selected product uses.
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
};
