// How the main form is put together: menus, controls, layout.

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenuBar>
#include <QPainter>
#include <QScreen>
#include <QSplitter>
#include <QStatusBar>
#include <QVBoxLayout>
#include <algorithm>

#include "AnaForm.h"
#include "AnaFormDuzeni.h"
#include "OrtakFonksiyonlarModulu.h"
#include "DegiskenModulu.h"
#include "FormParcalari.h"
#include "GirisKutusu.h"
#include "HakkindaFormu.h"
#include "HataBildirmeFormu.h"
#include "KullanilanMalzemeler.h"
#include "MaliyetAlani.h"
#include "MesajKutusu.h"
#include "MetinTablosu.h"
#include "MiktarAlani.h"
#include "Renk.h"
#include "Saat.h"
#include "UrunAgaci.h"
#include "Yardim.h"
#include "YedekMetinleri.h"

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
    KomutlarıKur();
    MenüleriKur();
    DüzeniKur();
    DurumÇubuğunuKur();
    qApp->installEventFilter(this);
}

void AnaForm::AlanlarıKur() {
    m_ağaç = new ÜrünAğacı;
    m_ağaç->OlaylarıBağla({[this] { DüğümTıklandı(); }, [this] { ÜrünListesiTıkla(); }, [this] { AğacaGirildi(); },
                           [this] { m_ağaçBildirimi->setVisible(!m_ağaç->Tam()); },
                           [this](const ÜrünAdı& eski, const ÜrünAdı& yeni) { AdDeğişti(eski, yeni); }});
    m_ağaçBildirimi =
        new YüklenemediBildirimi(QStringLiteral("ÜrünListesiniTekrarYükle"), MetinNo::ÜrünListesiOkunamadı,
                                 MetinNo::ListeyiTekrarYükle, [this] { AğacıYenidenYükle(); });
    m_ürünBildirimi = new YüklenemediBildirimi(QStringLiteral("ÜrünüTekrarYükle"), MetinNo::ÜrünOkunamadı,
                                               MetinNo::ÜrünüTekrarYükle, [this] { ÜrünüYenidenYükle(); });
    m_liste = new KullanılanMalzemeListesi;
    connect(m_liste, &QTreeWidget::itemDoubleClicked, this, [this] { m_komutlar.ListedenMalzemeSil->trigger(); });
    m_liste->YarıMamuleGidince([this](const QString& malzeme) { HataYakala([&] { YarıMamuleGit(malzeme); }); });

    m_haneSayısı = new QComboBox;
    m_haneSayısı->setObjectName(QStringLiteral("HaneSayısıKutusu"));
    for (int basamak = 1; basamak <= EnÇokOndalık; ++basamak) m_haneSayısı->addItem(QString::number(basamak));
    m_haneSayısı->setCurrentIndex(OndalıkBasamak - 1);
    // What is on screen stays as it is; the next load, edit or focus change shows the new number of decimals.
    connect(m_haneSayısı, &QComboBox::currentTextChanged, this,
            [](const QString& basamak) { OndalıkBasamak = basamak.toInt(); });

    m_maliyet = new MaliyetAlanı([this](bool düzenlendi) {
        if (düzenlendi) m_komutlar.DeğişiklikleriKaydet->setEnabled(true);
        m_miktar->ToplamDeğişti();
    });
    m_miktar = new MiktarAlanı({[this] { return m_maliyet->Girdi().MalzemeMaliyeti; },
                                [this] { return m_maliyet->ToplamMaliyet(); }, [this] { m_ağaç->setFocus(); }});
}

void AnaForm::KomutlarıKur() {
    m_komutlar.ListeyeMalzemeEkle = KomutOluştur(QStringLiteral("ListeyeMalzemeEkleKomutu"), MetinNo::EkleDeğiştir,
                                                 [this] { ListeyeMalzemeEkle(); });
    m_komutlar.ListedenMalzemeSil = KomutOluştur(QStringLiteral("ListedenMalzemeSilKomutu"), MetinNo::ListedenÇıkar,
                                                 [this] { ListedenMalzemeSil(); });
    m_komutlar.DeğişiklikleriKaydet = KomutOluştur(QStringLiteral("DeğişiklikleriKaydetKomutu"),
                                                   MetinNo::DeğişiklikleriKaydet, [this] { DeğişiklikleriKaydet(); });
    m_komutlar.MiktarlarıGöster = KomutOluştur(QStringLiteral("MiktarlarıGösterKomutu"),
                                               MetinNo::MiktarlarıGösterDüğmesi, [this] { MiktarlarıGöster(); });
    m_komutlar.Çıkış = ÇıkışKomutu();
    RaporKomutlarınıKur();
}

