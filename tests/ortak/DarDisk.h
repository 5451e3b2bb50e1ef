#pragma once

#include <dlfcn.h>
#include <sys/statvfs.h>

#include <cstdint>

// Every disk says that it has so many bytes free while this lives.
class DarDisk {
  public:
    explicit DarDisk(std::int64_t bayt) { Boş = bayt; }
    ~DarDisk() { Boş = -1; }
    DarDisk(const DarDisk&) = delete;
    DarDisk& operator=(const DarDisk&) = delete;

    static inline std::int64_t Boş = -1;
};

// Stands before the C library's for everything in the process.
extern "C" __attribute__((visibility("default"), used)) inline int statvfs64(const char* yol,
                                                                             struct statvfs64* bilgi) noexcept {
    const auto asıl = reinterpret_cast<decltype(&statvfs64)>(dlsym(RTLD_NEXT, "statvfs64"));
    const int sonuç = asıl(yol, bilgi);
    if (sonuç == 0 && DarDisk::Boş >= 0) {
        bilgi->f_bsize = bilgi->f_frsize = 1;
        bilgi->f_bfree = bilgi->f_bavail = static_cast<decltype(bilgi->f_bavail)>(DarDisk::Boş);
    }
    return sonuç;
}
