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
    return std::string("\"") + Katalog::GizliTablo + "\"";
}

}  // namespace

void ParolayıYaz(sqlite3* vt, std::string_view parola) {
    QByteArray tuz(16, Qt::Uninitialized);
    QRandomGenerator::system()->generate(tuz.begin(), tuz.end());
    SqliteYürüt(vt, ("CREATE TABLE " + Tablo() + " (Tuz BLOB, Tekrar INTEGER, Ozet BLOB)").c_str());
    SqliteDeyimi ekle(vt, "INSERT INTO " + Tablo() + " VALUES (?1, ?2, ?3)");
    ekle.BağlaBayt(1, Görünüm(tuz));
    ekle.Bağla(2, YeniTekrar);
    ekle.BağlaBayt(3, Görünüm(Özet(parola, tuz, YeniTekrar)));
    ekle.Adım();
}

bool ParolaDoğru(sqlite3* vt, std::string_view parola) {
    SqliteDeyimi oku(vt, "SELECT Tuz, Tekrar, Ozet FROM " + Tablo());
    if (!oku.Adım()) throw Hata(Durum::Bağlanamadı, "Veri dosyasının parola bilgisi bozuk.");
    const std::string_view tuz = oku.Bayt(0);
    const std::int64_t tekrar = oku.TamSayı(1);
    if (tekrar < 1 || tekrar > AzamiTekrar) throw Hata(Durum::Bağlanamadı, "Veri dosyasının parola bilgisi bozuk.");
    const QByteArray özet = Özet(parola, QByteArray(tuz.data(), static_cast<qsizetype>(tuz.size())), tekrar);
    return Görünüm(özet) == oku.Bayt(2);
}

}  // namespace Motor
