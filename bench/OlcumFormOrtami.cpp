#include "OlcumFormOrtami.h"

#include <dlfcn.h>
#include <sql.h>

#include <QDate>
#include <QDir>
#include <QFile>
#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "BuyukVeri.h"
#include "DegiskenModulu.h"
#include "Deyimler.h"
#include "OdbcHareketi.h"
#include "OdbcModulu.h"
#include "TurkceSira.h"

using namespace Qt::StringLiterals;

namespace {

long gönderilen = 0;

void Başarmalı(bool başardı, const QString& ne) {
    if (başardı) return;
    std::fprintf(stderr, "failed: %s\n", ne.toUtf8().constData());
    std::exit(2);
}

QString ÖlçümKlasörü() {
    return QStringLiteral(VARNEK_BIN "/../../olcum");
}

int TürkçeSıra(void*, int boyA, const void* a, int boyB, const void* b) {
    return Türkçe::Karşılaştır(std::string_view(static_cast<const char*>(a), size_t(boyA)),
                               std::string_view(static_cast<const char*>(b), size_t(boyB)));
}

void KalabalıkYaz(VeriYazıcısı& veri, int kalabalık) {
    const QString grup = ÖlçümOrtamı::KalabalıkGrup();
    const QString ürün = ÖlçümOrtamı::KalabalıkÜrün();
    veri.Çalıştır(Deyimler::ÜrünEkle(grup, ürün));
    const QString tarih = Deyimler::Tarih(QDate::currentDate());
    for (int i = 0; i < kalabalık; ++i)
        veri.Çalıştır(Deyimler::KullanılanMalzemeEkle(
            {grup, ürün, BüyükMalzemeAdı(i), u"%1,25 Adet"_s.arg(i % 300 + 1), u"%1,5075"_s.arg(i * 7 % 2500), tarih}));
}

}  // namespace

// Stands before the driver manager's own function for this program alone, to count.
extern "C" SQLRETURN SQL_API SQLExecDirect(SQLHSTMT deyim, SQLCHAR* metin, SQLINTEGER uzunluk) {
    static const auto asıl = reinterpret_cast<decltype(&SQLExecDirect)>(dlsym(RTLD_NEXT, "SQLExecDirect"));
    ++gönderilen;
    return asıl(deyim, metin, uzunluk);
}

namespace ÖlçümOrtamı {

void Kur() {
    const QDir klasör(ÖlçümKlasörü());
    Başarmalı(klasör.mkpath(u"ayar"_s), klasör.path());
    qputenv("XDG_CONFIG_HOME", klasör.filePath(u"ayar"_s).toUtf8());
    qputenv("XDG_DATA_HOME", klasör.filePath(u"ayar"_s).toUtf8());
    qputenv("ODBCINI", klasör.filePath(u"odbc.ini"_s).toUtf8());
    SürücüKlasörünüAyarla(QStringLiteral(VARNEK_BIN));
    AyarUygulamaAdı = u"Tovrek\\Varnek"_s;
}

QString VeriKlasörü(int satırSayısı, int kalabalık, int malzeme) {
    const QString klasör = ÖlçümKlasörü() + u"/%1-%2-%3"_s.arg(satırSayısı).arg(kalabalık).arg(malzeme);
    const QString dosya = klasör + u"/Varnek.vtb"_s;
    Başarmalı(QDir().mkpath(klasör), klasör);
    if (QFile::exists(dosya)) return klasör;
    std::fprintf(stderr, "making %s\n", dosya.toUtf8().constData());
    try {
        VeriDosyasıYap(dosya, [=](VeriYazıcısı& veri) {
            BüyükVeriYaz(veri, satırSayısı, QDate::currentDate(), malzeme);
            if (kalabalık > 0) KalabalıkYaz(veri, kalabalık);
        });
    } catch (const VeriHatası& hata) {
        Başarmalı(false, hata.Metin());
    }
    return klasör;
}

void Yaz(const QString& klasör, const std::function<void(VeriYazıcısı&)>& yaz) {
    OdbcBağlantısı bağlantı;
    Başarmalı(bağlantı.Aç(BağlantıMetni(klasör + u"/Varnek.vtb"_s)).Başarılı(), klasör);
    VeriYazıcısı yazıcı(bağlantı);
    OdbcHareketi hareket(bağlantı);
    Başarmalı(hareket.Başla().Başarılı(), klasör);
    yaz(yazıcı);
    Başarmalı(hareket.Onayla().Başarılı(), klasör);
}

QString KalabalıkGrup() {
    return u"KALABALIK"_s;
}
QString KalabalıkÜrün() {
    return u"Çok Malzemeli Ürün"_s;
}

void Bağlan(const QString& klasör) {
    static bool bağlı = false;
    const QString yol = klasör + u'/';
    if (bağlı && UygulamaYolu == yol) return;
    if (bağlı) ODBCBağlantısınıKapat();
    UygulamaYolu = yol;
    bağlı = ODBCBağlan();
    Başarmalı(bağlı, yol);
}

long GönderilenDeyim() {
    return gönderilen;
}

Sqlite ÇıplakAç(const QString& klasör) {
    sqlite3* vt = nullptr;
    const QByteArray dosya = QFile::encodeName(klasör + u"/Varnek.vtb"_s);
    Başarmalı(sqlite3_open_v2(dosya, &vt, SQLITE_OPEN_READWRITE, nullptr) == SQLITE_OK, klasör);
    sqlite3_create_collation_v2(vt, "TURKCE", SQLITE_UTF8, nullptr, TürkçeSıra, nullptr);
    return Sqlite(vt);
}

SqliteSorgusu ÇıplakSorgu(sqlite3* vt, const char* sql) {
    sqlite3_stmt* sorgu = nullptr;
    Başarmalı(sqlite3_prepare_v2(vt, sql, -1, &sorgu, nullptr) == SQLITE_OK, QString::fromUtf8(sql));
    return SqliteSorgusu(sorgu);
}

QString ÇıplakMetin(sqlite3_stmt* sorgu, int sütun) {
    const auto* metin = reinterpret_cast<const char*>(sqlite3_column_text(sorgu, sütun));
    return QString::fromUtf8(metin, sqlite3_column_bytes(sorgu, sütun));
}

}  // namespace ÖlçümOrtamı
