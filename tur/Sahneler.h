#pragma once

#include <vector>

#include "Tur.h"

// The tour's stops in their order.
std::vector<Sahne> Sahneler();
std::vector<Sahne> KatalogSahneleri();
std::vector<Sahne> RaporSahneleri();

// Opens the group and clicks the node of this name on the main form's tree, as a user does.
void ÜrünSeç(QWidget& anaForm, const QString& ad);
