// Taking an Access file of 120,000 used rows over, beside reading its tables with mdb-export and writing the same rows
// with nothing but the database library.
#include <sqlite3.h>

#include <QDate>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <cstdlib>
#include <vector>

#include "AccessUreteci.h"
#include "BuyukVeri.h"
#include "Cift.h"

namespace {

constexpr int SATIR = 120'000;
constexpr int MALZEME = SATIR / 10;
constexpr int ÜRÜN = SATIR / BÜYÜK_ÜRÜNÜN_MALZEMESİ;
constexpr double İLK_GÜN = 45'000;

void Başarmalı(bool başardı, const char* ne) {
    if (başardı) return;
    std::fprintf(stderr, "%s başarılamadı.\n", ne);
    std::exit(2);
}

QString Grup(int ürün) {
    return BüyükGrupAdı(ürün / BÜYÜK_GRUBUN_ÜRÜNÜ);
}

QString Miktar(int satır) {
    return QStringLiteral("%1,%2 Adet").arg(satır % 90 + 1).arg(satır % 100, 2, 10, QLatin1Char('0'));
}

std::string Hücre(const QString& metin) {
    return AccessÜreteci::Metin(metin.toStdU16String());
}

std::string ErişimDosyası(const QTemporaryDir& klasör) {
    AccessÜreteci üreteç;
    int sıra = 0;
    using Satır = AccessÜreteci::Satır;
    const auto döndür = [&sıra](int kaç, const std::function<Satır(int)>& yap) {
        sıra = 0;
        return [&sıra, kaç, yap]() -> std::optional<Satır> {
            if (sıra == kaç) return std::nullopt;
            return yap(sıra++);
        };
    };
    üreteç.SatırlarıKoy("MalzemeTablosu", döndür(MALZEME, [](int i) {
                            return Satır{Hücre(BüyükMalzemeAdı(i)), AccessÜreteci::Para(i * 7 + 12'345)};
                        }));
    üreteç.SatırlarıKoy("UrunTablosu", döndür(ÜRÜN, [](int i) {
                            return Satır{Hücre(Grup(i)),           Hücre(BüyükÜrünAdı(i)),    AccessÜreteci::Ham(12.5),
                                         AccessÜreteci::Ham(20.0), AccessÜreteci::Ham(-3.25), AccessÜreteci::Ham(4.75)};
                        }));
    üreteç.SatırlarıKoy(
        "UrunMalzemeTablosu", döndür(SATIR, [](int i) {
            const int ürün = i / BÜYÜK_ÜRÜNÜN_MALZEMESİ;
            const int malzeme = static_cast<int>(std::int64_t{i} * 7919 % MALZEME);
            return Satır{
                AccessÜreteci::Ham(İLK_GÜN + ürün % 250), Hücre(Grup(ürün)), Hücre(BüyükÜrünAdı(ürün)),
                Hücre(BüyükMalzemeAdı(malzeme)),          Hücre(Miktar(i)),  AccessÜreteci::Para(malzeme * 7 + 12'345)};
        }));
    std::string yol = klasör.filePath(QStringLiteral("ozgun.mdb")).toStdString();
    üreteç.Yaz(yol);
    return yol;
}

void Çalıştır(const QString& program, const QStringList& sözler, const QString& çıktı) {
    QProcess süreç;
    süreç.setStandardOutputFile(çıktı);
    süreç.start(program, sözler);
    Başarmalı(süreç.waitForFinished(-1) && süreç.exitCode() == 0, "Süreç");
}

void Alma(benchmark::State& durum, const QTemporaryDir& klasör, const std::string& özgün) {
    const QString dosya = klasör.filePath(QStringLiteral("Varnek.vtb"));
    for (auto _ : durum) {
        durum.PauseTiming();
        QFile::remove(dosya);
        QFile::remove(dosya + QStringLiteral(".access"));
        Başarmalı(QFile::copy(QString::fromStdString(özgün), dosya), "Kopyalama");
        durum.ResumeTiming();
        Çalıştır(QStringLiteral(VARNEK_BIN "/varnek-veri"), {QStringLiteral("erisimden-al"), dosya},
                 QProcess::nullDevice());
    }
}

// Rows that are in memory already, one prepared statement each, one transaction, no index.
void Ekle(sqlite3* vt, const char* sql, int kaç, const std::function<void(sqlite3_stmt*, int)>& bağla) {
    sqlite3_stmt* deyim = nullptr;
    Başarmalı(sqlite3_prepare_v2(vt, sql, -1, &deyim, nullptr) == SQLITE_OK, "Hazırlama");
    for (int i = 0; i < kaç; ++i) {
        bağla(deyim, i);
        Başarmalı(sqlite3_step(deyim) == SQLITE_DONE && sqlite3_reset(deyim) == SQLITE_OK, "Ekleme");
    }
    sqlite3_finalize(deyim);
}

struct Metinler {
    std::vector<std::string> Gruplar, Ürünler, Malzemeler, Miktarlar;
};

void ÇıplakEkle(const std::string& yol, const Metinler& m) {
    std::remove(yol.c_str());
    sqlite3* vt = nullptr;
    Başarmalı(sqlite3_open(yol.c_str(), &vt) == SQLITE_OK, "Açma");
    sqlite3_exec(vt,
                 "CREATE TABLE U (A TEXT, B TEXT, C REAL, D REAL, E REAL, F REAL); CREATE TABLE M (A TEXT, B INTEGER);"
                 "CREATE TABLE K (A INTEGER, B TEXT, C TEXT, D TEXT, E TEXT, F INTEGER); BEGIN",
                 nullptr, nullptr, nullptr);
    const auto metin = [](sqlite3_stmt* deyim, int sütun, const std::string& değer) {
        sqlite3_bind_text(deyim, sütun, değer.data(), static_cast<int>(değer.size()), SQLITE_STATIC);
    };
    Ekle(vt, "INSERT INTO M VALUES (?1, ?2)", MALZEME, [&](sqlite3_stmt* deyim, int i) {
        metin(deyim, 1, m.Malzemeler[static_cast<std::size_t>(i)]);
        sqlite3_bind_int64(deyim, 2, i);
    });
    Ekle(vt, "INSERT INTO U VALUES (?1, ?2, 12.5, 20, -3.25, 4.75)", ÜRÜN, [&](sqlite3_stmt* deyim, int i) {
        metin(deyim, 1, m.Gruplar[static_cast<std::size_t>(i)]);
        metin(deyim, 2, m.Ürünler[static_cast<std::size_t>(i)]);
    });
    Ekle(vt, "INSERT INTO K VALUES (20240131, ?1, ?2, ?3, ?4, ?5)", SATIR, [&](sqlite3_stmt* deyim, int i) {
        const auto ürün = static_cast<std::size_t>(i / BÜYÜK_ÜRÜNÜN_MALZEMESİ);
        metin(deyim, 1, m.Gruplar[ürün]);
        metin(deyim, 2, m.Ürünler[ürün]);
        metin(deyim, 3, m.Malzemeler[static_cast<std::size_t>(std::int64_t{i} * 7919 % MALZEME)]);
        metin(deyim, 4, m.Miktarlar[static_cast<std::size_t>(i)]);
        sqlite3_bind_int64(deyim, 5, i);
    });
    Başarmalı(sqlite3_exec(vt, "COMMIT", nullptr, nullptr, nullptr) == SQLITE_OK, "Onay");
    sqlite3_close(vt);
}

void Karşılık(benchmark::State& durum, const QTemporaryDir& klasör, const std::string& özgün,
              const Metinler& metinler) {
    for (auto _ : durum) {
        for (const char* tablo : {"UrunTablosu", "MalzemeTablosu", "UrunMalzemeTablosu"}) {
            Çalıştır(QStringLiteral("mdb-export"), {QString::fromStdString(özgün), QLatin1String(tablo)},
                     klasör.filePath(QLatin1String(tablo)));
        }
        ÇıplakEkle(klasör.filePath(QStringLiteral("ciplak")).toStdString(), metinler);
    }
}

}  // namespace

int main(int argc, char** argv) {
    const QTemporaryDir klasör;
    const std::string özgün = ErişimDosyası(klasör);
    Metinler metinler;
    for (int i = 0; i < MALZEME; ++i) metinler.Malzemeler.push_back(BüyükMalzemeAdı(i).toStdString());
    for (int i = 0; i < SATIR; ++i) metinler.Miktarlar.push_back(Miktar(i).toStdString());
    for (int i = 0; i < ÜRÜN; ++i) {
        metinler.Gruplar.push_back(Grup(i).toStdString());
        metinler.Ürünler.push_back(BüyükÜrünAdı(i).toStdString());
    }
    ÇiftEkle(
        "120.000 satırlık Access dosyasını almak, mdb-export ve çıplak eklemeye göre", 3.0,
        [&](benchmark::State& durum) { Alma(durum, klasör, özgün); },
        [&](benchmark::State& durum) { Karşılık(durum, klasör, özgün, metinler); });
    return ÇiftleriÖlç(argc, argv);
}
