#pragma once

#include <QString>

#include "FiyatKurali.h"

class QComboBox;

// The two lists with which a form asks how prices are rounded: to which step, and in which direction.
struct YuvarlamaSeçimi {
    QComboBox* Adımlar;  // YuvarlamaListesi
    QComboBox* Yönler;   // YuvarlamaYönüListesi; off while nothing is rounded

    YuvarlamaSeçimi();
    Yuvarlama Seçilen() const;
    // A step that is not offered counts as none.
    void Seç(const Yuvarlama& yuvarlama);
    // For the operation's record: "; yuvarlama 0,05 (En yakına)"; "" where nothing is rounded.
    QString Açıklama() const;
};
