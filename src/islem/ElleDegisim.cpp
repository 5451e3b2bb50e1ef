#include "ElleDegisim.h"

#include <algorithm>

#include "Deyimler.h"
#include "OdbcHareketi.h"
#include "OdbcTanitici.h"

namespace {

std::optional<std::int64_t> Say(OdbcBağlantısı& bağlantı, const QString& deyim) {
    std::int64_t sayı = 0;
    return SayımıOku(bağlantı, deyim, sayı).Başarılı() ? std::optional(sayı) : std::nullopt;
}

}  // namespace

void ElleDeğişim::Hazırla(const QString& malzeme, Para yeni) {
    m_kaydedilir = false;
    m_ayrılar.clear();
    m_yeni = yeni;
    bool bulundu = false;
    bool okundu = m_bağlantı
                      .Oku(Deyimler::MalzemeVeFiyatı(malzeme),
                           [&](OdbcSatırı& satır) {
                               m_malzeme = satır.Metin(1);
                               const std::optional<Para> eski = SaklananPara(satır.Baytlar(2).value_or(""));
                               m_eski = eski.value_or(Para());
                               bulundu = eski.has_value();
                               return false;
                           })
                      .Başarılı();
    const auto hepsi = Say(m_bağlantı, Deyimler::KullanılanSayısı(malzeme));
    const auto katalogdaki = Say(m_bağlantı, Deyimler::KullanılanSayısı(malzeme, m_eski));
    okundu = okundu && hepsi && katalogdaki && FiyatTablolarıVar(m_bağlantı, m_tablolarVar).Tamam() &&
             SıradakiİşlemNo(m_bağlantı, m_tablolarVar, m_no).Tamam();
    if (okundu && *hepsi != *katalogdaki) {
        okundu = m_bağlantı
                     .Oku(Deyimler::MalzemeninKullanımları(malzeme),
                          [this](OdbcSatırı& satır) {
                              const std::optional<Para> fiyat = SaklananPara(satır.Baytlar(4).value_or(""));
                              if (fiyat && *fiyat != m_eski)
                                  m_ayrılar.push_back({satır.Metin(1), satır.Metin(2), m_malzeme, satır.Metin(3),
                                                       TarihYazımı(satır.Metin(5)), *fiyat});
                              return true;
                          })
                     .Başarılı();
    }
    m_okunamadı = !okundu;
    m_kaydedilir = okundu && bulundu && (m_eski != m_yeni || !m_ayrılar.empty());
}

bool ElleDeğişim::Kaydet(const Yazılan& yazılan, const Deyimler::Fiyat::İşlem& işlem) {
    if (!İşlemiYaz(m_bağlantı, m_tablolarVar, işlem).Tamam()) return false;
    if (!m_bağlantı.Çalıştır(Deyimler::Fiyat::DeğişimEkle({m_no, m_malzeme, m_eski, m_yeni})).Başarılı()) return false;
    if (!yazılan.Ürünlerde) return true;
    return std::all_of(m_ayrılar.begin(), m_ayrılar.end(), [this](const KullanılanSatır& satır) {
        return m_bağlantı.Çalıştır(Deyimler::Fiyat::AyrıSatırEkle(m_no, satır)).Başarılı();
    });
}

ElleDeğişim::Son ElleDeğişim::Yürüt(const std::function<Yazılan()>& deyimler, const QString& açıklama,
                                    const QString& zaman, OdbcSonucu& hata) {
    OdbcHareketi hareket(m_bağlantı);
    hata = hareket.Başla();
    if (!hata.Başarılı()) return Son::Yazılamadı;
    const Yazılan yazılan = deyimler();
    const Deyimler::Fiyat::İşlem işlem{m_no, zaman, TürSözcüğü(İşlemTürü::Elle), açıklama};
    const bool kaydedildi = m_kaydedilir && yazılan.Katalogda ? Kaydet(yazılan, işlem) : !m_okunamadı;
    if (!yazılan.Katalogda && !yazılan.Ürünlerde) return Son::Yazılamadı;  // told already
    hata = hareket.Onayla();
    if (!hata.Başarılı()) return Son::Yazılamadı;
    return kaydedildi ? Son::Tamam : Son::Kaydedilemedi;
}
