#pragma once

#include <string>

// What the engine asks of the file system beyond SQLite; all platform calls of the engine are here.
namespace Motor {

// The path from the root on, so that SQLite cannot take a name for something else than a file.
std::string TamYol(const std::string& yol);

bool OlağanDosyaVar(const std::string& yol);
bool YolVar(const std::string& yol);

// Whether both paths lead to one file (links included).
bool AynıDosya(const std::string& a, const std::string& b);

// Whether a journal of SQLite lies beside the file.
bool GünlükVar(const std::string& yol);
void GünlükleriSil(const std::string& yol);

// A new file in the making, beside its target and readable by its owner only. What an earlier crash left under its name
// is cleared; while another process is at work on it, the constructor throws Hata. Unless it was put into place, the
// destructor removes it.
class GeçiciDosya {
  public:
    explicit GeçiciDosya(const std::string& hedef);
    ~GeçiciDosya();
    GeçiciDosya(const GeçiciDosya&) = delete;
    GeçiciDosya& operator=(const GeçiciDosya&) = delete;

    const std::string& Yol() const { return m_yol; }

    // Syncs the file, gives it the target's name and syncs the folder. Throws Hata; the target is then as it was. With
    // Yeni an existing target is not replaced.
    enum class Yerleştirme { Yeni, Değiştir };
    void Yerleştir(Yerleştirme biçim);

  private:
    void Kilitle();

    std::string m_hedef;
    std::string m_yol;
    int m_dosya = -1;
    bool m_yerleşti = false;
};

}  // namespace Motor
