#pragma once

#include <QString>
#include <QUrl>
#include <functional>

// Opens an address or a file with the desktop's own open operation. What comes of it is the desktop's to show.
void AdresAç(const QUrl& adres);

// Replaces the desktop's open operation; nullptr brings it back.
void AdresAçıcıyıAyarla(std::function<void(const QUrl&)> açıcı);

// The maker's addresses, as texts: the web site, its message page for this program, and mail.
QString SiteAdresi();
QString MesajSayfasıAdresi();
QString PostaAdresi();
