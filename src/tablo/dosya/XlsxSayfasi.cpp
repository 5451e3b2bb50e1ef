#include "XlsxSayfasi.h"

#include <utility>

#include "ZipArsivi.h"

using namespace Qt::StringLiterals;

namespace {

// _x000D_ stands for a character that XML does not allow.
QString KaçışlarıÇöz(QString metin) {
    for (qsizetype yer = metin.indexOf("_x"_L1); yer >= 0; yer = metin.indexOf("_x"_L1, yer + 1)) {
        bool tamam = yer + 6 < metin.size() && metin[yer + 6] == u'_';
        const ushort kod = tamam ? QStringView(metin).mid(yer + 2, 4).toUShort(&tamam, 16) : 0;
        if (tamam) metin.replace(yer, 7, QChar(kod));
    }
    return metin;
}

// Most texts come in one piece, and get just the room they need.
void Ekle(QString& metin, QStringView ek) {
    if (metin.isEmpty())
        metin = ek.toString();
    else
        metin += ek;
}

// The column of a cell's place ("AB12"), from 0; -1: none.
int SütunSırası(QStringView yer) {
    int sütun = 0;
    for (const QChar harf : yer) {
        if (harf < u'A' || harf > u'Z' || sütun > 1'000'000) break;
        sütun = sütun * 26 + (harf.unicode() - u'A' + 1);
    }
    return sütun - 1;
}

}  // namespace

void XlsxMetni::Başla() {
    m_metin.clear();
    m_içinde = m_okunuşta = false;
}

void XlsxMetni::Gör(const QXmlStreamReader& xml) {
    if (xml.isCharacters()) {
        if (m_içinde) Ekle(m_metin, xml.text());
    } else if (xml.isStartElement() || xml.isEndElement()) {
        if (xml.name() == u"rPh") m_okunuşta = xml.isStartElement();
        if (xml.name() == u"t") m_içinde = xml.isStartElement() && !m_okunuşta;
    }
}

QString XlsxMetni::Al() {
    return KaçışlarıÇöz(std::exchange(m_metin, {}));
}

XlsxSayfası::XlsxSayfası(XmlParçası& parça, const QList<QString>& metinler, const XlsxBiçimleri& biçimler,
                         bool tarih1904)
    : m_parça(parça), m_xml(parça.Xml()), m_metinler(metinler), m_biçimler(biçimler), m_tarih1904(tarih1904) {}

void XlsxSayfası::Oku(const SatırAlıcı& alıcı) {
    while (m_parça.İleri()) {
        if (m_hücrede && m_tür == Tür::İçMetin) m_içMetin.Gör(m_xml);
        if (m_xml.isCharacters()) {
            if (m_değerde) Ekle(m_değer, m_xml.text());
        } else if (m_xml.isStartElement()) {
            BaşlangıcıGör();
        } else if (m_xml.isEndElement() && !SonuGör(alıcı)) {
            m_parça.Yeter();
        }
    }
}

void XlsxSayfası::BaşlangıcıGör() {
    const QStringView ad = m_xml.name();
    if (ad == u"v")
        m_değerde = m_hücrede;
    else if (ad == u"c")
        HücreBaşı();
    else if (ad == u"row")
        SatırBaşı();
    else if (ad == u"f")
        m_formüllü = true;
}

// False: enough.
bool XlsxSayfası::SonuGör(const SatırAlıcı& alıcı) {
    const QStringView ad = m_xml.name();
    if (ad == u"v") {
        m_değerde = false;
    } else if (ad == u"c" && m_hücrede) {
        HücreSonu();
    } else if (ad == u"row" && !m_satır.BoşMu()) {
        const std::size_t boy = m_satır.Hücreler.size();
        const bool sürer = alıcı(std::exchange(m_satır, {}));
        m_satır.Hücreler.reserve(boy);
        return sürer;
    }
    return true;
}

void XlsxSayfası::SatırBaşı() {
    const QXmlStreamAttributes özellikler = m_xml.attributes();
    const QStringView no = özellikler.value("r"_L1);
    m_satırNo = no.isEmpty() ? m_satırNo + 1 : no.toLongLong();
    if (m_satırNo < 1) m_parça.Dur(ÇizelgeHatası::BozukXml);
    m_satır.Hücreler.clear();
    m_satır.No = m_satırNo;
    const QStringView gizli = özellikler.value("hidden"_L1);
    m_satır.Gizli = gizli == u"1" || gizli == u"true";
    m_sütun = -1;
}

