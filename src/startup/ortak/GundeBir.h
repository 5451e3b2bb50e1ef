#pragma once

#include <QString>

// A warning that the user gets at most once a day; the day is kept in the settings under this key.
void GündeBirUyar(const QString& anahtar, const QString& metin);
