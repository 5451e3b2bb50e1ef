// How the main form is put together: menus, controls, layout.

#include <QApplication>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenuBar>
#include <QPainter>
#include <QScreen>
#include <QShortcut>
#include <QSplitter>
#include <QStatusBar>
#include <QVBoxLayout>
#include <algorithm>

#include "AnaForm.h"
#include "AnaFormDuzeni.h"
#include "OrtakFonksiyonlarModulu.h"
#include "DegiskenModulu.h"
#include "Denetimler.h"
#include "HakkindaFormu.h"
#include "HataBildirmeFormu.h"
#include "KomutDugmesi.h"
#include "KullanilanMalzemeler.h"
#include "MaliyetAlani.h"
#include "MetinTablosu.h"
#include "MiktarAlani.h"
#include "Renk.h"
#include "Saat.h"
#include "UrunAgaci.h"
#include "Yardim.h"
#include "YuklenemediBildirimi.h"

namespace {

constexpr std::uint32_t DüğmeGölgesi = 0x80000000 + 16;  // the desktop's colour number 16
constexpr std::uint32_t Beyaz = 0x00FFFFFF;

constexpr int BaşlıkYüksekliği = 30;  // pixels
constexpr int EnAzGörünen = 80;

int Alan(const QRect& r) {
    return r.isValid() ? r.width() * r.height() : 0;
}

constexpr int AğaçGenişliği = 240;  // pixels
constexpr int NoktaGenişliği = 48;
constexpr QSize İstenenBoy(1000, 700);  // pixels
constexpr int BaşlıkPayı = 40;          // room for the window's title bar
constexpr int EnÇokOndalık = 6;

}  // namespace

AnaForm::AnaForm(AnaFormBağları bağlar) : m_bağlar(std::move(bağlar)) {
    setObjectName(QStringLiteral("AnaForm"));
    setWindowTitle(UygulamaBaşlığı);
    AlanlarıKur();
    MenüleriKur();
    DüzeniKur();
    DurumÇubuğunuKur();
    KomutlarıKur();
    qApp->installEventFilter(this);
}

void AnaForm::AlanlarıKur() {
    m_ağaç = new ÜrünAğacı;
    m_ağaç->OlaylarıBağla({[this] { DüğümTıklandı(); }, [this] { ÜrünListesiTıkla(); }, [this] { AğacaGirildi(); },
                           [this] { m_ağaçBildirimi->setVisible(!m_ağaç->Tam()); }});
    m_ağaçBildirimi =
        new YüklenemediBildirimi(QStringLiteral("ÜrünListesiniTekrarYükle"), MetinNo::ÜrünListesiOkunamadı,
                                 MetinNo::ListeyiTekrarYükle, [this] { AğacıYenidenYükle(); });
    m_ürünBildirimi = new YüklenemediBildirimi(QStringLiteral("ÜrünüTekrarYükle"), MetinNo::ÜrünOkunamadı,
                                               MetinNo::ÜrünüTekrarYükle, [this] { ÜrünüYenidenYükle(); });
    m_liste = new KullanılanMalzemeListesi;
    connect(m_liste, &QTreeWidget::itemDoubleClicked, this, [this] { m_komutlar.Çalıştır(Komut::ListedenMalzemeSil); });

    m_haneSayısı = new QComboBox;
    m_haneSayısı->setObjectName(QStringLiteral("HaneSayısıKutusu"));
    for (int basamak = 1; basamak <= EnÇokOndalık; ++basamak) m_haneSayısı->addItem(QString::number(basamak));
    m_haneSayısı->setCurrentIndex(OndalıkBasamak - 1);
    // What is on screen stays as it is; the next load, edit or focus change shows the new number of decimals.
    connect(m_haneSayısı, &QComboBox::currentTextChanged, this,
            [](const QString& basamak) { OndalıkBasamak = basamak.toInt(); });

    m_maliyet = new MaliyetAlanı({[this] {
                                      m_komutlar.İzinVer(Komut::DeğişiklikleriKaydet, true);
                                      ToplamMaliyetHesapla();
                                  },
                                  [this] { m_miktar->ToplamDeğişti(); }});
    m_miktar = new MiktarAlanı({[this] { return m_maliyet->Girdi().MalzemeMaliyeti; },
                                [this] { return m_maliyet->ToplamMaliyet(); }, [this] { m_ağaç->setFocus(); }});
}

