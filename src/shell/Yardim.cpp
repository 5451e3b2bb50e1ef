#include "Yardim.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QKeyEvent>
#include <QUrl>
#include <QWidget>

#include "Adresler.h"
#include "MesajKutusu.h"
#include "MetinTablosu.h"

namespace {

// Files bear the forms' names without Turkish letters.
QString DosyaAdı(QString ad) {
    const QString türkçe = QStringLiteral("çğıöşüÇĞİÖŞÜ");
    const QString düz = QStringLiteral("cgiosuCGIOSU");
    for (QChar& harf : ad) {
        const qsizetype yer = türkçe.indexOf(harf);
        if (yer >= 0) harf = düz[yer];
    }
    return ad + QStringLiteral(".html");
}

}  // namespace

QString KılavuzKlasörü(const QString& programKlasörü) {
    for (const char* yol : {"kilavuz", "../../share/varnek/kilavuz"}) {
        const QString klasör = QDir::cleanPath(QDir(programKlasörü).filePath(QLatin1String(yol)));
        if (QFile::exists(klasör + QStringLiteral("/index.html"))) return klasör;
    }
    return {};
}

QString KılavuzSayfası(const QString& kılavuzKlasörü, const QWidget* öndeki) {
    for (; öndeki; öndeki = öndeki->parentWidget()) {
        const QString sayfa = DosyaAdı(öndeki->objectName());
        if (öndeki->isWindow() && QFile::exists(kılavuzKlasörü + QLatin1Char('/') + sayfa)) return sayfa;
    }
    return QStringLiteral("index.html");
}

void YardımıAç(const QWidget* öndeki, const QString& programKlasörü) {
    const QString klasör = KılavuzKlasörü(programKlasörü);
    if (klasör.isEmpty()) {
        MesajKutusuOrtala();
        MesajKutusu::Göster(MesajKutusu::Simge::Bilgi, MesajKutusu::Düğmeler::Tamam, Metin(MetinNo::KılavuzYok));
        return;
    }
    AdresAç(QUrl::fromLocalFile(klasör + QLatin1Char('/') + KılavuzSayfası(klasör, öndeki)));
}

YardımTuşu::YardımTuşu(QObject* sahip) : QObject(sahip) {
    qApp->installEventFilter(this);
}

bool YardımTuşu::eventFilter(QObject* nesne, QEvent* olay) {
    if (olay->type() != QEvent::KeyPress || !nesne->isWidgetType()) return QObject::eventFilter(nesne, olay);
    const auto* tuş = static_cast<QKeyEvent*>(olay);
    if (tuş->key() != Qt::Key_F1 || tuş->modifiers() != Qt::NoModifier) return QObject::eventFilter(nesne, olay);
    if (!tuş->isAutoRepeat()) YardımıAç(static_cast<QWidget*>(nesne));
    return true;
}
