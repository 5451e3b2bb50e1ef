#include "CizelgeMetinleri.h"
#include "MetinSatirlari.h"

namespace {

constexpr MetinSatırı Tablo[] = {
    {ÇizelgeMetni::BirimiSütunu, "Birimi"},
    {ÇizelgeMetni::DövizTablosunuAktar, "Tablo&ya Aktar..."},
};

static_assert(Sıralı(Tablo));

}  // namespace

const char* ÇizelgeMetniBul(MetinNo numara) {
    return MetniBul(Tablo, numara);
}
