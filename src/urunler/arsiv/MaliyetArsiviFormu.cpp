#include "MaliyetArsiviFormu.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QSplitter>
#include <QTabBar>
#include <QTabWidget>
#include <QVBoxLayout>
#include <algorithm>

#include "ArsivFarki.h"
#include "ArsivFoyuFormu.h"
#include "ArsivMetinleri.h"
#include "ArsivMetni.h"
#include "CizelgeKaydi.h"
#include "CizelgeMetinleri.h"
#include "DegiskenModulu.h"
#include "FarkBolumu.h"
#include "FiyatDeyimleri.h"
#include "FormParcalari.h"
#include "GelisimBolumu.h"
#include "GirisKutusu.h"
#include "IlerlemeKutusu.h"
#include "MesajKutusu.h"
#include "OdbcModulu.h"
#include "Saat.h"
#include "Tablo.h"
#include "TurkceSira.h"

namespace {

void Bildir(MesajKutusu::Simge simge, const QString& metin) {
    MesajKutusuOrtala();
    MesajKutusu::Göster(simge, MesajKutusu::Düğmeler::Tamam, metin);
}

QComboBox* ListeKutusu(const QString& ad) {
    auto* liste = new QComboBox;
    liste->setObjectName(ad);
    liste->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    liste->setMinimumContentsLength(12);
    Enterİleİlerlesin(liste);
    return liste;
}

}  // namespace

MaliyetArşiviFormu::MaliyetArşiviFormu(const Kapsam& seçili, QWidget* sahip)
    : QDialog(sahip),
      m_ilk(seçili),
      m_arşivModeli(m_arşivler, ArşivSütunlarınıVer()),
      m_föyModeli(m_föyler, FöySütunlarınıVer()) {
    setObjectName(QStringLiteral("MaliyetArşiviFormu"));
    setWindowTitle(Metin(ArşivMetni::MaliyetArşiviBaşlığı));
    KontrolleriKur();
    Yerleştir();
}

MaliyetArşiviFormu::~MaliyetArşiviFormu() {
    // The views go before the models that they show.
    delete m_arşivTablosu;
    delete m_föyTablosu;
}

void MaliyetArşiviFormu::KontrolleriKur() {
    m_grup = ListeKutusu(QStringLiteral("GrupListesi"));
    m_ürün = ListeKutusu(QStringLiteral("ÜrünListesi"));
    connect(m_grup, &QComboBox::currentIndexChanged, this, [this] { ÜrünleriDoldur(); });
    m_not = new GirişKutusu;
    m_not->setObjectName(QStringLiteral("NotKutusu"));
    m_bul = new GirişKutusu;
    m_bul->setObjectName(QStringLiteral("FöyBulKutusu"));
    connect(m_bul, &QLineEdit::textChanged, this, [this](const QString& metin) {
        const QString aranan = metin.simplified();
        m_föyModeli.Süz([this, aranan](std::size_t yer) {
            const FöyBaşlığı& föy = m_föyler.Satırlar[yer];
            return Türkçe::İçerir(föy.Ürün, aranan) || Türkçe::İçerir(föy.Grup, aranan);
        });
        FöySeçildi();
    });
    m_uyarı = new QLabel;
    m_uyarı->setObjectName(QStringLiteral("FöyUyarısıEtiketi"));
    m_uyarı->setTextFormat(Qt::PlainText);
    m_uyarı->setWordWrap(true);
    m_uyarı->hide();
    m_arşivTablosu = new Tablo(QStringLiteral("ArşivTablosu"), m_arşivModeli);
    m_föyTablosu = new Tablo(QStringLiteral("FöyTablosu"), m_föyModeli);
    connect(m_arşivTablosu->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] { ArşivSeçildi(); });
    connect(m_föyTablosu->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] { FöySeçildi(); });
    connect(m_föyTablosu, &QAbstractItemView::doubleClicked, this, [this] { FöyüGöster(); });
    m_arşivle = DüğmeOluştur(QStringLiteral("ArşivleButonu"), ArşivMetni::Arşivle, [this] { Arşivle(); });
    m_göster = DüğmeOluştur(QStringLiteral("FöyüGösterButonu"), ArşivMetni::FöyüGöster, [this] { FöyüGöster(); });
    m_sil = DüğmeOluştur(QStringLiteral("ArşivSilButonu"), ArşivMetni::ArşivSil, [this] { Sil(); });
    m_fark = new FarkBölümü(
        {[this] { return SeçiliArşiv(); }, [this](const Kapsam& ürün) { m_gelişim->ÜrünüAyarla(ürün); }});
    m_fark->setObjectName(QStringLiteral("FarkBölümü"));
    m_gelişim = new GelişimBölümü;
    m_gelişim->setObjectName(QStringLiteral("GelişimBölümü"));
}

