#pragma once

#include <vector>

#include "KopyaAdi.h"

// A copy that is no longer needed, and the one that stays in its place: the next newer one that is kept; 0: none.
struct Fazlalık {
    int Sıra = 0;
    int YerineKalan = 0;
};

// What thinning takes away. Daily copies: all of the two newest days stay, and the last one of each of the 14 newest
// days, 8 newest weeks (from Monday) and 24 newest months; only days, weeks and months that have copies count. Of those
// asked for or made before a restore, raw ones included, the newest 10 stay. A raw one never stays in another one's
// place. Newer is the one with the higher number, whatever the days say.
std::vector<Fazlalık> Seyrelt(std::vector<KopyaAdı> kopyalar);
