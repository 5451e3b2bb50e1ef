#include "Okuyucu.h"

#include <glib.h>
#include <mdbtools.h>
#include <sys/mman.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string_view>
#include <vector>

#include "Cerceve.h"
#include "DosyaSistemi.h"
#include "KaynakTablolari.h"
#include "Utf8.h"

namespace Erişim {

namespace {

constexpr int KONUM_MASKESİ = 0x1FFF;
// Either a deleted row or the place of one that grew and lies elsewhere, where it is met by itself.
constexpr int GEÇİLEN_SATIR = 0x4000;
constexpr int UZUN_METİN_BAŞI = 12;
constexpr std::size_t TOPLU = 1 << 16;

struct Bitti {};  // ends the reading; what there is to say has been said

// Collects frames and writes them in large pieces.
class Gönderici {
  public:
    explicit Gönderici(int çıkış) : m_çıkış(çıkış) {}

    void Başla(ÇerçeveTürü tür) {
        m_çerçeve = m_tampon.size();
        Sayı<std::uint32_t>(0);
        Sayı(static_cast<std::uint8_t>(tür));
    }
    template <typename T>
    void Sayı(T sayı) {
        m_tampon.append(reinterpret_cast<const char*>(&sayı), sizeof sayı);
    }
    void Baytlar(std::string_view baytlar) { m_tampon += baytlar; }
    void Bitir() {
        const auto boy = static_cast<std::uint32_t>(m_tampon.size() - m_çerçeve - sizeof(std::uint32_t));
        std::memcpy(m_tampon.data() + m_çerçeve, &boy, sizeof boy);
        if (m_tampon.size() >= TOPLU) Boşalt();
    }
    void Boşalt() {
        if (!Dosya::HepsiniYaz(m_çıkış, m_tampon.data(), m_tampon.size())) throw Bitti();
        m_tampon.clear();
    }
    [[noreturn]] void Hata(OkumaHatası hata, std::string_view ne) {
        Başla(ÇerçeveTürü::Hata);
        Sayı(static_cast<std::uint8_t>(hata));
        Baytlar(ne);
        Bitir();
        Boşalt();
        throw Bitti();
    }

  private:
    int m_çıkış;
    std::string m_tampon;
    std::size_t m_çerçeve = 0;
};

// What the library prints as a warning or an error goes into a file in memory, where it is noticed.
class Uyarılar {
  public:
    Uyarılar() : m_no(memfd_create("uyarilar", MFD_CLOEXEC)) {
        std::fflush(stderr);
        if (m_no.Açık()) dup2(m_no.No(), STDERR_FILENO);
    }
    // Whether anything came since the last time that matters for the table which is defined in this page.
    bool Var(unsigned long tabloSayfası = 0) {
        std::fflush(stderr);
        std::array<char, 4096> tampon;
        std::string yeni;
        for (;;) {
            const ssize_t okunan = pread(STDERR_FILENO, tampon.data(), tampon.size(), m_okunan);
            if (okunan < 0) return true;
            if (okunan == 0) break;
            m_okunan += okunan;
            yeni.append(tampon.data(), static_cast<std::size_t>(okunan));
        }
        while (!yeni.empty()) {
            const std::size_t boy = std::min(yeni.find('\n'), yeni.size() - 1) + 1;
            if (!Zararsız(yeni.substr(0, boy), tabloSayfası)) return true;
            yeni.erase(0, boy);
        }
        return false;
    }

  private:
    // The map of a table's pages may name pages of its long texts and of its indexes as well, which the library passes
    // over with a warning.
    static bool Zararsız(const std::string& satır, unsigned long tabloSayfası) {
        constexpr int veri = 1;
        constexpr long uzunMetinler = 0x4C41564C;  // "LVAL"
        unsigned long sayfa = 0;
        int tür = 0;
        long sahip = 0;
        constexpr const char* biçim = "warning: page %lu from map doesn't match: Type=%d, buf[4..7]=%ld";
        if (std::sscanf(satır.c_str(), biçim, &sayfa, &tür, &sahip) != 3) return false;
        const bool dizin = tür == 3 || tür == 4;
        return (tür == veri && sahip == uzunMetinler) || (dizin && sahip == static_cast<long>(tabloSayfası));
    }

    Dosya::Tanıtıcı m_no;
    off_t m_okunan = 0;
};

bool TürUygun(Anlam anlam, int tür) {
    const auto hücre = static_cast<HücreTürü>(tür);
    const bool metin = hücre == HücreTürü::Metin || hücre == HücreTürü::UzunMetin;
    if (anlam == Anlam::Metin) return metin;
    if (anlam == Anlam::Tarih) return hücre == HücreTürü::Tarih;
    return metin || hücre == HücreTürü::Ondalık || (tür >= MDB_BYTE && tür <= MDB_DOUBLE);
}

// The columns that are wanted of a table that has been opened.
struct AçıkTablo {
    MdbTableDef* Tablo = nullptr;
    std::vector<const MdbColumn*> Sütunlar;
    std::vector<std::size_t> Yerler;  // their places in the table
};

class Okuyucu {
  public:
    Okuyucu(MdbHandle* mdb, int çıkış, Uyarılar& uyarılar) : m_mdb(mdb), m_gönderici(çıkış), m_uyarılar(uyarılar) {}

