#include "OdsOkuyucu.h"

#include <QSet>
#include <algorithm>
#include <utility>

#include "ParaIsareti.h"
#include "ZipArsivi.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int EnÇokBoşluk = 1000;

const QString İçerik = u"content.xml"_s;

// The value of the attribute of this local name; prefixes are the file's own affair.
QStringView Özellik(const QXmlStreamAttributes& özellikler, QStringView ad) {
    for (const QXmlStreamAttribute& özellik : özellikler)
        if (özellik.name() == ad) return özellik.value();
    return {};
}

qint64 Tekrar(const QXmlStreamAttributes& özellikler, QStringView ad) {
    return std::max<qint64>(1, Özellik(özellikler, ad).toLongLong());
}

// One cell, from its start element to its end.
class OdsHücresi {
  public:
    explicit OdsHücresi(XmlParçası& parça) : m_parça(parça), m_xml(parça.Xml()) {}

    ÇizelgeHücresi Oku() {
        const QXmlStreamAttributes özellikler = m_xml.attributes();
        for (const QXmlStreamAttribute& özellik : özellikler) Gör(özellik);
        if (!İçiniOku()) return {};
        return Çöz();
    }

  private:
    void Gör(const QXmlStreamAttribute& özellik) {
        const QStringView ad = özellik.name();
        const QString değer = özellik.value().toString();
        // The extended type tells errors, which the plain one calls texts.
        if (ad == u"value-type" && (m_tür.isEmpty() || değer == u"error")) m_tür = değer;
        if (ad == u"value") m_değer = değer;
        if (ad == u"currency") m_para = değer;
        if (ad == u"formula") m_formüllü = true;
        if (ad == u"string-value" || ad == u"date-value" || ad == u"time-value" || ad == u"boolean-value")
            m_yedekMetin = değer;
    }

    // The shown paragraphs; comments, pictures and tables within the cell are not part of them.
    bool İçiniOku() {
        bool ilk = true;
        while (m_parça.İleri() && !m_xml.isEndElement()) {
            if (!m_xml.isStartElement()) continue;
            if (m_xml.name() != u"p") {
                if (!m_parça.Atla()) return false;
                continue;
            }
            if (!std::exchange(ilk, false)) m_metin += u'\n';
            if (!ParagrafıOku()) return false;
        }
        return m_xml.isEndElement();
    }

    bool ParagrafıOku() {
        for (int derinlik = 1; derinlik > 0;) {
            if (!m_parça.İleri()) return false;
            if (m_xml.isCharacters()) m_metin += m_xml.text();
            if (m_xml.isEndElement()) --derinlik;
            if (!m_xml.isStartElement()) continue;
            const QStringView ad = m_xml.name();
            if (ad == u"annotation" || ad == u"ruby-text" || ad == u"frame") {
                if (!m_parça.Atla()) return false;
                continue;
            }
            ++derinlik;
            if (ad == u"s") {
                const qint64 sayı = std::min<qint64>(Tekrar(m_xml.attributes(), u"c"), EnÇokBoşluk);
                m_metin += QString(sayı, u' ');
            } else if (ad == u"tab") {
                m_metin += u'\t';
            } else if (ad == u"line-break") {
                m_metin += u'\n';
            }
        }
        return true;
    }

    ÇizelgeHücresi Çöz() const {
        const QString& gösterilen = m_metin.isEmpty() ? m_yedekMetin : m_metin;
        if (m_tür == u"float" || m_tür == u"currency") return Sayı();
        if (m_tür == u"percentage")
            return ÇizelgeHücresi::Okunmaz(OkunamazNedeni::Yüzde, m_metin.isEmpty() ? m_değer : m_metin);
        if (m_tür == u"date" || m_tür == u"time") return ÇizelgeHücresi::Okunmaz(OkunamazNedeni::Tarih, gösterilen);
        if (m_tür == u"boolean") return ÇizelgeHücresi::Okunmaz(OkunamazNedeni::Mantıksal, gösterilen);
        if (m_tür == u"error") return ÇizelgeHücresi::Okunmaz(OkunamazNedeni::Hata, gösterilen);
        if (m_tür.isEmpty() && m_formüllü)
            return ÇizelgeHücresi::Okunmaz(OkunamazNedeni::Hesapsız, m_metin.isEmpty() ? u"="_s : m_metin);
        return ÇizelgeHücresi::Yazı(gösterilen);
    }

