#include "MiktarAlani.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include "DegiskenModulu.h"
#include "FormParcalari.h"
#include "MaliyetHesabi.h"
#include "MesajKutusu.h"
#include "MetinTablosu.h"
#include "SayiKutusu.h"
#include "SayiMetni.h"

namespace {

// A value that could not be computed leaves the box as it is.
void Göster(QLineEdit& kutu, std::optional<double> değer) {
    if (!değer) return;
    if (const std::optional<QString> metin = SayıBiçimle(*değer, OndalıkBasamak)) kutu.setText(*metin);
}

}  // namespace

MiktarAlanı::MiktarAlanı(Bağlar bağlar, QWidget* sahip) : QWidget(sahip), m_bağlar(std::move(bağlar)) {
    Yerleştir();
    connect(m_seçenek, &QCheckBox::clicked, this, [this] { SeçeneğiUygula(); });
    connect(m_birimMaliyet, &QLineEdit::textChanged, this, [this] {
        // A waste figure always belongs to the unit cost on screen.
        m_fireOranı->clear();
        m_fireliMiktar->clear();
        m_fireliBirimMaliyet->clear();
    });
    m_çerçeve->setEnabled(false);
}

void MiktarAlanı::Yerleştir() {
    m_seçenek = new QCheckBox(Metin(MetinNo::MiktarGösterSeçeneği));
    m_seçenek->setObjectName(QStringLiteral("MalzemeMiktarıveBirimVarnekGösterSeçeneği"));
    m_seçenek->setAccessibleName(Metin(MetinNo::MiktarGösterSeçeneği).remove(QLatin1Char('&')));
    m_miktar = GösterimKutusu(QStringLiteral("ToplamMalzemeMiktarıKutusu"));
    m_birimMaliyet = GösterimKutusu(QStringLiteral("ÜrünBirimMaliyetiKutusu"));
    m_fireOranı = new SayıKutusu(SayıKutusu::Tür::Yüzde);
    m_fireOranı->setObjectName(QStringLiteral("FireOranıKutusu"));
    m_fireOranı->Düzenlenince([this] { FireyiHesapla(); });
    m_fireliMiktar = GösterimKutusu(QStringLiteral("FireliMalzemeMiktarıKutusu"));
    m_fireliBirimMaliyet = GösterimKutusu(QStringLiteral("FireliBirimMaliyetKutusu"));

    m_çerçeve = AltlıkOluştur(SıralıAd(QStringLiteral("Altlık"), 4));
    auto* kutular = new QGridLayout(m_çerçeve);
    kutular->setContentsMargins(0, 0, 0, 0);
    int satır = 0;
    const auto ekle = [&](QLabel* etiket, QLineEdit* kutu) {
        kutular->addWidget(etiket, satır, 0);
        kutular->addWidget(kutu, satır++, 1);
    };
    ekle(EtiketOluştur(8, MetinNo::ToplamMalzeme, m_miktar), m_miktar);
    ekle(EtiketOluştur(9, MetinNo::BirimVarnek, m_birimMaliyet), m_birimMaliyet);
    ekle(VurgulananEtiket(12, MetinNo::FireOranı, m_fireOranı), m_fireOranı);
    ekle(EtiketOluştur(13, MetinNo::FireliToplamMalzeme, m_fireliMiktar), m_fireliMiktar);
    ekle(EtiketOluştur(14, MetinNo::FireliBirimVarnekEtiketi, m_fireliBirimMaliyet), m_fireliBirimMaliyet);

    auto* düzen = new QVBoxLayout(this);
    düzen->setContentsMargins(0, 0, 0, 0);
    düzen->addWidget(m_seçenek);
    düzen->addWidget(m_çerçeve);
    düzen->addStretch();
}

void MiktarAlanı::MiktarıAyarla(double toplamMiktar, bool birimlerFarklı) {
    m_toplamMiktar = toplamMiktar;
    m_birimlerFarklı = birimlerFarklı;
}

void MiktarAlanı::SeçeneğeİzinVer(bool izin) {
    m_seçenek->setEnabled(izin);
}

bool MiktarAlanı::Seçili() const {
    return m_seçenek->isChecked();
}

void MiktarAlanı::SeçimiKaldır() {
    m_seçenek->setChecked(false);
    SeçeneğiUygula();
}

void MiktarAlanı::SeçeneğiUygula() {
    if (Seçili() && m_birimlerFarklı) {
        MesajKutusuOrtala();
        MesajKutusu::Göster(MesajKutusu::Simge::Kritik, MesajKutusu::Düğmeler::Tamam, Metin(MetinNo::BirimlerFarklı));
        m_seçenek->setChecked(false);
    }
    m_çerçeve->setEnabled(Seçili());
    if (Seçili() && m_toplamMiktar > 0) {
        MiktarVeMaliyetiGöster();
    } else {
        Boşalt();
    }
    m_bağlar.AğacaDön();
}

void MiktarAlanı::ToplamDeğişti() {
    if (Seçili() && m_toplamMiktar > 0) MiktarVeMaliyetiGöster();
}

void MiktarAlanı::Boşalt() {
    for (QLineEdit* kutu : {m_miktar, m_birimMaliyet, m_fireliMiktar, m_fireliBirimMaliyet}) kutu->clear();
    m_fireOranı->clear();
}

void MiktarAlanı::MiktarVeMaliyetiGöster() {
    Göster(*m_miktar, m_toplamMiktar);
    Göster(*m_birimMaliyet, BirimMaliyet(m_bağlar.ToplamMaliyet(), m_toplamMiktar));
}

void MiktarAlanı::FireyiHesapla() {
    if (!SayıMı(m_fireOranı->text(), NoktaKuralı::Serbest)) {
        m_fireliMiktar->clear();
        m_fireliBirimMaliyet->clear();
        return;
    }
    Göster(*m_fireliMiktar, FireliMiktar(m_miktar->text(), m_fireOranı->text()));
    Göster(*m_fireliBirimMaliyet, FireliBirimMaliyet(m_bağlar.MalzemeMaliyeti(), m_fireliMiktar->text()));
}

MiktarAlanı::Metinler MiktarAlanı::KutuMetinleri() const {
    return {m_miktar->text(), m_birimMaliyet->text(), m_fireOranı->text(), m_fireliMiktar->text(),
            m_fireliBirimMaliyet->text()};
}
