#include "DovizBaglari.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QSplitter>
#include <QVBoxLayout>

#include "CizelgeKaydi.h"
#include "CizelgeMetinleri.h"
#include "FiyatIsi.h"
#include "FiyatYazimi.h"
#include "FormParcalari.h"
#include "GirisKutusu.h"
#include "MesajKutusu.h"
#include "MetinTablosu.h"
#include "OdbcModulu.h"
#include "SayiKutusu.h"
#include "SayiMetni.h"
#include "Tablo.h"
#include "TurkceSira.h"
#include "YariMamulMetinleri.h"
#include "YariMamulYayilimi.h"

using Deyimler::Döviz::Bağ;

DövizBağları::DövizBağları(const DövizVerisi& veri, std::function<void()> değişti)
    : m_değişti(std::move(değişti)),
      m_bağKaynağı(veri),
      m_adayKaynağı(veri),
      m_bağModeli(m_bağKaynağı, BağKaynağı::Sütunlar()),
      m_adayModeli(m_adayKaynağı, AdayKaynağı::Sütunlar()) {
    KontrolleriKur();
    auto* bölen = new QSplitter(Qt::Horizontal);
    bölen->setObjectName(QStringLiteral("BağBölen"));
    bölen->setChildrenCollapsible(false);
    bölen->addWidget(BağBölümü());
    bölen->addWidget(AdayBölümü());
    bölen->setStretchFactor(0, 1);
    bölen->setStretchFactor(1, 1);
    auto* düzen = new QVBoxLayout(this);
    düzen->setContentsMargins(0, 0, 0, 0);
    düzen->addWidget(bölen);
}

DövizBağları::~DövizBağları() {
    // The views go before the models that they show.
    delete m_bağlar;
    delete m_adaylar;
}

void DövizBağları::KontrolleriKur() {
    m_bağlar = new Tablo(QStringLiteral("BağlıMalzemelerTablosu"), m_bağModeli);
    m_bağNotu = TabloNotu(QStringLiteral("BağNotu"), *m_bağlar);
    connect(m_bağlar->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] { DüğmeleriAyarla(); });
    connect(m_bağlar, &QAbstractItemView::activated, this, [this] { BağıAl(); });
    m_çöz = DüğmeOluştur(QStringLiteral("ÇözButonu"), MetinNo::BağıÇöz, [this] { Çöz(); });
    m_süz = new GirişKutusu;
    m_süz->setObjectName(QStringLiteral("MalzemeSüzKutusu"));
    connect(m_süz, &QLineEdit::textChanged, this, [this] { Süz(); });
    m_adaylar = new Tablo(QStringLiteral("BağlanacakMalzemelerTablosu"), m_adayModeli);
    m_adayNotu = TabloNotu(QStringLiteral("BağlanacakNotu"), *m_adaylar);
    Enterİleİlerlesin(m_adaylar);
    connect(m_adaylar->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] { DüğmeleriAyarla(); });
    m_fiyat = new SayıKutusu(SayıKutusu::Tür::Serbest);
    m_fiyat->setObjectName(QStringLiteral("DövizFiyatıKutusu"));
    m_bağla = RolDeğiştirenDüğme(QStringLiteral("BağlaButonu"), {MetinNo::Bağla, MetinNo::BağFiyatınıDeğiştir},
                                 [this] { Bağla(); });
}

QWidget* DövizBağları::BağBölümü() {
    auto* bölüm = new QWidget;
    auto* düzen = new QVBoxLayout(bölüm);
    düzen->setContentsMargins(0, 0, 0, 0);
    düzen->addWidget(VurgulananEtiket(6, MetinNo::BağlıMalzemelerEtiketi, m_bağlar));
    düzen->addWidget(m_bağlar, 1);
    auto* aktar = TabloyaAktarDüğmesi(ÇizelgeMetni::TabloyaAktarY, m_bağModeli);
    düzen->addLayout(DüğmeSırası({m_çöz, aktar, nullptr}));
    return bölüm;
}

