#pragma once

#include <QString>
#include <functional>

#include "CizelgeYazici.h"

class QWidget;

// Asks where a spreadsheet is to be saved, offered under `ad`, and writes it there; a failure is told and leaves what
// stood there.
void ÇizelgeyeKaydet(QWidget& form, const QString& ad, const std::function<YazmaSonucu(const QString& yol)>& yaz);
