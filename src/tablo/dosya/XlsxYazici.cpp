#include "XlsxYazici.h"

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

#include "SayiMetni.h"
#include "TurkceMetin.h"
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

// From the second sheet on with its number.
QString SayfaAdınaUydur(const QString& ad, qsizetype sıra) {
    constexpr qsizetype enUzun = 31;
    static const QRegularExpression yasak(u"[\\[\\]:*?/\\\\']"_s);
    const QString son = sıra > 1 ? u" %1"_s.arg(sıra) : QString();
    const QString uygun = QString(ad).replace(yasak, u" "_s).simplified().left(enUzun - son.size()).trimmed();
    return (uygun.isEmpty() ? u"Sayfa"_s : uygun) + son;
}

// As XML can hold it: what looks like the format's own escape (_x000D_) is not to be taken for one.
QByteArray XmlMetni(const QString& ham) {
    static const QRegularExpression kaçış(u"_(?=x[0-9A-Fa-f]{4}_)"_s);
    const auto özel = [](QChar harf) { return harf == u'_' || harf.isSurrogate() || harf >= QChar(0xFFFE); };
    if (std::none_of(ham.begin(), ham.end(), özel)) return ham.toUtf8();
    // Without half characters, in which the pattern would find nothing.
    QString metin = Utf8Metni(ham.toStdString());
    metin.replace(kaçış, u"_x005F_"_s);
    metin.replace(QChar(0xFFFE), QChar::ReplacementCharacter).replace(QChar(0xFFFF), QChar::ReplacementCharacter);
    return metin.toUtf8();
}

QByteArray BiçimKodu(const ÇizelgeSütunu& sütun) {
    const QByteArray kesir = sütun.Basamak > 0 ? '.' + QByteArray(sütun.Basamak, '0') : QByteArray();
    if (sütun.Tür == ÇizelgeSütunTürü::Tarih) return "dd.mm.yyyy";
    return (sütun.Tür == ÇizelgeSütunTürü::Para ? "#,##0" : "0") + kesir;
}

// The format counts its days from a year 1900 that had a 29th of February.
double GünSayısı(QDate tarih) {
    return static_cast<double>(QDate(1899, 12, 30).daysTo(tarih));
}

bool GünSayısıVar(QDate tarih) {
    return tarih >= QDate(1900, 3, 1) && tarih <= QDate(9999, 12, 31);
}

