#include "SistemDenetimi.h"

namespace {

constexpr int EN_DAR_EKRAN = 12000;  // twips
constexpr int PİKSELDEKİ_TWIP = 15;
constexpr unsigned SINIR_SÜRÜM = 4;  // the one whose service pack counts

}  // namespace

bool EkranYeterli(int genişlik) {
    return genişlik * PİKSELDEKİ_TWIP >= EN_DAR_EKRAN;
}

bool SürümYeterli(const SistemSürümü& sürüm) {
    if (sürüm.PlatformKimliği != NT_PLATFORMU || sürüm.Ana > SINIR_SÜRÜM) return true;
    if (sürüm.Ana < SINIR_SÜRÜM) return false;
    // The text comes out of a buffer of fixed length: it ends at the first NUL.
    const QString paket = sürüm.ServisPaketi.section(QChar(u'\0'), 0, 0);
    return paket != QLatin1String("Service Pack 1") && paket != QLatin1String("Service Pack 2");
}
