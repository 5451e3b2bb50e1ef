#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <random>
#include <utility>

#include "MotorTesti.h"

// The process is killed at any moment; what it had been told is done must be there, and nothing half.

namespace {

std::mt19937 rastgele(20040307);

// The next number that the child wrote to the pipe, `yoksa` at its end.
int SayıOku(int boru, int yoksa) {
    int sayı = 0;
    return read(boru, &sayı, sizeof sayı) == sizeof sayı ? sayı : yoksa;
}

}  // namespace

TEST_F(MotorTesti, ÖldürülenYazıcı) {
    constexpr int satır = 1500;
    {
        TestVerisi bağ(m_dosya);
        KullanılanEkle(bağ, satır);
    }
    int sıradaki = 0;  // number of the next round trip
    for (int tur = 0; tur < 15; ++tur) {
        int boru[2];
        ASSERT_EQ(pipe(boru), 0);
        const auto yaz = [&] {
            TestVerisi bağ(m_dosya);
            for (int i = sıradaki;; ++i) {
                const std::string sayı = std::to_string(i);
                const TestSonucu güncelle = bağ.Dene("UPDATE UrunMalzemeTablosu SET KullanilanMalzemeFiyati= '" + sayı +
                                                     "' WHERE KullanilanMalzemeAdi= 'Kereste'");
                const TestSonucu ekle = bağ.Dene(MalzemeEkle("M" + sayı, sayı));
                const bool tamam = güncelle.Kod == SQL_SUCCESS && ekle.Kod == SQL_SUCCESS;
                if (!tamam || write(boru[1], &i, sizeof i) != sizeof i) _exit(1);
            }
        };
        int onaylanan = sıradaki - 1;
        ÖldürülenSüreçte(yaz, [&] {
            close(boru[1]);
            onaylanan = SayıOku(boru[0], onaylanan);  // it has begun
            usleep(rastgele() % 30'000);
        });
        for (int önceki = onaylanan - 1; önceki != onaylanan;)
            önceki = std::exchange(onaylanan, SayıOku(boru[0], onaylanan));
        close(boru[0]);

        TestVerisi bağ(m_dosya);
        const Satırlar malzemeler = bağ.Oku("SELECT MalzemeFiyati FROM MalzemeTablosu");
        const int kayıtlı = static_cast<int>(malzemeler.size());
        ASSERT_GE(kayıtlı, onaylanan + 1) << "a confirmed row is gone";
        ASSERT_LE(kayıtlı, onaylanan + 2);
        for (int i = 0; i < kayıtlı; ++i) ASSERT_EQ(malzemeler[i][0], QString::number(i));
        // Every row of the one statement has the same price, the last confirmed or the one under way.
        const Satırlar fiyatlar = bağ.Oku("SELECT KullanilanMalzemeFiyati FROM UrunMalzemeTablosu");
        ASSERT_EQ(fiyatlar.size(), satır);
        for (const auto& fiyat : fiyatlar) ASSERT_EQ(fiyat, fiyatlar.front()) << "half a statement";
        const int fiyat = fiyatlar.front().front().toInt();
        ASSERT_TRUE(fiyat == std::max(kayıtlı - 1, 0) || fiyat == kayıtlı) << fiyat << " after " << kayıtlı;
        sıradaki = kayıtlı;
    }
    EXPECT_GE(sıradaki, 15);
    EXPECT_EQ(Sıkıştır(m_dosya, Yol("a.ydk")), std::nullopt) << "integrity";
}

TEST_F(MotorTesti, ÖldürülenSıkıştırma) {
    constexpr int satır = 4000;
    {
        TestVerisi bağ(m_dosya);
        KullanılanEkle(bağ, satır);
    }
    const std::string oku = "SELECT * FROM UrunMalzemeTablosu";
    const auto başlangıç = std::chrono::steady_clock::now();
    ASSERT_EQ(Sıkıştır(m_dosya, Yol("a.ydk")), std::nullopt);
    const auto süre =
        std::chrono::duration_cast<std::chrono::microseconds>(std::chrono::steady_clock::now() - başlangıç);

    int eskiKalan = 0;
    int yenilenen = 0;
    qsizetype yedektekiMalzeme = 0;
    constexpr int turlar = 24;
    for (int tur = 1; tur <= turlar; ++tur) {
        // Spread over the whole of it; the last round is killed when it is done, however busy the machine.
        const auto bekleme = tur < turlar ? süre * tur / 16 : süre * 20;
        TestVerisi(m_dosya).Çalıştır(MalzemeEkle("M" + std::to_string(tur), "1"));
        for (const std::string& hedef : {Yol("a.ydk"), m_dosya})
            ÖldürülenSüreçte([&] { Sıkıştır(m_dosya, hedef); },
                             [&] { usleep(static_cast<unsigned>(bekleme.count())); });
        TestVerisi dosya(m_dosya);
        ASSERT_EQ(dosya.Oku(oku).size(), satır);
        ASSERT_EQ(dosya.Oku(HerMalzeme).size(), tur);
        TestVerisi yedek(Yol("a.ydk"));
        ASSERT_EQ(yedek.Oku(oku).size(), satır);
        const qsizetype malzeme = yedek.Oku(HerMalzeme).size();
        ASSERT_TRUE(malzeme == yedektekiMalzeme || malzeme == tur) << malzeme;
        ++(malzeme == tur ? yenilenen : eskiKalan);
        yedektekiMalzeme = malzeme;
    }
    EXPECT_GT(eskiKalan, 0);
    EXPECT_GT(yenilenen, 0);
    EXPECT_EQ(Sıkıştır(m_dosya, Yol("a.ydk")), std::nullopt) << "integrity";
    EXPECT_EQ(Klasördekiler(), (std::vector<std::string>{"Varnek.vtb", "a.ydk"}));
}
