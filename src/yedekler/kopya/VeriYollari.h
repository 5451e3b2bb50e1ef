#pragma once

#include <QString>

// Where data file and backup lie. The real paths follow links, so that what a link leads to is replaced and not the
// link.
struct VeriYolları {
    QString Dosya;
    QString GerçekDosya;
    QString YedekKlasörü;  // ends in the path separator
    QString Yedek;
    QString GerçekYedek;
};
VeriYolları VeriYollarınıBul();
