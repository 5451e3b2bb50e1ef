#pragma once

#include <QDate>
#include <QList>
#include <QString>
#include <memory>
#include <variant>

#include "Ondalik.h"
#include "Para.h"

enum class ÇizelgeSütunTürü {
    Metin,
    Para,   // grouped, Basamak decimals
    Sayı,   // as many decimals as it has
    Yüzde,  // a plain number (18, not 0,18), Basamak decimals
    Tarih
};

struct ÇizelgeSütunu {
    QString Başlık;
    double Genişlik = 12;  // in characters of the sheet's font
    ÇizelgeSütunTürü Tür = ÇizelgeSütunTürü::Metin;
    int Basamak = 2;
};

// A text stays a text, whatever it begins with or looks like, in any column. In .xlsx a number of more than the 15
// digits that spreadsheets know, and a day before 01.03.1900, is written as a text.
using ÇizelgeDeğeri = std::variant<std::monostate, QString, Para, Ondalık, QDate>;

enum class YazmaHatası {
    Yok,
    Yazılamadı,  // Ayrıntı: the reason, where there is one
    UzunMetin    // .xlsx: a text of more than 32,767 characters
};

struct YazmaSonucu {
    YazmaHatası Hata = YazmaHatası::Yok;
    QString Ayrıntı;

    bool Tamam() const { return Hata == YazmaHatası::Yok; }
};

inline constexpr qint64 SayfanınVeriSatırı = 1'048'575;  // besides the captions

// One kind of file that rows are written into (ÇizelgeYazıcı).
class ÇizelgeHedefi {
  public:
    ÇizelgeHedefi() = default;
    ÇizelgeHedefi(const ÇizelgeHedefi&) = delete;
    ÇizelgeHedefi& operator=(const ÇizelgeHedefi&) = delete;
    virtual ~ÇizelgeHedefi() = default;

    // `üstYazı`: a line above the captions; "": none.
    virtual YazmaSonucu Aç(const QString& üstYazı) = 0;
    virtual YazmaSonucu SatırEkle(const QList<ÇizelgeDeğeri>& değerler) = 0;
    virtual YazmaSonucu Bitir() = 0;
};
