#include "GetirmeMetinleri.h"
#include "MetinSatirlari.h"

namespace {

constexpr MetinSatırı Tablo[] = {
    {GetirmeMetni::SeçerekGetir, "Se&çerek Getir..."},
    {GetirmeMetni::YedektenBaşlığı, "Yedekten Seçerek Getir"},
    {GetirmeMetni::DönüşBaşlığı, "Seçerek Getirmeyi Geri Al / Yinele"},
    {GetirmeMetni::FarklarEtiketi, "&Farklar"},
    {GetirmeMetni::AyrıntıEtiketi, "&Seçili ürünün malzemeleri ve yüzdeleri"},
    {GetirmeMetni::NeSütunu, "Türü"},
    {GetirmeMetni::GrupSütunu, "Grubu"},
    {GetirmeMetni::AdSütunu, "Adı"},
    {GetirmeMetni::DurumSütunu, "Durumu"},
    {GetirmeMetni::YedekteSütunu, "Yedekte"},
    {GetirmeMetni::ŞimdiSütunu, "Şimdi"},
    {GetirmeMetni::SonraSütunu, "Getirince"},
    {GetirmeMetni::SonrakiSütunu, "Sonra"},
    {GetirmeMetni::NeÜrün, "ürün"},
    {GetirmeMetni::NeMalzeme, "malzeme"},
    {GetirmeMetni::DurumŞimdiYok, "şimdi yok"},
    {GetirmeMetni::DurumFarklı, "farklı"},
    {GetirmeMetni::DurumSilinecek, "silinecek"},
    {GetirmeMetni::AyrıntıAdı, "Malzeme ya da yüzde"},
    {GetirmeMetni::YedektekiMiktar, "Yedekteki miktar"},
    {GetirmeMetni::YedektekiGün, "Yedekteki gün"},
    {GetirmeMetni::ŞimdikiMiktar, "Şimdiki miktar"},
    {GetirmeMetni::ŞimdikiGün, "Şimdiki gün"},
    {GetirmeMetni::AyrıntıFarkı, "Fark"},
    {GetirmeMetni::YalnızGelen, "gelecek"},
    {GetirmeMetni::YalnızŞimdiki, "gidecek"},
    {GetirmeMetni::FarklıSatır, "değişecek"},
    {GetirmeMetni::Getir, "&Getir"},
    {GetirmeMetni::Uygula, "&Uygula"},
    {GetirmeMetni::Özet, "%1 - getirilecek: %2 ürün, %3 malzeme."},
    {GetirmeMetni::DönüşÖzeti, "%1 - değişecek: %2 ürün, %3 malzeme."},
    {GetirmeMetni::DiğerÜrünler, "Listede olmayan %1 ürünün toplamı da değişir."},
    {GetirmeMetni::ÇemberVar, "Bir yarı mamul, kendisinden yapılmış olurdu; işaretlenenler birlikte getirilemez: %1"},
    {GetirmeMetni::Hesaplanamadı, "Sonuç hesaplanmadı; bir işareti değiştirince yeniden hesaplanır."},
    {GetirmeMetni::GidenMalzemeler, "İşlemdeki şu malzemeler artık katalogda yok: %1"},
    {GetirmeMetni::NedenBirlikte, "ürünle birlikte kataloğa eklenir"},
    {GetirmeMetni::NedenDövizeBağlı, "fiyatı dövize bağlı"},
    {GetirmeMetni::NedenİkiKez, "ürün iki kez yazılmış"},
    {GetirmeMetni::NedenSatırOkunamaz, "okunamayan satırı var"},
    {GetirmeMetni::NedenSonradanDeğişmiş, "ürün sonradan değiştirilmiş"},
    {GetirmeMetni::NedenFiyatlarıDeğişmiş, "fiyatları sonradan değişmiş; bugünkü fiyatlarla gelir"},
    {GetirmeMetni::FarkYok, "Bu yedekte, şimdiki verilerde olmayan ya da farklı olan ne ürün ne malzeme var."},
    {GetirmeMetni::GeriAlınacakYok, "Bu işlemin değiştirdiği hiçbir şey artık yok."},
    {GetirmeMetni::TürGetir, "Yedekten getirme"},
    {GetirmeMetni::Açıklama, "%1 tarihli yedekten getirilen %2 ürün, %3 malzeme"},
    {GetirmeMetni::Hazırlanıyor, "Yedek denetleniyor, verilerin kopyası alınıyor..."},
    {GetirmeMetni::Karşılaştırılıyor, "Yedek, şimdiki verilerle karşılaştırılıyor..."},
    {GetirmeMetni::Deneniyor, "İşaretlenenlerin sonucu hesaplanıyor..."},
    {GetirmeMetni::Getiriliyor, "İşaretlenenler getiriliyor..."},
    {GetirmeMetni::KopyaAlınamadı, "Verilerin karşılaştırılacak kopyası alınamadı; hiçbir şey değişmedi.\n%1"},
    {GetirmeMetni::Saklanamadı, "Şimdiki veriler saklanamadığı için getirme yapılmadı; hiçbir şey değişmedi.\n%1"},
    {GetirmeMetni::Getirilemedi, "Getirilemedi; hiçbir şey değişmedi.\n%1"},
    {GetirmeMetni::Getirildi,
     "%1 ürün, %2 malzeme getirildi. Fiyatlar menüsündeki \"Geri Al\" ile geri alabilirsiniz."},
    {GetirmeMetni::BağlarÇözüldü, "Ürünü silinen yarı mamullerin bağı çözüldü: %1"},
    {GetirmeMetni::GelecekMiktar, "Gelecek miktar"},
    {GetirmeMetni::GelecekGün, "Gelecek gün"},
    {GetirmeMetni::Tümünüİşaretle, "Tümünü İ&şaretle"},
};

static_assert(Sıralı(Tablo));

}  // namespace

const char* GetirmeMetniBul(MetinNo numara) {
    return MetniBul(Tablo, numara);
}
