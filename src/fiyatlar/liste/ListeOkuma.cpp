#include "ListeOkuma.h"

#include <QThread>
#include <algorithm>
#include <atomic>
#include <exception>
#include <memory>

#include "FiyatMetni.h"
#include "IlerlemeKutusu.h"

using Deyimler::Tedarikçi::Tedarikçi;

namespace {

constexpr std::int64_t PARÇA = 1000;   // steps of the progress
constexpr unsigned long BEKLEME = 10;  // milliseconds between two looks at the thread

OkumaSonucu İlkleriOku(ÇizelgeOkuyucu& okuyucu, qsizetype sayfa, std::vector<ÇizelgeSatırı>& satırlar) {
    satırlar.clear();
    return okuyucu.Oku(sayfa, [&satırlar](ÇizelgeSatırı&& satır) {
        satırlar.push_back(std::move(satır));
        return satırlar.size() < TahmineYetenSatır;
    });
}

bool Eksiksiz(const SütunTahmini& t) {
    return t.AdSütunu >= 0 && t.FiyatSütunu >= 0;
}

int BaşlığınSütunu(const ÇizelgeSatırı& satır, const QString& başlık) {
    for (int sütun = 0; sütun < static_cast<int>(satır.Hücreler.size()); ++sütun)
        if (ListeAdı(satır.Sütun(sütun).Metin) == ListeAdı(başlık)) return sütun;
    return -1;
}

// Where the supplier's columns stand now: below the same captions, or in the same places where there are none.
SütunTahmini TercihiBul(std::span<const ÇizelgeSatırı> satırlar, const Tedarikçi& tercih) {
    if (tercih.BaşlıkSatırı == 0) {
        const auto yeterince = [&tercih](const ÇizelgeSatırı& satır) {
            return static_cast<int>(satır.Hücreler.size()) > std::max(tercih.AdSütunu, tercih.FiyatSütunu);
        };
        const bool var = std::any_of(satırlar.begin(), satırlar.end(), yeterince);
        return var ? SütunTahmini{0, tercih.AdSütunu, tercih.FiyatSütunu} : SütunTahmini();
    }
    for (const ÇizelgeSatırı& satır : satırlar) {
        const auto yerinde = [&satır](int sütun, const QString& başlık) {
            return ListeAdı(satır.Sütun(sütun).Metin) == ListeAdı(başlık);
        };
        if (yerinde(tercih.AdSütunu, tercih.AdBaşlığı) && yerinde(tercih.FiyatSütunu, tercih.FiyatBaşlığı))
            return {satır.No, tercih.AdSütunu, tercih.FiyatSütunu};
        const SütunTahmini kaymış{satır.No, BaşlığınSütunu(satır, tercih.AdBaşlığı),
                                  BaşlığınSütunu(satır, tercih.FiyatBaşlığı)};
        if (Eksiksiz(kaymış)) return kaymış;
    }
    return {};
}

// The user's own choice; or the supplier's sheet first, then all that are not hidden.
QList<qsizetype> BakılacakSayfalar(const QList<SayfaBilgisi>& sayfalar, qsizetype seçilen,
                                   const std::optional<Tedarikçi>& tercih) {
    if (seçilen >= 0) return {seçilen};
    QList<qsizetype> sıra;
    for (qsizetype i = 0; i < sayfalar.size(); ++i) {
        if (tercih && !tercih->Sayfa.isEmpty() && sayfalar[i].Ad == tercih->Sayfa)
            sıra.prepend(i);
        else if (!sayfalar[i].Gizli)
            sıra.append(i);
    }
    return sıra;
}

bool Dolu(const ÇizelgeHücresi& hücre) {
    return hücre.Tür == ÇizelgeHücreTürü::Okunamaz || !hücre.Metin.trimmed().isEmpty() || !hücre.Değer.isEmpty();
}

}  // namespace

