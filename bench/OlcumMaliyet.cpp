// The cost table on screen: a key in its filter box and a click on a caption, beside the bare sort of as many rows.
#include <QApplication>
#include <algorithm>
#include <numeric>

#include "Cift.h"
#include "MaliyetSatirlari.h"
#include "OdbcModulu.h"
#include "OlcumFormOrtami.h"
#include "SayiYereli.h"
#include "TurkceSira.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int SatırSayısı = 1'000'000;  // used rows, of 50,000 products

MaliyetSatırları& Satırlar() {
    static MaliyetSatırları satırlar;
    if (satırlar.Satırlar.empty()) {
        ÖlçümOrtamı::Bağlan(ÖlçümOrtamı::VeriKlasörü(SatırSayısı, 0, 10'000));
        static_cast<void>(MaliyetTablosunuOku(ODBCBağlantısı(), 2, satırlar.Satırlar));
    }
    return satırlar;
}

void Diz(benchmark::State& durum) {
    TabloModeli model(Satırlar(), MaliyetSütunlarınıVer());
    model.Yenile();
    bool artan = false;
    for (auto _ : durum) {
        artan = !artan;
        model.sort(CToplam, artan ? Qt::AscendingOrder : Qt::DescendingOrder);
    }
    if (model.rowCount() < 10'000) durum.SkipWithError("no rows");
}

void Süz(benchmark::State& durum) {
    MaliyetSatırları& satırlar = Satırlar();
    TabloModeli model(satırlar, MaliyetSütunlarınıVer());
    model.Yenile();
    model.sort(CToplam, Qt::AscendingOrder);
    int sıra = 0;
    for (auto _ : durum) {
        const QString aranan = QString::number(++sıra % 10);
        model.Süz([&satırlar, aranan](std::size_t yer) {
            const MaliyetTablosuSatırı& satır = satırlar.Satırlar[yer];
            return Türkçe::İçerir(satır.Ad, aranan) || Türkçe::İçerir(satır.Grup, aranan);
        });
        benchmark::DoNotOptimize(model.rowCount());
    }
}

void ÇıplakDiz(benchmark::State& durum) {
    const auto& satırlar = Satırlar().Satırlar;
    std::vector<std::uint32_t> sıra(satırlar.size());
    bool artan = false;
    for (auto _ : durum) {
        artan = !artan;
        std::iota(sıra.begin(), sıra.end(), 0U);
        std::stable_sort(sıra.begin(), sıra.end(), [&](std::uint32_t a, std::uint32_t b) {
            return artan ? satırlar[a].Toplam < satırlar[b].Toplam : satırlar[b].Toplam < satırlar[a].Toplam;
        });
        benchmark::DoNotOptimize(sıra.data());
    }
}

}  // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    ÖlçümOrtamı::Kur();
    const QApplication uygulama(argc, argv);
    SayıYereliniSabitle();
    ÇiftEkle("sort the cost table: 50,000 products / bare", 3.0, Diz, ÇıplakDiz);
    ÇiftEkle("filter key in the cost table: 50,000 / bare sort", 3.0, Süz, ÇıplakDiz);
    return ÇiftleriÖlç(argc, argv);
}
