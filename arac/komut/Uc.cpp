#include "Uc.h"

#include <cstdio>
#include <unistd.h>

#include "VeriDosyasi.h"

using namespace Qt::StringLiterals;

namespace {

constexpr std::int64_t ADIM = 256;        // rows between two looks at the clock
constexpr qint64 GÖSTERME_ARALIĞI = 100;  // milliseconds

void HataYaz(const QString& metin) {
    const QByteArray baytlar = metin.toUtf8();
    std::fwrite(baytlar.constData(), 1, static_cast<std::size_t>(baytlar.size()), stderr);
    std::fflush(stderr);
}

}  // namespace

void ÇıktıYaz(std::string_view baytlar) {
    if (std::fwrite(baytlar.data(), 1, baytlar.size(), stdout) != baytlar.size())
        throw VeriHatası(u"Çıktı yazılamadı."_s);
}

void ÇıktıSatırı(const QString& satır) {
    ÇıktıYaz((satır + u'\n').toStdString());
}

void ÇıktıyıBitir() {
    if (std::fflush(stdout) != 0 || std::ferror(stdout) != 0) throw VeriHatası(u"Çıktı yazılamadı."_s);
}

void YapılanıBildir(const QString& satır) {
    try {
        ÇıktıSatırı(satır);
        ÇıktıyıBitir();
    } catch (const VeriHatası& hata) {
        std::clearerr(stdout);
        Bildir(satır + u" ("_s + hata.Metin() + u')');
    }
}

void Bildir(const QString& satır) {
    HataYaz(satır + u'\n');
}

İlerlemeSatırı::İlerlemeSatırı(QString iş) : m_iş(std::move(iş)), m_uçta(isatty(STDERR_FILENO) == 1) {
    m_süre.start();
    Yaz(0);
}

void İlerlemeSatırı::Bildir(std::int64_t sayı) {
    if (sayı % ADIM != 0) return;
    YarıdaKesildiMi();
    if (!m_uçta || m_süre.elapsed() < GÖSTERME_ARALIĞI) return;
    m_süre.restart();
    Yaz(sayı);
}

void İlerlemeSatırı::Yaz(std::int64_t sayı) {
    if (!m_uçta) return;
    HataYaz(u"\r\x1b[K"_s + m_iş + (sayı > 0 ? u" %1"_s.arg(sayı) : u"..."_s));
    m_yazıldı = true;
}

void İlerlemeSatırı::Sil() {
    if (m_yazıldı) HataYaz(u"\r\x1b[K"_s);
}
