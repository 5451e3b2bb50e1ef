#pragma once

#include <QDate>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "Deyimler.h"
#include "VarnekTesti.h"
#include "VeritabaniHazirlik.h"

// Tests of the data file's way to the start: what lies where, and since when.
class HazırlıkTesti : public VarnekTesti {
  protected:
    using Satırlar = QList<QStringList>;

    QString YedekKlasörü() const { return KullanıcıKlasörü() + QStringLiteral("Tovrek/Vtb Yedekleri/"); }
    QString Yedek() const { return YedekKlasörü() + QStringLiteral("Varnek.ydk"); }
    const QDate Gün = QDate::currentDate();
    const QDateTime ÖncekiGün = QDateTime(Gün.addDays(-1), QTime(23, 59));

    // A file with the sample and one material more, last changed at that time.
    void DosyaYap(const QString& yol, const QString& malzeme, const QDateTime& değişme) {
        QDir().mkpath(QFileInfo(yol).path());
        QFile::remove(yol);
        VeriDosyasıOluştur(yol, QStringLiteral("ornek"));
        TestVerisi(yol).Çalıştır(Deyimler::MalzemeEkle(malzeme, QStringLiteral("1,25")));
        ZamanVer(yol, değişme);
    }
    static void ZamanVer(const QString& yol, const QDateTime& değişme) {
        QFile dosya(yol);
        ASSERT_TRUE(dosya.open(QIODevice::ReadWrite));
        ASSERT_TRUE(dosya.setFileTime(değişme, QFileDevice::FileModificationTime));
    }
    static Satırlar Oku(const QString& yol) { return TestVerisi(yol).HerSatır(); }
    // The start comes through or not, and shows this one box.
    void Söyler(bool başlar, MesajKutusu::Simge simge, const QString& metin) {
        Kutular().Yanıtla(MesajKutusu::Yanıt::Tamam);
        EXPECT_EQ(VeritabanınıHazırla(), başlar);
        Kutular().TekKutu(simge, metin);
    }
    // A page in the middle is damaged: the file opens.
    static QByteArray SayfasıBozuk(QByteArray baytlar) {
        constexpr int sayfa = 4096;
        return baytlar.replace(baytlar.size() / 2 / sayfa * sayfa, sayfa, QByteArray(sayfa, '\xee'));
    }
    static QDateTime DeğişmeZamanı(const QString& yol) { return QFileInfo(yol).lastModified(); }
};
