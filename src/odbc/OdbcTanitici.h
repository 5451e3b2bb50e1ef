#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>
#include <cstdint>
#include <optional>

// The ODBC handles, each owned by a type that frees it on every path. Results are ODBC return codes (0 = success).

// Environment and connection together: they live and die as one.
class OdbcBağlantısı {
  public:
    OdbcBağlantısı() = default;
    OdbcBağlantısı(const OdbcBağlantısı&) = delete;
    OdbcBağlantısı& operator=(const OdbcBağlantısı&) = delete;
    ~OdbcBağlantısı() { Kapat(); }

    std::int16_t OrtamAç();
    std::int16_t BağlantıAç();
    std::int16_t Bağlan(const QString& bağlantıMetni);
    void Kapat();  // disconnects and frees what there is

    void* Tanıtıcı() const { return m_bağlantı; }

  private:
    void* m_ortam = nullptr;
    void* m_bağlantı = nullptr;
    bool m_bağlı = false;
};

// One statement of a connection.
class OdbcDeyimi {
  public:
    OdbcDeyimi() = default;
    OdbcDeyimi(const OdbcDeyimi&) = delete;
    OdbcDeyimi& operator=(const OdbcDeyimi&) = delete;
    ~OdbcDeyimi() { Bırak(); }

    std::int16_t Aç(const OdbcBağlantısı& bağlantı);
    std::int16_t Çalıştır(const QString& sql);
    std::int16_t Getir();
    // The column as text, cut to at most 254 characters; a longer text gives 1 (success with information).
    std::int16_t Oku(int sütun, QString& metin);
    void Bırak();

    void* Tanıtıcı() const { return m_deyim; }

  private:
    void* m_deyim = nullptr;
};

// One error as the driver reported it.
struct OdbcHatası {
    QString Durum;           // state code, five characters
    std::int32_t Yerel = 0;  // the driver's own number; 0: none
    QString İleti;           // a message that the driver gives with length 0 is an empty text
};

// Takes every pending error off one handle (the other is null), in the order in which the driver keeps them.
QList<OdbcHatası> OdbcHataKayıtlarınıAl(void* bağlantı, void* deyim);

// The same, the messages alone.
QStringList OdbcHatalarınıAl(void* bağlantı, void* deyim);
