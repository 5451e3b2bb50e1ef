#include "FiyatListesiAlFormu.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QSpinBox>
#include <QSplitter>
#include <QTableView>
#include <QVBoxLayout>

#include "CizelgeKaydi.h"
#include "CizelgeMetinleri.h"
#include "FormParcalari.h"
#include "GirisKutusu.h"
#include "MetinTablosu.h"
#include "SayiKutusu.h"
#include "Tablo.h"
#include "ListeKutulari.h"

namespace {

constexpr int EN_BÜYÜK_BAŞLIK_SATIRI = 9999;

QComboBox* ListeKutusu(const char* ad) {
    auto* kutu = new QComboBox;
    kutu->setObjectName(QString::fromUtf8(ad));
    kutu->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    kutu->setMinimumContentsLength(14);
    return kutu;
}

}  // namespace

FiyatListesiAlFormu::FiyatListesiAlFormu(QWidget* sahip)
    : QDialog(sahip), m_kaynak(m_liste), m_model(m_kaynak, EşleşmeninSütunları()) {
    setObjectName(QStringLiteral("FiyatListesiAlFormu"));
    setWindowTitle(Metin(MetinNo::FiyatListesiAlBaşlığı));
    DosyaKontrolleriniKur();
    EşleşmeKontrolleriniKur();
    Yerleştir();
    Boşalt();
}

FiyatListesiAlFormu::~FiyatListesiAlFormu() {
    // The views go before the models that they show.
    delete m_tablo;
    delete m_ilkTablo;
}

void FiyatListesiAlFormu::DosyaKontrolleriniKur() {
    m_dosya = new YolKutusu([this] { DosyaKutusuBırakıldı(); });
    m_dosya->setObjectName(QStringLiteral("DosyaKutusu"));
    m_gözat = DüğmeOluştur(QStringLiteral("GözatButonu"), MetinNo::Gözat, [this] { Gözat(); });
    m_tedarikçi = new TedarikçiKutusu([this] { TedarikçiDeğişti(); });
    m_tedarikçi->setObjectName(QStringLiteral("TedarikçiListesi"));
    m_sayfa = ListeKutusu("SayfaListesi");
    connect(m_sayfa, &QComboBox::activated, this, [this](int sayfa) {
        if (sayfa != m_seçim.Sayfa) Tanı({sayfa, {}, m_seçim.Ayraç});
    });
    m_ayraç = ListeKutusu("AyraçListesi");
    for (const auto& [metin, harf] :
         {std::pair(MetinNo::AyraçNoktalıVirgül, ';'), {MetinNo::AyraçVirgül, ','}, {MetinNo::AyraçSekme, '\t'}})
        m_ayraç->addItem(Metin(metin), QChar::fromLatin1(harf));
    connect(m_ayraç, &QComboBox::activated, this, [this] {
        const char ayraç = m_ayraç->currentData().toChar().toLatin1();
        if (ayraç != m_seçim.Ayraç) Tanı({m_seçim.Sayfa, {}, ayraç});
    });
    m_başlık = new QSpinBox;
    m_başlık->setObjectName(QStringLiteral("BaşlıkSatırıKutusu"));
    m_başlık->setMaximum(EN_BÜYÜK_BAŞLIK_SATIRI);
    m_başlık->setSpecialValueText(Metin(MetinNo::BaşlıkSatırıYok));
    m_başlık->setKeyboardTracking(false);
    m_adSütunu = ListeKutusu("AdSütunuListesi");
    m_fiyatSütunu = ListeKutusu("FiyatSütunuListesi");
    connect(m_başlık, &QSpinBox::valueChanged, this, [this] { SütunlarDeğişti(); });
    connect(m_adSütunu, &QComboBox::activated, this, [this] { SütunlarDeğişti(); });
    connect(m_fiyatSütunu, &QComboBox::activated, this, [this] { SütunlarDeğişti(); });
    m_ondalık = ListeKutusu("OndalıkListesi");
    for (const MetinNo metin : {MetinNo::OndalıkKendi, MetinNo::OndalıkVirgül, MetinNo::OndalıkNokta})
        m_ondalık->addItem(Metin(metin));
    connect(m_ondalık, &QComboBox::activated, this, [this] { KuralDeğişti(); });
    m_ilkTablo = new QTableView;
    m_ilkTablo->setObjectName(QStringLiteral("İlkSatırlarTablosu"));
    m_ilkTablo->setModel(&m_ilkler);
    m_ilkTablo->setSelectionMode(QAbstractItemView::NoSelection);
    m_ilkTablo->setTabKeyNavigation(false);
    m_ilkTablo->setWordWrap(false);
    m_ilkTablo->verticalHeader()->setDefaultSectionSize(m_ilkTablo->fontMetrics().height() + 6);
}

