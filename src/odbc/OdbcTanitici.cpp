#include "OdbcTanitici.h"

#include <QByteArray>

#include <sql.h>
#include <sqlext.h>

#include <atomic>

#include "TurkceMetin.h"
#include "Utf8.h"

namespace {

QByteArray Baytlar(const QString& metin) {
    return metin.toUtf8();
}

SQLCHAR* SqlMetni(QByteArray& metin) {
    return reinterpret_cast<SQLCHAR*>(metin.data());
}

std::atomic<std::uint64_t> değişiklikler = 0;

// Exactly one of the handles is given.
QList<OdbcHatası> HataKayıtlarınıAl(void* bağlantı, void* deyim) {
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
        const auto boy = static_cast<std::size_t>(qBound(0, int{uzunluk}, static_cast<int>(ileti.size()) - 1));
        const std::string_view metin = YarımKarakteriAt({reinterpret_cast<const char*>(ileti.data()), boy});
        hatalar.append({QString::fromLatin1(reinterpret_cast<const char*>(durum.data())), yerelHata, Utf8Metni(metin)});
    }
}

}  // namespace

QStringList OdbcİletileriniAl(const QList<OdbcHatası>& hatalar) {
    QStringList iletiler;
    for (const OdbcHatası& hata : hatalar) iletiler.append(hata.İleti);
    return iletiler;
}

std::int16_t OdbcBağlantısı::OrtamAç() {
    return SQLAllocEnv(&m_ortam);
}

std::int16_t OdbcBağlantısı::BağlantıAç() {
    return SQLAllocConnect(m_ortam, &m_bağlantı);
}

std::int16_t OdbcBağlantısı::Bağlan(const QString& bağlantıMetni) {
    QByteArray metin = Baytlar(bağlantıMetni);
    // No buffer for the completed text: there are drivers that write into one of length 0.
    const SQLRETURN sonuç =
        SQLDriverConnect(m_bağlantı, nullptr, SqlMetni(metin), static_cast<SQLSMALLINT>(metin.size()), nullptr, 0,
                         nullptr, SQL_DRIVER_COMPLETE);
    m_bağlı = SQL_SUCCEEDED(sonuç);
    static std::atomic<std::uint64_t> açılışlar = 0;
    if (m_bağlı) m_açılış = ++açılışlar;
    return sonuç;
}

OdbcSonucu OdbcBağlantısı::Aç(const QString& bağlantıMetni) {
    std::int16_t kod = OrtamAç();
    if (kod == SQL_SUCCESS) kod = BağlantıAç();
    if (kod == SQL_SUCCESS) kod = Bağlan(bağlantıMetni);
    return Sonuç(kod);
}

void OdbcBağlantısı::Kapat() {
    // With a transaction open the driver would not let go.
    if (m_hareket) SQLTransact(SQL_NULL_HENV, m_bağlantı, SQL_ROLLBACK);
    if (m_bağlı) SQLDisconnect(m_bağlantı);
    if (m_bağlantı) SQLFreeConnect(m_bağlantı);
    if (m_ortam) SQLFreeEnv(m_ortam);
    m_bağlı = m_hareket = false;
    m_açılış = 0;
    m_bağlantı = nullptr;
    m_ortam = nullptr;
}

OdbcSonucu OdbcBağlantısı::Çalıştır(const QString& sql) {
    OdbcDeyimi deyim;
    if (const std::int16_t kod = deyim.Aç(*this)) return Sonuç(kod);
    if (const std::int16_t kod = deyim.Çalıştır(sql)) return {kod, deyim.HatalarınıAl()};
    return {SQL_SUCCESS, {}, deyim.EtkilenenSatır()};
}

OdbcSonucu OdbcBağlantısı::Oku(const QString& sql, const std::function<bool(OdbcSatırı&)>& satır) {
    OdbcDeyimi deyim;
    if (const std::int16_t kod = deyim.Aç(*this)) return Sonuç(kod);
    std::int16_t kod = deyim.Çalıştır(sql);
    if (kod == SQL_SUCCESS) {
        OdbcSatırı sıradaki(deyim);
        bool sürsün = true;
        while (sürsün && (kod = deyim.Getir()) == SQL_SUCCESS) {
            sürsün = satır(sıradaki);
            kod = sıradaki.Kod();
            if (kod != SQL_SUCCESS) break;
        }
        if (kod == SQL_NO_DATA) kod = SQL_SUCCESS;
    }
    return {kod, kod == SQL_SUCCESS ? QList<OdbcHatası>() : deyim.HatalarınıAl()};
}

