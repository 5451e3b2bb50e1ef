#include "CizelgeYazici.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QSaveFile>
#include <QTemporaryDir>
#include <algorithm>
#include <limits>
#include <locale.h>
#include <utility>
#include <xlsxwriter.h>

#include "ZipArsivi.h"

using namespace Qt::StringLiterals;

namespace {

// The library prints numbers by the system's locale; in a Turkish one "12,5" would stand in the file, which nobody
// could open. While this lives, the thread writes them with a point.
class NoktalıSayılar {
  public:
    NoktalıSayılar() : m_eski(uselocale(Yalın())) {}
    ~NoktalıSayılar() { uselocale(m_eski); }
    NoktalıSayılar(const NoktalıSayılar&) = delete;
    NoktalıSayılar& operator=(const NoktalıSayılar&) = delete;

  private:
    static locale_t Yalın() {
        static const locale_t yalın = newlocale(LC_ALL_MASK, "C", nullptr);
        return yalın;
    }

    locale_t m_eski;
};

struct KitapSilici {
    void operator()(lxw_workbook* kitap) const { lxw_workbook_free(kitap); }
};

QString SayfaAdınaUydur(const QString& ad) {
    constexpr int enUzun = 31;
    static const QRegularExpression yasak(u"[\\[\\]:*?/\\\\']"_s);
    const QString uygun = QString(ad).replace(yasak, u" "_s).simplified().left(enUzun).trimmed();
    return uygun.isEmpty() ? u"Sayfa1"_s : uygun;
}

// As XML can hold it: what looks like the format's own escape (_x000D_) is not to be taken for one.
QByteArray XmlMetni(const QString& ham) {
    static const QRegularExpression kaçış(u"_(?=x[0-9A-Fa-f]{4}_)"_s);
    QString metin =
        QString::fromUtf8(ham.toUtf8());  // without half characters, in which the pattern would find nothing
    metin.replace(kaçış, u"_x005F_"_s);
    metin.replace(QChar(0xFFFE), QChar::ReplacementCharacter).replace(QChar(0xFFFF), QChar::ReplacementCharacter);
    return metin.toUtf8();
}

QByteArray BiçimKodu(const ÇizelgeSütunu& sütun) {
    const QByteArray kesir = sütun.Basamak > 0 ? '.' + QByteArray(sütun.Basamak, '0') : QByteArray();
    return (sütun.Tür == ÇizelgeSütunTürü::Para ? "#,##0" : "0") + kesir;
}

YazmaSonucu Yazılamadı(const QString& ayrıntı = {}) {
    return {YazmaHatası::Yazılamadı, ayrıntı};
}

YazmaSonucu Çevir(lxw_error hata) {
    if (hata == LXW_NO_ERROR) return {};
    if (hata == LXW_ERROR_MAX_STRING_LENGTH_EXCEEDED) return {YazmaHatası::UzunMetin, {}};
    return Yazılamadı(QString::fromUtf8(lxw_strerror(hata)));
}

// The library does not look whether its temporary files took what it wrote: on a full disk it would make a file without
// some of the rows.
bool SatırlarTam(const QString& yol, qint64 satırSayısı) {
    const OkumaGözetimi gözetim;
    ZipArşivi arşiv(yol, gözetim, std::numeric_limits<qint64>::max());
    if (!arşiv.Aç().Tamam()) return false;
    XmlParçası parça(arşiv, u"xl/worksheets/sheet1.xml"_s);
    while (parça.İleri())
        if (parça.Xml().isStartElement() && parça.Xml().name() == u"row") --satırSayısı;
    return parça.Bitir().Tamam() && satırSayısı == 0;
}

// Beside the target, synced, renamed into place.
YazmaSonucu YerineKoy(const QString& kaynak, const QString& yol) {
    constexpr qint64 adım = 1 << 20;
    QFile oku(kaynak);
    if (!oku.open(QIODevice::ReadOnly)) return Yazılamadı(oku.errorString());
    QSaveFile yaz(yol);
    if (!yaz.open(QIODevice::WriteOnly)) return Yazılamadı(yaz.errorString());
    while (!oku.atEnd()) {
        const QByteArray parça = oku.read(adım);
        if (parça.isEmpty()) return Yazılamadı(oku.errorString());
        if (yaz.write(parça) != parça.size()) return Yazılamadı(yaz.errorString());
    }
    // What still stands in the buffer first: commit alone would not notice that it does not fit on the disk.
    if (!yaz.flush() || !yaz.commit()) return Yazılamadı(yaz.errorString());
    return {};
}

}  // namespace

struct ÇizelgeYazıcı::Kitap {
    QTemporaryDir Klasör{QDir::tempPath() + u"/varnek-cizelge-XXXXXX"_s};
    QByteArray KlasörAdı = QFile::encodeName(Klasör.path());
    QByteArray DosyaAdı = QFile::encodeName(Klasör.filePath(u"cizelge.xlsx"_s));
    std::unique_ptr<lxw_workbook, KitapSilici> Defter;
    lxw_worksheet* Sayfa = nullptr;
    QList<lxw_format*> Biçimler;  // the columns'
    lxw_row_t YazılanSatır = 0;   // the captions' row included
    qint64 DoluSatır = 0;         // those that hold something, and so stand in the file
    YazmaSonucu İlkHata;          // after it nothing goes on

