#include "ArsivMetni.h"

#include <cmath>

#include "ArsivMetinleri.h"
#include "DegiskenModulu.h"
#include "MaliyetSatirlari.h"
#include "OdbcModulu.h"
#include "SayiMetni.h"

QString KapsamMetni(const Kapsam& kapsam) {
    if (kapsam.Tümü()) return Metin(ArşivMetni::TümGruplar);
    return kapsam.Ürün.isEmpty() ? kapsam.Grup : kapsam.Grup + QStringLiteral(" / ") + kapsam.Ürün;
}

QString ArşivAdı(const Başlık& arşiv) {
    return Metin(ArşivMetni::ArşivAdı).arg(arşiv.No).arg(GünMetni(arşiv.Gün));
}

QString ArşivDikkatMetni(unsigned dikkat) {
    const QString metin = DikkatMetni(dikkat);
    if (!(dikkat & MetinKısaltıldı)) return metin;
    return metin.isEmpty() ? Metin(ArşivMetni::MetinKısaltıldı)
                           : metin + QStringLiteral("; ") + Metin(ArşivMetni::MetinKısaltıldı);
}

QString ArşivTutarı(Para tutar) {
    return SayıBiçimle(tutar, OndalıkBasamak);
}

QString ArşivYüzdesi(Para eski, Para yeni) {
    if (eski.OnBindeBir() == 0) return {};
    constexpr int basamak = 2;
    return SayıBiçimle((yeni.Double() - eski.Double()) / std::abs(eski.Double()) * 100, basamak).value_or(QString());
}

QString ArşivBoyuMetni(std::int64_t bayt) {
    constexpr double kilo = 1024;
    const double kilobayt = static_cast<double>(bayt) / kilo;
    const bool büyük = kilobayt >= kilo;
    return SayıBiçimle(büyük ? kilobayt / kilo : std::ceil(kilobayt), büyük ? 1 : 0).value_or(QString()) +
           (büyük ? QStringLiteral(" MB") : QStringLiteral(" KB"));
}

Para ArşivGösterimi(Para tutar) {
    return GösterilenTutar(tutar, OndalıkBasamak).value_or(tutar);
}

QString SatırlaraBölünür(const QString& metin) {
    constexpr int enUzun = 20;
    constexpr QChar bölünmeYeri(0x200B);  // takes no room
    QString sonuç;
    int sıra = 0;
    for (const QChar harf : metin) {
        sıra = harf.isSpace() ? 0 : sıra + 1;
        if (sıra > enUzun && !harf.isLowSurrogate() && !harf.isMark()) {
            sonuç += bölünmeYeri;
            sıra = 1;
        }
        sonuç += harf;
    }
    return sonuç;
}

void ArşivSonucunuGöster(const İşSonucu& sonuç) {
    if (sonuç.Son != İşSonu::Olmadı) return;
    const QStringList iletiler = OdbcİletileriniAl(sonuç.Odbc.Hatalar);
    HatalarıGöster(iletiler.isEmpty() ? QStringList{QString()} : iletiler);
}
