#include "Sha256.h"

#include <algorithm>
#include <bit>

namespace Motor {

namespace {

constexpr std::uint32_t Sabitler[64] = {
    0x428a2f98, 0x71374491, 0xb5c0fbcf, 0xe9b5dba5, 0x3956c25b, 0x59f111f1, 0x923f82a4, 0xab1c5ed5,
    0xd807aa98, 0x12835b01, 0x243185be, 0x550c7dc3, 0x72be5d74, 0x80deb1fe, 0x9bdc06a7, 0xc19bf174,
    0xe49b69c1, 0xefbe4786, 0x0fc19dc6, 0x240ca1cc, 0x2de92c6f, 0x4a7484aa, 0x5cb0a9dc, 0x76f988da,
    0x983e5152, 0xa831c66d, 0xb00327c8, 0xbf597fc7, 0xc6e00bf3, 0xd5a79147, 0x06ca6351, 0x14292967,
    0x27b70a85, 0x2e1b2138, 0x4d2c6dfc, 0x53380d13, 0x650a7354, 0x766a0abb, 0x81c2c92e, 0x92722c85,
    0xa2bfe8a1, 0xa81a664b, 0xc24b8b70, 0xc76c51a3, 0xd192e819, 0xd6990624, 0xf40e3585, 0x106aa070,
    0x19a4c116, 0x1e376c08, 0x2748774c, 0x34b0bcb5, 0x391c0cb3, 0x4ed8aa4a, 0x5b9cca4f, 0x682e6ff3,
    0x748f82ee, 0x78a5636f, 0x84c87814, 0x8cc70208, 0x90befffa, 0xa4506ceb, 0xbef9a3f7, 0xc67178f2};

std::string_view Görünüm(const Sha256::Özet& özet) {
    return {reinterpret_cast<const char*>(özet.data()), özet.size()};
}

// A hash that has taken in the key, xored with the pad of its side.
Sha256 Başlangıç(const std::array<char, Sha256::BlokBoyu>& anahtar, char dolgu) {
    std::array<char, Sha256::BlokBoyu> blok;
    std::transform(anahtar.begin(), anahtar.end(), blok.begin(),
                   [dolgu](char bayt) { return static_cast<char>(bayt ^ dolgu); });
    Sha256 başlangıç;
    başlangıç.Ekle({blok.data(), blok.size()});
    return başlangıç;
}

}  // namespace

void Sha256::Bloğuİşle() noexcept {
    std::uint32_t w[64];
    for (std::size_t i = 0; i < 16; ++i)
        w[i] = std::uint32_t{m_blok[4 * i]} << 24 | std::uint32_t{m_blok[4 * i + 1]} << 16 |
               std::uint32_t{m_blok[4 * i + 2]} << 8 | m_blok[4 * i + 3];
    for (std::size_t i = 16; i < 64; ++i) {
        const std::uint32_t s0 = std::rotr(w[i - 15], 7) ^ std::rotr(w[i - 15], 18) ^ w[i - 15] >> 3;
        const std::uint32_t s1 = std::rotr(w[i - 2], 17) ^ std::rotr(w[i - 2], 19) ^ w[i - 2] >> 10;
        w[i] = w[i - 16] + s0 + w[i - 7] + s1;
    }
    auto [a, b, c, d, e, f, g, h] = m_durum;
    for (std::size_t i = 0; i < 64; ++i) {
        const std::uint32_t s1 = std::rotr(e, 6) ^ std::rotr(e, 11) ^ std::rotr(e, 25);
        const std::uint32_t bir = h + s1 + ((e & f) ^ (~e & g)) + Sabitler[i] + w[i];
        const std::uint32_t s0 = std::rotr(a, 2) ^ std::rotr(a, 13) ^ std::rotr(a, 22);
        const std::uint32_t iki = s0 + ((a & b) ^ (a & c) ^ (b & c));
        h = g, g = f, f = e, e = d + bir, d = c, c = b, b = a, a = bir + iki;
    }
    const std::uint32_t sonuç[] = {a, b, c, d, e, f, g, h};
    for (std::size_t i = 0; i < m_durum.size(); ++i) m_durum[i] += sonuç[i];
}

void Sha256::Ekle(std::string_view baytlar) noexcept {
    for (const char bayt : baytlar) {
        m_blok[m_boy++ % BlokBoyu] = static_cast<std::uint8_t>(bayt);
        if (m_boy % BlokBoyu == 0) Bloğuİşle();
    }
}

Sha256::Özet Sha256::Bitir() noexcept {
    const std::uint64_t bit = m_boy * 8;
    Ekle("\x80");
    while (m_boy % BlokBoyu != BlokBoyu - 8) Ekle({"\0", 1});
    for (int kaydırma = 56; kaydırma >= 0; kaydırma -= 8) {
        const auto bayt = static_cast<char>(bit >> kaydırma);
        Ekle({&bayt, 1});
    }
    Özet özet;
    for (std::size_t i = 0; i < özet.size(); ++i)
        özet[i] = static_cast<std::uint8_t>(m_durum[i / 4] >> (24 - i % 4 * 8));
    return özet;
}

Sha256::Özet ParolaÖzeti(std::string_view parola, std::string_view tuz, std::int64_t tekrar) noexcept {
    std::array<char, Sha256::BlokBoyu> anahtar{};
    if (parola.size() > anahtar.size()) {
        Sha256 uzun;
        uzun.Ekle(parola);
        Görünüm(uzun.Bitir()).copy(anahtar.data(), anahtar.size());
    } else {
        parola.copy(anahtar.data(), anahtar.size());
    }
    const Sha256 iç = Başlangıç(anahtar, 0x36);
    const Sha256 dış = Başlangıç(anahtar, 0x5c);
    const auto bitir = [&dış](Sha256 içteki) {
        Sha256 dıştaki = dış;
        dıştaki.Ekle(Görünüm(içteki.Bitir()));
        return dıştaki.Bitir();
    };
    Sha256 ilk = iç;
    ilk.Ekle(tuz);
    ilk.Ekle({"\0\0\0\1", 4});
    Sha256::Özet ara = bitir(ilk);
    Sha256::Özet özet = ara;
    for (std::int64_t i = 1; i < tekrar; ++i) {
        Sha256 sonraki = iç;
        sonraki.Ekle(Görünüm(ara));
        ara = bitir(sonraki);
        for (std::size_t k = 0; k < özet.size(); ++k) özet[k] ^= ara[k];
    }
    return özet;
}

}  // namespace Motor
