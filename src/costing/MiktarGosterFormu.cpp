#include "MiktarGosterFormu.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "MetinTablosu.h"
#include "SayiSigdirma.h"

namespace {

struct Satır {
    const char* Ad;
    MetinNo Etiket;
    QString MiktarGösterFormu::Tutarlar::*Metin;
};

const QString EnGenişTutar = QStringLiteral("-922.337.203.685.477,580800");  // money with the most decimals
constexpr int KutuPayı = 16;                                                 // pixels of a box beside its text

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
    auto* altlık = new QWidget;
    altlık->setObjectName(QStringLiteral("Altlik"));
    auto* çerçeve = new QGroupBox(Metin(MetinNo::DiğerMaliyetler));
    çerçeve->setObjectName(QStringLiteral("Çerçeve"));
    auto* kutular = new QFormLayout(çerçeve);
    int sıra = 0;
    for (const Satır& satır : Satırlar) {
        auto* kutu = new QLineEdit(tutarlar.*satır.Metin);
        kutu->setObjectName(QString::fromUtf8(satır.Ad));
        kutu->setReadOnly(true);
        kutu->setAlignment(Qt::AlignRight);
        kutu->setMinimumWidth(kutu->fontMetrics().horizontalAdvance(EnGenişTutar) + KutuPayı);
        SayıyıSığdır(kutu);
        auto* etiket = new QLabel(Metin(satır.Etiket));
        etiket->setObjectName(QStringLiteral("Etiket(%1)").arg(sıra++));
        etiket->setBuddy(kutu);
        kutu->setAccessibleName(etiket->text());
        kutular->addRow(etiket, kutu);
    }
    auto* kapat = new QPushButton(Metin(MetinNo::Kapat));
    kapat->setObjectName(QStringLiteral("KapatDüğmesi"));
    connect(kapat, &QPushButton::clicked, this, &QDialog::reject);
    auto* düzen = new QVBoxLayout(altlık);
    düzen->addWidget(çerçeve);
    düzen->addWidget(kapat, 0, Qt::AlignRight);
    auto* form = new QVBoxLayout(this);
    form->setContentsMargins(0, 0, 0, 0);
    form->addWidget(altlık);
    kapat->setFocus();
}