QWidget* MaliyetArşiviFormu::Arşivleme() {
    auto* bölüm = new QWidget;
    auto* düzen = new QHBoxLayout(bölüm);
    düzen->setContentsMargins(0, 0, 0, 0);
    düzen->addWidget(VurgulananEtiket(1, ArşivMetni::GrupSeçimi, m_grup));
    düzen->addWidget(m_grup, 2);
    düzen->addWidget(VurgulananEtiket(2, ArşivMetni::ÜrünSeçimi, m_ürün));
    düzen->addWidget(m_ürün, 3);
    düzen->addWidget(VurgulananEtiket(3, ArşivMetni::NotEtiketi, m_not));
    düzen->addWidget(m_not, 3);
    düzen->addWidget(m_arşivle);
    return bölüm;
}

QWidget* MaliyetArşiviFormu::Arşivler() {
    auto* bul = new QHBoxLayout;
    bul->addWidget(VurgulananEtiket(5, ArşivMetni::FöylerdeBul, m_bul));
    bul->addWidget(m_bul, 1);
    auto* alt = new QWidget;
    auto* altDüzen = new QVBoxLayout(alt);
    altDüzen->setContentsMargins(0, 0, 0, 0);
    altDüzen->addLayout(bul);
    altDüzen->addWidget(m_uyarı);
    altDüzen->addWidget(TabloBölümü(6, ArşivMetni::FöylerEtiketi, m_föyTablosu), 1);
    auto* bölen = new QSplitter(Qt::Vertical);
    bölen->setObjectName(QStringLiteral("SolBölen"));
    bölen->setChildrenCollapsible(false);
    bölen->addWidget(TabloBölümü(4, ArşivMetni::ArşivlerEtiketi, m_arşivTablosu));
    bölen->addWidget(alt);
    bölen->setStretchFactor(1, 1);
    bölen->setSizes({200, 400});
    return bölen;
}

void MaliyetArşiviFormu::Yerleştir() {
    auto* sayfalar = new QTabWidget;
    sayfalar->setObjectName(QStringLiteral("BölümSayfaları"));
    sayfalar->setFocusPolicy(Qt::NoFocus);
    sayfalar->tabBar()->setFocusPolicy(Qt::TabFocus);  // the row of tabs alone takes the keys
    sayfalar->tabBar()->setObjectName(QStringLiteral("BölümSekmeleri"));
    sayfalar->tabBar()->setAccessibleName(windowTitle());
    sayfalar->addTab(m_fark, Metin(ArşivMetni::FarkSayfası));
    sayfalar->addTab(m_gelişim, Metin(ArşivMetni::GelişimSayfası));
    auto* bölen = new QSplitter(Qt::Horizontal);
    bölen->setObjectName(QStringLiteral("Bölen"));
    bölen->setChildrenCollapsible(false);
    bölen->addWidget(Arşivler());
    bölen->addWidget(sayfalar);
    bölen->setStretchFactor(1, 1);
    constexpr int sol = 420;
    constexpr int sağ = 860;
    bölen->setSizes({sol, sağ});
    auto* kapat = DüğmeOluştur(QStringLiteral("KapatButonu"), MetinNo::Kapat, [this] { reject(); });
    auto* düzen = new QVBoxLayout(this);
    düzen->addWidget(Arşivleme());
    düzen->addWidget(bölen, 1);
    auto* aktar =
        TabloyaAktarDüğmesi(ÇizelgeMetni::TabloyaAktarR, m_föyModeli, QStringLiteral("FöyleriAktarButonu"), [this] {
            const Başlık* arşiv = SeçiliArşiv();
            return arşiv ? ArşivAdı(*arşiv) : windowTitle();
        });
    düzen->addLayout(DüğmeSırası({m_göster, m_sil, aktar, nullptr, kapat}));
    m_grup->setFocus();  // a list marks its first row as it gets the focus
    BoyVer(*this, {1280, 760});
}

bool MaliyetArşiviFormu::Yükle() {
    std::vector<FöyYeri> ürünler;
    if (const İşSonucu sonuç = FöyYerleriniOku(ODBCBağlantısı(), {}, ürünler); !sonuç.Tamam()) {
        ArşivSonucunuGöster(sonuç);
        return false;
    }
    m_gruplar.clear();
    for (const FöyYeri& ürün : ürünler) {
        if (m_gruplar.empty() || !AynıAdlı(m_gruplar.back().first, ürün.Grup)) m_gruplar.push_back({ürün.Grup, {}});
        m_gruplar.back().second.append(ürün.Ürün);
    }
    KapsamıDoldur(m_ilk);
    m_gelişim->ÜrünüAyarla(m_ilk.Ürün.isEmpty() ? Kapsam() : m_ilk);
    return ArşivleriOkuVeGöster(0);
}

