#include "OdbcTanitici.h"

#include <array>

#include <sql.h>
#include <sqlext.h>

#include "Utf8.h"

namespace {

// VeriTamponu: 255 characters with the closing NUL, so 254 of a text. A UTF-16 character takes at most three bytes in
// UTF-8; one character more than fits is read, so that a longer text is noticed.
constexpr int TamponKarakteri = 254;
constexpr int TamponBaytı = (TamponKarakteri + 1) * 3 + 1;

QByteArray Baytlar(const QString& metin) {
    return metin.toUtf8();
}

SQLCHAR* SqlMetni(QByteArray& metin) {
    return reinterpret_cast<SQLCHAR*>(metin.data());
}

// The longest beginning of the bytes that ends at a whole character.
int TamKarakterSonu(const char* veri, int boy) {
    return static_cast<int>(YarımKarakteriAt({veri, static_cast<std::size_t>(boy)}).size());
}

}  // namespace

std::int16_t OdbcBağlantısı::OrtamAç() {
    return SQLAllocEnv(&m_ortam);
}

std::int16_t OdbcBağlantısı::BağlantıAç() {
    return SQLAllocConnect(m_ortam, &m_bağlantı);
}

std::int16_t OdbcBağlantısı::Bağlan(const QString& bağlantıMetni) {
    QByteArray metin = Baytlar(bağlantıMetni);
    SQLSMALLINT çıktıBoyu = 0;
    SQLCHAR çıktı[1] = {0};
    const SQLRETURN sonuç =
        SQLDriverConnect(m_bağlantı, nullptr, SqlMetni(metin), static_cast<SQLSMALLINT>(metin.size()), çıktı, 0,
                         &çıktıBoyu, SQL_DRIVER_COMPLETE);
    m_bağlı = SQL_SUCCEEDED(sonuç);
    return sonuç;
}

void OdbcBağlantısı::Kapat() {
    if (m_bağlı) SQLDisconnect(m_bağlantı);
    if (m_bağlantı) SQLFreeConnect(m_bağlantı);
    if (m_ortam) SQLFreeEnv(m_ortam);
    m_bağlı = false;
    m_bağlantı = nullptr;
    m_ortam = nullptr;
}

std::int16_t OdbcDeyimi::Aç(const OdbcBağlantısı& bağlantı) {
    Bırak();
    if (!bağlantı.Tanıtıcı()) return SQL_INVALID_HANDLE;
    const SQLRETURN sonuç = SQLAllocStmt(bağlantı.Tanıtıcı(), &m_deyim);
    if (!SQL_SUCCEEDED(sonuç)) m_deyim = nullptr;
    return sonuç;
}

std::int16_t OdbcDeyimi::Çalıştır(const QString& sql) {
    QByteArray metin = Baytlar(sql);
    return SQLExecDirect(m_deyim, SqlMetni(metin), static_cast<SQLINTEGER>(metin.size()));
}

std::int16_t OdbcDeyimi::Getir() {
    return m_deyim ? SQLFetch(m_deyim) : SQL_INVALID_HANDLE;
}

std::int16_t OdbcDeyimi::Oku(int sütun, QString& metin) {
    std::array<char, TamponBaytı> tampon;
    SQLLEN uzunluk = 0;
    SQLRETURN sonuç =
        SQLGetData(m_deyim, static_cast<SQLUSMALLINT>(sütun), SQL_C_CHAR, tampon.data(), tampon.size(), &uzunluk);
    metin.clear();
    if (!SQL_SUCCEEDED(sonuç) || uzunluk == SQL_NULL_DATA) return sonuç;
    int boy = TamponBaytı - 1;
    if (uzunluk >= 0 && uzunluk < boy) boy = static_cast<int>(uzunluk);
    metin = QString::fromUtf8(tampon.data(), TamKarakterSonu(tampon.data(), boy));
    if (metin.size() > TamponKarakteri) {
        metin.truncate(metin.at(TamponKarakteri).isLowSurrogate() ? TamponKarakteri - 1 : TamponKarakteri);
        sonuç = SQL_SUCCESS_WITH_INFO;
    }
    return sonuç;
}

void OdbcDeyimi::Bırak() {
    if (m_deyim) SQLFreeStmt(m_deyim, SQL_DROP);
    m_deyim = nullptr;
}

QList<OdbcHatası> OdbcHataKayıtlarınıAl(void* bağlantı, void* deyim) {
    QList<OdbcHatası> hatalar;
    std::array<SQLCHAR, 16> durum{};
    std::array<SQLCHAR, 256> ileti;
    for (;;) {
        SQLINTEGER yerelHata = 0;
        SQLSMALLINT uzunluk = 0;
        const SQLRETURN sonuç = SQLError(nullptr, bağlantı, deyim, durum.data(), &yerelHata, ileti.data(),
                                         static_cast<SQLSMALLINT>(ileti.size()), &uzunluk);
        // A message longer than the buffer (success with information) still counts; anything else ends the list.
        if (!SQL_SUCCEEDED(sonuç)) return hatalar;
        const int boy = qBound(0, static_cast<int>(uzunluk), static_cast<int>(ileti.size()) - 1);
        const auto* veri = reinterpret_cast<const char*>(ileti.data());
        hatalar.append({QString::fromLatin1(reinterpret_cast<const char*>(durum.data())), yerelHata,
                        QString::fromUtf8(veri, TamKarakterSonu(veri, boy))});
    }
}

QStringList OdbcHatalarınıAl(void* bağlantı, void* deyim) {
    QStringList iletiler;
    for (const OdbcHatası& hata : OdbcHataKayıtlarınıAl(bağlantı, deyim)) iletiler.append(hata.İleti);
    return iletiler;
}
