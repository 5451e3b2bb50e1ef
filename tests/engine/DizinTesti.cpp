#include "BeklenenDeyimler.h"
#include "MotorTesti.h"
#include "Veritabani.h"

// Each of the program's statements is accepted, and SQLite carries it out in a file of the data-file tool as the golden
// file says: straight to the rows by an index, in the order asked for without sorting.
TEST_F(MotorTesti, HerDeyimDizindenYürür) {
    TestVerisi bağ(m_dosya);
    Motor::Veritabanı veri(m_dosya, Parola);
    const Motor::AçıkDosya dosya = Motor::VeriDosyasıAç(m_dosya, Parola);
    for (const BeklenenDeyim& deyim : BeklenenDeyimler()) {
        bağ.Çalıştır(deyim.Metin);
        Motor::SqliteDeyimi açıkla(dosya.Vt.get(), "EXPLAIN QUERY PLAN " + veri.Çevir(deyim.Metin.toStdString()).Sql);
        QStringList plan;
        while (açıkla.Adım()) plan += TestMetni(std::string(açıkla.Metin(3)));
        EXPECT_EQ(plan.join(u"; "), deyim.Plan) << deyim.Metin.toStdString();
    }
}