QWidget* DövizBağları::AdayBölümü() {
    auto* bölüm = new QWidget;
    auto* süzme = new QHBoxLayout;
    süzme->addWidget(VurgulananEtiket(7, MetinNo::MalzemeSüz, m_süz));
    süzme->addWidget(m_süz, 1);
    auto* fiyat = new QHBoxLayout;
    fiyat->addWidget(VurgulananEtiket(9, MetinNo::DövizFiyatıEtiketi, m_fiyat));
    fiyat->addWidget(m_fiyat, 1);
    fiyat->addWidget(m_bağla);
    auto* düzen = new QVBoxLayout(bölüm);
    düzen->setContentsMargins(0, 0, 0, 0);
    düzen->addWidget(VurgulananEtiket(8, MetinNo::BağlanacakEtiketi, m_adaylar));
    düzen->addLayout(süzme);
    düzen->addWidget(m_adaylar, 1);
    düzen->addLayout(fiyat);
    return bölüm;
}

QString DövizBağları::SeçiliBağ() const {
    const std::optional<std::size_t> satır = m_bağlar->SeçiliSatır();
    return satır ? m_bağKaynağı.Bağ(*satır).Malzeme : QString();
}

QString DövizBağları::SeçiliAday() const {
    const std::optional<std::size_t> satır = m_adaylar->SeçiliSatır();
    return satır ? m_adayKaynağı.Ad(*satır) : QString();
}

void DövizBağları::SeçimiSakla() {
    m_sonBağ = SeçiliBağ();
    m_sonAday = SeçiliAday();
}

void DövizBağları::Yenile(const QString& kod) {
    m_adayModeli.Yenile();
    DöviziSeç(kod);
    m_bağlar->SatırıSeç([this](std::size_t satır) { return m_bağKaynağı.Bağ(satır).Malzeme == m_sonBağ; });
    m_adaylar->SatırıSeç([this](std::size_t satır) { return m_adayKaynağı.Ad(satır) == m_sonAday; });
    NotuYaz(*m_adayNotu, *m_adaylar, Metin(MetinNo::BağlanacakYok));
    DüğmeleriAyarla();
}

void DövizBağları::DöviziSeç(const QString& kod) {
    m_kod = kod;
    m_bağKaynağı.DöviziSeç(kod);
    m_bağModeli.Yenile();
    NotuYaz(*m_bağNotu, *m_bağlar,
            kod.isEmpty() ? Metin(MetinNo::DövizSeçilmemiş) : Metin(MetinNo::BağlıMalzemeYok).arg(kod));
    DüğmeleriAyarla();
}

// The marked material stays marked as long as it is shown.
void DövizBağları::Süz() {
    const QString aranan = m_süz->text().simplified();
    const QString seçili = SeçiliAday();
    m_adayModeli.Süz([this, aranan](std::size_t satır) { return Türkçe::İçerir(m_adayKaynağı.Ad(satır), aranan); });
    m_adaylar->SatırıSeç([&](std::size_t satır) { return m_adayKaynağı.Ad(satır) == seçili; });
    NotuYaz(*m_adayNotu, *m_adaylar, Metin(MetinNo::BağlanacakYok));
    DüğmeleriAyarla();
}

void DövizBağları::DüğmeleriAyarla() {
    const std::optional<std::size_t> aday = m_adaylar->SeçiliSatır();
    const Bağ* bağ = aday ? m_adayKaynağı.Bağ(*aday) : nullptr;
    m_bağla->setText(Metin(bağ && bağ->Kod == m_kod ? MetinNo::BağFiyatınıDeğiştir : MetinNo::Bağla));
    m_bağla->setEnabled(aday && !m_kod.isEmpty());
    m_çöz->setEnabled(m_bağlar->SeçiliSatır().has_value());
}

