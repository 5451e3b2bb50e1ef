#include "MalzemeHareketleriFormu.h"

#include <QGroupBox>
#include <QTimer>

#include "DegiskenModulu.h"
#include "Deyimler.h"
#include "HareketSatiri.h"
#include "MesajKutusu.h"
#include "MetinTablosu.h"
#include "MetinTemsilcisi.h"
#include "OdbcModulu.h"
#include "OrtakFonksiyonlarModulu.h"
#include "RaporCiktilari.h"
#include "SutunluSatir.h"
#include "Saat.h"
#include "SayiMetni.h"
#include "TarihDegistirFormu.h"

namespace {

// A movement whose amount is beyond the range of money: a mark stands in its place, and the row says why.
class TutarsızSatır : public SütunluSatır {
  public:
    using SütunluSatır::SütunluSatır;
    static QString İm() { return QStringLiteral("?"); }

    QVariant data(int sütun, int rol) const override {
        const QVariant veri = SütunluSatır::data(sütun, rol);
        if (rol != AyrıntıRolü) return veri;
        QStringList satırlar{Metin(MetinNo::TutarÇokBüyük), veri.toString()};
        satırlar.removeAll(QString());
        return satırlar.join(QLatin1Char('\n'));
    }
};

Okuma GününSatırları(const QString& tarih, QList<QTreeWidgetItem*>& satırlar) {
    return SatırlarıOku(Deyimler::GününHareketleri(tarih), [&satırlar] {
        const QString malzeme = SütunOku(1);
        const QString miktar = SütunOku(2);
        const QString fiyat = SütunOku(3);
        const QString ürün = SütunOku(4);
        const HareketSatırı satır = HareketiBiçimle(miktar, fiyat, OndalıkBasamak);
        const bool tutarsız = satır.Tutar.isEmpty();
        const QStringList hücreler{malzeme, satır.Miktar, satır.Fiyat, tutarsız ? TutarsızSatır::İm() : satır.Tutar,
                                   ürün};
        const QStringList saklananlar{QString(), miktar, NoktayıVirgüleÇevir(fiyat)};
        satırlar.append(tutarsız ? new TutarsızSatır(hücreler, saklananlar) : new SütunluSatır(hücreler, saklananlar));
    });
}

}  // namespace

MalzemeHareketleriFormu::MalzemeHareketleriFormu(QWidget* sahip)
    : RaporFormu(
          {QStringLiteral("MalzemeHareketleriFormu"),
           QStringLiteral("MalzemeHareketleriListesi"),
           MetinNo::HareketlerFormuBaşlığı,
           MetinNo::TarihliHareketler,
           {{MetinNo::AdıSütunu, 4, false},
            {MetinNo::MiktarıSütunu, 6, true},
            {MetinNo::FiyatıSütunu, 6, true},
            {MetinNo::TutarıSütunu, 5.5, true},
            {MetinNo::KullanıldığıÜrünSütunu, 5.5, false}},
           MalzemeHareketleriniYaz,
           {ListeSütunu::Metin, ListeSütunu::Miktar, ListeSütunu::Fiyat, ListeSütunu::Tutar, ListeSütunu::Metin}},
          sahip) {
    BaşaDüğmeKoy(QStringLiteral("TarihDeğiştirButonu"), MetinNo::TarihDeğiştir, [this] {
        TarihDeğiştirFormu(this).exec();
        PencereKapandı();
    });
    HareketTarihi = Bugün();
    HareketTarihiSQL = Deyimler::Tarih(HareketTarihi);
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
