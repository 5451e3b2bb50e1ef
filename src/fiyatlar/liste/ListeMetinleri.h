#pragma once

#include <QString>

#include "FiyatListesi.h"

// What the list's form says.

// Why a file could not be read.
QString OkumaHatası(const OkumaSonucu& sonuç);

// What is to be known of a row; "" of one that simply matches.
QString DurumMetni(const ListeSatırı& satır);

// A column's letters as spreadsheets count them (from 0): A, Z, AA.
QString SütunHarfi(int sütun);
