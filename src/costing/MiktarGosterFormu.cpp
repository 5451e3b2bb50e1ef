#include "MiktarGosterFormu.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include "FormParcalari.h"
#include "MetinTablosu.h"
#include "SayiSigdirma.h"

namespace {

struct Satır {
    const char* Ad;
    MetinNo Etiket;
    QString MiktarGösterFormu::Tutarlar::*Metin;
};

constexpr Satır Satırlar[] = {
    {"MalzemeMaliyetiKutusu", MetinNo::MalzemeMaliyetiTutarı, &MiktarGösterFormu::Tutarlar::MalzemeMaliyeti},
    {"İşçilikMaliyetiKutusu", MetinNo::İşçilikTutarı, &MiktarGösterFormu::Tutarlar::İşçilik},
    {"KarMaliyetiKutusu", MetinNo::KârTutarı, &MiktarGösterFormu::Tutarlar::Kâr},
    {"VadeMaliyetiKutusu", MetinNo::VadeTutarı, &MiktarGösterFormu::Tutarlar::Vade},
    {"DiğerVarnekKutusu", MetinNo::DiğerTutarı, &MiktarGösterFormu::Tutarlar::Diğer},
    {"ToplamMaliyetKutusu", MetinNo::ToplamTutarı, &MiktarGösterFormu::Tutarlar::Toplam},
};

}  // namespace

MiktarGösterFormu::MiktarGösterFormu(const Tutarlar& tutarlar, QWidget* sahip) : QDialog(sahip) {
    setObjectName(QStringLiteral("MiktarGösterFormu"));
    setWindowTitle(Metin(MetinNo::MiktarFormuBaşlığı));
    QGroupBox* çerçeve = ÇerçeveOluştur(MetinNo::DiğerMaliyetler);
    auto* kutular = new QFormLayout(çerçeve);
    int sıra = 0;
    for (const Satır& satır : Satırlar) {
        auto* kutu = new QLineEdit(tutarlar.*satır.Metin);
        kutu->setObjectName(QString::fromUtf8(satır.Ad));
        kutu->setReadOnly(true);
        kutu->setAlignment(Qt::AlignRight);
        TutaraYerAç(kutu, true);
        SayıyıSığdır(kutu);
        kutular->addRow(EtiketOluştur(sıra++, satır.Etiket, kutu), kutu);
    }
    KomutDüğmesi* kapat = DüğmeOluştur(QStringLiteral("KapatDüğmesi"), MetinNo::Kapat, [this] { reject(); });
    kapat->setDefault(true);  // there is nothing else to do: Enter closes from a box too
    auto* düzen = new QVBoxLayout(FormAltlığı(this, QStringLiteral("Altlik")));
    düzen->addWidget(çerçeve);
    düzen->addWidget(kapat, 0, Qt::AlignRight);
    kapat->setFocus();
}
