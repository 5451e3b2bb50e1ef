#pragma once

#include <optional>

#include "ArsivFoyu.h"

// Making, reading and deleting archives of cost sheets.

using Deyimler::Arşiv::Başlık;
using Deyimler::Arşiv::Kapsam;

// Archives the sheets of `yeni`'s scope, in one transaction: all of it or nothing. `yeni` gets its number and the
// number of its sheets; with 0 of them nothing was written. `ilerleme` is told how many used rows are done; it is not
// asked any more once committing has begun.
İşSonucu Arşivle(OdbcBağlantısı& bağlantı, Başlık& yeni, const İlerleme& ilerleme = {});

// The same inside a transaction that is under way; `tablolarVar` and the number are the caller's to find before it.
İşSonucu ArşiviYaz(OdbcBağlantısı& bağlantı, bool tablolarVar, Başlık& yeni, const İlerleme& ilerleme = {});

// What an archive would take in, and about how many bytes it would add.
struct ArşivBoyu {
    std::int64_t Ürün = 0;
    std::int64_t Satır = 0;
    std::int64_t Bayt = 0;
};
İşSonucu ArşivBoyunuBul(OdbcBağlantısı& bağlantı, const Kapsam& kapsam, ArşivBoyu& boy);

// The latest first; none without the tables.
İşSonucu ArşivleriOku(OdbcBağlantısı& bağlantı, std::vector<Başlık>& arşivler);

// An archive's sheets without their rows.
struct FöyBaşlığı {
    std::int64_t No = 0;
    QString Grup;
    QString Ürün;
    QString ToplamMetni;
    Para Toplam;
    unsigned Dikkat = 0;
};
İşSonucu FöyListesiniOku(OdbcBağlantısı& bağlantı, std::int64_t arşiv, std::vector<FöyBaşlığı>& föyler,
                         const İlerleme& ilerleme = {});

// One sheet; nothing where the archive has none of that number. `sağlam`: it is what its digest says.
struct OkunanFöy {
    ArşivFöyü Föy;
    bool Sağlam = false;
};
İşSonucu FöyüOku(OdbcBağlantısı& bağlantı, const Başlık& arşiv, std::int64_t no, std::optional<OkunanFöy>& föy);

// All of them, one by one in their order.
using OkunanFöyAlıcı = std::function<İşSonucu(OkunanFöy& föy)>;
İşSonucu FöyleriOku(OdbcBağlantısı& bağlantı, const Başlık& arşiv, const OkunanFöyAlıcı& al,
                    const İlerleme& ilerleme = {});

// A product's totals in the archives, the first first. To be asked where there are archives; `ürün` without a quote.
struct ArşivToplamı {
    std::int64_t Arşiv = 0;
    Para Toplam;
    unsigned Dikkat = 0;
};
İşSonucu ÜrününToplamları(OdbcBağlantısı& bağlantı, const Kapsam& ürün, std::vector<ArşivToplamı>& toplamlar);

// Group and name of every product that any archive holds, each once. To be asked where there are archives.
İşSonucu ArşivdekiAdlar(OdbcBağlantısı& bağlantı, std::vector<Kapsam>& adlar);

// Deletes an archive with all its sheets, or nothing.
İşSonucu ArşiviSil(OdbcBağlantısı& bağlantı, std::int64_t arşiv);
