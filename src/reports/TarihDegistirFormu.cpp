#include "TarihDegistirFormu.h"

#include <QCalendarWidget>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QVBoxLayout>

#include "DegiskenModulu.h"
#include "KomutDugmesi.h"
#include "MesajKutusu.h"
#include "MetinTablosu.h"
#include "OrtakFonksiyonlarModulu.h"
#include "TarihKutusu.h"

namespace {

KomutDüğmesi* DüğmeOluştur(const QString& ad, MetinNo metin) {
    auto* düğme = new KomutDüğmesi(Metin(metin));
    düğme->setObjectName(ad);
    return düğme;
}

}  // namespace

TarihDeğiştirFormu::TarihDeğiştirFormu(QWidget* sahip) : QDialog(sahip) {
    setObjectName(QStringLiteral("TarihDeğiştirFormu"));
    setWindowTitle(Metin(MetinNo::TarihFormuBaşlığı));
    auto* altlık = new QWidget;
    altlık->setObjectName(QStringLiteral("Altlık"));
    altlık->setBackgroundRole(QPalette::Window);
    altlık->setAutoFillBackground(true);
    auto* düzen = new QVBoxLayout(this);
    düzen->setContentsMargins(0, 0, 0, 0);
    düzen->addWidget(altlık);

    KomutDüğmesi* tamam = DüğmeOluştur(QStringLiteral("TamamButonu"), MetinNo::TamamDüğmesi);
    KomutDüğmesi* iptal = DüğmeOluştur(QStringLiteral("İptalButonu"), MetinNo::İptal);
    connect(tamam, &QPushButton::clicked, this, [this] { accept(); });
    connect(iptal, &QPushButton::clicked, this, [this] { reject(); });
    auto* düğmeler = new QHBoxLayout;
    düğmeler->addStretch();
    düğmeler->addWidget(tamam);
    düğmeler->addWidget(iptal);
    auto* içDüzen = new QVBoxLayout(altlık);
    içDüzen->addWidget(ÇerçeveOluştur());
    içDüzen->addLayout(düğmeler);
    m_tarih->setFocus();
}

QWidget* TarihDeğiştirFormu::ÇerçeveOluştur() {
    auto* çerçeve = new QFrame;
    çerçeve->setObjectName(QStringLiteral("Çerçeve"));
    çerçeve->setFrameShape(QFrame::StyledPanel);
    auto* etiket = new QLabel(Metin(MetinNo::TarihSeç));
    etiket->setObjectName(QStringLiteral("Etiket"));

    // Days and months read Turkish whatever the system's language.
    const QLocale türkçe(QLocale::Turkish, QLocale::Turkey);
    m_tarih = new TarihKutusu;
    m_tarih->setObjectName(QStringLiteral("TarihKutusu"));
    m_tarih->setAccessibleName(Metin(MetinNo::TarihSeç));
    m_tarih->setLocale(türkçe);
    m_tarih->calendarWidget()->setLocale(türkçe);
    m_tarih->calendarWidget()->setFirstDayOfWeek(Qt::Monday);
    m_tarih->setDate(HareketTarihi);
    etiket->setBuddy(m_tarih);

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
        HareketTarihiSQL = TarihDeğişmezi(*seçilen);
    }
    QDialog::accept();
}

void TarihDeğiştirFormu::reject() {
    HareketTarihiSQL.clear();
    QDialog::reject();
}
