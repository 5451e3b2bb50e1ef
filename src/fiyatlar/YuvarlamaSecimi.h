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
    // What it adds to an operation's description; "" where nothing is rounded.
    QString Açıklama() const;
};
