#include "Parola.h"

#include "Hata.h"
#include "Katalog.h"
#include "Sha256.h"

#include <algorithm>
#include <random>
#include <string>

namespace Motor {

namespace {

constexpr std::int64_t YeniTekrar = 10000;  // a few ms at each connecting
constexpr std::int64_t AzamiTekrar = 1000000;
constexpr std::size_t TuzBoyu = 16;
constexpr std::size_t ÖzetBoyu = 32;

std::string Özet(std::string_view parola, std::string_view tuz, std::int64_t tekrar) {
    const Sha256::Özet özet = ParolaÖzeti(parola, tuz, tekrar);
    return {özet.begin(), özet.end()};
}

std::string Tablo() {
    return Tırnakla(Katalog::GizliTablo);
}

}  // namespace

void ParolayıYaz(sqlite3* vt, std::string_view parola) {
    std::string tuz(TuzBoyu, '\0');
    std::random_device rastgele;
    std::generate(tuz.begin(), tuz.end(), [&rastgele] { return static_cast<char>(rastgele()); });
    SqliteYürüt(vt, std::string(Katalog::GizliTabloSql).c_str());
    SqliteDeyimi ekle(vt, "INSERT INTO " + Tablo() + " VALUES (?1, ?2, ?3)");
    ekle.BağlaBayt(1, tuz);
    ekle.Bağla(2, YeniTekrar);
    ekle.BağlaBayt(3, Özet(parola, tuz, YeniTekrar));
    ekle.Adım();
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
