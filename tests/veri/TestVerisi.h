#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <optional>
#include <ostream>
#include <string>

#include "OdbcHareketi.h"

// Data files for tests. They are made and read through the driver manager and the driver, beside the program's own
// connection.

// How failures show the toolkit's texts; of many rows only their number.
inline void PrintTo(const QString& metin, std::ostream* çıktı) {
    *çıktı << '"' << metin.toStdString() << '"';
}
inline void PrintTo(const QStringList& metinler, std::ostream* çıktı) {
    PrintTo(metinler.join(QStringLiteral("\", \"")), çıktı);
}
inline void PrintTo(const QList<QStringList>& satırlar, std::ostream* çıktı) {
    *çıktı << satırlar.size() << " rows";
}

// A text in whichever form a test has it (UTF-8).
struct TestMetni : QString {
    TestMetni(const QString& metin) : QString(metin) {}
    TestMetni(const std::string& metin) : QString(QString::fromStdString(metin)) {}
    TestMetni(const char* metin) : QString(QString::fromUtf8(metin)) {}
};

// A new data file, made by the data-file tool: "yeni" is empty, "ornek" holds the sample. The test fails when it cannot
// be made.
void VeriDosyasıOluştur(const TestMetni& yol, const QString& tür = QStringLiteral("yeni"));

// The return code of a call and, unless it is 0, the first error.
struct TestSonucu {
    TestSonucu(const OdbcSonucu& sonuç);
    std::int16_t Kod;
    std::string Durum;
    std::string Mesaj;
    int Yerel = 0;
};

// A connection to a data file, closed by the destructor.
class TestVerisi {
  public:
    TestVerisi() = default;
    explicit TestVerisi(const TestMetni& yol);  // the test fails when it cannot be opened

    TestSonucu Bağlan(const TestMetni& bağlantıMetni) { return m_bağlantı.Aç(bağlantıMetni); }

    // What may fail, and what fails the test with the driver's messages when it does.
    TestSonucu Dene(const TestMetni& sql) { return m_bağlantı.Çalıştır(sql); }
    void Çalıştır(const TestMetni& sql);
    QList<QStringList> Oku(const TestMetni& sql);  // NULL reads "<NULL>"
    std::string Tek(const TestMetni& sql);         // the one value of one row

    // From here on changes are under way until Onayla.
    void ElleOnayla();
    void Onayla();

    // Every row of every table, each row headed by its table's name: for comparing files.
    QList<QStringList> HerSatır();

    OdbcBağlantısı& Bağlantı() { return m_bağlantı; }
    void* Tanıtıcı() const { return m_bağlantı.Tanıtıcı(); }

  private:
    OdbcBağlantısı m_bağlantı;
    std::optional<OdbcHareketi> m_hareket;
};
