// Reading through driver manager and driver beside the bare library and beside Debian's SQLite ODBC driver, all on one
// file; and one product's rows out of a large file beside a small one.
#include <sqlext.h>
#include <sqlite3.h>

#include <QDate>
#include <QFile>
#include <QTemporaryDir>
#include <cstdlib>
#include <cstring>
#include <string>

#include "BuyukVeri.h"
#include "Cift.h"
#include "VeriBaglantisi.h"
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

// A connection through the driver manager, the way the program uses it: one statement at a time, values as text.
class Odbc {
  public:
    explicit Odbc(std::string tanım) {
        SQLAllocEnv(&m_ortam);
        SQLAllocConnect(m_ortam, &m_bağlantı);
        const SQLRETURN sonuç =
            SQLDriverConnect(m_bağlantı, nullptr, Metin(tanım), SQL_NTS, nullptr, 0, nullptr, SQL_DRIVER_NOPROMPT);
        Başarmalı(SQL_SUCCEEDED(sonuç), "Bağlantı");
    }
    ~Odbc() {
        SQLDisconnect(m_bağlantı);
        SQLFreeConnect(m_bağlantı);
        SQLFreeEnv(m_ortam);
    }

    // Reads every row's three columns; the number of rows.
    int Oku(std::string sorgu) {
        SQLHSTMT deyim = nullptr;
        SQLAllocStmt(m_bağlantı, &deyim);
        Başarmalı(SQLExecDirect(deyim, Metin(sorgu), SQLINTEGER(sorgu.size())) == SQL_SUCCESS, "Sorgu");
        char tampon[255];
        SQLLEN uzunluk = 0;
        int satır = 0;
        for (; SQLFetch(deyim) == SQL_SUCCESS; ++satır)
            for (SQLUSMALLINT sütun = 1; sütun <= 3; ++sütun)
                SQLGetData(deyim, sütun, SQL_C_CHAR, tampon, sizeof tampon, &uzunluk);
        SQLFreeStmt(deyim, SQL_DROP);
        benchmark::DoNotOptimize(tampon);
        return satır;
    }

  private:
    static SQLCHAR* Metin(std::string& metin) { return reinterpret_cast<SQLCHAR*>(metin.data()); }

    SQLHENV m_ortam = nullptr;
    SQLHDBC m_bağlantı = nullptr;
};

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

std::string ÜrünSorgusu() {
    const QString grup = BüyükGrupAdı(SeçilenÜrün / BÜYÜK_GRUBUN_ÜRÜNÜ);
    return (QString::fromUtf8(OkunanSütunlar) + " WHERE UrunGrubu= '" + grup + "' AND UrunAdi= '" +
            BüyükÜrünAdı(SeçilenÜrün) + "' ORDER BY KullanilanMalzemeAdi ASC")
        .toStdString();
}

std::string BüyükDosya(const QTemporaryDir& klasör, int satır) {
    const QString yol = klasör.filePath(QString::number(satır) + ".vtb");
    VeriDosyasıYap(yol, [satır](VeriBağlantısı& veri) { BüyükVeriYaz(veri, satır, QDate(2024, 1, 31)); });
    return yol.toStdString();
}

std::string BizimTanım(const std::string& yol) {
    return "DRIVER={Microsoft Access Driver (*.mdb)};DBQ=" + yol + ";UID=Admin;PWD=Kumsaldaki";
}

ÖlçümYüzü OdbcOkuma(const std::string& tanım, const std::string& sorgu, int beklenen) {
    return [=](benchmark::State& durum) {
        Odbc odbc(tanım);
        for (auto _ : durum) Başarmalı(odbc.Oku(sorgu) == beklenen, "Okuma");
    };
}

ÖlçümYüzü ÇıplakOkuma(const std::string& yol) {
    return [=](benchmark::State& durum) {
        sqlite3* vt = nullptr;
        Başarmalı(sqlite3_open_v2(yol.c_str(), &vt, SQLITE_OPEN_READWRITE, nullptr) == SQLITE_OK, "Açma");
        for (auto _ : durum) Başarmalı(ÇıplakOku(vt, OkunanSütunlar) == OkunanSatır, "Okuma");
        sqlite3_close(vt);
    };
}

}  // namespace

int main(int argc, char** argv) {
    SürücüKlasörünüAyarla(VARNEK_BIN);
    const QTemporaryDir klasör;
    const std::string küçük = BüyükDosya(klasör, 1'000);
    const std::string orta = BüyükDosya(klasör, OkunanSatır);
    const std::string büyük = BüyükDosya(klasör, 1'000'000);
    const std::string debian = "DRIVER=" SQLITE_ODBC ";Database=" + orta;

    ÇiftEkle("300.000 satır, çıplak SQLite'a göre", 1.3, OdbcOkuma(BizimTanım(orta), OkunanSütunlar, OkunanSatır),
             ÇıplakOkuma(orta));
    ÇiftEkle("300.000 satır, libsqliteodbc'ye göre", 1.0, OdbcOkuma(BizimTanım(orta), OkunanSütunlar, OkunanSatır),
             OdbcOkuma(debian, OkunanSütunlar, OkunanSatır));
    ÇiftEkle("ürün seçmek, 1.000.000 satırda 1.000 satıra göre", 1.2,
             OdbcOkuma(BizimTanım(büyük), ÜrünSorgusu(), BÜYÜK_ÜRÜNÜN_MALZEMESİ),
             OdbcOkuma(BizimTanım(küçük), ÜrünSorgusu(), BÜYÜK_ÜRÜNÜN_MALZEMESİ));
    return ÇiftleriÖlç(argc, argv);
}
