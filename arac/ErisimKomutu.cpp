#include "ErisimKomutu.h"

#include <unistd.h>

#include <QCoreApplication>
#include <csignal>
#include <cstdio>

#include "Aktarim.h"
#include "OdbcSurucu.h"
#include "Uc.h"
#include "VeriDosyasi.h"

using namespace Qt::StringLiterals;

namespace {

void Yaz(std::FILE* nereye, const QString& metin) {
    std::fprintf(nereye, "%s\n", metin.toUtf8().constData());
    std::fflush(nereye);
}

// One line each, whatever a name in it holds.
void Bildir(QLatin1String tür, QString metin) {
    Yaz(stdout, tür + u' ' + metin.replace(u'\n', u' '));
}

struct Seçenekler {
    Erişim::Aktarımİsteği İstek;
    bool Bildir = false;
    bool Geçerli = true;
};

Seçenekler Çöz(const QStringList& sözler) {
    Seçenekler seçenekler;
    for (qsizetype i = 0; i < sözler.size(); ++i) {
        const QString& söz = sözler[i];
        QString* değer = söz == u"--hedef"   ? &seçenekler.İstek.Hedef
                         : söz == u"--liste" ? &seçenekler.İstek.Liste
                                             : nullptr;
        if (söz == u"--bildir") {
            seçenekler.Bildir = true;
        } else if (söz == u"--sakla") {
            seçenekler.İstek.Sakla = true;
        } else if (değer && i + 1 < sözler.size()) {
            *değer = sözler[++i];
        } else if (!değer && seçenekler.İstek.Kaynak.isEmpty() && !söz.startsWith(u"--")) {
            seçenekler.İstek.Kaynak = söz;
        } else {
            seçenekler.Geçerli = false;
        }
    }
    seçenekler.Geçerli =
        seçenekler.Geçerli && !seçenekler.İstek.Kaynak.isEmpty() &&
        (!seçenekler.İstek.Hedef.isEmpty() || (seçenekler.İstek.Liste.isEmpty() && !seçenekler.İstek.Sakla));
    return seçenekler;
}

int Al(const QStringList& sözler) {
    Seçenekler seçenekler = Çöz(sözler);
    if (!seçenekler.Geçerli) throw KullanımHatası();
    const bool bildir = seçenekler.Bildir;
    for (int sinyal : {SIGINT, SIGTERM, SIGHUP}) std::signal(sinyal, [](int) { YarıdaKes(); });
    std::signal(SIGPIPE, SIG_IGN);
    const bool uçbirim = !bildir && isatty(STDERR_FILENO) == 1;
    if (bildir)
        seçenekler.İstek.İlerleme = [](int binde) { Bildir(QLatin1String("%"), QString::number(binde)); };
    else if (uçbirim)
        seçenekler.İstek.İlerleme = [](int binde) {
            if (binde % 10 == 0) std::fprintf(stderr, "\r%%%d", binde / 10);
        };
    try {
        SürücüKlasörünüAyarla(QCoreApplication::applicationDirPath());
        const Erişim::AktarımSonucu sonuç = Erişim::ErişimDosyasınıAl(seçenekler.İstek);
        if (uçbirim) Yaz(stderr, {});
        if (!bildir) YapılanıBildir(sonuç.Özet);
        if (!sonuç.Not.isEmpty()) bildir ? Bildir(QLatin1String("not"), sonuç.Not) : Yaz(stderr, sonuç.Not);
        if (bildir) Yaz(stdout, u"tamam"_s);
    } catch (const VeriHatası& hata) {
        if (uçbirim) Yaz(stderr, {});
        bildir ? Bildir(QLatin1String("hata"), hata.Metin()) : Yaz(stderr, hata.Metin());
        return 1;
    }
    return 0;
}

}  // namespace

const Komut ErişimdenAlKomutu = {
    u"erisimden-al", u"DOSYA [--hedef YENI]", u"bir Access dosyasının verilerini alır",
    u"Bir Access dosyasını (Access 97 - 2003) bu programın veri dosyasına çevirir. Özgün dosya\n"
    u"DOSYA.access olarak saklanır; olduğu gibi alınamayan değerler DOSYA.access.txt içinde\n"
    u"listelenir.\n"
    u"--hedef ile DOSYA olduğu gibi kalır, çevrilen veriler YENI adıyla yazılır.\n\n"
    u"Çıkış kodu: 0 alındı, 1 alınamadı ya da yarıda kesildi (dosya değişmedi), 2 yanlış kullanım",
    Al};
