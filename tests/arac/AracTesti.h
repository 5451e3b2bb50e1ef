#pragma once

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include "OdbcSurucu.h"
#include "TestVerisi.h"

// A fresh folder for each test, and the data-file tool as its users run it.
class AraçTesti : public testing::Test {
  protected:
    struct Sonuç {
        int kod;
        QString çıktı;
        QString hata;
    };

    static void SetUpTestSuite() { SürücüKlasörünüAyarla(QStringLiteral(VARNEK_BIN)); }

    QString Yol(const QString& ad) const { return m_klasör.filePath(ad); }

    // Everything that lies in the test's folder, hidden files too.
    QStringList Klasördekiler() const {
        return QDir(m_klasör.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }

    static Sonuç Çalıştır(const QStringList& sözler, const QString& araç = QStringLiteral(VARNEK_BIN "/varnek-veri")) {
        QProcess süreç;
        süreç.start(araç, sözler);
        EXPECT_TRUE(süreç.waitForFinished(120000)) << süreç.errorString().toStdString();
        EXPECT_EQ(süreç.exitStatus(), QProcess::NormalExit);
        return {süreç.exitCode(), QString::fromUtf8(süreç.readAllStandardOutput()),
                QString::fromUtf8(süreç.readAllStandardError())};
    }

    static QByteArray İçerik(const QString& yol) {
        QFile dosya(yol);
        EXPECT_TRUE(dosya.open(QIODevice::ReadOnly)) << yol.toStdString();
        return dosya.readAll();
    }

    QTemporaryDir m_klasör;
};
