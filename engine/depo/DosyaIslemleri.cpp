#include "DosyaIslemleri.h"

#include "Hata.h"

#include <cerrno>
#include <filesystem>

namespace Motor {

namespace {

std::string Adı(const std::string& yol) {
    return std::filesystem::path(yol).filename().string();
}

void Denetle(Dosya::Sonuç sonuç, const std::string& yol) {
    switch (sonuç.Ne) {
        case Dosya::Sonuç::Tür::Tamam:
            return;
        case Dosya::Sonuç::Tür::Meşgul:
            throw Hata(Durum::ZamanAşımı, "Bu dosyayı şu anda başka bir program yazıyor; biraz sonra tekrar deneyin.");
        case Dosya::Sonuç::Tür::Var:
            throw Hata(Durum::Genel, "Bu adda bir dosya zaten var; üzerine yazılmadı: " + Adı(yol));
        case Dosya::Sonuç::Tür::Doğrulanamadı:
            throw Hata(
                Durum::Genel,
                "Dosya yazıldı ama diskin onu kalıcı olarak sakladığı doğrulanamadı; diski denetleyin: " + Adı(yol));
        case Dosya::Sonuç::Tür::Yapılamadı:
            break;
    }
    const int neden = sonuç.Neden;
    if (neden == ENOSPC || neden == EDQUOT || neden == EFBIG)
        throw Hata(Durum::Genel, "Diskte yer kalmadığı için dosya yazılamadı: " + Adı(yol), neden);
    throw Hata(Durum::Genel, "Dosya yazılamadı; klasörün yazma iznini ve diski denetleyin: " + Adı(yol), neden);
}

}  // namespace

std::string GerçekYol(const std::string& yol) {
    std::error_code hata;
    std::string gerçek = Dosya::GerçekYol(yol, hata);
    if (!hata) return gerçek;
    const std::string klasör = std::filesystem::path(gerçek).parent_path().string();
    throw Hata(Durum::Bağlanamadı, "Klasör bulunamadı: " + klasör, hata.value());
}

void GünlükleriDenetle(const std::string& yol) {
    for (const char* ek : {"-journal", "-wal", "-shm"}) {
        std::error_code hata;
        const std::filesystem::file_type tür = std::filesystem::symlink_status(yol + ek, hata).type();
        if (hata || tür == std::filesystem::file_type::regular) continue;
        throw Hata(Durum::Bağlanamadı,
                   "Veri dosyasının günlük adını dosya olmayan bir şey taşıyor; onu kaldırın: " + Adı(yol + ek));
    }
}

GeçiciDosya::GeçiciDosya(const std::string& hedef) : m_hedef(hedef), m_dosya(hedef) {
    Denetle(m_dosya.Aç(), Yol());
}

void GeçiciDosya::Doldur(const std::string& kaynak) {
    Denetle(m_dosya.Doldur(kaynak), m_hedef);
}

void GeçiciDosya::Yerleştir(Dosya::Yerleştirme biçim) {
    Denetle(m_dosya.Yerleştir(biçim), m_hedef);
}

}  // namespace Motor
