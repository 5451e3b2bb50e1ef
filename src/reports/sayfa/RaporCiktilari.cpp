#include "RaporCiktilari.h"

#include "MetinTablosu.h"
#include "SayfaDuzeni.h"

void MalzemeHareketleriniYaz(SayfaYüzeyi& yüzey, const QString& başlık, const QList<QStringList>& satırlar) {
    // The first two captions stand over each other's cells: material under "Miktarı", quantity under "Adı". This is how
    // the sheet is meant to look.
    SayfaDüzeni düzen(yüzey, başlık,
                      {{MetinNo::MiktarıSütunu, 13.5, HücreTürü::Metin},
                       {MetinNo::AdıSütunu, 5, HücreTürü::Miktar},
                       {MetinNo::FiyatıSütunu, 1.9, HücreTürü::Sayı},
                       {MetinNo::TutarıSütunu, 1.4, HücreTürü::Sayı},
                       {MetinNo::KullanıldığıÜrünSütunu, 1.2, HücreTürü::Metin}});
    if (!düzen.Başla()) return;
    for (const QStringList& satır : satırlar) düzen.SatırYaz(satır);
    düzen.Bitir();
}

void MalzemeListesiniYaz(SayfaYüzeyi& yüzey, const QString& başlık, const QList<QStringList>& satırlar) {
    SayfaDüzeni düzen(yüzey, başlık,
                      {{MetinNo::AdıSütunu, 10, HücreTürü::Metin}, {MetinNo::FiyatıSütunu, 1.2, HücreTürü::Sayı}});
    if (!düzen.Başla()) return;
    for (const QStringList& satır : satırlar) {
        düzen.SatırYaz(satır);
        yüzey.Çiz(düzen.SütunKonumu(0), yüzey.Y(), düzen.SağKenar(1), yüzey.Y(), Qt::black);
    }
    düzen.Bitir();
}

void ÜrünListesiniYaz(SayfaYüzeyi& yüzey, const QString& başlık, const QList<QStringList>& satırlar) {
    SayfaDüzeni düzen(yüzey, başlık,
                      {{MetinNo::GrubuSütunu, 11, HücreTürü::Metin}, {MetinNo::AdıSütunu, 2.2, HücreTürü::Metin}});
    if (!düzen.Başla()) return;
    QString sonGrup;
    for (const QStringList& satır : satırlar) {
        düzen.SatırYaz(satır, sonGrup);
        if (!satır.at(0).isEmpty()) sonGrup = satır.at(0);
    }
    düzen.Bitir();
}
