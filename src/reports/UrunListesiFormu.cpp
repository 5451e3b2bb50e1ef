#include "UrunListesiFormu.h"

#include "Deyimler.h"
#include "MetinTablosu.h"
#include "OdbcModulu.h"
#include "RaporCiktilari.h"
#include "YuklemeGosterFormu.h"

ÜrünListesiFormu::ÜrünListesiFormu(QWidget* sahip)
    : RaporFormu({QStringLiteral("ÜrünListesiFormu"),
                  QStringLiteral("ÜrünListesi"),
                  MetinNo::ÜrünListesiRaporBaşlığı,
                  MetinNo::ÜrünListesiBaşlığı,
                  {{MetinNo::GrubuSütunu, 2, false}, {MetinNo::AdıSütunu, 2.3, false}},
                  ÜrünListesiniYaz,
                  {ListeSütunu::Grup, ListeSütunu::Metin}},
                 sahip) {}

void ÜrünListesiFormu::Yükle() {
    SQLMetni = Deyimler::ÜrünSayısı();
    Yüklemeİlerlemesi ilerleme(KayıtSayısıAl());
    QList<QTreeWidgetItem*> satırlar;
    QString sonÜrünGrubu;
    const Okuma okuma = SatırlarıOku(Deyimler::ÜrünListesiRaporu(), [&] {
        const QString geçerliGrup = SütunOku(1);
        const QString ürün = SütunOku(2);
        const bool yeniGrup = geçerliGrup != sonÜrünGrubu;
        if (yeniGrup) sonÜrünGrubu = geçerliGrup;
        satırlar.append(new QTreeWidgetItem(QStringList{yeniGrup ? geçerliGrup : QString(), ürün}));
        ilerleme.Arttır();
    });
    SatırlarıGöster(satırlar, okuma);
}
