#include "KatalogListesi.h"

#include "GirisKutusu.h"
#include "MetinTemsilcisi.h"

KatalogListesi::KatalogListesi(const QString& ad) {
    setObjectName(ad);
    setUniformItemSizes(true);
    setTextElideMode(Qt::ElideRight);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setItemDelegate(new MetinTemsilcisi(this));
    Enterİleİlerlesin(this);
}

int KatalogListesi::ÖnekAra(const QString& ön) const {
    const int yer = İlkYer(count(), [&](int satır) {
        return Türkçe::Karşılaştır(QStringView(item(satır)->text()), QStringView(ön)) >= 0;
    });
    const bool bulundu = yer < count() && Türkçe::İleBaşlar(QStringView(item(yer)->text()), QStringView(ön));
    return bulundu ? yer : -1;
}