void FiyatListesiAlFormu::EşleşmeKontrolleriniKur() {
    m_iskonto = new SayıKutusu(SayıKutusu::Tür::Serbest);
    m_iskonto->setObjectName(QStringLiteral("İskontoKutusu"));
    m_iskonto->EksiOlsun(true);
    connect(m_iskonto, &QLineEdit::editingFinished, this, [this] { KuralDeğişti(); });
    connect(m_yuvarlama.Adımlar, &QComboBox::currentIndexChanged, this, [this] { KuralDeğişti(); });
    connect(m_yuvarlama.Yönler, &QComboBox::currentIndexChanged, this, [this] { KuralDeğişti(); });
    m_tablo = new Tablo(QStringLiteral("EşleşmeTablosu"), m_model);
    m_model.İşaretlenince([this] {
        m_model.HücrelerDeğişti();  // a tick may take others away
        SayıyıYaz();
    });
    connect(m_tablo->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] { SeçimDeğişti(); });
    connect(&m_model, &QAbstractItemModel::modelReset, this, [this] { SeçimDeğişti(); });
    m_sorunlular = new QCheckBox(Metin(MetinNo::YalnızSorunlular));
    m_sorunlular->setObjectName(QStringLiteral("YalnızSorunlularSeçeneği"));
    connect(m_sorunlular, &QCheckBox::toggled, this, [this](bool seçili) {
        m_model.Süz(seçili
                        ? [this](std::size_t satır) { return m_liste.Satırlar()[satır].Durum != ListeDurumu::Eşleşti; }
                        : std::function<bool(std::size_t)>());
        SayıyıYaz();
    });
    m_sayı = new QLabel;
    m_sayı->setObjectName(QStringLiteral("ListeSayılarıEtiketi"));
    m_sayı->setWordWrap(true);
    m_görünenler = DüğmeOluştur(QStringLiteral("TümünüSeçButonu"), MetinNo::GörünenleriİşaretleDüğmesi,
                                [this] { GörünenleriSeç(); });
    m_eşleştir = DüğmeOluştur(QStringLiteral("EşleştirButonu"), MetinNo::Eşleştir, [this] { Eşleştir(); });
    m_çöz = DüğmeOluştur(QStringLiteral("EşleşmeyiÇözButonu"), MetinNo::EşleşmeyiKaldır, [this] { EşleşmeyiÇöz(); });
    m_önizle = DüğmeOluştur(QStringLiteral("ÖnizleButonu"), MetinNo::FiyatÖnizle, [this] { Önizle(); });
}

