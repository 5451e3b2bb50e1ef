#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Motor {

// Attributes KEY=value of a connection string or of an attribute list; keys know no case.
class Öznitelikler {
  public:
    // "DSN=Varnek;DBQ=/a/b.vtb;PWD={x;y}": a value in braces may contain semicolons, a doubled closing brace stands for
    // one.
    static Öznitelikler BağlantıMetninden(std::string_view metin);

    // NUL-separated pairs, an empty one at the end; null counts as empty.
    static Öznitelikler Listeden(const char* liste);

    const std::string* Bul(std::string_view anahtar) const;
    std::string Değer(std::string_view anahtar) const;  // "" when there is none
    void Ekle(std::string anahtar, std::string değer);  // the first of a key counts

  private:
    std::vector<std::pair<std::string, std::string>> m_çiftler;
};

// A value that the user's or the system's odbc.ini holds for a data source; "" when it has none. Throws Hata (08001)
// for one longer than any path.
std::string VeriKaynağıDeğeri(const std::string& veriKaynağı, const std::string& anahtar);

}  // namespace Motor
