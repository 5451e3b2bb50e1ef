#pragma once

#include <QDate>
#include <QString>
#include <optional>

// Shared helpers for paths and dates.

// The text with the platform's path separator at its end.
QString SondaTersBöluYap(const QString& yol);

// Whether the file or folder exists.
bool DosyaVar(const QString& yol);

// The path in a form without blanks, as the driver's compaction request takes it (a pair of paths parted by a blank):
// "%" becomes "%25", a blank "%20"; the driver decodes it.
QString KısaYolAl(const QString& yol);

// The folder that holds the program's per-user data, ends in the path separator.
QString ProgramDosyalarıKlasörü();

// A text month/day/year as a date; a year below 100 gets 1900 added. A part that is no number, a missing "/" or a day
// that does not exist: nullopt.
std::optional<QDate> AyMetniniTariheÇevir(const QString& metin);

// The date as month/day/year without leading zeros, and the same as the statements' date literal (#3/7/2004#).
QString AyMetni(QDate tarih);
QString TarihDeğişmezi(QDate tarih);
