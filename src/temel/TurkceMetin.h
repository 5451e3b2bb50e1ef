#pragma once

#include <QString>
#include <string_view>

// The text on one line: each run of line breaks and tabs becomes a blank. Names are shown, compared and printed as one
// line, and what cannot be seen in them must not tell two names apart.
QString TekSatır(const QString& metin);

// The text without marks that cannot be seen (byte order, direction, zero width), as copied text brings them along.
// What holds the parts of a sign together (U+200C, U+200D) stays.
QString GörünmezleriAt(QString metin);

// Stored text, byte for byte: a U+FEFF at its start is a character of the text and stays one.
QString Utf8Metni(std::string_view baytlar);

// Turkish letters in names. Comparison and order come from the one table in turkce/.

// Title case: trims blanks at both ends, then every word starts with a capital and goes on in small letters. A word
// starts at the beginning and after a blank or tab; "-", "." and "(" start none. I/ı and İ/i pair by our own rule.
QString TürkçeBaşHarfBüyüt(const QString& metin);

// Upper case; ı becomes I, i becomes İ.
QString TürkçeBüyükHarf(const QString& metin);