bool MaliyetArşiviFormu::ArşivleriOkuVeGöster(std::int64_t seçilecek) {
    std::vector<Başlık> arşivler;
    const İşSonucu sonuç = ArşivleriOku(ODBCBağlantısı(), arşivler);
    if (!sonuç.Tamam()) {
        ArşivSonucunuGöster(sonuç);
        return false;
    }
    m_arşivler.Satırlar = arşivler;
    m_fark->ArşivleriAyarla(arşivler);
    m_gelişim->ArşivleriAyarla(std::move(arşivler));
    m_arşivModeli.Yenile();
    m_arşivTablosu->SatırıSeç([&](std::size_t yer) { return m_arşivler.Satırlar[yer].No == seçilecek; });
    ArşivSeçildi();
    return true;
}

void MaliyetArşiviFormu::KapsamıDoldur(const Kapsam& seçili) {
    {
        const QSignalBlocker sessiz(m_grup);
        m_grup->clear();
        m_grup->addItem(Metin(ArşivMetni::TümGruplar));
        int yer = 0;
        for (const auto& [grup, ürünler] : m_gruplar) {
            m_grup->addItem(grup);
            if (!seçili.Tümü() && AynıAdlı(grup, seçili.Grup)) yer = m_grup->count() - 1;
        }
        m_grup->setCurrentIndex(yer);
    }
    ÜrünleriDoldur();
    for (int i = 1; !seçili.Ürün.isEmpty() && i < m_ürün->count(); ++i)
        if (AynıAdlı(m_ürün->itemText(i), seçili.Ürün)) m_ürün->setCurrentIndex(i);
}

void MaliyetArşiviFormu::ÜrünleriDoldur() {
    m_ürün->clear();
    m_ürün->addItem(Metin(m_grup->currentIndex() > 0 ? ArşivMetni::GrubunTümü : ArşivMetni::TümGruplar));
    if (m_grup->currentIndex() > 0)
        m_ürün->addItems(m_gruplar[static_cast<std::size_t>(m_grup->currentIndex() - 1)].second);
    m_ürün->setEnabled(m_grup->currentIndex() > 0);
}

Kapsam MaliyetArşiviFormu::SeçiliKapsam() const {
    if (m_grup->currentIndex() <= 0) return {};
    return {m_grup->currentText(), m_ürün->currentIndex() > 0 ? m_ürün->currentText() : QString()};
}

// What it will take is told where it may be much.
bool MaliyetArşiviFormu::ArşivlensinMi(const Kapsam& kapsam, ArşivBoyu& boy) {
    if (!Deyimler::Yazılabilir(kapsam.Grup + kapsam.Ürün)) {
        Bildir(MesajKutusu::Simge::Ünlem, Metin(ArşivMetni::KesmeUyarısı));
        return false;
    }
    if (!kapsam.Ürün.isEmpty()) return true;
    const İşSonucu sonuç = ArşivBoyunuBul(ODBCBağlantısı(), kapsam, boy);
    ArşivSonucunuGöster(sonuç);
    return sonuç.Tamam() &&
           Sor(Metin(ArşivMetni::ArşivSorusu).arg(boy.Ürün).arg(boy.Satır).arg(ArşivBoyuMetni(boy.Bayt)));
}

void MaliyetArşiviFormu::Arşivle() {
    Başlık yeni;
    yeni.Gün = Bugün().toString(Qt::ISODate);
    yeni.Not = Deyimler::SaklanacakMetin(m_not->text().trimmed());
    yeni.Neyin = SeçiliKapsam();
    yeni.Basamak = OndalıkBasamak;
    ArşivBoyu boy;
    if (!ArşivlensinMi(yeni.Neyin, boy)) return;
    İşSonucu sonuç;
    {
        İlerlemeKutusu kutu(ArşivMetni::Arşivleniyor, boy.Satır, this);
        sonuç = ::Arşivle(ODBCBağlantısı(), yeni, [&kutu](std::int64_t okunan) { return kutu.Bildir(okunan); });
    }
    if (sonuç.Son == İşSonu::Vazgeçildi) return;
    if (sonuç.Son == İşSonu::Olmadı) {
        Bildir(MesajKutusu::Simge::Kritik,
               Metin(ArşivMetni::ArşivYazılamadı).arg(OdbcİletileriniAl(sonuç.Odbc.Hatalar).join(QLatin1Char('\n'))));
        return;
    }
    if (yeni.FöySayısı == 0) {
        Bildir(MesajKutusu::Simge::Bilgi, Metin(ArşivMetni::ArşivlenecekYok));
        return;
    }
    m_not->clear();
    ArşivleriOkuVeGöster(yeni.No);
}

