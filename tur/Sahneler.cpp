#include <QApplication>
#include <QFile>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTest>
#include <QThread>
#include <QTimer>
#include <QTreeWidget>

#include "Sahneler.h"
#include "YuklemeGosterFormu.h"

using namespace Qt::StringLiterals;

namespace {

QTreeWidget& Ağaç(QWidget& anaForm) {
    return Tur::Bul<QTreeWidget>(anaForm, u"ÜrünListesi"_s);
}

QTreeWidgetItem& Düğüm(QTreeWidget& ağaç, const QString& ad) {
    const auto bulunan = ağaç.findItems(ad, Qt::MatchExactly | Qt::MatchRecursive);
    if (bulunan.isEmpty()) throw TurHatası(u"not in the tree: "_s + ad);
    return *bulunan.first();
}

Sahne ÜrünSahnesi(const QString& resim, const QString& ürün) {
    return {resim, [=](Tur& tur, QWidget& anaForm) {
                ÜrünSeç(anaForm, ürün);
                tur.Çek(resim, anaForm);
            }};
}

void MenüSahnesi(Tur& tur, QWidget& anaForm, const QString& menü, const QString& resim) {
    QMenu& açılan = Tur::Bul<QMenu>(anaForm, menü);
    auto* çubuk = qobject_cast<QMenuBar*>(açılan.parentWidget());
    if (!çubuk) throw TurHatası(u"not in the menu bar: "_s + menü);
    Tur::ÖneGetir(anaForm);
    QTest::mouseClick(çubuk, Qt::LeftButton, {}, çubuk->actionGeometry(açılan.menuAction()).center());
    Tur::Bekle(u"open: "_s + menü, [&] { return açılan.isVisible(); });
    tur.Çek(resim, anaForm, açılan);
    QTest::keyClick(&açılan, Qt::Key_Escape);
    Tur::Bekle(u"closed: "_s + menü, [&] { return !açılan.isVisible(); });
}

// A form of the help menu, opened from there.
Sahne YardımSahnesi(const QString& giriş, const QString& resim) {
    return {resim, [=](Tur& tur, QWidget& anaForm) {
                MenüdenAç(anaForm, giriş, [&](QWidget& form) {
                    tur.Çek(resim, form);
                    Bas(form, u"TamamButonu"_s);
                });
            }};
}

void YüzdeDüzenleme(Tur& tur, QWidget& anaForm) {
    ÜrünSeç(anaForm, u"Çalışma Masası"_s);
    auto& kutu = Tur::Bul<QLineEdit>(anaForm, u"İşçilikYüzdesiKutusu"_s);
    Tur::Tıkla(kutu);
    Tur::Yaz(kutu, u"27,5"_s);
    tur.Çek(u"yuzde-duzenleme"_s, anaForm);
    Tur::Tıkla(Ağaç(anaForm));
}

void Adlandırma(Tur& tur, QWidget& anaForm) {
    ÜrünSeç(anaForm, u"Orta Sehpa"_s);
    QTreeWidget& ağaç = Ağaç(anaForm);
    QTest::keyClick(&ağaç, Qt::Key_F2);
    Tur::Bekle(u"the label editor"_s, [&] { return ağaç.findChild<QLineEdit*>(); });
    tur.Çek(u"adlandirma"_s, anaForm);
    QTest::keyClick(ağaç.findChild<QLineEdit*>(), Qt::Key_Escape);
    Tur::Bekle(u"the label editor's end"_s, [&] { return !ağaç.findChild<QLineEdit*>(); });
}

void KüçükEkran(Tur& tur, QWidget& anaForm) {
    const QSize boy = anaForm.size();
    ÜrünSeç(anaForm, u"Üç Kapılı Gardırop"_s);
    anaForm.resize(800, 560);
    tur.Çek(u"ana-form-kucuk"_s, anaForm);
    anaForm.resize(boy);
    Tur::Durul();
}

void ÇıkışSorusu(Tur& tur, QWidget& anaForm) {
    Tur::Kipli([&] { Tur::Tıkla(Tur::Bul<QPushButton>(anaForm, u"ÇıkışButonu"_s)); },
               [&](QWidget& kutu) {
                   tur.Çek(u"cikis-sorusu"_s, anaForm, kutu);
                   QTest::keyClick(&kutu, Qt::Key_Escape);
               });
    if (!anaForm.isVisible()) throw TurHatası(u"the main form has closed"_s);
}

void Yükleme(Tur& tur, QWidget& anaForm) {
    YüklemeGösterFormu::Çalıştır(
        [&] {
            Yüklemeİlerlemesi ilerleme(100);
            for (int i = 0; i < 60; ++i) {
                QThread::msleep(15);  // the form appears only on a long load
                ilerleme.Arttır();
            }
            for (QWidget* pencere : QApplication::topLevelWidgets()) {
                if (pencere->objectName() == u"YüklemeGösterFormu") tur.Çek(u"yukleme"_s, *pencere);
            }
        },
        &anaForm);
}

}  // namespace

