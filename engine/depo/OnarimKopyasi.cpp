#include "OnarimKopyasi.h"

#include "DosyaIslemleri.h"
#include "Hata.h"
#include "Sqlite.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace Motor {

namespace {

namespace fs = std::filesystem;

// Byte by byte; blocks that the disk does not give become zeros.
void Kopyala(const std::string& kaynak, const std::string& hedef, const std::string& dur) {
    constexpr std::streamsize blok = 4096;
    constexpr std::streamoff aralık = 4 << 20;  // between two looks whether it is to end
    std::error_code hata;
    const auto boy = static_cast<std::streamoff>(fs::file_size(kaynak, hata));
    std::ifstream oku(kaynak, std::ios::binary);
    std::ofstream yaz(hedef, std::ios::binary);
    if (hata || !oku || !yaz) throw Hata(Durum::Bağlanamadı, "Veri dosyası okunamıyor: " + kaynak);
    std::array<char, blok> tampon;
    for (std::streamoff yer = 0; yer < boy; yer += blok) {
        const auto parça = std::min<std::streamsize>(blok, boy - yer);
        if (yer % aralık == 0 && !dur.empty() && Dosya::YolVar(dur)) SqliteHatasıFırlat(SQLITE_INTERRUPT);
        tampon.fill(0);
        if (!oku.read(tampon.data(), parça)) {
            oku.clear();
            oku.seekg(yer + parça);
        }
        yaz.write(tampon.data(), parça);
    }
    if (!yaz.flush()) throw Hata(Durum::Genel, "Diskte yer kalmadığı için dosya kopyalanamadı.");
}

// A file that was cut short still says how many pages it had, and would not be opened at all: what is missing is put
// there, empty. A number that no file has is put right.
void SayfaSayısınıDüzelt(const std::string& yol) {
    constexpr std::size_t sayfaBoyuYeri = 16;
    constexpr std::size_t sayfaSayısıYeri = 28;
    constexpr std::uint64_t azamiBoy = std::uint64_t{1} << 38;  // takes no room on the disk
    std::fstream dosya(yol, std::ios::binary | std::ios::in | std::ios::out);
    std::array<unsigned char, 100> baş{};
    if (!dosya.read(reinterpret_cast<char*>(baş.data()), baş.size())) return;
    std::uint64_t sayfa = baş[sayfaBoyuYeri] << 8 | baş[sayfaBoyuYeri + 1];
    if (sayfa == 1) sayfa = 65536;
    if (sayfa < 512) return;
    const std::uint64_t var = (fs::file_size(yol) + sayfa - 1) / sayfa;
    std::uint64_t yazan = 0;
    for (std::size_t i = 0; i < 4; ++i) yazan = yazan << 8 | baş[sayfaSayısıYeri + i];
    if (yazan <= var) return;
    std::error_code sığmadı;
    if (yazan * sayfa <= azamiBoy) {
        dosya.close();
        fs::resize_file(yol, yazan * sayfa, sığmadı);
        if (!sığmadı) return;
        dosya.open(yol, std::ios::binary | std::ios::in | std::ios::out);
    }
    dosya.seekp(sayfaSayısıYeri);
    for (int kaydır = 24; kaydır >= 0; kaydır -= 8) dosya.put(static_cast<char>(var >> kaydır & 0xFF));
}

}  // namespace

OnarımKopyası::OnarımKopyası() {
    std::error_code hata;
    m_klasör = (fs::temp_directory_path(hata) / "varnek-onarim-XXXXXX").string();
    if (hata || !mkdtemp(m_klasör.data())) throw Hata(Durum::Genel, "Geçici klasör oluşturulamadı.");
}

OnarımKopyası::~OnarımKopyası() {
    std::error_code önemsiz;
    fs::remove_all(m_klasör, önemsiz);
}

void OnarımKopyası::Al(const std::string& kaynak, bool günlükle, const std::string& dur) const {
    Kopyala(kaynak, Dosya(), dur);
    SayfaSayısınıDüzelt(Dosya());
    if (günlükle)
        Kopyala(kaynak + "-journal", Dosya() + "-journal", dur);
    else
        Dosya::Sil(Dosya() + "-journal");
}

}  // namespace Motor
