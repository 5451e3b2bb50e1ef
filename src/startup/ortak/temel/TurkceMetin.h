#pragma once

#include <QString>

// The text on one line: each run of line breaks and tabs becomes a blank. Names are shown, compared and printed as one
// line, and what cannot be seen in them must not tell two names apart.
QString TekSatır(const QString& metin);

// Turkish letters in names. Comparison and order come from the one table in turkce/.

// Title case: trims blanks at both ends, then every word starts with a capital and goes on in small letters. A word
// starts at the beginning and after a blank or tab; "-", "." and "(" start none. I/ı and İ/i pair by our own rule.
QString TürkçeBaşHarfBüyüt(const QString& metin);

// Upper case; ı becomes I, i becomes İ.
QString TürkçeBüyükHarf(const QString& metin);
