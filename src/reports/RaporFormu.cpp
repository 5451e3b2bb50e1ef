#include "RaporFormu.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QVBoxLayout>
#include <utility>

#include "CizelgeKaydi.h"
#include "FormParcalari.h"
#include "MetinTablosu.h"
#include "SayfaYuzeyi.h"

RaporFormu::RaporFormu(const Tanım& tanım, QWidget* sahip)
    : QDialog(sahip), m_yaz(tanım.Yaz), m_aktarılan(tanım.Aktarılan) {
    setObjectName(tanım.Ad);
    setWindowTitle(Metin(tanım.Başlık));
    m_liste = new SütunluListe(tanım.Sütunlar);
    m_liste->setObjectName(tanım.ListeAdı);
    m_liste->setAccessibleName(windowTitle());
    m_çerçeve = ÇerçeveOluştur(tanım.ÇerçeveBaşlığı);
    auto* çerçeveDüzeni = new QVBoxLayout(m_çerçeve);
    çerçeveDüzeni->addWidget(m_liste);
    DüğmeleriKur();
    auto* düzen = new QVBoxLayout(this);
    düzen->addWidget(m_çerçeve);
    düzen->addLayout(m_düğmeler);
    SekmeSırasınıKur(m_liste, *m_düğmeler);
    resize(760, 520);
    EtkinliğiAyarla();
}

void RaporFormu::DüğmeleriKur() {
    m_yazdır = DüğmeOluştur(QStringLiteral("YazdırButonu"), MetinNo::Yazdır, [this] {
        if (!Yazdır(*this, *m_yazdır, Rapor())) PencereKapandı();
    });
    m_pdfKaydet = DüğmeOluştur(QStringLiteral("PdfKaydetButonu"), MetinNo::PdfKaydet, [this] {
        PdfKaydet(*this, *m_pdfKaydet, Rapor());
        PencereKapandı();
    });
    m_önizle = DüğmeOluştur(QStringLiteral("ÖnizlemeButonu"), MetinNo::Önizleme, [this] {
        Önizle(*this, Rapor());
        PencereKapandı();
    });
    m_aktar = DüğmeOluştur(QStringLiteral("TabloyaAktarButonu"), MetinNo::ExcelKaydet, [this] {
        ÇizelgeyeKaydet(*this, RaporBaşlığı(), [this](const QString& yol) {
            return ListeyiÇizelgeyeYaz(yol, windowTitle(), *m_liste, m_aktarılan);
        });
        PencereKapandı();
    });
    KomutDüğmesi* kapat = DüğmeOluştur(QStringLiteral("KapatButonu"), MetinNo::Kapat, [this] { reject(); });
    m_düğmeler = DüğmeSırası({m_yazdır, m_pdfKaydet, m_önizle, m_aktar, nullptr, kapat});
}

void RaporFormu::BaşaDüğmeKoy(const QString& ad, MetinNo metin, std::function<void()> komut) {
    m_düğmeler->insertWidget(0, DüğmeOluştur(ad, metin, std::move(komut)));
    SekmeSırasınıKur(m_liste, *m_düğmeler);
}

void RaporFormu::showEvent(QShowEvent* olay) {
    QDialog::showEvent(olay);
    if (!focusWidget()) OdağıBaşaAl();
}

void RaporFormu::OdağıBaşaAl() {
    QWidget* baş = m_liste;
    while (!baş->isEnabled() || !(baş->focusPolicy() & Qt::TabFocus)) baş = baş->nextInFocusChain();
    baş->setFocus();
}

void RaporFormu::SatırlarıGöster(const QList<QTreeWidgetItem*>& satırlar, Okuma okuma) {
    m_liste->SatırlarıKoy(satırlar);
    m_tamam = okuma == Okuma::Tamam;
    EtkinliğiAyarla();
}

void RaporFormu::EtkinliğiAyarla() {
    const bool dolu = !m_liste->Boş();
    const bool listedeydi = focusWidget() == m_liste;
    m_çerçeve->setEnabled(dolu);
    for (KomutDüğmesi* düğme : {m_yazdır, m_pdfKaydet, m_önizle, m_aktar}) düğme->setEnabled(dolu && m_tamam);
    if (listedeydi && !dolu) OdağıBaşaAl();
}

QList<QStringList> RaporFormu::ListeMetinleri() const {
    QList<QStringList> metinler;
    metinler.reserve(m_liste->topLevelItemCount());
    for (int i = 0; i < m_liste->topLevelItemCount(); ++i) {
        const QTreeWidgetItem* satır = m_liste->topLevelItem(i);
        QStringList hücreler;
        for (int sütun = 0; sütun < m_liste->columnCount(); ++sütun) hücreler.append(satır->text(sütun));
        metinler.append(hücreler);
    }
    return metinler;
}

Yazdırılacak RaporFormu::Rapor() const {
    const QString başlık = RaporBaşlığı();
    return {başlık,
            [yaz = m_yaz, başlık, satırlar = ListeMetinleri()](SayfaYüzeyi& yüzey) { yaz(yüzey, başlık, satırlar); }};
}
