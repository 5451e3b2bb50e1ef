#pragma once

#include <QHash>
#include <QIODevice>
#include <QXmlStreamReader>
#include <functional>
#include <memory>
#include <string_view>

#include "Cizelge.h"

// The parts of a zipped spreadsheet. Counts what it unpacks: what a file says of its own size is not believed. One part
// at a time.
class ZipArşivi {
  public:
    // `gözetim` must outlive it.
    ZipArşivi(const QString& yol, const OkumaGözetimi& gözetim, qint64 enÇokBayt = EnÇokBayt);
    ~ZipArşivi();
    ZipArşivi(const ZipArşivi&) = delete;
    ZipArşivi& operator=(const ZipArşivi&) = delete;

    OkumaSonucu Aç();
    bool Var(const QString& ad) const;  // however the file spells letter case and slashes
    OkumaSonucu KısaOku(const QString& ad, QByteArray& içerik);

    // How often these bytes stand in a part, which has to be sound to its end.
    OkumaSonucu Say(const QString& ad, std::string_view aranan, qint64& sayı);

    // Before a reading of these parts: the count of unpacked bytes and the progress begin anew.
    void Başla(const QStringList& parçalar);

  private:
    friend class XmlParçası;
    friend class SayanAygıt;

    struct Parça {
        quint64 Yer;  // in the archive's directory
        quint64 Sıra;
        qint64 Boy;
        bool Şifreli;
    };
    const Parça* Bul(const QString& ad) const;
    OkumaSonucu ParçayıAç(const QString& ad);
    // A number of bytes; below 0: broken.
    qint64 Oku(char* yer, qint64 boy);
    // False: what was read to its end is not what was packed.
    bool ParçayıKapat();
    // False: the reading has to end, and why.
    bool Say(qint64 bayt, OkumaSonucu& sonuç);

    QString m_yol;
    void* m_zip = nullptr;
    const OkumaGözetimi& m_gözetim;
    const qint64 m_enÇokBayt;
    QHash<QString, Parça> m_parçalar;
    qint64 m_okunan = 0;
    qint64 m_toplam = 0;
};

// One XML part, read token by token. Document types are refused, and with them all entities of a file's own.
class XmlParçası {
  public:
    XmlParçası(ZipArşivi& arşiv, const QString& ad);
    ~XmlParçası();

    QXmlStreamReader& Xml() { return m_xml; }
    // To the next token; false at the end, and when something stopped the reading.
    bool İleri();
    // After a start element: to its end.
    bool Atla();
    // What came of it. Unless ended early, the part must have been sound to its last byte.
    OkumaSonucu Bitir();
    void Yeter() { m_yeter = true; }
    void Dur(ÇizelgeHatası hata, qint64 satır = 0);
    // Whether the caller wants no more, for loops that read nothing.
    bool DurdurulduMu();

  private:
    ZipArşivi& m_arşiv;
    QString m_ad;
    std::unique_ptr<QIODevice> m_aygıt;
    QXmlStreamReader m_xml;
    OkumaSonucu m_sonuç;
    int m_derinlik = 0;
    bool m_yeter = false;
};
