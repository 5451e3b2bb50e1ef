#include "KatalogTesti.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QComboBox>
#include <QLineEdit>

#include "MetinTablosu.h"

void KatalogTesti::SatıraTıkla(const char* liste, const QModelIndex& satır, Qt::KeyboardModifiers ile) {
    auto& görünüm = Bul<QAbstractItemView>(liste);
    QTest::mouseClick(görünüm.viewport(), Qt::LeftButton, ile, görünüm.visualRect(satır).center());
}

void KatalogTesti::Yaz(const char* ad, const char* metin) {
    QWidget& kutu = Bul(ad);
    ASSERT_TRUE(kutu.isEnabled()) << ad;
    kutu.setFocus();
    Tuş(Qt::Key_A, Qt::ControlModifier);
    Tuş(Qt::Key_Delete);
    for (const QChar harf : QString::fromUtf8(metin)) {
        QKeyEvent bas(QEvent::KeyPress, 0, Qt::NoModifier, QString(harf));
        QApplication::sendEvent(&kutu, &bas);
    }
}

QString KatalogTesti::Yazı(const char* ad) {
    const auto* açılır = qobject_cast<QComboBox*>(&Bul(ad));
    return açılır ? açılır->currentText() : Bul<QLineEdit>(ad).text();
}

QString KatalogTesti::Durum(Adlar denetimler, Adlar düğmeler) {
    QStringList durum;
    for (const char* ad : denetimler)
        if (Bul(ad).isEnabled()) durum.append(QString::fromUtf8(ad));
    for (const char* ad : düğmeler) durum.append(QLatin1Char('/') + Bul<QAbstractButton>(ad).text());
    return durum.join(QLatin1Char(' '));
}

QString KatalogTesti::Seçili(const char* liste) {
    const QItemSelectionModel& seçim = *Bul<QAbstractItemView>(liste).selectionModel();
    QStringList satır;
    for (const QModelIndex& yer : seçim.selectedIndexes()) satır.append(yer.data().toString());
    EXPECT_TRUE(satır.isEmpty() ? !seçim.currentIndex().isValid() : seçim.isSelected(seçim.currentIndex()));
    return satır.isEmpty() ? QStringLiteral("-") : satır.join(QLatin1Char('|'));
}

void KatalogTesti::Denetle(Adlar kutular, const char* düğme, std::initializer_list<Denetim> denetimler) {
    for (const Denetim& denetim : denetimler) {
        for (std::size_t i = 0; i < kutular.size(); ++i) Yaz(kutular.begin()[i], denetim.Yazılanlar.begin()[i]);
        Beklenen(Simge::Bilgi, denetim.Metin, Yanıt::Tamam);
        Tıkla(düğme);
        EXPECT_EQ(Kutular().Al().size(), 1u);
        EXPECT_TRUE(Odakta(denetim.Odak)) << denetim.Metin;
    }
}

void KatalogTesti::Çalıştır(Adlar deyimler) {
    TestVerisi veri(VeriDosyası());
    for (const char* sql : deyimler) veri.Çalıştır(QString::fromUtf8(sql));
}

void KatalogTesti::MalzemeEkle(const char* ad, const char* fiyat) {
    Çalıştır({qPrintable(
        QStringLiteral("INSERT INTO MalzemeTablosu (MalzemeAdi, MalzemeFiyati) VALUES ('%1', '%2')").arg(ad, fiyat))});
}

void KatalogTesti::KullanımEkle(const char* tarih, const char* ürün, const char* malzeme) {
    Çalıştır({qPrintable(QStringLiteral("INSERT INTO UrunMalzemeTablosu (KullanimTarihi, UrunGrubu, UrunAdi, "
                                        "KullanilanMalzemeAdi, KullanilanMalzemeMiktari, KullanilanMalzemeFiyati) "
                                        "VALUES (#%1#, 'MASA', '%2', '%3', '4 Adet', '12,5')")
                             .arg(tarih, ürün, malzeme))});
}

QString KatalogTesti::Oku(const char* sql) {
    QStringList satırlar;
    for (const QStringList& satır : TestVerisi(VeriDosyası()).Oku(QString::fromUtf8(sql)))
        satırlar.append(satır.join(QLatin1Char('|')));
    return satırlar.join(QLatin1Char(' '));
}

void KatalogTesti::Beklenen(Simge simge, int metin, Yanıt yanıt, std::function<void()> kutuAçıkken) {
    Kutular().Yanıtla(yanıt, [simge, metin, kutuAçıkken](const MesajKutusu::İstek& kutu) {
        EXPECT_EQ(kutu.simge, simge);
        EXPECT_TRUE(kutu.ortala && kutu.metin.startsWith(Metin(static_cast<MetinNo>(metin))))
            << kutu.metin.toStdString();
        const bool tekDüğme = kutu.düğmeler == MesajKutusu::Düğmeler::Tamam;
        EXPECT_EQ(kutu.varsayılan, tekDüğme ? Yanıt::Tamam : metin == 720 ? Yanıt::Hayır : Yanıt::Evet);
        if (kutuAçıkken) kutuAçıkken();
    });
}