OkumaSonucu ListeyiTanı(const QString& yol, const ListeSeçimi& seçim, const std::optional<Tedarikçi>& tercih,
                        const OkumaGözetimi& gözetim, TanınanListe& liste) {
    ÇizelgeOkuyucu okuyucu(yol, gözetim);
    OkumaSonucu sonuç = okuyucu.Aç();
    if (!sonuç.Tamam()) return sonuç;
    liste.Tür = okuyucu.Tür();
    liste.Sayfalar = okuyucu.Sayfalar();
    if (liste.Tür == ÇizelgeTürü::Csv) {
        if (seçim.Ayraç != 0)
            okuyucu.AyraçSeç(seçim.Ayraç);
        else if (tercih && !tercih->Ayraç.isEmpty())
            okuyucu.AyraçSeç(tercih->Ayraç.front().toLatin1());
        liste.Seçim.Ayraç = okuyucu.Ayraç();
    }
    const QList<qsizetype> sayfalar = BakılacakSayfalar(liste.Sayfalar, seçim.Sayfa, tercih);
    if (sayfalar.isEmpty()) return {ÇizelgeHatası::SayfaYok, {}, 0};
    // The first sheet that has both columns; without one the first.
    for (const qsizetype sayfa : sayfalar) {
        std::vector<ÇizelgeSatırı> satırlar;
        sonuç = İlkleriOku(okuyucu, sayfa, satırlar);
        if (!sonuç.Tamam()) return sonuç;
        SütunTahmini sütunlar = tercih ? TercihiBul(satırlar, *tercih) : SütunTahmini();
        if (!Eksiksiz(sütunlar)) sütunlar = SütunlarıTahminEt(satırlar);
        if (liste.Seçim.Sayfa >= 0 && !Eksiksiz(sütunlar)) continue;
        liste.İlkler = std::move(satırlar);
        liste.Seçim.Sayfa = sayfa;
        liste.Seçim.Sütunlar = sütunlar;
        if (Eksiksiz(sütunlar)) break;
    }
    return sonuç;
}

OkumaSonucu ListeSatırlarınıOku(const QString& yol, const ListeSeçimi& seçim, const OkumaGözetimi& gözetim,
                                std::vector<ListeSatırı>& satırlar, qint64& ara) {
    satırlar.clear();
    ara = 0;
    ÇizelgeOkuyucu okuyucu(yol, gözetim);
    OkumaSonucu sonuç = okuyucu.Aç();
    if (!sonuç.Tamam()) return sonuç;
    if (seçim.Ayraç != 0) okuyucu.AyraçSeç(seçim.Ayraç);
    sonuç = okuyucu.Oku(seçim.Sayfa, [&](ÇizelgeSatırı&& satır) {
        if (satır.No <= seçim.Sütunlar.BaşlıkSatırı) return true;
        const ÇizelgeHücresi& ad = satır.Sütun(seçim.Sütunlar.AdSütunu);
        const ÇizelgeHücresi& fiyat = satır.Sütun(seçim.Sütunlar.FiyatSütunu);
        if (!Dolu(fiyat)) {
            ara += Dolu(ad);
            return true;
        }
        ListeSatırı& yeni = satırlar.emplace_back();
        yeni.No = satır.No;
        yeni.Gizli = satır.Gizli;
        yeni.AdHücresi = ad;
        yeni.FiyatHücresi = fiyat;
        return true;
    });
    return sonuç;
}

OkumaSonucu ArkadaOku(MetinNo metin, QWidget* sahip, const std::function<OkumaSonucu(const OkumaGözetimi&)>& iş) {
    std::atomic<bool> durdur = false;
    std::atomic<std::int64_t> ilerleyen = 0;
    OkumaSonucu sonuç;
    std::exception_ptr beklenmeyen;
    const OkumaGözetimi gözetim{&durdur, [&ilerleyen](qint64 okunan, qint64 toplam) {
                                    if (toplam > 0) ilerleyen = PARÇA * std::min(okunan, toplam) / toplam;
                                }};
    const std::unique_ptr<QThread> iplik(QThread::create([&] {
        try {
            sonuç = iş(gözetim);
        } catch (...) {
            beklenmeyen = std::current_exception();
        }
    }));
    İlerlemeKutusu kutu(metin, PARÇA, sahip);
    iplik->start();
    while (!iplik->wait(BEKLEME))
        if (!kutu.Bildir(ilerleyen)) durdur = true;
    if (beklenmeyen) std::rethrow_exception(beklenmeyen);
    return sonuç;
}
