#pragma once

#include <QTemporaryDir>
#include <memory>
#include <optional>

#include "FiyatKayitlari.h"
#include "VeriYollari.h"
#include "YedekOkuma.h"
#include "YedekSatirlari.h"

class QWidget;

// What is brought in: from a backup (`Yedek`), or back and forward again what an operation brought in.
struct Getirmeİsteği {
    VeriYolları Yollar;
    std::optional<YedekSatırı> Yedek{};
    Deyimler::Fiyat::İşlem İşlem{};
    İşlemTürü Tür = İşlemTürü::Getir;
};

// The files that are compared: copies of their own of the backup and of the data, so that the data stay free and
// nothing is tried out in them.
class GetirmeOrtamı {
  public:
    // False: the user gave up, or has been told why it cannot be. The former copies go.
    bool Hazırla(const Getirmeİsteği& istek, QWidget* sahip);

    OdbcBağlantısı& Deneme() { return m_deneme; }  // a copy of the data
    OdbcBağlantısı& Yedek() { return m_yedek; }    // of the backup
    const AçılmışYedek* Açılan() const { return m_açılan.get(); }

  private:
    std::unique_ptr<QTemporaryDir> m_klasör;
    std::unique_ptr<AçılmışYedek> m_açılan;
    OdbcBağlantısı m_deneme;  // closed before their files go
    OdbcBağlantısı m_yedek;
};

// Shows what the backup has, and brings in what the user picks. True: something was brought in.
bool SeçerekGetir(const VeriYolları& yollar, const YedekSatırı& yedek, QWidget* sahip);

// "Geri Al" (GeriAlma) and "Yinele" (Yineleme) of what was brought in. True: carried out.
bool GetirmeyiÇevir(const Deyimler::Fiyat::İşlem& işlem, İşlemTürü tür, QWidget* sahip);
