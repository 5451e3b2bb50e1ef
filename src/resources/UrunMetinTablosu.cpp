#include "MetinSatirlari.h"

namespace {

// Products as a whole.
constexpr MetinSatırı Tablo[] = {
    {MetinNo::ÜrünlerMenüsü, "Ürün&ler"},
    {MetinNo::MaliyetTablosuMenüsü, "&Maliyet Tablosu..."},
    {MetinNo::MaliyetTablosuBaşlığı, "Maliyet Tablosu"},
    {MetinNo::ÜrünSüz, "&Süz"},
    {MetinNo::DikkatSeçeneği, "Yalnız &dikkat isteyenler"},
    {MetinNo::ÜrünSayısıMetni, "%1 / %2 ürün"},
    {MetinNo::GrupToplamlarıEtiketi, "G&rup toplamları"},
    {MetinNo::ÜrüneGit, "Ürüne &Git"},
    {MetinNo::TabloyaAktar, "&Tabloya Aktar..."},
    {MetinNo::MaliyetlerOkunuyor, "Maliyetler hesaplanıyor..."},
    {MetinNo::ÜrünYok, "Ürün listeniz boş; gösterilecek maliyet yok."},
    {MetinNo::YüzdeleriKaydetSorusu,
     "Seçili üründe kaydedilmemiş değişiklikler var; maliyetler kaydedilmiş değerlerle hesaplanır. Şimdi kaydedilsin "
     "mi?"},
    {MetinNo::MalzemeSayısıSütunu, "Malzeme"},
    {MetinNo::MalzemeMaliyetiSütunu, "Malzeme maliyeti"},
    {MetinNo::İşçilikSütunu, "İşçilik"},
    {MetinNo::KârSütunu, "Kâr"},
    {MetinNo::DiğerSütunu, "Diğer"},
    {MetinNo::VadeSütunu, "Vade farkı"},
    {MetinNo::ToplamSütunu, "Toplam"},
    {MetinNo::BirimMaliyetSütunu, "Birim maliyet"},
    {MetinNo::DikkatSütunu, "Dikkat"},
    {MetinNo::ÜrünSayısıSütunu, "Ürün"},
    {MetinNo::BütünGruplar, "Bütün gruplar"},
    {MetinNo::DikkatMalzemesiYok, "malzemesi yok"},
    {MetinNo::DikkatKatalogDışı, "katalogda olmayan malzeme"},
    {MetinNo::DikkatSıfırFiyat, "sıfır fiyat"},
    {MetinNo::DikkatOkunamayanMiktar, "okunamayan miktar"},
    {MetinNo::DikkatİkiKez, "iki kez yazılmış"},
    {MetinNo::DikkatToplamSıfır, "toplam sıfır ya da altında"},
    {MetinNo::DikkatTutarTaşıyor, "tutar çok büyük"},
};

static_assert(Sıralı(Tablo));

}  // namespace

const char* ÜrünMetniBul(MetinNo numara) {
    return MetniBul(Tablo, numara);
}
