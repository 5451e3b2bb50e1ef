#pragma once

#include <string>

#include "DosyaSistemi.h"

namespace Dosya {

struct [[nodiscard]] Sonuç {
    enum class Tür {
        Tamam,
        Meşgul,        // another process is at work on the file
        Var,           // the name is taken; nothing was replaced
        Yapılamadı,    // nothing was done
        Doğrulanamadı  // done, but the disk may not keep it
    };
    Tür Ne = Tür::Tamam;
    int Neden = 0;  // the system's error number

    bool Tamam() const { return Ne == Tür::Tamam; }
    bool Yapıldı() const { return Ne == Tür::Tamam || Ne == Tür::Doğrulanamadı; }
};

// With Yeni an existing target is never replaced.
enum class Yerleştirme { Yeni, Değiştir };

// Gives a file that is complete and on disk its name, in the same folder tree, and puts the name on disk.
Sonuç Taşı(const std::string& kaynak, const std::string& hedef, Yerleştirme biçim);

// Gives a file a second name that stays when the first one's is replaced.
Sonuç EşAdVer(const std::string& dosya, const std::string& ad);

// The one way of writing a file into its place: a new file in the making, beside its target and readable by its owner
// only, that gets the target's name once it is on disk. What an earlier crash left under its name is taken away first,
// never written to: it may be another name of a file that matters. Unless it was put into place, the destructor removes
// it.
class GeçiciDosya {
  public:
    // `hedef` is a real path (GerçekYol). Nothing is done yet.
    explicit GeçiciDosya(const std::string& hedef) : m_hedef(hedef), m_yol(YarımAd(hedef)) {}
    ~GeçiciDosya();
    GeçiciDosya(const GeçiciDosya&) = delete;
    GeçiciDosya& operator=(const GeçiciDosya&) = delete;

    const std::string& Yol() const { return m_yol; }

    // Makes the file: Tamam, Meşgul or Yapılamadı.
    Sonuç Aç();

    // Fills it with another file's bytes and its time of change: Tamam or Yapılamadı.
    Sonuç Doldur(const std::string& kaynak);

    // Lets in whom the other file lets in.
    void İzinleriAl(const std::string& örnek) { İzinleriVer(m_dosya.No(), örnek); }

    // Syncs it, gives it the target's name and syncs the folder. What takes a file's place gets its permissions. Unless
    // Yapıldı, the target is as it was.
    Sonuç Yerleştir(Yerleştirme biçim);

    // The name of a target's file in the making.
    static std::string YarımAd(const std::string& hedef) { return hedef + ".yeni"; }

    // Clears what a crash left of such a file: Tamam, also when there is none; Meşgul; Yapılamadı.
    static Sonuç KalıntıyıSil(const std::string& hedef);

  private:
    std::string m_hedef;
    std::string m_yol;
    Tanıtıcı m_dosya;
    bool m_bizim = false;  // the name m_yol is this object's file's
};

}  // namespace Dosya
