#include "MotorTesti.h"

// What an ODBC client sees beyond rows: lengths, truncation, diagnostics, descriptions, transactions.

namespace {

SQLCHAR* Metin(const char* harfler) {
    return reinterpret_cast<SQLCHAR*>(const_cast<char*>(harfler));
}

int Say(SQLHSTMT deyim) {
    int satır = 0;
    while (SQLFetch(deyim) == SQL_SUCCESS) ++satır;
    EXPECT_EQ(SQLMoreResults(deyim), SQL_NO_DATA);
    SQLFreeStmt(deyim, SQL_CLOSE);
    return satır;
}

}  // namespace

TEST_F(MotorTesti, UzunDeğerParçaParçaOkunur) {
    TestVerisi bağ(m_dosya);
    const std::string ad = "a" + Tekrar("ş", 100);  // 201 bytes
    bağ.Çalıştır(MalzemeEkle(ad, "1"));
    Deyim deyim(bağ);
    ASSERT_EQ(deyim.Çalıştır(HerMalzeme), SQL_SUCCESS);
    ASSERT_EQ(SQLFetch(deyim.Tanıtıcı()), SQL_SUCCESS);

    std::string okunan;
    char tampon[101];
    SQLLEN uzunluk = 0;
    SQLRETURN kod = SQL_SUCCESS_WITH_INFO;
    std::vector<SQLLEN> kalanlar;
    while (kod == SQL_SUCCESS_WITH_INFO) {
        kod = SQLGetData(deyim.Tanıtıcı(), 1, SQL_C_CHAR, tampon, 101, &uzunluk);
        kalanlar.push_back(uzunluk);
        okunan += tampon;
        if (kod != SQL_SUCCESS_WITH_INFO) continue;
        SQLCHAR durum[6] = "";
        EXPECT_EQ(SQLError(nullptr, nullptr, deyim.Tanıtıcı(), durum, nullptr, nullptr, 0, nullptr), SQL_SUCCESS);
        EXPECT_STREQ(reinterpret_cast<char*>(durum), "01004");
    }
    EXPECT_EQ(okunan, ad);
    // The buffer would end within a letter, which goes over to the next piece.
    EXPECT_EQ(kalanlar, (std::vector<SQLLEN>{201, 102, 2}));
    EXPECT_EQ(SQLGetData(deyim.Tanıtıcı(), 1, SQL_C_CHAR, tampon, 101, &uzunluk), SQL_NO_DATA);
    // Too little room for even one letter: the reading still comes to an end.
    EXPECT_EQ(SQLGetData(deyim.Tanıtıcı(), 2, SQL_C_CHAR, tampon, 2, &uzunluk), SQL_SUCCESS);
    int okuma = 0;
    while (SQLGetData(deyim.Tanıtıcı(), 1, SQL_C_CHAR, tampon, 2, &uzunluk) == SQL_SUCCESS_WITH_INFO) ++okuma;
    EXPECT_EQ(okuma, 200);
}

QString İlkDurum(const Deyim& deyim) {
    const QList<OdbcHatası> hatalar = deyim.HatalarınıAl();
    return hatalar.isEmpty() ? QString() : hatalar.front().Durum;
}

TEST_F(MotorTesti, BağlıSütunlarGetirmeyleDolar) {
    TestVerisi bağ(m_dosya);
    bağ.Çalıştır("CREATE TABLE Deneme (Ad TEXT(20), Oran DOUBLE)");
    bağ.Çalıştır("INSERT INTO Deneme (Ad, Oran) VALUES ('şşşşş', '2,5')");
    bağ.Çalıştır("INSERT INTO Deneme (Ad) VALUES ('b')");
    Deyim deyim(bağ);
    SQLHSTMT tanıtıcı = deyim.Tanıtıcı();
    char ad[6] = "";
    char oran[8] = "";
    SQLLEN boylar[2] = {};
    ASSERT_EQ(SQLBindCol(tanıtıcı, 1, SQL_C_CHAR, ad, sizeof ad, &boylar[0]), SQL_SUCCESS);
    ASSERT_EQ(SQLBindCol(tanıtıcı, 2, SQL_C_CHAR, oran, sizeof oran, &boylar[1]), SQL_SUCCESS);
    EXPECT_EQ(SQLBindCol(tanıtıcı, 2, SQL_C_DOUBLE, oran, sizeof oran, nullptr), SQL_ERROR);
    EXPECT_EQ(İlkDurum(deyim), "S1C00");
    ASSERT_EQ(deyim.Çalıştır("SELECT Ad, Oran FROM Deneme"), SQL_SUCCESS);

    EXPECT_EQ(SQLFetch(tanıtıcı), SQL_SUCCESS_WITH_INFO);
    EXPECT_EQ(İlkDurum(deyim), "01004");
    EXPECT_EQ(std::string(ad) + "|" + oran, "şş|2.5") << "cut at a whole letter";
    EXPECT_EQ(std::vector<SQLLEN>({boylar[0], boylar[1]}), (std::vector<SQLLEN>{10, 3}));
    QString bütün;
    EXPECT_EQ(deyim.Oku(1, bütün), SQL_SUCCESS);
    EXPECT_EQ(bütün, QString(5, QChar(u'ş'))) << "read from its beginning, bound or not";

    EXPECT_EQ(SQLFetch(tanıtıcı), SQL_SUCCESS);
    EXPECT_EQ(std::string(ad), "b");
    EXPECT_EQ(boylar[1], SQL_NULL_DATA);
    EXPECT_EQ(SQLFetch(tanıtıcı), SQL_NO_DATA);

    // Bindings outlast the cursor, but not every statement has all their columns.
    ASSERT_EQ(SQLFreeStmt(tanıtıcı, SQL_CLOSE), SQL_SUCCESS);
    ASSERT_EQ(deyim.Çalıştır("SELECT Ad FROM Deneme"), SQL_SUCCESS);
    EXPECT_EQ(SQLFetch(tanıtıcı), SQL_ERROR);
    EXPECT_EQ(İlkDurum(deyim), "S1002");
    ASSERT_EQ(SQLFreeStmt(tanıtıcı, SQL_UNBIND), SQL_SUCCESS);
    ad[0] = '-';
    EXPECT_EQ(SQLFetch(tanıtıcı), SQL_SUCCESS);
    EXPECT_EQ(ad[0], '-');
}

