#include "FiyatListesi.h"
#include "SayiMetni.h"
#include "VarnekTesti.h"

namespace {

Para Lira(const char16_t* metin) {
    return ParaOku(QStringView(metin)).value();
}

MalzemeKataloğu Katalog() {
    MalzemeKataloğu katalog;
    for (const auto& [ad, fiyat] : {std::pair("Tas Menteşe", u"18,90"),
                                    {"Frenli Menteşe", u"42,50"},
                                    {"Çam  Kereste", u"100"},
                                    {"Çam Kereste", u"101"},
                                    {"ILGAZ Vidası", u"0,6875"},
                                    {"Kulp", u"30"}}) {
        const QString metin = QString::fromUtf8(ad);
        katalog.Dizin.BulYaDaEkle(ad, static_cast<std::uint32_t>(katalog.Malzemeler.size()));
        katalog.Malzemeler.push_back({metin, Lira(fiyat)});
    }
    return katalog;
}

struct Verilen {
    QString Ad;
    QString Fiyat;
    bool Gizli = false;
};

FiyatListesi Liste(const QList<Verilen>& satırlar) {
    std::vector<ListeSatırı> liste;
    for (const Verilen& verilen : satırlar) {
        ListeSatırı& satır = liste.emplace_back();
        satır.No = static_cast<qint64>(liste.size());
        satır.Gizli = verilen.Gizli;
        satır.AdHücresi = ÇizelgeHücresi::Yazı(verilen.Ad);
        satır.FiyatHücresi = ÇizelgeHücresi::Yazı(verilen.Fiyat);
    }
    FiyatListesi sonuç;
    sonuç.Al(std::move(liste));
    return sonuç;
}

// "Malzeme=fiyat" of what the list offers.
QStringList Önerilen(const FiyatListesi& liste) {
    QStringList sonuç;
    for (const FiyatÖnerisi& öneri : liste.Öneriler())
        sonuç += öneri.Malzeme + "=" + SayıBiçimle(öneri.Yeni, 4) + (öneri.Malzemenin == Varlık::Eklendi ? "+" : "");
    return sonuç;
}

TEST(FiyatListesi, AdlarıEşlerKararıKullanıcıyaBırakır) {
    FiyatListesi liste = Liste({{"TAS\u00a0 MENTEŞE ", "20"},
                                {"ılgaz vidası", "1"},        // ı and I are one letter, i is another
                                {"ilgaz vidası", "2"},        //
                                {"ÇAM KERESTE", "110"},       // two of the catalogue, told apart by blanks alone
                                {"Çam Kereste", "111"},       // the very name
                                {"Frenli Menteşe", "45,00"},  //
                                {"frenli menteşe", "46,00"},  // a conflict
                                {"Kulp", "33", true},         // hidden
                                {"Kulp", "33"},               // the same price again
                                {"Ahşap 'özel' kulp", "55"},
                                {"Menteşe", "1.250"},
                                {"Bilinmeyen", "12,00"}});
    const std::vector<Deyimler::Tedarikçi::Bağ> bağlar{{"Bilinmeyen", "Silinmiş", Lira(u"1")}};
    liste.Eşle(Katalog(), bağlar, Ondalıkİmi::Seçilmedi, {});
    std::vector<ListeDurumu> durumlar;
    for (const ListeSatırı& satır : liste.Satırlar()) durumlar.push_back(satır.Durum);
    using enum ListeDurumu;
    EXPECT_EQ(durumlar, (std::vector<ListeDurumu>{Eşleşti, Eşleşti, Yeni, Belirsiz, Eşleşti, Çakışıyor, Çakışıyor,
                                                  Yinelenen, Eşleşti, Yeni, Kuşkulu, BağKopuk}));
    EXPECT_EQ(Önerilen(liste),
              QStringList({"Tas Menteşe=20,0000", "ILGAZ Vidası=1,0000", "Çam Kereste=111,0000", "Kulp=33,0000"}));
    // One of those that conflict, and a new one; what cannot be ticked stays so.
    for (const int satır : {5, 6, 9, 10, 11}) liste.İşaretle(satır, true);
    EXPECT_EQ(Önerilen(liste).mid(3),
              QStringList({"Frenli Menteşe=46,0000", "Kulp=33,0000", "Ahşap ’özel’ Kulp=55,0000+"}));
    // Another discount leaves the user's choice alone, one that makes all prices zero too.
    liste.İşaretle(0, false);
    liste.Eşle(Katalog(), bağlar, Ondalıkİmi::Seçilmedi, {Lira(u"100"), {}});
    EXPECT_EQ(Önerilen(liste), QStringList());
    liste.Eşle(Katalog(), bağlar, Ondalıkİmi::Virgül, {Lira(u"-10"), {500, YuvarlamaYönü::Yukarı}});
    EXPECT_EQ(Önerilen(liste).mid(2),
              QStringList({"Frenli Menteşe=50,6000", "Kulp=36,3000", "Ahşap ’özel’ Kulp=60,5000+"}));
    EXPECT_EQ(liste.Satırlar()[10].Yeni, Lira(u"1375"));
}

// A tie comes before the equal name, and its divisor counts before the conflict is looked for.
TEST(FiyatListesi, BağEşitAddanÖnceGelir) {
    FiyatListesi liste = Liste({{"Tas Menteşe", "500,00"}, {"Vida kutusu", "700,00"}, {"ILGAZ VİDASI", "0,70"}});
    liste.Eşle(Katalog(), {}, Ondalıkİmi::Seçilmedi, {});
    liste.İşaretle(1, true);
    const std::vector<Deyimler::Tedarikçi::Bağ> bağlar{{"Tas menteşe", "Kulp", Lira(u"10")},
                                                       {"Vida Kutusu", "ILGAZ Vidası", Lira(u"1000")}};
    liste.Eşle(Katalog(), bağlar, Ondalıkİmi::Seçilmedi, {});
    EXPECT_EQ(Önerilen(liste), QStringList({"Kulp=50,0000", "ILGAZ Vidası=0,7000"}));
    EXPECT_EQ(liste.Satırlar()[2].Durum, ListeDurumu::Yinelenen);
    // The tied material is gone by the time of the preview: nothing of that name is added instead.
    MalzemeKataloğu boş;
    liste.Eşle(boş, bağlar, Ondalıkİmi::Seçilmedi, {});
    EXPECT_EQ(Önerilen(liste), QStringList());
}

}  // namespace