    ÇizelgeHücresi Sayı() const {
        if (m_değer.isEmpty())
            return ÇizelgeHücresi::Okunmaz(m_formüllü ? OkunamazNedeni::Hesapsız : OkunamazNedeni::Bozuk, m_metin);
        const QString& gösterilen = m_metin.isEmpty() ? m_değer : m_metin;
        ÇizelgeHücresi hücre = ÇizelgeHücresi::Rakam(m_değer, gösterilen);
        const Paraİşareti işaret = ParaİşaretiAra(m_metin);
        const bool başka = m_para.isEmpty() ? işaret.Cins == ParaCinsi::Başka : !TürkParasıMı(m_para);
        if (başka && hücre.Tür == ÇizelgeHücreTürü::Sayı)
            hücre = ÇizelgeHücresi::Okunmaz(OkunamazNedeni::BaşkaPara, gösterilen);
        hücre.ParaBirimi = m_para.isEmpty() ? işaret.Metin : m_para;
        return hücre;
    }

    XmlParçası& m_parça;
    const QXmlStreamReader& m_xml;
    QString m_tür;
    QString m_değer;
    QString m_para;
    QString m_yedekMetin;
    QString m_metin;
    bool m_formüllü = false;
};

// The rows of one table, from its start element to its end.
class OdsTablosu {
  public:
    OdsTablosu(XmlParçası& parça, const SatırAlıcı& alıcı) : m_parça(parça), m_xml(parça.Xml()), m_alıcı(alıcı) {}

    void Oku() {
        for (int derinlik = 1; derinlik > 0 && m_parça.İleri();) {
            if (m_xml.isEndElement()) --derinlik;
            if (!m_xml.isStartElement()) continue;
            const QStringView ad = m_xml.name();
            if (ad == u"table-row") {
                if (!SatırıOku()) return;
            } else if (ad == u"table-row-group" || ad == u"table-header-rows" || ad == u"table-rows") {
                ++derinlik;
            } else if (!m_parça.Atla()) {
                return;
            }
        }
    }

  private:
    bool SatırıOku() {
        const QXmlStreamAttributes özellikler = m_xml.attributes();
        const qint64 tekrar = Tekrar(özellikler, u"number-rows-repeated");
        const QStringView görünüm = Özellik(özellikler, u"visibility");
        ÇizelgeSatırı satır;
        satır.Gizli = görünüm == u"collapse" || görünüm == u"filter";
        m_sütun = 0;
        while (m_parça.İleri() && !m_xml.isEndElement())
            if (m_xml.isStartElement() && !HücreyiOku(satır)) return false;
        if (!m_xml.isEndElement()) return false;
        return satır.Hücreler.empty() ? BoşSatırlar(tekrar) : SatırlarıVer(satır, tekrar);
    }

    bool HücreyiOku(ÇizelgeSatırı& satır) {
        const bool örtülü = m_xml.name() == u"covered-table-cell";
        if (!örtülü && m_xml.name() != u"table-cell") return m_parça.Atla();
        const qint64 tekrar = Tekrar(m_xml.attributes(), u"number-columns-repeated");
        ÇizelgeHücresi hücre;
        if (örtülü) {
            if (!m_parça.Atla()) return false;
        } else {
            hücre = OdsHücresi(m_parça).Oku();
            if (!m_xml.isEndElement()) return false;
        }
        const qint64 son = std::min(m_sütun + tekrar, qint64{1} << 40);
        if (hücre.Tür != ÇizelgeHücreTürü::Boş) {
            if (son > EnÇokSütun) {
                m_parça.Dur(ÇizelgeHatası::ÇokSütun, m_no + 1);
                return false;
            }
            satır.Hücreler.resize(static_cast<std::size_t>(m_sütun));
            satır.Hücreler.resize(static_cast<std::size_t>(son), hücre);
        }
        m_sütun = son;
        return true;
    }

