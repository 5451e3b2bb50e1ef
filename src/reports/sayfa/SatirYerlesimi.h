#pragma once

#include <QList>
#include <QString>
#include <functional>

#include "SayfaYuzeyi.h"

// What a column's cells hold.
enum class HücreTürü {
    Metin,   // left-aligned; goes on in further lines where there is no room
    Miktar,  // left-aligned: a figure, a blank and a unit, of which only the unit goes on in further lines
    Sayı     // right-aligned under its caption, in one piece
};

// Positions in millimetres from the printable area's left edge.
struct SatırHücresi {
    QString Metin;
    HücreTürü Tür = HücreTürü::Metin;
    double Konum = 0;     // left edge of a text
    double SağKenar = 0;  // right edge of a figure
};

// A text of the row as it goes onto the page.
struct SatırParçası {
    int Satır = 0;  // line of the row, from 0
    double X = 0;
    QString Metin;
    SayfaYüzeyi::Yer Yer;
};

// Lays out a row of cells so that nothing is lost and nothing runs into anything else, whatever the page's width. A
// text that is too long even when narrowed goes on below, within its column. Figures are never broken; one that would
// run into another stands a line lower. A text whose column leaves no useful room (on a roll of paper) takes a line for
// itself, and the cells after it stand no higher. The pieces come line by line, from left to right; every line has one.
// ölçü: a text's natural width.
QList<SatırParçası> SatırıYerleştir(const QList<SatırHücresi>& hücreler, double sayfaGenişliği,
                                    const std::function<double(const QString&)>& ölçü);
