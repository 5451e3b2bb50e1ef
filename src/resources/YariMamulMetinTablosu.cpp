#include "YariMamulMetinleri.h"
#include "MetinSatirlari.h"

namespace {

constexpr MetinSatırı Tablo[] = {
    {YarıMamulMetni::YarıMamulBaşlığı, "Yarı Mamuller"},
};

static_assert(Sıralı(Tablo));

}  // namespace

const char* YarıMamulMetniBul(MetinNo numara) {
    return MetniBul(Tablo, numara);
}
