#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace Motor {

// SHA-256 (FIPS 180-4). It asks for no memory, so nothing in it can fail.
class Sha256 {
  public:
    using Özet = std::array<std::uint8_t, 32>;
    static constexpr std::size_t BlokBoyu = 64;

    void Ekle(std::string_view baytlar) noexcept;
    Özet Bitir() noexcept;

  private:
    void Bloğuİşle() noexcept;

    std::array<std::uint32_t, 8> m_durum{0x6a09e667, 0xbb67ae85, 0x3c6ef372, 0xa54ff53a,
                                         0x510e527f, 0x9b05688c, 0x1f83d9ab, 0x5be0cd19};
    std::array<std::uint8_t, BlokBoyu> m_blok{};
    std::uint64_t m_boy = 0;  // bytes so far
};

// PBKDF2 with HMAC-SHA256 (RFC 8018), one block.
Sha256::Özet ParolaÖzeti(std::string_view parola, std::string_view tuz, std::int64_t tekrar) noexcept;

}  // namespace Motor
