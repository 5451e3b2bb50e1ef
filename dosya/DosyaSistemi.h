#pragma once

#include <sys/types.h>

#include <cstddef>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

// What program, engine and data-file tool ask of the file system beyond their libraries; the platform's calls are
// behind this folder. Paths are UTF-8.
namespace Dosya {

// The path from the root on as the system walks it: every folder its real one, and where links end in the last place,
// whether or not a file is there. On failure: the path at which it ended, whose folder is not there.
std::string GerçekYol(const std::string& yol, std::error_code& hata);

bool YolVar(const std::string& yol);  // a link that leads nowhere too
bool OlağanDosyaVar(const std::string& yol);
bool Yazılabilir(const std::string& yol);

// Whether both paths lead to one file (links included).
bool AynıDosya(const std::string& a, const std::string& b);

// Whether this name, taken for no link, is that of the open file.
bool AynıDosya(int no, const std::string& yol);

// True when the name is free afterwards. A link is taken away itself.
bool Sil(const std::string& yol);

// Whether a journal of the database library lies beside the data file.
bool GünlükVar(const std::string& dosya);

// Takes them away. True when none is left and, if there was one, the disk knows: in whatever order the system writes,
// it must not meet another file that comes into the data file's place.
bool GünlükleriSil(const std::string& dosya);

// Puts the names in the file's folder on disk. A folder that cannot be read or synced at all (some network drives) is
// passed over. False when the disk failed.
bool KlasörüEşitle(const std::string& dosya);

// As many bytes as there are, up to the buffer's size; -1 with errno when they cannot be read.
ssize_t DoluncayaDekOku(int no, std::vector<char>& tampon);

// False with errno when not all of it could be written.
bool HepsiniYaz(int no, const char* veri, std::size_t boy);

// Gives an open file the permissions of another one, and its owner and group as far as the user may: whoever could use
// that one can use what comes into its place. Nothing happens where there is no such file.
void İzinleriVer(int no, const std::string& örnek);

// Takes an open file's lock, which ends with the process; false when another process holds it.
bool Kilitle(int no);

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

}  // namespace Dosya
