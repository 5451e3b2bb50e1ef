#include "XlsxOkuyucu.h"

#include <QHash>

#include "XlsxBicim.h"
#include "XlsxSayfasi.h"
#include "ZipArsivi.h"

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype EnÇokMetin = 1 << 23;

const QString KitapAdı = u"xl/workbook.xml"_s;

// Targets are relative to the folder of the part that names them.
QString YolaÇevir(QStringView hedef) {
    if (hedef.startsWith(u'/')) return hedef.mid(1).toString();
    if (hedef.startsWith(u"../")) return hedef.mid(3).toString();
    return u"xl/"_s + hedef.toString();
}

class XlsxKitabı : public SayfaKaynağı {
  public:
    explicit XlsxKitabı(std::unique_ptr<ZipArşivi> arşiv) : m_arşiv(std::move(arşiv)) {}

    OkumaSonucu SayfalarıOku() override {
        m_arşiv->Başla({});
        OkumaSonucu sonuç = İlişkileriOku();
        return sonuç.Tamam() ? KitabıOku() : sonuç;
    }

    OkumaSonucu Oku(qsizetype sayfa, const SatırAlıcı& alıcı) override {
        const QString yol = m_sayfaYolları[sayfa];
        m_arşiv->Başla({m_metinYolu, m_biçimYolu, yol});
        OkumaSonucu sonuç = MetinleriOku();
        if (sonuç.Tamam()) sonuç = BiçimleriOku();
        if (!sonuç.Tamam()) return sonuç;
        XmlParçası parça(*m_arşiv, yol);
        XlsxSayfası(parça, m_metinler, m_biçimler, m_tarih1904).Oku(alıcı);
        return parça.Bitir();
    }

  private:
    struct İlişki {
        QString Yol;
        QString Tür;
    };

    OkumaSonucu İlişkileriOku() {
        XmlParçası parça(*m_arşiv, u"xl/_rels/workbook.xml.rels"_s);
        const QXmlStreamReader& xml = parça.Xml();
        while (parça.İleri()) {
            if (!xml.isStartElement() || xml.name() != u"Relationship") continue;
            const QXmlStreamAttributes özellikler = xml.attributes();
            const QStringView tür = özellikler.value("Type"_L1);
            const QString yol = YolaÇevir(özellikler.value("Target"_L1));
            if (tür.endsWith(u"/sharedStrings")) m_metinYolu = yol;
            if (tür.endsWith(u"/styles")) m_biçimYolu = yol;
            m_ilişkiler.insert(özellikler.value("Id"_L1).toString(),
                               {yol, tür.mid(tür.lastIndexOf(u'/') + 1).toString()});
        }
        return parça.Bitir();
    }

    OkumaSonucu KitabıOku() {
        XmlParçası parça(*m_arşiv, KitapAdı);
        const QXmlStreamReader& xml = parça.Xml();
        while (parça.İleri()) {
            if (!xml.isStartElement()) continue;
            if (xml.name() == u"workbookPr") {
                const QStringView değer = xml.attributes().value("date1904"_L1);
                m_tarih1904 = değer == u"1" || değer == u"true";
            }
            if (xml.name() == u"sheet") SayfaEkle(xml.attributes());
        }
        return parça.Bitir();
    }

    void SayfaEkle(const QXmlStreamAttributes& özellikler) {
        İlişki ilişki;
        for (const QXmlStreamAttribute& özellik : özellikler)
            if (özellik.name() == u"id" && !özellik.namespaceUri().isEmpty())
                ilişki = m_ilişkiler.value(özellik.value().toString());
        if (ilişki.Tür != u"worksheet") return;  // charts and dialogs have no rows
        m_sayfaYolları << ilişki.Yol;
        const QStringView durum = özellikler.value("state"_L1);
        Sayfalar << SayfaBilgisi{özellikler.value("name"_L1).toString(), !durum.isEmpty() && durum != u"visible"};
    }

    OkumaSonucu MetinleriOku() {
        m_metinler.clear();
        if (m_metinYolu.isEmpty()) return {};
        XmlParçası parça(*m_arşiv, m_metinYolu);
        XlsxMetni metin;
        const QXmlStreamReader& xml = parça.Xml();
        while (parça.İleri()) {
            if (xml.isStartElement() && xml.name() == u"si") {
                metin.Başla();
            } else if (xml.isEndElement() && xml.name() == u"si") {
                if (m_metinler.size() == EnÇokMetin) parça.Dur(ÇizelgeHatası::ÇokBüyük);
                m_metinler << metin.Al();
            } else {
                metin.Gör(xml);
            }
        }
        return parça.Bitir();
    }

    OkumaSonucu BiçimleriOku() {
        m_biçimler = {};
        if (m_biçimYolu.isEmpty()) return {};
        XmlParçası parça(*m_arşiv, m_biçimYolu);
        m_biçimler.Oku(parça);
        return parça.Bitir();
    }

    std::unique_ptr<ZipArşivi> m_arşiv;
    QHash<QString, İlişki> m_ilişkiler;
    QStringList m_sayfaYolları;
    QString m_metinYolu;
    QString m_biçimYolu;
    bool m_tarih1904 = false;
    QList<QString> m_metinler;
    XlsxBiçimleri m_biçimler;
};

}  // namespace

std::unique_ptr<SayfaKaynağı> XlsxKaynağı(std::unique_ptr<ZipArşivi> arşiv) {
    return std::make_unique<XlsxKitabı>(std::move(arşiv));
}
