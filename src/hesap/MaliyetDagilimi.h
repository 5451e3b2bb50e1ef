#pragma once

#include <QString>
#include <array>
#include <optional>
#include <vector>

#include "Ondalik.h"

// What a product's total consists of, and which of its materials carry it, in the figures that the main form and the
// amounts form show: with `basamak` decimals, percentages and material cost rounded to them first.

// A part of a whole as it is shown. Nothing: it cannot be computed; a share also where the whole is not above 0.
struct DağılımParçası {
    std::optional<Ondalık> Tutar;
    std::optional<double> Pay;  // per cent
};

struct DağılımMalzemesi {
    QString Ad;
    QString Miktar;  // as shown
    QString SaklananMiktar;
    DağılımParçası Parça;
    std::optional<double> BirikimliPay;  // with all that stand before it
    bool Sayıldı = true;                 // false: unreadable or beyond money, no part of the cost
};

struct MaliyetDağılımı {
    Ondalık MalzemeMaliyeti;
    Ondalık Toplam;
    std::array<DağılımParçası, 5> Parçalar;  // materials, labour, profit, other costs, maturity difference
    // The rows one by one, the largest amount first; what does not count comes last.
    std::vector<DağılımMalzemesi> Malzemeler;
    // What the shown parts lack to the shown whole; nothing where they lack nothing.
    std::optional<DağılımParçası> Yuvarlama;
    std::optional<DağılımParçası> MalzemeYuvarlaması;

    // The total is beyond money: what it lacks to its parts is no rounding.
    bool Taşıyor() const { return Yuvarlama && Yuvarlama->Tutar->Tam() != "0"; }

    // The sum of the materials from this place on.
    DağılımParçası Kalanlar(std::size_t ilk) const;
};

struct DağılımGirdisi {
    struct Satır {
        QString Malzeme;
        QString Miktar;  // as stored
        QString Fiyat;   // with "," as its decimal mark
    };
    std::array<QString, 4> Yüzdeler;  // as stored: labour, profit, other costs, maturity difference
    std::vector<Satır> Satırlar;
};

MaliyetDağılımı MaliyetiDağıt(const DağılımGirdisi& girdi, int basamak);