OdbcSonucu OdbcBağlantısı::TabloVar(const QString& ad, bool& var) {
    OdbcDeyimi deyim;
    if (const std::int16_t kod = deyim.Aç(*this)) return Sonuç(kod);
    std::int16_t kod = deyim.TablolarıBul(ad);
    if (kod == SQL_SUCCESS) kod = deyim.Getir();
    var = kod == SQL_SUCCESS;
    if (kod == SQL_SUCCESS || kod == SQL_NO_DATA) return {};
    return {kod, deyim.HatalarınıAl()};
}

OdbcSonucu OdbcBağlantısı::Tablolar(QStringList& adlar) {
    constexpr int adSütunu = 3;
    adlar.clear();
    OdbcDeyimi deyim;
    if (const std::int16_t kod = deyim.Aç(*this)) return Sonuç(kod);
    std::int16_t kod = deyim.TablolarıBul(QStringLiteral("%"));
    while (kod == SQL_SUCCESS && (kod = deyim.Getir()) == SQL_SUCCESS) kod = deyim.Oku(adSütunu, adlar.emplaceBack());
    if (kod == SQL_NO_DATA) return {};
    return {kod, deyim.HatalarınıAl()};
}

OdbcSonucu OdbcBağlantısı::Sütunlar(const QString& tablo, QList<OdbcSütunu>& sütunlar) {
    sütunlar.clear();
    OdbcDeyimi deyim;
    if (const std::int16_t kod = deyim.Aç(*this)) return Sonuç(kod);
    std::int16_t kod = deyim.Çalıştır(QStringLiteral("SELECT * FROM ") + tablo);
    const int sayı = kod == SQL_SUCCESS ? deyim.SütunSayısı() : 0;
    for (int sütun = 1; sütun <= sayı && kod == SQL_SUCCESS; ++sütun)
        kod = deyim.SütunuTanı(sütun, sütunlar.emplaceBack());
    if (kod == SQL_SUCCESS) return {};
    return {kod, deyim.HatalarınıAl()};
}

std::uint64_t OdbcBağlantısı::Değişiklikler() {
    return değişiklikler;
}

QList<OdbcHatası> OdbcBağlantısı::HatalarınıAl() const {
    return m_bağlantı ? HataKayıtlarınıAl(m_bağlantı, nullptr) : QList<OdbcHatası>();
}

OdbcSonucu OdbcBağlantısı::Sonuç(std::int16_t kod) const {
    return {kod, kod == SQL_SUCCESS ? QList<OdbcHatası>() : HatalarınıAl()};
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
    const SQLRETURN sonuç = SQLExecDirect(m_deyim, SqlMetni(metin), static_cast<SQLINTEGER>(metin.size()));
    if (SQL_SUCCEEDED(sonuç) && !metin.startsWith("SELECT") && EtkilenenSatır() > 0) ++değişiklikler;
    return sonuç;
}

std::int16_t OdbcDeyimi::TablolarıBul(const QString& ad) {
    QByteArray metin = Baytlar(ad);
    return SQLTables(m_deyim, nullptr, 0, nullptr, 0, SqlMetni(metin), static_cast<SQLSMALLINT>(metin.size()), nullptr,
                     0);
}

std::int16_t OdbcDeyimi::Getir() {
    return m_deyim ? SQLFetch(m_deyim) : SQL_INVALID_HANDLE;
}

int OdbcDeyimi::SütunSayısı() const {
    SQLSMALLINT sayı = 0;
    return SQL_SUCCEEDED(SQLNumResultCols(m_deyim, &sayı)) ? sayı : 0;
}

