#pragma once

#include <QString>
#include <QStringList>
#include <cstdint>
#include <functional>
#include <optional>
#include <string_view>
#include <vector>

#include "AdDizini.h"
#include "OdbcSonucu.h"
#include "Para.h"

class OdbcBağlantısı;
class OdbcSatırı;

// Told how many rows have been read; false: the user gave up.
using İlerleme = std::function<bool(std::int64_t okunan)>;

// What became of reading or carrying out.
enum class İşSonu { Tamam, Vazgeçildi, Olmadı };
struct [[nodiscard]] İşSonucu {
    İşSonu Son = İşSonu::Tamam;
    OdbcSonucu Odbc;  // of what failed

    bool Tamam() const { return Son == İşSonu::Tamam; }
};
İşSonucu İşSonucuYap(const OdbcSonucu& odbc, bool vazgeçildi = false);

struct ÜrünAdı {
    QString Grup;
    QString Ad;
};

struct KatalogMalzemesi {
    QString Ad;
    Para Fiyat;
};

// The material catalogue, by name.
struct MalzemeKataloğu {
    std::vector<KatalogMalzemesi> Malzemeler;
    AdDizini Dizin;

    İşSonucu Oku(OdbcBağlantısı& bağlantı, const İlerleme& ilerleme = {});
};

// One material, as the catalogue has it at this moment; nothing where it has none of that name.
İşSonucu MalzemeyiOku(OdbcBağlantısı& bağlantı, const QString& ad, std::optional<KatalogMalzemesi>& malzeme);

// A stored amount ("1250.5") with at most four decimals. Nothing: none such.
std::optional<Para> SaklananPara(std::string_view baytlar);

// Reads a stored count or number without decimals.
std::int64_t SaklananSayı(std::string_view baytlar);

// What a Count statement gives.
OdbcSonucu SayımıOku(OdbcBağlantısı& bağlantı, const QString& deyim, std::int64_t& sayı);

// The same of the row at hand; 0 for what is none such.
Para ParaSütunu(OdbcSatırı& satır, int sütun);
std::int64_t SayıSütunu(OdbcSatırı& satır, int sütun);

// Runs the statements as one transaction; `oluştur` comes first where there is no such table.
İşSonucu TablolaraYaz(OdbcBağlantısı& bağlantı, const QString& tablo, const QStringList& oluştur,
                      const QStringList& deyimler);
