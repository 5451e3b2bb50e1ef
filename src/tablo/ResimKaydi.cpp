#include "ResimKaydi.h"

#include <QImage>
#include <QSaveFile>

#include "KayitYeri.h"
#include "MesajKutusu.h"
#include "MetinTablosu.h"
#include "UrunMetinleri.h"

namespace {

// What still stands in the buffer is written first, as commit alone would not notice that it does not fit on the disk.
bool Yaz(const QString& yol, const QImage& resim) {
    QSaveFile dosya(yol);
    return dosya.open(QIODevice::WriteOnly) && resim.save(&dosya, "PNG") && dosya.flush() && dosya.commit();
}

}  // namespace

void ResmiKaydet(QWidget& form, const QString& ad, const QImage& resim) {
    const QString yol = KaydedilecekYer(form, ad,
                                        {QStringLiteral("ResimDosyasıFormu"), QStringLiteral("png"),
                                         ÜrünMetni::ResimFormuBaşlığı, ÜrünMetni::ResimSüzgeci});
    if (yol.isEmpty() || Yaz(yol, resim)) return;
    MesajKutusuOrtala();
    MesajKutusu::Göster(MesajKutusu::Simge::Kritik, MesajKutusu::Düğmeler::Tamam,
                        Metin(ÜrünMetni::ResimYazılamadı) + QLatin1Char('\n') + yol);
}
