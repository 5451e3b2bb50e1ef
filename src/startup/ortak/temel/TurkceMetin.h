#pragma once

#include <QString>

// Turkish letters in names. Comparison and order come from the one table in turkce/.

// Title case: trims blanks at both ends, then every word starts with a capital and goes on in small letters. A word
// starts at the beginning and after a blank or tab; "-", "." and "(" start none. I/ı and İ/i pair by our own rule.
QString TürkçeBaşHarfBüyüt(const QString& metin);

// Upper case; ı becomes I, i becomes İ.
QString TürkçeBüyükHarf(const QString& metin);
