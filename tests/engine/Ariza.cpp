#include "Ariza.h"

#include <sqlite3.h>

#include <map>

namespace {

struct {
    bool Açık = false;
    Arıza::Tür Tür{};
    int Kalan = 0;
    bool Sürekli = false;
    bool Vurdu = false;
} Durum;

bool Vurur(Arıza::Tür tür) {
    if (!Durum.Açık || Durum.Tür != tür || --Durum.Kalan > 0) return false;
    if (Durum.Kalan < 0 && !Durum.Sürekli) return false;
    return Durum.Vurdu = true;
}

sqlite3_vfs* Disk = nullptr;

// SQLite's own methods of a file with the failing ones in their place.
struct Yöntemler {
    sqlite3_io_methods Yeni;
    const sqlite3_io_methods* Eski;
};
std::map<const sqlite3_io_methods*, Yöntemler> BilinenYöntemler;

const sqlite3_io_methods* Eski(sqlite3_file* dosya) {
    return reinterpret_cast<const Yöntemler*>(dosya->pMethods)->Eski;
}

int Yaz(sqlite3_file* dosya, const void* veri, int boy, sqlite3_int64 yer) {
    return Vurur(Arıza::Tür::Yazma) ? SQLITE_IOERR_WRITE : Eski(dosya)->xWrite(dosya, veri, boy, yer);
}

int Eşitle(sqlite3_file* dosya, int bayraklar) {
    return Vurur(Arıza::Tür::Yazma) ? SQLITE_IOERR_FSYNC : Eski(dosya)->xSync(dosya, bayraklar);
}

int Aç(sqlite3_vfs*, const char* ad, sqlite3_file* dosya, int bayraklar, int* çıkan) {
    const int sonuç = Disk->xOpen(Disk, ad, dosya, bayraklar, çıkan);
    if (!dosya->pMethods) return sonuç;
    auto [yer, yeni] = BilinenYöntemler.try_emplace(dosya->pMethods, Yöntemler{*dosya->pMethods, dosya->pMethods});
    if (yeni) yer->second.Yeni.xWrite = Yaz;
    if (yeni) yer->second.Yeni.xSync = Eşitle;
    dosya->pMethods = &yer->second.Yeni;
    return sonuç;
}

int Sil(sqlite3_vfs*, const char* ad, int klasörle) {
    const int sonuç = Disk->xDelete(Disk, ad, klasörle);
    return sonuç == SQLITE_OK && klasörle && Vurur(Arıza::Tür::KlasörEşitleme) ? SQLITE_IOERR_DIR_FSYNC : sonuç;
}

}  // namespace

void Arıza::Kur() {
    Disk = sqlite3_vfs_find(nullptr);
    static sqlite3_vfs disk = *Disk;
    disk.zName = "arıza";
    disk.xOpen = Aç;
    disk.xDelete = Sil;
    sqlite3_vfs_register(&disk, 1);
}

void Arıza::Başlat(Tür tür, int kaçıncı, bool sürekli) {
    Durum.Tür = tür;
    Durum.Kalan = kaçıncı;
    Durum.Sürekli = sürekli;
    Durum.Vurdu = false;
    Durum.Açık = true;
}

bool Arıza::Bitir() {
    Durum.Açık = false;
    return Durum.Vurdu;
}
