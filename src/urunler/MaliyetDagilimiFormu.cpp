#include "MaliyetDagilimiFormu.h"

#include <QHeaderView>
#include <QLabel>
#include <QSplitter>
#include <QVBoxLayout>
#include <algorithm>

#include "CizelgeKaydi.h"
#include "DagilimCiktilari.h"
#include "DegiskenModulu.h"
#include "FormParcalari.h"
#include "KisalanEtiket.h"
#include "MetinTablosu.h"
#include "FiyatIsi.h"
#include "OdbcModulu.h"
#include "ResimKaydi.h"
#include "Tablo.h"
#include "UrunMetinleri.h"
#include "Yazdirma.h"

namespace {

constexpr int BÖLENİN_BOYU = 600;  // pixels, as the form opens
constexpr int EN_YÜKSEK_GRAFİK = 380;
constexpr qsizetype EN_UZUN_AD = 40;      // of those in the note
constexpr qsizetype EN_ÇOK_SAYILAN = 10;  // rows that the note names; the table marks all of them

QString Kısa(const QString& ad) {
    return ad.size() <= EN_UZUN_AD ? ad : ad.left(EN_UZUN_AD - 1) + u'…';
}

QSplitter* Bölen(const QString& ad, Qt::Orientation yön, QWidget* ilk, QWidget* ikinci) {
    auto* bölen = new QSplitter(yön);
    bölen->setObjectName(ad);
    bölen->setChildrenCollapsible(false);
    bölen->addWidget(ilk);
    bölen->addWidget(ikinci);
    return bölen;
}

// As much room as all bars want, the rest for the table.
void Böl(QSplitter& bölen, const ÇubukGrafiği& grafik) {
    const int istenen = std::min(grafik.sizeHint().height(), EN_YÜKSEK_GRAFİK);
    bölen.setSizes({istenen, BÖLENİN_BOYU - istenen});
}

}  // namespace

MaliyetDağılımıFormu::MaliyetDağılımıFormu(const ÜrünAdı& ürün, QWidget* sahip)
    : QDialog(sahip),
      m_kalemModeli(m_dağılım.Kalemler, KalemSütunları()),
      m_malzemeModeli(m_dağılım.Malzemeler, PaySütunları()) {
    setObjectName(QStringLiteral("MaliyetDağılımıFormu"));
    setWindowTitle(Metin(ÜrünMetni::DağılımBaşlığı));
    m_dağılım.Ürün = ürün;
    KontrolleriKur();
    Yerleştir();
}

MaliyetDağılımıFormu::~MaliyetDağılımıFormu() {
    // The views go before the models that they show.
    delete m_kalemler;
    delete m_malzemeler;
}

void MaliyetDağılımıFormu::KontrolleriKur() {
    m_not = new QLabel;
    m_not->setObjectName(QStringLiteral("NotEtiketi"));
    m_not->setTextFormat(Qt::PlainText);
    m_not->setWordWrap(true);
    m_kalemGrafiği = new ÇubukGrafiği(QStringLiteral("DağılımGrafiği"));
    m_malzemeGrafiği = new ÇubukGrafiği(QStringLiteral("PaylarGrafiği"));
    m_kalemler = new Tablo(QStringLiteral("DağılımTablosu"), m_kalemModeli);
    m_kalemler->setSortingEnabled(false);  // their order is that of the sum
    m_kalemler->horizontalHeader()->setSectionsClickable(false);
    m_malzemeler = new Tablo(QStringLiteral("PaylarTablosu"), m_malzemeModeli);
    m_yazdır = DüğmeOluştur(QStringLiteral("YazdırButonu"), MetinNo::Yazdır,
                            [this] { static_cast<void>(Yazdır(*this, *m_yazdır, Rapor())); });
    m_pdf = DüğmeOluştur(QStringLiteral("PdfKaydetButonu"), MetinNo::PdfKaydet,
                         [this] { PdfKaydet(*this, *m_pdf, Rapor()); });
}

