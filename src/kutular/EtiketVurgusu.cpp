#include "EtiketVurgusu.h"

#include <QLabel>
#include <QPointer>

#include "DegiskenModulu.h"
#include "OdakIzleyici.h"
#include "Renk.h"

namespace {

QString KısayolsuzMetin(const QString& metin) {
    QString sonuç;
    for (qsizetype yer = 0; yer < metin.size(); ++yer) {
        if (metin[yer] == u'&' && ++yer == metin.size()) break;
        sonuç += metin[yer];
    }
    return sonuç;
}

}  // namespace

void EtiketEşle(QLabel* etiket, QWidget* kutu) {
    etiket->setBuddy(kutu);
    kutu->setAccessibleName(KısayolsuzMetin(etiket->text()));

    const QPointer<QLabel> hedef(etiket);
    auto* izleyici = new Odakİzleyici(
        kutu,
        [hedef](Qt::FocusReason) {
            if (!hedef) return;
            QPalette renkler = hedef->palette();
            renkler.setColor(QPalette::WindowText, YazıRengi(EtkinEtiketRengi, renkler));
            hedef->setPalette(renkler);
        },
        [hedef](Odakİzleyici::Çıkış) {
            if (hedef) hedef->setPalette(QPalette());  // the form's own again
        });
    izleyici->setParent(kutu);
}
