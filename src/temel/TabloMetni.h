#pragma once

#include <QString>

// A text as a spreadsheet program is to take it from a text file or the clipboard: one that it would take for a formula
// (= + - @, or a tab, in front) gets an apostrophe. For texts only, never for figures.
QString TabloMetni(const QString& metin);

// The same for a column of figures, which may have a unit behind them: what begins with no number is a text there too.
QString TabloRakamı(const QString& metin);
