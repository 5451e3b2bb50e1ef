// Products as a whole.
#include <QComboBox>
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
        PdfKaydet(tur, form, u"nerede-kullaniliyor"_s);
        Tur::Kipli([&] { Bas(form, u"DeğiştirButonu"_s); },
                   [&](QWidget& değiştir) {
                       Tur::Yaz(Tur::Bul<QWidget>(değiştir, u"YeniMalzemeListesi"_s), u"Raf Pimi"_s);
                       Tur::Tıkla(Tur::Bul<QWidget>(değiştir, u"ÇarpanKutusu"_s));
                       Tur::Yaz(Tur::Bul<QWidget>(değiştir, u"ÇarpanKutusu"_s), u"1,5"_s);
                       tur.Çek(u"malzeme-degistir"_s, değiştir);
                       Tur::Kipli([&] { Bas(değiştir, u"ÖnizleButonu"_s); },
                                  [&](QWidget& önizleme) {
                                      tur.Çek(u"degisim-onizleme"_s, önizleme);
                                      PdfKaydet(tur, önizleme, u"degisim-onizleme"_s);
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

void SatışFiyatListesi(Tur& tur, QWidget& anaForm) {
    MenüdenAç(anaForm, u"SatışFiyatListesiMenüsü"_s, [&](QWidget& form) {
        auto& adımlar = Tur::Bul<QComboBox>(form, u"YuvarlamaListesi"_s);
        adımlar.setCurrentIndex(adımlar.findText(u"5"_s));
        auto& altYazı = Tur::Bul<QLineEdit>(form, u"AltYazıKutusu"_s);
        Tur::Tıkla(altYazı);
        Tur::Yaz(altYazı, u"Fiyatlar ay sonuna kadar geçerlidir. Nakliye dahil değildir."_s);
        tur.Çek(u"satis-fiyat-listesi"_s, form);
        PdfKaydet(tur, form, u"satis-fiyat-listesi"_s);
        form.resize(KÜÇÜK);
        Tur::Durul();
        tur.Çek(u"satis-fiyat-listesi-kucuk"_s, form);
        Esc(form);
    });
}

}  // namespace

std::vector<Sahne> ÜrünSahneleri() {
    return {{u"maliyet-tablosu"_s, Tablo},
            {u"nerede-kullaniliyor"_s, NeredeKullanılıyor},
            {u"satis-fiyat-listesi"_s, SatışFiyatListesi}};
}
