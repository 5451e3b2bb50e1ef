#pragma once

#include <QString>
#include <QStringList>

#include "Para.h"

// Suppliers: how their lists are read, and which of their names mean which material. The tables are made by the first
// writing; a data file without them is whole.
namespace Deyimler::Tedarikçi {

inline constexpr const char* TABLO = "TedarikciTablosu";

QStringList TablolarıOluştur();

// What was chosen for a supplier's list the last time.
struct Tedarikçi {
    QString Ad;
    QString Sayfa;         // its name; "" of a text file
    int BaşlıkSatırı = 0;  // as the file counts, from 1; 0: none
    int AdSütunu = -1;     // from 0
    int FiyatSütunu = -1;
    QString AdBaşlığı;  // the columns' captions, by which they are found again if they moved
    QString FiyatBaşlığı;
    QString Ondalık;  // "," or "."; "": each text is judged by itself
    QString Ayraç;    // of a text file
    Para İskonto;     // per cent
    Para YuvarlamaAdımı;
    int YuvarlamaYönü = 0;
};
QString Tedarikçiler();  // all columns in that order; by name
QString TedarikçiEkle(const Tedarikçi& tedarikçi);
QString TedarikçiSil(const QString& ad);

// What the supplier calls a material.
struct Bağ {
    QString ListeAdı;
    QString Malzeme;
    Para Bölen;  // the list's price is for so many of the catalogue's units
};
QString Bağlar(const QString& tedarikçi);  // all columns in that order
QString BağEkle(const QString& tedarikçi, const Bağ& bağ);
QString BağSil(const QString& tedarikçi, const QString& listeAdı);

}  // namespace Deyimler::Tedarikçi
