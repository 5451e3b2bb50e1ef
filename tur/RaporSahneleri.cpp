#include <QAbstractButton>
#include <QFile>
#include <QLineEdit>
#include <QPrintPreviewWidget>
#include <QTest>
#include <QTreeWidget>

#include "Sahneler.h"
#include "Tur.h"

using namespace Qt::StringLiterals;

namespace {

void Kapat(QWidget& form) {
    QTest::keyClick(&form, Qt::Key_Escape);
}

Sahne RaporSahnesi(const QString& ad, const QString& düğme, const std::function<void(Tur&, QWidget&)>& dahası) {
    return {ad, [=](Tur& tur, QWidget& anaForm) {
                Tur::Kipli([&] { Tur::Tıkla(Tur::Bul<QAbstractButton>(anaForm, düğme)); },
                           [&](QWidget& form) {
                               auto* liste = form.findChild<QTreeWidget*>();
                               Tur::Bekle(u"rows: "_s + ad, [&] { return liste->topLevelItemCount() > 0; });
                               tur.Çek(ad, form);
                               PdfKaydet(tur, form, ad);
                               if (dahası) dahası(tur, form);
                               Kapat(form);
                           });
            }};
}

void TarihKutusu(Tur& tur, QWidget& form) {
    Tur::Kipli([&] { Tur::Tıkla(Tur::Bul<QAbstractButton>(form, u"TarihDeğiştirButonu"_s)); },
               [&](QWidget& kutu) {
                   tur.Çek(u"tarih-degistir"_s, form, kutu);
                   Kapat(kutu);
               });
}

void Önizleme(Tur& tur, QWidget& form) {
    Tur::Kipli([&] { Tur::Tıkla(Tur::Bul<QAbstractButton>(form, u"ÖnizlemeButonu"_s)); },
               [&](QWidget& kutu) {
                   auto* sayfalar = kutu.findChild<QPrintPreviewWidget*>();
                   Tur::Bekle(u"pages"_s, [&] { return sayfalar->pageCount() > 0; });
                   tur.Çek(u"onizleme"_s, kutu);
                   Kapat(kutu);
               });
}

// The cost sheet of a product, as it stands in the tree.
Sahne FişSahnesi(const QString& ad, const QString& ürün) {
    return {ad, [=](Tur& tur, QWidget& anaForm) {
                ÜrünSeç(anaForm, ürün);
                PdfKaydet(tur, anaForm, ad);
            }};
}

}  // namespace

std::vector<Sahne> RaporSahneleri() {
    return {RaporSahnesi(u"malzeme-hareketleri"_s, u"GünlükMalzemeHareketleriGösterButonu"_s, TarihKutusu),
            RaporSahnesi(u"malzeme-listesi"_s, u"MalzemeListesiGösterButonu"_s, Önizleme),
            RaporSahnesi(u"urun-listesi"_s, u"ÜrünListesiGösterButonu"_s, nullptr),
            FişSahnesi(u"maliyet-fisi"_s, u"Yemek Masası"_s),
            FişSahnesi(u"maliyet-fisi-uzun"_s, u"Üç Kapılı Gardırop"_s)};
}
