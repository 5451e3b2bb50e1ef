#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <memory>

#include "OdbcTanitici.h"

// Data files for tests. They are made and read through the driver manager and the driver, beside the program's own
// connection.

// A new data file, made by the data-file tool: "yeni" is empty, "ornek" holds the sample. The test fails when it cannot
// be made.
void VeriDosyasıOluştur(const QString& yol, const QString& tür = QStringLiteral("yeni"));

// One open data file. A statement that fails fails the test with the driver's messages.
class TestVerisi {
  public:
    explicit TestVerisi(const QString& yol);

    void Çalıştır(const QString& sql);
    // From here on changes are under way until Onayla.
    void ElleOnayla();
    void Onayla();
    QList<QStringList> Oku(const QString& sql);
    // Every row of every table, each row headed by its table's name: for comparing files.
    QList<QStringList> HerSatır();

  private:
    OdbcBağlantısı m_bağlantı;
};
