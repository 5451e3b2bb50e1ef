#pragma once

#include <QUrl>

#include "Adresler.h"

// The addresses that were to be opened in the desktop while it lives.
struct AçılanAdresler : QList<QUrl> {
    AçılanAdresler() {
        AdresAçıcıyıAyarla([this](const QUrl& adres) { append(adres); });
    }
    ~AçılanAdresler() { AdresAçıcıyıAyarla(nullptr); }
};
