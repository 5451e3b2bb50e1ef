#pragma once

#include <QString>

// What the program asks of the platform, in one place.

// Copies a file so that no failure leaves a half-written one: the copy is written beside the target, synced to disk and
// renamed into place, with the source's modification time; a journal left behind by a crash beside the target is
// removed first, as it does not belong to the new file. The target is overwritten; where it is a link, the file that it
// leads to. False: the target is as it was.
bool DosyaKopyala(const QString& kaynak, const QString& hedef);

// Removes what a copy to this target that was cut off has left beside it.
void YarımKopyayıSil(const QString& hedef);

// Whether files can be made in this folder.
bool KlasöreYazılabilir(const QString& klasör);

// A lock between processes. The system gives it back when its holder ends, killed or not; the file stays.
class DosyaKilidi {
  public:
    DosyaKilidi() = default;
    DosyaKilidi(const DosyaKilidi&) = delete;
    DosyaKilidi& operator=(const DosyaKilidi&) = delete;
    ~DosyaKilidi();
    enum class Sonuç { Alındı, Başkasında, Yapılamadı };
    // Yapılamadı: the file cannot be made or locked here at all. Asked for again once it is held, it stays held.
    Sonuç Al(const QString& yol);

  private:
    int m_no = -1;
};

// Tells users of one machine apart.
QString KullanıcıKimliği();

// The operating system's version, as the version check reads it.
struct SistemSürümü {
    unsigned Ana;
    unsigned İkincil;
    unsigned PlatformKimliği;  // 2 = NT family
    QString ServisPaketi;
};
// False when the system does not tell.
bool SistemSürümünüAl(SistemSürümü& sürüm);

// Number of installed printers.
int YazıcıSayısı();

// Width of the primary screen in pixels at 100 % scaling.
int EkranGenişliği();
