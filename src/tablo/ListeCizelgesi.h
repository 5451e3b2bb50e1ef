#pragma once

#include <QList>
#include <QString>

#include "CizelgeHedefi.h"

class SütunluListe;
class TabloModeli;

// What a column of a list holds, for a spreadsheet.
enum class ListeSütunu {
    Metin,
    Grup,    // a text that stands on the first of its rows only; in the spreadsheet on each
    Miktar,  // becomes two columns: the number and its unit
    Fiyat,   // as it is stored
    Tutar    // as it is shown
};

// Writes a list's rows, its captions and `sonra`, rows of as many values, behind them. Figures that cannot be read stay
// texts.
YazmaSonucu ListeyiÇizelgeyeYaz(const QString& yol, const QString& sayfaAdı, const SütunluListe& liste,
                                const QList<ListeSütunu>& sütunlar, const QList<QList<ÇizelgeDeğeri>>& sonra = {});

// Writes the shown rows of a table as they are shown, figures as numbers.
YazmaSonucu TabloyuÇizelgeyeYaz(const QString& yol, const QString& sayfaAdı, const TabloModeli& model);

// A shown figure as a value: its number; its text where it is none.
ÇizelgeDeğeri GösterilenDeğer(const QString& metin);
