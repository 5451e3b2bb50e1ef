#pragma once

#include <QString>

// The numbers of every text that the program shows.
enum class MetinNo : int {
    SürümOkunamadı = 10,
    SürümYetersiz = 20,
    ÇıkışSorusu = 60,
    EkranDar = 100,
    VeriDosyasıYok = 150,
    OdbcErişilemiyor = 160,
    BağlantıyaBellekYok = 170,
    OdbcHatası = 180,
    OdbcHatasıOkunamadı = 190,

    // Main form: menu
    ProgramMenüsü = 200,
    ÜrünEkleSilMenüsü = 210,
    MalzemeEkleSilMenüsü = 220,
    ÇıkışMenüsü = 240,
    YardımMenüsü = 250,
    İçindekilerMenüsü = 260,
    HataBildirmeMenüsü = 270,
    HakkındaMenüsü = 280,

    // Main form
    ÜrünListesiBaşlığı = 300,
    KullanılanMalzemelerBaşlığı = 310,
    EkleDeğiştir = 320,
    ListedenÇıkar = 330,
    Yazdır = 335,
    YazıcıYok = 337,
    ToplamMalzemeMaliyeti = 340,
    İşçilikYüzdesi = 350,
    KârYüzdesi = 360,
    DiğerYüzdesi = 370,
    VadeYüzdesi = 380,
    ToplamVarnek = 390,
    DeğişiklikleriKaydet = 400,
    GünlükMalzemeHareketleriDüğmesi = 402,
    MalzemeListesiDüğmesi = 404,
    ÜrünListesiDüğmesi = 406,
    ÇıkışDüğmesi = 410,
    MiktarıSütunu = 412,
    AdıSütunu = 414,
    FiyatıSütunu = 416,
    TutarıSütunu = 418,
    ÜrünListesiBoş = 420,
    MalzemeListesiBoş = 430,
    ListedenÇıkarmaSorusu = 440,

    // Products and product groups
    ÜrünFormuBaşlığı = 450,
    ÜrünGrubuSil = 460,
    ÜrünSil = 470,
    ÜrünGrubu = 480,
    ÜrünAdı = 490,
    ÜrünEkle = 500,
    TamamDüğmesi = 505,
    Kapat = 510,
    Kaydet = 520,
    İptal = 530,
    ÜrünSeçiniz = 538,
    GrupSilmeSorusu = 540,
    SilmeGeriAlınamaz = 550,
    ÜrünGrubuBoş = 560,
    ÜrünGrubuSayı = 565,
    ÜrünAdıBoş = 570,
    ÜrünListedeVar = 580,

    // Material catalogue
    MalzemeFormuBaşlığı = 600,
    MalzemeListesiEtiketi = 610,
    MalzemeBul = 620,
    MalzemeAdı = 630,
    MalzemeFiyatı = 640,
    MalzemeEkle = 650,
    MalzemeSil = 660,
    FiyatDeğiştir = 670,
    MalzemeAdıBoş = 680,
    MalzemeFiyatıBoş = 690,
    MalzemeListedeVar = 700,
    MalzemeSeçiniz = 710,
    ÜrünlerdenÇıkarmaSorusu = 720,

    // Material list builder
    ListeFormuBaşlığı = 750,
    Miktar = 760,
    MiktarTürü = 765,
    EklenecekListe = 770,
    ListeyeEkle = 780,
    EklenecektenÇıkar = 790,
    ListeyiTemizle = 800,
    ListeyiAktar = 810,
    MiktarıBelirtiniz = 820,
    MiktarTürünüBelirtiniz = 830,
    MiktarSıfır = 840,
    TekrarEklemeSorusu = 850,
    AktarmaSorusu = 860,
    Yükleniyor = 870,

    // Printouts and reports
    FişMalzemeMaliyeti = 872,
    FişİşçilikBaşı = 874,
    FişKârBaşı = 876,
    FişDiğerBaşı = 878,
    FişVadeBaşı = 880,
    FişToplam = 882,
    SayfaBaşı = 884,
    HareketlerFormuBaşlığı = 886,
    TarihliHareketler = 888,
    KullanıldığıÜrünSütunu = 890,
    TarihDeğiştir = 892,
    TarihFormuBaşlığı = 894,
    TarihSeç = 896,

