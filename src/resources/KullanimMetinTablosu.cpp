#include "KullanimMetinleri.h"
#include "MetinSatirlari.h"

namespace {

constexpr MetinSatırı Tablo[] = {
    {KullanımMetni::NeredeKullanılıyorBaşlığı, "Malzeme Nerede Kullanılıyor"},
    {KullanımMetni::MalzemeEtiketi, "&Malzeme"},
    {KullanımMetni::KullananlarEtiketi, "Kullanan ü&rünler"},
    {KullanımMetni::PaySütunu, "Pay (%)"},
    {KullanımMetni::ÜrünListedeYok, "ürün listesinde yok"},
    {KullanımMetni::KatalogdaYokEki, " (katalogda yok)"},
    {KullanımMetni::KullanımSayısı, "%1 ürün, %2 satır"},
    {KullanımMetni::MalzemeSeçilmemiş, "malzeme seçilmedi"},
    {KullanımMetni::KullanımRaporBaşlığı, "%1 - Kullanıldığı Ürünler"},
    {KullanımMetni::KullanımOkunuyor, "Kullanılan malzemeler okunuyor..."},
    {KullanımMetni::KullanılanYok, "Malzeme listeniz boş; gösterilecek malzeme yok."},
};

static_assert(Sıralı(Tablo));

}  // namespace

const char* KullanımMetniBul(MetinNo numara) {
    return MetniBul(Tablo, numara);
}
