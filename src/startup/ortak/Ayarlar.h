#pragma once

#include <QPoint>
#include <QString>
#include <cstdint>
#include <optional>

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
