#pragma once

#include <QStringList>
#include <optional>
#include <vector>

#include "YariMamulBaglari.h"

// The prices of materials that stand for products follow those products, through any number of levels.

// What a command has touched, as it is now.
struct VeriDeğişimi {
    std::vector<ÜrünAdı> Ürünler{};   // their rows, their percentages or they themselves; a group's where Ad is empty
    QStringList Malzemeler{};         // their price in the catalogue or they themselves
    bool Silindi = false;             // they were deleted: ties of what is really gone are dissolved
    std::optional<ÜrünAdı> YeniAd{};  // what the one product, or group, is called now
    bool FiyatlarTam = false;         // used rows have the catalogue's prices with all decimals
    bool Hepsi = false;               // whatever there is
};

struct Yayılım {
    İşSonucu Sonuç;
    QStringList Çözülenler;       // materials whose tie was dissolved
    std::int64_t Değişenler = 0;  // materials that got another price
};

// The ties of the file that the connection has open. They are held in memory from the first asking on.
İşSonucu YarıMamulleriAl(OdbcBağlantısı& bağlantı, const YarıMamulBağları*& bağlar);
// To be called after a transaction that held YarıMamulleriYay did not come to be, or the ties were changed otherwise.
void YarıMamulleriUnut();

// Lets the prices follow, as a part of the transaction that is under way and has written something already.
Yayılım YarıMamulleriYay(OdbcBağlantısı& bağlantı, const VeriDeğişimi& değişim);

// The same as a transaction of its own; nothing is written where no tie is concerned. What could not be written is
// marked in the ties, and the next call makes up for it.
Yayılım YarıMamulleriYürüt(OdbcBağlantısı& bağlantı, const VeriDeğişimi& değişim);

// Of the tie alone: the material's price stays. Others follow where the tie had closed a circle.
İşSonucu YarıMamulBağınıÇöz(OdbcBağlantısı& bağlantı, const QString& malzeme);
