#include "CizelgeOkuyucu.h"

#include <QFile>

#include "CsvOkuyucu.h"
#include "OdsOkuyucu.h"
#include "XlsxOkuyucu.h"
#include "ZipArsivi.h"

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 BakılanBaş = 4096;

// A password-protected .xlsx is an old compound file around an encrypted one; its parts' names are in UTF-16.
bool ŞifreliPaket(QFile& dosya) {
    constexpr qint64 bakılanEnÇok = qint64{64} << 20;
    const QString ad = u"EncryptedPackage"_s;
    const QByteArrayView aranan(reinterpret_cast<const char*>(ad.utf16()), ad.size() * 2);
    QByteArray parça;
    dosya.seek(0);
    while (!dosya.atEnd() && dosya.pos() < bakılanEnÇok) {
        parça = parça.right(aranan.size() - 1) + dosya.read(1 << 20);
        if (parça.contains(aranan)) return true;
    }
    return false;
}

// Whether the text is a marked-up or printable document, and no table of cells.
bool BelgeBaşı(QByteArrayView baş) {
    if (baş.startsWith("\xEF\xBB\xBF")) baş = baş.sliced(3);
    const QByteArray ilk = baş.trimmed().first(std::min<qsizetype>(16, baş.trimmed().size())).toByteArray().toLower();
    for (const char* işaret :
         {"<?xml", "<html", "<!doctype", "<table", "<meta", "<style", "%pdf", "{\\rtf", "mime-version"})
        if (ilk.startsWith(işaret)) return true;
    return false;
}

}  // namespace

ÇizelgeOkuyucu::ÇizelgeOkuyucu(QString yol, OkumaGözetimi gözetim)
    : m_yol(std::move(yol)), m_gözetim(std::move(gözetim)) {}

ÇizelgeOkuyucu::~ÇizelgeOkuyucu() = default;

OkumaSonucu ÇizelgeOkuyucu::Aç() {
    m_kaynak.reset();
    QFile dosya(m_yol);
    if (!dosya.open(QIODevice::ReadOnly)) return {ÇizelgeHatası::Açılamadı, dosya.errorString(), 0};
    const QByteArray baş = dosya.read(BakılanBaş);
    if (dosya.error() != QFile::NoError) return {ÇizelgeHatası::Açılamadı, dosya.errorString(), 0};
    if (baş.isEmpty()) return {ÇizelgeHatası::BoşDosya, {}, 0};
    OkumaSonucu sonuç;
    if (baş.startsWith("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1"))
        sonuç.Hata = ŞifreliPaket(dosya) ? ÇizelgeHatası::Şifreli : ÇizelgeHatası::EskiBiçim;
    else if (baş.startsWith("PK\x03\x04") || baş.startsWith("PK\x05\x06"))
        sonuç = ZipAç();
    else if (BelgeBaşı(baş))
        sonuç.Hata = ÇizelgeHatası::TanınmayanTür;
    else
        sonuç = MetinAç();
    if (sonuç.Tamam()) sonuç = m_kaynak->SayfalarıOku();
    if (!sonuç.Tamam()) m_kaynak.reset();
    return sonuç;
}

OkumaSonucu ÇizelgeOkuyucu::ZipAç() {
    auto arşiv = std::make_unique<ZipArşivi>(m_yol, m_gözetim);
    OkumaSonucu sonuç = arşiv->Aç();
    if (!sonuç.Tamam()) return sonuç;
    if (arşiv->Var(u"xl/workbook.xml"_s)) {
        m_tür = ÇizelgeTürü::Xlsx;
        m_kaynak = XlsxKaynağı(std::move(arşiv));
        return {};
    }
    QByteArray tür, bildirim;
    if (arşiv->Var(u"mimetype"_s)) sonuç = arşiv->KısaOku(u"mimetype"_s, tür);
    if (sonuç.Tamam() && arşiv->Var(u"META-INF/manifest.xml"_s))
        sonuç = arşiv->KısaOku(u"META-INF/manifest.xml"_s, bildirim);
    if (!sonuç.Tamam()) return sonuç;
    if (!tür.startsWith("application/vnd.oasis.opendocument.spreadsheet")) return {ÇizelgeHatası::TanınmayanTür, {}, 0};
    if (bildirim.contains("encryption-data")) return {ÇizelgeHatası::Şifreli, {}, 0};
    if (!arşiv->Var(u"content.xml"_s)) return {ÇizelgeHatası::BozukArşiv, u"content.xml"_s, 0};
    m_tür = ÇizelgeTürü::Ods;
    m_kaynak = OdsKaynağı(std::move(arşiv));
    return {};
}

OkumaSonucu ÇizelgeOkuyucu::MetinAç() {
    m_tür = ÇizelgeTürü::Csv;
    m_kaynak = std::make_unique<CsvKaynağı>(m_yol, m_gözetim);
    return {};
}

const QList<SayfaBilgisi>& ÇizelgeOkuyucu::Sayfalar() const {
    static const QList<SayfaBilgisi> yok;
    return m_kaynak ? m_kaynak->Sayfalar : yok;
}

OkumaSonucu ÇizelgeOkuyucu::Oku(qsizetype sayfa, const SatırAlıcı& alıcı) {
    if (sayfa < 0 || sayfa >= Sayfalar().size()) return {ÇizelgeHatası::SayfaYok, {}, 0};
    return m_kaynak->Oku(sayfa, alıcı);
}

char ÇizelgeOkuyucu::Ayraç() const {
    return m_tür == ÇizelgeTürü::Csv && m_kaynak ? static_cast<const CsvKaynağı&>(*m_kaynak).Ayraç : ';';
}

void ÇizelgeOkuyucu::AyraçSeç(char ayraç) {
    if (m_tür == ÇizelgeTürü::Csv && m_kaynak) static_cast<CsvKaynağı&>(*m_kaynak).Ayraç = ayraç;
}
