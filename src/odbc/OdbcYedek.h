#pragma once

#include <QString>

class OdbcBağlantısı;

// What the driver does with backups of whole files. Paths are as they are. False: SürücüKurulumHataları says why, and
// nothing has changed. Work that is given a `dur` ends as soon as a file of this name is there.

// Writes a compacted copy to a new file; source and copy are checked.
bool VeriDosyasınıYedekle(const QString& kaynak, const QString& hedef, const QString& dur = {});

// Reads the file whole without changing anything; one with a journal beside it is refused.
bool VeriDosyasıSağlam(const QString& yol, const QString& dur = {});

// Puts a copy of the backup, which is opened for it, into the data file's place.
bool VeriDosyasınıGeriYükle(const QString& yedek, const QString& dosya);

// Gives a copied data file a mark of its own.
bool VeriDosyasınıDamgala(const QString& yol);

// The mark of the connection's data file, which its copies bear as well; "" when it cannot be told.
QString VeriDosyasıDamgası(const OdbcBağlantısı& bağlantı);
