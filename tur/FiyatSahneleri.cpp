// Prices of many materials: changed, looked at over time, taken back. These scenes change the data.
#include <QComboBox>
#include <QFile>
#include <QLineEdit>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
#include <utility>

#include "DegiskenModulu.h"
#include "Saat.h"
#include "Sahneler.h"

using namespace Qt::StringLiterals;

namespace {

constexpr QSize KÜÇÜK(800, 560);

QModelIndex Satır(QWidget& form, const QString& tablo, int sütun, const QString& metin) {
    const auto& model = *Tur::Bul<QTableView>(form, tablo).model();
    const QModelIndexList bulunan = model.match(model.index(0, sütun), Qt::DisplayRole, metin, 1, Qt::MatchStartsWith);
    if (bulunan.isEmpty()) throw TurHatası(u"not in the table: "_s + metin);
    return bulunan.first();
}

void İşaretle(QWidget& form, const QString& malzeme) {
    auto& tablo = Tur::Bul<QTableView>(form, u"MalzemeTablosu"_s);
    Tur::Tıkla(tablo, Satır(form, u"MalzemeTablosu"_s, 0, malzeme));
    QTest::keyClick(&tablo, Qt::Key_Space);
    Tur::Durul();
}

// Ticks what the filter shows and types the rule, with prices to 5 liras.
void KuralYaz(QWidget& form, const QString& süzgeç, const QString& yüzde) {
    Tur::Yaz(Tur::Bul<QLineEdit>(form, u"MalzemeSüzKutusu"_s), süzgeç);
    Bas(form, u"TümünüSeçButonu"_s);
    auto& oran = Tur::Bul<QLineEdit>(form, u"OranKutusu"_s);
    Tur::Tıkla(oran);
    Tur::Yaz(oran, yüzde);
    auto& adımlar = Tur::Bul<QComboBox>(form, u"YuvarlamaListesi"_s);
    adımlar.setCurrentIndex(adımlar.findText(u"5"_s));
}

void Önizle(QWidget& form, const std::function<void(QWidget&)>& iş) {
    Tur::Kipli([&] { Bas(form, u"ÖnizleButonu"_s); }, iş);
}

void GünGeç(int önce) {
    SaatiAyarla([önce] { return QDate::currentDate().addDays(-önce); });
}

void Toplu(Tur& tur, QWidget& anaForm) {
    GünGeç(60);
    MenüdenAç(anaForm, u"TopluFiyatMenüsü"_s, [&](QWidget& form) {
        KuralYaz(form, {}, u"12,5"_s);
        tur.Çek(u"toplu-fiyat"_s, form);
        Önizle(form, [&](QWidget& önizleme) {
            tur.Çek(u"fiyat-onizleme"_s, önizleme);
            Bas(önizleme, u"UygulaButonu"_s);
        });
    });
    GünGeç(20);
    MenüdenAç(anaForm, u"TopluFiyatMenüsü"_s, [](QWidget& form) {
        KuralYaz(form, u"kereste"_s, u"8"_s);
        Önizle(form, [](QWidget& önizleme) { Bas(önizleme, u"UygulaButonu"_s); });
    });
    SaatiAyarla(nullptr);
}

void KüçükÇek(Tur& tur, const QString& ad, QWidget& form) {
    form.resize(KÜÇÜK);
    Tur::Durul();
    tur.Çek(ad, form);
}

// What a supplier might send: headings between the rows, names of his own, and prices that need a second look.
constexpr auto LİSTE =
    u8R"(YILDIZ HIRDAVAT SANAYİ;;;
Kasım fiyat listesi (KDV hariç);;;
Kod;Ürün Adı;Birim;Birim Fiyat (TL)
;MENTEŞELER;;
M-35;Tas Menteşe 35 mm;Adet;21,40
M-36;FRENLİ MENTEŞE;Adet;48,75 TL
M-40;Cam Menteşesi;Adet;67,20
;KULPLAR VE RAYLAR;;
K-11;Çekmece  Kulpu;Adet;₺ 31,25
K-12;Gömme Kulp;Adet;1.250
K-14;Düğme Kulp;Adet;sorunuz
R-45;Teleskopik Ray 45lik;Takım;129,90
R-46;Teleskopik Ray 45lik;Takım;134,50
;BAĞLANTI;;
V-40;Ağaç Vidası 4x40 (1000'lik Kutu);Kutu;745,00
V-50;Bağlantı Vidası;Adet;1,45
M-99;Minifiks Takımı;Adet;7,35
)";

void Liste(Tur& tur, QWidget& anaForm) {
    const QTemporaryDir klasör;
    QFile dosya(klasör.filePath(u"Fiyat Listesi.csv"_s));
    if (!dosya.open(QIODevice::WriteOnly)) throw TurHatası(u"no list: "_s + dosya.errorString());
    dosya.write(reinterpret_cast<const char*>(LİSTE));
    dosya.close();
    MenüdenAç(anaForm, u"FiyatListesiAlMenüsü"_s, [&](QWidget& form) {
        auto& tedarikçi = Tur::Bul<QComboBox>(form, u"TedarikçiListesi"_s);
        tedarikçi.setFocus();
        tedarikçi.setEditText(u"Yıldız Hırdavat"_s);
        auto& yol = Tur::Bul<QLineEdit>(form, u"DosyaKutusu"_s);
        Tur::Tıkla(yol);
        yol.setText(dosya.fileName());
        QTest::keyClick(&yol, Qt::Key_Return);
        Tur::Durul();
        yol.setText(u"/home/usta/Belgeler/Fiyat Listesi.csv"_s);  // for the picture
        auto& tablo = Tur::Bul<QTableView>(form, u"EşleşmeTablosu"_s);
        Tur::Tıkla(tablo, Satır(form, u"EşleşmeTablosu"_s, 0, u"Ağaç Vidası"_s));
        tur.Çek(u"fiyat-listesi-al"_s, form);
        Tur::Kipli([&] { Bas(form, u"EşleştirButonu"_s); },
                   [&](QWidget& seç) {
                       tur.Çek(u"malzeme-sec"_s, seç);
                       Esc(seç);
                   });
        KüçükÇek(tur, u"fiyat-listesi-al-kucuk"_s, form);
        Esc(form);
    });
}

// Looked at only: the prices stay, so that the other scenes find the sample's.
void Dövizler(Tur& tur, QWidget& anaForm) {
    MenüdenAç(anaForm, u"DövizKurlarıMenüsü"_s, [&](QWidget& form) {
        Tur::Tıkla(Tur::Bul<QTableView>(form, u"DövizTablosu"_s), Satır(form, u"DövizTablosu"_s, 0, u"EUR"_s));
        auto& kur = Tur::Bul<QLineEdit>(form, u"KurKutusu"_s);
        Tur::Tıkla(kur);
        Tur::Yaz(kur, u"49,1225"_s);
        auto& adımlar = Tur::Bul<QComboBox>(form, u"YuvarlamaListesi"_s);
        adımlar.setCurrentIndex(adımlar.findText(u"0,25"_s));
        tur.Çek(u"doviz-kurlari"_s, form);
        KüçükÇek(tur, u"doviz-kurlari-kucuk"_s, form);
        Önizle(form, [&](QWidget& önizleme) {
            tur.Çek(u"doviz-onizleme"_s, önizleme);
            Esc(önizleme);
        });
        Esc(form);
    });
    MenüdenAç(anaForm, u"MalzemeEkleSilMenüsü"_s, [&](QWidget& form) {
        Tur::Yaz(Tur::Bul<QLineEdit>(form, u"MalzemeBulKutusu"_s), u"poli"_s);
        tur.Çek(u"malzeme-doviz"_s, form);
        Esc(form);
    });
}

void Geçmiş(Tur& tur, QWidget& anaForm) {
    MenüdenAç(anaForm, u"FiyatGeçmişiMenüsü"_s, [&](QWidget& form) {
        İşaretle(form, u"Gürgen Kereste"_s);
        İşaretle(form, u"Çam Kereste"_s);
        auto& geçmiş = Tur::Bul<QTableView>(form, u"GeçmişTablosu"_s);
        Tur::Tıkla(geçmiş, Satır(form, u"GeçmişTablosu"_s, 7, u"Toplu değişim: yüzde 12"_s));
        tur.Çek(u"fiyat-gecmisi"_s, form);
        Tur::Kipli([&] { Bas(form, u"GeriAlButonu"_s); },
                   [&](QWidget& önizleme) {
                       tur.Çek(u"fiyat-geri-alma"_s, önizleme);
                       Esc(önizleme);
                   });
        Esc(form);
    });
}

// A material that costs as much as fifteen digits tell, used by a product, with the most decimals.
void BüyükTutarEkle(QWidget& anaForm) {
    const QString ad = u"Altın Varak"_s;
    MenüdenAç(anaForm, u"MalzemeEkleSilMenüsü"_s, [&](QWidget& form) {
        Bas(form, u"MalzemeEkleKaydetButonu"_s);
        Tur::Yaz(Tur::Bul<QLineEdit>(form, u"MalzemeAdıKutusu"_s), ad);
        Tur::Yaz(Tur::Bul<QLineEdit>(form, u"MalzemeFiyatıKutusu"_s), u"100000000000000,1234"_s);
        Bas(form, u"MalzemeEkleKaydetButonu"_s);
        Esc(form);
    });
    ÜrünSeç(anaForm, u"Orta Sehpa"_s);
    Tur::Kipli([&] { Bas(anaForm, u"ListeyeMalzemeEkleButonu"_s); },
               [&](QWidget& form) {
                   Tur::Yaz(Tur::Bul<QLineEdit>(form, u"MalzemeBulKutusu"_s), ad);
                   Tur::Yaz(Tur::Bul<QLineEdit>(form, u"MalzemeMiktarıKutusu"_s), u"1"_s);
                   Tur::Bul<QComboBox>(form, u"MiktarTürüListesi"_s).setEditText(u"Adet"_s);
                   Bas(form, u"ListeyeEkleButonu"_s);
                   Tur::Kipli([&] { Bas(form, u"ListeyiAktarButonu"_s); },
                              [](QWidget& soru) { QTest::keyClick(&soru, Qt::Key_Return); });
               });
}

void Sığmayan(Tur& tur, QWidget& anaForm) {
    BüyükTutarEkle(anaForm);
    const int basamak = std::exchange(OndalıkBasamak, 6);
    MenüdenAç(anaForm, u"TopluFiyatMenüsü"_s, [&](QWidget& form) {
        KuralYaz(form, u"al"_s, u"12,5"_s);
        KüçükÇek(tur, u"toplu-fiyat-kucuk"_s, form);
        Önizle(form, [&](QWidget& önizleme) {
            KüçükÇek(tur, u"fiyat-onizleme-kucuk"_s, önizleme);
            Bas(önizleme, u"UygulaButonu"_s);
        });
    });
    MenüdenAç(anaForm, u"FiyatGeçmişiMenüsü"_s, [&](QWidget& form) {
        İşaretle(form, u"Altın Varak"_s);
        KüçükÇek(tur, u"fiyat-gecmisi-kucuk"_s, form);
        Esc(form);
    });
    OndalıkBasamak = basamak;
}

}  // namespace

std::vector<Sahne> FiyatSahneleri() {
    return {{u"doviz-kurlari"_s, Dövizler},
            {u"toplu-fiyat"_s, Toplu},
            {u"fiyat-listesi-al"_s, Liste},
            {u"fiyat-gecmisi"_s, Geçmiş},
            {u"fiyat-sigmayan"_s, Sığmayan}};
}
