#pragma once

#include <QString>

class QLabel;
class QLineEdit;
class QWidget;

// Pieces that the areas of the main form have in common.

// The caption number `sıra` (0 to 14) of the form, named Etiket(sıra). `denetim` takes its text as accessible name.
QLabel* EtiketOluştur(int sıra, QWidget* denetim = nullptr);

// The same for a control that the user works in: the caption's mnemonic leads there, and it is highlighted meanwhile.
QLabel* VurgulananEtiket(int sıra, QWidget* denetim);

// A background panel, named Altlık(sıra).
QWidget* AltlıkOluştur(int sıra);

// A box that only shows a figure: it can be selected and copied with the mouse, but is no stop for Tab.
QLineEdit* GösterimKutusu(const QString& ad);