    bool BoşSatırlar(qint64 tekrar) {
        m_no = std::min(m_no + tekrar, qint64{1} << 40);
        return true;
    }

    bool SatırlarıVer(const ÇizelgeSatırı& satır, qint64 tekrar) {
        for (qint64 kaçıncı = 0; kaçıncı < tekrar; ++kaçıncı) {
            if (++m_no > EnÇokSatır) {
                m_parça.Dur(ÇizelgeHatası::ÇokSatır, m_no);
                return false;
            }
            ÇizelgeSatırı verilen = satır;
            verilen.No = m_no;
            if (!m_alıcı(std::move(verilen))) {
                m_parça.Yeter();
                return false;
            }
            if (m_parça.DurdurulduMu()) return false;
        }
        return true;
    }

    XmlParçası& m_parça;
    const QXmlStreamReader& m_xml;
    const SatırAlıcı& m_alıcı;
    qint64 m_no = 0;
    qint64 m_sütun = 0;
};

class OdsBelgesi : public SayfaKaynağı {
  public:
    explicit OdsBelgesi(std::unique_ptr<ZipArşivi> arşiv) : m_arşiv(std::move(arşiv)) {}

    OkumaSonucu SayfalarıOku() override {
        return TablolarıGez([this](XmlParçası& parça, qsizetype) {
            const QXmlStreamAttributes özellikler = parça.Xml().attributes();
            Sayfalar << SayfaBilgisi{Özellik(özellikler, u"name").toString(),
                                     m_gizliBiçimler.contains(Özellik(özellikler, u"style-name").toString())};
            parça.Atla();
        });
    }

    OkumaSonucu Oku(qsizetype sayfa, const SatırAlıcı& alıcı) override {
        return TablolarıGez([&](XmlParçası& parça, qsizetype sıra) {
            if (sıra == sayfa)
                OdsTablosu(parça, alıcı).Oku();
            else
                parça.Atla();
        });
    }

  private:
    // Calls `tablo` at each sheet's start element; deleted contents and cached links hold tables too, deeper down.
    OkumaSonucu TablolarıGez(const std::function<void(XmlParçası&, qsizetype)>& tablo) {
        m_arşiv->Başla({İçerik});
        XmlParçası parça(*m_arşiv, İçerik);
        const QXmlStreamReader& xml = parça.Xml();
        bool sayfalarda = false;
        QString biçim;
        qsizetype sıra = 0;
        while (parça.İleri()) {
            if (!xml.isStartElement()) continue;
            if (xml.name() == u"spreadsheet") {
                sayfalarda = true;
            } else if (sayfalarda) {
                if (xml.name() == u"table")
                    tablo(parça, sıra++);
                else
                    parça.Atla();
            } else if (xml.name() == u"style") {
                biçim = Özellik(xml.attributes(), u"name").toString();
            } else if (xml.name() == u"table-properties" && Özellik(xml.attributes(), u"display") == u"false") {
                m_gizliBiçimler.insert(biçim);
            }
        }
        return parça.Bitir();
    }

    std::unique_ptr<ZipArşivi> m_arşiv;
    QSet<QString> m_gizliBiçimler;
};

}  // namespace

std::unique_ptr<SayfaKaynağı> OdsKaynağı(std::unique_ptr<ZipArşivi> arşiv) {
    return std::make_unique<OdsBelgesi>(std::move(arşiv));
}
