// Reading through driver manager and driver beside the bare library and beside Debian's SQLite ODBC driver, all on one
// file; and one product's rows out of a large file beside a small one.
#include <sqlite3.h>

#include <QDate>
#include <QTemporaryDir>
#include <cstdlib>
#include <cstring>

#include "BuyukVeri.h"
#include "Cift.h"
#include "Deyimler.h"
#include "OdbcSurucu.h"
#include "OdbcTanitici.h"
#include "VeriDosyasi.h"

namespace {

constexpr int OkunanSatır = 300'000;
constexpr int SeçilenÜrün = 25;  // of the small file's 50
constexpr const char* OkunanSütunlar =
    "SELECT KullanilanMalzemeMiktari, KullanilanMalzemeAdi, KullanilanMalzemeFiyati FROM UrunMalzemeTablosu";

void Başarmalı(bool başardı, const char* ne) {
    if (başardı) return;
    std::fprintf(stderr, "%s başarılamadı.\n", ne);
    std::exit(2);
}

// Reads every row's columns through the driver manager, the way the program does; the number of rows.
int OdbcOku(OdbcBağlantısı& bağlantı, const QString& sorgu) {
    int sayı = 0;
    const OdbcSonucu sonuç = bağlantı.Oku(sorgu, [&sayı](OdbcSatırı& satır) {
        for (int sütun = 1; sütun <= satır.SütunSayısı(); ++sütun) benchmark::DoNotOptimize(satır.Baytlar(sütun));
        ++sayı;
        return true;
    });
    Başarmalı(sonuç.Başarılı(), "Sorgu");
    return sayı;
}

// The same with nothing but the library: step, text of each column, copy.
int ÇıplakOku(sqlite3* vt, const char* sorgu) {
    sqlite3_stmt* deyim = nullptr;
    Başarmalı(sqlite3_prepare_v2(vt, sorgu, -1, &deyim, nullptr) == SQLITE_OK, "Çıplak sorgu");
    char tampon[255];
    int satır = 0;
    for (; sqlite3_step(deyim) == SQLITE_ROW; ++satır) {
        for (int sütun = 0; sütun < 3; ++sütun) {
            const unsigned char* metin = sqlite3_column_text(deyim, sütun);
            const int boy = sqlite3_column_bytes(deyim, sütun);
            std::memcpy(tampon, metin, std::size_t(boy) + 1);
        }
        benchmark::DoNotOptimize(tampon);
    }
    sqlite3_finalize(deyim);
    return satır;
}

QString ÜrünSorgusu() {
    return Deyimler::KullanılanMalzemeler(BüyükGrupAdı(SeçilenÜrün / BÜYÜK_GRUBUN_ÜRÜNÜ), BüyükÜrünAdı(SeçilenÜrün));
}

QString BüyükDosya(const QTemporaryDir& klasör, int satır) {
    const QString yol = klasör.filePath(QString::number(satır) + ".vtb");
    VeriDosyasıYap(yol, [satır](VeriYazıcısı& veri) { BüyükVeriYaz(veri, satır, QDate(2024, 1, 31)); });
    return yol;
}

ÖlçümYüzü OdbcOkuma(const QString& bağlantıMetni, const QString& sorgu, int beklenen) {
    return [=](benchmark::State& durum) {
        OdbcBağlantısı bağlantı;
        Başarmalı(bağlantı.Aç(bağlantıMetni).Başarılı(), "Bağlantı");
        for (auto _ : durum) Başarmalı(OdbcOku(bağlantı, sorgu) == beklenen, "Okuma");
    };
}

ÖlçümYüzü ÇıplakOkuma(const QString& yol) {
    return [=](benchmark::State& durum) {
        sqlite3* vt = nullptr;
        Başarmalı(sqlite3_open_v2(yol.toUtf8(), &vt, SQLITE_OPEN_READWRITE, nullptr) == SQLITE_OK, "Açma");
        for (auto _ : durum) Başarmalı(ÇıplakOku(vt, OkunanSütunlar) == OkunanSatır, "Okuma");
        sqlite3_close(vt);
    };
}

}  // namespace

int main(int argc, char** argv) {
    SürücüKlasörünüAyarla(VARNEK_BIN);
    const QTemporaryDir klasör;
    const QString küçük = BüyükDosya(klasör, 1'000);
    const QString orta = BüyükDosya(klasör, OkunanSatır);
    const QString büyük = BüyükDosya(klasör, 1'000'000);
    const QString debian = QStringLiteral("DRIVER=" SQLITE_ODBC ";Database=") + orta;

    ÇiftEkle("300.000 satır, çıplak SQLite'a göre", 1.3, OdbcOkuma(BağlantıMetni(orta), OkunanSütunlar, OkunanSatır),
             ÇıplakOkuma(orta));
    ÇiftEkle("300.000 satır, libsqliteodbc'ye göre", 1.0, OdbcOkuma(BağlantıMetni(orta), OkunanSütunlar, OkunanSatır),
             OdbcOkuma(debian, OkunanSütunlar, OkunanSatır));
    ÇiftEkle("ürün seçmek, 1.000.000 satırda 1.000 satıra göre", 1.2,
             OdbcOkuma(BağlantıMetni(büyük), ÜrünSorgusu(), BÜYÜK_ÜRÜNÜN_MALZEMESİ),
             OdbcOkuma(BağlantıMetni(küçük), ÜrünSorgusu(), BÜYÜK_ÜRÜNÜN_MALZEMESİ));
    return ÇiftleriÖlç(argc, argv);
}
