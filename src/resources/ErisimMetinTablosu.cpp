#include "ErisimMetinleri.h"
#include "MetinSatirlari.h"

namespace {

constexpr MetinSatırı Tablo[] = {
    {ErişimMetni::Alınıyor, "Access dosyasındaki veriler alınıyor. Lütfen bekleyin..."},
    {ErişimMetni::Alınamadı, "Access dosyasındaki veriler alınamadı.\n%1\n\n%2"},
    {ErişimMetni::Vazgeçildi, "Access dosyasının alınmasından vazgeçildi; dosya olduğu gibi duruyor:\n%1"},
    {ErişimMetni::Değiştirilenler, "Access dosyasındaki veriler alındı.\n%1"},
    {ErişimMetni::YedekSaklanamadı,
     "Son yedeğiniz bir Access dosyası; üzerine yazılmadan önce veri dosyasının yanına kopyalanamadı."},
};

static_assert(Sıralı(Tablo));

}  // namespace

const char* ErişimMetniBul(MetinNo numara) {
    return MetniBul(Tablo, numara);
}