const Başlık* MaliyetArşiviFormu::SeçiliArşiv() const {
    const std::optional<std::size_t> yer = m_arşivTablosu->SeçiliSatır();
    return yer ? &m_arşivler.Satırlar[*yer] : nullptr;
}

void MaliyetArşiviFormu::ArşivSeçildi() {
    const Başlık* arşiv = SeçiliArşiv();
    m_sil->setEnabled(arşiv);
    const std::int64_t no = arşiv ? arşiv->No : 0;
    if (no == m_gösterilen && no != 0) return;
    std::vector<FöyBaşlığı> föyler;
    İşSonucu sonuç;
    if (arşiv) {
        İlerlemeKutusu kutu(ArşivMetni::FöylerOkunuyor, arşiv->FöySayısı, this);
        sonuç =
            FöyListesiniOku(ODBCBağlantısı(), no, föyler, [&kutu](std::int64_t okunan) { return kutu.Bildir(okunan); });
    }
    // A part of the list would pass for the whole.
    if (!sonuç.Tamam()) föyler.clear();
    m_gösterilen = sonuç.Tamam() ? no : 0;
    const auto sayı = static_cast<std::int64_t>(föyler.size());
    m_föyler.Satırlar = std::move(föyler);
    m_föyModeli.Yenile();
    const bool eksik = arşiv && sonuç.Tamam() && sayı != arşiv->FöySayısı;
    m_uyarı->setText(!sonuç.Tamam() ? Metin(ArşivMetni::FöylerOkunmadı)
                     : eksik        ? Metin(ArşivMetni::ArşivinEksiği).arg(arşiv->FöySayısı).arg(sayı)
                                    : QString());
    m_uyarı->setVisible(!m_uyarı->text().isEmpty());
    m_föyTablosu->setCurrentIndex({});
    FöySeçildi();
    ArşivSonucunuGöster(sonuç);
}

void MaliyetArşiviFormu::FöySeçildi() {
    const std::optional<std::size_t> yer = m_föyTablosu->SeçiliSatır();
    m_göster->setEnabled(yer.has_value());
    if (yer) m_gelişim->ÜrünüAyarla({m_föyler.Satırlar[*yer].Grup, m_föyler.Satırlar[*yer].Ürün});
}

void MaliyetArşiviFormu::FöyüGöster() {
    const Başlık* arşiv = SeçiliArşiv();
    const std::optional<std::size_t> yer = m_föyTablosu->SeçiliSatır();
    if (!arşiv || !yer || arşiv->No != m_gösterilen) return;
    std::optional<OkunanFöy> föy;
    const İşSonucu sonuç = FöyüOku(ODBCBağlantısı(), *arşiv, m_föyler.Satırlar[*yer].No, föy);
    ArşivSonucunuGöster(sonuç);
    if (!sonuç.Tamam()) return;
    if (föy) {
        ArşivFöyüFormu(*arşiv, std::move(*föy), this).exec();
        return;
    }
    Bildir(MesajKutusu::Simge::Ünlem, Metin(ArşivMetni::FöyYok));
    m_gösterilen = 0;
    ArşivSeçildi();
}

void MaliyetArşiviFormu::Sil() {
    const Başlık* seçili = SeçiliArşiv();
    if (!seçili) return;
    const Başlık arşiv = *seçili;
    const QString ne = GünMetni(arşiv.Gün) + QStringLiteral(", ") + KapsamMetni(arşiv.Neyin);
    MesajKutusuOrtala();
    const MesajKutusu::Yanıt yanıt = MesajKutusu::Göster(
        MesajKutusu::Simge::Soru, MesajKutusu::Düğmeler::EvetHayır,
        Metin(ArşivMetni::SilmeSorusu).arg(QString::number(arşiv.No), ne), {}, MesajKutusu::Yanıt::Hayır);
    if (yanıt != MesajKutusu::Yanıt::Evet) return;
    setCursor(Qt::WaitCursor);
    const İşSonucu sonuç = ArşiviSil(ODBCBağlantısı(), arşiv.No);
    unsetCursor();
    ArşivSonucunuGöster(sonuç);
    if (!sonuç.Tamam()) return;
    m_gösterilen = 0;
    ArşivleriOkuVeGöster(0);
}
