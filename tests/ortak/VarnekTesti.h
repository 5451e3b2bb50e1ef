#pragma once

#include <gtest/gtest.h>

#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <memory>

#include "KutuKuyrugu.h"
#include "TestVerisi.h"

// The base of tests that touch files, settings, the data source or message boxes: each test has a fresh folder with its
// own program folder, per-user data, settings and ODBC data sources, shared variables as after a start, and the
// system's clock. Queued message boxes are checked at the end.
class VarnekTesti : public ::testing::Test {
  protected:
    VarnekTesti();
    ~VarnekTesti() override;
    void TearDown() override;

    // All end in the path separator.
    QString Klasör() const { return m_klasör.path() + QLatin1Char('/'); }
    QString ProgramKlasörü() const { return Klasör() + QStringLiteral("program/"); }
    QString KullanıcıKlasörü() const { return Klasör() + QStringLiteral("kullanici/"); }

    QString VeriDosyası() const { return ProgramKlasörü() + QStringLiteral("Varnek.vtb"); }
    QString OdbcDosyası() const { return Klasör() + QStringLiteral("odbc.ini"); }

    // Makes the data file ("yeni": empty, "ornek": the sample) and connects the program to it.
    void VeriyeBağlan(const QString& tür = QStringLiteral("yeni"));

    // The data file, beside the program's own connection.
    TestVerisi& Veri();
    void Çalıştır(const QString& sql) { Veri().Çalıştır(sql); }
    QString Oku(const QString& sql);  // columns parted by "|", rows by "; "
    void ÜrünEkle(const QString& grup, const QString& ad, const QStringList& yüzdeler = {});
    void MalzemeEkle(const QString& ad, const QString& fiyat);
    void KullanımEkle(const QString& grup, const QString& ürün, const QString& malzeme, const QString& miktar,
                      const QString& fiyat, const QString& tarih = QStringLiteral("#11/22/2026#"));

    // Whole files; one that is not there reads "yok", a folder that is not there is made.
    static QByteArray Baytlar(const QString& yol);
    static void DosyaYaz(const QString& yol, const QByteArray& baytlar);

    KutuKuyruğu& Kutular() { return m_kutular; }

    std::unique_ptr<TestVerisi> m_veri;  // Veri's, from its first use on

  private:
    QTemporaryDir m_klasör;
    QTemporaryDir m_çalışmaKlasörü;  // in the system's place: the path of a socket has to be short
    KutuKuyruğu m_kutular;
};
