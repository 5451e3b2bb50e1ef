#pragma once

#include "OdbcModulu.h"

class QTreeWidget;
class QListWidget;

// Fills the tree with every group (top level) and its products (children) in the order of the data file; both kinds of
// node bear their name as text. A failed statement leaves the tree empty, and one that stopped early leaves what came.
// What could not be read has been told; the result says whether it all is there.
Okuma ÜrünAğacınıYükle(QTreeWidget& ağaç);

// Fills the list with every material name; failures as above.
Okuma MalzemeListesiniYükle(QListWidget& liste);
