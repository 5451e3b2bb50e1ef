#pragma once

#include <QString>
#include <QStringList>
#include <cstdint>
#include <functional>

#include "OdbcSurucu.h"

// The program's only way to its data: one environment, one connection and one statement handle, and values that
// travel as text. All calls come from the user-interface thread.
//
// Reading a query's rows: SatırlarıOku(Deyimler::..., [&] { ... SütunOku(1) ... });
// Reading one row: KaydıOku(Deyimler::..., [&] { ... SütunOku(1) ... });
// Running INSERT, UPDATE, DELETE: bool tamam = DeyimiYürüt(Deyimler::...);

inline QString SQLMetni;                // text of the next statement
inline std::int16_t SonDönüşKodu = 0;   // result of the last ODBC call; everything but 0 is failure or end
inline std::int32_t YüklenenKayıt = 0;  // rows that the running loader has read so far

// "DSN=" + the product's name, good once ODBCBağlan has run.
QString VeriKaynağıTanımı();

// Registers the user data source and connects to the data file in UygulamaYolu. On failure the message boxes have been
// shown, everything taken is freed, and the result is false: the program is to end.
bool ODBCBağlan();

// Removes the data source, disconnects and frees everything; results are ignored.
void ODBCBağlantısınıKapat();

// The program's own connection, for work that shows nothing itself; open between ODBCBağlan and ODBCBağlantısınıKapat.
class OdbcBağlantısı;
OdbcBağlantısı& ODBCBağlantısı();

// Adds the program's data source or takes it away; the result is ignored.
void VeriKaynağıKaydet(Kurulumİsteği istek);

// The first of SürücüKurulumHataları; never empty.
QString SürücüKurulumHatası();

// An ODBC error box each; an empty one says that there is nothing to be read.
void HatalarıGöster(const QStringList& hatalar);

// Runs SQLMetni. False: the statement's and the connection's errors have been shown and the statement is dropped.
bool SorguÇalıştır();

// Runs an INSERT, UPDATE or DELETE and drops its statement. False: its errors have been shown.
bool DeyimiYürüt(const QString& deyim);

// What became of a query's rows.
enum class Okuma {
    Tamam,      // read up to their end
    Eksik,      // something stopped them before their end
    Yapılamadı  // the statement was refused, none was read
};

// Runs a query, calls `satır` for each of its rows and drops the statement, before a box is shown and on every other
// path. Whatever was not read whole has been told to the user; rows that came before it have been handed over. `satır`
// must not run statements.
[[nodiscard]] Okuma SatırlarıOku(const QString& deyim, const std::function<void()>& satır);

// The same for a question that one row answers.
enum class Kayıt { Var, Yok, Okunamadı };
[[nodiscard]] Kayıt KaydıOku(const QString& deyim, const std::function<void()>& satır = {});

// A column of the row at hand, numbered from 1, at most 254 characters; a longer one is cut there and counts as
// truncated, so that the row is the last one read. NULL gives "".
QString SütunOku(int sütun);

// Drops the statement; harmless when there is none.
void DeyimiBırak();

// Runs the one-value count query in SQLMetni; never 0 (1 stands in), as the result is a progress bar's maximum.
std::int32_t KayıtSayısıAl();

// Every pending error of the connection, a box each.
void ODBCHatasıGöster();