TEST_F(MotorTesti, Tanılar) {
    TestVerisi bağ(m_dosya);
    Deyim deyim(bağ);
    EXPECT_EQ(deyim.Çalıştır("SELECT Ölçü FROM X"), SQL_ERROR);
    SQLCHAR durum[6] = "";
    SQLCHAR mesaj[256] = "";
    SQLINTEGER yerel = -1;
    SQLSMALLINT uzunluk = 0;
    const auto hata = [&](SQLSMALLINT boy) {
        return SQLError(nullptr, nullptr, deyim.Tanıtıcı(), durum, &yerel, mesaj, boy, &uzunluk);
    };
    EXPECT_EQ(hata(20), SQL_SUCCESS_WITH_INFO);  // cut, and taken off the list all the same
    EXPECT_STREQ(reinterpret_cast<char*>(durum), "37000");
    EXPECT_GT(uzunluk, 20);
    EXPECT_EQ(hata(256), SQL_NO_DATA);

    // A long message fits the usual buffer.
    EXPECT_EQ(
        deyim.Çalıştır("UPDATE MalzemeTablosu SET MalzemeFiyati= '" + Tekrar("ş", 250) + "' WHERE MalzemeAdi= 'x'"),
        SQL_ERROR);
    EXPECT_EQ(hata(256), SQL_SUCCESS);
    EXPECT_NE(std::string_view(reinterpret_cast<char*>(mesaj)).find("ş…\""), std::string::npos) << mesaj;
}

TEST_F(MotorTesti, VeriKaynağı) {
    EXPECT_EQ(KaynakAyarla(Kurulumİsteği::Ekle, {"DSN=Varnek", "DBQ=" + m_dosya}), std::nullopt);
    for (const std::string& tanım :
         {"DSN=Varnek;PWD=" + Parola, "DRIVER={" + Sürücü + "}; dbq = {" + m_dosya + "} ; Pwd={" + Parola + "}"})
        EXPECT_EQ(TestVerisi().Bağlan(tanım).Kod, SQL_SUCCESS) << tanım;
    EXPECT_EQ(TestVerisi().Bağlan("DSN=Varnek;PWD=x").Durum, "28000");
    EXPECT_EQ(TestVerisi().Bağlan("DRIVER={" + Sürücü + "};PWD=x").Durum, "08001");
    EXPECT_EQ(DosyaOku(getenv("ODBCINI")).find(Parola), std::string::npos);
    EXPECT_EQ(KaynakAyarla(Kurulumİsteği::Kaldır, {"DSN=Varnek"}), std::nullopt);
    EXPECT_EQ(DosyaOku(getenv("ODBCINI")).find("Varnek"), std::string::npos);
    EXPECT_NE(KaynakAyarla(Kurulumİsteği::Ekle, {"DBQ=" + m_dosya}), std::nullopt);
}

