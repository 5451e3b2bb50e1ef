#include "OrtakFonksiyonlarModulu.h"

#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QSettings>
#include <QStandardPaths>
#include <cmath>
#include <limits>

#include "DegiskenModulu.h"
#include "SayiMetni.h"

namespace {

constexpr double PİKSELDEKİ_TWIP = 15.0;
constexpr std::int32_t VARSAYILAN_ONDALIK = 2;
constexpr std::int32_t EN_ÇOK_ONDALIK = 6;

const QString AYARLAR = QStringLiteral("Ayarlar");
const QString ONDALIK = QStringLiteral("Ondalik");
const QString SOL = QStringLiteral("Sol");
const QString ÜST = QStringLiteral("Ust");

// AyarUygulamaAdı is the maker and the product, parted by a backslash.
QSettings Depo() {
    return QSettings(AyarUygulamaAdı.section(QLatin1Char('\\'), 0, 0), AyarUygulamaAdı.section(QLatin1Char('\\'), 1));
}

QString Yol(const QString& bölüm, const QString& anahtar) {
    return bölüm + QLatin1Char('/') + anahtar;
}

// A single-precision number has seven significant digits.
QString TekDuyarlıkMetni(float değer) {
    return QString::number(static_cast<double>(değer), 'g', 7).replace(QLatin1Char('.'), QLatin1Char(','));
}

std::optional<int> KayıtlıKenar(const QString& anahtar) {
    const auto twip = DoubleOku(AyarOku(AYARLAR, anahtar, {}), NoktaKuralı::Yerinde);
    if (!twip) return std::nullopt;
    const double piksel = std::round(*twip / PİKSELDEKİ_TWIP);
    if (std::abs(piksel) > std::numeric_limits<std::int16_t>::max()) return std::nullopt;
    return static_cast<int>(piksel);
}

void KenarıKaydet(const QString& anahtar, int piksel) {
    AyarYaz(AYARLAR, anahtar, TekDuyarlıkMetni(static_cast<float>(piksel * PİKSELDEKİ_TWIP)));
}

}  // namespace

QString SondaTersBöluYap(const QString& yol) {
    return yol.endsWith(QDir::separator()) ? yol : yol + QDir::separator();
}

bool DosyaVar(const QString& yol) {
    // Only the NT family takes a path as wide characters; elsewhere it goes through the system's code page.
    return QFileInfo::exists(NTTabanlı ? yol : QString::fromLocal8Bit(yol.toLocal8Bit()));
}

QString KısaYolAl(const QString& yol) {
    QString kısa = yol;
    kısa.replace(QLatin1Char('%'), QLatin1String("%25"));
    kısa.replace(QLatin1Char(' '), QLatin1String("%20"));
    return kısa;
}

QString ProgramDosyalarıKlasörü() {
    return SondaTersBöluYap(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation));
}

std::optional<QDate> AyMetniniTariheÇevir(const QString& metin) {
    const qsizetype ilk = metin.indexOf(QLatin1Char('/'));
    if (ilk < 0) return std::nullopt;
    const qsizetype ikinci = metin.indexOf(QLatin1Char('/'), ilk + 1);
    if (ikinci < 0) return std::nullopt;
    bool ayTamam = false;
    bool günTamam = false;
    bool yılTamam = false;
    const int ay = metin.left(ilk).toInt(&ayTamam);
    const int gün = metin.mid(ilk + 1, ikinci - ilk - 1).toInt(&günTamam);
    int yıl = metin.mid(ikinci + 1).toInt(&yılTamam);
    if (!ayTamam || !günTamam || !yılTamam) return std::nullopt;
    if (yıl < 100) yıl += 1900;
    const QDate tarih(yıl, ay, gün);
    return tarih.isValid() ? std::optional(tarih) : std::nullopt;
}

QString AyMetni(QDate tarih) {
    return QString::number(tarih.month()) + QLatin1Char('/') + QString::number(tarih.day()) + QLatin1Char('/') +
           QString::number(tarih.year());
}

QString AyarDosyası() {
    return Depo().fileName();
}

QString AyarOku(const QString& bölüm, const QString& anahtar, const QString& varsayılan) {
    return Depo().value(Yol(bölüm, anahtar), varsayılan).toString();
}

void AyarYaz(const QString& bölüm, const QString& anahtar, const QString& değer) {
    Depo().setValue(Yol(bölüm, anahtar), değer);
}

std::int32_t KayıtlıOndalık() {
    bool tamam = false;
    const int basamak = AyarOku(AYARLAR, ONDALIK, QString::number(VARSAYILAN_ONDALIK)).trimmed().toInt(&tamam);
    return tamam && basamak >= 1 && basamak <= EN_ÇOK_ONDALIK ? basamak : VARSAYILAN_ONDALIK;
}

void OndalığıKaydet(std::int32_t basamak) {
    AyarYaz(AYARLAR, ONDALIK, QString::number(basamak));
}

std::optional<int> KayıtlıSol() {
    return KayıtlıKenar(SOL);
}

std::optional<int> KayıtlıÜst() {
    return KayıtlıKenar(ÜST);
}

void KonumuKaydet(QPoint solÜst) {
    KenarıKaydet(SOL, solÜst.x());
    KenarıKaydet(ÜST, solÜst.y());
}
