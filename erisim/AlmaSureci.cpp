#include "AlmaSureci.h"

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <charconv>
#include <csignal>
#include <string_view>
#include <vector>

#include "DosyaSistemi.h"

namespace Erişim {

namespace {

constexpr int BAKIŞ_ARALIĞI = 50;  // milliseconds

// Starts the tool with its reports going into `çıkış`; 0 or the system's error number.
int Başlat(const Almaİsteği& istek, int çıkış, pid_t& süreç) {
    std::vector<std::string> sözler{istek.Araç, "erisimden-al", istek.Kaynak, "--bildir"};
    if (!istek.Hedef.empty()) sözler.insert(sözler.end(), {"--hedef", istek.Hedef});
    if (!istek.Liste.empty()) sözler.insert(sözler.end(), {"--liste", istek.Liste});
    if (istek.Sakla) sözler.emplace_back("--sakla");
    std::vector<char*> dizi;
    for (std::string& söz : sözler) dizi.push_back(söz.data());
    dizi.push_back(nullptr);

    posix_spawn_file_actions_t dosyalar;
    posix_spawn_file_actions_init(&dosyalar);
    posix_spawn_file_actions_addopen(&dosyalar, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_adddup2(&dosyalar, çıkış, STDOUT_FILENO);
    posix_spawn_file_actions_addopen(&dosyalar, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    // What the host program ignores or holds back must not keep the tool from ending.
    posix_spawnattr_t ayarlar;
    posix_spawnattr_init(&ayarlar);
    sigset_t sinyaller;
    sigemptyset(&sinyaller);
    posix_spawnattr_setsigmask(&ayarlar, &sinyaller);
    for (const int sinyal : {SIGINT, SIGTERM, SIGHUP, SIGPIPE, SIGCHLD}) sigaddset(&sinyaller, sinyal);
    posix_spawnattr_setsigdefault(&ayarlar, &sinyaller);
    posix_spawnattr_setflags(&ayarlar, POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETSIGMASK);
    const int hata = posix_spawn(&süreç, istek.Araç.c_str(), &dosyalar, &ayarlar, dizi.data(), environ);
    posix_spawnattr_destroy(&ayarlar);
    posix_spawn_file_actions_destroy(&dosyalar);
    return hata;
}

// The tool's reports, line by line: "% 450", "not ...", "hata ...", "tamam".
class Bildirimler {
  public:
    int Binde = 0;
    bool Tamam = false;
    std::string Not;
    std::string Hata;

    void Ekle(std::string_view baytlar) {
        m_yarım += baytlar;
        for (std::size_t son = m_yarım.find('\n'); son != std::string::npos; son = m_yarım.find('\n')) {
            Satır(std::string_view(m_yarım).substr(0, son));
            m_yarım.erase(0, son + 1);
        }
    }

  private:
    void Satır(std::string_view satır) {
        const std::size_t boşluk = std::min(satır.find(' '), satır.size());
        const std::string_view tür = satır.substr(0, boşluk);
        const std::string_view metin = satır.substr(std::min(boşluk + 1, satır.size()));
        if (tür == "%") std::from_chars(metin.data(), metin.data() + metin.size(), Binde);
        if (tür == "not") Not = metin;
        if (tür == "hata") Hata = metin;
        if (tür == "tamam") Tamam = true;
    }
    std::string m_yarım;
};

// Until the tool closes its end. True: the user gave up meanwhile.
bool Dinle(int giriş, pid_t süreç, const std::function<bool(int)>& ilerleme, Bildirimler& bildirimler) {
    bool vazgeçildi = false;
    std::array<char, 4096> tampon;
    for (;;) {
        pollfd bakılan{giriş, POLLIN, 0};
        if (poll(&bakılan, 1, BAKIŞ_ARALIĞI) > 0) {
            const ssize_t okunan = read(giriş, tampon.data(), tampon.size());
            if (okunan < 0 && errno == EINTR) continue;
            if (okunan <= 0) return vazgeçildi;
            bildirimler.Ekle({tampon.data(), static_cast<std::size_t>(okunan)});
        }
        if (!vazgeçildi && !ilerleme(bildirimler.Binde)) {
            vazgeçildi = true;
            kill(süreç, SIGTERM);
        }
    }
}

}  // namespace

AlmaSonucu ErişimdenAl(const Almaİsteği& istek, const std::function<bool(int)>& ilerleme) {
    using Tür = AlmaSonucu::Tür;
    int uçlar[2];
    if (pipe2(uçlar, O_CLOEXEC) != 0) return {Tür::Alınamadı, "Access dosyasını alacak araç başlatılamadı."};
    const Dosya::Tanıtıcı giriş(uçlar[0]);
    pid_t süreç = -1;
    int hata = 0;
    {
        const Dosya::Tanıtıcı çıkış(uçlar[1]);
        hata = Başlat(istek, çıkış.No(), süreç);
    }
    if (hata != 0)
        return {Tür::Alınamadı, "Access dosyasını alacak araç başlatılamadı; programı yeniden kurun: " + istek.Araç};
    Bildirimler bildirimler;
    const bool vazgeçildi = Dinle(giriş.No(), süreç, ilerleme, bildirimler);
    while (waitpid(süreç, nullptr, 0) < 0 && errno == EINTR) {
    }
    if (bildirimler.Tamam) return {Tür::Alındı, bildirimler.Not};
    if (vazgeçildi) return {Tür::Vazgeçildi, {}};
    if (!bildirimler.Hata.empty()) return {Tür::Alınamadı, bildirimler.Hata};
    return {Tür::Alınamadı, "Access dosyasını alan araç yarıda kesildi; dosya değişmedi."};
}

}  // namespace Erişim