QWidget* FiyatListesiAlFormu::DosyaBölümü() {
    auto* bölüm = new QWidget;
    auto* dosya = new QHBoxLayout;
    dosya->addWidget(m_dosya, 1);
    dosya->addWidget(m_gözat);
    auto* seçimler = new QGridLayout;
    int sütun = 0;
    int sıra = 1;
    const auto ekle = [&](MetinNo metin, QWidget* kutu, int pay) {
        seçimler->addWidget(VurgulananEtiket(++sıra, metin, kutu), 0, sütun);
        seçimler->addWidget(kutu, 1, sütun);
        seçimler->setColumnStretch(sütun++, pay);
    };
    ekle(MetinNo::SayfaEtiketi, m_sayfa, 2);
    ekle(MetinNo::AyraçEtiketi, m_ayraç, 1);
    ekle(MetinNo::BaşlıkSatırıEtiketi, m_başlık, 0);
    ekle(MetinNo::AdSütunuEtiketi, m_adSütunu, 2);
    ekle(MetinNo::FiyatSütunuEtiketi, m_fiyatSütunu, 2);
    ekle(MetinNo::OndalıkEtiketi, m_ondalık, 1);
    auto* üst = new QGridLayout;
    üst->addWidget(VurgulananEtiket(1, MetinNo::DosyaEtiketi, m_dosya), 0, 0);
    üst->addLayout(dosya, 1, 0);
    üst->addWidget(VurgulananEtiket(++sıra, MetinNo::TedarikçiEtiketi, m_tedarikçi), 0, 1);
    üst->addWidget(m_tedarikçi, 1, 1);
    üst->setColumnStretch(0, 3);
    üst->setColumnStretch(1, 2);
    auto* düzen = new QVBoxLayout(bölüm);
    düzen->setContentsMargins(0, 0, 0, 0);
    düzen->addLayout(üst);
    düzen->addLayout(seçimler);
    düzen->addWidget(VurgulananEtiket(++sıra, MetinNo::İlkSatırlarEtiketi, m_ilkTablo));
    düzen->addWidget(m_ilkTablo, 1);
    return bölüm;
}

QWidget* FiyatListesiAlFormu::EşleşmeBölümü() {
    auto* bölüm = new QWidget;
    auto* kural = new QHBoxLayout;
    int sıra = 10;
    for (const auto& [metin, kutu] : {std::pair<MetinNo, QWidget*>(MetinNo::İskontoEtiketi, m_iskonto),
                                      {MetinNo::YuvarlamaEtiketi, m_yuvarlama.Adımlar},
                                      {MetinNo::YuvarlamaYönüEtiketi, m_yuvarlama.Yönler}}) {
        kural->addWidget(VurgulananEtiket(++sıra, metin, kutu));
        kural->addWidget(kutu);
    }
    m_iskonto->setMaximumWidth(90);
    kural->addStretch();
    auto* altı = new QHBoxLayout;
    altı->addWidget(m_sorunlular);
    altı->addWidget(m_görünenler);
    altı->addWidget(m_eşleştir);
    altı->addWidget(m_çöz);
    altı->addStretch();
    auto* düzen = new QVBoxLayout(bölüm);
    düzen->setContentsMargins(0, 0, 0, 0);
    düzen->addLayout(kural);
    düzen->addWidget(VurgulananEtiket(++sıra, MetinNo::EşleşmeEtiketi, m_tablo));
    düzen->addWidget(m_tablo, 1);
    düzen->addWidget(m_sayı);
    düzen->addLayout(altı);
    return bölüm;
}

void FiyatListesiAlFormu::Yerleştir() {
    auto* bölen = new QSplitter(Qt::Vertical);
    bölen->setObjectName(QStringLiteral("Bölen"));
    bölen->setChildrenCollapsible(false);
    bölen->addWidget(DosyaBölümü());
    bölen->addWidget(EşleşmeBölümü());
    bölen->setSizes({250, 400});
    auto* kapat = DüğmeOluştur(QStringLiteral("KapatButonu"), MetinNo::Kapat, [this] { reject(); });
    auto* düzen = new QVBoxLayout(this);
    düzen->addWidget(bölen, 1);
    auto* aktar = TabloyaAktarDüğmesi(ÇizelgeMetni::TabloyaAktarO, m_model);
    düzen->addLayout(DüğmeSırası({m_önizle, aktar, nullptr, kapat}));
    m_gözat->setFocus();
    BoyVer(*this, {1000, 700});
}
