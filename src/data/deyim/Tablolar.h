#pragma once

#include <QList>
#include <QStringList>

// Every table that the program writes, from the declarations of those who write it: the one list that carrying a data
// file as a whole goes by.
namespace Deyimler {

// The tables of one subject with their indexes, in the order in which they are made. They are there together or not at
// all; those of the first set are in every data file.
QList<QStringList> TabloTakımları();

// The table that a declaration makes; empty: it makes an index.
QString BildirilenTablo(const QString& bildirim);

// Whether the declaration is that of an index that only makes reading faster, which is best made once the rows are
// there.
bool HızDizini(const QString& bildirim);

}  // namespace Deyimler
