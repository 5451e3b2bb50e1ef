#pragma once

#include "Utf8.h"

#include <exception>
#include <string>
#include <string_view>

namespace Motor {

// State codes of ODBC 2, as SQLError gives them.
namespace Durum {
inline constexpr std::string_view Genel = "S1000";
inline constexpr std::string_view BellekYok = "S1001";
inline constexpr std::string_view SütunNumarası = "S1002";
inline constexpr std::string_view HedefTürü = "S1003";
inline constexpr std::string_view BoşGösterge = "S1009";
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
inline constexpr std::string_view YetkiYok = "28000";
inline constexpr std::string_view Bağlanamadı = "08001";
}  // namespace Durum

// What went wrong, as it reaches the user: a state code and a message. `yerel` is SQLite's extended code or the
// system's error number, 0 when the engine itself refuses.
class Hata : public std::exception {
  public:
    // Messages end within this many bytes, so that they fit a client's usual buffer of 256 bytes whatever they quote.
    static constexpr std::size_t AzamiMesaj = 240;

    Hata(std::string_view durum, std::string_view mesaj, int yerel = 0)
        : m_durum(durum), m_mesaj(BütünKarakterlerleKes(mesaj, AzamiMesaj)), m_yerel(yerel) {}

    const char* what() const noexcept override { return m_mesaj.c_str(); }
    const std::string& Durum() const noexcept { return m_durum; }
    const std::string& Mesaj() const noexcept { return m_mesaj; }
    int Yerel() const noexcept { return m_yerel; }

  private:
    std::string m_durum;
    std::string m_mesaj;
    int m_yerel;
};

}  // namespace Motor
