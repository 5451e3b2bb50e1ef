#pragma once

#include <QDate>
#include <functional>

// Today's date. A test may set the clock; nullptr sets it back to the system's.
QDate Bugün();
// Local date and time as records bear it: "yyyy-MM-dd HH:mm:ss".
QString ŞimdikiZaman();
void SaatiAyarla(std::function<QDate()> bugün);

// The date as the status bar shows it: "dd mmmm yyyy dddd" in Turkish (22 Kasım 2026 Pazar), whatever the system's
// language.
QString TürkçeUzunTarih(QDate tarih);