// A command that is reached without moving the focus does not run where the box that the user is in cannot be read.
QAction* AnaForm::KomutOluştur(const QString& ad, MetinNo metin, std::function<void()> iş) {
    auto* komut = new QAction(Metin(metin), this);
    komut->setObjectName(ad);
    connect(komut, &QAction::triggered, this, [iş = std::move(iş)] {
        if (OdaktakiKutuBitti()) HataYakala(iş);
    });
    return komut;
}

// The end of the program asks no box: it drops what is in them anyway.
QAction* AnaForm::ÇıkışKomutu() {
    auto* komut = new QAction(Metin(MetinNo::ÇıkışDüğmesi), this);
    komut->setObjectName(QStringLiteral("ÇıkışKomutu"));
    komut->setShortcut(Qt::Key_Escape);
    connect(komut, &QAction::triggered, this, [this] { HataYakala([this] { close(); }); });
    addAction(komut);
    return komut;
}

void AnaForm::MenüleriKur() {
    const auto menüEkle = [this](const QString& ad, MetinNo metin) {
        QMenu* menü = menuBar()->addMenu(Metin(metin));
        menü->setObjectName(ad);
        return menü;
    };
    const auto girişEkle = [this](QMenu* menü, const QString& ad, MetinNo metin, std::function<void()> iş) {
        menü->addAction(KomutOluştur(ad, metin, std::move(iş)));
    };
    const auto çizgiEkle = [](QMenu* menü, int sıra) {
        menü->addSeparator()->setObjectName(QStringLiteral("MenüÇizgisi%1").arg(sıra));
    };
    QMenu* program = menüEkle(QStringLiteral("ProgramMenüsü"), MetinNo::ProgramMenüsü);
    girişEkle(program, QStringLiteral("ÜrünEkleSilMenüsü"), MetinNo::ÜrünEkleSilMenüsü, [this] { ÜrünEkleSil(); });
    girişEkle(program, QStringLiteral("MalzemeEkleSilMenüsü"), MetinNo::MalzemeEkleSilMenüsü,
              [this] { MalzemeEkleSil(); });
    çizgiEkle(program, 8);
    girişEkle(program, QStringLiteral("YedeklerMenüsü"), YedekMetni::YedeklerMenüsü, [this] { Yedekler(); });
    çizgiEkle(program, 1);
    // The entry has a caption of its own and shows no key.
    QAction* çıkış = program->addAction(Metin(MetinNo::ÇıkışMenüsü), m_komutlar.Çıkış, &QAction::trigger);
    çıkış->setObjectName(QStringLiteral("ÇıkışMenüsü"));
    ÜrünMenüsünüKur();
    FiyatMenüsünüKur();
    QMenu* yardım = menüEkle(QStringLiteral("YardımMenüsü"), MetinNo::YardımMenüsü);
    girişEkle(yardım, QStringLiteral("İçindekilerMenüsü"), MetinNo::İçindekilerMenüsü, [this] { YardımıAç(this); });
    çizgiEkle(yardım, 2);
    girişEkle(yardım, QStringLiteral("HataBildirmeMenüsü"), MetinNo::HataBildirmeMenüsü,
              [this] { HataBildirmeFormu(this).exec(); });
    çizgiEkle(yardım, 3);
    girişEkle(yardım, QStringLiteral("HakkındaMenüsü"), MetinNo::HakkındaMenüsü,
              [this] { HakkındaFormu(this).exec(); });
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
    QWidget* altlık = AltlıkOluştur(SıralıAd(QStringLiteral("Altlık"), 0));
    auto* düzen = new QVBoxLayout(altlık);
    düzen->setContentsMargins(0, 0, 0, 0);
    düzen->addWidget(VurgulananEtiket(0, MetinNo::ÜrünListesiBaşlığı, m_ağaç));
    düzen->addWidget(m_ağaçBildirimi);
    düzen->addWidget(m_ağaç, 1);
    return altlık;
}

