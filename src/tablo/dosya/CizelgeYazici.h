#pragma once

#include "CizelgeHedefi.h"

// Writes rows into a spreadsheet file, whose name's ending says which kind: ".csv" a text file, everything else .xlsx.
// The file takes its place only when Bitir says so; before that, and after any error, what stood there stands.
class ÇizelgeYazıcı {
  public:
    ÇizelgeYazıcı(const QString& yol, const QString& sayfaAdı, const QList<ÇizelgeSütunu>& sütunlar);

    // A line above the captions; "": none. To be said before Aç.
    void ÜstYazıKoy(const QString& metin) { m_üstYazı = metin; }

    YazmaSonucu Aç() { return m_hedef->Aç(m_üstYazı); }
    // Values behind the last column are not written.
    YazmaSonucu SatırEkle(const QList<ÇizelgeDeğeri>& değerler) { return m_hedef->SatırEkle(değerler); }
    YazmaSonucu Bitir() { return m_hedef->Bitir(); }

  private:
    QString m_üstYazı;
    std::unique_ptr<ÇizelgeHedefi> m_hedef;
};
