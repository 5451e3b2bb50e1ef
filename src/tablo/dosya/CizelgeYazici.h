#pragma once

#include <QList>
#include <QString>
#include <memory>
#include <variant>

#include "Ondalik.h"
#include "Para.h"

enum class ÇizelgeSütunTürü {
    Metin,
    Para,  // grouped, Basamak decimals
    Sayı,  // as many decimals as it has
    Yüzde  // a plain number (18, not 0,18), Basamak decimals
};

struct ÇizelgeSütunu {
    QString Başlık;
    double Genişlik = 12;  // in characters of the sheet's font
    ÇizelgeSütunTürü Tür = ÇizelgeSütunTürü::Metin;
    int Basamak = 2;
};

// A text stays a text, whatever it begins with or looks like, in any column. Numbers have the 15 digits of
// spreadsheets.
using ÇizelgeDeğeri = std::variant<std::monostate, QString, Para, Ondalık>;

enum class YazmaHatası {
    Yok,
    Yazılamadı,  // Ayrıntı: the reason, where there is one
    ÇokSatır,    // more than EnÇokVeriSatırı
    UzunMetin    // a text of more than 32,767 characters
};

struct YazmaSonucu {
    YazmaHatası Hata = YazmaHatası::Yok;
    QString Ayrıntı;

    bool Tamam() const { return Hata == YazmaHatası::Yok; }
};

inline constexpr qint64 EnÇokVeriSatırı = 1'048'575;  // besides the captions

// Writes one sheet into an .xlsx file, row by row. The file takes its place only when Bitir says so; before that, and
// after any error, what stood there stands.
class ÇizelgeYazıcı {
  public:
    ÇizelgeYazıcı(QString yol, const QString& sayfaAdı, QList<ÇizelgeSütunu> sütunlar);
    ~ÇizelgeYazıcı();
    ÇizelgeYazıcı(const ÇizelgeYazıcı&) = delete;
    ÇizelgeYazıcı& operator=(const ÇizelgeYazıcı&) = delete;

    // A line above the captions; "": none. To be said before Aç.
    void ÜstYazıKoy(const QString& metin) { m_üstYazı = metin; }

    YazmaSonucu Aç();
    // Values behind the last column are not written.
    YazmaSonucu SatırEkle(const QList<ÇizelgeDeğeri>& değerler);
    YazmaSonucu Bitir();

  private:
    struct Kitap;

    QString m_yol;
    QString m_sayfaAdı;
    QString m_üstYazı;
    QList<ÇizelgeSütunu> m_sütunlar;
    std::unique_ptr<Kitap> m_kitap;
};
