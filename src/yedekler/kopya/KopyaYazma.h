#pragma once

#include <vector>

#include "KopyaKlasoru.h"

// What is to be copied, and where.
struct Kopyaİşi {
    QString Kök;        // the backups' folder, ends in the path separator
    QString Dosya;      // the data file's real path
    QDateTime Değişme;  // the last change in what is copied
    KopyaTürü Tür = KopyaTürü::Günlük;
    QString Hazır;  // a file that was compacted and checked just now and has all of it; "": the data file is compacted
    QString Dur;    // the work ends when a file of this name is there; "": it cannot be stopped
};

struct KopyaSonucu {
    enum class Tür {
        Yazıldı,
        Aynı,  // nothing has changed since the newest copy of this kind, which `Yol` names
        Boş,   // neither products nor materials: nothing to keep
        YerYok,
        Durduruldu,
        Olmadı
    };
    Tür Ne = Tür::Olmadı;
    QString Yol;    // of the copy
    QString Neden;  // why it could not be
};

// Of the warning that there is no room (GündeBirUyar), which start and closing share.
inline const QString YER_UYARISI_ANAHTARI = QStringLiteral("YedekYeriUyarisi");

// Writes a dated copy and checks it before it gets its name; then takes away what thinning no longer needs, each only
// if the copy that stays in its place is sound at this moment. After a daily copy of the data file itself, at the end
// of a run, nobody waits for that: the next start's does it. Whatever fails, what was there stays, and no half file.
// A copy is written only if the data file's size stays free on the disk afterwards. One that is taken before a restore
// (Önce) thins nothing yet: that is ÖncekiKopyayıBağla's.
KopyaSonucu KopyaYaz(const Kopyaİşi& iş);

// What was kept before a restore ("": nothing) stays after it, and thinning follows; where nothing was replaced it goes
// again.
void ÖncekiKopyayıBağla(const QString& kopya, bool geriYüklendi);

// Takes away what killed runs left of copies in the making, in the folders of all data files; what another program
// writes just now stays.
void YarımKopyalarıSil(const QString& kök);

// What thinning leaves after a sound copy with this number was written: of the daily ones after a daily one, else of
// the others.
void FazlalıklarıSil(const QString& klasör, int yeni);

// The data file's bytes as they stand, and its journal's. "": neither could be kept.
QString HamınıSakla(const QString& kök, const QString& dosya);

// Whether both files hold the same but for the header's counters.
bool İçerikleriAynı(const QString& a, const QString& b);
