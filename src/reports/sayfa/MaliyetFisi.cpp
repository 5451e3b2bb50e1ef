#include "MaliyetFisi.h"

#include "MetinTablosu.h"
#include "SayfaDuzeni.h"
#include "SayiMetni.h"
#include "MaliyetHesabi.h"

namespace {

constexpr double ÖzetinEnAzYeri = 50;  // millimetres that must be left for the summary to start on a page
constexpr double ÖzetAralığı = 5;

QList<FişÖzeti> MaliyetSatırları(const MaliyetFişi& fiş) {
    QList<FişÖzeti> satırlar{{Metin(MetinNo::FişMalzemeMaliyeti), fiş.MalzemeMaliyeti}};
    const auto ekle = [&](MetinNo etiket, const QString& yüzdeMetni) {
        if (DoubleOku(yüzdeMetni).value_or(0) <= 0) return;
        const std::optional<double> tutar = YüzdeTutarı(fiş.MalzemeMaliyeti, yüzdeMetni);
        const std::optional<QString> değer = tutar ? SayıBiçimle(*tutar, fiş.OndalıkBasamak) : std::nullopt;
        satırlar.append({Metin(etiket) + yüzdeMetni + QStringLiteral("):"), değer.value_or(QString())});
    };
    ekle(MetinNo::FişİşçilikBaşı, fiş.İşçilikYüzdesi);
    ekle(MetinNo::FişKârBaşı, fiş.KârYüzdesi);
    ekle(MetinNo::FişDiğerBaşı, fiş.DiğerYüzdesi);
    ekle(MetinNo::FişVadeBaşı, fiş.VadeYüzdesi);
    satırlar.append({Metin(MetinNo::FişToplam), fiş.ToplamMaliyet, true});
    return satırlar;
}

QList<FişÖzeti> MiktarSatırları(const MaliyetFişi& fiş) {
    QList<FişÖzeti> satırlar;
    const auto ekle = [&](MetinNo etiket, const QString& metin) {
        satırlar.append(
            {Metin(etiket) + QLatin1Char(':'), SayıMetniBiçimle(metin, fiş.OndalıkBasamak).value_or(QString())});
    };
    if (SayıMı(fiş.ToplamMiktar)) {
        ekle(MetinNo::FişToplamMiktar, fiş.ToplamMiktar);
        ekle(MetinNo::BirimVarnek, fiş.BirimMaliyet);
    }
    if (DoubleOku(fiş.FireOranı).value_or(0) > 0) {
        ekle(MetinNo::FireOranı, fiş.FireOranı);
        ekle(MetinNo::FişFireliMiktar, fiş.FireliMiktar);
        ekle(MetinNo::FişFireliBirimVarnek, fiş.FireliBirimMaliyet);
    }
    return satırlar;
}

void ÖzetiYaz(SayfaDüzeni& düzen, const MaliyetFişi& fiş) {
    SayfaYüzeyi& yüzey = düzen.Yüzey();
    const QList<FişÖzeti> maliyetler = MaliyetSatırları(fiş);
    const QList<FişÖzeti> miktarlar = MiktarSatırları(fiş);

    // The summary stays in one piece, also where its lines need more than the usual room.
    double yükseklik = ÖzetAralığı + (miktarlar.isEmpty() ? 0 : ÖzetAralığı);
    for (const FişÖzeti& satır : maliyetler + miktarlar) {
        yüzey.KalınAyarla(satır.Toplam);
        yükseklik += düzen.ÖzetSatırıYüksekliği(satır.Etiket, satır.Değer);
    }
    yüzey.KalınAyarla(false);
    if (!düzen.SayfaSonunaBak(ÖzetinEnAzYeri) && yüzey.Y() + yükseklik > düzen.SayfaYüksekliği()) {
        düzen.SayfaBaşlığıYaz();
    }

    yüzey.YAyarla(yüzey.Y() + ÖzetAralığı);
    for (const FişÖzeti& satır : maliyetler) {
        yüzey.KalınAyarla(satır.Toplam);
        yüzey.AltÇizgiAyarla(satır.Toplam);
        düzen.ÖzetSatırıYaz(satır.Etiket, satır.Değer);
    }
    yüzey.KalınAyarla(false);
    yüzey.AltÇizgiAyarla(false);
    yüzey.YAyarla(yüzey.Y() + ÖzetAralığı);
    for (const FişÖzeti& satır : miktarlar) düzen.ÖzetSatırıYaz(satır.Etiket, satır.Değer);
}

}  // namespace

QList<FişÖzeti> FişinÖzeti(const MaliyetFişi& fiş) {
    return MaliyetSatırları(fiş) + MiktarSatırları(fiş);
}

void MaliyetFişiniYaz(SayfaYüzeyi& yüzey, const MaliyetFişi& fiş) {
    SayfaDüzeni düzen(yüzey, fiş.Ürün,
                      {{MetinNo::MiktarıSütunu, 13.5, HücreTürü::Miktar},
                       {MetinNo::AdıSütunu, 4.5, HücreTürü::Metin},
                       {MetinNo::FiyatıSütunu, 1.6, HücreTürü::Sayı},
                       {MetinNo::TutarıSütunu, 1.2, HücreTürü::Sayı}});
    if (!düzen.Başla()) return;
    for (const QStringList& satır : fiş.Satırlar) düzen.SatırYaz(satır);
    ÖzetiYaz(düzen, fiş);
    düzen.Bitir();
}
