#pragma once

#include "KatalogOkuma.h"
#include "OdbcModulu.h"

// Whether it could be done; shows what went wrong, which is never nothing. The user's giving up needs no word.
inline bool OlduysaBil(const İşSonucu& sonuç) {
    if (sonuç.Son == İşSonu::Olmadı) {
        const QStringList iletiler = OdbcİletileriniAl(sonuç.Odbc.Hatalar);
        HatalarıGöster(iletiler.isEmpty() ? QStringList{QString()} : iletiler);
    }
    return sonuç.Tamam();
}