    void Gönder() {
        if (!m_mdb || !mdb_read_catalog(m_mdb, MDB_TABLE)) m_gönderici.Hata(OkumaHatası::Açılamadı, {});
        static_cast<void>(m_uyarılar.Var());  // about other tables
        std::vector<AçıkTablo> tablolar;
        for (const KaynakTablosu& tablo : TABLOLAR) tablolar.push_back(Aç(tablo));
        Tanıt(tablolar);
        for (std::size_t i = 0; i < tablolar.size(); ++i) Satırlar(TABLOLAR[i], tablolar[i]);
        m_gönderici.Başla(ÇerçeveTürü::Bitti);
        m_gönderici.Bitir();
        m_gönderici.Boşalt();
    }

  private:
    AçıkTablo Aç(const KaynakTablosu& kaynak) {
        AçıkTablo açık;
        for (unsigned i = 0; i < m_mdb->num_catalog && !açık.Tablo; ++i) {
            auto* öğe = static_cast<MdbCatalogEntry*>(g_ptr_array_index(m_mdb->catalog, i));
            if (öğe->object_type != MDB_TABLE || !AsciiEşit(öğe->object_name, kaynak.Ad)) continue;
            açık.Tablo = mdb_read_table(öğe);
            if (!açık.Tablo || !mdb_read_columns(açık.Tablo) || m_uyarılar.Var()) Bozuk(kaynak);
        }
        if (!açık.Tablo) m_gönderici.Hata(ListeTam() ? OkumaHatası::TabloYok : OkumaHatası::ListeEksik, kaynak.Ad);
        for (const KaynakSütunu& sütun : kaynak.Sütunlar) SütunBul(kaynak, sütun, açık);
        return açık;
    }

    // Whether the list of the file's tables has as many rows as it should: of a file that was cut the rest may be gone.
    bool ListeTam() {
        constexpr unsigned long listeSayfası = 2;
        MdbCatalogEntry öğe{};
        öğe.mdb = m_mdb;
        öğe.object_type = MDB_TABLE;
        öğe.table_pg = listeSayfası;
        MdbTableDef* liste = mdb_read_table(&öğe);
        if (!liste || !mdb_read_columns(liste)) return false;
        std::uint64_t satır = 0;
        mdb_rewind_table(liste);
        while (mdb_read_next_dpg(liste)) {
            const int sayfadaki = mdb_get_int16(m_mdb->pg_buf, m_mdb->fmt->row_count_offset);
            for (int i = 0; i < sayfadaki; ++i) {
                int yer = 0;
                std::size_t boy = 0;
                const bool bulundu = mdb_find_row(m_mdb, i, &yer, &boy) == 0;
                if (bulundu && !(yer & GEÇİLEN_SATIR)) ++satır;
            }
        }
        return satır >= liste->num_rows;
    }

    void SütunBul(const KaynakTablosu& kaynak, const KaynakSütunu& aranan, AçıkTablo& açık) {
        const std::string ad = std::string(kaynak.Ad) + "." + std::string(aranan.Ad);
        for (std::size_t i = 0; i < açık.Tablo->num_cols && i < açık.Tablo->columns->len; ++i) {
            const auto* sütun = static_cast<const MdbColumn*>(g_ptr_array_index(açık.Tablo->columns, i));
            if (!AsciiEşit(sütun->name, aranan.Ad)) continue;
            if (!TürUygun(aranan.Ne, sütun->col_type)) m_gönderici.Hata(OkumaHatası::SütunTürü, ad);
            açık.Sütunlar.push_back(sütun);
            açık.Yerler.push_back(i);
            return;
        }
        m_gönderici.Hata(OkumaHatası::SütunYok, ad);
    }

    void Tanıt(const std::vector<AçıkTablo>& tablolar) {
        m_gönderici.Başla(ÇerçeveTürü::Tablolar);
        for (const AçıkTablo& tablo : tablolar) {
            m_gönderici.Sayı(static_cast<std::uint32_t>(tablo.Tablo->num_rows));
            for (const MdbColumn* sütun : tablo.Sütunlar) {
                m_gönderici.Sayı(static_cast<std::uint8_t>(sütun->col_type));
                m_gönderici.Sayı(static_cast<std::uint8_t>(sütun->col_scale));
            }
        }
        m_gönderici.Bitir();
    }

