#pragma once

#include <sys/resource.h>

#include <csignal>

// No file of this process can grow beyond so many bytes while it lives, as if the disk were full.
class DoluDisk {
  public:
    explicit DoluDisk(rlim_t bayt = 500) : m_önceki(signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &m_sınır);
        const rlimit dar{bayt, m_sınır.rlim_max};
        setrlimit(RLIMIT_FSIZE, &dar);
    }
    ~DoluDisk() {
        setrlimit(RLIMIT_FSIZE, &m_sınır);
        signal(SIGXFSZ, m_önceki);
    }
    DoluDisk(const DoluDisk&) = delete;
    DoluDisk& operator=(const DoluDisk&) = delete;

  private:
    rlimit m_sınır{};
    sighandler_t m_önceki;
};
