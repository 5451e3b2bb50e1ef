#include "OkumaSureci.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstring>

#include "Okuyucu.h"
#include "VeriDosyasi.h"

using namespace Qt::StringLiterals;

namespace Erişim {

namespace {

constexpr int EN_UZUN_SESSİZLİK = 60'000;  // milliseconds
constexpr rlim_t EN_ÇOK_BELLEK = rlim_t{2} << 30;
constexpr rlim_t EN_ÇOK_UYARI = rlim_t{16} << 20;  // bytes that the library may print
constexpr std::uint32_t EN_UZUN_ÇERÇEVE = 1 << 17;
constexpr std::size_t OKUMA_BOYU = 1 << 16;

// In the reading process: only its own pipe, and never outliving the one that waits for it.
[[noreturn]] void OkuyucuOl(const std::string& yol, int çıkış) {
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    const rlimit çekirdek{0, 0};
    setrlimit(RLIMIT_CORE, &çekirdek);
    const rlimit uyarılar{EN_ÇOK_UYARI, EN_ÇOK_UYARI};
    setrlimit(RLIMIT_FSIZE, &uyarılar);
#if !defined(__SANITIZE_ADDRESS__)  // which reserves far more than it uses
    const rlimit bellek{EN_ÇOK_BELLEK, EN_ÇOK_BELLEK};
    setrlimit(RLIMIT_AS, &bellek);
#endif
    for (const int sinyal : {SIGINT, SIGTERM, SIGHUP}) std::signal(sinyal, SIG_DFL);
    constexpr int bizim = STDERR_FILENO + 1;
    if (çıkış != bizim) dup2(çıkış, bizim);
    close_range(bizim + 1, ~0U, 0);
    const Dosya::Tanıtıcı hiç(open("/dev/null", O_RDWR | O_CLOEXEC));
    dup2(hiç.No(), STDIN_FILENO);
    dup2(hiç.No(), STDOUT_FILENO);
    TablolarıGönder(yol, bizim);
    _exit(0);
}

}  // namespace

OkumaSüreci::OkumaSüreci(const std::string& yol) {
    int uçlar[2];
    if (pipe2(uçlar, O_CLOEXEC) != 0) throw VeriHatası(u"Access dosyasını okuyacak süreç başlatılamadı."_s);
    m_giriş = Dosya::Tanıtıcı(uçlar[0]);
    {
        const Dosya::Tanıtıcı çıkış(uçlar[1]);
        m_süreç.No = fork();
        if (m_süreç.No < 0) throw VeriHatası(u"Access dosyasını okuyacak süreç başlatılamadı."_s);
        if (m_süreç.No == 0) OkuyucuOl(yol, çıkış.No());
    }
    m_tampon.reserve(EN_UZUN_ÇERÇEVE + OKUMA_BOYU);
    TablolarıAl();
}

OkumaSüreci::Süreç::~Süreç() {
    if (No <= 0) return;
    kill(No, SIGKILL);
    while (waitpid(No, nullptr, 0) < 0 && errno == EINTR) {
    }
}

void OkumaSüreci::Kesildi() {
    throw VeriHatası(
        u"Access dosyası okunamadı: dosya bozuk, okuma işlemi beklenmedik biçimde sona erdi. Dosya değişmedi."_s);
}

// Waits for more, for as long as the reader gives signs of life.
void OkumaSüreci::Doldur() {
    m_tampon.erase(0, m_okunan);
    m_okunan = 0;
    int bekleme = EN_UZUN_SESSİZLİK;
    for (;;) {
        YarıdaKesildiMi();
        constexpr int aralık = 200;
        pollfd bakılan{m_giriş.No(), POLLIN, 0};
        const int sonuç = poll(&bakılan, 1, aralık);
        if (sonuç > 0) break;
        if (sonuç == 0) bekleme -= aralık;
        if (bekleme <= 0)
            throw VeriHatası(
                u"Access dosyası okunamadı: dosya bozuk, okuma bir dakikadır ilerlemiyor. Dosya değişmedi."_s);
    }
    const std::size_t eski = m_tampon.size();
    m_tampon.resize(eski + OKUMA_BOYU);
    const ssize_t okunan = read(m_giriş.No(), m_tampon.data() + eski, OKUMA_BOYU);
    m_tampon.resize(eski + static_cast<std::size_t>(okunan > 0 ? okunan : 0));
    if (okunan == 0 || (okunan < 0 && errno != EINTR)) Kesildi();
}

std::string_view OkumaSüreci::ÇerçeveAl(ÇerçeveTürü& tür) {
    std::uint32_t boy = 0;
    while (m_tampon.size() - m_okunan < sizeof boy) Doldur();
    std::memcpy(&boy, m_tampon.data() + m_okunan, sizeof boy);
    if (boy == 0 || boy > EN_UZUN_ÇERÇEVE) Kesildi();
    while (m_tampon.size() - m_okunan < sizeof boy + boy) Doldur();
    std::string_view içerik(m_tampon.data() + m_okunan + sizeof boy, boy);
    m_okunan += sizeof boy + boy;
    tür = static_cast<ÇerçeveTürü>(içerik.front());
    içerik.remove_prefix(1);
    if (tür == ÇerçeveTürü::Hata) HatayıBildir(içerik);
    return içerik;
}

template <typename T>
T OkumaSüreci::SayıAl(std::string_view& içerik) {
    T sayı{};
    if (içerik.size() < sizeof sayı) throw VeriHatası(u"Access dosyası okunamadı: dosya bozuk. Dosya değişmedi."_s);
    std::memcpy(&sayı, içerik.data(), sizeof sayı);
    içerik.remove_prefix(sizeof sayı);
    return sayı;
}

void OkumaSüreci::TablolarıAl() {
    ÇerçeveTürü tür{};
    std::string_view içerik = ÇerçeveAl(tür);
    for (std::size_t i = 0; i < TABLOLAR.size(); ++i) {
        m_tablolar[i].Satır = SayıAl<std::uint32_t>(içerik);
        for (std::size_t sütun = 0; sütun < TABLOLAR[i].Sütunlar.size(); ++sütun) {
            m_tablolar[i].Türler[sütun] = static_cast<HücreTürü>(SayıAl<std::uint8_t>(içerik));
            m_tablolar[i].Ölçekler[sütun] = SayıAl<std::uint8_t>(içerik);
        }
    }
}

bool OkumaSüreci::Sonraki(Tablo tablo, HamSatır& satır) {
    ÇerçeveTürü tür{};
    std::string_view içerik = ÇerçeveAl(tür);
    if (tür == ÇerçeveTürü::TabloSonu) return false;
    if (tür != ÇerçeveTürü::Satır) Kesildi();
    for (std::size_t i = 0; i < TABLOLAR[tablo].Sütunlar.size(); ++i) {
        const auto boy = SayıAl<std::uint16_t>(içerik);
        satır[i].reset();
        if (boy == BOŞ_HÜCRE) continue;
        if (boy > içerik.size()) Kesildi();
        satır[i] = içerik.substr(0, boy);
        içerik.remove_prefix(boy);
    }
    return true;
}

void OkumaSüreci::Bitir() {
    ÇerçeveTürü tür{};
    ÇerçeveAl(tür);
    if (tür != ÇerçeveTürü::Bitti) Kesildi();
}

void OkumaSüreci::HatayıBildir(std::string_view içerik) {
    const auto hata = static_cast<OkumaHatası>(içerik.empty() ? 0 : içerik.front());
    const QString ne = QString::fromUtf8(içerik.substr(içerik.empty() ? 0 : 1));
    switch (hata) {
        case OkumaHatası::TabloYok:
            throw VeriHatası(u"Access dosyasında %1 adında bir tablo yok. Dosya değişmedi."_s.arg(ne));
        case OkumaHatası::SütunYok:
            throw VeriHatası(u"Access dosyasında %1 sütunu yok. Dosya değişmedi."_s.arg(ne));
        case OkumaHatası::SütunTürü:
            throw VeriHatası(u"Access dosyasında %1 sütununun türü uygun değil. Dosya değişmedi."_s.arg(ne));
        case OkumaHatası::Bozuk:
            throw VeriHatası(u"Access dosyası bozuk: %1 tablosu okunamıyor. Dosya değişmedi."_s.arg(ne));
        case OkumaHatası::SatırEksik:
            throw VeriHatası(
                u"Access dosyası bozuk: %1 tablosunda olması gerekenden az satır bulundu. Dosya değişmedi."_s.arg(ne));
        case OkumaHatası::ListeEksik:
            throw VeriHatası(
                u"Access dosyası kesilmiş ya da bozuk: tablolarının listesinden bir bölüm okunamıyor. Dosya değişmedi."_s);
        case OkumaHatası::Açılamadı:
            break;
    }
    throw VeriHatası(u"Access dosyası açılamadı: dosya bozuk ya da çözülemiyor. Dosya değişmedi."_s);
}

}  // namespace Erişim
