#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace Erişim {

// Why a value is not stored as it stands in the Access file.
enum class Neden : std::uint8_t {
    Boş,         // NULL
    Okunamayan,  // a price, percentage or date that is none, or too large
    Yuvarlanan,  // more than four decimals
    TekDuyarlık,
    Saat,
    KesmeVeSatır,  // an apostrophe, a line break, something that is no character
    BoşSatır,
    AyrılanAd,
    BirleşenMalzeme,
    Son_
};

// Every value that is stored otherwise, a line each, and how many there are of each kind.
class DeğişiklikListesi {
  public:
    // `nerede`: table, row, column. Whatever the texts hold, they are one line.
    void Ekle(Neden neden, std::string_view nerede, std::string_view eski, std::string_view yeni);

    bool Boş() const { return m_sayı == 0; }
    std::string Özet() const;  // "3 değer olduğu gibi alınamadı (2 boş değer, 1 okunamayan değer)"
    std::string Metin() const;

  private:
    std::array<std::uint64_t, static_cast<std::size_t>(Neden::Son_)> m_sayılar{};
    std::uint64_t m_sayı = 0;
    std::string m_satırlar;
};

}  // namespace Erişim
