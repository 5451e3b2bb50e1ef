#include "YuvarlamaSecimi.h"

#include <QComboBox>

#include "MetinTablosu.h"
#include "SayiMetni.h"

YuvarlamaSeçimi::YuvarlamaSeçimi() : Adımlar(new QComboBox), Yönler(new QComboBox) {
    Adımlar->setObjectName(QStringLiteral("YuvarlamaListesi"));
    Yönler->setObjectName(QStringLiteral("YuvarlamaYönüListesi"));
    for (const std::int64_t adım : YUVARLAMA_ADIMLARI) {
        const int basamak = adım % Para::Ölçek == 0 ? 0 : 2;
        Adımlar->addItem(adım == 0 ? Metin(MetinNo::YuvarlamaYok) : SayıBiçimle(Para::OnBindeBirden(adım), basamak));
    }
    for (const MetinNo metin : {MetinNo::EnYakına, MetinNo::YukarıYuvarla, MetinNo::AşağıYuvarla})
        Yönler->addItem(Metin(metin));
    Yönler->setEnabled(false);
    QObject::connect(Adımlar, &QComboBox::currentIndexChanged, Yönler,
                     [yönler = Yönler](int yer) { yönler->setEnabled(yer > 0); });
}

Yuvarlama YuvarlamaSeçimi::Seçilen() const {
    return {YUVARLAMA_ADIMLARI[Adımlar->currentIndex()], static_cast<YuvarlamaYönü>(Yönler->currentIndex())};
}

QString YuvarlamaSeçimi::Açıklama() const {
    if (Seçilen().Adım == 0) return {};
    return Metin(MetinNo::YuvarlamaAçıklaması).arg(Adımlar->currentText(), Yönler->currentText());
}
