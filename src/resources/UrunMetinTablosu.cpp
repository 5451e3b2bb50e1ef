#include "MetinSatirlari.h"
#include "UrunMetinleri.h"

namespace {

// Products as a whole.
constexpr MetinSatırı Tablo[] = {
    {ÜrünMetni::ÜrünlerMenüsü, "Ürün&ler"},
    {ÜrünMetni::MaliyetTablosuMenüsü, "&Maliyet Tablosu..."},
    {ÜrünMetni::MaliyetTablosuBaşlığı, "Maliyet Tablosu"},
    {ÜrünMetni::ÜrünSüz, "&Süz"},
    {ÜrünMetni::DikkatSeçeneği, "Yalnız &dikkat isteyenler"},
    {ÜrünMetni::ÜrünSayısıMetni, "%1 / %2 ürün"},
    {ÜrünMetni::GrupToplamlarıEtiketi, "G&rup toplamları"},
    {ÜrünMetni::ÜrüneGit, "Ürüne &Git"},
    {ÜrünMetni::TabloyaAktar, "&Tabloya Aktar..."},
    {ÜrünMetni::MaliyetlerOkunuyor, "Maliyetler hesaplanıyor..."},
    {ÜrünMetni::ÜrünYok, "Ürün listeniz boş; gösterilecek maliyet yok."},
    {ÜrünMetni::YüzdeleriKaydetSorusu,
     "Seçili üründe kaydedilmemiş değişiklikler var; maliyetler kaydedilmiş değerlerle hesaplanır. Şimdi kaydedilsin "
     "mi?"},
    {ÜrünMetni::MalzemeSayısıSütunu, "Malzeme"},
    {ÜrünMetni::MalzemeMaliyetiSütunu, "Malzeme maliyeti"},
    {ÜrünMetni::İşçilikSütunu, "İşçilik"},
    {ÜrünMetni::KârSütunu, "Kâr"},
    {ÜrünMetni::DiğerSütunu, "Diğer"},
    {ÜrünMetni::VadeSütunu, "Vade farkı"},
    {ÜrünMetni::ToplamSütunu, "Toplam"},
    {ÜrünMetni::BirimMaliyetSütunu, "Birim maliyet"},
    {ÜrünMetni::DikkatSütunu, "Dikkat"},
    {ÜrünMetni::ÜrünSayısıSütunu, "Ürün"},
    {ÜrünMetni::BütünGruplar, "Bütün gruplar"},
    {ÜrünMetni::DikkatMalzemesiYok, "malzemesi yok"},
    {ÜrünMetni::DikkatKatalogDışı, "katalogda olmayan malzeme"},
    {ÜrünMetni::DikkatSıfırFiyat, "sıfır fiyat"},
    {ÜrünMetni::DikkatOkunamayanMiktar, "okunamayan miktar"},
    {ÜrünMetni::DikkatİkiKez, "iki kez yazılmış"},
    {ÜrünMetni::DikkatToplamSıfır, "toplam sıfır ya da altında"},
    {ÜrünMetni::DikkatTutarTaşıyor, "tutar çok büyük"},
    {ÜrünMetni::MaliyetDağılımıMenüsü, "Maliyet &Dağılımı"},
    {ÜrünMetni::ÜrünKopyalaMenüsü, "Ürünü &Kopyala..."},
    {ÜrünMetni::NeredeKullanılıyorMenüsü, "Malzeme &Nerede Kullanılıyor..."},
    {ÜrünMetni::YarıMamulMenüsü, "&Yarı Mamuller..."},
    {ÜrünMetni::YarıMamulAğacıMenüsü, "Yarı Mamul &Ağacı"},
    {ÜrünMetni::MaliyetArşiviMenüsü, "Maliyet A&rşivi..."},
    {ÜrünMetni::SatışFiyatListesiMenüsü, "&Satış Fiyat Listesi..."},
    {ÜrünMetni::BulMenüsü, "&Bul..."},
    {ÜrünMetni::BulBaşlığı, "Bul"},
    {ÜrünMetni::Aranan, "&Aranan ürün ya da malzeme"},
    {ÜrünMetni::Bulunanlar, "B&ulunanlar"},
    {ÜrünMetni::BulunanSayısı, "%1 ad bulundu"},
    {ÜrünMetni::İlkBulunanlar, "%1 ad bulundu; ilk %2 tanesi listede"},
    {ÜrünMetni::Git, "&Git"},
    {ÜrünMetni::TürüÜrün, "ürün"},
    {ÜrünMetni::TürüMalzeme, "malzeme"},
    {ÜrünMetni::AdlarOkunuyor, "Adlar okunuyor..."},
    {ÜrünMetni::KopyaBaşlığı, "Ürünü Kopyala"},
    {ÜrünMetni::Kopyalanan, "Yüzdeleri ve %1 malzeme satırıyla kopyalanır."},
    {ÜrünMetni::KopyaKalanVar,
     "Veri dosyasında bu adla silinmiş bir üründen kalan malzemeler var; kopya onları da alırdı. Lütfen farklı bir ad "
     "giriniz."},
    {ÜrünMetni::KopyalananDeğişmiş,
     "Kopyalanacak ürün bu arada değişti; hiçbir şey yazılmadı ve ürün yeniden okundu. Yeni hâlini kopyalamak için bir "
     "daha \"Tamam\"a basınız."},
    {ÜrünMetni::ÜrünArtıkYok, "Bu ürün veri dosyasında artık yok."},
    {ÜrünMetni::KopyaTamam, "&Tamam"},
    {ÜrünMetni::DağılımBaşlığı, "Maliyet Dağılımı"},
    {ÜrünMetni::DağılımTablosuEtiketi, "Toplamın &dağılımı"},
    {ÜrünMetni::PaylarTablosuEtiketi, "&Malzemelerin payları"},
    {ÜrünMetni::KalemSütunu, "Kalem"},
    {ÜrünMetni::PaySütunu, "Pay (%)"},
    {ÜrünMetni::BirikimliPaySütunu, "Birikimli (%)"},
    {ÜrünMetni::Yuvarlama, "Yuvarlama"},
    {ÜrünMetni::Diğerleri, "Diğerleri (%1)"},
    {ÜrünMetni::Katılmadı, "maliyete katılmadı"},
    {ÜrünMetni::SayılmayanlarNotu,
     "Miktarı ya da fiyatı okunamadığı, ya da tutarı çok büyük olduğu için maliyete katılmayanlar: %1"},
    {ÜrünMetni::MalzemesizNotu, "Bu ürünün malzemesi yok."},
    {ÜrünMetni::ResimKaydet, "&Resim Kaydet..."},
    {ÜrünMetni::ResimFormuBaşlığı, "Resim Olarak Kaydet"},
    {ÜrünMetni::ResimSüzgeci, "PNG Resimleri (*.png)"},
    {ÜrünMetni::ResimYazılamadı,
     "Resim dosyası yazılamadı! \nLütfen, bu yere yazma izniniz ve diskte yeterince boş yer olup olmadığını kontrol "
     "edip tekrar deneyiniz:"},
};

static_assert(Sıralı(Tablo));

}  // namespace

const char* ÜrünMetniBul(MetinNo numara) {
    return MetniBul(Tablo, numara);
}
