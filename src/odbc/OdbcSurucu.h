#pragma once

#include <QString>
#include <QStringList>
#include <cstdint>

// The data files' driver, apart from connections: where it is found, how it is addressed, and what its installer part
// does with whole files. Errors of the installer calls are kept by the driver manager until the next of them.

QString SürücüAdı();

// Makes the driver manager look for the driver in this folder (it holds odbcinst.ini), whatever the user's surroundings
// say. To be called before anything else here, as the driver manager reads its settings once.
void SürücüKlasörünüAyarla(const QString& klasör);

// Whether the driver manager knows the driver.
bool SürücüKayıtlı();

// Every data file has the one password.
QString VeriDosyasıParolası();

// What OdbcBağlantısı::Aç takes for a data file: through a data source ("DSN=..."), or without one.
QString BağlantıMetni(const QString& dosya, const QString& veriKaynağı = QString());

// Bytes that the file library takes for a data file's real path, with room for what is written beside it.
bool VeriDosyasıYoluSığıyor(const QString& yol);

// SQLConfigDataSource with these attributes ("KEY=value"). False: SürücüKurulumHataları says why.
enum class Kurulumİsteği : std::uint16_t { Ekle = 1, Kaldır = 3 };
bool SürücüKurulumu(Kurulumİsteği istek, const QStringList& nitelikler);

// Makes a new, empty data file; an existing one is never written over.
bool BoşVeriDosyasıOluştur(const QString& yol);

// Asks the driver to write a compacted copy of one data file to another place (both in the form of KısaYolAl); a file
// and itself: to compact it where it is, while others may go on using it. The driver reads the whole source first and
// refuses a damaged one. The work ends when the file `dur` appears. False: the target is as it was.
bool VeritabanınıSıkıştır(const QString& kaynak, const QString& hedef, const QString& dur = {});

// Asks the driver to save what can be read of a damaged data file into a new one, and to write into `rapor`, a line for
// each, what could not be. `bildirimler` is a data file with all tables that there may be; the work ends when the file
// `dur` appears. False: nothing was saved.
bool VeriDosyasınıOnar(const QString& kaynak, const QString& hedef, const QString& rapor, const QString& bildirimler,
                       const QString& dur);

// A path as the driver takes it in a pair of paths: blanks as %20, percent signs as %25.
QString SürücüYolu(QString yol);

// The messages of the installer call that has just failed, the driver manager's own first.
QStringList SürücüKurulumHataları();