    void Satırlar(const KaynakTablosu& kaynak, const AçıkTablo& açık) {
        MdbTableDef* tablo = açık.Tablo;
        std::vector<MdbField> alanlar(tablo->num_cols);
        std::uint64_t satır = 0;
        mdb_rewind_table(tablo);
        while (mdb_read_next_dpg(tablo)) {
            const int sayfadaki = mdb_get_int16(m_mdb->pg_buf, m_mdb->fmt->row_count_offset);
            for (int i = 0; i < sayfadaki; ++i) {
                int yer = 0;
                std::size_t boy = 0;
                const bool bulundu = mdb_find_row(m_mdb, i, &yer, &boy) == 0;
                if (yer & GEÇİLEN_SATIR) continue;
                yer &= KONUM_MASKESİ;
                if (!bulundu || boy == 0) Bozuk(kaynak);
                const int sütunlar = mdb_crack_row(tablo, yer, boy, alanlar.data());
                if (sütunlar < 1 || sütunlar > MDB_MAX_COLS) Bozuk(kaynak);  // by the row itself; not all need be there
                SatırGönder(kaynak, açık, alanlar, yer + static_cast<int>(boy));
                ++satır;
            }
        }
        if (m_uyarılar.Var(tablo->entry->table_pg)) Bozuk(kaynak);
        if (satır < tablo->num_rows) m_gönderici.Hata(OkumaHatası::SatırEksik, kaynak.Ad);
        m_gönderici.Başla(ÇerçeveTürü::TabloSonu);
        m_gönderici.Bitir();
    }

    void SatırGönder(const KaynakTablosu& kaynak, const AçıkTablo& açık, const std::vector<MdbField>& alanlar,
                     int satırSonu) {
        m_gönderici.Başla(ÇerçeveTürü::Satır);
        for (std::size_t i = 0; i < açık.Yerler.size(); ++i) {
            const MdbField& alan = alanlar[açık.Yerler[i]];
            if (alan.is_null) {
                m_gönderici.Sayı(BOŞ_HÜCRE);
                continue;
            }
            if (alan.start < 0 || alan.siz < 0 || alan.start + alan.siz > satırSonu) Bozuk(kaynak);
            std::string_view baytlar(reinterpret_cast<const char*>(m_mdb->pg_buf) + alan.start,
                                     static_cast<std::size_t>(alan.siz));
            if (açık.Sütunlar[i]->col_type == MDB_MEMO) baytlar = UzunMetin(kaynak, baytlar);
            baytlar = baytlar.substr(0, EN_UZUN_HÜCRE);
            m_gönderici.Sayı(static_cast<std::uint16_t>(baytlar.size()));
            m_gönderici.Baytlar(baytlar);
        }
        m_gönderici.Bitir();
    }

    // A memo lies in its row, in another page, or in a chain of pieces; its first word says which and how long it is.
    std::string_view UzunMetin(const KaynakTablosu& kaynak, std::string_view alan) {
        if (alan.size() < UZUN_METİN_BAŞI) Bozuk(kaynak);
        std::uint32_t boy = 0;
        std::uint32_t yer = 0;
        std::memcpy(&boy, alan.data(), sizeof boy);
        std::memcpy(&yer, alan.data() + sizeof boy, sizeof yer);
        if (boy & 0x80000000U) return alan.substr(UZUN_METİN_BAŞI);
        if (boy & 0x40000000U) return Parça(kaynak, yer);
        m_uzunMetin.clear();
        while (yer != 0 && m_uzunMetin.size() < boy && m_uzunMetin.size() < EN_UZUN_HÜCRE) {
            const std::string_view parça = Parça(kaynak, yer);
            if (parça.size() <= sizeof yer) Bozuk(kaynak);
            std::memcpy(&yer, parça.data(), sizeof yer);
            m_uzunMetin += parça.substr(sizeof yer);
        }
        if (m_uzunMetin.size() < boy && m_uzunMetin.size() < EN_UZUN_HÜCRE) Bozuk(kaynak);
        return m_uzunMetin;
    }

    std::string_view Parça(const KaynakTablosu& kaynak, std::uint32_t yer) {
        void* sayfa = nullptr;
        int başı = 0;
        std::size_t boy = 0;
        if (mdb_find_pg_row(m_mdb, static_cast<int>(yer), &sayfa, &başı, &boy) != 0) Bozuk(kaynak);
        başı &= KONUM_MASKESİ;
        if (başı + boy > static_cast<std::size_t>(m_mdb->fmt->pg_size)) Bozuk(kaynak);
        return {static_cast<const char*>(sayfa) + başı, boy};
    }

    [[noreturn]] void Bozuk(const KaynakTablosu& kaynak) { m_gönderici.Hata(OkumaHatası::Bozuk, kaynak.Ad); }

    MdbHandle* m_mdb;
    Gönderici m_gönderici;
    Uyarılar& m_uyarılar;
    std::string m_uzunMetin;
};

}  // namespace

void TablolarıGönder(const std::string& yol, int çıkış) {
    // Settings of the user's for other programs that use the library.
    unsetenv("MDBICONV");
    unsetenv("MDBPATH");
    unsetenv("MDBOPTS");
    setenv("MDB_JET3_CHARSET", "CP1254", 1);
    Uyarılar uyarılar;
    try {
        Okuyucu(mdb_open(yol.c_str(), MDB_NOFLAGS), çıkış, uyarılar).Gönder();
    } catch (const Bitti&) {
    }
}

}  // namespace Erişim
