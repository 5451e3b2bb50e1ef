#pragma once

#include "GeciciDosya.h"

namespace Motor {

// What the engine asks of the file system, with failures as Hata.

// The path from the root on with every link resolved, as the system does it; the last name need not exist. Throws Hata
// (08001) when its folder does not.
std::string GerçekYol(const std::string& yol);

// Throws Hata (08001) when something that is no file bears the name of a journal: SQLite would wait at a pipe for ever.
void GünlükleriDenetle(const std::string& yol);

// A file in the making. Every failure throws Hata; the target is then as it was, unless the text says that only its
// lasting is in doubt.
class GeçiciDosya {
  public:
    // `hedef` is a real path.
    explicit GeçiciDosya(const std::string& hedef);
    const std::string& Yol() const { return m_dosya.Yol(); }
    void Doldur(const std::string& kaynak);
    void Yerleştir(Dosya::Yerleştirme biçim);

  private:
    std::string m_hedef;
    Dosya::GeçiciDosya m_dosya;
};

}  // namespace Motor
