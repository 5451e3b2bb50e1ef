#include "TestVerisi.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QHash>
#include <QProcess>
#include <QTemporaryDir>
#include <algorithm>

#include "OdbcSurucu.h"

namespace {

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

void Başarmalı(const OdbcSonucu& sonuç, const QString& ne) {
    EXPECT_TRUE(sonuç.Başarılı()) << ne.toStdString() << ": "
                                  << OdbcİletileriniAl(sonuç.Hatalar).join(QLatin1Char('\n')).toStdString();
}

}  // namespace

void VeriDosyasıOluştur(const TestMetni& yol, const QString& tür) {
    ASSERT_TRUE(QFile::copy(Kalıp(tür), yol)) << yol.toStdString();
}

TestSonucu::TestSonucu(const OdbcSonucu& sonuç) : Kod(sonuç.Kod) {
    const OdbcHatası ilk = sonuç.Hatalar.value(0);
    Durum = ilk.Durum.toStdString();
    Mesaj = ilk.İleti.toStdString();
    Yerel = ilk.Yerel;
}

TestVerisi::TestVerisi(const TestMetni& yol) {
    Başarmalı(m_bağlantı.Aç(BağlantıMetni(yol)), yol);
}

void TestVerisi::Çalıştır(const TestMetni& sql) {
    Başarmalı(m_bağlantı.Çalıştır(sql), sql);
}

void TestVerisi::ElleOnayla() {
    m_hareket.emplace(m_bağlantı);
    Başarmalı(m_hareket->Başla(), QStringLiteral("begin"));
}

void TestVerisi::Onayla() {
    Başarmalı(m_hareket->Onayla(), QStringLiteral("commit"));
}

QList<QStringList> TestVerisi::Oku(const TestMetni& sql) {
    QList<QStringList> satırlar;
    const auto ekle = [&satırlar](OdbcSatırı& satır) {
        QStringList& değerler = satırlar.emplaceBack();
        for (int sütun = 1; sütun <= satır.SütunSayısı(); ++sütun) {
            const auto değer = satır.Baytlar(sütun);
            değerler += değer ? QString::fromUtf8(değer->data(), qsizetype(değer->size())) : QStringLiteral("<NULL>");
        }
        return true;
    };
    Başarmalı(m_bağlantı.Oku(sql, ekle), sql);
    return satırlar;
}

std::string TestVerisi::Tek(const TestMetni& sql) {
    const QList<QStringList> satırlar = Oku(sql);
    return satırlar.size() == 1 && satırlar[0].size() == 1 ? satırlar[0][0].toStdString() : "<not one value>";
}

QList<QStringList> TestVerisi::HerSatır() {
    QList<QStringList> hepsi;
    const auto satırları = [&](const QString& ad) {
        for (const QStringList& satır : Oku(QStringLiteral("SELECT * FROM ") + ad)) hepsi += QStringList(ad) + satır;
    };
    for (const char* ad : {"UrunTablosu", "MalzemeTablosu", "UrunMalzemeTablosu"}) satırları(QLatin1String(ad));
    for (const char* ad : {"ArsivTablosu", "ArsivFoyTablosu", "ArsivSatirTablosu"}) {
        bool var = false;
        Başarmalı(m_bağlantı.TabloVar(QLatin1String(ad), var), QLatin1String(ad));
        if (!var) continue;
        hepsi += QStringList(QLatin1String(ad));  // without rows it is there all the same
        satırları(QLatin1String(ad));
    }
    std::sort(hepsi.begin(), hepsi.end());
    return hepsi;
}
