#include "TestVerisi.h"

#include <gtest/gtest.h>
#include <sql.h>
#include <sqlext.h>

#include <QFile>
#include <QHash>
#include <QProcess>
#include <QTemporaryDir>
#include <algorithm>

#include "OdbcModulu.h"

namespace {

std::string Hatalar(void* bağlantı, void* deyim) {
    return OdbcHatalarınıAl(bağlantı, deyim).join(QLatin1Char('\n')).toStdString();
}

// The data-file tool is asked once for each kind of file; the tests get copies.
const QString& Kalıp(const QString& tür) {
    static const QTemporaryDir klasör;
    static QHash<QString, QString> kalıplar;
    QString& yol = kalıplar[tür];
    if (!yol.isEmpty()) return yol;
    yol = klasör.filePath(tür);
    QProcess araç;
    araç.start(QStringLiteral(VARNEK_BIN "/varnek-veri"), {tür, yol});
    const bool bitti = araç.waitForFinished(60000);
    EXPECT_TRUE(bitti && araç.exitStatus() == QProcess::NormalExit && araç.exitCode() == 0)
        << "varnek-veri: " << araç.errorString().toStdString() << araç.readAllStandardError().toStdString();
    return yol;
}

}  // namespace

void VeriDosyasıOluştur(const QString& yol, const QString& tür) {
    ASSERT_TRUE(QFile::copy(Kalıp(tür), yol)) << yol.toStdString();
}

TestVerisi::TestVerisi(const QString& yol) {
    const bool açıldı = VeriDosyasınaBağlan(m_bağlantı, yol) == 0;
    EXPECT_TRUE(açıldı) << yol.toStdString() << ": "
                        << (m_bağlantı.Tanıtıcı() ? Hatalar(m_bağlantı.Tanıtıcı(), nullptr) : std::string());
}

void TestVerisi::Çalıştır(const QString& sql) {
    OdbcDeyimi deyim;
    ASSERT_EQ(deyim.Aç(m_bağlantı), 0);
    EXPECT_EQ(deyim.Çalıştır(sql), 0) << sql.toStdString() << ": " << Hatalar(nullptr, deyim.Tanıtıcı());
}

void TestVerisi::ElleOnayla() {
    EXPECT_EQ(SQLSetConnectOption(m_bağlantı.Tanıtıcı(), SQL_AUTOCOMMIT, SQL_AUTOCOMMIT_OFF), 0);
}

void TestVerisi::Onayla() {
    EXPECT_EQ(SQLTransact(SQL_NULL_HENV, m_bağlantı.Tanıtıcı(), SQL_COMMIT), 0);
}

QList<QStringList> TestVerisi::Oku(const QString& sql) {
    QList<QStringList> satırlar;
    OdbcDeyimi deyim;
    if (deyim.Aç(m_bağlantı) != 0 || deyim.Çalıştır(sql) != 0) {
        ADD_FAILURE() << sql.toStdString() << ": " << (deyim.Tanıtıcı() ? Hatalar(nullptr, deyim.Tanıtıcı()) : "");
        return satırlar;
    }
    SQLSMALLINT sütunSayısı = 0;
    SQLNumResultCols(deyim.Tanıtıcı(), &sütunSayısı);
    while (deyim.Getir() == 0) {
        QStringList satır;
        for (int sütun = 1; sütun <= sütunSayısı; ++sütun) {
            QString metin;
            EXPECT_EQ(deyim.Oku(sütun, metin), 0) << sql.toStdString();
            satır += metin;
        }
        satırlar += satır;
    }
    return satırlar;
}

QList<QStringList> TestVerisi::HerSatır() {
    static const struct {
        const char* Ad;
        const char* Sütunlar;
    } tablolar[] = {
        {"UrunTablosu", "UrunGrubu, UrunAdi, IscilikYuzdesi, KarYuzdesi, DigerVarnekYuzdesi, VadeFarkiYuzdesi"},
        {"MalzemeTablosu", "MalzemeAdi, MalzemeFiyati"},
        {"UrunMalzemeTablosu",
         "KullanimTarihi, UrunGrubu, UrunAdi, KullanilanMalzemeAdi, KullanilanMalzemeMiktari, "
         "KullanilanMalzemeFiyati"},
    };
    QList<QStringList> hepsi;
    for (const auto& tablo : tablolar) {
        const QString ad = QLatin1String(tablo.Ad);
        for (const QStringList& satır :
             Oku(QStringLiteral("SELECT ") + QLatin1String(tablo.Sütunlar) + QStringLiteral(" FROM ") + ad))
            hepsi += QStringList(ad) + satır;
    }
    std::sort(hepsi.begin(), hepsi.end());
    return hepsi;
}