void AnaForm::MenüleriKur() {
    const auto girişEkle = [this](QMenu* menü, Komut komut, MetinNo metin, const char* ad) {
        QAction* giriş = menü->addAction(Metin(metin));
        giriş->setObjectName(QString::fromUtf8(ad));
        m_komutlar.Bağla(komut, giriş);
    };
    const auto çizgiEkle = [](QMenu* menü, int sıra) {
        menü->addSeparator()->setObjectName(QStringLiteral("MenüÇizgisi%1").arg(sıra));
    };
    QMenu* program = menuBar()->addMenu(Metin(MetinNo::ProgramMenüsü));
    program->setObjectName(QStringLiteral("ProgramMenüsü"));
    girişEkle(program, Komut::ÜrünEkleSil, MetinNo::ÜrünEkleSilMenüsü, "ÜrünEkleSilMenüsü");
    girişEkle(program, Komut::MalzemeEkleSil, MetinNo::MalzemeEkleSilMenüsü, "MalzemeEkleSilMenüsü");
    çizgiEkle(program, 1);
    girişEkle(program, Komut::Çıkış, MetinNo::ÇıkışMenüsü, "ÇıkışMenüsü");
    QMenu* yardım = menuBar()->addMenu(Metin(MetinNo::YardımMenüsü));
    yardım->setObjectName(QStringLiteral("YardımMenüsü"));
    girişEkle(yardım, Komut::İçindekiler, MetinNo::İçindekilerMenüsü, "İçindekilerMenüsü");
    çizgiEkle(yardım, 2);
    girişEkle(yardım, Komut::HataBildirme, MetinNo::HataBildirmeMenüsü, "HataBildirmeMenüsü");
    çizgiEkle(yardım, 3);
    girişEkle(yardım, Komut::Hakkında, MetinNo::HakkındaMenüsü, "HakkındaMenüsü");
}

// Controls are added as one reads, left to right and top to bottom: that is the order of Tab too.
void AnaForm::DüzeniKur() {
    auto* maliyetSatırı = new QHBoxLayout;
    // On the smallest screen both have room for the largest amount.
    maliyetSatırı->addWidget(MaliyetAltlığı(), 9);
    maliyetSatırı->addWidget(m_miktar, 7);
    auto* sağ = new QWidget;
    auto* sağDüzen = new QVBoxLayout(sağ);
    sağDüzen->setContentsMargins(0, 0, 0, 0);
    sağDüzen->addWidget(ListeAltlığı(), 1);
    sağDüzen->addLayout(maliyetSatırı);

    auto* bölücü = new QSplitter;
    bölücü->setObjectName(QStringLiteral("Bölücü"));
    bölücü->setChildrenCollapsible(false);
    bölücü->addWidget(AğaçAltlığı());
    bölücü->addWidget(sağ);
    bölücü->setStretchFactor(0, 1);
    bölücü->setStretchFactor(1, 3);
    bölücü->setSizes({AğaçGenişliği, İstenenBoy.width() - AğaçGenişliği});
    bölücü->setHandleWidth(9);

    auto* içerik = new QVBoxLayout;
    içerik->setContentsMargins(9, 4, 9, 4);
    içerik->setSpacing(9);
    içerik->addWidget(bölücü, 1);
    içerik->addWidget(DüğmeAltlığı());
    auto* orta = new QWidget;
    auto* düzen = new QVBoxLayout(orta);
    düzen->setContentsMargins(0, 0, 0, 0);
    düzen->setSpacing(0);
    düzen->addWidget(new OyukÇizgi);
    düzen->addLayout(içerik, 1);
    setCentralWidget(orta);
}

QWidget* AnaForm::AğaçAltlığı() {
    QWidget* altlık = AltlıkOluştur(0);
    auto* düzen = new QVBoxLayout(altlık);
    düzen->setContentsMargins(0, 0, 0, 0);
    düzen->addWidget(VurgulananEtiket(0, m_ağaç));
    düzen->addWidget(m_ağaçBildirimi);
    düzen->addWidget(m_ağaç, 1);
    return altlık;
}

