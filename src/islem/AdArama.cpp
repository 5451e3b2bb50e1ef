#include "AdArama.h"

#include <algorithm>
#include <array>

#include "Deyimler.h"
#include "OdbcTanitici.h"
#include "TurkceSira.h"

namespace {

int Sırala(const QString& a, const QString& b) {
    return Türkçe::Karşılaştır(QStringView(a), QStringView(b));
}

int Sırala(const ArananAd& a, const ArananAd& b) {
    if (const int ad = Sırala(a.Ad, b.Ad); ad != 0) return ad;
    if (a.Malzeme != b.Malzeme) return a.Malzeme ? 1 : -1;
    return Sırala(a.Grup, b.Grup);
}

enum Kademe : std::size_t { İleBaşlayan, Adında, Grubunda, KademeSayısı };

}  // namespace

İşSonucu AdArama::Oku(OdbcBağlantısı& bağlantı, const İlerleme& ilerleme) {
    m_adlar.clear();
    m_gruplar.assign(1, QString());
    bool vazgeçildi = false;
    const auto devam = [&] {
        vazgeçildi = ilerleme && !ilerleme(static_cast<std::int64_t>(m_adlar.size()));
        return !vazgeçildi;
    };
    OdbcSonucu odbc = bağlantı.Oku(Deyimler::ÜrünAğacı(), [&](OdbcSatırı& satır) {
        // Group by group: the products of one share its text.
        const QString grup = satır.Metin(1);
        if (m_gruplar.size() == 1 || m_gruplar.back() != grup) m_gruplar.push_back(grup);
        m_adlar.push_back(
            {{satır.Metin(2), m_gruplar.back(), false}, static_cast<std::uint32_t>(m_gruplar.size() - 1)});
        return devam();
    });
    if (odbc.Başarılı() && !vazgeçildi)
        odbc = bağlantı.Oku(Deyimler::MalzemeListesi(), [&](OdbcSatırı& satır) {
            m_adlar.push_back({{satır.Metin(1), {}, true}, 0});
            return devam();
        });
    const İşSonucu sonuç = İşSonucuYap(odbc, vazgeçildi);
    if (!sonuç.Tamam()) {
        m_adlar.clear();  // what is not read would pass for what is not there
        return sonuç;
    }
    std::stable_sort(m_adlar.begin(), m_adlar.end(),
                     [](const Kayıt& a, const Kayıt& b) { return Sırala(a.Ad, b.Ad) < 0; });
    m_adlar.erase(std::unique(m_adlar.begin(), m_adlar.end(),
                              [](const Kayıt& a, const Kayıt& b) { return Sırala(a.Ad, b.Ad) == 0; }),
                  m_adlar.end());
    return sonuç;
}

AdArama::Bulunanlar AdArama::Ara(const QString& aranan, std::size_t enÇok) const {
    Bulunanlar sonuç;
    if (aranan.isEmpty()) return sonuç;
    // What the box writes for an apostrophe stands for both.
    const QString düz = QString(aranan).replace(QChar(u'’'), QLatin1Char('\''));
    const auto içerir = [&](const QString& ad) {
        return Türkçe::İçerir(ad, aranan) || (düz != aranan && Türkçe::İçerir(ad, düz));
    };
    const auto başlar = [&](const QString& ad) {
        return Türkçe::İleBaşlar(ad, aranan) || (düz != aranan && Türkçe::İleBaşlar(ad, düz));
    };
    std::vector<bool> grupta(m_gruplar.size(), false);  // the materials' place stays false
    for (std::size_t i = 1; i < m_gruplar.size(); ++i) grupta[i] = içerir(m_gruplar[i]);
    std::array<std::vector<const ArananAd*>, KademeSayısı> kademeler;
    for (const Kayıt& kayıt : m_adlar) {
        Kademe kademe = Grubunda;
        if (başlar(kayıt.Ad.Ad))
            kademe = İleBaşlayan;
        else if (içerir(kayıt.Ad.Ad))
            kademe = Adında;
        else if (!grupta[kayıt.Grup])
            continue;
        ++sonuç.Sayı;
        if (kademeler[kademe].size() < enÇok) kademeler[kademe].push_back(&kayıt.Ad);
    }
    for (const auto& kademe : kademeler)
        for (const ArananAd* ad : kademe)
            if (sonuç.İlkler.size() < enÇok) sonuç.İlkler.push_back(ad);
    return sonuç;
}
