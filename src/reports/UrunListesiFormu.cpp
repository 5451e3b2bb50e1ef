#include "UrunListesiFormu.h"

#include "Deyimler.h"
#include "OdbcModulu.h"
#include "RaporCiktilari.h"
#include "YuklemeGosterFormu.h"

ÜrünListesiFormu::ÜrünListesiFormu(QWidget* sahip)
    : RaporFormu({QStringLiteral("ÜrünListesiFormu"),
                  QStringLiteral("ÜrünListesi"),
                  1020,
                  300,
                  {{1030, 2, false}, {414, 2.3, false}},
                  ÜrünListesiniYaz},
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
