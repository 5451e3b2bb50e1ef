#pragma once

#include <QByteArray>
#include <QString>
#include <functional>
#include <memory>

class QSocketNotifier;

// What the program asks of the platform, in one place.

// The path as the system walks it: every folder on the way its real one, and where links end in the last place, whether
// or not a file is there. A path that leads nowhere comes back as it is.
QString GerçekYol(const QString& yol);

// Copies a file so that no failure leaves a half-written one: the copy is written beside the target, synced to disk and
// renamed into place, with the source's modification time; a journal left behind by a crash beside the target is
// removed first, as it does not belong to the new file. The target is overwritten; where it is a link, the file that it
// leads to. False: the target is as it was.
bool DosyaKopyala(const QString& kaynak, const QString& hedef);

// Gives a file's present content a name that stays when the file is replaced later. False, and nothing done, when the
// name is taken or cannot be given.
bool DosyayıSakla(const QString& kaynak, const QString& yeniAd);

// Removes what a copy to this target that was cut off has left beside it; what another process writes just now stays.
void YarımKopyayıSil(const QString& hedef);

// Makes the folder, and those above it that are missing, for the user alone. True when it is there.
bool KlasörYap(const QString& klasör);

// Whether files can be made in this folder, or the file be changed.
bool KlasöreYazılabilir(const QString& klasör);
bool DosyayaYazılabilir(const QString& dosya);

// A lock between processes. The system gives it back when its holder ends, killed or not.
class DosyaKilidi {
  public:
    DosyaKilidi() = default;
    DosyaKilidi(const DosyaKilidi&) = delete;
    DosyaKilidi& operator=(const DosyaKilidi&) = delete;
    ~DosyaKilidi();
    enum class Sonuç { Alındı, Başkasında, Yapılamadı };
    enum class Artık { Kalır, Silinir };  // what becomes of the file when its holder ends in good order
    // Yapılamadı: the file cannot be made or locked here at all. Asked for again once it is held, it stays held.
    Sonuç Al(const QString& yol, Artık artık = Artık::Kalır);

    // What the holder leaves in the file for those who find it taken.
    void NotYaz(const QString& not_);
    static QString NotOku(const QString& yol);

  private:
    int m_no = -1;
    QByteArray m_yol;
    Artık m_artık = Artık::Kalır;
};

// While it lives, the system's request to end the process (a signal, where there are signals) calls `bitir` once, among
// the user interface's events; a second request ends the process at once. One object at a time.
class BitirmeDinleyicisi {
  public:
    explicit BitirmeDinleyicisi(std::function<void()> bitir);
    BitirmeDinleyicisi(const BitirmeDinleyicisi&) = delete;
    BitirmeDinleyicisi& operator=(const BitirmeDinleyicisi&) = delete;
    ~BitirmeDinleyicisi();

  private:
    int m_okumaUcu = -1;
    std::unique_ptr<QSocketNotifier> m_bildirici;
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
