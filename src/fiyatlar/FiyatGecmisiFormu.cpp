#include "FiyatGecmisiFormu.h"

#include <QDateTime>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QSplitter>
#include <QVBoxLayout>
#include <algorithm>
#include <limits>

#include "BasamakGrafigi.h"
#include "CizelgeKaydi.h"
#include "FiyatMetinleri.h"
#include "FormParcalari.h"
#include "GeriAlma.h"
#include "GirisKutusu.h"
#include "KatalogKaynagi.h"
#include "MalzemeDegisimi.h"
#include "ListeCizelgesi.h"
#include "MetinTablosu.h"
#include "OdbcModulu.h"
#include "Tablo.h"
#include "TurkceSira.h"

namespace {

enum Sütunlar { GMalzeme, GZaman, GEski, GYeni, GFark, GYüzde, GTür, GAçıklama, GDurum };

const QList<TabloSütunu> MALZEME_SÜTUNLARI{{MetinNo::MalzemeSütunu, 20}, {MetinNo::FiyatıSütunu, 9, true}};
const QList<TabloSütunu> GEÇMİŞ_SÜTUNLARI{
    {MetinNo::MalzemeSütunu, 20},         {MetinNo::ZamanSütunu, 14},      {MetinNo::EskiFiyatSütunu, 11, true},
    {MetinNo::YeniFiyatSütunu, 11, true}, {MetinNo::FarkSütunu, 10, true}, {MetinNo::YüzdeSütunu, 8, true},
    {MetinNo::İşlemSütunu, 14},           {MetinNo::AçıklamaSütunu, 26},   {MetinNo::DurumSütunu, 12}};

// Without an old price nothing can be said in per cent: before everything else.
double Oranı(const Deyimler::Fiyat::Değişim& d) {
    constexpr double yok = -1e300;
    return d.Eski.OnBindeBir() == 0 ? yok : (d.Yeni.Double() - d.Eski.Double()) / d.Eski.Double();
}

constexpr std::size_t EN_ÇOK_KAYIT = 10'000;
constexpr qsizetype EN_ÇOK_ÇİZGİ = 12;  // more cannot be told apart

QDateTime ZamanOku(const QString& zaman) {
    return QDateTime::fromString(zaman, QStringLiteral("yyyy-MM-dd HH:mm:ss"));
}

}  // namespace

class FiyatGeçmişiFormu::MalzemeKaynağı : public KatalogKaynağı {
  public:
    MalzemeKaynağı() : KatalogKaynağı(Malzemeler) {}

    std::vector<KatalogMalzemesi> Malzemeler;
    std::vector<bool> İşaretliler;

    std::optional<bool> İşaret(std::size_t satır) const override { return İşaretliler[satır]; }
    void İşaretle(std::size_t satır, bool işaretli) override { İşaretliler[satır] = işaretli; }
};

class FiyatGeçmişiFormu::GeçmişKaynağı : public TabloKaynağı {
  public:
    struct Satır {
        Deyimler::Fiyat::Değişim Değişim;  // operation 0: a price that no operation wrote
        const Deyimler::Fiyat::İşlem* İşlem = nullptr;
        bool Fiyatlı = true;  // false: the operation changed used rows and no price
    };
    std::vector<Satır> Satırlar;