std::int16_t OdbcDeyimi::SütunuTanı(int sütun, OdbcSütunu& tanım) {
    SQLSMALLINT tür = 0;
    const SQLRETURN sonuç =
        SQLDescribeCol(m_deyim, static_cast<SQLUSMALLINT>(sütun), reinterpret_cast<SQLCHAR*>(m_tampon.data()),
                       static_cast<SQLSMALLINT>(m_tampon.size()), nullptr, &tür, nullptr, nullptr, nullptr);
    if (sonuç != SQL_SUCCESS) return sonuç;
    tanım.Ad = QString::fromUtf8(m_tampon.data());
    tanım.Tür = tür == SQL_DECIMAL                                  ? OdbcSütunTürü::Para
                : tür == SQL_DOUBLE                                 ? OdbcSütunTürü::Ondalık
                : tür == SQL_TIMESTAMP || tür == SQL_TYPE_TIMESTAMP ? OdbcSütunTürü::Tarih
                                                                    : OdbcSütunTürü::Metin;
    return sonuç;
}

std::int64_t OdbcDeyimi::EtkilenenSatır() const {
    SQLLEN sayı = -1;
    return SQL_SUCCEEDED(SQLRowCount(m_deyim, &sayı)) ? static_cast<std::int64_t>(sayı) : -1;
}

std::int16_t OdbcDeyimi::Oku(int sütun, std::span<char> tampon, std::optional<std::string_view>& değer) {
    SQLLEN uzunluk = 0;
    const SQLRETURN sonuç = SQLGetData(m_deyim, static_cast<SQLUSMALLINT>(sütun), SQL_C_CHAR, tampon.data(),
                                       static_cast<SQLLEN>(tampon.size()), &uzunluk);
    değer.reset();
    if (!SQL_SUCCEEDED(sonuç) || uzunluk == SQL_NULL_DATA) return sonuç;
    // A value that was cut ends where the driver put the closing NUL.
    değer = sonuç == SQL_SUCCESS ? std::string_view(tampon.data(), static_cast<std::size_t>(uzunluk))
                                 : std::string_view(tampon.data());
    return sonuç;
}

std::int16_t OdbcDeyimi::Oku(int sütun, QString& metin) {
    std::optional<std::string_view> değer;
    const std::int16_t sonuç = Oku(sütun, değer);
    metin = değer ? Utf8Metni(*değer) : QString();
    return sonuç;
}

std::int16_t OdbcDeyimi::Bağla(int sütun, std::span<char> tampon, std::intptr_t& uzunluk) {
    static_assert(std::is_same_v<std::intptr_t, SQLLEN>);
    return SQLBindCol(m_deyim, static_cast<SQLUSMALLINT>(sütun), SQL_C_CHAR, tampon.data(),
                      static_cast<SQLLEN>(tampon.size()), &uzunluk);
}

void OdbcDeyimi::Bırak() {
    if (m_deyim) SQLFreeStmt(m_deyim, SQL_DROP);
    m_deyim = nullptr;
}

QList<OdbcHatası> OdbcDeyimi::HatalarınıAl() const {
    return m_deyim ? HataKayıtlarınıAl(nullptr, m_deyim) : QList<OdbcHatası>();
}

std::optional<std::string_view> OdbcSatırı::İlkKez(int sütun) {
    std::optional<std::string_view> değer;
    const auto yer = static_cast<std::size_t>(sütun) - 1;
    std::int16_t kod;
    if (yer >= m_sütunlar.size()) {
        kod = m_deyim.Oku(sütun, değer);  // the driver says what is wrong with it
    } else {
        Sütun& okunan = m_sütunlar[yer];
        kod = m_deyim.Oku(sütun, okunan.Tampon, değer);
        if (kod == SQL_SUCCESS) kod = m_deyim.Bağla(sütun, okunan.Tampon, okunan.Uzunluk);
        okunan.Uzunluk = değer ? static_cast<std::intptr_t>(değer->size()) : SQL_NULL_DATA;
        okunan.Bağlı = kod == SQL_SUCCESS;
    }
    if (m_kod == SQL_SUCCESS) m_kod = kod;
    return değer;
}

QString OdbcSatırı::Metin(int sütun) {
    const std::optional<std::string_view> değer = Baytlar(sütun);
    return değer ? Utf8Metni(*değer) : QString();
}