    lxw_error Yaz(lxw_col_t sütun, const ÇizelgeDeğeri& değer, lxw_format* biçim) {
        if (const auto* metin = std::get_if<QString>(&değer); metin && !metin->isEmpty())
            return Yazıldı(worksheet_write_string(Sayfa, YazılanSatır, sütun, XmlMetni(*metin).constData(), biçim));
        if (const auto* para = std::get_if<Para>(&değer)) return SayıYaz(sütun, para->Double(), biçim);
        if (const auto* sayı = std::get_if<Ondalık>(&değer))
            if (const auto yakın = EnYakınDouble(*sayı)) return SayıYaz(sütun, *yakın, biçim);
        return LXW_NO_ERROR;
    }

    lxw_error SayıYaz(lxw_col_t sütun, double değer, lxw_format* biçim) {
        return Yazıldı(worksheet_write_number(Sayfa, YazılanSatır, sütun, değer, biçim));
    }

    lxw_error Yazıldı(lxw_error hata) {
        m_dolu = true;
        return hata;
    }

    void SonrakiSatır() {
        ++YazılanSatır;
        DoluSatır += std::exchange(m_dolu, false);
    }

  private:
    bool m_dolu = false;
};

ÇizelgeYazıcı::ÇizelgeYazıcı(QString yol, const QString& sayfaAdı, QList<ÇizelgeSütunu> sütunlar)
    : m_yol(std::move(yol)), m_sayfaAdı(SayfaAdınaUydur(sayfaAdı)), m_sütunlar(std::move(sütunlar)) {}

ÇizelgeYazıcı::~ÇizelgeYazıcı() = default;

YazmaSonucu ÇizelgeYazıcı::Aç() {
    const NoktalıSayılar noktalı;
    m_kitap = std::make_unique<Kitap>();
    Kitap& kitap = *m_kitap;
    if (!kitap.Klasör.isValid()) return kitap.İlkHata = Yazılamadı(kitap.Klasör.errorString());
    lxw_workbook_options seçenekler = {LXW_TRUE, kitap.KlasörAdı.data(), LXW_FALSE};
    kitap.Defter.reset(workbook_new_opt(kitap.DosyaAdı.constData(), &seçenekler));
    if (kitap.Defter) kitap.Sayfa = workbook_add_worksheet(kitap.Defter.get(), m_sayfaAdı.toUtf8().constData());
    if (!kitap.Sayfa) return kitap.İlkHata = Yazılamadı();
    lxw_format* koyu = workbook_add_format(kitap.Defter.get());
    format_set_bold(koyu);
    if (!m_üstYazı.isEmpty()) {
        kitap.İlkHata = Çevir(kitap.Yaz(0, m_üstYazı, koyu));
        if (!kitap.İlkHata.Tamam()) return kitap.İlkHata;
        kitap.SonrakiSatır();
    }
    worksheet_freeze_panes(kitap.Sayfa, kitap.YazılanSatır + 1, 0);
    for (const ÇizelgeSütunu& sütun : std::as_const(m_sütunlar)) {
        const auto sıra = static_cast<lxw_col_t>(kitap.Biçimler.size());
        lxw_format* biçim = nullptr;
        if (sütun.Tür == ÇizelgeSütunTürü::Para || sütun.Tür == ÇizelgeSütunTürü::Yüzde) {
            biçim = workbook_add_format(kitap.Defter.get());
            format_set_num_format(biçim, BiçimKodu(sütun).constData());
        }
        kitap.Biçimler << biçim;
        worksheet_set_column(kitap.Sayfa, sıra, sıra, sütun.Genişlik, nullptr);
        kitap.İlkHata = Çevir(kitap.Yaz(sıra, sütun.Başlık, koyu));
        if (!kitap.İlkHata.Tamam()) return kitap.İlkHata;
    }
    kitap.SonrakiSatır();
    return {};
}

YazmaSonucu ÇizelgeYazıcı::SatırEkle(const QList<ÇizelgeDeğeri>& değerler) {
    Kitap& kitap = *m_kitap;
    if (!kitap.İlkHata.Tamam()) return kitap.İlkHata;
    if (kitap.YazılanSatır > EnÇokVeriSatırı) return kitap.İlkHata = {YazmaHatası::ÇokSatır, {}};
    const NoktalıSayılar noktalı;
    const qsizetype sayı = std::min(değerler.size(), kitap.Biçimler.size());
    for (qsizetype sıra = 0; sıra < sayı; ++sıra) {
        kitap.İlkHata = Çevir(kitap.Yaz(static_cast<lxw_col_t>(sıra), değerler[sıra], kitap.Biçimler[sıra]));
        if (!kitap.İlkHata.Tamam()) return kitap.İlkHata;
    }
    kitap.SonrakiSatır();
    return {};
}

YazmaSonucu ÇizelgeYazıcı::Bitir() {
    const std::unique_ptr<Kitap> kitap = std::move(m_kitap);
    if (!kitap->İlkHata.Tamam()) return kitap->İlkHata;
    const NoktalıSayılar noktalı;
    const YazmaSonucu sonuç = Çevir(workbook_close(kitap->Defter.release()));
    if (!sonuç.Tamam()) return sonuç;
    const QString dosya = QFile::decodeName(kitap->DosyaAdı);
    if (!SatırlarTam(dosya, kitap->DoluSatır)) return Yazılamadı();
    return YerineKoy(dosya, m_yol);
}
