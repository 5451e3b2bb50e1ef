#pragma once

#include <QList>
#include <QString>
#include <atomic>
#include <functional>
#include <optional>
#include <vector>

#include "Ondalik.h"

// What a spreadsheet or text file holds, whatever its kind.

enum class ÇizelgeHücreTürü : quint8 { Boş, Sayı, Metin, Okunamaz };

// Why a cell that holds something is neither number nor text.
enum class OkunamazNedeni : quint8 {
    Yok,
    Tarih,       // a date or a time
    Yüzde,       // a percentage
    BaşkaPara,   // money of another currency; ParaBirimi names it
    Mantıksal,   // true or false
    Hata,        // an error value such as #N/A
    Hesapsız,    // a formula whose result the file does not hold
    Bozuk,       // said to be a number or a shared text, and is none
    Eksi,        // a negative price
    Anlaşılmadı  // a text that is no price
};

struct ÇizelgeHücresi {
    ÇizelgeHücreTürü Tür = ÇizelgeHücreTürü::Boş;
    OkunamazNedeni Neden = OkunamazNedeni::Yok;
    QString Metin;       // as shown, where the file tells it; else as stored
    QString Değer;       // Sayı: the number as the file spells it ("12.5", "1.25E1")
    QString ParaBirimi;  // the currency's sign or code in the cell's number format

    static ÇizelgeHücresi Yazı(QString metin);
    static ÇizelgeHücresi Rakam(QString değer, QString metin);
    static ÇizelgeHücresi Okunmaz(OkunamazNedeni neden, QString metin);
};

// A Sayı cell's number, from the file's own digits. Spreadsheets know 15 significant digits: what a file writes behind
// them (1.1000000000000001) is noise of the binary form and is rounded away. No Sayı cell: nullopt.
std::optional<Ondalık> HücreSayısı(const ÇizelgeHücresi& hücre);

struct ÇizelgeSatırı {
    qint64 No = 0;       // from 1, as the file counts; empty rows are not handed out, but counted
    bool Gizli = false;  // hidden or filtered out
    std::vector<ÇizelgeHücresi> Hücreler;

    // The cell of this column (from 0); behind the last one: an empty cell.
    const ÇizelgeHücresi& Sütun(int sıra) const;
    bool BoşMu() const;
};

enum class ÇizelgeHatası {
    Yok,
    Açılamadı,         // Ayrıntı: the system's reason
    BoşDosya,          // no bytes, or a text file of blanks
    EskiBiçim,         // an OLE compound file: .xls and its like
    Şifreli,           // opened with a password only
    TanınmayanTür,     // neither .xlsx nor .ods nor plain text
    BozukArşiv,        // Ayrıntı: the part that cannot be unpacked; empty: the whole
    BozukXml,          // Ayrıntı: the part, and where
    ÇokSatır,          // more than EnÇokSatır
    ÇokSütun,          // a filled cell behind column EnÇokSütun; SatırNo
    ÇokBüyük,          // more than EnÇokBayt unpacked, or too many texts
    KapanmayanTırnak,  // text file: a cell's quote opened in SatırNo is never closed
    SayfaYok,          // no sheet of this number
    Durduruldu         // the cancel flag was set
};

struct OkumaSonucu {
    ÇizelgeHatası Hata = ÇizelgeHatası::Yok;
    QString Ayrıntı;
    qint64 SatırNo = 0;

    bool Tamam() const { return Hata == ÇizelgeHatası::Yok; }
};

inline constexpr qint64 EnÇokSatır = 1'048'576;
inline constexpr int EnÇokSütun = 256;
inline constexpr qint64 EnÇokBayt = qint64{512} << 20;

struct SayfaBilgisi {
    QString Ad;
    bool Gizli = false;
};

// Both may be used from another thread than the reader's own.
struct OkumaGözetimi {
    const std::atomic<bool>* Durdur = nullptr;
    std::function<void(qint64 okunan, qint64 toplam)> İlerleme;  // bytes; called in the reader's thread
};

// Gets the rows in the file's order; the row may be moved from. False: enough, the reading ends without an error.
using SatırAlıcı = std::function<bool(ÇizelgeSatırı&&)>;
