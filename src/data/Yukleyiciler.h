#pragma once

class QTreeWidget;
class QListWidget;

// Fills the tree with every group (top level) and its products (children) in the order of the data file; both kinds of
// node bear their name as text. A failed statement leaves the tree empty. What could not be read has been told.
void ÜrünAğacınıYükle(QTreeWidget& ağaç);

// Fills the list with every material name; failures as above.
void MalzemeListesiniYükle(QListWidget& liste);
