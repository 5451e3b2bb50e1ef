#pragma once

#include <QString>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "OdbcSonucu.h"
#include "Para.h"

class OdbcBağlantısı;

// Told how many rows have been read; false: the user gave up.
using İlerleme = std::function<bool(std::int64_t okunan)>;

// What became of reading or carrying out.
enum class İşSonu { Tamam, Vazgeçildi, Olmadı };
struct [[nodiscard]] İşSonucu {
    İşSonu Son = İşSonu::Tamam;
    OdbcSonucu Odbc;  // of what failed

    bool Tamam() const { return Son == İşSonu::Tamam; }
};
İşSonucu İşSonucuYap(const OdbcSonucu& odbc, bool vazgeçildi = false);

// Finds a row by a name (or two, as group and product) as the data file compares names.
class AdDizini {
  public:
    static constexpr std::uint32_t YOK = ~std::uint32_t{0};

    // The number under which the names stand; `yeni` where they stood under none.
    std::uint32_t BulYaDaEkle(std::string_view ad, std::uint32_t yeni);
    std::uint32_t BulYaDaEkle(std::string_view grup, std::string_view ad, std::uint32_t yeni);
    std::uint32_t Bul(std::string_view ad) const;
    std::uint32_t Bul(std::string_view grup, std::string_view ad) const;

  private:
    const std::string& Anahtarı(std::string_view grup, std::string_view ad) const;

    std::unordered_map<std::string, std::uint32_t> m_yerler;
    mutable std::string m_anahtar;
};

struct KatalogMalzemesi {
    QString Ad;
    Para Fiyat;
};

// The material catalogue, by name.
struct MalzemeKataloğu {
    std::vector<KatalogMalzemesi> Malzemeler;
    AdDizini Dizin;

    İşSonucu Oku(OdbcBağlantısı& bağlantı, const İlerleme& ilerleme = {});
};

// A stored amount ("1250.5") with at most four decimals. Nothing: none such.
std::optional<Para> SaklananPara(std::string_view baytlar);

// Reads a stored count or number without decimals.
std::int64_t SaklananSayı(std::string_view baytlar);
