#include "DeyimNesnesi.h"

#include "SqlTurleri.h"
#include "Utf8.h"

#include <algorithm>
#include <cstring>

namespace Motor {

namespace {

Hata TürOkunmaz() {
    return {Durum::Desteklenmiyor, "Değerler yalnızca metin (SQL_C_CHAR) olarak okunabilir."};
}

Hata BoyGeçersiz() {
    return {Durum::TamponUzunluğu, "Tamponun boyu geçersiz."};
}

void BoşVer(SQLLEN* uzunluk) {
    if (!uzunluk) throw Hata(Durum::BoşGösterge, "Boş (NULL) değer için uzunluk göstergesi verilmemiş.");
    *uzunluk = SQL_NULL_DATA;
}

}  // namespace

SQLRETURN DeyimNesnesi::Hazırla(std::string_view metin) {
    const Nöbet nöbet(m_veri, m_iptal);
    YenidenBaşla();
    m_komut.reset();
    m_komut = m_veri.Çevir(metin);
    return SQL_SUCCESS;
}

SQLRETURN DeyimNesnesi::HazırıÇalıştır() {
    const Nöbet nöbet(m_veri, m_iptal);
    YenidenBaşla();
    if (!m_komut) throw Hata(Durum::SıraHatası, "Hazırlanmış bir deyim yok.");
    return Başlat(*m_komut);
}

SQLRETURN DeyimNesnesi::Çalıştır(std::string_view metin) {
    const Nöbet nöbet(m_veri, m_iptal);
    YenidenBaşla();
    return Başlat(m_veri.Çevir(metin));
}

SQLRETURN DeyimNesnesi::TablolarıListele(std::string_view tablo, std::string_view türler) {
    const Nöbet nöbet(m_veri, m_iptal);
    YenidenBaşla();
    return Başlat(TablolarKomutu(tablo, türler));
}

SQLRETURN DeyimNesnesi::SütunlarıListele(std::string_view tablo, std::string_view sütun) {
    const Nöbet nöbet(m_veri, m_iptal);
    YenidenBaşla();
    return Başlat(SütunlarKomutu(tablo, sütun));
}

void DeyimNesnesi::YenidenBaşla() {
    İmleciKapat();
    m_iptal = false;
    m_iplik = std::this_thread::get_id();
    m_veri.Hazırlan();
}

// A query's first row is fetched at once: a locked or damaged file shows while the statement is executed, where clients
// look for errors. A query without rows gives the file's lock back at once.
SQLRETURN DeyimNesnesi::Başlat(SqliteKomutu komut) {
    m_komut = std::move(komut);
    m_bağlılarUygun = false;
    if (m_komut->Tür != SqliteKomutu::Sınıf::Sorgu) {
        m_etkilenen = m_veri.Uygula(*m_komut);
        return SQL_SUCCESS;
    }
    Sorgu sorgu = m_veri.Sorgula(*m_komut);
    m_ilkSatırBekliyor = sorgu.Adım();
    m_sorgu = std::move(sorgu);
    m_bitti = !m_ilkSatırBekliyor;
    return SQL_SUCCESS;
}

void DeyimNesnesi::İmleciKapat() noexcept {
    m_sorgu.reset();
    m_etkilenen = -1;
    m_ilkSatırBekliyor = m_satırda = m_bitti = false;
    m_okunanSütun = 0;
}

SQLRETURN DeyimNesnesi::Kapat(SQLUSMALLINT seçenek) {
    const Nöbet nöbet(m_veri, m_iptal);
    if (seçenek == SQL_CLOSE) İmleciKapat();
    if (seçenek == SQL_UNBIND) m_bağlılar.clear();
    return SQL_SUCCESS;
}

void DeyimNesnesi::Kes() noexcept {
    // From another thread only the flag is raised: that of the statement's work may be reading its row just now.
    if (m_iplik != std::this_thread::get_id() || !m_veri.NöbetAl(m_iptal)) {
        m_iptal = true;
        return;
    }
    İmleciKapat();
    m_veri.NöbetBırak();
}

void DeyimNesnesi::Bırak() noexcept {
    {
        const Nöbet nöbet(m_veri, m_iptal);
        İmleciKapat();
    }
    m_bağlantı.Bırak(this);
}

SQLRETURN DeyimNesnesi::Getir() {
    const Nöbet nöbet(m_veri, m_iptal);
    if (m_iptal.load(std::memory_order_relaxed)) {
        m_iptal = false;
        İmleciKapat();
        throw Hata(Durum::İptal, "İşlem iptal edildi.");
    }
    if (!m_sorgu) throw Hata(Durum::İmleçDurumu, "Okunacak bir sorgu sonucu yok.");
    m_okunanSütun = 0;
    m_satırda = false;
    if (m_bitti) return SQL_NO_DATA;
    if (m_ilkSatırBekliyor)
        m_ilkSatırBekliyor = false;
    else
        m_bitti = !m_sorgu->Adım();
    m_satırda = !m_bitti;
    return m_satırda ? BağlılarıDoldur() : SQL_NO_DATA;
}

SQLRETURN DeyimNesnesi::Bağla(SQLUSMALLINT sütun, SQLSMALLINT hedefTürü, SQLPOINTER tampon, SQLLEN boy,
                              SQLLEN* uzunluk) {
    // Before a statement is executed its columns' types are not known: the first row is where those are looked at.
    if (sütun == 0 || (m_sorgu && tampon)) static_cast<void>(Sütun(sütun));
    if (hedefTürü != SQL_C_CHAR && hedefTürü != SQL_C_DEFAULT) throw TürOkunmaz();
    if (boy < 0) throw BoyGeçersiz();
    const auto yer = std::find_if(m_bağlılar.begin(), m_bağlılar.end(),
                                  [sütun](const BağlıSütun& bağlı) { return bağlı.Sıra == sütun; });
    if (yer != m_bağlılar.end()) m_bağlılar.erase(yer);
    m_bağlılarUygun = false;
    if (tampon) m_bağlılar.push_back({sütun, hedefTürü, tampon, boy, uzunluk});
    return SQL_SUCCESS;
}

SQLRETURN DeyimNesnesi::BağlılarıDoldur() {
    if (!m_bağlılarUygun) {
        for (const BağlıSütun& bağlı : m_bağlılar) MetinOlarakOkunur(bağlı.Sıra, bağlı.Tür);
        m_bağlılarUygun = true;
    }
    SQLRETURN sonuç = SQL_SUCCESS;
    for (const BağlıSütun& bağlı : m_bağlılar) {
        char yer[DeğerMetniBoyu];
        const std::optional<std::string_view> değer = m_sorgu->Metin(bağlı.Sıra - 1u, yer);
        if (!değer) {
            BoşVer(bağlı.Uzunluk);
        } else if (static_cast<SQLLEN>(değer->size()) < bağlı.Boy) {
            std::memcpy(bağlı.Tampon, değer->data(), değer->size());
            static_cast<char*>(bağlı.Tampon)[değer->size()] = '\0';
            if (bağlı.Uzunluk) *bağlı.Uzunluk = static_cast<SQLLEN>(değer->size());
        } else if (ParçaVer(*değer, bağlı.Tampon, bağlı.Boy, bağlı.Uzunluk) != SQL_SUCCESS) {
            sonuç = SQL_SUCCESS_WITH_INFO;
        }
    }
    return sonuç;
}

void DeyimNesnesi::MetinOlarakOkunur(SQLUSMALLINT sütun, SQLSMALLINT hedefTürü) const {
    const SütunTürü tür = Sütun(sütun).Tür;
    if (hedefTürü == SQL_C_CHAR) return;
    if (hedefTürü != SQL_C_DEFAULT || (tür != SütunTürü::Metin && tür != SütunTürü::Para)) throw TürOkunmaz();
}

SQLRETURN DeyimNesnesi::VeriAl(SQLUSMALLINT sütun, SQLSMALLINT hedefTürü, SQLPOINTER tampon, SQLLEN boy,
                               SQLLEN* uzunluk) {
    if (!m_satırda) throw Hata(Durum::İmleçDurumu, "Okunacak bir satır yok.");
    MetinOlarakOkunur(sütun, hedefTürü);
    if (boy < 0) throw BoyGeçersiz();

    char yer[DeğerMetniBoyu];
    const std::optional<std::string_view> değer = m_sorgu->Metin(sütun - 1u, yer);
    if (!değer) {
        BoşVer(uzunluk);
        return SQL_SUCCESS;
    }
    std::string_view metin = *değer;
    if (m_okunanSütun == sütun) {
        if (m_okunanBayt == metin.size()) return SQL_NO_DATA;
        metin.remove_prefix(m_okunanBayt);
    } else {
        m_okunanSütun = sütun;
        m_okunanBayt = 0;
    }
    return ParçaVer(metin, tampon, boy, uzunluk);
}

SQLRETURN DeyimNesnesi::ParçaVer(std::string_view metin, SQLPOINTER tampon, SQLLEN boy, SQLLEN* uzunluk) {
    if (uzunluk) *uzunluk = static_cast<SQLLEN>(metin.size());
    const std::size_t yer = tampon && boy > 0 ? static_cast<std::size_t>(boy) - 1 : 0;
    std::string_view parça = metin.size() <= yer ? metin : BütünKarakterlerleKes(metin, yer);
    // A buffer too small for even one character gets its bytes, so that a reading loop comes to an end.
    if (parça.empty()) parça = metin.substr(0, yer);
    if (tampon && boy > 0) {
        std::memcpy(tampon, parça.data(), parça.size());
        static_cast<char*>(tampon)[parça.size()] = '\0';
    }
    m_okunanBayt += parça.size();
    if (parça.size() == metin.size()) return SQL_SUCCESS;
    Tanı.Ekle(Hata(Durum::Kesildi, "Değer tampona sığmadığı için kesildi."));
    return SQL_SUCCESS_WITH_INFO;
}

SQLRETURN DeyimNesnesi::SütunSayısı(SQLSMALLINT* sayı) {
    if (sayı) *sayı = m_komut ? KısaUzunluk(m_komut->Sütunlar.size()) : 0;
    return SQL_SUCCESS;
}

SQLRETURN DeyimNesnesi::EtkilenenSatır(SQLLEN* sayı) {
    if (sayı) *sayı = static_cast<SQLLEN>(m_etkilenen);
    return SQL_SUCCESS;
}

}  // namespace Motor
