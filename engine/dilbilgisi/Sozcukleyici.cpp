#include "Sozcukleyici.h"

#include "DegerMetni.h"
#include "Hata.h"
#include "Utf8.h"

#include <charconv>

namespace Motor {

namespace {

bool Boşluk(char harf) {
    return harf == ' ' || harf == '\t' || harf == '\r' || harf == '\n';
}
bool RakamMı(char harf) {
    return harf >= '0' && harf <= '9';
}

// Takes a number of at most `azami` digits off the front; -1 when there is none.
int SayıAl(std::string_view& metin, std::size_t azami) {
    std::size_t uzunluk = 0;
    while (uzunluk < metin.size() && uzunluk <= azami && RakamMı(metin[uzunluk])) ++uzunluk;
    int sayı = -1;
    if (uzunluk <= azami) std::from_chars(metin.data(), metin.data() + uzunluk, sayı);
    metin.remove_prefix(uzunluk);
    return sayı;
}

bool İşaretAl(std::string_view& metin, char işaret) {
    if (metin.empty() || metin.front() != işaret) return false;
    metin.remove_prefix(1);
    return true;
}

// m/d/yyyy, the year with four digits; 0 when it is no date.
std::int64_t TarihÇöz(std::string_view metin) {
    const int ay = SayıAl(metin, 2);
    if (!İşaretAl(metin, '/')) return 0;
    const int gün = SayıAl(metin, 2);
    if (!İşaretAl(metin, '/') || metin.size() != 4) return 0;
    const int yıl = SayıAl(metin, 4);
    return metin.empty() ? TarihOluştur(yıl, ay, gün) : 0;
}

}  // namespace

bool Sözcükleyici::AdHarfi(char harf) noexcept {
    return (harf >= 'A' && harf <= 'Z') || (harf >= 'a' && harf <= 'z') || harf == '_' || RakamMı(harf);
}

std::size_t Sözcükleyici::KarakterSırası(std::string_view metin, std::size_t yer) noexcept {
    std::size_t sıra = 1;
    for (const char harf : metin.substr(0, yer))
        if ((static_cast<unsigned char>(harf) & 0xC0) != 0x80) ++sıra;
    return sıra;
}

bool Sözcükleyici::Rakam(std::size_t yer) const {
    return yer < m_metin.size() && RakamMı(m_metin[yer]);
}

Sözcük Sözcükleyici::Oku(SözcükTürü tür, std::size_t son) {
    const Sözcük sözcük{tür, m_metin.substr(m_yer, son - m_yer), 0, m_yer};
    m_yer = son;
    return sözcük;
}

void Sözcükleyici::KesmeİşaretiHatası() {
    throw Hata(Durum::SözDizimi,
               "Adlarda kesme işareti (') kullanılamaz; işlem yapılmadı. İşareti silip yeniden deneyin.");
}

Sözcük Sözcükleyici::MetinOku() {
    const std::size_t son = m_metin.find('\'', m_yer + 1);
    const bool çift = son != std::string_view::npos && son + 1 < m_metin.size() && m_metin[son + 1] == '\'';
    if (son == std::string_view::npos || çift) KesmeİşaretiHatası();
    Sözcük sözcük = Oku(SözcükTürü::Metin, son + 1);
    sözcük.Metin = sözcük.Metin.substr(1, sözcük.Metin.size() - 2);
    if (!Utf8Geçerli(sözcük.Metin) || sözcük.Metin.find('\0') != std::string_view::npos)
        throw Hata(Durum::SözDizimi, "Deyim anlaşılamadı: metinde geçersiz karakter var.");
    return sözcük;
}

Sözcük Sözcükleyici::TarihOku() {
    const std::size_t son = m_metin.find('#', m_yer + 1);
    if (son == std::string_view::npos)
        throw Hata(Durum::SözDizimi, "Deyim anlaşılamadı: # ile başlayan tarih kapatılmamış.");
    Sözcük sözcük = Oku(SözcükTürü::Tarih, son + 1);
    sözcük.Tarih = TarihÇöz(sözcük.Metin.substr(1, sözcük.Metin.size() - 2));
    if (sözcük.Tarih == 0)
        throw Hata(Durum::TarihBozuk, "Tarih geçersiz; tarihler #ay/gün/yıl# biçiminde ve takvimde var olmalıdır.");
    return sözcük;
}

Sözcük Sözcükleyici::SayıOku() {
    std::size_t son = m_yer + 1;
    while (Rakam(son)) ++son;
    if (son < m_metin.size() && m_metin[son] == '.' && Rakam(son + 1)) {
        ++son;
        while (Rakam(son)) ++son;
    }
    return Oku(SözcükTürü::Sayı, son);
}

Sözcük Sözcükleyici::Sonraki() {
    while (m_yer < m_metin.size() && Boşluk(m_metin[m_yer])) ++m_yer;
    if (m_yer == m_metin.size()) return Oku(SözcükTürü::Son, m_yer);
    const char harf = m_metin[m_yer];
    if (harf == '\'') return MetinOku();
    if (harf == '#') return TarihOku();
    if (RakamMı(harf) || ((harf == '-' || harf == '+') && Rakam(m_yer + 1))) return SayıOku();
    if (AdHarfi(harf)) {
        std::size_t son = m_yer;
        while (son < m_metin.size() && AdHarfi(m_metin[son])) ++son;
        return Oku(SözcükTürü::Ad, son);
    }
    return Oku(SözcükTürü::İşaret, m_yer + 1);
}

}  // namespace Motor