    std::size_t SatırSayısı() const override { return Satırlar.size(); }
    QString Hücre(std::size_t satır, int sütun) const override {
        const auto& [d, işlem, fiyatlı] = Satırlar[satır];
        if (!fiyatlı && sütun >= GEski && sütun <= GYüzde) return {};
        switch (sütun) {
            case GMalzeme:
                // An operation on used rows as a whole has no one material: what it did stands there.
                return !fiyatlı && d.Malzeme.isEmpty() ? işlem->Açıklama : d.Malzeme;
            case GZaman:
                return işlem ? ZamanOku(işlem->Zaman).toString(QStringLiteral("dd.MM.yyyy HH:mm")) : QString();
            case GEski:
                return d.Malzemenin == Deyimler::Fiyat::Varlık::Eklendi ? QString() : FiyatMetni(d.Eski);
            case GYeni:
                return d.Malzemenin == Deyimler::Fiyat::Varlık::Silindi ? QString() : FiyatMetni(d.Yeni);
            case GFark:
                return d.Malzemenin == Deyimler::Fiyat::Varlık::Aynı ? FiyatFarkı(d.Eski, d.Yeni) : QString();
            case GYüzde:
                return d.Malzemenin == Deyimler::Fiyat::Varlık::Aynı ? YüzdeFarkı(d.Eski, d.Yeni) : QString();
            case GTür:
                return işlem ? TürMetni(işlem->Tür) : Metin(MetinNo::KayıtDışı);
            case GAçıklama:
                return işlem ? işlem->Açıklama : QString();
            default:
                return işlem && işlem->GeriAlan != 0 ? Metin(MetinNo::GeriAlındı) : QString();
        }
    }
    int Karşılaştır(std::size_t a, std::size_t b, int sütun) const override {
        const Deyimler::Fiyat::Değişim& x = Satırlar[a].Değişim;
        const Deyimler::Fiyat::Değişim& y = Satırlar[b].Değişim;
        switch (sütun) {
            case GZaman:
                return Sırala(x.İşlem, y.İşlem);  // the numbers alone give the order
            case GEski:
                return Sırala(x.Eski, y.Eski);
            case GYeni:
                return Sırala(x.Yeni, y.Yeni);
            case GFark:
                return Sırala(x.Yeni.Double() - x.Eski.Double(), y.Yeni.Double() - y.Eski.Double());
            case GYüzde:
                return Sırala(Oranı(x), Oranı(y));
            default:
                return TabloKaynağı::Karşılaştır(a, b, sütun);
        }
    }
    QString Açıklama(std::size_t satır) const override { return Hücre(satır, GAçıklama); }
};

FiyatGeçmişiFormu::FiyatGeçmişiFormu(DeğişimÇevirici çevir, QWidget* sahip)
    : QDialog(sahip),
      m_çevir(std::move(çevir)),
      m_malzemeler(std::make_unique<MalzemeKaynağı>()),
      m_geçmiş(std::make_unique<GeçmişKaynağı>()),
      m_malzemeModeli(std::make_unique<TabloModeli>(*m_malzemeler, MALZEME_SÜTUNLARI)),
      m_geçmişModeli(std::make_unique<TabloModeli>(*m_geçmiş, GEÇMİŞ_SÜTUNLARI)) {
    setObjectName(QStringLiteral("FiyatGeçmişiFormu"));
    setWindowTitle(Metin(MetinNo::FiyatGeçmişiBaşlığı));
    KontrolleriKur();
    m_geriAl->setVisible(static_cast<bool>(m_çevir));
    Yerleştir();
}

FiyatGeçmişiFormu::~FiyatGeçmişiFormu() {
    // The views go before the models that they show.
    delete m_malzemeTablosu;
    delete m_geçmişTablosu;
}

void FiyatGeçmişiFormu::KontrolleriKur() {
    m_süz = new GirişKutusu;
    m_süz->setObjectName(QStringLiteral("MalzemeSüzKutusu"));
    connect(m_süz, &QLineEdit::textChanged, this, [this](const QString& metin) {
        const QString aranan = metin.simplified();
        m_malzemeModeli->Süz(
            [this, aranan](std::size_t satır) { return Türkçe::İçerir(m_malzemeler->Malzemeler[satır].Ad, aranan); });
    });
    m_malzemeTablosu = new Tablo(QStringLiteral("MalzemeTablosu"), *m_malzemeModeli);
    m_malzemeModeli->İşaretlenince([this] { GeçmişiOku(); });
    m_geçmişTablosu = new Tablo(QStringLiteral("GeçmişTablosu"), *m_geçmişModeli);
    connect(m_geçmişTablosu->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this] { DüğmeyiAyarla(); });
    m_grafik = new BasamakGrafiği(QStringLiteral("GeçmişGrafiği"), Metin(MetinNo::GrafikBoş));
    m_grafik->setAccessibleName(Metin(MetinNo::GrafikEtiketi));
    m_not = new QLabel;
    m_not->setObjectName(QStringLiteral("NotEtiketi"));
    m_geriAl = DüğmeOluştur(QStringLiteral("GeriAlButonu"), MetinNo::İşlemiGeriAl, [this] { GeriAl(); });
}

