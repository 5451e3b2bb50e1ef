// Prices as a whole: what a plan over the whole catalogue costs beside reading the same rows bare, and carrying it out
// beside the bare changes.
#include <cstdlib>

#include <QCoreApplication>

#include "Cift.h"
#include "FiyatIslemi.h"
#include "MaliyetTablosu.h"
#include "OdbcModulu.h"
#include "OlcumFormOrtami.h"
#include "SayiYereli.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int SatırSayısı = 1'000'000;
constexpr int MalzemeSayısı = 10'000;

QString Klasör() {
    static const QString klasör = ÖlçümOrtamı::VeriKlasörü(SatırSayısı, 0, MalzemeSayısı);
    return klasör;
}

// Up and down in turn, so that prices stay what they are over many rounds.
FiyatPlanı Plan() {
    static bool yukarı = false;
    yukarı = !yukarı;
    MalzemeKataloğu katalog;
    FiyatPlanı plan;
    if (!katalog.Oku(ODBCBağlantısı()).Tamam()) return plan;
    FiyatTeklifi teklif;
    for (const KatalogMalzemesi& m : katalog.Malzemeler)
        teklif.Öneriler.push_back({m.Ad, m.Fiyat, Para::OnBindeBirden(m.Fiyat.OnBindeBir() + (yukarı ? 1000 : -1000))});
    static_cast<void>(plan.Kur(ODBCBağlantısı(), std::move(teklif), 2));
    return plan;
}

void Önizleme(benchmark::State& durum) {
    ÖlçümOrtamı::Bağlan(Klasör());
    for (auto _ : durum) {
        const FiyatPlanı plan = Plan();
        if (plan.Özet().Satır != SatırSayısı) durum.SkipWithError("the plan does not reach every row");
    }
}

void Tablo(benchmark::State& durum) {
    ÖlçümOrtamı::Bağlan(Klasör());
    std::vector<MaliyetTablosuSatırı> satırlar;
    for (auto _ : durum)
        if (!MaliyetTablosunuOku(ODBCBağlantısı(), 2, satırlar).Tamam()) durum.SkipWithError("no cost table");
}

// Reads the same columns of the same tables, in the same order, and multiplies.
void ÇıplakOkuma(benchmark::State& durum, const char* sıra) {
    const auto vt = ÖlçümOrtamı::ÇıplakAç(Klasör());
    for (auto _ : durum) {
        double toplam = 0;
        qsizetype harf = 0;
        const auto oku = [&](const char* sql, int metinler, bool tutar) {
            const auto sorgu = ÖlçümOrtamı::ÇıplakSorgu(vt.get(), sql);
            while (sqlite3_step(sorgu.get()) == SQLITE_ROW) {
                for (int i = 0; i < metinler; ++i)
                    harf += std::string_view(reinterpret_cast<const char*>(sqlite3_column_text(sorgu.get(), i))).size();
                if (!tutar) continue;
                const auto* miktar = reinterpret_cast<const char*>(sqlite3_column_text(sorgu.get(), metinler));
                toplam += std::atof(miktar) * static_cast<double>(sqlite3_column_int64(sorgu.get(), metinler + 1));
            }
        };
        oku("SELECT MalzemeAdi, MalzemeFiyati FROM MalzemeTablosu ORDER BY MalzemeAdi", 1, false);
        oku("SELECT UrunGrubu, UrunAdi, IscilikYuzdesi, KarYuzdesi, DigerVarnekYuzdesi, VadeFarkiYuzdesi FROM "
            "UrunTablosu",
            6, false);
        const std::string kullanılanlar =
            std::string(
                "SELECT UrunGrubu, UrunAdi, KullanilanMalzemeAdi, KullanilanMalzemeMiktari, "
                "KullanilanMalzemeFiyati FROM UrunMalzemeTablosu") +
            sıra;
        oku(kullanılanlar.c_str(), 3, true);
        benchmark::DoNotOptimize(toplam);
        benchmark::DoNotOptimize(harf);
    }
}

void ÇıplakÖnizleme(benchmark::State& durum) {
    ÇıplakOkuma(durum, "");
}

void ÇıplakTablo(benchmark::State& durum) {
    ÇıplakOkuma(durum, " ORDER BY UrunGrubu, UrunAdi, KullanilanMalzemeAdi");
}

void Uygulama(benchmark::State& durum) {
    ÖlçümOrtamı::Bağlan(Klasör());
    for (auto _ : durum) {
        durum.PauseTiming();
        const FiyatPlanı plan = Plan();
        durum.ResumeTiming();
        const UygulamaSonucu sonuç =
            FiyatlarıUygula(ODBCBağlantısı(), plan, {İşlemTürü::Toplu, u"Ölçüm"_s, 0}, u"2026-11-23 10:00:00"_s);
        if (sonuç.Son != UygulamaSonu::Tamam) durum.SkipWithError("the plan was not carried out");
    }
}

void ÇıplakUygulama(benchmark::State& durum) {
    const auto vt = ÖlçümOrtamı::ÇıplakAç(Klasör());
    sqlite3_exec(vt.get(), "PRAGMA synchronous = FULL", nullptr, nullptr, nullptr);
    std::vector<QByteArray> adlar;
    {
        const auto oku = ÖlçümOrtamı::ÇıplakSorgu(vt.get(), "SELECT MalzemeAdi FROM MalzemeTablosu");
        while (sqlite3_step(oku.get()) == SQLITE_ROW) adlar.push_back(ÖlçümOrtamı::ÇıplakMetin(oku.get(), 0).toUtf8());
    }
    int fark = 1000;
    for (auto _ : durum) {
        sqlite3_exec(vt.get(), "BEGIN IMMEDIATE", nullptr, nullptr, nullptr);
        const auto katalog = ÖlçümOrtamı::ÇıplakSorgu(
            vt.get(), "UPDATE MalzemeTablosu SET MalzemeFiyati = MalzemeFiyati + ?1 WHERE MalzemeAdi = ?2");
        const auto satırlar = ÖlçümOrtamı::ÇıplakSorgu(
            vt.get(),
            "UPDATE UrunMalzemeTablosu SET KullanilanMalzemeFiyati = KullanilanMalzemeFiyati + ?1 WHERE "
            "KullanilanMalzemeAdi = ?2");
        for (const QByteArray& ad : adlar) {
            for (sqlite3_stmt* deyim : {katalog.get(), satırlar.get()}) {
                sqlite3_bind_int(deyim, 1, fark);
                sqlite3_bind_text(deyim, 2, ad.constData(), static_cast<int>(ad.size()), SQLITE_STATIC);
                sqlite3_step(deyim);
                sqlite3_reset(deyim);
            }
        }
        sqlite3_exec(vt.get(), "COMMIT", nullptr, nullptr, nullptr);
        fark = -fark;
    }
}

}  // namespace

int main(int argc, char** argv) {
    const QCoreApplication uygulama(argc, argv);
    SayıYereliniSabitle();
    ÖlçümOrtamı::Kur();
    ÇiftEkle("preview of 1,000,000 rows / bare", 2.0, Önizleme, ÇıplakÖnizleme);
    ÇiftEkle("cost table of 1,000,000 rows / bare", 2.0, Tablo, ÇıplakTablo);
    ÇiftEkle("10,000 prices over 1,000,000 rows / bare", 1.5, Uygulama, ÇıplakUygulama);
    return ÇiftleriÖlç(argc, argv);
}
