#include "GundeBir.h"

#include "MesajKutusu.h"
#include "OrtakFonksiyonlarModulu.h"
#include "Saat.h"

void GündeBirUyar(const QString& anahtar, const QString& metin) {
    const QString bölüm = QStringLiteral("Ayarlar");
    const QString bugün = AyMetni(Bugün());
    if (AyarOku(bölüm, anahtar, {}) == bugün) return;
    AyarYaz(bölüm, anahtar, bugün);
    MesajKutusuOrtala();
    MesajKutusu::Göster(MesajKutusu::Simge::Ünlem, MesajKutusu::Düğmeler::Tamam, metin);
}
