#include "KullanilanMalzemeler.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include "Deyimler.h"
#include "MetinTablosu.h"
#include "OdbcModulu.h"
#include "SutunluSatir.h"
#include "SayiMetni.h"
#include "YariMamulMetinleri.h"
#include "YariMamulSozleri.h"
#include "YariMamulYayilimi.h"

namespace {

enum Sütunlar { MiktarSütunu, AdSütunu };

// Two sheets, one on the other; crossed out where the price does not follow. In the colour of texts.
QIcon YarıMamulSimgesi(const QPalette& renkler, bool uyuyor) {
    QIcon simge;
    for (const auto& [kip, renk] :
         {std::pair(QIcon::Normal, QPalette::Text), std::pair(QIcon::Selected, QPalette::HighlightedText)}) {
        QPixmap resim(16, 16);
        resim.fill(Qt::transparent);
        QPainter çizici(&resim);
        çizici.setPen(QPen(renkler.color(renk), 1.4));
        çizici.drawRect(QRectF(2.5, 5.5, 8, 8));
        çizici.drawPolyline(QPolygonF({{5.5, 5.5}, {5.5, 2.5}, {13.5, 2.5}, {13.5, 10.5}, {10.5, 10.5}}));
        if (!uyuyor) çizici.drawLine(QPointF(1, 15), QPointF(15, 1));
        simge.addPixmap(resim, kip);
    }
    return simge;
}

// Its tooltip and what screen readers say of it.
QString YarıMamulAçıklaması(const YarıMamulBağı& bağ) {
    const QString açıklama =
        Metin(YarıMamulMetni::ListeAçıklaması).arg(bağ.Ürün.Grup, bağ.Ürün.Ad, TutarTürüMetni(bağ.Tür));
    return bağ.Durum == BağDurumu::Uyuyor
               ? açıklama
               : açıklama + QLatin1Char('\n') + Metin(YarıMamulMetni::FiyatıUymuyor).arg(DurumMetni(bağ.Durum));
}

}  // namespace

KullanılanMalzemeListesi::KullanılanMalzemeListesi(QWidget* sahip)
    : SütunluListe({{MetinNo::MiktarıSütunu, 5, false, true},
                    {MetinNo::AdıSütunu, 3, false},
                    {MetinNo::FiyatıSütunu, 5, true},
                    {MetinNo::TutarıSütunu, 4.6, true}},
                   sahip) {
    setObjectName(QStringLiteral("KullanılanMalzemeListesi"));
    setMinimumHeight(120);
}

KullanılanMalzemeListesi::Yüklenen KullanılanMalzemeListesi::Yükle(const QString& grup, const QString& ürün,
                                                                   int basamak) {
    clear();
    Yüklenen sonuç;
    QList<QTreeWidgetItem*> satırlar;
    const YarıMamulBağları* bağlar = nullptr;
    const bool bağlarOkundu = YarıMamulleriAl(ODBCBağlantısı(), bağlar).Tamam();
    const Okuma okuma = SatırlarıOku(Deyimler::KullanılanMalzemeler(grup, ürün), [&] {
        const QString miktar = SütunOku(1);
        const QString ad = SütunOku(2);
        const QString fiyat = NoktayıVirgüleÇevir(SütunOku(3));
        const MalzemeSatırı satır = sonuç.Toplam.Ekle(miktar, fiyat, basamak);
        if (!satır.Sayıldı) sonuç.Sayılmayanlar.append(miktar + QLatin1Char(' ') + ad);
        auto* yeni = new SütunluSatır({satır.Miktar, ad, satır.Fiyat, satır.Tutar}, {miktar, QString(), fiyat});
        if (const YarıMamulBağı* bağ = bağlarOkundu ? bağlar->Bağı(ad) : nullptr) {
            yeni->setIcon(AdSütunu, YarıMamulSimgesi(palette(), bağ->Durum == BağDurumu::Uyuyor));
            yeni->NotKoy(YarıMamulAçıklaması(*bağ));
        }
        satırlar.append(yeni);
    });
    sonuç.Tamam = okuma == Okuma::Tamam;
    SatırlarıKoy(satırlar);
    return sonuç;
}

QString KullanılanMalzemeListesi::SeçiliMiktar() const {
    return SeçiliMetin(MiktarSütunu);
}

QString KullanılanMalzemeListesi::SeçiliMalzeme() const {
    return SeçiliMetin(AdSütunu);
}

QStringList KullanılanMalzemeListesi::MalzemeAdları() const {
    QStringList adlar;
    for (int satır = 0; satır < topLevelItemCount(); ++satır) adlar.append(topLevelItem(satır)->text(AdSütunu));
    return adlar;
}

// False: the row's material stands for no product.
bool KullanılanMalzemeListesi::Git(const QTreeWidgetItem* satır) {
    const YarıMamulBağları* bağlar = nullptr;
    if (!satır || !m_yarıMamuleGit || !YarıMamulleriAl(ODBCBağlantısı(), bağlar).Tamam()) return false;
    const QString malzeme = satır->text(AdSütunu);
    if (!bağlar->Bağı(malzeme)) return false;
    m_yarıMamuleGit(malzeme);
    return true;
}

void KullanılanMalzemeListesi::mouseDoubleClickEvent(QMouseEvent* olay) {
    const bool git = olay->button() == Qt::LeftButton && (olay->modifiers() & Qt::ControlModifier);
    if (git && Git(itemAt(olay->position().toPoint())))
        olay->accept();
    else
        SütunluListe::mouseDoubleClickEvent(olay);
}

void KullanılanMalzemeListesi::keyPressEvent(QKeyEvent* olay) {
    const bool git =
        (olay->key() == Qt::Key_Return || olay->key() == Qt::Key_Enter) && (olay->modifiers() & Qt::ControlModifier);
    if (git && Git(SeçiliÖğe()))
        olay->accept();
    else
        SütunluListe::keyPressEvent(olay);
}
