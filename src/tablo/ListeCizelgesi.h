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

// Writes the shown rows of a table, figures as numbers and, where the source has more digits than it shows, with all of
// them; the ticks in a column of their own.
YazmaSonucu TabloyuÇizelgeyeYaz(const QString& yol, const QString& sayfaAdı, const TabloModeli& model,
                                const QList<QList<ÇizelgeDeğeri>>& sonra = {});

// The columns of a table; figures with so many decimals.
QList<ÇizelgeSütunu> ÇizelgeSütunları(const TabloModeli& model, int basamak);

// The two columns of a quantity, and its two cells: the number and its unit. One whose number cannot be read stands
// whole in the first.
void MiktarSütunlarıEkle(QList<ÇizelgeSütunu>& sütunlar, const QString& başlık);
void MiktarEkle(QList<ÇizelgeDeğeri>& değerler, const QString& miktar);

// A shown figure as a value: its number; its text where it is none.
ÇizelgeDeğeri GösterilenDeğer(const QString& metin);
