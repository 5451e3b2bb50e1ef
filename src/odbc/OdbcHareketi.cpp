#include "OdbcHareketi.h"

#include <sql.h>
#include <sqlext.h>

OdbcSonucu OdbcHareketi::Başla() {
    if (m_bağlantı.m_hareket) return {SQL_ERROR, {}};
    const SQLRETURN kod = SQLSetConnectOption(m_bağlantı.Tanıtıcı(), SQL_AUTOCOMMIT, SQL_AUTOCOMMIT_OFF);
    m_sürüyor = m_bağlantı.m_hareket = SQL_SUCCEEDED(kod);
    return m_sürüyor ? OdbcSonucu() : m_bağlantı.Sonuç(kod);
}

OdbcSonucu OdbcHareketi::Onayla() {
    if (!m_sürüyor) return {SQL_ERROR, {}};
    const SQLRETURN kod = SQLTransact(SQL_NULL_HENV, m_bağlantı.Tanıtıcı(), SQL_COMMIT);
    if (SQL_SUCCEEDED(kod)) {
        Bitir();
        return {};
    }
    const OdbcSonucu sonuç = m_bağlantı.Sonuç(kod);  // before the rollback, which makes the driver forget it
    static_cast<void>(GeriAl());
    return sonuç;
}

// Switching autocommit on commits what is open, so nothing may be open by then.
OdbcSonucu OdbcHareketi::GeriAl() {
    if (!m_sürüyor) return {};
    const SQLRETURN kod = SQLTransact(SQL_NULL_HENV, m_bağlantı.Tanıtıcı(), SQL_ROLLBACK);
    if (SQL_SUCCEEDED(kod)) {
        Bitir();
        return {};
    }
    const OdbcSonucu sonuç = m_bağlantı.Sonuç(kod);
    m_sürüyor = false;
    m_bağlantı.Kapat();
    return sonuç;
}

void OdbcHareketi::Bitir() {
    m_sürüyor = m_bağlantı.m_hareket = false;
    const SQLRETURN kod = SQLSetConnectOption(m_bağlantı.Tanıtıcı(), SQL_AUTOCOMMIT, SQL_AUTOCOMMIT_ON);
    if (!SQL_SUCCEEDED(kod)) m_bağlantı.Kapat();
}
