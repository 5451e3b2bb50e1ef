#include "BaglantiNesnesi.h"

#include <cstring>

namespace Motor {

void BağlantıNesnesi::Aç(const Öznitelikler& öznitelikler) {
    m_veriKaynağı = öznitelikler.Değer("DSN");
    const auto değer = [&](const char* anahtar) {
        const std::string* verilen = öznitelikler.Bul(anahtar);
        return verilen ? *verilen : VeriKaynağıDeğeri(m_veriKaynağı, anahtar);
    };
    m_yol = değer("DBQ");
    if (m_yol.empty()) throw Hata(Durum::Bağlanamadı, "Veri dosyasının yolu (DBQ) belirtilmemiş.");
    m_veri = std::make_unique<Veritabanı>(m_yol, değer("PWD"));
}

SQLRETURN BağlantıNesnesi::Bağlan(std::string_view veriKaynağı, std::string_view parola) {
    Öznitelikler öznitelikler;
    öznitelikler.Ekle("DSN", std::string(veriKaynağı));
    if (!parola.empty()) öznitelikler.Ekle("PWD", std::string(parola));
    Aç(öznitelikler);
    return SQL_SUCCESS;
}

SQLRETURN BağlantıNesnesi::MetinleBağlan(std::string_view metin, SQLCHAR* çıkış, SQLSMALLINT boy,
                                         SQLSMALLINT* uzunluk) {
    Aç(Öznitelikler::BağlantıMetninden(metin));
    return MetinVer(Tanı, metin, çıkış, boy, uzunluk);
}

SQLRETURN BağlantıNesnesi::Ayrıl() {
    if (m_veri && m_veri->HareketAçık())
        throw Hata(Durum::AçıkHareket, "Onaylanmamış değişiklikler var; bağlantı kapatılamaz.");
    m_bağlılar.clear();
    m_veri.reset();
    return SQL_SUCCESS;
}

void BağlantıNesnesi::Bırak(const BağlıNesne* nesne) noexcept {
    std::erase_if(m_bağlılar, [nesne](const auto& bağlı) { return bağlı.get() == nesne; });
}

Veritabanı& BağlantıNesnesi::Veri() {
    if (!m_veri) throw Hata(Durum::SıraHatası, "Veri dosyasına bağlanılmamış.");
    return *m_veri;
}

SQLRETURN BağlantıNesnesi::HareketiBitir(SQLUSMALLINT tür) {
    Veritabanı& veri = Veri();
    const Nöbet nöbet(veri, m_iptalsiz);
    if (tür == SQL_COMMIT)
        veri.Onayla();
    else
        veri.GeriAl();
    return SQL_SUCCESS;
}

SQLRETURN BağlantıNesnesi::AyarYaz(SQLUSMALLINT ayar, SQLULEN değer) {
    switch (ayar) {
        case SQL_AUTOCOMMIT: {
            Veritabanı& veri = Veri();
            const Nöbet nöbet(veri, m_iptalsiz);
            veri.ElleOnayla(değer == SQL_AUTOCOMMIT_OFF);
            return SQL_SUCCESS;
        }
        case SQL_ACCESS_MODE:
        case SQL_LOGIN_TIMEOUT:
        case SQL_QUIET_MODE:
            return SQL_SUCCESS;
        default:
            throw Hata(Durum::Desteklenmiyor, "Bu bağlantı ayarı desteklenmiyor.");
    }
}

SQLRETURN BağlantıNesnesi::AyarOku(SQLUSMALLINT ayar, SQLPOINTER değer) {
    if (!değer) throw Hata(Durum::BoşGösterge, "Değer için yer verilmemiş.");
    const auto yaz = [değer](SQLUINTEGER sayı) {
        std::memcpy(değer, &sayı, sizeof sayı);
        return SQL_SUCCESS;
    };
    switch (ayar) {
        case SQL_AUTOCOMMIT:
            return yaz(m_veri && m_veri->ElleOnaylanıyor() ? SQL_AUTOCOMMIT_OFF : SQL_AUTOCOMMIT_ON);
        case SQL_ACCESS_MODE:
            return yaz(m_veri && m_veri->SaltOkunur() ? SQL_MODE_READ_ONLY : SQL_MODE_READ_WRITE);
        case SQL_LOGIN_TIMEOUT:
            return yaz(0);
        case SQL_TXN_ISOLATION:
            return yaz(SQL_TXN_SERIALIZABLE);
        default:
            throw Hata(Durum::Desteklenmiyor, "Bu bağlantı ayarı desteklenmiyor.");
    }
}

}  // namespace Motor
