#pragma once

#include <vector>

#include "KopyaKlasoru.h"
#include "TabloModeli.h"
#include "VeriYollari.h"
#include "YedekOkuma.h"

enum YedekSütunları { YGün, YTür, YBoy, YÜrün, YMalzeme, YSatır, YDenetim, YYer };

QList<TabloSütunu> YedekSütunlarınıVer();

// A backup of the list.
struct YedekSatırı {
    enum class Cins { Kopya, SonYedek, Dosya };
    QString Yol;
    QString Yer;  // the data file that it is of; "": this one
    QDateTime Değişme;
    qint64 Boy = 0;
    Cins Ne = Cins::Kopya;
    KopyaTürü Tür = KopyaTürü::Günlük;
    enum class Denetim { Sırada, Sürüyor, Bitti } Aşama = Denetim::Sırada;
    YedekBilgisi Bilgi;  // once its check has ended
};

QString TürMetni(const YedekSatırı& satır);
QString GünMetni(const YedekSatırı& satır);
QString DenetimMetni(const YedekSatırı& satır);

class YedekSatırları : public TabloKaynağı {
  public:
    std::vector<YedekSatırı> Satırlar;

    std::size_t SatırSayısı() const override { return Satırlar.size(); }
    QString Hücre(std::size_t satır, int sütun) const override;
    int Karşılaştır(std::size_t a, std::size_t b, int sütun) const override;
    QString Açıklama(std::size_t satır) const override;
};

// Every backup there is: this data file's copies, the newest first, the described backup, then the copies of other
// places under their path. Nothing is opened. Without a
// mark all copies of this path are this data file's.
std::vector<YedekSatırı> YedekleriBul(const VeriYolları& yollar, const QString& damga);

// The row of a file that the user named.
YedekSatırı DosyaSatırı(const QString& yol);
