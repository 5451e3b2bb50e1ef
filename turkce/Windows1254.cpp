#include "Windows1254.h"

namespace {

// Windows-1254 from 0x80 to 0x9F; 0: no letter. From 0xA0 on it is Latin-1 but for the six Turkish letters.
constexpr char16_t Yüksek[32] = {0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
                                 0x2039, 0x0152, 0,      0,      0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
                                 0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0,      0x0178};

}  // namespace

char16_t Windows1254Harfi(unsigned char bayt) noexcept {
    if (bayt >= 0x80 && bayt < 0xA0) return Yüksek[bayt - 0x80] ? Yüksek[bayt - 0x80] : u'\uFFFD';
    switch (bayt) {
        case 0xD0:
            return u'Ğ';
        case 0xDD:
            return u'İ';
        case 0xDE:
            return u'Ş';
        case 0xF0:
            return u'ğ';
        case 0xFD:
            return u'ı';
        case 0xFE:
            return u'ş';
        default:
            return bayt;
    }
}
