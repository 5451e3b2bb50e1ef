#include "YuvarlamaSecimi.h"

#include <QComboBox>

#include <algorithm>
#include <iterator>

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

void YuvarlamaSeçimi::Seç(const Yuvarlama& yuvarlama) {
    const auto* yer = std::find(std::begin(YUVARLAMA_ADIMLARI), std::end(YUVARLAMA_ADIMLARI), yuvarlama.Adım);
    const bool var = yer != std::end(YUVARLAMA_ADIMLARI);
    Adımlar->setCurrentIndex(var ? static_cast<int>(yer - std::begin(YUVARLAMA_ADIMLARI)) : 0);
    Yönler->setCurrentIndex(static_cast<int>(yuvarlama.Yön));
    Yönler->setEnabled(Adımlar->currentIndex() > 0);
}

QString YuvarlamaSeçimi::Açıklama() const {
    if (Seçilen().Adım == 0) return {};
    return Metin(MetinNo::YuvarlamaAçıklaması).arg(Adımlar->currentText(), Yönler->currentText());
}
