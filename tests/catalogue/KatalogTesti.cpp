#include "KatalogTesti.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>

#include "MetinTablosu.h"

void KatalogTesti::Tıkla(const char* düğme) {
    QTest::mouseClick(&Bul(düğme), Qt::LeftButton);
}

void KatalogTesti::Yaz(const char* ad, const QString& metin) {
    QWidget& kutu = Bul(ad);
    kutu.setFocus();
    auto* satır = qobject_cast<QLineEdit*>(&kutu);
    if (auto* açılır = qobject_cast<QComboBox*>(&kutu)) satır = açılır->lineEdit();
    ASSERT_TRUE(satır && kutu.isEnabled()) << ad;
    satır->selectAll();
    QTest::keyClick(&kutu, Qt::Key_Delete);
    for (const QChar harf : metin) {
        QKeyEvent bas(QEvent::KeyPress, 0, Qt::NoModifier, QString(harf));
        QApplication::sendEvent(&kutu, &bas);
    }
}

QString KatalogTesti::Başlık(const char* düğme) {
    return Bul<QAbstractButton>(düğme).text();
}

QString KatalogTesti::Etkinler(std::initializer_list<const char*> adlar) {
    QStringList etkin;
    for (const char* ad : adlar) {
        if (Bul(ad).isEnabled()) etkin.append(QString::fromUtf8(ad));
    }
    return etkin.join(QLatin1Char(' '));
}

QStringList KatalogTesti::Oku(const char* sql) {
    QStringList satırlar;
    for (const QStringList& satır : TestVerisi(VeriDosyası()).Oku(QString::fromUtf8(sql))) {
        satırlar.append(satır.join(QLatin1Char('|')));
    }
    return satırlar;
}

void KatalogTesti::Beklenen(MesajKutusu::Simge simge, int metin, MesajKutusu::Yanıt yanıt) {
    Kutular().Yanıtla(yanıt, [simge, metin](const MesajKutusu::İstek& kutu) {
        EXPECT_EQ(kutu.simge, simge);
        EXPECT_EQ(kutu.metin, Metin(metin));
        EXPECT_TRUE(kutu.ortala);
        EXPECT_EQ(kutu.varsayılan, metin == 720                                    ? MesajKutusu::Yanıt::Hayır
                                   : kutu.düğmeler == MesajKutusu::Düğmeler::Tamam ? MesajKutusu::Yanıt::Tamam
                                                                                   : MesajKutusu::Yanıt::Evet);
    });
}