    // Error report and about
    HataBildirmeBaşlığı = 955,
    HatalarıBildirin = 960,
    HataBildirmeAçıklaması = 970,
    HakkındaBaşlığı = 1000,
    MalzemeListesiBaşlığı = 1010,
    ÜrünListesiRaporBaşlığı = 1020,
    GrubuSütunu = 1030,

    // Unit names
    Adet = 1200,
    Paket = 1210,
    Litre = 1220,
    Kilogram = 1230,
    Metre = 1240,
    Metrekare = 1250,
    Metreküp = 1260,

    // Quantities and waste
    MiktarGösterSeçeneği = 1265,
    ToplamMalzeme = 1270,
    BirimVarnek = 1280,
    BirimlerFarklı = 1290,
    OndalıkBasamaklar = 1295,
    HaneOlsun = 1300,
    FireOranı = 1315,
    FireliToplamMalzeme = 1320,
    FireliBirimVarnekEtiketi = 1325,
    FişToplamMiktar = 1330,
    FişFireliMiktar = 1335,
    FişFireliBirimVarnek = 1340,

    // The amounts form
    MiktarFormuBaşlığı = 1350,
    MalzemeMaliyetiTutarı = 1351,
    İşçilikTutarı = 1352,
    KârTutarı = 1353,
    VadeTutarı = 1354,
    DiğerTutarı = 1355,
    ToplamTutarı = 1356,
    DiğerMaliyetler = 1357,
    MiktarlarıGösterDüğmesi = 1358,
    MiktarlarıGösterAçıklaması = 1359,

    // Later additions: message boxes
    Evet = 2100,
    Hayır = 2101,
    Tamam = 2102,
    BeklenmeyenHata = 2110,
    SayıDeğil = 2111,

    // Later additions: start
    KlasöreYazılamıyor = 2120,
    YedekGeriYüklenemedi = 2121,
    YedekZararGörmüş = 2122,
    YedekKlasörüYok = 2123,

    // Later additions: main form
    SayılmayanMalzemeler = 2130,
    KayıtlarEksik = 2132,
    KayıtOkunamadı = 2133,
    GrupBirleştirmeSorusu = 2134,
    ÜrünListesiOkunamadı = 2135,
    ÜrünOkunamadı = 2136,
    ListeyiTekrarYükle = 2137,
    ÜrünüTekrarYükle = 2138,

    // Later additions: number boxes
    SayıÇokBüyük = 2140,
    BasamakÇokFazla = 2141,
    SayıAlınmadı = 2142,
    MetinÇokUzun = 2143,

    // Later additions: renaming
    MalzemelerEskiAdda = 2144,

    // Later additions: data file and backup at the start
    YedekAlınamadı = 2150,
    SonYedekDuruyor = 2151,
    VeriBaşkaKopyada = 2152,
    VeriSaltOkunur = 2153,
    İlkDosyaOluşturulamadı = 2154,
    YedekGeriYüklemeSorusu = 2155,
    YedeğinEşiSaklanamadı = 2156,
    BoştaYedekZararGörmüş = 2157,
    BoştaYedekGeriYüklenemedi = 2158,
    BoştaYedekOkunamıyor = 2159,
    VeriYoluUzun = 2160,
    YedekYoluUzun = 2161,
    BoştaYedekBozuk = 2162,

    // Later additions: catalogue forms
    SilinmişMalzeme = 2170,
    FiyatÜrünlerdeEski = 2171,
    FiyatKatalogdaEski = 2172,
    ÜrünlerdenSilinemedi = 2173,
    MalzemeleriKaldı = 2174,
    Aktarılamayanlar = 2175,

    // Later additions: about, error report, guide
    ProgramınSimgesi = 2200,
    SiteBağlantısı = 2201,
    PostaBağlantısı = 2202,
    MesajSayfasıBağlantısı = 2203,
    KılavuzYok = 2204,

    // Later additions: printouts
    PdfKaydet = 2300,
    Önizleme = 2301,
    PdfFormuBaşlığı = 2302,
    PdfSüzgeci = 2303,
    ÜzerineYazmaSorusu = 2304,
    PdfYazılamadı = 2305,
    ÖnizlemeBaşlığı = 2306,

    // Later additions: movements
    TarihGeçersiz = 2310,
    TutarÇokBüyük = 2311,

// Later additions: prices as a whole
#include "FiyatMetinNumaralari.inc"
};

// The text. Each number has one; an enumerator without would be a fault of the program: it then reads "?number?", and a
// debug build stops.
QString Metin(MetinNo numara);
