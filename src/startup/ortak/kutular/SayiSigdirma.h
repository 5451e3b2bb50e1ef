#pragma once

#include <QFont>
#include <QString>

class QLineEdit;

// Figures must never lose a digit or their sign unseen: one that is too wide for its place is written smaller, down to
// seven tenths of the program's font, and what does not fit even so bears a mark.

// The font, or the largest smaller one, in which the text is not wider than `genişlik` pixels; at the limit it may be.
QFont SığanYazıTipi(const QFont& yazıTipi, const QString& metin, int genişlik);

// Keeps the figure in a box whole: written smaller as far as it takes; "…" stands at an end that is cut even then, and
// a tooltip tells the whole. Out of the user's hands the box shows the figure's beginning. Its text() never changes.
void SayıyıSığdır(QLineEdit* kutu);
