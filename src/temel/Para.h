#pragma once

#include <compare>
#include <cstdint>
#include <optional>

struct Ondalık;

// An amount of money, exact: a signed 64-bit count of ten-thousandths of the currency unit (four fixed decimals), so
// from -922.337.203.685.477,5808 to 922.337.203.685.477,5807. No conversion is implicit, every rounding is named, and
// whatever leaves the range gives std::nullopt instead of a wrapped value.
class Para {
  public:
    static constexpr std::int64_t Ölçek = 10000;  // ten-thousandths in one unit

    constexpr Para() = default;

    static constexpr Para OnBindeBirden(std::int64_t onBindeBir) noexcept { return Para(onBindeBir); }
    constexpr std::int64_t OnBindeBir() const noexcept { return m_onBindeBir; }

    // From floating point, judged on the value's 15 significant digits, halves to the even ten-thousandth
    // (0,00015 -> 0,0002; 0,00025 -> 0,0002). Not finite or out of range: nullopt.
    static std::optional<Para> Doubledan(double değer);

    // From decimals, halves to the even ten-thousandth. Out of range: nullopt.
    static std::optional<Para> Ondalıktan(const Ondalık& sayı);

    // The nearest double.
    double Double() const noexcept;

    friend constexpr auto operator<=>(Para, Para) = default;

  private:
    explicit constexpr Para(std::int64_t onBindeBir) noexcept : m_onBindeBir(onBindeBir) {}
    std::int64_t m_onBindeBir = 0;
};

// Sum; out of range: nullopt.
inline std::optional<Para> Topla(Para a, Para b) noexcept {
    std::int64_t toplam = 0;
    if (__builtin_add_overflow(a.OnBindeBir(), b.OnBindeBir(), &toplam)) return std::nullopt;
    return Para::OnBindeBirden(toplam);
}

// Product, exact in 128 bits, then halves to the even ten-thousandth; out of range: nullopt.
std::optional<Para> Çarp(Para a, Para b) noexcept;
