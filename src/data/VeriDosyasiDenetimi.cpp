#include "VeriDosyasiDenetimi.h"

#include <algorithm>

#include "Deyimler.h"
#include "OdbcSurucu.h"
#include "OdbcTanitici.h"

namespace {

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

DosyaDenetimi TabloyuSay(OdbcBağlantısı& bağlantı, const QString& sayma) {
    QString sayı;
    const OdbcSonucu sonuç = bağlantı.Oku(sayma, [&sayı](OdbcSatırı& satır) {
        sayı = satır.Metin(1);
        return false;
    });
    if (sonuç.Başarılı()) return {sayı.toLongLong() > 0 ? DosyaDurumu::Dolu : DosyaDurumu::Boş, {}};
    const bool tabloYok = std::any_of(sonuç.Hatalar.begin(), sonuç.Hatalar.end(),
                                      [](const OdbcHatası& hata) { return hata.Durum == TABLO_YOK; });
    return tabloYok ? DosyaDenetimi{DosyaDurumu::Boş, {}} : Hatalı(sonuç.Hatalar);
}

}  // namespace

DosyaDenetimi VeriDosyasınıDenetle(const QString& yol) {
    OdbcBağlantısı bağlantı;
    const OdbcSonucu açılış = bağlantı.Aç(BağlantıMetni(yol));
    if (!açılış.Başarılı()) return Hatalı(açılış.Hatalar);
    for (const QString& sayma :
         {Deyimler::ÜrünSayısı(), Deyimler::MalzemeSayısı(), Deyimler::KullanılanMalzemeSayısı()}) {
        DosyaDenetimi sonuç = TabloyuSay(bağlantı, sayma);
        if (sonuç.Durum != DosyaDurumu::Boş) return sonuç;
    }
    return {DosyaDurumu::Boş, {}};
}