void FiyatGeçmişiFormu::Yerleştir() {
    auto* sol = new QWidget;
    auto* solDüzen = new QVBoxLayout(sol);
    solDüzen->setContentsMargins(0, 0, 0, 0);
    solDüzen->addWidget(VurgulananEtiket(1, MetinNo::MalzemeSüz, m_süz));
    solDüzen->addWidget(m_süz);
    solDüzen->addWidget(VurgulananEtiket(2, MetinNo::MalzemelerEtiketi, m_malzemeTablosu));
    solDüzen->addWidget(m_malzemeTablosu, 1);
    auto* alt = new QWidget;
    auto* altDüzen = new QVBoxLayout(alt);
    altDüzen->setContentsMargins(0, 0, 0, 0);
    altDüzen->addWidget(VurgulananEtiket(3, MetinNo::DeğişimlerEtiketi, m_geçmişTablosu));
    altDüzen->addWidget(m_geçmişTablosu, 1);
    altDüzen->addWidget(m_not);
    auto* sağ = new QSplitter(Qt::Vertical);
    sağ->setObjectName(QStringLiteral("SağBölen"));
    sağ->setChildrenCollapsible(false);
    sağ->addWidget(m_grafik);
    sağ->addWidget(alt);
    auto* bölen = new QSplitter(Qt::Horizontal);
    bölen->setObjectName(QStringLiteral("Bölen"));
    bölen->setChildrenCollapsible(false);
    bölen->addWidget(sol);
    bölen->addWidget(sağ);
    bölen->setStretchFactor(1, 1);
    const int solGenişlik = m_malzemeTablosu->sizeHint().width();
    bölen->setSizes({solGenişlik, 1040 - solGenişlik});
    auto* kapat = DüğmeOluştur(QStringLiteral("KapatButonu"), MetinNo::Kapat, [this] { reject(); });
    auto* aktar = DüğmeOluştur(QStringLiteral("TabloyaAktarButonu"), MetinNo::ExcelKaydet, [this] {
        ÇizelgeyeKaydet(*this, windowTitle(), [this](const QString& yol) {
            return TabloyuÇizelgeyeYaz(yol, windowTitle(), *m_geçmişModeli);
        });
    });
    auto* düzen = new QVBoxLayout(this);
    düzen->addWidget(bölen, 1);
    düzen->addLayout(DüğmeSırası({m_geriAl, aktar, nullptr, kapat}));
    m_malzemeTablosu->setFocus();
    BoyVer(*this, {1040, 620});
}

bool FiyatGeçmişiFormu::Yükle(const QString& malzeme) {
    MalzemeKataloğu katalog;
    std::vector<Deyimler::Fiyat::İşlem> işlemler;  // the shown rows point to the former ones
    İşSonucu sonuç = katalog.Oku(ODBCBağlantısı());
    if (sonuç.Tamam()) sonuç = İşlemleriOku(ODBCBağlantısı(), işlemler);
    if (!İşSonucunuGöster(sonuç)) return false;
    m_işlemler = std::move(işlemler);
    m_değiştirmeVar = std::any_of(m_işlemler.begin(), m_işlemler.end(), ÜrünleriDeğiştirir);
    m_işlemYerleri.clear();
    for (std::size_t i = 0; i < m_işlemler.size(); ++i) m_işlemYerleri[m_işlemler[i].No] = i;
    const std::uint32_t seçilen = malzeme.isEmpty() ? AdDizini::YOK : katalog.Dizin.Bul(malzeme.toStdString());
    std::vector<bool> işaretliler(katalog.Malzemeler.size(), false);
    for (std::size_t i = 0; i < m_malzemeler->Malzemeler.size(); ++i) {
        if (!m_malzemeler->İşaretliler[i]) continue;
        const std::uint32_t yer = katalog.Dizin.Bul(m_malzemeler->Malzemeler[i].Ad.toStdString());
        if (yer != AdDizini::YOK) işaretliler[yer] = true;
    }
    m_malzemeler->İşaretliler = std::move(işaretliler);
    if (seçilen != AdDizini::YOK) m_malzemeler->İşaretliler[seçilen] = true;
    m_malzemeler->Malzemeler = std::move(katalog.Malzemeler);
    m_malzemeModeli->Yenile();
    if (seçilen != AdDizini::YOK) {
        m_malzemeTablosu->setCurrentIndex(m_malzemeModeli->index(static_cast<int>(seçilen), 0));
        m_malzemeTablosu->scrollTo(m_malzemeTablosu->currentIndex());
    }
    GeçmişiOku();
    return true;
}

