#include "MalzemeHareketleriFormu.h"

#include <QGroupBox>
#include <QTimer>

#include "DegiskenModulu.h"
#include "Deyimler.h"
#include "HareketSatiri.h"
#include "MesajKutusu.h"
#include "MetinTablosu.h"
#include "OdbcModulu.h"
#include "OrtakFonksiyonlarModulu.h"
#include "RaporCiktilari.h"
#include "SutunluSatir.h"
#include "Saat.h"
#include "SayiMetni.h"
#include "TarihDegistirFormu.h"

namespace {

Okuma GününSatırları(const QString& tarih, QList<QTreeWidgetItem*>& satırlar) {
    return SatırlarıOku(Deyimler::GününHareketleri(tarih), [&satırlar] {
        const QString malzeme = SütunOku(1);
        const QString miktar = SütunOku(2);
        const QString fiyat = SütunOku(3);
        const QString ürün = SütunOku(4);
        const HareketSatırı satır = HareketiBiçimle(miktar, fiyat, OndalıkBasamak);
        satırlar.append(new SütunluSatır({malzeme, satır.Miktar, satır.Fiyat, satır.Tutar, ürün},
                                         {QString(), miktar, NoktayıVirgüleÇevir(fiyat)}));
    });
}

}  // namespace

MalzemeHareketleriFormu::MalzemeHareketleriFormu(QWidget* sahip)
    : RaporFormu({QStringLiteral("MalzemeHareketleriFormu"),
                  QStringLiteral("MalzemeHareketleriListesi"),
                  MetinNo::HareketlerFormuBaşlığı,
                  MetinNo::TarihliHareketler,
                  {{MetinNo::AdıSütunu, 4, false},
                   {MetinNo::MiktarıSütunu, 6, true},
                   {MetinNo::FiyatıSütunu, 6, true},
                   {MetinNo::TutarıSütunu, 5.5, true},
                   {MetinNo::KullanıldığıÜrünSütunu, 5.5, false}},
                  MalzemeHareketleriniYaz},
                 sahip) {
    BaşaDüğmeKoy(QStringLiteral("TarihDeğiştirButonu"), MetinNo::TarihDeğiştir, [this] {
        TarihDeğiştirFormu(this).exec();
        PencereKapandı();
    });
    HareketTarihi = Bugün();
    HareketTarihiSQL = TarihDeğişmezi(HareketTarihi);
}

void MalzemeHareketleriFormu::showEvent(QShowEvent* olay) {
    RaporFormu::showEvent(olay);
    if (m_gösterildi) return;
    m_gösterildi = true;
    QTimer::singleShot(0, this, [this] {
        HataYakala([this] {
            ListeyiYükle();
            OdağıBaşaAl();
        });
    });
}

QString MalzemeHareketleriFormu::RaporBaşlığı() const {
    return Çerçeve().title();
}

void MalzemeHareketleriFormu::ListeyiYükle() {
    if (HareketTarihiSQL.isEmpty()) return;
    Liste().clear();
    // The cleared list is drawn at once, without running other events in the middle of the load.
    Liste().viewport()->repaint();
    Çerçeve().setTitle(HareketTarihi.toString(QStringLiteral("(dd.MM.yyyy) ")) + Metin(MetinNo::TarihliHareketler));
    QList<QTreeWidgetItem*> satırlar;
    const Okuma okuma = GününSatırları(HareketTarihiSQL, satırlar);
    SatırlarıGöster(satırlar, okuma);
}
