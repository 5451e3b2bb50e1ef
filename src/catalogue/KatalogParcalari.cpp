#include "KatalogParcalari.h"

#include <QDialog>
#include <QLabel>
#include <QVBoxLayout>
#include <algorithm>

#include "EnterTusu.h"
#include "EtiketVurgusu.h"
#include "MesajKutusu.h"
#include "KomutDugmesi.h"
#include "MetinTablosu.h"
#include "MetinTemsilcisi.h"

using MesajKutusu::Düğmeler;
using MesajKutusu::Simge;

KomutDüğmesi* KatalogDüğmesi(const QString& ad, const QList<MetinNo>& başlıklar, std::function<void()> komut) {
    auto* düğme = new KomutDüğmesi;
    düğme->setObjectName(ad);
    int genişlik = 0;
    for (const MetinNo başlık : başlıklar) {
        düğme->setText(Metin(başlık));
        genişlik = std::max(genişlik, düğme->sizeHint().width());
    }
    düğme->setMinimumWidth(genişlik);
    düğme->setText(Metin(başlıklar.first()));
    QObject::connect(düğme, &QPushButton::clicked, düğme, [komut = std::move(komut)] { HataYakala(komut); });
    return düğme;
}

QLabel* KatalogEtiketi(int sıra, MetinNo metin, QWidget* kutu) {
    auto* etiket = new QLabel(Metin(metin));
    etiket->setTextFormat(Qt::PlainText);
    etiket->setObjectName(QStringLiteral("Etiket(%1)").arg(sıra));
    EtiketEşle(etiket, kutu);
    return etiket;
}

KatalogListesi::KatalogListesi(const QString& ad) {
    setObjectName(ad);
    setUniformItemSizes(true);
    setTextElideMode(Qt::ElideRight);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setItemDelegate(new MetinTemsilcisi(this));
    Enterİleİlerlesin(this);
}

void TutaraYerAç(QWidget* kutu) {
    constexpr int çerçeve = 16;  // pixels of the box beside its text
    kutu->setMinimumWidth(kutu->fontMetrics().horizontalAdvance(QStringLiteral("922.337.203.685.477,580800")) +
                          çerçeve);
}

QWidget* KatalogAltlığı(QDialog* form) {
    auto* altlık = new QWidget;
    altlık->setObjectName(QStringLiteral("Altlık"));
    altlık->setBackgroundRole(QPalette::Window);
    altlık->setAutoFillBackground(true);
    auto* düzen = new QVBoxLayout(form);
    düzen->setContentsMargins(0, 0, 0, 0);
    düzen->addWidget(altlık);
    return altlık;
}

void YarımKaldı(MetinNo metin, const QString& ek) {
    MesajKutusuOrtala();
    MesajKutusu::Göster(Simge::Ünlem, Düğmeler::Tamam, Metin(metin) + ek);
}

bool Uyar(MetinNo metin, QWidget& kutu) {
    MesajKutusuOrtala();
    MesajKutusu::Göster(Simge::Bilgi, Düğmeler::Tamam, Metin(metin));
    kutu.setFocus();
    return false;
}