// Spreadsheets know 15 digits: what has more would lose some.
bool OnBeşHaneyeSığar(const Ondalık& sayı) {
    constexpr std::size_t enÇok = 15;
    const std::size_t ilk = sayı.Rakamlar.find_first_not_of('0');
    return ilk == std::string::npos || sayı.Rakamlar.find_last_not_of('0') - ilk < enÇok;
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
bool SatırlarTam(const QString& yol, const QList<qint64>& sayfalar) {
    const OkumaGözetimi gözetim;
    ZipArşivi arşiv(yol, gözetim, std::numeric_limits<qint64>::max());
    if (!arşiv.Aç().Tamam()) return false;
    for (qsizetype sayfa = 0; sayfa < sayfalar.size(); ++sayfa) {
        qint64 sayı = 0;
        const QString ad = u"xl/worksheets/sheet%1.xml"_s.arg(sayfa + 1);
        if (!arşiv.Say(ad, "<row ", sayı).Tamam() || sayı != sayfalar[sayfa]) return false;
    }
    return true;
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

namespace {

class XlsxYazıcı : public ÇizelgeHedefi {
  public:
    XlsxYazıcı(QString yol, QString sayfaAdı, const QList<ÇizelgeSütunu>& sütunlar)
        : m_yol(std::move(yol)), m_sayfaAdı(std::move(sayfaAdı)), m_sütunlar(sütunlar) {}

    YazmaSonucu Aç(const QString& üstYazı) override;
    YazmaSonucu SatırEkle(const QList<ÇizelgeDeğeri>& değerler) override;
    YazmaSonucu Bitir() override;

  private:
    YazmaSonucu SayfaAç();
    lxw_error Yaz(lxw_col_t sütun, const ÇizelgeDeğeri& değer, lxw_format* biçim);
    lxw_error MetinYaz(lxw_col_t sütun, const QString& metin, lxw_format* biçim);
    lxw_error SayıYaz(lxw_col_t sütun, double değer, lxw_format* biçim);
    lxw_error OndalıkYaz(lxw_col_t sütun, const Ondalık& sayı, lxw_format* biçim);
    void SonrakiSatır();

    QString m_yol;
    QString m_sayfaAdı;
    QString m_üstYazı;
    QList<ÇizelgeSütunu> m_sütunlar;
    QTemporaryDir m_klasör{QDir::tempPath() + u"/varnek-cizelge-XXXXXX"_s};
    QByteArray m_klasörAdı = QFile::encodeName(m_klasör.path());
    QByteArray m_dosyaAdı = QFile::encodeName(m_klasör.filePath(u"cizelge.xlsx"_s));
    std::unique_ptr<lxw_workbook, KitapSilici> m_defter;
    lxw_worksheet* m_sayfa = nullptr;
    lxw_format* m_koyu = nullptr;
    QList<lxw_format*> m_biçimler;  // the columns'
    lxw_row_t m_satır = 0;          // to be written next on this sheet; the first are the captions
    QList<qint64> m_doluSatırlar;   // of each sheet: those that hold something, and so stand in the file
    bool m_dolu = false;            // the row at hand
    YazmaSonucu m_ilkHata;          // after it nothing goes on
};

YazmaSonucu XlsxYazıcı::Aç(const QString& üstYazı) {
    const NoktalıSayılar noktalı;
    m_üstYazı = üstYazı;
    if (!m_klasör.isValid()) return m_ilkHata = Yazılamadı(m_klasör.errorString());
    lxw_workbook_options seçenekler = {LXW_TRUE, m_klasörAdı.data(), LXW_FALSE};
    m_defter.reset(workbook_new_opt(m_dosyaAdı.constData(), &seçenekler));
    if (!m_defter) return m_ilkHata = Yazılamadı();
    m_koyu = workbook_add_format(m_defter.get());
    format_set_bold(m_koyu);
    for (const ÇizelgeSütunu& sütun : std::as_const(m_sütunlar)) {
        lxw_format* biçim = nullptr;
        if (sütun.Tür != ÇizelgeSütunTürü::Metin && sütun.Tür != ÇizelgeSütunTürü::Sayı) {
            biçim = workbook_add_format(m_defter.get());
            format_set_num_format(biçim, BiçimKodu(sütun).constData());
        }
        m_biçimler << biçim;
    }
    return SayfaAç();
}

YazmaSonucu XlsxYazıcı::SayfaAç() {
    m_sayfa = workbook_add_worksheet(m_defter.get(),
                                     SayfaAdınaUydur(m_sayfaAdı, m_doluSatırlar.size() + 1).toUtf8().constData());
    if (!m_sayfa) return m_ilkHata = Yazılamadı();
    m_doluSatırlar.append(0);
    m_satır = 0;
    if (!m_üstYazı.isEmpty()) {
        m_ilkHata = Çevir(MetinYaz(0, m_üstYazı, m_koyu));
        if (!m_ilkHata.Tamam()) return m_ilkHata;
        SonrakiSatır();
    }
    worksheet_freeze_panes(m_sayfa, m_satır + 1, 0);
    for (qsizetype sıra = 0; sıra < m_sütunlar.size(); ++sıra) {
        const auto sütun = static_cast<lxw_col_t>(sıra);
        worksheet_set_column(m_sayfa, sütun, sütun, m_sütunlar[sıra].Genişlik, nullptr);
        m_ilkHata = Çevir(MetinYaz(sütun, m_sütunlar[sıra].Başlık, m_koyu));
        if (!m_ilkHata.Tamam()) return m_ilkHata;
    }
    SonrakiSatır();
    return {};
}

void XlsxYazıcı::SonrakiSatır() {
    ++m_satır;
    m_doluSatırlar.back() += std::exchange(m_dolu, false);
}

lxw_error XlsxYazıcı::MetinYaz(lxw_col_t sütun, const QString& metin, lxw_format* biçim) {
    if (metin.isEmpty()) return LXW_NO_ERROR;
    m_dolu = true;
    return worksheet_write_string(m_sayfa, m_satır, sütun, XmlMetni(metin).constData(), biçim);
}

lxw_error XlsxYazıcı::SayıYaz(lxw_col_t sütun, double değer, lxw_format* biçim) {
    m_dolu = true;
    return worksheet_write_number(m_sayfa, m_satır, sütun, değer, biçim);
}

lxw_error XlsxYazıcı::OndalıkYaz(lxw_col_t sütun, const Ondalık& sayı, lxw_format* biçim) {
    const auto yakın = OnBeşHaneyeSığar(sayı) ? EnYakınDouble(sayı) : std::nullopt;
    if (yakın) return SayıYaz(sütun, *yakın, biçim);
    return MetinYaz(sütun, SayıBiçimle(sayı, static_cast<int>(sayı.Basamak)), nullptr);
}

lxw_error XlsxYazıcı::Yaz(lxw_col_t sütun, const ÇizelgeDeğeri& değer, lxw_format* biçim) {
    constexpr std::int64_t onBeşHane = 1'000'000'000'000'000;
    if (const auto* metin = std::get_if<QString>(&değer)) return MetinYaz(sütun, *metin, biçim);
    if (const auto* para = std::get_if<Para>(&değer)) {
        const std::int64_t sayı = para->OnBindeBir();
        if (sayı < onBeşHane && sayı > -onBeşHane) return SayıYaz(sütun, para->Double(), biçim);
        return OndalıkYaz(sütun, Ölçekten(sayı), biçim);
    }
    if (const auto* sayı = std::get_if<Ondalık>(&değer)) return OndalıkYaz(sütun, *sayı, biçim);
    if (const auto* tarih = std::get_if<QDate>(&değer)) {
        if (GünSayısıVar(*tarih)) return SayıYaz(sütun, GünSayısı(*tarih), biçim);
        return MetinYaz(sütun, tarih->toString(u"dd.MM.yyyy"_s), nullptr);
    }
    return LXW_NO_ERROR;
}

YazmaSonucu XlsxYazıcı::SatırEkle(const QList<ÇizelgeDeğeri>& değerler) {
    if (!m_ilkHata.Tamam()) return m_ilkHata;
    const NoktalıSayılar noktalı;
    if (m_satır > SayfanınVeriSatırı && !SayfaAç().Tamam()) return m_ilkHata;
    const qsizetype sayı = std::min(değerler.size(), m_biçimler.size());
    for (qsizetype sıra = 0; sıra < sayı; ++sıra) {
        m_ilkHata = Çevir(Yaz(static_cast<lxw_col_t>(sıra), değerler[sıra], m_biçimler[sıra]));
        if (!m_ilkHata.Tamam()) return m_ilkHata;
    }
    SonrakiSatır();
    return {};
}

YazmaSonucu XlsxYazıcı::Bitir() {
    if (!m_ilkHata.Tamam()) return m_ilkHata;
    const NoktalıSayılar noktalı;
    const YazmaSonucu sonuç = Çevir(workbook_close(m_defter.release()));
    if (!sonuç.Tamam()) return sonuç;
    const QString dosya = QFile::decodeName(m_dosyaAdı);
    if (!SatırlarTam(dosya, m_doluSatırlar)) return Yazılamadı();
    return YerineKoy(dosya, m_yol);
}

}  // namespace

std::unique_ptr<ÇizelgeHedefi> XlsxHedefi(const QString& yol, const QString& sayfaAdı,
                                          const QList<ÇizelgeSütunu>& sütunlar) {
    return std::make_unique<XlsxYazıcı>(yol, sayfaAdı, sütunlar);
}