void ÜrünSeç(QWidget& anaForm, const QString& ad) {
    QTreeWidget& ağaç = Ağaç(anaForm);
    QTreeWidgetItem& düğüm = Düğüm(ağaç, ad);
    if (düğüm.parent()) ağaç.expandItem(düğüm.parent());
    Tur::Durul();
    Tur::Tıkla(ağaç, ağaç.indexFromItem(&düğüm));
    Tur::Bekle(u"selected: "_s + ad, [&] { return ağaç.currentItem() == &düğüm; });
}

void Bas(QWidget& form, const QString& düğme) {
    Tur::Tıkla(Tur::Bul<QPushButton>(form, düğme));
}

void Esc(QWidget& form) {
    QTest::keyClick(&form, Qt::Key_Escape);
    Tur::Durul();
}

void MenüdenAç(QWidget& anaForm, const QString& giriş, const std::function<void(QWidget&)>& iş) {
    Tur::ÖneGetir(anaForm);
    Tur::Kipli([&] { Tur::Bul<QAction>(anaForm, giriş).trigger(); }, iş);
}

std::vector<Sahne> Sahneler() {
    std::vector<Sahne> sahneler{
        {u"grup"_s,
         [](Tur& tur, QWidget& anaForm) {
             ÜrünSeç(anaForm, u"SANDALYE"_s);
             tur.Çek(u"grup"_s, anaForm);
         }},
        ÜrünSahnesi(u"ana-form"_s, u"Yemek Masası"_s),
        ÜrünSahnesi(u"kalabalik-urun"_s, u"Üç Kapılı Gardırop"_s),
        ÜrünSahnesi(u"eksi-yuzde"_s, u"Işıklı Vitrin"_s),
        ÜrünSahnesi(u"malzemesiz-urun"_s, u"Öğrenci Sırası"_s),
        {u"yuzde-duzenleme"_s, YüzdeDüzenleme},
        {u"adlandirma"_s, Adlandırma},
        {u"program-menusu"_s,
         [](Tur& tur, QWidget& anaForm) { MenüSahnesi(tur, anaForm, u"ProgramMenüsü"_s, u"program-menusu"_s); }},
        {u"fiyatlar-menusu"_s,
         [](Tur& tur, QWidget& anaForm) { MenüSahnesi(tur, anaForm, u"FiyatlarMenüsü"_s, u"fiyatlar-menusu"_s); }},
        {u"yardim-menusu"_s,
         [](Tur& tur, QWidget& anaForm) { MenüSahnesi(tur, anaForm, u"YardımMenüsü"_s, u"yardim-menusu"_s); }},
        YardımSahnesi(u"HakkındaMenüsü"_s, u"hakkinda"_s),
        YardımSahnesi(u"HataBildirmeMenüsü"_s, u"hata-bildirme"_s),
        {u"kucuk-ekran"_s, KüçükEkran},
        {u"yukleme"_s, Yükleme},
        {u"cikis-sorusu"_s, ÇıkışSorusu},
    };
    for (Sahne& sahne : KatalogSahneleri()) sahneler.push_back(std::move(sahne));
    for (Sahne& sahne : RaporSahneleri()) sahneler.push_back(std::move(sahne));
    for (Sahne& sahne : ÜrünSahneleri()) sahneler.push_back(std::move(sahne));
    // The last ones: they change the data.
    for (Sahne& sahne : FiyatSahneleri()) sahneler.push_back(std::move(sahne));
    for (Sahne& sahne : YedekSahneleri()) sahneler.push_back(std::move(sahne));
    return sahneler;
}

void PdfKaydet(Tur& tur, QWidget& form, const QString& ad) {
    const QString yol = tur.Klasör() + u'/' + ad + u".pdf"_s;
    Tur::Kipli([&] { Tur::Tıkla(Tur::Bul<QAbstractButton>(form, u"PdfKaydetButonu"_s)); },
               [&](QWidget& kutu) {
                   auto& adKutusu = Tur::Bul<QLineEdit>(kutu, u"fileNameEdit"_s);
                   Tur::Yaz(adKutusu, yol);
                   QTest::keyClick(&adKutusu, Qt::Key_Return);
               });
    if (!QFile::exists(yol)) throw TurHatası(u"no PDF: "_s + yol);
}
