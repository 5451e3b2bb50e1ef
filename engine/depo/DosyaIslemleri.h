#pragma once

#include <string>
#include <utility>

// What the engine asks of the file system beyond SQLite; all platform calls of the engine are here.
namespace Motor {

// The path from the root on with every link resolved, as the system does it; the last name need not exist. Throws Hata
// (08001) when its folder does not.
std::string GerçekYol(const std::string& yol);

bool OlağanDosyaVar(const std::string& yol);
bool YolVar(const std::string& yol);
bool Yazılabilir(const std::string& yol);

// Whether both paths lead to one file (links included).
bool AynıDosya(const std::string& a, const std::string& b);

// Whether a journal of SQLite lies beside the file.
bool GünlükVar(const std::string& yol);
void GünlükleriSil(const std::string& yol);
void RollbackGünlüğünüSil(const std::string& yol);

// Throws Hata (08001) when something that is no file bears the name of a journal: SQLite would wait at a pipe for ever.
void GünlükleriDenetle(const std::string& yol);

// Puts the names in the file's folder on disk. A folder that cannot be synced at all (some network drives) is passed
// over. False when the disk failed.
bool KlasörüEşitle(const std::string& dosya);

// An open file, closed by the destructor.
class Tanıtıcı {
  public:
    explicit Tanıtıcı(int no = -1) noexcept : m_no(no) {}
    ~Tanıtıcı();
    Tanıtıcı(Tanıtıcı&& diğer) noexcept : m_no(std::exchange(diğer.m_no, -1)) {}
    Tanıtıcı& operator=(Tanıtıcı&& diğer) noexcept {
        std::swap(m_no, diğer.m_no);
        return *this;
    }
    int No() const { return m_no; }
    bool Açık() const { return m_no >= 0; }

  private:
    int m_no;
};

// A new file in the making, beside its target and readable by its owner only. What an earlier crash left under its name
// is taken away first, never written to: it may be another name of a file that matters. While another process is at
// work on it, the constructor throws Hata. Unless it was put into place, the destructor removes it.
class GeçiciDosya {
  public:
    // `hedef` is a real path (GerçekYol).
    explicit GeçiciDosya(const std::string& hedef);
    ~GeçiciDosya();
    GeçiciDosya(const GeçiciDosya&) = delete;
    GeçiciDosya& operator=(const GeçiciDosya&) = delete;

    // Clears what a crash left of such a file, unless another process is at work on it.
    static void KalıntıyıSil(const std::string& hedef);

    const std::string& Yol() const { return m_yol; }

    // Syncs the file, gives it the target's name and syncs the folder. Throws Hata; the target is then as it was,
    // unless the text says that only its lasting is in doubt. With Yeni an existing target is not replaced.
    enum class Yerleştirme { Yeni, Değiştir };
    void Yerleştir(Yerleştirme biçim);

  private:
    std::string m_hedef;
    std::string m_yol;
    Tanıtıcı m_dosya;
    bool m_yerleşti = false;
};

}  // namespace Motor
