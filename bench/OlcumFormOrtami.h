#pragma once

#include <sqlite3.h>

#include <QString>
#include <functional>
#include <memory>

#include "VeriDosyasi.h"

// What the measurements of the forms share: the data files, the program's connection to one of them at a time, and the
// bare SQLite library on the same files.
namespace ÖlçümOrtamı {

// Data, settings and data sources of the measurements, apart from the user's. To be called first.
void Kur();

// The folder of a data file with this many used-material rows, and with one product of `kalabalık` materials more when
// that is not 0. It is made when it is not there yet.
// `malzeme`: the catalogue's size; 0: as BüyükVeriYaz has it.
QString VeriKlasörü(int satırSayısı, int kalabalık = 0, int malzeme = 0);
QString KalabalıkGrup();
QString KalabalıkÜrün();

// Writes into the data file in this folder, all of it together.
void Yaz(const QString& klasör, const std::function<void(VeriYazıcısı&)>& yaz);

// Makes the program's connection lead to the data file in this folder.
void Bağlan(const QString& klasör);

// The number of statements that have been sent to the database so far.
long GönderilenDeyim();

struct Kapatıcı {
    void operator()(sqlite3* vt) const noexcept { sqlite3_close(vt); }
    void operator()(sqlite3_stmt* deyim) const noexcept { sqlite3_finalize(deyim); }
};
using Sqlite = std::unique_ptr<sqlite3, Kapatıcı>;
using SqliteSorgusu = std::unique_ptr<sqlite3_stmt, Kapatıcı>;

// The same data file opened with the bare library; it knows the columns' Turkish order.
Sqlite ÇıplakAç(const QString& klasör);
SqliteSorgusu ÇıplakSorgu(sqlite3* vt, const char* sql);
QString ÇıplakMetin(sqlite3_stmt* sorgu, int sütun);

}  // namespace ÖlçümOrtamı
