#pragma once

class QTreeWidget;
class QListWidget;

// Fills the tree with every group (top level) and its products (children) in the order of the data file; both kinds of
// node bear their name as text. A failed statement leaves the tree empty.
void ÜrünAğacınıYükle(QTreeWidget& ağaç);

// Fills the list with every material name.
void MalzemeListesiniYükle(QListWidget& liste);
