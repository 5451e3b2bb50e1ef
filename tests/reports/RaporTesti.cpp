#include "RaporTesti.h"

#include "DegiskenModulu.h"
#include "Deyimler.h"

RaporTesti::RaporTesti() {
    VeriyeBağlan();
    YazıcıVar = true;
    YazıcıyıAyarla([this](const Yazdırılacak& iş) {
        if (Yazdırılırken) Yazdırılırken();
        m_yazdırılan = std::make_unique<KayıtYüzeyi>();
        iş.Yaz(*m_yazdırılan);
    });
}

RaporTesti::~RaporTesti() {
    YazıcıyıAyarla(nullptr);
}

void RaporTesti::Göster() {
    m_form->show();
    QApplication::setActiveWindow(m_form.get());
    EXPECT_TRUE(QTest::qWaitForWindowActive(m_form.get()));
    QApplication::processEvents();
}

void RaporTesti::MalzemeEkle(const char* ad, const char* fiyat) {
    Çalıştır(Deyimler::MalzemeEkle(U(ad), U(fiyat)));
}

void RaporTesti::ÜrünEkle(const char* grup, const char* ürün) {
    Çalıştır(Deyimler::ÜrünEkle(U(grup), U(ürün)));
}

void RaporTesti::HareketEkle(const char* tarih, const char* ürün, const char* malzeme, const char* miktar,
                             const char* fiyat) {
    Çalıştır(Deyimler::KullanılanMalzemeEkle({U("Grup"), U(ürün), U(malzeme), U(miktar), U(fiyat), U(tarih)}));
}

QStringList RaporTesti::Satırlar(const char* liste) {
    QStringList satırlar;
    const auto& ağaç = Bul<QTreeWidget>(liste);
    for (int i = 0; i < ağaç.topLevelItemCount(); ++i) {
        QStringList hücreler;
        for (int sütun = 0; sütun < ağaç.columnCount(); ++sütun) hücreler.append(ağaç.topLevelItem(i)->text(sütun));
        satırlar.append(hücreler.join(QLatin1Char('|')));
    }
    return satırlar;
}

void RaporTesti::EtkinlikBeklenen(bool etkin) {
    for (const char* ad : {"Çerçeve", "YazdırButonu", "PdfKaydetButonu", "ÖnizlemeButonu"})
        EXPECT_EQ(Bul(ad).isEnabled(), etkin) << ad;
    EXPECT_TRUE(Bul("KapatButonu").isEnabled());
}

void RaporTesti::OdakSırasıBeklenen(std::initializer_list<const char*> adlar) {
    for (const char* ad : adlar) {
        EXPECT_EQ(m_form->focusWidget(), &Bul(ad)) << ad;
        QTest::keyClick(m_form->focusWidget(), Qt::Key_Tab);
    }
}

QString RaporTesti::Başlıklar(const char* liste) {
    const auto* başlık = Bul<QTreeWidget>(liste).headerItem();
    QStringList başlıklar;
    for (int i = 0; i < başlık->columnCount(); ++i)
        başlıklar.append((başlık->textAlignment(i) & Qt::AlignRight ? U(">") : QString()) + başlık->text(i));
    return başlıklar.join(QLatin1Char('|'));
}
