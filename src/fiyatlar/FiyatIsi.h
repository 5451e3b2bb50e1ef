#pragma once

#include <QString>
#include <QStringList>
#include <functional>
#include <vector>

#include "FiyatIslemi.h"
#include "FiyatPlani.h"

enum class MetinNo : int;
class QWidget;

// What all ways to new prices hand over: where the new prices come from, and how the operation is to be recorded. They
// are asked for again when the data have changed meanwhile.
struct Fiyatİşi {
    İşlemBilgisi Bilgi;
    std::function<İşSonucu(FiyatTeklifi& teklif, QStringList& notlar)> Öner;
};

// Makes the plan, shows it, carries it out if the user wants it. True: carried out.
bool FiyatİşiniYürüt(const Fiyatİşi& iş, QWidget* sahip);

// Takes back (GeriAlma) or puts forward (Yineleme) an operation that changed products' rows themselves
// (ÜrünleriDeğiştirir). The rooms that have such operations supply it. True: carried out.
using DeğişimÇevirici = std::function<bool(const Deyimler::Fiyat::İşlem& işlem, İşlemTürü tür, QWidget* sahip)>;

// Tells what became of carrying out a plan that a preview shows, and what the preview has to do. `yazılamadı`: the text
// for a failure, with a place for the reasons.
enum class ÖnizlemeAdımı { Kabul, Kal, YenidenKur, Ret };
ÖnizlemeAdımı UygulamayıBildir(const UygulamaSonucu& sonuç, MetinNo yazılamadı);

// "Geri Al" and "Yinele" for one operation; where there is nothing to be done a message says so.
bool İşlemiGeriAl(const Deyimler::Fiyat::İşlem& işlem, const DeğişimÇevirici& çevir, QWidget* sahip);
bool SonİşlemiGeriAl(const DeğişimÇevirici& çevir, QWidget* sahip);
bool SonGeriAlınanıYinele(const DeğişimÇevirici& çevir, QWidget* sahip);

// Whether it was done. Shows why reading or writing failed, a box for each error; nothing where the user gave up.
bool İşSonucunuGöster(const İşSonucu& sonuç);
