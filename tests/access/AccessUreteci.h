#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// The genuine Access file of the tests with other rows, and columns of other types, as users' files have them. Pages of
// rows and their maps are written as Access 2000 lays them out; indexes and everything else stay the original's.
class AccessÜreteci {
  public:
    // The bytes of a row's cells in the order of the table's columns, nothing for NULL.
    using Satır = std::vector<std::optional<std::string>>;

    AccessÜreteci();

    // A fixed column keeps its place in the row, where at most as many bytes are free as before.
    void TürVer(const std::string& tablo, const std::string& sütun, int tür, int boy, int ölçek = 0);
    void DeğişkenYap(const std::string& tablo, const std::string& sütun, int tür);
    void AdVer(const std::string& ad, const std::string& yeni);  // of a table or column: as long, ASCII

    // In place of the table's rows: what `satır` gives until it gives nothing.
    void SatırlarıKoy(const std::string& tablo, const std::function<std::optional<Satır>()>& satır);
    void SatırlarıKoy(const std::string& tablo, const std::vector<Satır>& satırlar);

    const std::string& Baytlar() const { return m_dosya; }
    void Yaz(const std::string& yol) const;

    static std::string Metin(std::u16string_view metin);
    static std::string SıkışıkMetin(std::string_view latin);
    static std::string UzunMetin(std::u16string_view metin);  // within its row
    static std::string Para(std::int64_t onBindeBir) { return Ham(onBindeBir); }
    template <typename T>
    static std::string Ham(T sayı) {
        return {reinterpret_cast<const char*>(&sayı), sizeof sayı};
    }

  private:
    struct Sütun {
        std::string Ad;
        std::size_t Yer;  // of its entry, in the file
        int No;
        bool Sabit;
        int DeğişkenNo;
        int SabitYeri;
    };
    struct Tablo {
        std::size_t Sayfa;
        std::vector<Sütun> Sütunlar;
    };
    int Oku16(std::size_t yer) const;
    std::uint32_t Oku32(std::size_t yer) const;
    void Yaz16(std::size_t yer, std::size_t sayı);
    void Yaz32(std::size_t yer, std::size_t sayı);
    Tablo TabloBul(const std::string& ad) const;
    Sütun SütunBul(const std::string& tablo, const std::string& sütun) const;
    static std::string SatırBaytları(const Tablo& tablo, const Satır& satır);
    std::size_t SayfaEkle(int tür, std::size_t sahip);

    std::string m_dosya;
};
