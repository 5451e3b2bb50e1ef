#include "MaliyetTablosuFormu.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QSplitter>
#include <QVBoxLayout>

#include "CizelgeKaydi.h"
#include "DegiskenModulu.h"
#include "FiyatIsi.h"
#include "FormParcalari.h"
#include "GirisKutusu.h"
#include "IlerlemeKutusu.h"
#include "MaliyetCiktilari.h"
#include "MetinTablosu.h"
#include "UrunMetinleri.h"
#include "OdbcModulu.h"
#include "Tablo.h"
#include "TurkceSira.h"
#include "Yazdirma.h"

namespace {

// How the form was left in this run of the program.
struct SonGörünüm {
    QString Süzgeç;
    bool YalnızDikkat = false;
    int Sütun = -1;
    Qt::SortOrder Yön = Qt::AscendingOrder;
    QString Grup;
    QString Ad;
};
SonGörünüm sonGörünüm;

}  // namespace

MaliyetTablosuFormu::MaliyetTablosuFormu(QWidget* sahip)
    : QDialog(sahip),
      m_model(m_kaynak, MaliyetSütunlarınıVer()),
      m_toplamModeli(m_toplamKaynağı, GrupToplamıSütunlarınıVer()) {
    setObjectName(QStringLiteral("MaliyetTablosuFormu"));
    setWindowTitle(Metin(ÜrünMetni::MaliyetTablosuBaşlığı));
    KontrolleriKur();
    Yerleştir();
}

MaliyetTablosuFormu::~MaliyetTablosuFormu() {
    YeriSakla();
    // The views go before the models that they show.
    delete m_tablo;
    delete m_toplamlar;
}

void MaliyetTablosuFormu::KontrolleriKur() {
    m_süz = new GirişKutusu;
    m_süz->setObjectName(QStringLiteral("SüzKutusu"));
    m_süz->setText(sonGörünüm.Süzgeç);
    connect(m_süz, &QLineEdit::textChanged, this, [this] { Süz(); });
    m_dikkat = new QCheckBox(Metin(ÜrünMetni::DikkatSeçeneği));
    m_dikkat->setObjectName(QStringLiteral("DikkatSeçeneği"));
    m_dikkat->setChecked(sonGörünüm.YalnızDikkat);
    connect(m_dikkat, &QCheckBox::toggled, this, [this] { Süz(); });
    m_sayı = new QLabel;
    m_sayı->setObjectName(QStringLiteral("ÜrünSayısıEtiketi"));
    m_tablo = new Tablo(QStringLiteral("MaliyetTablosu"), m_model);
    connect(m_tablo->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] { SeçimDeğişti(); });
    connect(m_tablo, &QAbstractItemView::doubleClicked, this, [this] { Git(); });
    m_toplamlar = new Tablo(QStringLiteral("GrupToplamlarıTablosu"), m_toplamModeli);
    m_git = DüğmeOluştur(QStringLiteral("GitButonu"), ÜrünMetni::ÜrüneGit, [this] { Git(); });
    m_yazdır = DüğmeOluştur(QStringLiteral("YazdırButonu"), MetinNo::Yazdır,
                            [this] { static_cast<void>(Yazdır(*this, *m_yazdır, Rapor())); });
    m_pdf = DüğmeOluştur(QStringLiteral("PdfKaydetButonu"), MetinNo::PdfKaydet,
                         [this] { PdfKaydet(*this, *m_pdf, Rapor()); });
}

void MaliyetTablosuFormu::Yerleştir() {
    auto* üst = new QHBoxLayout;
    üst->addWidget(VurgulananEtiket(1, ÜrünMetni::ÜrünSüz, m_süz));
    üst->addWidget(m_süz, 1);
    üst->addWidget(m_dikkat);
    üst->addWidget(m_sayı);
    auto* bölen = new QSplitter(Qt::Vertical);
    bölen->setObjectName(QStringLiteral("Bölen"));
    bölen->setChildrenCollapsible(false);
    bölen->addWidget(TabloBölümü(2, MetinNo::ÜrünlerEtiketi, m_tablo));
    bölen->addWidget(TabloBölümü(3, ÜrünMetni::GrupToplamlarıEtiketi, m_toplamlar));
    bölen->setSizes({430, 170});
    auto* önizle =
        DüğmeOluştur(QStringLiteral("ÖnizlemeButonu"), MetinNo::Önizleme, [this] { Önizle(*this, Rapor()); });
    auto* aktar = DüğmeOluştur(QStringLiteral("TabloyaAktarButonu"), ÜrünMetni::TabloyaAktar, [this] { Çizelgeye(); });
    auto* kapat = DüğmeOluştur(QStringLiteral("KapatButonu"), MetinNo::Kapat, [this] { reject(); });
    auto* düzen = new QVBoxLayout(this);
    düzen->addLayout(üst);
    düzen->addWidget(bölen, 1);
    düzen->addLayout(DüğmeSırası({m_git, m_yazdır, m_pdf, önizle, aktar, nullptr, kapat}));
    m_tablo->setFocus();
    BoyVer(*this, {1200, 700});
}

