#include "OnekArama.h"

#include <QListWidget>

int ÖnekAra(const QListWidget& sıralıListe, const QString& ön) {
    const int sayı = sıralıListe.count();
    const int yer = İlkYer(sayı, [&](int satır) {
        return Türkçe::Karşılaştır(QStringView(sıralıListe.item(satır)->text()), QStringView(ön)) >= 0;
    });
    const bool bulundu = yer < sayı && Türkçe::İleBaşlar(QStringView(sıralıListe.item(yer)->text()), QStringView(ön));
    return bulundu ? yer : -1;
}
