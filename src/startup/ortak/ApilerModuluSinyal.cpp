// The system's requests to end.
#include "ApilerModulu.h"

#include <QSocketNotifier>

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <utility>

namespace {

constexpr std::array SİNYALLER{SIGTERM, SIGHUP, SIGINT};

// Where the signals' handler writes; it may do hardly more than that.
int YazmaUcu = -1;

void Yakala(int) {
    const int önceki = errno;
    [[maybe_unused]] const ssize_t yazılan = ::write(YazmaUcu, "", 1);
    errno = önceki;
}

}  // namespace

BitirmeDinleyicisi::BitirmeDinleyicisi(std::function<void()> bitir) {
    std::array<int, 2> uçlar{};
    if (::pipe2(uçlar.data(), O_CLOEXEC | O_NONBLOCK) != 0) return;
    m_okumaUcu = uçlar[0];
    YazmaUcu = uçlar[1];
    m_bildirici = std::make_unique<QSocketNotifier>(m_okumaUcu, QSocketNotifier::Read);
    QObject::connect(m_bildirici.get(), &QSocketNotifier::activated, m_bildirici.get(),
                     [this, bitir = std::move(bitir)] {
                         m_bildirici->setEnabled(false);
                         bitir();
                     });
    for (const int sinyal : SİNYALLER) {
        struct sigaction eski {};
        // One that was to be ignored (nohup, a shell's background) stays ignored.
        if (::sigaction(sinyal, nullptr, &eski) == 0 && eski.sa_handler == SIG_IGN) continue;
        struct sigaction yeni {};
        yeni.sa_handler = Yakala;
        // The second one ends a program that does not come to its events.
        yeni.sa_flags = static_cast<int>(SA_RESTART | SA_RESETHAND);
        ::sigaction(sinyal, &yeni, nullptr);
    }
}

BitirmeDinleyicisi::~BitirmeDinleyicisi() {
    for (const int sinyal : SİNYALLER) {
        struct sigaction eski {};
        if (::sigaction(sinyal, nullptr, &eski) == 0 && eski.sa_handler == Yakala) std::signal(sinyal, SIG_DFL);
    }
    m_bildirici.reset();
    if (m_okumaUcu < 0) return;
    ::close(m_okumaUcu);
    ::close(YazmaUcu);
}
