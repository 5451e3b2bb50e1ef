#include "ZipArsivi.h"

#include <minizip/unzip.h>

#include <QFile>
#include <algorithm>
#include <array>
#include <string>

namespace {

constexpr int EnDerin = 128;
constexpr qint64 EnUzunKısaParça = 1 << 20;

QString Anahtar(QString ad) {
    ad.replace(u'\\', u'/');
    if (ad.startsWith(u'/')) ad.remove(0, 1);
    return ad.toLower();
}

}  // namespace

// Hands on what the part unpacks to, counted.
class SayanAygıt : public QIODevice {
  public:
    SayanAygıt(ZipArşivi& arşiv, OkumaSonucu& sonuç) : m_arşiv(arşiv), m_sonuç(sonuç) {
        open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    }
    bool isSequential() const override { return true; }

  protected:
    qint64 readData(char* yer, qint64 boy) override {
        const qint64 okunan = m_arşiv.Oku(yer, boy);
        if (okunan < 0) m_sonuç.Hata = ÇizelgeHatası::BozukArşiv;
        return okunan < 0 || !m_arşiv.Say(okunan, m_sonuç) ? -1 : okunan;
    }
    qint64 writeData(const char*, qint64) override { return -1; }

  private:
    ZipArşivi& m_arşiv;
    OkumaSonucu& m_sonuç;
};

ZipArşivi::ZipArşivi(const QString& yol, const OkumaGözetimi& gözetim, qint64 enÇokBayt)
    : m_yol(yol), m_gözetim(gözetim), m_enÇokBayt(enÇokBayt) {}

ZipArşivi::~ZipArşivi() {
    if (m_zip) unzClose(m_zip);
}

OkumaSonucu ZipArşivi::Aç() {
    m_zip = unzOpen64(QFile::encodeName(m_yol).constData());
    int sonuç = m_zip ? unzGoToFirstFile(m_zip) : UNZ_BADZIPFILE;
    for (; sonuç == UNZ_OK; sonuç = unzGoToNextFile(m_zip)) {
        unz_file_info64 bilgi;
        unz64_file_pos yer;
        std::array<char, 256> ad;  // longer ones are none of ours
        if (unzGetCurrentFileInfo64(m_zip, &bilgi, ad.data(), ad.size() - 1, nullptr, 0, nullptr, 0) != UNZ_OK ||
            unzGetFilePos64(m_zip, &yer) != UNZ_OK)
            break;
        const auto boy = static_cast<qint64>(std::min<quint64>(bilgi.uncompressed_size, EnÇokBayt));
        const auto adBoyu = static_cast<qsizetype>(std::min<uLong>(bilgi.size_filename, ad.size() - 1));
        m_parçalar.insert(Anahtar(QString::fromUtf8(ad.data(), adBoyu)),
                          {yer.pos_in_zip_directory, yer.num_of_file, boy, (bilgi.flag & 1) != 0});
    }
    if (sonuç != UNZ_END_OF_LIST_OF_FILE || m_parçalar.isEmpty()) return {ÇizelgeHatası::BozukArşiv, {}, 0};
    return {};
}

const ZipArşivi::Parça* ZipArşivi::Bul(const QString& ad) const {
    const auto yer = m_parçalar.constFind(Anahtar(ad));
    return yer == m_parçalar.constEnd() ? nullptr : &*yer;
}

bool ZipArşivi::Var(const QString& ad) const {
    return Bul(ad) != nullptr;
}

OkumaSonucu ZipArşivi::ParçayıAç(const QString& ad) {
    const Parça* parça = Bul(ad);
    if (parça && parça->Şifreli) return {ÇizelgeHatası::Şifreli, ad, 0};
    if (parça) {
        const unz64_file_pos yer{parça->Yer, parça->Sıra};
        if (unzGoToFilePos64(m_zip, &yer) == UNZ_OK && unzOpenCurrentFile(m_zip) == UNZ_OK) return {};
    }
    return {ÇizelgeHatası::BozukArşiv, ad, 0};
}

qint64 ZipArşivi::Oku(char* yer, qint64 boy) {
    return unzReadCurrentFile(m_zip, yer, static_cast<unsigned>(std::min(boy, EnÇokBayt)));
}

bool ZipArşivi::ParçayıKapat() {
    return unzCloseCurrentFile(m_zip) == UNZ_OK;
}

OkumaSonucu ZipArşivi::KısaOku(const QString& ad, QByteArray& içerik) {
    const OkumaSonucu sonuç = ParçayıAç(ad);
    if (!sonuç.Tamam()) return sonuç;
    içerik.resize(EnUzunKısaParça);
    const qint64 okunan = Oku(içerik.data(), içerik.size());
    içerik.resize(std::max<qint64>(okunan, 0));
    ParçayıKapat();
    return okunan < 0 ? OkumaSonucu{ÇizelgeHatası::BozukArşiv, ad, 0} : OkumaSonucu{};
}

