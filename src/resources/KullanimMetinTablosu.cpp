#include "KullanimMetinleri.h"
#include "MetinSatirlari.h"

namespace {

constexpr MetinSatırı Tablo[] = {
    {KullanımMetni::NeredeKullanılıyorBaşlığı, "Malzeme Nerede Kullanılıyor"},
};

static_assert(Sıralı(Tablo));

}  // namespace

const char* KullanımMetniBul(MetinNo numara) {
    return MetniBul(Tablo, numara);
}
