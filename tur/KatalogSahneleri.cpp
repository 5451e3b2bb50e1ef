// The catalogue forms in each of their modes, and the questions before deleting.
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>
#include <QTreeWidget>

#include "Sahneler.h"

using namespace Qt::StringLiterals;

namespace {

// The question that a button asks is photographed and declined.
void SoruÇek(Tur& tur, QWidget& form, const QString& düğme, const QString& resim) {
    Tur::Kipli([&] { Bas(form, düğme); },
               [&](QWidget& kutu) {
                   tur.Çek(resim, form, kutu);
                   QTest::keyClick(&kutu, Qt::Key_Escape);
               });
}

void Ürünler(Tur& tur, QWidget& anaForm) {
    MenüdenAç(anaForm, u"ÜrünEkleSilMenüsü"_s, [&](QWidget& form) {
        auto& ağaç = Tur::Bul<QTreeWidget>(form, u"ÜrünListesi"_s);
        ağaç.expandItem(ağaç.topLevelItem(0));
        Tur::Tıkla(ağaç, ağaç.model()->index(0, 0));
        tur.Çek(u"urun-ekle-sil"_s, form);
        SoruÇek(tur, form, u"ÜrünSilButonu"_s, u"grup-silme-sorusu"_s);
        Tur::Tıkla(ağaç, ağaç.model()->index(0, 0, ağaç.model()->index(0, 0)));
        SoruÇek(tur, form, u"ÜrünSilButonu"_s, u"urun-silme-sorusu"_s);
        Bas(form, u"ÜrünEkleKaydetButonu"_s);
        Tur::Yaz(Tur::Bul<QComboBox>(form, u"ÜrünGrubuListesi"_s), u"mutfak"_s);
        tur.Çek(u"urun-ekleme"_s, form);
        Esc(form);
        Esc(form);
    });
}

void Malzemeler(Tur& tur, QWidget& anaForm) {
    MenüdenAç(anaForm, u"MalzemeEkleSilMenüsü"_s, [&](QWidget& form) {
        Tur::Yaz(Tur::Bul<QLineEdit>(form, u"MalzemeBulKutusu"_s), u"çam"_s);
        tur.Çek(u"malzeme-ekle-sil"_s, form);
        SoruÇek(tur, form, u"MalzemeSilButonu"_s, u"malzeme-silme-sorusu"_s);
        Bas(form, u"MalzemeFiyatıDeğiştirButonu"_s);
        tur.Çek(u"fiyat-degistirme"_s, form);
        Esc(form);
        Bas(form, u"MalzemeEkleKaydetButonu"_s);
        Tur::Yaz(Tur::Bul<QLineEdit>(form, u"MalzemeAdıKutusu"_s), u"ıhlamur çıta"_s);
        tur.Çek(u"malzeme-ekleme"_s, form);
        Esc(form);
        Esc(form);
    });
}

void MalzemeListesi(Tur& tur, QWidget& anaForm) {
    ÜrünSeç(anaForm, u"Yemek Masası"_s);
    Tur::Kipli([&] { Bas(anaForm, u"ListeyeMalzemeEkleButonu"_s); },
               [&](QWidget& form) {
                   tur.Çek(u"liste-olusturma-bos"_s, form);
                   for (const QString& malzeme : {u"çam"_s, u"ağaç"_s, u"buzlu"_s}) {
                       auto& bul = Tur::Bul<QLineEdit>(form, u"MalzemeBulKutusu"_s);
                       bul.clear();
                       Tur::Yaz(bul, malzeme);
                       auto& miktar = Tur::Bul<QLineEdit>(form, u"MalzemeMiktarıKutusu"_s);
                       miktar.clear();
                       Tur::Yaz(miktar, u"2,5"_s);
                       Tur::Bul<QComboBox>(form, u"MiktarTürüListesi"_s).setEditText(u"Metre"_s);
                       Bas(form, u"ListeyeEkleButonu"_s);
                   }
                   tur.Çek(u"liste-olusturma"_s, form);
                   Esc(form);
               });
}

void Miktarlar(Tur& tur, QWidget& anaForm) {
    ÜrünSeç(anaForm, u"Yemek Masası"_s);
    Tur::Kipli([&] { Bas(anaForm, u"MiktarlarıGösterDüğmesi"_s); },
               [&](QWidget& form) {
                   tur.Çek(u"miktar-goster"_s, form);
                   Esc(form);
               });
}

}  // namespace

std::vector<Sahne> KatalogSahneleri() {
    return {{u"urun-ekle-sil"_s, Ürünler},
            {u"malzeme-ekle-sil"_s, Malzemeler},
            {u"liste-olusturma"_s, MalzemeListesi},
            {u"miktar-goster"_s, Miktarlar}};
}