const Deyimler::Fiyat::İşlem* FiyatGeçmişiFormu::İşlemiBul(std::int64_t no) const {
    const auto yer = m_işlemYerleri.find(no);
    return yer == m_işlemYerleri.end() ? nullptr : &m_işlemler[yer->second];
}

İşSonucu FiyatGeçmişiFormu::MalzemeninGeçmişiniOku(const KatalogMalzemesi& malzeme, BasamakDizisi& dizi) {
    if (m_işlemler.empty() || !Deyimler::Yazılabilir(malzeme.Ad)) return {};
    std::vector<Deyimler::Fiyat::Değişim> değişimler;
    bool fazlaVar = false;
    const İşSonucu sonuç = DeğişimleriOku(ODBCBağlantısı(), Deyimler::Fiyat::MalzemeninDeğişimleri(malzeme.Ad),
                                          değişimler, EN_ÇOK_KAYIT, fazlaVar);
    m_fazlaVar |= fazlaVar;
    if (!sonuç.Tamam() || değişimler.empty()) return sonuç;
    // A price that no operation wrote: another program, or the time before the records.
    if (değişimler.front().Yeni != malzeme.Fiyat)
        değişimler.insert(değişimler.begin(), {0, malzeme.Ad, değişimler.front().Yeni, malzeme.Fiyat});
    for (const auto& değişim : değişimler) m_geçmiş->Satırlar.push_back({değişim, İşlemiBul(değişim.İşlem)});
    dizi.İlkDeğer = değişimler.back().Eski.Double();
    for (auto değişim = değişimler.rbegin(); değişim != değişimler.rend(); ++değişim) {
        const Deyimler::Fiyat::İşlem* işlem = İşlemiBul(değişim->İşlem);
        QDateTime zaman = işlem ? ZamanOku(işlem->Zaman) : QDateTime::currentDateTime();
        // A clock that was set back: the order of the operations holds.
        if (!dizi.Noktalar.isEmpty()) zaman = std::max(zaman, dizi.Noktalar.last().Zaman);
        dizi.Noktalar.append({zaman, değişim->Yeni.Double()});
    }
    return sonuç;
}

// Beside the material's price changes, which stand from `ilk` on.
İşSonucu FiyatGeçmişiFormu::DeğiştirmeleriEkle(std::size_t ilk, const QString& malzeme) {
    if (!m_değiştirmeVar) return {};
    std::vector<std::int64_t> işlemler;
    const İşSonucu sonuç = MalzemeninDeğiştirmeleri(ODBCBağlantısı(), malzeme, işlemler);
    const std::size_t fiyatlar = m_geçmiş->Satırlar.size();
    for (const std::int64_t no : işlemler) {
        const auto fiyatlı = std::any_of(m_geçmiş->Satırlar.begin() + static_cast<std::ptrdiff_t>(ilk),
                                         m_geçmiş->Satırlar.begin() + static_cast<std::ptrdiff_t>(fiyatlar),
                                         [no](const auto& satır) { return satır.Değişim.İşlem == no; });
        const Deyimler::Fiyat::İşlem* işlem = İşlemiBul(no);
        if (işlem && !fiyatlı) m_geçmiş->Satırlar.push_back({{no, malzeme, {}, {}}, işlem, false});
    }
    const auto sıra = [](const GeçmişKaynağı::Satır& satır) {
        return satır.İşlem ? satır.Değişim.İşlem : std::numeric_limits<std::int64_t>::max();
    };
    std::stable_sort(m_geçmiş->Satırlar.begin() + static_cast<std::ptrdiff_t>(ilk), m_geçmiş->Satırlar.end(),
                     [&sıra](const auto& a, const auto& b) { return sıra(a) > sıra(b); });
    return sonuç;
}

