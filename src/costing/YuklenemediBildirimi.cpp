#include "YuklenemediBildirimi.h"

#include <QLabel>
#include <QVBoxLayout>

#include "MesajKutusu.h"
#include "KomutDugmesi.h"
#include "MetinTablosu.h"

YüklenemediBildirimi::YüklenemediBildirimi(const QString& ad, MetinNo metin, MetinNo düğme,
                                           std::function<void()> yenidenYükle) {
    setObjectName(ad);
    setFrameShape(QFrame::StyledPanel);
    setBackgroundRole(QPalette::ToolTipBase);
    setForegroundRole(QPalette::ToolTipText);
    setAutoFillBackground(true);
    auto* etiket = new QLabel(Metin(metin));
    etiket->setTextFormat(Qt::PlainText);
    etiket->setForegroundRole(QPalette::ToolTipText);
    etiket->setWordWrap(true);
    auto* yükle = new KomutDüğmesi(Metin(düğme));
    yükle->setObjectName(ad + QStringLiteral("Düğmesi"));
    yükle->setAccessibleDescription(Metin(metin));
    connect(yükle, &QPushButton::clicked, this, [yap = std::move(yenidenYükle)] { HataYakala(yap); });
    auto* düzen = new QVBoxLayout(this);
    düzen->setContentsMargins(6, 4, 6, 4);
    düzen->setSpacing(4);
    düzen->addWidget(etiket);
    düzen->addWidget(yükle, 0, Qt::AlignLeft);
    hide();
}