OkumaSonucu ZipArşivi::Say(const QString& ad, std::string_view aranan, qint64& sayı) {
    constexpr std::size_t parçaBoyu = 1 << 18;
    sayı = 0;
    if (const OkumaSonucu sonuç = ParçayıAç(ad); !sonuç.Tamam()) return sonuç;
    std::string tampon(parçaBoyu, '\0');
    std::size_t kalan = 0;  // the end of what was read before, in which the first bytes may stand
    qint64 okunan = 0;
    while ((okunan = Oku(tampon.data() + kalan, static_cast<qint64>(parçaBoyu - kalan))) > 0) {
        const std::string_view metin(tampon.data(), kalan + static_cast<std::size_t>(okunan));
        for (std::size_t yer = 0; (yer = metin.find(aranan, yer)) != metin.npos; yer += aranan.size()) ++sayı;
        kalan = std::min(aranan.size() - 1, metin.size());
        std::copy(metin.end() - static_cast<std::ptrdiff_t>(kalan), metin.end(), tampon.begin());
    }
    const bool sağlam = ParçayıKapat();
    return okunan < 0 || !sağlam ? OkumaSonucu{ÇizelgeHatası::BozukArşiv, ad, 0} : OkumaSonucu{};
}

void ZipArşivi::Başla(const QStringList& parçalar) {
    m_okunan = 0;
    m_toplam = 0;
    for (const QString& ad : parçalar)
        if (const Parça* parça = Bul(ad)) m_toplam += parça->Boy;
}

bool ZipArşivi::Say(qint64 bayt, OkumaSonucu& sonuç) {
    constexpr qint64 adım = 1 << 18;
    const bool bildir = m_okunan / adım != (m_okunan + bayt) / adım;
    m_okunan += bayt;
    if (m_okunan > m_enÇokBayt) sonuç.Hata = ÇizelgeHatası::ÇokBüyük;
    if (m_gözetim.Durdur && m_gözetim.Durdur->load(std::memory_order_relaxed)) sonuç.Hata = ÇizelgeHatası::Durduruldu;
    if (bildir && m_gözetim.İlerleme) m_gözetim.İlerleme(std::min(m_okunan, m_toplam), m_toplam);
    return sonuç.Tamam();
}

XmlParçası::XmlParçası(ZipArşivi& arşiv, const QString& ad) : m_arşiv(arşiv), m_ad(ad), m_sonuç(arşiv.ParçayıAç(ad)) {
    if (!m_sonuç.Tamam()) return;
    m_aygıt = std::make_unique<SayanAygıt>(arşiv, m_sonuç);
    m_xml.setDevice(m_aygıt.get());
}

XmlParçası::~XmlParçası() = default;

bool XmlParçası::İleri() {
    if (!m_sonuç.Tamam() || m_yeter) return false;
    switch (m_xml.readNext()) {
        case QXmlStreamReader::StartElement:
            if (++m_derinlik > EnDerin) Dur(ÇizelgeHatası::BozukXml);
            break;
        case QXmlStreamReader::EndElement:
            --m_derinlik;
            break;
        case QXmlStreamReader::DTD:
            Dur(ÇizelgeHatası::BozukXml);
            break;
        case QXmlStreamReader::EndDocument:
        case QXmlStreamReader::Invalid:
            return false;
        default:
            break;
    }
    return m_sonuç.Tamam();
}

bool XmlParçası::Atla() {
    for (const int dış = m_derinlik - 1; m_derinlik > dış;)
        if (!İleri()) return false;
    return true;
}

OkumaSonucu XmlParçası::Bitir() {
    if (m_yeter || !m_sonuç.Tamam()) {
        if (m_sonuç.Ayrıntı.isEmpty()) m_sonuç.Ayrıntı = m_ad;
        return m_sonuç;
    }
    // Damage that unpacks to something is told by the checksum alone.
    if (!m_arşiv.ParçayıKapat()) return {ÇizelgeHatası::BozukArşiv, m_ad, 0};
    if (m_xml.hasError()) Dur(ÇizelgeHatası::BozukXml);
    return m_sonuç;
}

void XmlParçası::Dur(ÇizelgeHatası hata, qint64 satır) {
    m_sonuç = {hata, m_ad, satır};
    if (hata == ÇizelgeHatası::BozukXml) {
        m_sonuç.Ayrıntı +=
            QStringLiteral(":%1:%2 %3").arg(m_xml.lineNumber()).arg(m_xml.columnNumber()).arg(m_xml.errorString());
    }
}

bool XmlParçası::DurdurulduMu() {
    return !m_arşiv.Say(0, m_sonuç);
}
