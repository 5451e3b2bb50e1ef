#include "Parola.h"

#include "Hata.h"
#include "DosyaSemasi.h"

#include <nettle/pbkdf2.h>
#include <nettle/sha2.h>

#include <algorithm>
#include <array>
#include <random>
#include <string>

namespace Motor {

namespace {

constexpr std::int64_t YeniTekrar = 10000;  // a few ms at each connecting
constexpr std::int64_t AzamiTekrar = 1000000;
constexpr std::size_t TuzBoyu = 16;
constexpr std::size_t ÖzetBoyu = 32;

// PBKDF2 with HMAC-SHA256. The library asks for no memory, so nothing in it can fail.
std::string Özet(std::string_view parola, std::string_view tuz, std::int64_t tekrar) {
    const auto baytlar = [](std::string_view metin) { return reinterpret_cast<const std::uint8_t*>(metin.data()); };
    std::string özet(ÖzetBoyu, '\0');
    pbkdf2_hmac_sha256(parola.size(), baytlar(parola), static_cast<unsigned>(tekrar), tuz.size(), baytlar(tuz),
                       özet.size(), reinterpret_cast<std::uint8_t*>(özet.data()));
    return özet;
}

std::string Tablo() {
    return Tırnakla(DosyaŞeması::GizliTablo);
}

void SatırıEkle(sqlite3* vt, std::string_view parola) {
    std::string tuz(TuzBoyu, '\0');
    std::random_device rastgele;
    std::generate(tuz.begin(), tuz.end(), [&rastgele] { return static_cast<char>(rastgele()); });
    SqliteDeyimi ekle(vt, "INSERT INTO " + Tablo() + " VALUES (?1, ?2, ?3)");
    ekle.BağlaBayt(1, tuz);
    ekle.Bağla(2, YeniTekrar);
    ekle.BağlaBayt(3, Özet(parola, tuz, YeniTekrar));
    ekle.Adım();
}

}  // namespace

void ParolayıYaz(sqlite3* vt, std::string_view parola) {
    SqliteYürüt(vt, std::string(DosyaŞeması::GizliTabloSql).c_str());
    SatırıEkle(vt, parola);
}

void ParolayıYenile(sqlite3* vt, std::string_view parola) {
    SqliteYürüt(vt, ("DELETE FROM " + Tablo()).c_str());
    SatırıEkle(vt, parola);
}

std::string DosyaDamgası(sqlite3* vt) {
    constexpr std::size_t damgaBoyu = 8;
    constexpr std::string_view onaltılık = "0123456789abcdef";
    SqliteDeyimi oku(vt, "SELECT Tuz FROM " + Tablo());
    if (!oku.Adım()) ParolaBilgisiBozuk();
    const std::string_view tuz = oku.Bayt(0);
    std::array<std::uint8_t, damgaBoyu> özet{};
    sha256_ctx hesap;
    sha256_init(&hesap);
    sha256_update(&hesap, tuz.size(), reinterpret_cast<const std::uint8_t*>(tuz.data()));
    sha256_digest(&hesap, özet.size(), özet.data());
    std::string damga;
    for (const std::uint8_t bayt : özet) damga.append({onaltılık[bayt >> 4], onaltılık[bayt & 15]});
    return damga;
}

void ParolaBilgisiBozuk() {
    throw Hata(Durum::Bağlanamadı, "Veri dosyası bozulmuş: parola bilgisi okunamıyor. Lütfen yedeğinizi geri yükleyin.",
               SQLITE_CORRUPT);
}

bool ParolaDoğru(sqlite3* vt, std::string_view parola) {
    SqliteDeyimi oku(vt, "SELECT Tuz, Tekrar, Ozet FROM " + Tablo());
    if (!oku.Adım()) ParolaBilgisiBozuk();
    const std::string tuz(oku.Bayt(0));
    const std::int64_t tekrar = oku.TamSayı(1);
    const std::string saklanan(oku.Bayt(2));
    const bool olağan = tuz.size() == TuzBoyu && tekrar >= 1 && tekrar <= AzamiTekrar && saklanan.size() == ÖzetBoyu;
    if (!olağan || oku.Adım()) ParolaBilgisiBozuk();
    return Özet(parola, tuz, tekrar) == saklanan;
}

}  // namespace Motor
