#pragma once

#include <sys/types.h>

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Cerceve.h"
#include "DosyaSistemi.h"
#include "KaynakTablolari.h"

namespace Erişim {

struct HamTablo {
    std::uint32_t Satır = 0;  // by the table's header
    std::array<HücreTürü, EN_ÇOK_SÜTUN> Türler{};
    std::array<std::uint8_t, EN_ÇOK_SÜTUN> Ölçekler{};
};

// The bytes of a row's cells as they lie in the file, nothing for NULL.
using HamSatır = std::array<std::optional<std::string_view>, EN_ÇOK_SÜTUN>;

// The reading of one Access file by a process of its own, which gets 2 GB of memory, a minute without a word, and no
// core file. Whatever it sends is checked here. Throws VeriHatası, also when it crashes and when the user interrupts.
class OkumaSüreci {
  public:
    explicit OkumaSüreci(const std::string& yol);

    const HamTablo& TabloBilgisi(Tablo tablo) const { return m_tablolar[tablo]; }

    // The next row of the table whose turn it is; false at its end. The bytes are good until the next call.
    bool Sonraki(Tablo tablo, HamSatır& satır);

    // After the last table: that there is nothing more to come, which the reader says itself.
    void Bitir();

  private:
    std::string_view ÇerçeveAl(ÇerçeveTürü& tür);
    void Doldur();
    void TablolarıAl();
    template <typename T>
    static T SayıAl(std::string_view& içerik);
    [[noreturn]] static void Kesildi();
    [[noreturn]] static void HatayıBildir(std::string_view içerik);

    // Ended with this object at the latest, also when the constructor fails.
    struct Süreç {
        Süreç() = default;
        ~Süreç();
        Süreç(const Süreç&) = delete;
        Süreç& operator=(const Süreç&) = delete;
        pid_t No = -1;
    };
    Süreç m_süreç;
    Dosya::Tanıtıcı m_giriş;
    std::string m_tampon;
    std::size_t m_okunan = 0;  // bytes of m_tampon that have been taken
    std::array<HamTablo, TABLOLAR.size()> m_tablolar;
};

}  // namespace Erişim
