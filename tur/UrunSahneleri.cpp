// Products as a whole.
#include <QLineEdit>
#include <QTableView>

#include "Sahneler.h"

using namespace Qt::StringLiterals;

namespace {

constexpr QSize KÜÇÜK(800, 560);

void Tablo(Tur& tur, QWidget& anaForm) {
    MenüdenAç(anaForm, u"MaliyetTablosuMenüsü"_s, [&](QWidget& form) {
        tur.Çek(u"maliyet-tablosu"_s, form);
        Tur::Yaz(Tur::Bul<QLineEdit>(form, u"SüzKutusu"_s), u"masa"_s);
        form.resize(KÜÇÜK);
        Tur::Durul();
        tur.Çek(u"maliyet-tablosu-kucuk"_s, form);
        Tur::Yaz(Tur::Bul<QLineEdit>(form, u"SüzKutusu"_s), {});
        Esc(form);
    });
}

void NeredeKullanılıyor(Tur& tur, QWidget& anaForm) {
    MenüdenAç(anaForm, u"NeredeKullanılıyorMenüsü"_s, [&](QWidget& form) {
        Tur::Yaz(Tur::Bul<QWidget>(form, u"MalzemeListesi"_s), u"Kavela"_s);
        tur.Çek(u"nerede-kullaniliyor"_s, form);
        Tur::Kipli([&] { Bas(form, u"DeğiştirButonu"_s); },
                   [&](QWidget& değiştir) {
                       Tur::Yaz(Tur::Bul<QWidget>(değiştir, u"YeniMalzemeListesi"_s), u"Raf Pimi"_s);
                       Tur::Yaz(Tur::Bul<QWidget>(değiştir, u"ÇarpanKutusu"_s), u"1,5"_s);
                       tur.Çek(u"malzeme-degistir"_s, değiştir);
                       Tur::Kipli([&] { Bas(değiştir, u"ÖnizleButonu"_s); },
                                  [&](QWidget& önizleme) {
                                      tur.Çek(u"degisim-onizleme"_s, önizleme);
                                      Esc(önizleme);
                                  });
                       Esc(değiştir);
                   });
        form.resize(KÜÇÜK);
        Tur::Durul();
        tur.Çek(u"nerede-kullaniliyor-kucuk"_s, form);
        Esc(form);
    });
}

}  // namespace

std::vector<Sahne> ÜrünSahneleri() {
    return {{u"maliyet-tablosu"_s, Tablo}, {u"nerede-kullaniliyor"_s, NeredeKullanılıyor}};
}