// A client of ODBC 3, through the driver manager's mapping.
TEST_F(MotorTesti, OdbcÜçİstemcisi) {
    SQLHENV ortam = nullptr;
    SQLHDBC bağlantı = nullptr;
    SQLHSTMT deyim = nullptr;
    SQLAllocHandle(SQL_HANDLE_ENV, SQL_NULL_HANDLE, &ortam);
    SQLSetEnvAttr(ortam, SQL_ATTR_ODBC_VERSION, reinterpret_cast<SQLPOINTER>(SQL_OV_ODBC3), 0);
    SQLAllocHandle(SQL_HANDLE_DBC, ortam, &bağlantı);
    std::string tanım = Tanım(m_dosya);
    const SQLRETURN kod =
        SQLDriverConnect(bağlantı, nullptr, Metin(tanım.c_str()), SQL_NTS, nullptr, 0, nullptr, SQL_DRIVER_NOPROMPT);
    ASSERT_TRUE(SQL_SUCCEEDED(kod));  // with a remark of the driver manager that the driver is one of ODBC 2
    ASSERT_EQ(SQLAllocHandle(SQL_HANDLE_STMT, bağlantı, &deyim), SQL_SUCCESS);
    EXPECT_EQ(SQLTables(deyim, nullptr, 0, nullptr, 0, nullptr, 0, nullptr, 0), SQL_SUCCESS);
    EXPECT_EQ(Say(deyim), 3);  // the engine's own table does not show
    EXPECT_EQ(SQLColumns(deyim, nullptr, 0, nullptr, 0, Metin("UrunTablosu"), SQL_NTS, nullptr, 0), SQL_SUCCESS);
    EXPECT_EQ(Say(deyim), 6);
    EXPECT_EQ(SQLPrepare(deyim, Metin("SELECT * FROM UrunMalzemeTablosu"), SQL_NTS), SQL_SUCCESS);
    EXPECT_EQ(SQLExecute(deyim), SQL_SUCCESS);
    const SQLSMALLINT türler[] = {SQL_TYPE_TIMESTAMP, SQL_VARCHAR, SQL_VARCHAR, SQL_VARCHAR, SQL_VARCHAR, SQL_DECIMAL};
    for (SQLUSMALLINT i = 0; i < std::size(türler); ++i) {
        SQLCHAR ad[64] = "";
        SQLSMALLINT tür = 0;
        EXPECT_EQ(SQLDescribeCol(deyim, i + 1, ad, sizeof ad, nullptr, &tür, nullptr, nullptr, nullptr), SQL_SUCCESS);
        EXPECT_EQ(tür, türler[i]) << ad;
    }
    SQLFreeHandle(SQL_HANDLE_STMT, deyim);
    SQLDisconnect(bağlantı);
    SQLFreeHandle(SQL_HANDLE_DBC, bağlantı);
    SQLFreeHandle(SQL_HANDLE_ENV, ortam);
}

TEST_F(MotorTesti, AçıkHareketBağlantıyıTutar) {
    TestVerisi bağ(m_dosya);
    SQLSetConnectOption(bağ.Tanıtıcı(), SQL_AUTOCOMMIT, SQL_AUTOCOMMIT_OFF);
    bağ.Çalıştır(MalzemeEkle("a", "1"));
    EXPECT_EQ(SQLDisconnect(bağ.Tanıtıcı()), SQL_ERROR);  // something is still to be decided
    EXPECT_EQ(SQLTransact(nullptr, bağ.Tanıtıcı(), SQL_ROLLBACK), SQL_SUCCESS);
    EXPECT_EQ(SQLDisconnect(bağ.Tanıtıcı()), SQL_SUCCESS);
}

// A statement that its client forgot or cancelled disturbs no other, neither outlives the connection nor keeps the file
// locked.
TEST_F(MotorTesti, AçıkKalanDeyim) {
    TestVerisi bağ(m_dosya);
    KullanılanEkle(bağ, 1000);
    SQLHSTMT deyimler[2]{};
    for (SQLHSTMT& deyim : deyimler) {
        SQLAllocStmt(bağ.Tanıtıcı(), &deyim);
        ASSERT_EQ(SQLExecDirect(deyim, Metin("SELECT * FROM UrunMalzemeTablosu"), SQL_NTS), SQL_SUCCESS);
        ASSERT_EQ(SQLFetch(deyim), SQL_SUCCESS);
    }
    EXPECT_EQ(SQLCancel(deyimler[0]), SQL_SUCCESS);
    EXPECT_EQ(Say(deyimler[1]), 999);
    TestVerisi(m_dosya).Çalıştır(MalzemeEkle("b", "1"));
    ASSERT_EQ(SQLExecDirect(deyimler[1], Metin("SELECT * FROM UrunMalzemeTablosu"), SQL_NTS), SQL_SUCCESS);
    ASSERT_EQ(SQLFetch(deyimler[1]), SQL_SUCCESS);
    bağ.Çalıştır(MalzemeEkle("aynı bağlantı", "1"));
    EXPECT_EQ(SQLDisconnect(bağ.Tanıtıcı()), SQL_SUCCESS);
    TestVerisi(m_dosya).Çalıştır(MalzemeEkle("a", "1"));
}
