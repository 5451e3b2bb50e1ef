#pragma once

#include "OdbcTanitici.h"

// A transaction of a connection: what the connection runs between Başla and Onayla is written as a whole or not at all.
// On every way out that is not Onayla's success (a return, an exception, a failing commit) it is rolled back. A
// connection that does not come back to writing each statement at once is closed, so that nothing later is taken for
// written.
class OdbcHareketi {
  public:
    explicit OdbcHareketi(OdbcBağlantısı& bağlantı) : m_bağlantı(bağlantı) {}
    ~OdbcHareketi() { static_cast<void>(GeriAl()); }
    OdbcHareketi(const OdbcHareketi&) = delete;
    OdbcHareketi& operator=(const OdbcHareketi&) = delete;

    // A failure, without errors, also when the connection's transaction is already under way.
    OdbcSonucu Başla();

    // Success: all of it is on disk. Otherwise it has been rolled back, and the errors say why; only the driver's own
    // words may tell that it is written and merely its lasting in doubt. A failure also when none is under way.
    OdbcSonucu Onayla();

    // Success also when none is under way.
    OdbcSonucu GeriAl();

  private:
    void Bitir();

    OdbcBağlantısı& m_bağlantı;
    bool m_sürüyor = false;
};
