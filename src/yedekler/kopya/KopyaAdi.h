#pragma once

#include <QDateTime>
#include <QString>
#include <optional>

// What a dated copy was made for. Only daily ones are thinned.
enum class KopyaTürü {
    Günlük,
    Elle,  // asked for by the user
    Önce,  // the data as they were before a restore
    Ham    // the same of a damaged file: its bytes as they stood, with its journal
};

// "Varnek 2026-11-22 1803 000123.ydk": day and time of the last change in it, then a running number, which alone says
// which of two is newer.
struct KopyaAdı {
    QDateTime Değişme;
    int Sıra = 0;
    KopyaTürü Tür = KopyaTürü::Günlük;
};

QString KopyaAdınıYaz(const KopyaAdı& ad);

// Nothing: it is no copy's name.
std::optional<KopyaAdı> KopyaAdınıOku(const QString& dosyaAdı);
