#include "VeriYollari.h"

#include <QDir>

#include "ApilerModulu.h"
#include "DegiskenModulu.h"
#include "OrtakFonksiyonlarModulu.h"

VeriYolları VeriYollarınıBul() {
    VeriYolları yollar;
    yollar.Dosya = UygulamaYolu + QStringLiteral("Varnek.vtb");
    yollar.GerçekDosya = GerçekYol(yollar.Dosya);
    yollar.YedekKlasörü = SondaTersBöluYap(ProgramDosyalarıKlasörü() + QStringLiteral("Tovrek") + QDir::separator() +
                                           QStringLiteral("Vtb Yedekleri"));
    yollar.Yedek = yollar.YedekKlasörü + QStringLiteral("Varnek.ydk");
    yollar.GerçekYedek = GerçekYol(yollar.Yedek);
    return yollar;
}
