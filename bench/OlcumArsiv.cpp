// The archive of cost sheets: freezing every product beside the bare library given the same INSERT texts.
#include <QCoreApplication>

#include "ArsivKayitlari.h"
#include "Cift.h"
#include "OdbcModulu.h"
#include "OlcumFormOrtami.h"
#include "SayiYereli.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int SatırSayısı = 20'000;
constexpr int ÜrünSayısı = 1'000;
constexpr std::int64_t ÇIPLAK_ARŞİV = 1'000'000;

QString Klasör() {
    static const QString klasör = ÖlçümOrtamı::VeriKlasörü(SatırSayısı);
    return klasör;
}

Başlık Yeni() {
    return {0, u"2026-11-23"_s, u"Ölçüm"_s};
}

void Arşivleme(benchmark::State& durum) {
    ÖlçümOrtamı::Bağlan(Klasör());
    for (auto _ : durum) {
        Başlık yeni = Yeni();
        if (!Arşivle(ODBCBağlantısı(), yeni).Tamam() || yeni.FöySayısı != ÜrünSayısı)
            durum.SkipWithError("not archived");
        durum.PauseTiming();
        if (!ArşiviSil(ODBCBağlantısı(), yeni.No).Tamam()) durum.SkipWithError("not deleted");
        durum.ResumeTiming();
    }
}

// What an archive sends, as the bare library takes it.
std::vector<QByteArray> DeyimMetinleri() {
    std::vector<QByteArray> deyimler;
    ÖlçümOrtamı::Bağlan(Klasör());
    Başlık ilk = Yeni();  // makes the tables
    if (!Arşivle(ODBCBağlantısı(), ilk).Tamam() || !ArşiviSil(ODBCBağlantısı(), ilk.No).Tamam()) return {};
    Başlık yeni = Yeni();
    yeni.No = ÇIPLAK_ARŞİV;
    deyimler.push_back(Deyimler::Arşiv::Ekle(yeni).toUtf8());
    const İşSonucu sonuç = BugünküFöyleriOku(ODBCBağlantısı(), {}, yeni.Basamak, [&](ArşivFöyü& föy) -> İşSonucu {
        föy.Arşiv = yeni.No;
        föy.Özet = FöyÖzeti(yeni, föy);
        deyimler.push_back(Deyimler::Arşiv::FöyEkle(föy).toUtf8());
        std::int64_t no = 0;
        for (const auto& satır : föy.Satırlar)
            deyimler.push_back(Deyimler::Arşiv::SatırEkle(yeni.No, föy.No, ++no, satır).toUtf8());
        return {};
    });
    return sonuç.Tamam() ? deyimler : std::vector<QByteArray>();
}

void ÇıplakArşivleme(benchmark::State& durum) {
    static const std::vector<QByteArray> deyimler = DeyimMetinleri();
    if (deyimler.empty()) durum.SkipWithError("no statements");
    const auto vt = ÖlçümOrtamı::ÇıplakAç(Klasör());
    const auto yürüt = [&](const char* sql) {
        if (sqlite3_exec(vt.get(), sql, nullptr, nullptr, nullptr) != SQLITE_OK)
            durum.SkipWithError(sqlite3_errmsg(vt.get()));
    };
    yürüt("PRAGMA synchronous = FULL");
    for (auto _ : durum) {
        yürüt("BEGIN IMMEDIATE");
        for (const QByteArray& deyim : deyimler) yürüt(deyim.constData());
        yürüt("COMMIT");
        durum.PauseTiming();
        for (const QString& deyim : Deyimler::Arşiv::Sil(ÇIPLAK_ARŞİV)) yürüt(deyim.toUtf8().constData());
        durum.ResumeTiming();
    }
}

}  // namespace

int main(int argc, char** argv) {
    const QCoreApplication uygulama(argc, argv);
    SayıYereliniSabitle();
    ÖlçümOrtamı::Kur();
    ÇiftEkle("archive of 1,000 products / bare", 2.0, Arşivleme, ÇıplakArşivleme);
    return ÇiftleriÖlç(argc, argv);
}
