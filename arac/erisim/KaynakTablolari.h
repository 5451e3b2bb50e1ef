#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string_view>

// What is taken out of an Access file. Names of tables and columns know no case there; their order, and what else the
// file holds, does not matter.
namespace Erişim {

enum class Anlam { Metin, Fiyat, Yüzde, Tarih };

struct KaynakSütunu {
    std::string_view Ad;
    Anlam Ne;
};

struct KaynakTablosu {
    std::string_view Ad;
    std::span<const KaynakSütunu> Sütunlar;
};

inline constexpr KaynakSütunu MALZEME_SÜTUNLARI[] = {{"MalzemeAdi", Anlam::Metin}, {"MalzemeFiyati", Anlam::Fiyat}};
inline constexpr KaynakSütunu ÜRÜN_SÜTUNLARI[] = {
    {"UrunGrubu", Anlam::Metin},          {"UrunAdi", Anlam::Metin},
    {"IscilikYuzdesi", Anlam::Yüzde},     {"KarYuzdesi", Anlam::Yüzde},
    {"DigerVarnekYuzdesi", Anlam::Yüzde}, {"VadeFarkiYuzdesi", Anlam::Yüzde}};
inline constexpr KaynakSütunu KULLANIM_SÜTUNLARI[] = {{"KullanimTarihi", Anlam::Tarih},
                                                      {"UrunGrubu", Anlam::Metin},
                                                      {"UrunAdi", Anlam::Metin},
                                                      {"KullanilanMalzemeAdi", Anlam::Metin},
                                                      {"KullanilanMalzemeMiktari", Anlam::Metin},
                                                      {"KullanilanMalzemeFiyati", Anlam::Fiyat}};

// In the order in which they are read: the used rows follow what becomes of the materials.
enum Tablo : std::size_t { MalzemeTablosu, ÜrünTablosu, KullanımTablosu };
inline constexpr std::array<KaynakTablosu, 3> TABLOLAR{{{"MalzemeTablosu", MALZEME_SÜTUNLARI},
                                                        {"UrunTablosu", ÜRÜN_SÜTUNLARI},
                                                        {"UrunMalzemeTablosu", KULLANIM_SÜTUNLARI}}};
inline constexpr std::size_t EN_ÇOK_SÜTUN = 6;

}  // namespace Erişim