void MaliyetDağılımıFormu::Yerleştir() {
    auto* ürün = new KısalanEtiket(QStringLiteral("ÜrünEtiketi"));
    ürün->setText(m_dağılım.Ürün.Grup + QStringLiteral(" / ") + m_dağılım.Ürün.Ad);
    QFont kalın = ürün->font();
    kalın.setBold(true);
    ürün->setFont(kalın);
    m_sol = Bölen(QStringLiteral("SolBölen"), Qt::Vertical, m_kalemGrafiği,
                  TabloBölümü(1, ÜrünMetni::DağılımTablosuEtiketi, m_kalemler));
    m_sağ = Bölen(QStringLiteral("SağBölen"), Qt::Vertical, m_malzemeGrafiği,
                  TabloBölümü(2, ÜrünMetni::PaylarTablosuEtiketi, m_malzemeler));
    auto* bölen = Bölen(QStringLiteral("Bölen"), Qt::Horizontal, m_sol, m_sağ);
    bölen->setSizes({470, 630});
    auto* önizle =
        DüğmeOluştur(QStringLiteral("ÖnizlemeButonu"), MetinNo::Önizleme, [this] { Önizle(*this, Rapor()); });
    auto* resim = DüğmeOluştur(QStringLiteral("ResimKaydetButonu"), ÜrünMetni::ResimKaydet,
                               [this] { ResmiKaydet(*this, ÇıktıBaşlığı(), DağılımResmi(ÇıktıBaşlığı(), m_dağılım)); });
    auto* aktar = DüğmeOluştur(QStringLiteral("TabloyaAktarButonu"), ÜrünMetni::TabloyaAktar, [this] {
        ÇizelgeyeKaydet(*this, ÇıktıBaşlığı(), [this](const QString& yol) {
            return DağılımıÇizelgeyeYaz(yol, windowTitle(), m_dağılım, OndalıkBasamak);
        });
    });
    auto* kapat = DüğmeOluştur(QStringLiteral("KapatButonu"), MetinNo::Kapat, [this] { reject(); });
    auto* düzen = new QVBoxLayout(this);
    düzen->addWidget(ürün);
    düzen->addWidget(bölen, 1);
    düzen->addWidget(m_not);
    düzen->addLayout(DüğmeSırası({m_yazdır, m_pdf, önizle, resim, aktar, nullptr, kapat}));
    m_kalemler->setFocus();
    BoyVer(*this, {1120, 700});
}

bool MaliyetDağılımıFormu::Yükle() {
    std::optional<SaklananÜrün> saklanan;
    if (!İşSonucunuGöster(SaklananÜrünüOku(ODBCBağlantısı(), m_dağılım.Ürün, saklanan))) return false;
    if (!saklanan) return Uyar(ÜrünMetni::ÜrünArtıkYok, *this);
    m_dağılım.Hesapla(*saklanan, OndalıkBasamak);
    m_kalemModeli.Yenile();
    m_malzemeModeli.Yenile();
    m_kalemGrafiği->Göster(m_dağılım.KalemGrafiği);
    m_malzemeGrafiği->Göster(m_dağılım.MalzemeGrafiği);
    Böl(*m_sol, *m_kalemGrafiği);
    Böl(*m_sağ, *m_malzemeGrafiği);
    NotuYaz();
    return true;
}

void MaliyetDağılımıFormu::NotuYaz() {
    QStringList notlar;
    if (m_dağılım.Malzemeler.Satırlar.size() == 1) notlar.append(Metin(ÜrünMetni::MalzemesizNotu));
    if (!m_dağılım.Sayılmayanlar.isEmpty()) {
        QStringList adlar;
        for (const QString& satır : m_dağılım.Sayılmayanlar.mid(0, EN_ÇOK_SAYILAN)) adlar.append(Kısa(satır));
        if (adlar.size() < m_dağılım.Sayılmayanlar.size()) adlar.append(QStringLiteral("…"));
        notlar.append(Metin(ÜrünMetni::SayılmayanlarNotu).arg(adlar.join(QStringLiteral("; "))));
    }
    m_not->setText(notlar.join(QLatin1Char(' ')));
    m_not->setVisible(!notlar.isEmpty());
}

QString MaliyetDağılımıFormu::ÇıktıBaşlığı() const {
    return windowTitle() + QStringLiteral(": ") + m_dağılım.Ürün.Grup + QStringLiteral(" / ") + m_dağılım.Ürün.Ad;
}

Yazdırılacak MaliyetDağılımıFormu::Rapor() const {
    return {ÇıktıBaşlığı(), [this](SayfaYüzeyi& yüzey) { DağılımıYaz(yüzey, ÇıktıBaşlığı(), m_dağılım); }, true};
}
