#pragma once

#include <QString>
#include <string>

namespace Erişim {

// Keeps a copy of the Access file as "<yanına>.access" or, where that is taken by another content, with the next free
// number; an equal copy is used again. Throws VeriHatası.
struct Saklanan {
    QString Yol;
    bool Yeni = false;  // made by this call
};
Saklanan ÖzgünüSakla(const QString& yol, const QString& yanına);

// The path, with a number where it is taken.
QString ListeAdı(const QString& yol);

// Writes a text file as a whole, for those who may use the file `örnek`. Throws VeriHatası.
void MetniYaz(const QString& yol, const std::string& metin, const std::string& örnek);

// Gives the new file its name. With `değiştir` it takes another file's place, whose journals are none of its own.
void YerineKoy(const std::string& yeni, const std::string& hedef, bool değiştir);

// The real path; throws VeriHatası where its folder is not there.
QString GerçekYoluBul(const QString& yol);

}  // namespace Erişim
