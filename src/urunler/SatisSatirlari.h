#pragma once

#include "FiyatKurali.h"
#include "MaliyetTablosu.h"
#include "TabloModeli.h"

// The price list for customers: what is ticked is printed. Of costs it holds no more than the price is made from.

enum SatışSütunları { SGrup, SAd, SFiyat, SKdv, SKdvli, SDikkat };

QList<TabloSütunu> SatışSütunlarınıVer();

class SatışSatırları : public TabloKaynağı {
  public:
    static constexpr int BASAMAK = 2;

    struct Satır {
        QString Grup;
        QString Ad;
        std::uint32_t GrupSırası = 0;
        std::uint32_t AdSırası = 0;
        Para Toplam;  // as the main form shows it
        unsigned Dikkat = 0;
        bool YarıMamul = false;     // a material stands for it: made to go into others
        std::optional<Para> Fiyat;  // nothing: beyond the range of money
        std::optional<Para> Kdvli;  // nothing as well without a rate
        bool İstenen = false;       // the user's tick, also while the price allows none
    };
    std::vector<Satır> Satırlar;
    std::optional<Para> Oran;

    // What wants a second look is unticked, and what goes into other products.
    void Al(const std::vector<MaliyetTablosuSatırı>& ürünler);
    void Hesapla(const Yuvarlama& yuvarlama, std::optional<Para> oran);

    bool İşaretli(std::size_t satır) const { return İşaret(satır).value_or(false); }

    std::size_t SatırSayısı() const override { return Satırlar.size(); }
    QString Hücre(std::size_t satır, int sütun) const override;
    int Karşılaştır(std::size_t a, std::size_t b, int sütun) const override;
    std::optional<bool> İşaret(std::size_t satır) const override;
    void İşaretle(std::size_t satır, bool işaretli) override { Satırlar[satır].İstenen = işaretli; }
    QString Açıklama(std::size_t satır) const override;
};
