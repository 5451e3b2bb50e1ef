#include "MalzemeSecFormu.h"

#include <QLabel>
#include <QVBoxLayout>

#include "FiyatMetinleri.h"
#include "FormParcalari.h"
#include "GirisKutusu.h"
#include "MetinTablosu.h"
#include "SayiKutusu.h"
#include "SayiMetni.h"
#include "Tablo.h"
#include "TurkceSira.h"

MalzemeSeçFormu::MalzemeSeçFormu(const QString& listeAdı, const std::vector<KatalogMalzemesi>& malzemeler,
                                 std::uint32_t seçili, Para bölen, QWidget* sahip)
    : QDialog(sahip),
      m_malzemeler(malzemeler),
      m_kaynak(malzemeler),
      m_model(std::make_unique<TabloModeli>(
          m_kaynak, QList<TabloSütunu>{{MetinNo::MalzemeSütunu, 34}, {MetinNo::FiyatıSütunu, 12, true}})),
      m_süz(new GirişKutusu),
      m_tablo(new Tablo(QStringLiteral("MalzemeTablosu"), *m_model)),
      m_bölenKutusu(new SayıKutusu(SayıKutusu::Tür::Serbest)) {
    setObjectName(QStringLiteral("MalzemeSeçFormu"));
    setWindowTitle(Metin(MetinNo::MalzemeSeçBaşlığı));
    m_süz->setObjectName(QStringLiteral("MalzemeSüzKutusu"));
    connect(m_süz, &QLineEdit::textChanged, this, [this](const QString& metin) { Süz(metin); });
    m_bölenKutusu->setObjectName(QStringLiteral("BölenKutusu"));
    m_bölenKutusu->setText(SayıYazımı(bölen));
    m_tamam = DüğmeOluştur(QStringLiteral("TamamButonu"), MetinNo::MalzemeSeçTamam, [this] { Tamamla(); });
    auto* iptal = DüğmeOluştur(QStringLiteral("İptalButonu"), MetinNo::Vazgeç, [this] { reject(); });
    auto* ad = new QLabel(Metin(MetinNo::ListedekiAdEtiketi).arg(listeAdı));
    ad->setObjectName(QStringLiteral("ListedekiAdEtiketi"));
    ad->setTextFormat(Qt::PlainText);
    ad->setWordWrap(true);
    auto* düzen = new QVBoxLayout(this);
    düzen->addWidget(ad);
    düzen->addWidget(VurgulananEtiket(1, MetinNo::MalzemeSüz, m_süz));
    düzen->addWidget(m_süz);
    düzen->addWidget(VurgulananEtiket(2, MetinNo::MalzemelerEtiketi, m_tablo));
    düzen->addWidget(m_tablo, 1);
    düzen->addWidget(VurgulananEtiket(3, MetinNo::BölenEtiketi, m_bölenKutusu));
    düzen->addWidget(m_bölenKutusu);
    düzen->addLayout(DüğmeSırası({m_tamam, nullptr, iptal}));
    connect(m_tablo->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this] { m_tamam->setEnabled(m_tablo->SeçiliSatır().has_value()); });
    m_tablo->SatırıSeç([seçili](std::size_t yer) { return yer == seçili; });
    m_tamam->setEnabled(m_tablo->SeçiliSatır().has_value());
    m_süz->setFocus();
    BoyVer(*this, {460, 480});
}

MalzemeSeçFormu::~MalzemeSeçFormu() {
    delete m_tablo;  // before the model that it shows
}

void MalzemeSeçFormu::Süz(const QString& metin) {
    const QString aranan = metin.simplified();
    m_model->Süz([this, aranan](std::size_t satır) { return Türkçe::İçerir(m_malzemeler[satır].Ad, aranan); });
    m_tamam->setEnabled(m_tablo->SeçiliSatır().has_value());
}

void MalzemeSeçFormu::Tamamla() {
    const std::optional<std::size_t> satır = m_tablo->SeçiliSatır();
    if (!satır) return;
    if (m_bölenKutusu->text().isEmpty()) {
        Uyar(MetinNo::BölenBoş, *m_bölenKutusu);
        return;
    }
    if (!m_bölenKutusu->Saklanır()) return;
    m_bölen = ParaOku(m_bölenKutusu->text()).value_or(Para());
    if (m_bölen <= Para()) {
        Uyar(MetinNo::BölenSıfır, *m_bölenKutusu);
        return;
    }
    m_seçilen = static_cast<std::uint32_t>(*satır);
    accept();
}
