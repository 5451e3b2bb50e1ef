#include "Donusum.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>

#include "Utf8.h"
#include "VeriDosyasi.h"

using namespace Qt::StringLiterals;

namespace Erişim {

namespace {

constexpr std::int64_t YOK_TARİH = 19000101;

std::string_view Kısalt(std::string_view metin) {
    constexpr std::size_t enÇok = 60;
    return BütünKarakterlerleKes(metin, enÇok);
}

std::string OndalıkMetni(const Ondalık& sayı) {
    std::string metin = sayı.Eksi ? "-" : "";
    metin += sayı.Tam();
    if (sayı.Basamak > 0) metin.append(",").append(sayı.Kesir());
    return metin;
}

std::string ParaMetni(std::int64_t onBindeBir, char virgül) {
    std::array<char, ÖlçekMetniBoyu> tampon;
    return {tampon.data(), ÖlçektenYaz(onBindeBir, virgül, tampon.data())};
}

std::string TarihMetni(std::int64_t gün) {
    std::array<char, 24> tampon;
    const int boy = std::snprintf(tampon.data(), tampon.size(), "%02d.%02d.%04d", static_cast<int>(gün % 100),
                                  static_cast<int>(gün / 100 % 100), static_cast<int>(gün / 10000));
    return {tampon.data(), static_cast<std::size_t>(boy)};
}

// Names stand between apostrophes in statements, and a text is one line. A line break of two characters is one.
std::string YazılabilirYap(std::string_view metin) {
    std::string yeni;
    for (std::size_t i = 0; i < metin.size(); ++i) {
        if (metin[i] == '\'') {
            yeni += "’";
        } else if (metin[i] == '\r' || metin[i] == '\n') {
            if (metin[i] == '\r' && i + 1 < metin.size() && metin[i + 1] == '\n') ++i;
            yeni += ' ';
        } else {
            yeni += metin[i];
        }
    }
    return yeni;
}

bool YuvarlanırMı(const Ondalık& sayı) {
    constexpr std::size_t basamak = 4;
    return sayı.Basamak > basamak && sayı.Kesir().substr(basamak).find_first_not_of('0') != std::string_view::npos;
}

}  // namespace

void Değer::YazımEkle(std::string& deyim) const {
    switch (Ne) {
        case Anlam::Metin:
            deyim.append("'").append(Metin).append("'");
            return;
        case Anlam::Fiyat:
            deyim.append("'").append(ParaMetni(Sayı, ',')).append("'");
            return;
        case Anlam::Yüzde:
            deyim.append("'").append(OndalıkMetni(EnKısaOndalık(Double))).append("'");
            return;
        case Anlam::Tarih:
            break;
    }
    std::array<char, 24> tampon;
    const int boy = std::snprintf(tampon.data(), tampon.size(), "#%d/%d/%04d#", static_cast<int>(Sayı / 100 % 100),
                                  static_cast<int>(Sayı % 100), static_cast<int>(Sayı / 10000));
    deyim.append(tampon.data(), static_cast<std::size_t>(boy));
}

bool Değer::Aynı(std::string_view okunan) const {
    switch (Ne) {
        case Anlam::Metin:
            return okunan == Metin;
        case Anlam::Fiyat:
            return okunan == ParaMetni(Sayı, '.');
        case Anlam::Yüzde: {
            double sayı = 0;
            const auto sonuç = std::from_chars(okunan.data(), okunan.data() + okunan.size(), sayı);
            return sonuç.ec == std::errc() && sonuç.ptr == okunan.data() + okunan.size() && sayı == Double;
        }
        case Anlam::Tarih:
            break;
    }
    std::array<char, 32> tampon;
    const int boy =
        std::snprintf(tampon.data(), tampon.size(), "%04d-%02d-%02d 00:00:00", static_cast<int>(Sayı / 10000),
                      static_cast<int>(Sayı / 100 % 100), static_cast<int>(Sayı % 100));
    return okunan == std::string_view(tampon.data(), static_cast<std::size_t>(boy));
}

SatırAkışı::SatırAkışı(const std::string& yol, bool jet3, DeğişiklikListesi& liste)
    : m_jet3(jet3), m_liste(liste), m_okuma(yol) {}

std::uint64_t SatırAkışı::BeklenenSatır() const {
    std::uint64_t sayı = 0;
    for (const Tablo tablo : {MalzemeTablosu, ÜrünTablosu, KullanımTablosu}) sayı += m_okuma.TabloBilgisi(tablo).Satır;
    return sayı;
}

bool SatırAkışı::Sonraki(Tablo tablo, Satır& satır) {
    if (tablo == MalzemeTablosu) {
        if (!m_malzemelerOkundu) MalzemeleriOku();
        while (m_sıradakiMalzeme < m_malzemeler.size() && !m_malzemeler[m_sıradakiMalzeme].Alınır) ++m_sıradakiMalzeme;
        if (m_sıradakiMalzeme == m_malzemeler.size()) return false;
        const Malzeme& malzeme = m_malzemeler[m_sıradakiMalzeme++];
        satır[0] = {Anlam::Metin, malzeme.Ad, 0, 0};
        satır[1] = {Anlam::Fiyat, {}, malzeme.Fiyat, 0};
        return true;
    }
    if (!HamOku(tablo)) return false;
    for (std::size_t i = 0; i < TABLOLAR[tablo].Sütunlar.size(); ++i) Çevir(tablo, i, satır[i]);
    if (tablo != KullanımTablosu || m_yeniAdlar.empty()) return true;
    constexpr std::size_t adSütunu = 3;
    const std::string kaynakAdı = m_ham[adSütunu] ? MetniÇöz(*m_ham[adSütunu], m_jet3).Metin : std::string();
    const auto yeni = m_yeniAdlar.find(kaynakAdı);
    if (yeni == m_yeniAdlar.end()) return true;
    Bildir(Neden::AyrılanAd, tablo, adSütunu, kaynakAdı, yeni->second);
    satır[adSütunu].Metin = yeni->second;
    return true;
}

// The next row that holds anything.
bool SatırAkışı::HamOku(Tablo tablo) {
    if (m_tablo != tablo) m_sıra = 0;
    m_tablo = tablo;
    while (m_okuma.Sonraki(tablo, m_ham)) {
        ++m_sıra;
        const auto sütunlar = TABLOLAR[tablo].Sütunlar.size();
        if (std::any_of(m_ham.begin(), m_ham.begin() + sütunlar, [](const auto& hücre) { return hücre.has_value(); }))
            return true;
        m_liste.Ekle(Neden::BoşSatır, Nerede(tablo), {}, {});
    }
    return false;
}

void SatırAkışı::Çevir(Tablo tablo, std::size_t sütun, Değer& değer) {
    değer.Ne = TABLOLAR[tablo].Sütunlar[sütun].Ne;
    switch (değer.Ne) {
        case Anlam::Metin:
            return MetniÇevir(tablo, sütun, değer);
        case Anlam::Fiyat:
            return FiyatıÇevir(tablo, sütun, değer);
        case Anlam::Yüzde:
            return YüzdeyiÇevir(tablo, sütun, değer);
        case Anlam::Tarih:
            return TarihiÇevir(tablo, sütun, değer);
    }
}

void SatırAkışı::MetniÇevir(Tablo tablo, std::size_t sütun, Değer& değer) {
    değer.Metin.clear();
    if (!m_ham[sütun]) return Bildir(Neden::Boş, tablo, sütun, {}, {});
    ÇözülenMetin çözülen = MetniÇöz(*m_ham[sütun], m_jet3);
    const bool yazılamaz = çözülen.Metin.find_first_of("'\r\n") != std::string::npos;
    değer.Metin = yazılamaz ? YazılabilirYap(çözülen.Metin) : çözülen.Metin;
    if (değer.Metin.size() > EN_UZUN_METİN && Utf16Uzunluğu(değer.Metin) > EN_UZUN_METİN)
        throw VeriHatası(
            u"%1 tablosunun %2 sütununda %3 karakterden uzun bir metin var: \"%4…\" Dosya değişmedi."_s.arg(
                QString::fromUtf8(TABLOLAR[tablo].Ad), QString::fromUtf8(TABLOLAR[tablo].Sütunlar[sütun].Ad),
                QString::number(EN_UZUN_METİN), QString::fromUtf8(Kısalt(değer.Metin))));
    if (yazılamaz || çözülen.Değiştirildi) Bildir(Neden::KesmeVeSatır, tablo, sütun, çözülen.Metin, değer.Metin);
}

void SatırAkışı::FiyatıÇevir(Tablo tablo, std::size_t sütun, Değer& değer) {
    değer.Sayı = 0;
    if (!m_ham[sütun]) return Bildir(Neden::Boş, tablo, sütun, {}, "0");
    const HamTablo& bilgi = m_okuma.TabloBilgisi(tablo);
    const auto sayı = SayıyıÇöz(bilgi.Türler[sütun], bilgi.Ölçekler[sütun], *m_ham[sütun], m_jet3);
    const auto para = sayı ? Ölçeğe(*sayı) : std::nullopt;
    if (!para) return Bildir(Neden::Okunamayan, tablo, sütun, EskiMetin(tablo, sütun), "0");
    değer.Sayı = *para;
    if (YuvarlanırMı(*sayı)) Bildir(Neden::Yuvarlanan, tablo, sütun, OndalıkMetni(*sayı), ParaMetni(*para, ','));
}

void SatırAkışı::YüzdeyiÇevir(Tablo tablo, std::size_t sütun, Değer& değer) {
    değer.Double = 0;
    if (!m_ham[sütun]) return Bildir(Neden::Boş, tablo, sütun, {}, "0");
    const HamTablo& bilgi = m_okuma.TabloBilgisi(tablo);
    const HücreTürü tür = bilgi.Türler[sütun];
    std::optional<double> yüzde;
    if (tür == HücreTürü::Çift) {
        yüzde = DoubleÇöz(*m_ham[sütun]);
    } else if (const auto sayı = SayıyıÇöz(tür, bilgi.Ölçekler[sütun], *m_ham[sütun], m_jet3)) {
        yüzde = EnYakınDouble(*sayı);
    }
    if (!yüzde || std::abs(*yüzde) > EN_BÜYÜK_YÜZDE)
        return Bildir(Neden::Okunamayan, tablo, sütun, EskiMetin(tablo, sütun), "0");
    değer.Double = *yüzde + 0.0;  // no negative zero
    if (tür != HücreTürü::Tek) return;
    const double eski = TekÇöz(*m_ham[sütun]).value_or(0);
    if (eski != *yüzde)
        Bildir(Neden::TekDuyarlık, tablo, sütun, OndalıkMetni(EnKısaOndalık(eski)),
               OndalıkMetni(EnKısaOndalık(*yüzde)));
}

void SatırAkışı::TarihiÇevir(Tablo tablo, std::size_t sütun, Değer& değer) {
    değer.Sayı = YOK_TARİH;
    if (!m_ham[sütun]) return Bildir(Neden::Boş, tablo, sütun, {}, TarihMetni(YOK_TARİH));
    const auto tarih = TarihiÇöz(*m_ham[sütun]);
    if (!tarih) return Bildir(Neden::Okunamayan, tablo, sütun, EskiMetin(tablo, sütun), TarihMetni(YOK_TARİH));
    değer.Sayı = tarih->Gün;
    if (tarih->SaatiVar) Bildir(Neden::Saat, tablo, sütun, EskiMetin(tablo, sütun), TarihMetni(tarih->Gün));
}

// How a value that is not stored as it stands looked: its text, or its number as far as it is one.
std::string SatırAkışı::EskiMetin(Tablo tablo, std::size_t sütun) const {
    const HamTablo& bilgi = m_okuma.TabloBilgisi(tablo);
    const std::string_view baytlar = *m_ham[sütun];
    const HücreTürü tür = bilgi.Türler[sütun];
    if (tür == HücreTürü::Metin || tür == HücreTürü::UzunMetin) return MetniÇöz(baytlar, m_jet3).Metin;
    if (tür == HücreTürü::Tarih) {
        const auto değer = DoubleÇöz(baytlar);
        return değer ? OndalıkMetni(EnKısaOndalık(*değer)) + " (gün sayısı)" : "(sayı değil)";
    }
    const auto sayı = SayıyıÇöz(tür, bilgi.Ölçekler[sütun], baytlar, m_jet3);
    return sayı ? OndalıkMetni(*sayı) : "(sayı değil)";
}

std::string SatırAkışı::Nerede(Tablo tablo) const {
    return std::string(TABLOLAR[tablo].Ad) + " " + std::to_string(m_sıra) + ". satır";
}

void SatırAkışı::Bildir(Neden neden, Tablo tablo, std::size_t sütun, std::string_view eski, std::string_view yeni) {
    std::string nerede = Nerede(tablo) + ", ";
    // The row's names, by which the user finds it.
    for (std::size_t i = 0; i < TABLOLAR[tablo].Sütunlar.size(); ++i) {
        const std::string_view ad = TABLOLAR[tablo].Sütunlar[i].Ad;
        if (TABLOLAR[tablo].Sütunlar[i].Ne != Anlam::Metin || ad == "KullanilanMalzemeMiktari" || !m_ham[i]) continue;
        nerede += MetniÇöz(*m_ham[i], m_jet3).Metin + " / ";
    }
    m_liste.Ekle(neden, nerede + std::string(TABLOLAR[tablo].Sütunlar[sütun].Ad), eski, yeni);
}

void SatırAkışı::MalzemeleriOku() {
    Değer ad;
    Değer fiyat;
    while (HamOku(MalzemeTablosu)) {
        Çevir(MalzemeTablosu, 0, ad);
        Çevir(MalzemeTablosu, 1, fiyat);
        std::string kaynakAdı = m_ham[0] ? MetniÇöz(*m_ham[0], m_jet3).Metin : std::string();
        m_malzemeler.push_back({std::move(kaynakAdı), ad.Metin, fiyat.Sayı, true});
    }
    m_malzemelerOkundu = true;
    AynıAdlılarıAyır();
}

// The data file takes a name once, and compares names without regard to case. A material that another one is already is
// left out if it costs the same; otherwise it gets a name of its own, and so do the rows that spell it as it does.
void SatırAkışı::AynıAdlılarıAyır() {
    AdDizini adlar;
    std::vector<std::uint32_t> sonrakiler;
    for (std::uint32_t i = 0; i < m_malzemeler.size(); ++i)
        if (adlar.BulYaDaEkle(m_malzemeler[i].Ad, i) != i) sonrakiler.push_back(i);
    // By the first of its name: those that have got a name of their own.
    std::unordered_map<std::uint32_t, std::vector<std::uint32_t>> aynılar;
    for (const std::uint32_t i : sonrakiler) {
        Malzeme& malzeme = m_malzemeler[i];
        const std::uint32_t ilk = adlar.Bul(malzeme.Ad);
        std::vector<std::uint32_t>& ayrılanlar = aynılar[ilk];
        const auto aynıFiyatlı = std::find_if(ayrılanlar.begin(), ayrılanlar.end(), [&](std::uint32_t ayrılan) {
            return m_malzemeler[ayrılan].Fiyat == malzeme.Fiyat;
        });
        const std::string nerede = std::string(TABLOLAR[MalzemeTablosu].Ad) + ", MalzemeAdi";
        const std::string eskiAd = malzeme.Ad;
        if (malzeme.Fiyat == m_malzemeler[ilk].Fiyat || aynıFiyatlı != ayrılanlar.end()) {
            malzeme.Alınır = false;
            malzeme.Ad = aynıFiyatlı == ayrılanlar.end() ? m_malzemeler[ilk].Ad : m_malzemeler[*aynıFiyatlı].Ad;
            m_liste.Ekle(Neden::BirleşenMalzeme, nerede, eskiAd, malzeme.Ad);
            if (aynıFiyatlı == ayrılanlar.end()) continue;
        } else {
            malzeme.Ad = AyrıAd(malzeme, adlar);
            adlar.BulYaDaEkle(malzeme.Ad, i);
            ayrılanlar.push_back(i);
            m_liste.Ekle(Neden::AyrılanAd, nerede, eskiAd, malzeme.Ad);
        }
        // Rows that spell it as the first one stay with that.
        if (malzeme.KaynakAdı != m_malzemeler[ilk].KaynakAdı) m_yeniAdlar.emplace(malzeme.KaynakAdı, malzeme.Ad);
    }
}

std::string SatırAkışı::AyrıAd(const Malzeme& malzeme, AdDizini& adlar) const {
    for (int sıra = 2;; ++sıra) {
        std::string ad = malzeme.Ad + " (" + std::to_string(sıra) + ")";
        if (Utf16Uzunluğu(ad) > EN_UZUN_METİN)
            throw VeriHatası(
                u"MalzemeTablosu tablosunda iki kez duran bir malzemenin adı ayrılamayacak kadar uzun: "
                u"\"%1…\" Dosya değişmedi."_s.arg(QString::fromUtf8(Kısalt(malzeme.Ad))));
        if (adlar.Bul(ad) == AdDizini::YOK) return ad;
    }
}

}  // namespace Erişim
