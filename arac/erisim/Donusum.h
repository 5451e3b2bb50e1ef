#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "AdDizini.h"
#include "Cozum.h"
#include "DegisiklikListesi.h"
#include "OkumaSureci.h"

namespace Erişim {

// A value as the data file stores it.
struct Değer {
    Anlam Ne = Anlam::Metin;
    std::string Metin;      // UTF-8
    std::int64_t Sayı = 0;  // ten-thousandths, or yyyymmdd
    double Double = 0;

    void YazımEkle(std::string& deyim) const;  // as a literal of a statement
    bool Aynı(std::string_view okunan) const;  // as the driver gives it back
};
using Satır = std::array<Değer, EN_ÇOK_SÜTUN>;

// The rows of an Access file as they are to be stored, one after the other, by a new reading of the file. The same file
// gives the same rows every time. What cannot be stored as it stands goes into the list. Throws VeriHatası.
class SatırAkışı {
  public:
    SatırAkışı(const std::string& yol, bool jet3, DeğişiklikListesi& liste);

    // The tables in their order, each to its end.
    bool Sonraki(Tablo tablo, Satır& satır);
    void Bitir() { m_okuma.Bitir(); }

    std::uint64_t BeklenenSatır() const;

  private:
    struct Malzeme {
        std::string KaynakAdı;  // as it stands in the file
        std::string Ad;
        std::int64_t Fiyat = 0;
        bool Alınır = true;
    };

    bool HamOku(Tablo tablo);
    void Çevir(Tablo tablo, std::size_t sütun, Değer& değer);
    void MetniÇevir(Tablo tablo, std::size_t sütun, Değer& değer);
    void FiyatıÇevir(Tablo tablo, std::size_t sütun, Değer& değer);
    void YüzdeyiÇevir(Tablo tablo, std::size_t sütun, Değer& değer);
    void TarihiÇevir(Tablo tablo, std::size_t sütun, Değer& değer);
    void Bildir(Neden neden, Tablo tablo, std::size_t sütun, std::string_view eski, std::string_view yeni);
    std::string EskiMetin(Tablo tablo, std::size_t sütun) const;
    std::string Nerede(Tablo tablo) const;

    void MalzemeleriOku();
    void AynıAdlılarıAyır();
    std::string AyrıAd(const Malzeme& malzeme, AdDizini& adlar) const;

    bool m_jet3;
    DeğişiklikListesi& m_liste;
    OkumaSüreci m_okuma;
    HamSatır m_ham;
    std::uint64_t m_sıra = 0;  // of the row at hand, in its table
    Tablo m_tablo = MalzemeTablosu;

    std::vector<Malzeme> m_malzemeler;
    std::size_t m_sıradakiMalzeme = 0;
    bool m_malzemelerOkundu = false;
    std::unordered_map<std::string, std::string> m_yeniAdlar;  // by the spelling in the file
};

}  // namespace Erişim
