#include "TarihDegistirFormu.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QVBoxLayout>

#include "DegiskenModulu.h"
#include "Deyimler.h"
#include "FormParcalari.h"
#include "MesajKutusu.h"
#include "MetinTablosu.h"
#include "OrtakFonksiyonlarModulu.h"
#include "TarihKutusu.h"

TarihDeğiştirFormu::TarihDeğiştirFormu(QWidget* sahip) : QDialog(sahip) {
    setObjectName(QStringLiteral("TarihDeğiştirFormu"));
    setWindowTitle(Metin(MetinNo::TarihFormuBaşlığı));
    auto* düzen = new QVBoxLayout(FormAltlığı(this));
    düzen->addWidget(TarihÇerçevesi());
    düzen->addLayout(
        DüğmeSırası({nullptr, DüğmeOluştur(QStringLiteral("TamamButonu"), MetinNo::TamamDüğmesi, [this] { accept(); }),
                     DüğmeOluştur(QStringLiteral("İptalButonu"), MetinNo::İptal, [this] { reject(); })}));
    m_tarih->setFocus();
}

QWidget* TarihDeğiştirFormu::TarihÇerçevesi() {
    m_tarih = new TarihKutusu;
    m_tarih->setObjectName(QStringLiteral("TarihKutusu"));
    m_tarih->setDate(HareketTarihi);
    QLabel* etiket = EtiketOluştur(0, MetinNo::TarihSeç, m_tarih);
    etiket->setObjectName(QStringLiteral("Etiket"));  // the only one

    QFrame* çerçeve = ÇerçeveOluştur();
    auto* düzen = new QHBoxLayout(çerçeve);
    düzen->addWidget(etiket);
    düzen->addWidget(m_tarih, 1);
    return çerçeve;
}

void TarihDeğiştirFormu::accept() {
    const std::optional<QDate> seçilen = m_tarih->YazılanTarih();
    if (!seçilen) {
        MesajKutusuOrtala();
        MesajKutusu::Göster(MesajKutusu::Simge::Bilgi, MesajKutusu::Düğmeler::Tamam, Metin(MetinNo::TarihGeçersiz));
        m_tarih->setFocus();
        return;
    }
    if (*seçilen == HareketTarihi) {
        HareketTarihiSQL.clear();
    } else {
        HareketTarihi = *seçilen;
        HareketTarihiSQL = Deyimler::Tarih(*seçilen);
    }
    QDialog::accept();
}

void TarihDeğiştirFormu::reject() {
    HareketTarihiSQL.clear();
    QDialog::reject();
}
