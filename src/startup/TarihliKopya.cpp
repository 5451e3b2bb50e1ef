#include "TarihliKopya.h"

#include <algorithm>

#include "GundeBir.h"
#include "KopyaYazma.h"
#include "OdbcSurucu.h"
#include "OrtakFonksiyonlarModulu.h"
#include "YedekMetinleri.h"
#include "YedekOkuma.h"

namespace {

// The driver's numbers for damage; the lower eight bits count.
bool HasarMı(const OdbcHatası& hata) {
    constexpr int bozuk = 11;
    constexpr int veriDosyasıDeğil = 26;
    const int yerel = hata.Yerel & 0xFF;
    return yerel == bozuk || yerel == veriDosyasıDeğil;
}

}  // namespace

void GünlükKopyaAl(const VeriYolları& yollar, const QDateTime& değişme) {
    const KopyaSonucu sonuç =
        KopyaYaz({yollar.YedekKlasörü, yollar.GerçekDosya, değişme, KopyaTürü::Günlük, yollar.GerçekYedek, {}});
    if (sonuç.Ne == KopyaSonucu::Tür::YerYok)
        GündeBirUyar(YER_UYARISI_ANAHTARI, Metin(YedekMetni::YedekYeriYok).arg(sonuç.Neden));
    if (sonuç.Ne == KopyaSonucu::Tür::Olmadı)
        GündeBirUyar(QStringLiteral("TarihliYedekUyarisi"), Metin(YedekMetni::YedekAlınamadı).arg(sonuç.Neden));
}

bool KopyaVar(const VeriYolları& yollar) {
    return !KopyaYerleri(yollar.YedekKlasörü).empty();
}

bool BaşlangıçBiter(const VeriYolları& yollar) {
    if (!SürücüKayıtlı()) return false;
    if (DosyaVar(yollar.Dosya)) {
        OdbcBağlantısı bağlantı;
        const OdbcSonucu sonuç = bağlantı.Aç(BağlantıMetni(yollar.Dosya));
        return std::any_of(sonuç.Hatalar.begin(), sonuç.Hatalar.end(), HasarMı);
    }
    if (!DosyaVar(yollar.Yedek)) return true;
    AçılmışYedek yedek(yollar.GerçekYedek, yollar.YedekKlasörü);
    return yedek.Kopyalandı() && yedek.Denetle().Durum != YedekDurumu::Sağlam;
}
