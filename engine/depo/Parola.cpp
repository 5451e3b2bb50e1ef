#include "Parola.h"

#include "Hata.h"
#include "Katalog.h"

#include <QByteArray>
#include <QCryptographicHash>
#include <QMessageAuthenticationCode>
#include <QRandomGenerator>

namespace Motor {

namespace {

constexpr std::int64_t YeniTekrar = 10000;  // about 10 ms at each connecting
constexpr std::int64_t AzamiTekrar = 1000000;
constexpr qsizetype TuzBoyu = 16;
constexpr std::size_t ÖzetBoyu = 32;

QByteArray HmacSha256(QMessageAuthenticationCode& hmac, const QByteArray& ileti) {
    hmac.reset();
    hmac.addData(ileti);
    return hmac.result();
}

// PBKDF2 with HMAC-SHA256, one block.
QByteArray Özet(std::string_view parola, QByteArray tuz, std::int64_t tekrar) {
    QMessageAuthenticationCode hmac(QCryptographicHash::Sha256,
                                    QByteArray(parola.data(), static_cast<qsizetype>(parola.size())));
    QByteArray ara = HmacSha256(hmac, tuz.append("\0\0\0\1", 4));
    QByteArray özet = ara;
    for (std::int64_t i = 1; i < tekrar; ++i) {
        ara = HmacSha256(hmac, ara);
        for (qsizetype k = 0; k < özet.size(); ++k) özet[k] = static_cast<char>(özet[k] ^ ara[k]);
    }
    return özet;
}

std::string_view Görünüm(const QByteArray& baytlar) {
    return {baytlar.constData(), static_cast<std::size_t>(baytlar.size())};
}

std::string Tablo() {
    return Tırnakla(Katalog::GizliTablo);
}

}  // namespace

void ParolayıYaz(sqlite3* vt, std::string_view parola) {
    QByteArray tuz(TuzBoyu, Qt::Uninitialized);
    QRandomGenerator::system()->generate(tuz.begin(), tuz.end());
    SqliteYürüt(vt, std::string(Katalog::GizliTabloSql).c_str());
    SqliteDeyimi ekle(vt, "INSERT INTO " + Tablo() + " VALUES (?1, ?2, ?3)");
    ekle.BağlaBayt(1, Görünüm(tuz));
    ekle.Bağla(2, YeniTekrar);
    ekle.BağlaBayt(3, Görünüm(Özet(parola, tuz, YeniTekrar)));
    ekle.Adım();
}

void ParolaBilgisiBozuk() {
    throw Hata(Durum::Bağlanamadı, "Veri dosyası bozulmuş: parola bilgisi okunamıyor. Lütfen yedeğinizi geri yükleyin.",
               SQLITE_CORRUPT);
}

bool ParolaDoğru(sqlite3* vt, std::string_view parola) {
    SqliteDeyimi oku(vt, "SELECT Tuz, Tekrar, Ozet FROM " + Tablo());
    if (!oku.Adım()) ParolaBilgisiBozuk();
    const QByteArray tuz(oku.Bayt(0).data(), static_cast<qsizetype>(oku.Bayt(0).size()));
    const std::int64_t tekrar = oku.TamSayı(1);
    const std::string saklanan(oku.Bayt(2));
    const bool olağan = tuz.size() == TuzBoyu && tekrar >= 1 && tekrar <= AzamiTekrar && saklanan.size() == ÖzetBoyu;
    if (!olağan || oku.Adım()) ParolaBilgisiBozuk();
    return Görünüm(Özet(parola, tuz, tekrar)) == saklanan;
}

}  // namespace Motor
