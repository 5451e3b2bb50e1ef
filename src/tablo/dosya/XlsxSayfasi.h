#pragma once

#include "Cizelge.h"
#include "XlsxBicim.h"

// A text of one or more runs (<t>), without what tells its pronunciation (<rPh>).
class XlsxMetni {
  public:
    void Başla();
    void Gör(const QXmlStreamReader& xml);
    QString Al();

  private:
    QString m_metin;
    bool m_içinde = false;
    bool m_okunuşta = false;
};

// The rows of one worksheet.
class XlsxSayfası {
  public:
    XlsxSayfası(XmlParçası& parça, const QList<QString>& metinler, const XlsxBiçimleri& biçimler, bool tarih1904);
    void Oku(const SatırAlıcı& alıcı);

  private:
    enum class Tür { Sayı, OrtakMetin, Metin, İçMetin, Mantıksal, Hata, Tarih };

    void BaşlangıcıGör();
    bool SonuGör(const SatırAlıcı& alıcı);
    void SatırBaşı();
    void HücreBaşı();
    void HücreSonu();
    ÇizelgeHücresi Çöz();
    ÇizelgeHücresi SayıyıÇöz();

    XmlParçası& m_parça;
    const QXmlStreamReader& m_xml;
    const QList<QString>& m_metinler;
    const XlsxBiçimleri& m_biçimler;
    const bool m_tarih1904;

    ÇizelgeSatırı m_satır;
    qint64 m_satırNo = 0;
    int m_sütun = -1;
    bool m_hücrede = false;
    Tür m_tür = Tür::Sayı;
    qsizetype m_biçim = 0;
    bool m_değerde = false;
    bool m_formüllü = false;
    QString m_değer;
    XlsxMetni m_içMetin;
};
