#include "Denetimler.h"

#include <QLabel>
#include <QLineEdit>
#include <array>

#include "EtiketVurgusu.h"
#include "MetinTablosu.h"
#include "SayiSigdirma.h"

namespace {

constexpr std::array EtiketMetinleri = {MetinNo::ÜrünListesiBaşlığı,
                                        MetinNo::KullanılanMalzemelerBaşlığı,
                                        MetinNo::ToplamMalzemeMaliyeti,
                                        MetinNo::İşçilikYüzdesi,
                                        MetinNo::KârYüzdesi,
                                        MetinNo::DiğerYüzdesi,
                                        MetinNo::VadeYüzdesi,
                                        MetinNo::ToplamVarnek,
                                        MetinNo::ToplamMalzeme,
                                        MetinNo::BirimVarnek,
                                        MetinNo::OndalıkBasamaklar,
                                        MetinNo::HaneOlsun,
                                        MetinNo::FireOranı,
                                        MetinNo::FireliToplamMalzeme,
                                        MetinNo::FireliBirimVarnekEtiketi};

QString Sıralı(const QString& ad, int sıra) {
    return ad + QLatin1Char('(') + QString::number(sıra) + QLatin1Char(')');
}

}  // namespace

QLabel* EtiketOluştur(int sıra, QWidget* denetim) {
    const QString metin = Metin(EtiketMetinleri.at(static_cast<std::size_t>(sıra)));
    auto* etiket = new QLabel(metin);
    etiket->setTextFormat(Qt::PlainText);
    etiket->setObjectName(Sıralı(QStringLiteral("Etiket"), sıra));
    if (denetim) denetim->setAccessibleName(metin);
    return etiket;
}

QLabel* VurgulananEtiket(int sıra, QWidget* denetim) {
    QLabel* etiket = EtiketOluştur(sıra);
    EtiketEşle(etiket, denetim);
    return etiket;
}

QWidget* AltlıkOluştur(int sıra) {
    auto* altlık = new QWidget;
    altlık->setObjectName(Sıralı(QStringLiteral("Altlık"), sıra));
    altlık->setBackgroundRole(QPalette::Window);
    altlık->setAutoFillBackground(true);
    return altlık;
}

QLineEdit* GösterimKutusu(const QString& ad) {
    auto* kutu = new QLineEdit;
    kutu->setObjectName(ad);
    kutu->setReadOnly(true);
    kutu->setFocusPolicy(Qt::ClickFocus);
    kutu->setAlignment(Qt::AlignRight);
    SayıyıSığdır(kutu);
    // Shaded, so that one sees which boxes can be typed into.
    QPalette renkler = kutu->palette();
    renkler.setColor(QPalette::Active, QPalette::Base, renkler.color(QPalette::Active, QPalette::Window));
    renkler.setColor(QPalette::Inactive, QPalette::Base, renkler.color(QPalette::Inactive, QPalette::Window));
    kutu->setPalette(renkler);
    return kutu;
}
