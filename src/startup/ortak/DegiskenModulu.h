#pragma once

#include <QDate>
#include <QRgb>
#include <QString>
#include <cstdint>

// Shared variables that live for the whole run. The start routine sets them.

inline QString UygulamaBaşlığı;  // "Tovrek - Varnek 2.24"
inline QString UygulamaYolu;     // the data file's folder (the program's), ends in the path separator
inline QString AyarUygulamaAdı;  // "Tovrek\Varnek"
inline std::uint32_t EtkinEtiketRengi = 0x00C00000;  // caption colour of the focused box, 0x00BBGGRR
inline std::int32_t OndalıkBasamak = 2;              // decimal places shown in amounts, 1 to 6
inline bool YazıcıVar = false;                       // at least one printer is installed
inline bool NTTabanlı = false;                       // the system is of the NT family

// Position of the main form's selected node over all nodes of the tree, from 0; -1 when none is selected.
inline std::int32_t SeçiliÜrünSırası = -1;

// The day whose material movements are shown, and the same day as the statements' date literal (#11/22/2026#).
inline QDate HareketTarihi;
inline QString HareketTarihiSQL;
