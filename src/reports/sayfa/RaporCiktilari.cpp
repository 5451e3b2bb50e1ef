#include "RaporCiktilari.h"

#include "SayfaDuzeni.h"

void MalzemeHareketleriniYaz(SayfaYüzeyi& yüzey, const QString& başlık, const QList<QStringList>& satırlar) {
    // The first two captions stand over each other's cells: material under "Miktarı", quantity under "Adı". This is how
    // the sheet is meant to look.
    SayfaDüzeni düzen(yüzey, başlık,
                      {{412, 13.5, HücreTürü::Metin},
                       {414, 5, HücreTürü::Miktar},
                       {416, 1.9, HücreTürü::Sayı},
                       {418, 1.4, HücreTürü::Sayı},
                       {890, 1.2, HücreTürü::Metin}});
    if (!düzen.Başla()) return;
    for (const QStringList& satır : satırlar) düzen.SatırYaz(satır);
    düzen.Bitir();
}

void MalzemeListesiniYaz(SayfaYüzeyi& yüzey, const QString& başlık, const QList<QStringList>& satırlar) {
    SayfaDüzeni düzen(yüzey, başlık, {{414, 10, HücreTürü::Metin}, {416, 1.2, HücreTürü::Sayı}});
    if (!düzen.Başla()) return;
    for (const QStringList& satır : satırlar) {
        düzen.SatırYaz(satır);
        yüzey.Çiz(düzen.SütunKonumu(0), yüzey.Y(), düzen.SağKenar(1), yüzey.Y(), Qt::black);
    }
    düzen.Bitir();
}

void ÜrünListesiniYaz(SayfaYüzeyi& yüzey, const QString& başlık, const QList<QStringList>& satırlar) {
    SayfaDüzeni düzen(yüzey, başlık, {{1030, 11, HücreTürü::Metin}, {414, 2.2, HücreTürü::Metin}});
    if (!düzen.Başla()) return;
    QString sonGrup;
    for (const QStringList& satır : satırlar) {
        düzen.SatırYaz(satır, sonGrup);
        if (!satır.at(0).isEmpty()) sonGrup = satır.at(0);
    }
    düzen.Bitir();
}
