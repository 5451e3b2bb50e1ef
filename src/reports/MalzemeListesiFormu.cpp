#include "MalzemeListesiFormu.h"

#include "DegiskenModulu.h"
#include "Deyimler.h"
#include "MetinTablosu.h"
#include "OdbcModulu.h"
#include "RaporCiktilari.h"
#include "SutunluSatir.h"
#include "SayiMetni.h"
#include "YuklemeGosterFormu.h"

MalzemeListesiFormu::MalzemeListesiFormu(QWidget* sahip)
    : RaporFormu({QStringLiteral("MalzemeListesiFormu"),
                  QStringLiteral("MalzemeListesi"),
                  MetinNo::MalzemeListesiBaşlığı,
                  MetinNo::MalzemeListesiEtiketi,
                  {{MetinNo::AdıSütunu, 1.5, false}, {MetinNo::FiyatıSütunu, 3.8, true}},
                  MalzemeListesiniYaz,
                  {ListeSütunu::Metin, ListeSütunu::Fiyat}},
                 sahip) {}

void MalzemeListesiFormu::Yükle() {
    SQLMetni = Deyimler::MalzemeSayısı();
    Yüklemeİlerlemesi ilerleme(KayıtSayısıAl());
    QList<QTreeWidgetItem*> satırlar;
    const Okuma okuma = SatırlarıOku(Deyimler::MalzemeKataloğuRaporu(), [&] {
        const QString ad = SütunOku(1);
        const QString saklanan = NoktayıVirgüleÇevir(SütunOku(2));
        const std::optional<QString> fiyat = SayıMetniBiçimle(saklanan, OndalıkBasamak, NoktaKuralı::Yerinde);
        satırlar.append(new SütunluSatır({ad, fiyat.value_or(QString())}, {QString(), saklanan}));
        ilerleme.Arttır();
    });
    SatırlarıGöster(satırlar, okuma);
}
