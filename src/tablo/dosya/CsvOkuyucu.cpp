#include "CsvOkuyucu.h"

#include <QFile>
#include <QHash>
#include <algorithm>
#include <array>
#include <string>
#include <vector>

namespace {

constexpr std::array Ayraçlar = {';', '\t', ','};  // the likelier first: "," stands in Turkish prices
constexpr int BakılanSatır = 50;

std::string_view Görünüm(const QByteArray& baytlar) {
    return {baytlar.constData(), static_cast<std::size_t>(baytlar.size())};
}

// Cuts a text into rows of cells.
class CsvKesici {
  public:
    CsvKesici(std::string_view metin, char ayraç) : m_metin(metin), m_ayraç(ayraç) {}

    // The next row's cells; false behind the last one.
    bool Sıradaki(std::vector<std::string>& hücreler) {
        hücreler.clear();
        if (m_yer >= m_metin.size()) return false;
        do {
            // Behind the allowed columns one more stands for all others.
            if (hücreler.size() <= EnÇokSütun) hücreler.emplace_back();
            HücreyiAl(hücreler.back());
        } while (m_yer < m_metin.size() && m_metin[m_yer] == m_ayraç && ++m_yer);
        if (m_yer < m_metin.size()) m_yer += m_metin.substr(m_yer, 2) == "\r\n" ? 2 : 1;
        return true;
    }

    std::size_t Yer() const { return m_yer; }
    bool TırnakAçık() const { return m_tırnakAçık; }

  private:
    void HücreyiAl(std::string& hücre) {
        if (m_yer < m_metin.size() && m_metin[m_yer] == '"') TırnaklıyıAl(hücre);
        const char sonlar[] = {m_ayraç, '\r', '\n'};
        const std::size_t son = std::min(m_metin.find_first_of(std::string_view(sonlar, 3), m_yer), m_metin.size());
        hücre += m_metin.substr(m_yer, son - m_yer);
        m_yer = son;
    }

    void TırnaklıyıAl(std::string& hücre) {
        for (++m_yer;;) {
            const std::size_t tırnak = m_metin.find('"', m_yer);
            hücre += m_metin.substr(m_yer, tırnak - m_yer);
            m_tırnakAçık = tırnak == std::string_view::npos;
            m_yer = m_tırnakAçık ? m_metin.size() : tırnak + 1;
            if (m_yer >= m_metin.size() || m_metin[m_yer] != '"') return;
            hücre += '"';
            ++m_yer;
        }
    }

    std::string_view m_metin;
    char m_ayraç;
    std::size_t m_yer = 0;
    bool m_tırnakAçık = false;
};

// How many of the first rows have the same number of columns, more than one.
int Uyan(std::string_view metin, char ayraç) {
    CsvKesici kesici(metin, ayraç);
    std::vector<std::string> hücreler;
    QHash<std::size_t, int> boylar;
    for (int satır = 0; satır < BakılanSatır && kesici.Sıradaki(hücreler); ++satır)
        if (hücreler.size() > 1) ++boylar[hücreler.size()];
    return boylar.isEmpty() ? 0 : *std::max_element(boylar.cbegin(), boylar.cend());
}

// The first line "sep=;" that some programs write for others.
std::size_t AyraçSatırı(std::string_view metin) {
    const bool var = metin.size() >= 5 && metin.substr(0, 4) == "sep=" &&
                     (metin.size() == 5 || metin[5] == '\r' || metin[5] == '\n') && metin[4] != '"';
    return var ? 5 : 0;
}

char AyraçTahmini(std::string_view metin) {
    if (const std::size_t boy = AyraçSatırı(metin)) return metin[boy - 1];
    std::array<int, Ayraçlar.size()> uyanlar;
    std::transform(Ayraçlar.begin(), Ayraçlar.end(), uyanlar.begin(), [metin](char a) { return Uyan(metin, a); });
    return Ayraçlar[std::max_element(uyanlar.begin(), uyanlar.end()) - uyanlar.begin()];
}

bool Boşluk(char bayt) {
    return bayt == ' ' || (bayt >= '\t' && bayt <= '\r');
}

}  // namespace

OkumaSonucu CsvKaynağı::DosyayıOku(QByteArray& baytlar) const {
    constexpr qint64 parça = 1 << 20;
    QFile dosya(m_yol);
    if (!dosya.open(QIODevice::ReadOnly)) return {ÇizelgeHatası::Açılamadı, dosya.errorString(), 0};
    while (!dosya.atEnd()) {
        if (m_gözetim.Durdur && *m_gözetim.Durdur) return {ÇizelgeHatası::Durduruldu, {}, 0};
        baytlar += dosya.read(parça);
        if (dosya.error() != QFile::NoError) return {ÇizelgeHatası::Açılamadı, dosya.errorString(), 0};
        if (baytlar.size() > EnÇokBayt) return {ÇizelgeHatası::ÇokBüyük, {}, 0};
    }
    return {};
}

OkumaSonucu CsvKaynağı::SayfalarıOku() {
    QByteArray baytlar;
    const OkumaSonucu sonuç = DosyayıOku(baytlar);
    if (!sonuç.Tamam()) return sonuç;
    m_metin = KodlamayıÇöz(std::move(baytlar));
    if (m_metin.Baytlar.contains('\0')) return {ÇizelgeHatası::TanınmayanTür, {}, 0};
    if (std::all_of(m_metin.Baytlar.cbegin(), m_metin.Baytlar.cend(), Boşluk)) return {ÇizelgeHatası::BoşDosya, {}, 0};
    Ayraç = AyraçTahmini(Görünüm(m_metin.Baytlar));
    Sayfalar = {SayfaBilgisi{}};
    return {};
}

OkumaSonucu CsvKaynağı::Oku(qsizetype, const SatırAlıcı& alıcı) {
    constexpr qint64 adım = 4096;
    const std::string_view metin = Görünüm(m_metin.Baytlar);
    CsvKesici kesici(metin, Ayraç);
    std::vector<std::string> hücreler;
    qint64 no = 0;
    if (AyraçSatırı(metin)) no += kesici.Sıradaki(hücreler);
    while (kesici.Sıradaki(hücreler)) {
        ++no;
        if (kesici.TırnakAçık()) return {ÇizelgeHatası::KapanmayanTırnak, {}, no};
        if (m_gözetim.Durdur && *m_gözetim.Durdur) return {ÇizelgeHatası::Durduruldu, {}, 0};
        if (no % adım == 0 && m_gözetim.İlerleme)
            m_gözetim.İlerleme(static_cast<qint64>(kesici.Yer()), m_metin.Baytlar.size());
        while (!hücreler.empty() && hücreler.back().empty()) hücreler.pop_back();
        if (hücreler.empty()) continue;
        if (no > EnÇokSatır) return {ÇizelgeHatası::ÇokSatır, {}, no};
        if (hücreler.size() > EnÇokSütun) return {ÇizelgeHatası::ÇokSütun, {}, no};
        ÇizelgeSatırı satır{no, false, {}};
        for (const std::string& hücre : hücreler)
            satır.Hücreler.push_back(ÇizelgeHücresi::Yazı(MetneÇevir(hücre, m_metin.Kodlama)));
        if (!alıcı(std::move(satır))) break;
    }
    return {};
}
