#include "VeriDosyasiDenetimi.h"

#include <algorithm>

#include "Deyimler.h"
#include "OdbcModulu.h"
#include "OdbcTanitici.h"

namespace {

constexpr std::int16_t Başarı = 0;

// Numbers that the drivers give with an error of a damaged file; the lower eight bits count.
constexpr int BOZUK = 11;
constexpr int VERİ_DOSYASI_DEĞİL = 26;
const QString TABLO_YOK = QStringLiteral("S0002");

DosyaDenetimi Hatalı(const QList<OdbcHatası>& hatalar) {
    DosyaDenetimi sonuç{DosyaDurumu::Okunamadı, {}};
    for (const OdbcHatası& hata : hatalar) {
        const int yerel = hata.Yerel & 0xFF;
        if (yerel == BOZUK || yerel == VERİ_DOSYASI_DEĞİL) sonuç.Durum = DosyaDurumu::Bozuk;
        sonuç.Hatalar.append(hata.İleti);
    }
    return sonuç;
}

DosyaDenetimi TabloyuSay(const OdbcBağlantısı& bağlantı, const QString& sayma) {
    OdbcDeyimi deyim;
    if (deyim.Aç(bağlantı) != Başarı) return Hatalı(OdbcHataKayıtlarınıAl(bağlantı.Tanıtıcı(), nullptr));
    QString sayı;
    if (deyim.Çalıştır(sayma) == Başarı && deyim.Getir() == Başarı && deyim.Oku(1, sayı) == Başarı)
        return {sayı.toLongLong() > 0 ? DosyaDurumu::Dolu : DosyaDurumu::Boş, {}};
    const QList<OdbcHatası> hatalar = OdbcHataKayıtlarınıAl(nullptr, deyim.Tanıtıcı());
    const bool tabloYok =
        std::any_of(hatalar.begin(), hatalar.end(), [](const OdbcHatası& hata) { return hata.Durum == TABLO_YOK; });
    return tabloYok ? DosyaDenetimi{DosyaDurumu::Boş, {}} : Hatalı(hatalar);
}

}  // namespace

DosyaDenetimi VeriDosyasınıDenetle(const QString& yol) {
    OdbcBağlantısı bağlantı;
    if (VeriDosyasınaBağlan(bağlantı, yol) != Başarı)
        return Hatalı(OdbcHataKayıtlarınıAl(bağlantı.Tanıtıcı(), nullptr));
    for (const QString& sayma :
         {Deyimler::ÜrünSayısı(), Deyimler::MalzemeSayısı(), Deyimler::KullanılanMalzemeSayısı()}) {
        const DosyaDenetimi sonuç = TabloyuSay(bağlantı, sayma);
        if (sonuç.Durum != DosyaDurumu::Boş) return sonuç;
    }
    return {DosyaDurumu::Boş, {}};
}