QWidget* AnaForm::ListeAltlığı() {
    QWidget* altlık = AltlıkOluştur(1);
    auto* başlık = new QHBoxLayout;
    başlık->addWidget(VurgulananEtiket(1, m_liste));
    başlık->addStretch();
    başlık->addWidget(EtiketOluştur(10, m_haneSayısı));
    başlık->addWidget(m_haneSayısı);
    başlık->addWidget(EtiketOluştur(11));
    auto* düğmeler = new QHBoxLayout;
    düğmeler->addWidget(DüğmeOluştur(Komut::ListeyeMalzemeEkle, MetinNo::EkleDeğiştir, "ListeyeMalzemeEkleButonu"));
    düğmeler->addWidget(DüğmeOluştur(Komut::ListedenMalzemeSil, MetinNo::ListedenÇıkar, "ListedenMalzemeSilButonu"));
    düğmeler->addWidget(DüğmeOluştur(Komut::Yazdır, MetinNo::Yazdır, "YazdırButonu"));
    düğmeler->addWidget(DüğmeOluştur(Komut::PdfKaydet, MetinNo::PdfKaydet, "PdfKaydetButonu"));
    düğmeler->addWidget(DüğmeOluştur(Komut::Önizle, MetinNo::Önizleme, "ÖnizlemeButonu"));
    düğmeler->addStretch();
    auto* düzen = new QVBoxLayout(altlık);
    düzen->setContentsMargins(0, 0, 0, 0);
    düzen->addLayout(başlık);
    düzen->addWidget(m_ürünBildirimi);
    düzen->addWidget(m_liste, 1);
    düzen->addLayout(düğmeler);
    return altlık;
}

QWidget* AnaForm::MaliyetAltlığı() {
    QWidget* altlık = AltlıkOluştur(2);
    auto* düğmeler = new QHBoxLayout;
    düğmeler->addWidget(
        DüğmeOluştur(Komut::DeğişiklikleriKaydet, MetinNo::DeğişiklikleriKaydet, "DeğişiklikleriKaydetButonu"));
    düğmeler->addStretch();
    QWidget* miktarlar =
        DüğmeOluştur(Komut::MiktarlarıGöster, MetinNo::MiktarlarıGösterDüğmesi, "MiktarlarıGösterDüğmesi");
    miktarlar->setAccessibleName(Metin(MetinNo::MiktarlarıGösterAçıklaması));
    miktarlar->setToolTip(Metin(MetinNo::MiktarlarıGösterAçıklaması));
    miktarlar->setMaximumWidth(NoktaGenişliği);
    düğmeler->addWidget(miktarlar);
    auto* düzen = new QVBoxLayout(altlık);
    düzen->setContentsMargins(0, 0, 0, 0);
    düzen->addWidget(m_maliyet);
    düzen->addLayout(düğmeler);
    return altlık;
}

QWidget* AnaForm::DüğmeAltlığı() {
    QWidget* altlık = AltlıkOluştur(3);
    auto* düzen = new QHBoxLayout(altlık);
    düzen->setContentsMargins(0, 0, 0, 0);
    düzen->addWidget(DüğmeOluştur(Komut::GünlükMalzemeHareketleri, MetinNo::GünlükMalzemeHareketleriDüğmesi,
                                  "GünlükMalzemeHareketleriGösterButonu"));
    düzen->addWidget(DüğmeOluştur(Komut::MalzemeListesi, MetinNo::MalzemeListesiDüğmesi, "MalzemeListesiGösterButonu"));
    düzen->addWidget(DüğmeOluştur(Komut::ÜrünListesi, MetinNo::ÜrünListesiDüğmesi, "ÜrünListesiGösterButonu"));
    düzen->addStretch();
    düzen->addWidget(DüğmeOluştur(Komut::Çıkış, MetinNo::ÇıkışDüğmesi, "ÇıkışButonu"));
    return altlık;
}

