#include "SistemBozucu.h"

#include <dlfcn.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

enum class Tür { Yok, Öldür, Doldur };
Tür BozmaTürü = Tür::Yok;
int Kalan = 0;  // changes to go until something happens

template <typename İşlev>
İşlev* Asıl(const char* ad) {
    return reinterpret_cast<İşlev*>(dlsym(RTLD_NEXT, ad));
}

bool Dosya(int no) {
    struct stat bilgi {};
    return fstat(no, &bilgi) == 0 && S_ISREG(bilgi.st_mode);
}

// Counts one change; whether this is the moment.
bool Zamanı() {
    if (BozmaTürü == Tür::Yok) return false;
    if (Kalan > 0) --Kalan;
    return Kalan == 0;
}

// Changes that need no disk space.
void Geç() {
    if (BozmaTürü == Tür::Öldür && Zamanı()) raise(SIGKILL);
}

template <typename Yazma>
ssize_t Yaz(int no, size_t boy, Yazma yaz) {
    if (!Dosya(no) || !Zamanı()) return yaz(boy);
    if (BozmaTürü == Tür::Öldür) {
        yaz(boy / 2);
        raise(SIGKILL);
    }
    errno = ENOSPC;
    return -1;
}

}  // namespace

void BozucuyuKur() {
    const char* istek = getenv("VARNEK_BOZ");
    if (!istek) return;
    BozmaTürü = std::strncmp(istek, "oldur", 5) == 0 ? Tür::Öldür : Tür::Doldur;
    Kalan = std::atoi(std::strchr(istek, ' '));
}

// These stand before the C library's for everything in the process, the driver and its database library included.
#pragma GCC visibility push(default)
extern "C" {

ssize_t write(int no, const void* veri, size_t boy) {
    static const auto asıl = Asıl<decltype(write)>("write");
    return Yaz(no, boy, [=](size_t n) { return asıl(no, veri, n); });
}

ssize_t pwrite(int no, const void* veri, size_t boy, off_t yer) {
    static const auto asıl = Asıl<decltype(pwrite)>("pwrite");
    return Yaz(no, boy, [=](size_t n) { return asıl(no, veri, n, yer); });
}

ssize_t pwrite64(int no, const void* veri, size_t boy, off64_t yer) {
    static const auto asıl = Asıl<decltype(pwrite64)>("pwrite64");
    return Yaz(no, boy, [=](size_t n) { return asıl(no, veri, n, yer); });
}

int ftruncate(int no, off_t boy) noexcept {
    Geç();
    return Asıl<int(int, off_t)>("ftruncate")(no, boy);
}

int ftruncate64(int no, off64_t boy) noexcept {
    Geç();
    return Asıl<int(int, off64_t)>("ftruncate64")(no, boy);
}

// A killed process leaves what the system has not put on disk yet, so nobody has to wait for the disk here.
int fsync(int no) {
    Geç();
    return BozmaTürü == Tür::Yok ? Asıl<int(int)>("fsync")(no) : 0;
}

int fdatasync(int no) {
    Geç();
    return BozmaTürü == Tür::Yok ? Asıl<int(int)>("fdatasync")(no) : 0;
}

int rename(const char* eski, const char* yeni) noexcept {
    Geç();
    return Asıl<int(const char*, const char*)>("rename")(eski, yeni);
}

int unlink(const char* yol) noexcept {
    Geç();
    return Asıl<int(const char*)>("unlink")(yol);
}
}
#pragma GCC visibility pop
