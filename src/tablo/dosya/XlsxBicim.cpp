#include "XlsxBicim.h"

#include <QDateTime>
#include <algorithm>

#include "ParaIsareti.h"
#include "SayiMetni.h"
#include "ZipArsivi.h"

using namespace Qt::StringLiterals;

namespace {

bool YerleşikTarih(int no) {
    return (no >= 14 && no <= 22) || (no >= 27 && no <= 36) || (no >= 45 && no <= 47) || (no >= 50 && no <= 58);
}

SayıBiçimi YerleşikBiçim(int no) {
    if (no == 9 || no == 10) return {OkunamazNedeni::Yüzde, {}};
    if (YerleşikTarih(no)) return {OkunamazNedeni::Tarih, {}};
    return {};
}

// Collects what the parts of a format code say.
class KodÇözücü {
  public:
    SayıBiçimi Çöz(QStringView kod) {
        while (!kod.isEmpty()) kod = kod.mid(BirParça(kod));
        if (m_başkaPara) return {OkunamazNedeni::BaşkaPara, m_para};
        if (m_tarih) return {OkunamazNedeni::Tarih, {}};
        if (m_yüzde) return {OkunamazNedeni::Yüzde, {}};
        return {OkunamazNedeni::Yok, m_para};
    }

  private:
    // Judges what the code begins with; returns its length.
    qsizetype BirParça(QStringView kod) {
        const QChar ilk = kod.front();
        if (ilk == u'"' || ilk == u'[') {
            const qsizetype son = kod.indexOf(ilk == u'"' ? u'"' : u']', 1);
            const QStringView iç = kod.mid(1, (son < 0 ? kod.size() : son) - 1);
            if (ilk == u'"')
                ParaAra(iç);
            else
                Ayraçİçi(iç);
            return son < 0 ? kod.size() : son + 1;
        }
        if (ilk == u'\\') {
            if (kod.size() > 1) ParaAra(kod.mid(1, 1));
            return std::min<qsizetype>(2, kod.size());
        }
        if (ilk == u'_' || ilk == u'*') return std::min<qsizetype>(2, kod.size());
        if (ilk.isLetter()) return Söz(kod);
        if (ilk == u'%') m_yüzde = true;
        ParaAra(kod.left(1));
        return 1;
    }

    // [$₺-41F] is a currency, [h] an elapsed time; colours and conditions say nothing.
    void Ayraçİçi(QStringView iç) {
        if (iç.startsWith(u'$')) {
            const qsizetype dil = iç.lastIndexOf(u'-');
            const QStringView işaret = iç.mid(1, dil < 0 ? -1 : dil - 1).trimmed();
            if (!işaret.isEmpty()) ParaKoy(işaret, TürkParasıMı(işaret));
            return;
        }
        const bool süre = !iç.isEmpty() && std::all_of(iç.begin(), iç.end(), [&](QChar h) {
            return h.toLower() == iç.front().toLower() && u"hms"_s.contains(h.toLower());
        });
        if (süre) m_tarih = true;
    }

    qsizetype Söz(QStringView kod) {
        qsizetype son = 1;
        while (son < kod.size() && kod[son].isLetter()) ++son;
        const QStringView söz = kod.left(son);
        if (ParaAra(söz)) return son;
        if (söz.startsWith(u"General", Qt::CaseInsensitive)) return son;
        const bool üs = söz.size() == 1 && söz.front().toUpper() == u'E' && son < kod.size() &&
                        (kod[son] == u'+' || kod[son] == u'-');
        if (!üs && std::any_of(söz.begin(), söz.end(), [](QChar h) { return u"ymdhs"_s.contains(h.toLower()); }))
            m_tarih = true;
        return son;
    }

    bool ParaAra(QStringView metin) {
        const Paraİşareti işaret = ParaİşaretiAra(metin);
        if (işaret.Cins != ParaCinsi::Yok) ParaKoy(işaret.Metin, işaret.Cins == ParaCinsi::Türk);
        return işaret.Cins != ParaCinsi::Yok;
    }

    void ParaKoy(QStringView işaret, bool türk) {
        if (m_başkaPara) return;
        m_başkaPara = !türk;
        m_para = işaret.toString();
    }

    bool m_tarih = false;
    bool m_yüzde = false;
    bool m_başkaPara = false;
    QString m_para;
};

QString TarihGöster(const Ondalık& sayı, bool tarih1904) {
    const std::optional<double> gün = EnYakınDouble(sayı);
    if (!gün || *gün < 0 || *gün > 2958465) return {};
    const qint64 saniye = qRound64(*gün * 86400);
    const QDateTime an =
        QDateTime(tarih1904 ? QDate(1904, 1, 1) : QDate(1899, 12, 30), QTime(0, 0), Qt::UTC).addSecs(saniye);
    if (saniye % 86400 == 0) return an.toString(u"dd.MM.yyyy");
    return an.toString(*gün < 1 ? u"HH:mm:ss" : u"dd.MM.yyyy HH:mm");
}

QString YüzdeGöster(Ondalık sayı) {
    sayı.Rakamlar += "00";
    const int basamak = 2 + static_cast<int>(sayı.Basamak);
    sayı = Yuvarla(std::move(sayı), basamak, Yarım::SıfırdanUzağa);
    return u"%"_s + SayıBiçimle(sayı, 2);
}

}  // namespace

SayıBiçimi BiçimKodunuÇöz(QStringView kod) {
    return KodÇözücü().Çöz(kod);
}

void XlsxBiçimleri::Oku(XmlParçası& parça) {
    const QXmlStreamReader& xml = parça.Xml();
    bool hücreBiçimleri = false;
    while (parça.İleri()) {
        if (xml.isEndElement() && xml.name() == u"cellXfs") hücreBiçimleri = false;
        if (!xml.isStartElement()) continue;
        const QXmlStreamAttributes özellikler = xml.attributes();
        if (xml.name() == u"cellXfs") {
            hücreBiçimleri = true;
        } else if (xml.name() == u"numFmt") {
            m_kodlar.insert(özellikler.value("numFmtId"_L1).toInt(), BiçimKodunuÇöz(özellikler.value("formatCode"_L1)));
        } else if (xml.name() == u"xf" && hücreBiçimleri) {
            const int no = özellikler.value("numFmtId"_L1).toInt();
            const auto kod = m_kodlar.constFind(no);
            m_biçimler << (kod == m_kodlar.constEnd() ? YerleşikBiçim(no) : *kod);
        }
    }
}

const SayıBiçimi& XlsxBiçimleri::Biçim(qsizetype sıra) const {
    static const SayıBiçimi genel;
    return sıra >= 0 && sıra < m_biçimler.size() ? m_biçimler[sıra] : genel;
}

QString SayıyıGöster(const ÇizelgeHücresi& sayı, OkunamazNedeni neden, bool tarih1904) {
    const std::optional<Ondalık> değer = HücreSayısı(sayı);
    if (!değer) return sayı.Metin;
    const QString metin = neden == OkunamazNedeni::Tarih   ? TarihGöster(*değer, tarih1904)
                          : neden == OkunamazNedeni::Yüzde ? YüzdeGöster(*değer)
                                                           : QString();
    return metin.isEmpty() ? sayı.Metin : metin;
}