QWidget* AnaForm::DüğmeOluştur(Komut komut, MetinNo metin, const char* ad) {
    auto* düğme = new KomutDüğmesi(Metin(metin));
    düğme->setObjectName(QString::fromUtf8(ad));
    m_komutlar.Bağla(komut, düğme);
    return düğme;
}

void AnaForm::DurumÇubuğunuKur() {
    statusBar()->setObjectName(QStringLiteral("DurumÇubuğu"));
    auto* tarih = new QLabel(TürkçeUzunTarih(Bugün()) + QStringLiteral("   "));
    tarih->setObjectName(QStringLiteral("TarihBölmesi"));
    tarih->setIndent(6);
    statusBar()->addWidget(tarih);
}

void AnaForm::KomutlarıKur() {
    m_komutlar.Tanımla(Komut::Çıkış, [this] { close(); });
    m_komutlar.Tanımla(Komut::ÜrünEkleSil, [this] { ÜrünEkleSil(); });
    m_komutlar.Tanımla(Komut::MalzemeEkleSil, [this] { MalzemeEkleSil(); });
    m_komutlar.Tanımla(Komut::ListeyeMalzemeEkle, [this] { ListeyeMalzemeEkle(); });
    m_komutlar.Tanımla(Komut::MiktarlarıGöster, [this] { MiktarlarıGöster(); });
    m_komutlar.Tanımla(Komut::İçindekiler, [this] { YardımıAç(this); });
    m_komutlar.Tanımla(Komut::HataBildirme, [this] { HataBildirmeFormu(this).exec(); });
    m_komutlar.Tanımla(Komut::Hakkında, [this] { HakkındaFormu(this).exec(); });
    m_komutlar.Tanımla(Komut::ListedenMalzemeSil, [this] { ListedenMalzemeSil(); });
    m_komutlar.Tanımla(Komut::DeğişiklikleriKaydet, [this] { DeğişiklikleriKaydet(); });
    RaporKomutlarınıKur();
    connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this,
            [this] { m_komutlar.Çalıştır(Komut::Çıkış); });
}

void AnaForm::Yerleş() {
    const QRect ekran = QGuiApplication::primaryScreen()->geometry();
    resize(İstenenBoy.boundedTo(QGuiApplication::primaryScreen()->availableSize() - QSize(0, BaşlıkPayı)));
    const QPoint konum(KayıtlıSol().value_or((ekran.width() - width()) / 2),
                       KayıtlıÜst().value_or((ekran.height() - height()) / 2));
    QList<QRect> ekranlar;
    for (const QScreen* s : QGuiApplication::screens()) ekranlar.append(s->availableGeometry());
    move(EkranaGetir(QRect(konum, size()), ekranlar));
}

OyukÇizgi::OyukÇizgi(QWidget* sahip) : QWidget(sahip) {
    setFixedHeight(2);
}

void OyukÇizgi::paintEvent(QPaintEvent*) {
    QPainter çizici(this);
    çizici.fillRect(0, 0, width(), 1, RenkÇöz(DüğmeGölgesi, palette()));
    çizici.fillRect(0, 1, width(), 1, RenkÇöz(Beyaz, palette()));
}

QPoint EkranaGetir(const QRect& pencere, const QList<QRect>& ekranlar) {
    if (ekranlar.isEmpty()) return pencere.topLeft();
    const QRect başlık(pencere.topLeft(), QSize(pencere.width(), BaşlıkYüksekliği));
    for (const QRect& ekran : ekranlar) {
        const QRect görünen = başlık & ekran;
        if (görünen.width() >= EnAzGörünen && görünen.height() == BaşlıkYüksekliği) return pencere.topLeft();
    }
    const QRect& ekran = *std::max_element(ekranlar.begin(), ekranlar.end(), [&](const QRect& a, const QRect& b) {
        return Alan(a & pencere) < Alan(b & pencere);
    });
    const int sağ = std::max(ekran.left(), ekran.right() + 1 - pencere.width());
    const int alt = std::max(ekran.top(), ekran.bottom() + 1 - pencere.height());
    return {std::clamp(pencere.x(), ekran.left(), sağ), std::clamp(pencere.y(), ekran.top(), alt)};
}