bool MaliyetTablosuFormu::Yükle() {
    std::vector<MaliyetTablosuSatırı> satırlar;
    İlerlemeKutusu kutu(ÜrünMetni::MaliyetlerOkunuyor, 0, parentWidget());
    const İşSonucu sonuç = MaliyetTablosunuOku(ODBCBağlantısı(), OndalıkBasamak, satırlar,
                                               [&kutu](std::int64_t okunan) { return kutu.Bildir(okunan); });
    if (!İşSonucunuGöster(sonuç)) return false;
    m_kaynak.Satırlar = std::move(satırlar);
    m_gidilecek = nullptr;
    if (sonGörünüm.Sütun >= 0) m_tablo->sortByColumn(sonGörünüm.Sütun, sonGörünüm.Yön);
    Süz();
    YereDön();
    return true;
}

void MaliyetTablosuFormu::Süz() {
    const QString aranan = m_süz->text().simplified();
    const bool yalnızDikkat = m_dikkat->isChecked();
    m_model.Süz([this, aranan, yalnızDikkat](std::size_t yer) {
        const MaliyetTablosuSatırı& satır = m_kaynak.Satırlar[yer];
        return (!yalnızDikkat || satır.Dikkat != 0) &&
               (Türkçe::İçerir(satır.Ad, aranan) || Türkçe::İçerir(satır.Grup, aranan));
    });
    std::vector<std::size_t> yerler;
    for (int sıra = 0; sıra < m_model.rowCount(); ++sıra) yerler.push_back(m_model.KaynakSatırı(sıra));
    m_toplamKaynağı.Hesapla(m_kaynak, yerler);
    m_toplamModeli.Yenile();
    m_sayı->setText(Metin(ÜrünMetni::ÜrünSayısıMetni).arg(m_model.rowCount()).arg(m_kaynak.Satırlar.size()));
    SeçimDeğişti();
}

void MaliyetTablosuFormu::SeçimDeğişti() {
    m_git->setEnabled(m_tablo->SeçiliSatır().has_value());
}

void MaliyetTablosuFormu::Git() {
    const std::optional<std::size_t> satır = m_tablo->SeçiliSatır();
    if (!satır) return;
    m_gidilecek = &m_kaynak.Satırlar[*satır];
    accept();
}

void MaliyetTablosuFormu::YeriSakla() {
    sonGörünüm.Süzgeç = m_süz->text();
    sonGörünüm.YalnızDikkat = m_dikkat->isChecked();
    sonGörünüm.Sütun = m_tablo->horizontalHeader()->sortIndicatorSection();
    sonGörünüm.Yön = m_tablo->horizontalHeader()->sortIndicatorOrder();
    const std::optional<std::size_t> satır = m_tablo->SeçiliSatır();
    sonGörünüm.Grup = satır ? m_kaynak.Satırlar[*satır].Grup : QString();
    sonGörünüm.Ad = satır ? m_kaynak.Satırlar[*satır].Ad : QString();
}

void MaliyetTablosuFormu::YereDön() {
    m_tablo->SatırıSeç([this](std::size_t yer) {
        const MaliyetTablosuSatırı& satır = m_kaynak.Satırlar[yer];
        return satır.Ad == sonGörünüm.Ad && satır.Grup == sonGörünüm.Grup;
    });
}

Yazdırılacak MaliyetTablosuFormu::Rapor() const {
    return {windowTitle(), [this](SayfaYüzeyi& yüzey) { MaliyetTablosunuYaz(yüzey, windowTitle(), m_kaynak, m_model); },
            true};
}

void MaliyetTablosuFormu::Çizelgeye() {
    ÇizelgeyeKaydet(*this, windowTitle(), [this](const QString& yol) {
        return MaliyetTablosunuÇizelgeyeYaz(yol, windowTitle(), m_kaynak, m_model);
    });
}
