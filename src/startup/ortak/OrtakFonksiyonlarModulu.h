#pragma once

#include <QDate>
#include <QPoint>
#include <QString>
#include <cstdint>
#include <optional>

// Shared helpers for paths, dates and settings.

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

// The date as month/day/year without leading zeros.
QString AyMetni(QDate tarih);

// The per-user settings store: texts under section and key of the application AyarUygulamaAdı ("Tovrek\Varnek").
// Garbage in the store is met by the defaults; nothing here shows a message.

// Where the settings lie; there is no such file until something has been set.
QString AyarDosyası();

QString AyarOku(const QString& bölüm, const QString& anahtar, const QString& varsayılan);
void AyarYaz(const QString& bölüm, const QString& anahtar, const QString& değer);

// Decimal places ("Ayarlar"/"Ondalik"): 1 to 6; absent, unreadable or outside: 2.
std::int32_t KayıtlıOndalık();
void OndalığıKaydet(std::int32_t basamak);

// The main form's position ("Ayarlar"/"Sol" and "Ust") in pixels; stored in twips (15 to a pixel) as the text of a
// single-precision number. Each edge on its own: absent or unreadable gives nullopt.
std::optional<int> KayıtlıSol();
std::optional<int> KayıtlıÜst();
void KonumuKaydet(QPoint solÜst);