// A tie is taken up for a new price: its material is marked in the catalogue, whatever the filter says.
void DövizBağları::BağıAl() {
    const std::optional<std::size_t> satır = m_bağlar->SeçiliSatır();
    if (!satır) return;
    const Bağ bağ = m_bağKaynağı.Bağ(*satır);
    m_süz->clear();
    const bool var = m_adaylar->SatırıSeç([&](std::size_t yer) {
        const Bağ* aday = m_adayKaynağı.Bağ(yer);
        return aday && aday->Malzeme == bağ.Malzeme;
    });
    if (!var) return;
    m_fiyat->setText(FiyatMetni(bağ.Fiyat));
    m_fiyat->setFocus();
    m_fiyat->selectAll();
}

std::optional<Para> DövizBağları::Fiyat() {
    if (m_fiyat->text().isEmpty()) {
        Uyar(MetinNo::DövizFiyatıBoş, *m_fiyat);
        return std::nullopt;
    }
    if (!m_fiyat->Saklanır()) return std::nullopt;
    const std::optional<Para> fiyat = ParaOku(m_fiyat->text());
    if (fiyat && *fiyat > Para()) return fiyat;
    Uyar(MetinNo::DövizFiyatıSıfır, *m_fiyat);
    return std::nullopt;
}

bool DövizBağları::BağlanırMı(const KatalogMalzemesi& malzeme, const std::optional<Bağ>& eski) {
    return !eski || eski->Kod == m_kod || Sor(Metin(MetinNo::BaşkaDövizeBağlı).arg(malzeme.Ad, eski->Kod, m_kod));
}

// A price follows either a rate or a product.
bool DövizBağları::YarıMamulDeğil(const QString& ad) {
    const YarıMamulBağları* bağlar = nullptr;
    if (!İşSonucunuGöster(YarıMamulleriAl(ODBCBağlantısı(), bağlar))) return false;
    const YarıMamulBağı* bağ = bağlar->Bağı(ad);
    return !bağ ||
           Uyar(Metin(YarıMamulMetni::DövizMalzemesiYarıMamul).arg(ad, bağ->Ürün.Grup, bağ->Ürün.Ad), *m_adaylar);
}

// What the file holds at this moment counts, not what is shown.
void DövizBağları::Bağla() {
    const QString ad = SeçiliAday();
    if (ad.isEmpty() || m_kod.isEmpty()) return;
    const std::optional<Para> fiyat = Fiyat();
    if (!fiyat) return;
    if (!Deyimler::Yazılabilir(ad)) {
        Uyar(Metin(MetinNo::KesmeİşaretliBağlanmaz).arg(ad), *m_adaylar);
        return;
    }
    if (!YarıMamulDeğil(ad)) return;
    std::optional<KatalogMalzemesi> malzeme;
    std::optional<Bağ> eski;
    bool dövizVar = false;
    İşSonucu sonuç = DövizVar(ODBCBağlantısı(), m_kod, dövizVar);
    if (sonuç.Tamam()) sonuç = MalzemeyiOku(ODBCBağlantısı(), ad, malzeme);
    if (sonuç.Tamam()) sonuç = MalzemeninBağınıOku(ODBCBağlantısı(), ad, eski);
    if (sonuç.Tamam() && (!dövizVar || !malzeme)) {
        Uyar(Metin(dövizVar ? MetinNo::BağlanacakSilinmiş : MetinNo::DövizSilinmiş).arg(dövizVar ? ad : m_kod),
             *m_adaylar);
        m_değişti();
        return;
    }
    if (sonuç.Tamam()) {
        if (!BağlanırMı(*malzeme, eski)) return;
        const bool aynı = eski && eski->Kod == m_kod;
        Bağ bağ = aynı ? *eski : Bağ{malzeme->Ad, m_kod, {}, malzeme->Fiyat, {}, 0};
        bağ.Fiyat = *fiyat;
        sonuç = BağıYaz(ODBCBağlantısı(), bağ);
    }
    if (!İşSonucunuGöster(sonuç)) return;
    m_fiyat->clear();
    m_değişti();
    m_süz->setFocus();
}

void DövizBağları::Çöz() {
    const QString malzeme = SeçiliBağ();
    if (malzeme.isEmpty()) return;
    if (!İşSonucunuGöster(BağıSil(ODBCBağlantısı(), malzeme))) return;
    m_değişti();
}
