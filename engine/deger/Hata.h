#pragma once

#include "Utf8.h"

#include <array>
#include <exception>
#include <string_view>

namespace Motor {

// State codes of ODBC 2, as SQLError gives them.
namespace Durum {
inline constexpr std::string_view Genel = "S1000";
inline constexpr std::string_view BellekYok = "S1001";
inline constexpr std::string_view SütunNumarası = "S1002";
inline constexpr std::string_view HedefTürü = "S1003";
inline constexpr std::string_view BoşGösterge = "S1009";
inline constexpr std::string_view İptal = "S1008";
inline constexpr std::string_view SıraHatası = "S1010";
inline constexpr std::string_view TamponUzunluğu = "S1090";
inline constexpr std::string_view Desteklenmiyor = "S1C00";
inline constexpr std::string_view ZamanAşımı = "S1T00";
inline constexpr std::string_view SözDizimi = "37000";
inline constexpr std::string_view TabloVar = "S0001";
inline constexpr std::string_view TabloYok = "S0002";
inline constexpr std::string_view DizinVar = "S0011";
inline constexpr std::string_view SütunYok = "S0022";
inline constexpr std::string_view SütunSayısı = "21S01";
inline constexpr std::string_view Kesildi = "01004";
inline constexpr std::string_view MetinUzun = "22001";
inline constexpr std::string_view SayıBüyük = "22003";
inline constexpr std::string_view TürUymuyor = "22005";
inline constexpr std::string_view TarihBozuk = "22008";
inline constexpr std::string_view Kısıt = "23000";
inline constexpr std::string_view İmleçDurumu = "24000";
inline constexpr std::string_view AçıkHareket = "25000";
inline constexpr std::string_view GeriAlındı = "40001";
inline constexpr std::string_view YetkiYok = "28000";
inline constexpr std::string_view Bağlanamadı = "08001";
}  // namespace Durum

// What went wrong, as it reaches the user: a state code and a message. `yerel` is SQLite's result code or the system's
// error number, 0 when the engine itself refuses. It holds its text in itself, so that an error can be made, copied and
// kept also where there is no memory left.
class Hata : public std::exception {
  public:
    // Messages end within this many bytes, so that they fit a client's usual buffer of 256 bytes whatever they quote; a
    // longer one ends in "…".
    static constexpr std::size_t AzamiMesaj = 240;

    Hata() noexcept = default;
    Hata(std::string_view durum, std::string_view mesaj, int yerel = 0) noexcept : m_yerel(yerel) {
        constexpr std::string_view kesik = "…";
        durum.copy(m_durum.data(), m_durum.size() - 1);
        const bool sığıyor = mesaj.size() <= AzamiMesaj;
        const std::string_view metin = sığıyor ? mesaj : BütünKarakterlerleKes(mesaj, AzamiMesaj - kesik.size());
        metin.copy(m_mesaj.data(), metin.size());
        if (!sığıyor) kesik.copy(m_mesaj.data() + metin.size(), kesik.size());
    }

    const char* what() const noexcept override { return m_mesaj.data(); }
    std::string_view Durum() const noexcept { return m_durum.data(); }
    std::string_view Mesaj() const noexcept { return m_mesaj.data(); }
    int Yerel() const noexcept { return m_yerel; }

  private:
    std::array<char, 6> m_durum{};
    std::array<char, AzamiMesaj + 1> m_mesaj{};
    int m_yerel = 0;
};

}  // namespace Motor