// Replacements and their taking back, each in one row without a material, down to the last operation that is shown.
void FiyatGeçmişiFormu::HerDeğiştirmeyiEkle() {
    std::vector<GeçmişKaynağı::Satır>& satırlar = m_geçmiş->Satırlar;
    const std::int64_t son = m_fazlaVar ? satırlar.back().Değişim.İşlem : 0;
    for (const Deyimler::Fiyat::İşlem& işlem : m_işlemler) {
        const Deyimler::Fiyat::İşlem* asıl = işlem.Karşılığı == 0 ? &işlem : İşlemiBul(işlem.Karşılığı);
        if (işlem.No >= son && asıl && ÜrünleriDeğiştirir(*asıl))
            satırlar.push_back({{işlem.No, {}, {}, {}}, &işlem, false});
    }
    std::stable_sort(satırlar.begin(), satırlar.end(),
                     [](const auto& a, const auto& b) { return a.Değişim.İşlem > b.Değişim.İşlem; });
}

void FiyatGeçmişiFormu::GeçmişiOku() {
    m_geçmiş->Satırlar.clear();
    m_fazlaVar = false;
    İşSonucu sonuç;
    QList<BasamakDizisi> diziler;
    for (std::size_t i = 0; i < m_malzemeler->Malzemeler.size() && sonuç.Tamam(); ++i) {
        if (!m_malzemeler->İşaretliler[i]) continue;
        const KatalogMalzemesi& malzeme = m_malzemeler->Malzemeler[i];
        diziler.append({malzeme.Ad, malzeme.Fiyat.Double(), {}});
        const std::size_t ilk = m_geçmiş->Satırlar.size();
        sonuç = MalzemeninGeçmişiniOku(malzeme, diziler.last());
        if (sonuç.Tamam()) sonuç = DeğiştirmeleriEkle(ilk, malzeme.Ad);
    }
    if (diziler.isEmpty() && !m_işlemler.empty()) {
        std::vector<Deyimler::Fiyat::Değişim> değişimler;
        sonuç = DeğişimleriOku(ODBCBağlantısı(), Deyimler::Fiyat::Değişimler(), değişimler, EN_ÇOK_KAYIT, m_fazlaVar);
        for (const auto& değişim : değişimler) m_geçmiş->Satırlar.push_back({değişim, İşlemiBul(değişim.İşlem)});
        HerDeğiştirmeyiEkle();
    }
    // Not read is not empty, and a part is no history: the box says why.
    if (!sonuç.Tamam()) {
        m_geçmiş->Satırlar.clear();
        diziler.clear();
    }
    m_geçmişModeli->Yenile();
    QStringList notlar;
    if (m_fazlaVar) notlar.append(Metin(MetinNo::YalnızSonKayıtlar).arg(EN_ÇOK_KAYIT));
    if (diziler.size() > EN_ÇOK_ÇİZGİ) notlar.append(Metin(MetinNo::GrafikteİlkMalzemeler).arg(EN_ÇOK_ÇİZGİ));
    m_not->setText(notlar.join(QLatin1Char(' ')));
    m_not->setVisible(!notlar.isEmpty());
    m_grafik->Göster(diziler.mid(0, EN_ÇOK_ÇİZGİ), QDateTime::currentDateTime());
    DüğmeyiAyarla();
    İşSonucunuGöster(sonuç);
}

const Deyimler::Fiyat::İşlem* FiyatGeçmişiFormu::Seçiliİşlem() const {
    const std::optional<std::size_t> satır = m_geçmişTablosu->SeçiliSatır();
    return satır ? m_geçmiş->Satırlar[*satır].İşlem : nullptr;
}

void FiyatGeçmişiFormu::DüğmeyiAyarla() {
    const Deyimler::Fiyat::İşlem* işlem = Seçiliİşlem();
    m_geriAl->setEnabled(işlem && Kendiİşlemi(*işlem) && işlem->GeriAlan == 0);
}

void FiyatGeçmişiFormu::GeriAl() {
    const Deyimler::Fiyat::İşlem* işlem = Seçiliİşlem();
    if (!işlem || !İşlemiGeriAl(Deyimler::Fiyat::İşlem(*işlem), m_çevir, this)) return;
    m_uygulandı = true;
    static_cast<void>(Yükle());
}
