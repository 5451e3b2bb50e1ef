#include "Saat.h"

#include <QLocale>
#include <QTime>
#include <utility>

namespace {

std::function<QDate()>& Saat() {
    static std::function<QDate()> saat;
    return saat;
}

}  // namespace

QDate Bugün() {
    return Saat() ? Saat()() : QDate::currentDate();
}

QString ŞimdikiZaman() {
    return Bugün().toString(QStringLiteral("yyyy-MM-dd ")) + QTime::currentTime().toString(QStringLiteral("HH:mm:ss"));
}

void SaatiAyarla(std::function<QDate()> bugün) {
    Saat() = std::move(bugün);
}

QString TürkçeUzunTarih(QDate tarih) {
    return QLocale(QLocale::Turkish, QLocale::Turkey).toString(tarih, QStringLiteral("dd MMMM yyyy dddd"));
}
