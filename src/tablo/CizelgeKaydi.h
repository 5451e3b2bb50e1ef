#pragma once

#include <QString>
#include <functional>

#include "CizelgeYazici.h"

class KomutDüğmesi;
class QWidget;
class TabloModeli;
enum class MetinNo : int;

// Asks where a spreadsheet is to be saved, offered under `ad`, and writes it there; a failure is told and leaves what
// stood there.
void ÇizelgeyeKaydet(QWidget& form, const QString& ad, const std::function<YazmaSonucu(const QString& yol)>& yaz);

// The button that does so with the shown rows of a table; enabled while there are some. `başlık`: name of file and
// sheet; empty: the form's title.
KomutDüğmesi* TabloyaAktarDüğmesi(MetinNo metin, const TabloModeli& model,
                                  const QString& ad = QStringLiteral("TabloyaAktarButonu"),
                                  const std::function<QString()>& başlık = {});

// A button that is enabled while the table shows rows.
void DoluykenEtkin(KomutDüğmesi& düğme, const TabloModeli& model);
