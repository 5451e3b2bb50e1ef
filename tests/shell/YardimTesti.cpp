#include "Yardim.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QMenu>
#include <QPushButton>
#include <QRegularExpression>
#include <QTest>

#include "AcilanAdresler.h"
#include "MetinTablosu.h"
#include "VarnekTesti.h"

namespace {

using namespace Qt::StringLiterals;

class YardımTesti : public VarnekTesti {
  protected:
    static QString Kılavuz() { return KılavuzKlasörü(QCoreApplication::applicationDirPath()); }
    AçılanAdresler m_açılanlar;
};

TEST_F(YardımTesti, EveryLinkInTheGuideLeadsSomewhere) {
    const QDir klasör(Kılavuz());
    const QStringList sayfalar = klasör.entryList({u"*.html"_s});
    ASSERT_GE(sayfalar.size(), 15);
    static const QRegularExpression bağlantı(u"(?:href|src)=\"([^\"#]*)(?:#([^\"]*))?\""_s);
    static const QRegularExpression doldurulmamış(u"@[A-Z]+@"_s);
    for (const QString& sayfa : sayfalar) {
        const QString metin = QString::fromUtf8(Baytlar(klasör.filePath(sayfa)));
        EXPECT_FALSE(metin.contains(doldurulmamış)) << sayfa.toStdString();
        for (const auto& bulunan : bağlantı.globalMatch(metin)) {
            const QString hedef = bulunan.captured(1).isEmpty() ? sayfa : bulunan.captured(1);
            const std::string kim = (sayfa + u": "_s + bulunan.captured(0)).toStdString();
            ASSERT_TRUE(klasör.exists(hedef)) << kim;
            if (!bulunan.captured(2).isEmpty()) {
                EXPECT_TRUE(Baytlar(klasör.filePath(hedef)).contains(u"id=\"%1\""_s.arg(bulunan.captured(2)).toUtf8()))
                    << kim;
            }
        }
    }
}

TEST_F(YardımTesti, F1OpensThePageOfTheFormInFrontFromAnywhere) {
    const YardımTuşu yardım(nullptr);
    QWidget ana;
    ana.setObjectName(u"AnaForm"_s);
    QPushButton düğme(&ana);
    QMenu menü(&ana);
    QWidget form(&ana, Qt::Dialog);
    form.setObjectName(u"ÜrünEkleSilFormu"_s);
    QWidget kutu(&form, Qt::Dialog);  // a message box has no page: its form's page opens
    kutu.setObjectName(u"MesajKutusu"_s);
    QWidget yabancı;
    for (QWidget* parça : QList<QWidget*>{&düğme, &menü, &form, &kutu, &yabancı}) QTest::keyClick(parça, Qt::Key_F1);
    QStringList sayfalar;
    for (const QUrl& adres : m_açılanlar) sayfalar += adres.fileName();
    EXPECT_EQ(sayfalar, QStringList({u"AnaForm.html"_s, u"AnaForm.html"_s, u"UrunEkleSilFormu.html"_s,
                                     u"UrunEkleSilFormu.html"_s, u"index.html"_s}));
    QTest::keyClick(&düğme, Qt::Key_F1, Qt::ShiftModifier);
    QTest::keyClick(&düğme, Qt::Key_F2);
    EXPECT_EQ(m_açılanlar.size(), 5);
}

TEST_F(YardımTesti, TheGuideIsFoundBesideTheProgramOrInTheShareFolder) {
    EXPECT_EQ(KılavuzKlasörü(ProgramKlasörü()), QString());
    Kutular().Yanıtla(MesajKutusu::Yanıt::Tamam);
    YardımıAç(nullptr, ProgramKlasörü());
    Kutular().TekKutu(MesajKutusu::Simge::Bilgi, Metin(MetinNo::KılavuzYok));
    EXPECT_TRUE(m_açılanlar.isEmpty());

    const QString program = Klasör() + u"usr/lib/varnek"_s;
    for (const QString& kılavuz : {Klasör() + u"usr/share/varnek/kilavuz"_s, program + u"/kilavuz"_s}) {
        ASSERT_TRUE(QDir().mkpath(program) && QDir().mkpath(kılavuz));
        ASSERT_TRUE(QFile::copy(Kılavuz() + u"/index.html"_s, kılavuz + u"/index.html"_s));
        EXPECT_EQ(KılavuzKlasörü(program), kılavuz);
    }
}

}  // namespace