QWidget* AnaForm::ListeAltlığı() {
    QWidget* altlık = AltlıkOluştur(SıralıAd(QStringLiteral("Altlık"), 1));
    auto* başlık = new QHBoxLayout;
    başlık->addWidget(VurgulananEtiket(1, MetinNo::KullanılanMalzemelerBaşlığı, m_liste));
    başlık->addStretch();
    başlık->addWidget(EtiketOluştur(10, MetinNo::OndalıkBasamaklar, m_haneSayısı));
    başlık->addWidget(m_haneSayısı);
    başlık->addWidget(EtiketOluştur(11, MetinNo::HaneOlsun));
    m_yazdır = KomutaBağlıDüğme(QStringLiteral("YazdırButonu"), m_komutlar.Yazdır);
    m_pdfKaydet = KomutaBağlıDüğme(QStringLiteral("PdfKaydetButonu"), m_komutlar.PdfKaydet);
    QHBoxLayout* düğmeler =
        DüğmeSırası({KomutaBağlıDüğme(QStringLiteral("ListeyeMalzemeEkleButonu"), m_komutlar.ListeyeMalzemeEkle),
                     KomutaBağlıDüğme(QStringLiteral("ListedenMalzemeSilButonu"), m_komutlar.ListedenMalzemeSil),
                     m_yazdır, m_pdfKaydet, KomutaBağlıDüğme(QStringLiteral("ÖnizlemeButonu"), m_komutlar.Önizle),
                     KomutaBağlıDüğme(QStringLiteral("TabloyaAktarButonu"), m_komutlar.TabloyaAktar), nullptr});
    auto* düzen = new QVBoxLayout(altlık);
    düzen->setContentsMargins(0, 0, 0, 0);
    düzen->addLayout(başlık);
    düzen->addWidget(m_ürünBildirimi);
    düzen->addWidget(m_liste, 1);
    düzen->addLayout(düğmeler);
    return altlık;
}

QWidget* AnaForm::MaliyetAltlığı() {
    QWidget* altlık = AltlıkOluştur(SıralıAd(QStringLiteral("Altlık"), 2));
    KomutDüğmesi* miktarlar = KomutaBağlıDüğme(QStringLiteral("MiktarlarıGösterDüğmesi"), m_komutlar.MiktarlarıGöster);
    miktarlar->setAccessibleName(Metin(MetinNo::MiktarlarıGösterAçıklaması));
    miktarlar->setToolTip(Metin(MetinNo::MiktarlarıGösterAçıklaması));
    miktarlar->setMaximumWidth(NoktaGenişliği);
    auto* düzen = new QVBoxLayout(altlık);
    düzen->setContentsMargins(0, 0, 0, 0);
    düzen->addWidget(m_maliyet);
    düzen->addLayout(
        DüğmeSırası({KomutaBağlıDüğme(QStringLiteral("DeğişiklikleriKaydetButonu"), m_komutlar.DeğişiklikleriKaydet),
                     nullptr, miktarlar}));
    return altlık;
}

QWidget* AnaForm::DüğmeAltlığı() {
    QWidget* altlık = AltlıkOluştur(SıralıAd(QStringLiteral("Altlık"), 3));
    QHBoxLayout* düzen = DüğmeSırası(
        {KomutaBağlıDüğme(QStringLiteral("GünlükMalzemeHareketleriGösterButonu"), m_komutlar.GünlükMalzemeHareketleri),
         KomutaBağlıDüğme(QStringLiteral("MalzemeListesiGösterButonu"), m_komutlar.MalzemeListesi),
         KomutaBağlıDüğme(QStringLiteral("ÜrünListesiGösterButonu"), m_komutlar.ÜrünListesi), nullptr,
         KomutaBağlıDüğme(QStringLiteral("ÇıkışButonu"), m_komutlar.Çıkış)});
    düzen->setContentsMargins(0, 0, 0, 0);
    altlık->setLayout(düzen);
    return altlık;
}

void AnaForm::DurumÇubuğunuKur() {
    statusBar()->setObjectName(QStringLiteral("DurumÇubuğu"));
    auto* tarih = new QLabel(TürkçeUzunTarih(Bugün()) + QStringLiteral("   "));
    tarih->setObjectName(QStringLiteral("TarihBölmesi"));
    tarih->setIndent(6);
    statusBar()->addWidget(tarih);
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
