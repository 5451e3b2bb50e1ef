#include "VeriBaglantisi.h"

#include <QByteArray>
#include <QStringList>
#include <odbcinst.h>
#include <sql.h>
#include <sqlext.h>

using namespace Qt::StringLiterals;

namespace {

constexpr char SÜRÜCÜ[] = "Microsoft Access Driver (*.mdb)";
constexpr char PAROLA[] = "Kumsaldaki";

bool Başarılı(SQLRETURN sonuç) {
    return sonuç == SQL_SUCCESS || sonuç == SQL_SUCCESS_WITH_INFO;
}

SQLCHAR* Odbc(QByteArray& metin) {
    return reinterpret_cast<SQLCHAR*>(metin.data());
}

QString KurulumHatası() {
    DWORD kod = 0;
    char metin[SQL_MAX_MESSAGE_LENGTH] = "";
    WORD uzunluk = 0;
    SQLInstallerError(1, &kod, metin, sizeof metin, &uzunluk);
    return QString::fromUtf8(metin);
}

// The next column of the current row, however long.
QString SütunOku(SQLHSTMT deyim, SQLUSMALLINT sütun) {
    QByteArray değer;
    char parça[1024];
    SQLLEN uzunluk = 0;
    SQLRETURN sonuç = SQLGetData(deyim, sütun, SQL_C_CHAR, parça, sizeof parça, &uzunluk);
    while (sonuç == SQL_SUCCESS_WITH_INFO) {
        değer += parça;
        sonuç = SQLGetData(deyim, sütun, SQL_C_CHAR, parça, sizeof parça, &uzunluk);
    }
    if (sonuç == SQL_SUCCESS && uzunluk != SQL_NULL_DATA) değer += parça;
    return QString::fromUtf8(değer);
}

}  // namespace

void SürücüKlasörünüAyarla(const QString& klasör) {
    qputenv("ODBCSYSINI", klasör.toUtf8());
}

void BoşVeriDosyasıOluştur(const QString& yol) {
    QByteArray nitelikler("UID=Admin");
    for (const QByteArray& nitelik : {QByteArray("PWD=") + PAROLA, "CREATE_DB=" + yol.toUtf8()}) {
        nitelikler += '\0';
        nitelikler += nitelik;
    }
    nitelikler += '\0';  // the array's own closing zero ends the list
    if (!SQLConfigDataSource(nullptr, ODBC_ADD_DSN, SÜRÜCÜ, nitelikler.constData())) {
        throw VeriHatası(u"Veri dosyası oluşturulamadı: "_s + KurulumHatası());
    }
}

VeriBağlantısı::VeriBağlantısı(const QString& yol) {
    // In braces a path may hold ";" and blanks at its ends; a closing brace is doubled.
    QByteArray tanım =
        QByteArray("DRIVER={") + SÜRÜCÜ + "};DBQ={" + yol.toUtf8().replace("}", "}}") + "};UID=Admin;PWD=" + PAROLA;
    SQLAllocEnv(&m_ortam);
    if (m_ortam) SQLAllocConnect(m_ortam, &m_bağlantı);
    if (!m_bağlantı) {
        Kapat();
        throw VeriHatası(u"ODBC sürücülerine erişilemiyor."_s);
    }
    const SQLRETURN sonuç = SQLDriverConnect(m_bağlantı, nullptr, Odbc(tanım), SQLSMALLINT(tanım.size()), nullptr, 0,
                                             nullptr, SQL_DRIVER_NOPROMPT);
    if (!Başarılı(sonuç) || !Başarılı(SQLAllocStmt(m_bağlantı, &m_deyim))) {
        const QString neden = Tanı(nullptr);
        Kapat();
        throw VeriHatası(u"Veri dosyası açılamadı: "_s + neden);
    }
}

VeriBağlantısı::~VeriBağlantısı() {
    Kapat();
}

void VeriBağlantısı::Kapat() noexcept {
    if (m_deyim) SQLFreeStmt(m_deyim, SQL_DROP);
    if (m_bağlantı) {
        SQLTransact(SQL_NULL_HENV, m_bağlantı, SQL_ROLLBACK);  // an open transaction would keep it connected
        SQLDisconnect(m_bağlantı);
        SQLFreeConnect(m_bağlantı);
    }
    if (m_ortam) SQLFreeEnv(m_ortam);
}

QString VeriBağlantısı::Tanı(void* deyim) const {
    SQLCHAR durum[6];
    SQLCHAR metin[SQL_MAX_MESSAGE_LENGTH] = "";
    SQLSMALLINT uzunluk = 0;
    SQLError(SQL_NULL_HENV, m_bağlantı, deyim, durum, nullptr, metin, sizeof metin, &uzunluk);
    return QString::fromUtf8(reinterpret_cast<const char*>(metin));
}

void VeriBağlantısı::Çalıştır(const QString& deyim) {
    QByteArray metin = deyim.toUtf8();
    if (!Başarılı(SQLExecDirect(m_deyim, Odbc(metin), SQLINTEGER(metin.size())))) {
        throw VeriHatası(u"Deyim çalıştırılamadı: %1\n%2"_s.arg(Tanı(m_deyim), deyim));
    }
}

void VeriBağlantısı::Toplucaya() {
    if (!Başarılı(SQLSetConnectOption(m_bağlantı, SQL_AUTOCOMMIT, SQL_AUTOCOMMIT_OFF))) {
        throw VeriHatası(u"Toplu yazma açılamadı: "_s + Tanı(nullptr));
    }
}

void VeriBağlantısı::Onayla() {
    if (!Başarılı(SQLTransact(SQL_NULL_HENV, m_bağlantı, SQL_COMMIT)) ||
        !Başarılı(SQLSetConnectOption(m_bağlantı, SQL_AUTOCOMMIT, SQL_AUTOCOMMIT_ON))) {
        throw VeriHatası(u"Yazılanlar onaylanamadı: "_s + Tanı(nullptr));
    }
}

QList<QStringList> VeriBağlantısı::Oku(const QString& sorgu) {
    Çalıştır(sorgu);
    SQLSMALLINT sütunSayısı = 0;
    SQLNumResultCols(m_deyim, &sütunSayısı);
    QList<QStringList> satırlar;
    while (Başarılı(SQLFetch(m_deyim))) {
        QStringList satır;
        for (SQLSMALLINT sütun = 1; sütun <= sütunSayısı; ++sütun) satır += SütunOku(m_deyim, SQLUSMALLINT(sütun));
        satırlar += satır;
    }
    SQLFreeStmt(m_deyim, SQL_CLOSE);
    return satırlar;
}
