#pragma once

#include <QString>
#include <QStringList>

#include "Para.h"

// The statements of whole-catalogue price work: reading everything at once, writing a price where the old one still
// stands, and the tables of what was done. Names go between single quotes as they are; who calls has seen that they
// hold none (Yazılabilir).
namespace Deyimler {

// Whether a statement can name this text.
bool Yazılabilir(const QString& ad);

// A text as it is stored in the tables below: ' becomes ’, control characters and line breaks become blanks, and what
// does not fit into the column (255) ends in "…".
QString SaklanacakMetin(const QString& metin);

// An amount as a statement names it, with all its decimals.
QString SaklanacakSayı(Para tutar);

// Everything, in the file's own order; the catalogue is MalzemeKataloğuRaporu.
QString TümÜrünler();           // group, name, the four percentages
QString TümKullanılanlar();     // group, product, material, quantity, price, date
QString SıralıKullanılanlar();  // the same columns but the date; by group, product, material
QString KullanılanAdlar();      // the names of used materials, each once

// Changes that name the price they replace.
QString KataloğunFiyatı(const QString& malzeme, Para eski, Para yeni);
QString KullanılanlarınFiyatı(const QString& malzeme, Para eski, Para yeni);
QString KullanılanSayısı(const QString& malzeme);
QString KullanılanSayısı(const QString& malzeme, Para fiyat);
QString AdınSayısı(const QString& malzeme);  // how often the catalogue has the name
QString FiyatıylaSil(const QString& malzeme, Para fiyat);
QString MalzemeninKullanımları(const QString& malzeme);  // group, product, quantity, price, date

// A used row as it stands, or several that nothing tells apart.
struct KullanılanSatır {
    QString Grup;
    QString Ürün;
    QString Malzeme;
    QString Miktar;
    QString Tarih;  // date literal
    Para Fiyat;
};
QString AynıKullanılanlar(const KullanılanSatır& satır);  // group, product, material, quantity
QString KullanılanınFiyatı(const KullanılanSatır& satır, Para yeni);
QString KullanılanıSil(const KullanılanSatır& satır);
QString KullanılanıEkle(const KullanılanSatır& satır, Para fiyat);

// What was done to prices. The tables are made by the first writing; a data file without them is whole.
namespace Fiyat {

inline constexpr const char* İŞLEM_TABLOSU = "FiyatIslemTablosu";

QStringList TablolarıOluştur();

struct İşlem {
    std::int64_t No = 0;  // rising from 1; it alone gives the order
    QString Zaman{};      // local, "yyyy-MM-dd HH:mm:ss"
    QString Tür{};        // one of the words of İşlemTürü
    QString Açıklama{};
    std::int64_t Karşılığı = 0;  // the operation that this one takes back or puts forward; 0: none
    std::int64_t GeriAlan = 0;   // the operation that took this one back; 0: it stands
    QString DövizKodu{};         // of a rate's operation; "" for all others
    Para EskiKur{};
    Para YeniKur{};
    QString EskiKurGünü{};  // yyyy-MM-dd
    QString YeniKurGünü{};
};
QString İşlemEkle(const İşlem& işlem);
QString İşlemler();  // all columns in that order; the latest first
QString GeriAlanıYaz(std::int64_t işlem, std::int64_t eski, std::int64_t yeni);  // where `eski` still stands

// What became of the material itself.
enum class Varlık { Silindi = -1, Aynı = 0, Eklendi = 1 };
struct Değişim {
    std::int64_t İşlem = 0;
    QString Malzeme;
    Para Eski;  // 0 of an added one
    Para Yeni;  // 0 of a deleted one
    Varlık Malzemenin = Varlık::Aynı;
};
QString DeğişimEkle(const Değişim& değişim);
QString Değişimler();                            // all columns in that order; the latest operation first
QString İşleminDeğişimleri(std::int64_t işlem);  // the same of one operation
QString MalzemeninDeğişimleri(const QString& malzeme);

// A used row whose price was another than the catalogue's when the operation changed it; with the price it had.
QString AyrıSatırEkle(std::int64_t işlem, const KullanılanSatır& satır);
QString İşleminAyrıSatırları(std::int64_t işlem);  // Grup, Ürün, Malzeme, Tarih, Miktar, Fiyat

}  // namespace Fiyat

}  // namespace Deyimler
