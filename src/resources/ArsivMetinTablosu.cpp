#include "ArsivMetinleri.h"
#include "MetinSatirlari.h"

namespace {

constexpr MetinSatırı Tablo[] = {
    {ArşivMetni::MaliyetArşiviBaşlığı, "Maliyet Arşivi"},
};

static_assert(Sıralı(Tablo));

}  // namespace

const char* ArşivMetniBul(MetinNo numara) {
    return MetniBul(Tablo, numara);
}
