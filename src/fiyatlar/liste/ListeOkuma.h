#pragma once

#include <QString>
#include <functional>
#include <optional>
#include <vector>

#include "CizelgeOkuyucu.h"
#include "FiyatListesi.h"
#include "SutunTahmini.h"

class QWidget;
enum class MetinNo : int;

// Reading a supplier's file, in a thread of its own. The file is closed before anything is shown.

// What is chosen of a list, or guessed.
struct ListeSeçimi {
    qsizetype Sayfa = -1;  // from 0; -1: to be guessed
    SütunTahmini Sütunlar;
    char Ayraç = 0;  // of a text file; 0: to be guessed
};

// A file as its first rows show it.
struct TanınanListe {
    QList<SayfaBilgisi> Sayfalar;
    ÇizelgeTürü Tür = ÇizelgeTürü::Csv;
    std::vector<ÇizelgeSatırı> İlkler;
    ListeSeçimi Seçim;
};

// `tercih`: the supplier's last choice, by which sheet, columns and captions are found again; what is not found is
// guessed. With `seçim`'s sheet and separator given, only the columns are guessed.
OkumaSonucu ListeyiTanı(const QString& yol, const ListeSeçimi& seçim,
                        const std::optional<Deyimler::Tedarikçi::Tedarikçi>& tercih, const OkumaGözetimi& gözetim,
                        TanınanListe& liste);

// The rows below the captions that have a name or a price; those with a name alone are counted as `ara` captions.
OkumaSonucu ListeSatırlarınıOku(const QString& yol, const ListeSeçimi& seçim, const OkumaGözetimi& gözetim,
                                std::vector<ListeSatırı>& satırlar, qint64& ara);

// Runs `iş` in a thread of its own while the user sees how far it is; "İptal" gives Durduruldu.
OkumaSonucu ArkadaOku(MetinNo metin, QWidget* sahip, const std::function<OkumaSonucu(const OkumaGözetimi&)>& iş);
