// Products as a whole.
#include <QComboBox>
#include <QLineEdit>
#include <QTabWidget>
#include <QTableView>
#include <QTreeWidget>

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

void Dağılım(Tur& tur, QWidget& anaForm) {
    ÜrünSeç(anaForm, u"Yemek Masası"_s);
    MenüdenAç(anaForm, u"MaliyetDağılımıMenüsü"_s, [&](QWidget& form) {
        tur.Çek(u"maliyet-dagilimi"_s, form);
        form.resize(KÜÇÜK);
        Tur::Durul();
        tur.Çek(u"maliyet-dagilimi-kucuk"_s, form);
        Esc(form);
    });
}

void Kopya(Tur& tur, QWidget& anaForm) {
    ÜrünSeç(anaForm, u"Yemek Masası"_s);
    MenüdenAç(anaForm, u"ÜrünKopyalaMenüsü"_s, [&](QWidget& form) {
        Tur::Yaz(Tur::Bul<QLineEdit>(form, u"YeniAdKutusu"_s), u"uzun yemek masası"_s);
        tur.Çek(u"urun-kopyala"_s, form);
        Esc(form);
    });
}

void YarıMamuller(Tur& tur, QWidget& anaForm) {
    MenüdenAç(anaForm, u"YarıMamulMenüsü"_s, [&](QWidget& form) {
        tur.Çek(u"yari-mamuller"_s, form);
        form.resize(KÜÇÜK);
        Tur::Durul();
        tur.Çek(u"yari-mamuller-kucuk"_s, form);
        Esc(form);
    });
}

void Ağaç(Tur& tur, QWidget& anaForm) {
    ÜrünSeç(anaForm, u"Yemek Masası"_s);
    tur.Çek(u"ana-form-yari-mamul"_s, anaForm);
    MenüdenAç(anaForm, u"YarıMamulAğacıMenüsü"_s, [&](QWidget& form) {
        Tur::Yaz(Tur::Bul<QLineEdit>(form, u"AdetKutusu"_s), u"12"_s);
        Tur::Bul<QTreeWidget>(form, u"MalzemeAğacı"_s).expandAll();
        Tur::Durul();
        tur.Çek(u"yari-mamul-agaci"_s, form);
        Esc(form);
    });
}

void Bul(Tur& tur, QWidget& anaForm) {
    MenüdenAç(anaForm, u"BulMenüsü"_s, [&](QWidget& form) {
        Tur::Yaz(Tur::Bul<QLineEdit>(form, u"BulKutusu"_s), u"ça"_s);
        tur.Çek(u"bul"_s, form);
        Esc(form);
    });
}

QModelIndex Satır(QWidget& form, const QString& tablo, int sütun, const QString& metin) {
    const auto& model = *Tur::Bul<QTableView>(form, tablo).model();
    const QModelIndexList bulunan = model.match(model.index(0, sütun), Qt::DisplayRole, metin, 1, Qt::MatchStartsWith);
    if (bulunan.isEmpty()) throw TurHatası(u"not in the table: "_s + metin);
    return bulunan.first();
}

void Arşiv(Tur& tur, QWidget& anaForm) {
    ÜrünSeç(anaForm, u"Çalışma Masası"_s);
    MenüdenAç(anaForm, u"MaliyetArşiviMenüsü"_s, [&](QWidget& form) {
        const auto seç = [&form](const QString& tablo, int sütun, const QString& metin) {
            Tur::Tıkla(Tur::Bul<QTableView>(form, tablo), Satır(form, tablo, sütun, metin));
            Tur::Durul();
        };
        seç(u"ArşivTablosu"_s, 0, u"1"_s);
        Bas(form, u"KarşılaştırButonu"_s);
        seç(u"FarkTablosu"_s, 1, u"Çalışma Masası"_s);
        tur.Çek(u"maliyet-arsivi"_s, form);
        seç(u"FöyTablosu"_s, 1, u"Çalışma Masası"_s);
        Tur::Kipli([&] { Bas(form, u"FöyüGösterButonu"_s); },
                   [&](QWidget& föy) {
                       tur.Çek(u"arsiv-foyu"_s, föy);
                       Esc(föy);
                   });
        Tur::Bul<QTabWidget>(form, u"BölümSayfaları"_s).setCurrentIndex(1);
        Tur::Durul();
        tur.Çek(u"maliyet-arsivi-gelisim"_s, form);
        Tur::Bul<QTabWidget>(form, u"BölümSayfaları"_s).setCurrentIndex(0);
        form.resize(KÜÇÜK);
        Tur::Durul();
        tur.Çek(u"maliyet-arsivi-kucuk"_s, form);
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
    return {{u"yari-mamuller"_s, YarıMamuller},
            {u"yari-mamul-agaci"_s, Ağaç},
            {u"maliyet-tablosu"_s, Tablo},
            {u"maliyet-dagilimi"_s, Dağılım},
            {u"urun-kopyala"_s, Kopya},
            {u"maliyet-arsivi"_s, Arşiv},
            {u"nerede-kullaniliyor"_s, NeredeKullanılıyor},
            {u"satis-fiyat-listesi"_s, SatışFiyatListesi},
            {u"bul"_s, Bul}};
}
