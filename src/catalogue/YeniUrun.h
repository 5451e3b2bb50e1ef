#pragma once

#include <QString>

class AdKutusu;
class GrupKutusu;

// What every form does that adds a product: the groups to choose from, and what the new product's group and name have
// to be.

// Fills the list with all groups. False: not all could be read, and the user has been told.
bool GruplarıDoldur(GrupKutusu& grup);

// Whether a product of this group and name can be added. False: the user has been told why not, and the box in question
// has the focus.
bool YeniÜrünUygun(GrupKutusu& grup, AdKutusu& ad);

// The box's group as the data file spells it, which compares without regard to case; a second spelling would show the
// one group as two.
QString KayıtlıGrup(const GrupKutusu& grup);
