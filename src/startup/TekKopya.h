#pragma once

#include <QLocalServer>
#include <QString>
#include <functional>

#include "ApilerModulu.h"

// Sees to it that one user runs one copy of the program. The first copy holds a lock that the system gives back when
// the process ends in whatever way, so that a crash never leaves it stuck, and listens at a local socket for later
// copies. Both bear the program's title with its version, and the user.
class TekKopya {
  public:
    // True: this is the only copy, and stays it for the object's life; also where no lock can be made, as that must not
    // keep the user from his data. False: another one runs and has been asked to come to the front.
    bool Başla(const QString& başlık);

    // The same for the data file, whatever login or version opens it: the lock lies beside it, and is gone after a good
    // end. False: another copy works on the file; it has been asked to come to the front where it can be reached.
    bool VeriyiKilitle(const QString& dosya);

  private:
    void Dinle(const QString& yol);

    DosyaKilidi m_kilit;
    DosyaKilidi m_veriKilidi;
    QLocalServer m_sunucu;
    QString m_soket;  // its path
};

// Brings the program's windows to the front: the main window in its normal state, an open modal form above it.
void PencereleriÖneGetir();
