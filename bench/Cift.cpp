#include "Cift.h"

#include <cstdio>
#include <map>
#include <string>
#include <vector>

namespace {

constexpr int TEKRAR = 11;
constexpr double SÜRE = 3;  // seconds for each side, over all repetitions

struct Çift {
    std::string ad;
    double sınır;
};

std::vector<Çift>& Çiftler() {
    static std::vector<Çift> çiftler;
    return çiftler;
}

std::string BizimAd(const std::string& ad) {
    return ad + "/ours";
}
std::string KarşıAd(const std::string& ad) {
    return ad + "/peer";
}

// Prints as usual and keeps the medians (in seconds).
class OrtancaToplayıcı : public benchmark::ConsoleReporter {
  public:
    OrtancaToplayıcı() : ConsoleReporter(OO_Tabular) {}

    void ReportRuns(const std::vector<Run>& ölçümler) override {
        for (const Run& ölçüm : ölçümler) {
            if (ölçüm.run_type != Run::RT_Aggregate || ölçüm.aggregate_name != "median") continue;
            m_ortancalar[ölçüm.run_name.function_name] =
                ölçüm.GetAdjustedRealTime() / benchmark::GetTimeUnitMultiplier(ölçüm.time_unit);
        }
        ConsoleReporter::ReportRuns(ölçümler);
    }

    // Prints a pair's line; false: above its bound.
    bool OranıYaz(const Çift& çift) const {
        const auto biz = m_ortancalar.find(BizimAd(çift.ad));
        const auto karşı = m_ortancalar.find(KarşıAd(çift.ad));
        if (biz == m_ortancalar.end() || karşı == m_ortancalar.end()) return true;  // filtered out
        const double oran = biz->second / karşı->second;
        const bool tuttu = oran <= çift.sınır;
        std::printf("%-40s ours %10.3f ms   peer %10.3f ms   ratio %5.2f (bound %.2f)%s\n", çift.ad.c_str(),
                    biz->second * 1e3, karşı->second * 1e3, oran, çift.sınır, tuttu ? "" : "   ABOVE THE BOUND");
        return tuttu;
    }

  private:
    std::map<std::string, double> m_ortancalar;
};

void YüzEkle(const std::string& ad, ÖlçümYüzü yüz) {
    benchmark::RegisterBenchmark(ad.c_str(), [yüz = std::move(yüz)](benchmark::State& durum) { yüz(durum); })
        ->Repetitions(TEKRAR)
        ->MinTime(SÜRE)
        ->DisplayAggregatesOnly()
        ->Unit(benchmark::kMillisecond)
        ->UseRealTime();
}

}  // namespace

void ÇiftEkle(const char* ad, double sınır, ÖlçümYüzü bizimki, ÖlçümYüzü karşılık) {
    Çiftler().push_back({ad, sınır});
    YüzEkle(BizimAd(ad), std::move(bizimki));
    YüzEkle(KarşıAd(ad), std::move(karşılık));
}

int ÇiftleriÖlç(int argc, char** argv) {
    std::string karışık = "--benchmark_enable_random_interleaving=true";
    std::vector<char*> sözler(argv, argv + argc);
    sözler.insert(sözler.begin() + 1, karışık.data());
    int sayı = int(sözler.size());
    benchmark::Initialize(&sayı, sözler.data());
    if (benchmark::ReportUnrecognizedArguments(sayı, sözler.data())) return 2;

    OrtancaToplayıcı toplayıcı;
    benchmark::RunSpecifiedBenchmarks(&toplayıcı);
    benchmark::Shutdown();
    std::printf("\n");
    bool hepsi = true;
    for (const Çift& çift : Çiftler()) hepsi = toplayıcı.OranıYaz(çift) && hepsi;
    return hepsi ? 0 : 1;
}
