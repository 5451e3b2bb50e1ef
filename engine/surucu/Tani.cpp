#include "Tani.h"

#include "Utf8.h"

#include <algorithm>
#include <cstring>
#include <limits>

namespace Motor {

void Tanılar::Ekle(const Hata& hata) noexcept {
    if (m_sayı < m_kayıtlar.size()) m_kayıtlar[m_sayı++] = hata;
}

SQLRETURN Tanılar::Al(SQLCHAR* durum, SQLINTEGER* yerel, SQLCHAR* mesaj, SQLSMALLINT boy,
                      SQLSMALLINT* uzunluk) noexcept {
    if (m_sayı == 0) {
        MetinKopyala("00000", durum, SQL_SQLSTATE_SIZE + 1);
        MetinKopyala("", mesaj, boy);
        if (uzunluk) *uzunluk = 0;
        return SQL_NO_DATA;
    }
    const Hata& hata = m_kayıtlar.front();
    MetinKopyala(hata.Durum(), durum, SQL_SQLSTATE_SIZE + 1);
    if (yerel) *yerel = hata.Yerel();
    const bool kesildi = MetinKopyala(hata.Mesaj(), mesaj, boy);
    if (uzunluk) *uzunluk = KısaUzunluk(hata.Mesaj().size());
    std::copy(m_kayıtlar.begin() + 1, m_kayıtlar.begin() + m_sayı, m_kayıtlar.begin());
    --m_sayı;
    return kesildi ? SQL_SUCCESS_WITH_INFO : SQL_SUCCESS;
}

bool MetinKopyala(std::string_view metin, void* tampon, SQLLEN boy) noexcept {
    if (!tampon || boy <= 0) return false;
    const std::string_view sığan = BütünKarakterlerleKes(metin, static_cast<std::size_t>(boy) - 1);
    auto* hedef = static_cast<char*>(tampon);
    std::memcpy(hedef, sığan.data(), sığan.size());
    hedef[sığan.size()] = '\0';
    return sığan.size() < metin.size();
}

SQLSMALLINT KısaUzunluk(std::size_t uzunluk) noexcept {
    constexpr std::size_t enÇok = std::numeric_limits<SQLSMALLINT>::max();
    return static_cast<SQLSMALLINT>(std::min(uzunluk, enÇok));
}

SQLRETURN MetinVer(Tanılar& tanılar, std::string_view metin, void* tampon, SQLSMALLINT boy, SQLSMALLINT* uzunluk) {
    if (uzunluk) *uzunluk = KısaUzunluk(metin.size());
    if (!MetinKopyala(metin, tampon, boy)) return SQL_SUCCESS;
    tanılar.Ekle(Hata(Durum::Kesildi, "Metin tampona sığmadığı için kesildi."));
    return SQL_SUCCESS_WITH_INFO;
}

std::string_view MetinAl(const SQLCHAR* metin, SQLINTEGER uzunluk) {
    const auto* harfler = reinterpret_cast<const char*>(metin);
    if (!harfler) return {};
    if (uzunluk == SQL_NTS) return harfler;
    if (uzunluk < 0) throw Hata(Durum::TamponUzunluğu, "Metnin uzunluğu geçersiz.");
    return {harfler, static_cast<std::size_t>(uzunluk)};
}

}  // namespace Motor