void XlsxSayfası::HücreBaşı() {
    m_hücrede = true;
    m_değerde = m_formüllü = false;
    m_değer.clear();
    m_biçim = 0;
    m_tür = Tür::Sayı;
    ++m_sütun;
    for (const QXmlStreamAttribute& özellik : m_xml.attributes()) {
        const QStringView değer = özellik.value();
        if (özellik.name() == u"r") {
            m_sütun = SütunSırası(değer);
        } else if (özellik.name() == u"s") {
            m_biçim = değer.toLongLong();
        } else if (özellik.name() == u"t") {
            m_tür = değer == u"s"           ? Tür::OrtakMetin
                    : değer == u"str"       ? Tür::Metin
                    : değer == u"inlineStr" ? Tür::İçMetin
                    : değer == u"b"         ? Tür::Mantıksal
                    : değer == u"e"         ? Tür::Hata
                    : değer == u"d"         ? Tür::Tarih
                                            : Tür::Sayı;
        }
    }
    if (m_sütun < 0) m_parça.Dur(ÇizelgeHatası::BozukXml);
    m_içMetin.Başla();
}

void XlsxSayfası::HücreSonu() {
    m_hücrede = false;
    ÇizelgeHücresi hücre = Çöz();
    if (hücre.Tür == ÇizelgeHücreTürü::Boş) return;
    if (m_satırNo > EnÇokSatır) return m_parça.Dur(ÇizelgeHatası::ÇokSatır, m_satırNo);
    if (m_sütun >= EnÇokSütun) return m_parça.Dur(ÇizelgeHatası::ÇokSütun, m_satırNo);
    const auto sıra = static_cast<std::size_t>(m_sütun);
    if (m_satır.Hücreler.size() <= sıra) m_satır.Hücreler.resize(sıra + 1);
    m_satır.Hücreler[sıra] = std::move(hücre);
}

ÇizelgeHücresi XlsxSayfası::Çöz() {
    if (m_tür == Tür::İçMetin) return ÇizelgeHücresi::Yazı(m_içMetin.Al());
    if (m_tür == Tür::Metin) return ÇizelgeHücresi::Yazı(KaçışlarıÇöz(m_değer));
    if (m_değer.isEmpty())
        return m_formüllü ? ÇizelgeHücresi::Okunmaz(OkunamazNedeni::Hesapsız, u"="_s) : ÇizelgeHücresi();
    switch (m_tür) {
        case Tür::OrtakMetin: {
            bool tamam = false;
            const qsizetype sıra = m_değer.toLongLong(&tamam);
            if (!tamam || sıra < 0 || sıra >= m_metinler.size())
                return ÇizelgeHücresi::Okunmaz(OkunamazNedeni::Bozuk, m_değer);
            return ÇizelgeHücresi::Yazı(m_metinler[sıra]);
        }
        case Tür::Mantıksal:
            return ÇizelgeHücresi::Okunmaz(OkunamazNedeni::Mantıksal, m_değer == u"0" ? u"YANLIŞ"_s : u"DOĞRU"_s);
        case Tür::Hata:
            return ÇizelgeHücresi::Okunmaz(OkunamazNedeni::Hata, m_değer);
        case Tür::Tarih:
            return ÇizelgeHücresi::Okunmaz(OkunamazNedeni::Tarih, m_değer);
        default:
            return SayıyıÇöz();
    }
}

ÇizelgeHücresi XlsxSayfası::SayıyıÇöz() {
    ÇizelgeHücresi hücre = ÇizelgeHücresi::Rakam(m_değer, m_değer);
    const SayıBiçimi& biçim = m_biçimler.Biçim(m_biçim);
    if (biçim.Neden != OkunamazNedeni::Yok && hücre.Tür == ÇizelgeHücreTürü::Sayı)
        hücre = ÇizelgeHücresi::Okunmaz(biçim.Neden, SayıyıGöster(hücre, biçim.Neden, m_tarih1904));
    hücre.ParaBirimi = biçim.ParaBirimi;
    return hücre;
}
