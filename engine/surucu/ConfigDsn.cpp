// What the installer calls: registering the data source, creating, compacting and repairing data files.
#include "Bakim.h"
#include "BaglantiMetni.h"
#include "Onarim.h"
#include "Tani.h"
#include "Yedekleme.h"

#include <odbcinst.h>

#include <new>
#include <utility>

namespace {

using namespace Motor;

// Paths in a pair (COMPACT_DB, REPAIR_DB) are separated by a blank; a blank within a path is written %20 and a percent
// sign %25.
std::string YoluÇöz(std::string_view yol) {
    std::string çözülen;
    while (!yol.empty()) {
        const bool boşluk = yol.starts_with("%20");
        const bool yüzde = yol.starts_with("%25");
        çözülen += boşluk ? ' ' : yüzde ? '%' : yol.front();
        yol.remove_prefix(boşluk || yüzde ? 3 : 1);
    }
    return çözülen;
}

std::pair<std::string, std::string> YolÇifti(const std::string& istek, const std::string& yollar) {
    const std::size_t boşluk = yollar.find(' ');
    if (boşluk == 0 || boşluk == std::string::npos || yollar.find(' ', boşluk + 1) != std::string::npos)
        throw Hata(Durum::Genel, istek + " için araları boşluklu iki dosya yolu gerekiyor.");
    const std::string_view görünüm(yollar);
    return {YoluÇöz(görünüm.substr(0, boşluk)), YoluÇöz(görünüm.substr(boşluk + 1))};
}

bool Sıkıştır(const std::string& yollar, const Öznitelikler& öznitelikler) {
    const auto [kaynak, hedef] = YolÇifti("COMPACT_DB", yollar);
    VeriDosyasıSıkıştır(kaynak, hedef, öznitelikler.Değer("PWD"), YoluÇöz(öznitelikler.Değer("STOP")));
    return true;
}

bool Onar(const std::string& yollar, const Öznitelikler& öznitelikler) {
    const auto [kaynak, hedef] = YolÇifti("REPAIR_DB", yollar);
    VeriDosyasıOnar({kaynak, hedef, öznitelikler.Değer("PWD"), öznitelikler.Değer("REPAIR_REPORT"),
                     öznitelikler.Değer("REPAIR_TABLES"), YoluÇöz(öznitelikler.Değer("STOP"))});
    return true;
}

// The requests about backups; false: it is none of them. STOP names the file whose appearance ends the work.
bool YedekİsteğiniYürüt(const Öznitelikler& öznitelikler) {
    const std::string parola = öznitelikler.Değer("PWD");
    const std::string dur = YoluÇöz(öznitelikler.Değer("STOP"));
    if (const std::string* yol = öznitelikler.Bul("CHECK_DB")) {
        VeriDosyasıDenetle(YoluÇöz(*yol), parola, dur);
    } else if (const std::string* yeni = öznitelikler.Bul("MARK_DB")) {
        VeriDosyasıDamgala(YoluÇöz(*yeni), parola);
    } else if (const std::string* yollar = öznitelikler.Bul("BACKUP_DB")) {
        const auto [kaynak, hedef] = YolÇifti("BACKUP_DB", *yollar);
        VeriDosyasıYedekle(kaynak, hedef, parola, dur);
    } else if (const std::string* dönüş = öznitelikler.Bul("RESTORE_DB")) {
        const auto [kaynak, hedef] = YolÇifti("RESTORE_DB", *dönüş);
        VeriDosyasıGeriYükle(kaynak, hedef, parola);
    } else {
        return false;
    }
    return true;
}

bool VeriKaynağınıYaz(const Öznitelikler& öznitelikler, const char* sürücü) {
    const std::string kaynak = öznitelikler.Değer("DSN");
    if (kaynak.empty()) throw Hata(Durum::Genel, "Veri kaynağının adı (DSN) belirtilmemiş.");
    if (!SQLWriteDSNToIni(kaynak.c_str(), sürücü)) return false;
    for (const char* anahtar : {"DBQ", "Description"})
        if (const std::string* değer = öznitelikler.Bul(anahtar))
            if (!SQLWritePrivateProfileString(kaynak.c_str(), anahtar, değer->c_str(), "odbc.ini")) return false;
    return true;
}

bool İsteğiYürüt(WORD istek, const char* sürücü, const Öznitelikler& öznitelikler) {
    if (istek == ODBC_REMOVE_DSN) return SQLRemoveDSNFromIni(öznitelikler.Değer("DSN").c_str());
    if (YedekİsteğiniYürüt(öznitelikler)) return true;
    if (const std::string* yollar = öznitelikler.Bul("COMPACT_DB")) return Sıkıştır(*yollar, öznitelikler);
    if (const std::string* yollar = öznitelikler.Bul("REPAIR_DB")) return Onar(*yollar, öznitelikler);
    if (const std::string* yol = öznitelikler.Bul("CREATE_DB")) {
        VeriDosyasıOluştur(*yol, öznitelikler.Değer("PWD"));
        return true;
    }
    return VeriKaynağınıYaz(öznitelikler, sürücü);
}

}  // namespace

extern "C" BOOL INSTAPI ConfigDSN(HWND, WORD istek, LPCSTR sürücü, LPCSTR liste) {
    try {
        return İsteğiYürüt(istek, sürücü, Öznitelikler::Listeden(liste));
    } catch (const Hata& hata) {
        SQLPostInstallerError(ODBC_ERROR_REQUEST_FAILED, hata.what());
    } catch (const std::bad_alloc&) {
        SQLPostInstallerError(ODBC_ERROR_OUT_OF_MEM, "Bellek yetmedi.");
    } catch (...) {
        SQLPostInstallerError(ODBC_ERROR_REQUEST_FAILED, BeklenmeyenHata.data());
    }
    return false;
}
