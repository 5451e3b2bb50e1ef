#include "MalzemeDegistirFormu.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "DegisimIsi.h"
#include "DegiskenModulu.h"
#include "FiyatIsi.h"
#include "FiyatYazimi.h"
#include "FormParcalari.h"
#include "KullanimMetinleri.h"
#include "MalzemeKutusu.h"
#include "OdbcModulu.h"
#include "Saat.h"
#include "SayiKutusu.h"
#include "SayiMetni.h"
#include "TurkceSira.h"

MalzemeDeğiştirFormu::MalzemeDeğiştirFormu(const QString& eski, QWidget* sahip)
    : QDialog(sahip),
      m_eski(eski),
      m_yeni(new MalzemeKutusu(QStringLiteral("YeniMalzemeListesi"))),
      m_çarpan(new SayıKutusu(SayıKutusu::Tür::Serbest)) {
    setObjectName(QStringLiteral("MalzemeDeğiştirFormu"));
    setWindowTitle(Metin(KullanımMetni::MalzemeDeğiştirBaşlığı));
    m_çarpan->setObjectName(QStringLiteral("ÇarpanKutusu"));
    m_çarpan->setText(QStringLiteral("1"));
    m_önizle = DüğmeOluştur(QStringLiteral("ÖnizleButonu"), MetinNo::FiyatÖnizle, [this] { Önizle(); });
    Yerleştir();
}

void MalzemeDeğiştirFormu::Yerleştir() {
    auto* eski = new QLabel(Bölünebilir(Metin(KullanımMetni::EskiMalzemeMetni).arg(m_eski)));
    eski->setObjectName(QStringLiteral("EskiMalzemeEtiketi"));
    eski->setTextFormat(Qt::PlainText);
    eski->setWordWrap(true);
    auto* açıklama = new QLabel(Metin(KullanımMetni::ÇarpanAçıklaması));
    açıklama->setObjectName(QStringLiteral("ÇarpanAçıklamasıEtiketi"));
    açıklama->setTextFormat(Qt::PlainText);
    açıklama->setWordWrap(true);
    auto* iptal = DüğmeOluştur(QStringLiteral("İptalButonu"), MetinNo::Vazgeç, [this] { reject(); });
    auto* düzen = new QVBoxLayout(this);
    düzen->addWidget(eski);
    düzen->addWidget(VurgulananEtiket(1, KullanımMetni::YeniMalzemeEtiketi, m_yeni));
    düzen->addWidget(m_yeni);
    düzen->addWidget(VurgulananEtiket(2, KullanımMetni::ÇarpanEtiketi, m_çarpan));
    düzen->addWidget(m_çarpan);
    düzen->addWidget(açıklama);
    düzen->addStretch();
    düzen->addLayout(DüğmeSırası({m_önizle, nullptr, iptal}));
    m_yeni->setFocus();
    constexpr QSize boy(460, 260);
    BoyVer(*this, boy.expandedTo({boy.width(), düzen->totalHeightForWidth(boy.width())}));
}

bool MalzemeDeğiştirFormu::Yükle() {
    MalzemeKataloğu katalog;
    const İşSonucu sonuç = katalog.Oku(ODBCBağlantısı());
    if (!İşSonucunuGöster(sonuç)) return false;
    m_adlar.clear();
    QList<MalzemeKutusu::Öğe> öğeler;
    for (const KatalogMalzemesi& malzeme : katalog.Malzemeler) {
        if (Türkçe::Aynı(malzeme.Ad, m_eski)) continue;
        m_adlar.append(malzeme.Ad);
        öğeler.append({malzeme.Ad, {}});
    }
    m_yeni->MalzemeleriKoy(öğeler);
    return true;
}

std::optional<Para> MalzemeDeğiştirFormu::Çarpan() {
    if (m_çarpan->text().isEmpty()) {
        Uyar(KullanımMetni::ÇarpanBoş, *m_çarpan);
        return std::nullopt;
    }
    if (!m_çarpan->Saklanır()) return std::nullopt;
    const Para çarpan = ParaOku(m_çarpan->text()).value_or(Para());
    if (çarpan > Para()) return çarpan;
    Uyar(KullanımMetni::ÇarpanSıfır, *m_çarpan);
    return std::nullopt;
}

void MalzemeDeğiştirFormu::Önizle() {
    const std::optional<std::size_t> yeni = m_yeni->Seçilen();
    if (!yeni) {
        Uyar(MetinNo::MalzemeSeçiniz, *m_yeni);
        return;
    }
    const std::optional<Para> çarpan = Çarpan();
    if (!çarpan) return;
    const DeğişimKuralı kural{m_eski, m_adlar[static_cast<qsizetype>(*yeni)], *çarpan};
    const Değişimİşi iş{
        {İşlemTürü::Değiştir, Metin(KullanımMetni::DeğişimAçıklaması).arg(m_eski, kural.Yeni, SayıYazımı(*çarpan))},
        [kural](DeğişimPlanı& plan, const İlerleme& ilerleme) {
            return plan.Kur(ODBCBağlantısı(), kural, Bugün(), OndalıkBasamak, ilerleme);
        }};
    if (DeğişimİşiniYürüt(iş, this)) accept();
}
