#include "CizelgeMetinleri.h"
#include "MetinSatirlari.h"

namespace {

constexpr MetinSatırı Tablo[] = {
    {ÇizelgeMetni::BirimiSütunu, "Birimi"},
    {ÇizelgeMetni::TabloyaAktarY, "Tablo&ya Aktar..."},
    {ÇizelgeMetni::TabloyaAktarO, "Tabl&oya Aktar..."},
    {ÇizelgeMetni::TabloyaAktarR, "Tabloya Akta&r..."},
    {ÇizelgeMetni::İşaretSütunu, "İşareti"},
    {ÇizelgeMetni::İşaretli, "işaretli"},
    {ÇizelgeMetni::İşaretsiz, "işaretsiz"},
};

static_assert(Sıralı(Tablo));

}  // namespace

const char* ÇizelgeMetniBul(MetinNo numara) {
    return MetniBul(Tablo, numara);
}
