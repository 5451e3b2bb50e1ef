#pragma once

#include <QList>
#include <QString>

// The golden file deyimler.txt: every statement that the program issues, to the blank, in the order of
// data/deyim/Deyimler.h, each followed by how the engine carries it out (SQLite's query plan; rows that are only added
// have none). The tests of the statements and those of the engine go by this one list.
struct BeklenenDeyim {
    QString Metin;
    QString Plan;
};
QList<BeklenenDeyim> BeklenenDeyimler();
