#include "BaglantiMetni.h"

#include "Hata.h"
#include "Utf8.h"

#include <odbcinst.h>

#include <array>
#include <cstring>

namespace Motor {

namespace {

std::string_view Kırp(std::string_view metin) {
    const std::size_t ilk = metin.find_first_not_of(" \t\r\n");
    if (ilk == std::string_view::npos) return {};
    return metin.substr(ilk, metin.find_last_not_of(" \t\r\n") - ilk + 1);
}

// Takes a value in braces off the front of `metin`.
std::string SüslüDeğerAl(std::string_view& metin) {
    std::string değer;
    std::size_t yer = 1;
    for (; yer < metin.size(); ++yer) {
        if (metin[yer] == '}' && (yer + 1 == metin.size() || metin[yer + 1] != '}')) break;
        if (metin[yer] == '}') ++yer;
        değer += metin[yer];
    }
    const std::size_t ayraç = metin.find(';', yer);
    metin.remove_prefix(ayraç == std::string_view::npos ? metin.size() : ayraç + 1);
    return değer;
}

std::string DüzDeğerAl(std::string_view& metin) {
    const std::size_t ayraç = metin.find(';');
    std::string değer(Kırp(metin.substr(0, ayraç)));
    metin.remove_prefix(ayraç == std::string_view::npos ? metin.size() : ayraç + 1);
    return değer;
}

}  // namespace

Öznitelikler Öznitelikler::BağlantıMetninden(std::string_view metin) {
    Öznitelikler öznitelikler;
    while (!metin.empty()) {
        const std::size_t eşit = metin.find_first_of("=;");
        if (eşit == std::string_view::npos) break;
        const std::string anahtar(Kırp(metin.substr(0, eşit)));
        const bool değersiz = metin[eşit] == ';';
        metin.remove_prefix(eşit + 1);
        if (değersiz) continue;
        metin.remove_prefix(std::min(metin.find_first_not_of(' '), metin.size()));
        öznitelikler.Ekle(anahtar, metin.starts_with('{') ? SüslüDeğerAl(metin) : DüzDeğerAl(metin));
    }
    return öznitelikler;
}

Öznitelikler Öznitelikler::Listeden(const char* liste) {
    Öznitelikler öznitelikler;
    while (liste && *liste) {
        const std::string_view çift(liste);
        const std::size_t eşit = çift.find('=');
        if (eşit != std::string_view::npos)
            öznitelikler.Ekle(std::string(Kırp(çift.substr(0, eşit))), std::string(çift.substr(eşit + 1)));
        liste += çift.size() + 1;
    }
    return öznitelikler;
}

const std::string* Öznitelikler::Bul(std::string_view anahtar) const {
    for (const auto& [ad, değer] : m_çiftler)
        if (AsciiEşit(ad, anahtar)) return &değer;
    return nullptr;
}

std::string Öznitelikler::Değer(std::string_view anahtar) const {
    const std::string* bulunan = Bul(anahtar);
    return bulunan ? *bulunan : std::string();
}

void Öznitelikler::Ekle(std::string anahtar, std::string değer) {
    m_çiftler.emplace_back(std::move(anahtar), std::move(değer));
}

std::string VeriKaynağıDeğeri(const std::string& veriKaynağı, const std::string& anahtar) {
    std::array<char, 4096> değer{};
    if (!veriKaynağı.empty())
        SQLGetPrivateProfileString(veriKaynağı.c_str(), anahtar.c_str(), "", değer.data(),
                                   static_cast<int>(değer.size()), "odbc.ini");
    if (std::strlen(değer.data()) + 1 == değer.size())  // cut, most likely
        throw Hata(Durum::Bağlanamadı, "Veri kaynağının \"" + anahtar + "\" değeri çok uzun.");
    return değer.data();
}

}  // namespace Motor
