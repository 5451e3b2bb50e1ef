#include "YariMamulFormu.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QSplitter>
#include <QVBoxLayout>

#include "CizelgeKaydi.h"
#include "Deyimler.h"
#include "DovizKayitlari.h"
#include "FiyatIsi.h"
#include "FormParcalari.h"
#include "GirisKutusu.h"
#include "MesajKutusu.h"
#include "MetinTablosu.h"
#include "UrunMetinleri.h"
#include "OdbcModulu.h"
#include "OdbcTanitici.h"
#include "Tablo.h"
#include "TurkceSira.h"
#include "YariMamulCiktilari.h"
#include "YariMamulMetinleri.h"
#include "YariMamulSozleri.h"
#include "YariMamulYayilimi.h"
#include "Yazdirma.h"

YarıMamulFormu::YarıMamulFormu(QWidget* sahip)
    : QDialog(sahip),
      m_malzemeKaynağı(m_malzemeler),
      m_bağModeli(m_bağKaynağı, BağlarınKaynağı::Sütunlar()),
      m_malzemeModeli(m_malzemeKaynağı, {{MetinNo::MalzemeSütunu, 30}, {MetinNo::FiyatıSütunu, 12, true}}),
      m_ürünModeli(m_ürünKaynağı, ÜrünlerinKaynağı::Sütunlar()) {
    setObjectName(QStringLiteral("YarıMamulFormu"));
    setWindowTitle(Metin(YarıMamulMetni::YarıMamulBaşlığı));
    TablolarıKur();
    DüğmeleriKur();
    Yerleştir();
}

YarıMamulFormu::~YarıMamulFormu() {
    // The views go before the models that they show.
    for (Tablo* tablo : {m_bağlar, m_malzemeTablosu, m_ürünler}) delete tablo;
}

void YarıMamulFormu::TablolarıKur() {
    const auto süzKutusu = [this](const QString& ad, void (YarıMamulFormu::*süz)()) {
        auto* kutu = new GirişKutusu;
        kutu->setObjectName(ad);
        connect(kutu, &QLineEdit::textChanged, this, [this, süz] { (this->*süz)(); });
        return kutu;
    };
    const auto tablo = [this](const QString& ad, TabloModeli& model) {
        auto* yeni = new Tablo(ad, model);
        connect(yeni->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] { DüğmeleriAyarla(); });
        return yeni;
    };
    m_bağlar = tablo(QStringLiteral("YarıMamulTablosu"), m_bağModeli);
    m_not = TabloNotu(QStringLiteral("YarıMamulNotu"), *m_bağlar);
    connect(m_bağlar, &QAbstractItemView::doubleClicked, this, [this] { Git(); });
    m_malzemeSüz = süzKutusu(QStringLiteral("MalzemeSüzKutusu"), &YarıMamulFormu::MalzemeleriSüz);
    m_malzemeTablosu = tablo(QStringLiteral("MalzemeListesi"), m_malzemeModeli);
    m_ürünSüz = süzKutusu(QStringLiteral("ÜrünSüzKutusu"), &YarıMamulFormu::ÜrünleriSüz);
    m_ürünler = tablo(QStringLiteral("ÜrünListesi"), m_ürünModeli);
    m_tür = new QComboBox;
    m_tür->setObjectName(QStringLiteral("TutarTürüListesi"));
    for (const TutarTürü tür : {TutarTürü::Malzeme, TutarTürü::Toplam, TutarTürü::Birim})
        m_tür->addItem(TutarTürüMetni(tür));
    Enterİleİlerlesin(m_tür);
}

void YarıMamulFormu::DüğmeleriKur() {
    m_bağla = DüğmeOluştur(QStringLiteral("BağlaButonu"), YarıMamulMetni::Bağla, [this] { Bağla(); });
    m_çöz = DüğmeOluştur(QStringLiteral("ÇözButonu"), YarıMamulMetni::Çöz, [this] { Çöz(); });
    m_git = DüğmeOluştur(QStringLiteral("GitButonu"), ÜrünMetni::ÜrüneGit, [this] { Git(); });
    m_yazdır = DüğmeOluştur(QStringLiteral("YazdırButonu"), MetinNo::Yazdır,
                            [this] { static_cast<void>(Yazdır(*this, *m_yazdır, Rapor())); });
    m_pdf = DüğmeOluştur(QStringLiteral("PdfKaydetButonu"), MetinNo::PdfKaydet,
                         [this] { PdfKaydet(*this, *m_pdf, Rapor()); });
}

QWidget* YarıMamulFormu::SüzülenBölüm(int sıra, MetinNo süzEtiketi, GirişKutusu* süz, MetinNo başlık, Tablo* tablo) {
    auto* bölüm = new QWidget;
    auto* düzen = new QVBoxLayout(bölüm);
    düzen->setContentsMargins(0, 0, 0, 0);
    auto* üst = new QHBoxLayout;
    üst->addWidget(VurgulananEtiket(sıra, süzEtiketi, süz));
    üst->addWidget(süz, 1);
    düzen->addLayout(üst);
    düzen->addWidget(VurgulananEtiket(sıra + 1, başlık, tablo));
    düzen->addWidget(tablo, 1);
    return bölüm;
}

void YarıMamulFormu::Yerleştir() {
    auto* bağlar = new QWidget;
    auto* bağDüzeni = new QVBoxLayout(bağlar);
    bağDüzeni->setContentsMargins(0, 0, 0, 0);
    bağDüzeni->addWidget(VurgulananEtiket(1, YarıMamulMetni::BağlarEtiketi, m_bağlar));
    bağDüzeni->addWidget(m_bağlar, 1);
    bağDüzeni->addLayout(DüğmeSırası({m_git, m_çöz, nullptr}));
    auto* seçim = new QSplitter(Qt::Horizontal);
    seçim->setObjectName(QStringLiteral("SeçimBölen"));
    seçim->setChildrenCollapsible(false);
    seçim->addWidget(
        SüzülenBölüm(2, YarıMamulMetni::MalzemeSüz, m_malzemeSüz, YarıMamulMetni::MalzemelerEtiketi, m_malzemeTablosu));
    seçim->addWidget(SüzülenBölüm(4, YarıMamulMetni::ÜrünSüz, m_ürünSüz, YarıMamulMetni::ÜrünlerEtiketi, m_ürünler));
    auto* yeni = new QWidget;
    auto* yeniDüzeni = new QVBoxLayout(yeni);
    yeniDüzeni->setContentsMargins(0, 0, 0, 0);
    yeniDüzeni->addWidget(seçim, 1);
    auto* türSırası = new QHBoxLayout;
    türSırası->addWidget(VurgulananEtiket(6, YarıMamulMetni::TürEtiketi, m_tür));
    türSırası->addWidget(m_tür);
    türSırası->addWidget(m_bağla);
    türSırası->addStretch();
    yeniDüzeni->addLayout(türSırası);
    auto* bölen = new QSplitter(Qt::Vertical);
    bölen->setObjectName(QStringLiteral("Bölen"));
    bölen->setChildrenCollapsible(false);
    bölen->addWidget(bağlar);
    bölen->addWidget(yeni);
    auto* önizle =
        DüğmeOluştur(QStringLiteral("ÖnizlemeButonu"), MetinNo::Önizleme, [this] { Önizle(*this, Rapor()); });
    auto* aktar = DüğmeOluştur(QStringLiteral("TabloyaAktarButonu"), ÜrünMetni::TabloyaAktar, [this] { Çizelgeye(); });
    auto* kapat = DüğmeOluştur(QStringLiteral("KapatButonu"), MetinNo::Kapat, [this] { reject(); });
    auto* düzen = new QVBoxLayout(this);
    düzen->addWidget(bölen, 1);
    düzen->addLayout(DüğmeSırası({m_yazdır, m_pdf, önizle, aktar, nullptr, kapat}));
    m_bağlar->setFocus();
    BoyVer(*this, {1060, 720});
}

bool YarıMamulFormu::Yükle() {
    const YarıMamulBağları* bağlar = nullptr;
    MalzemeKataloğu katalog;
    std::vector<ÜrünAdı> ürünler;
    İşSonucu sonuç = YarıMamulleriAl(ODBCBağlantısı(), bağlar);
    if (sonuç.Tamam()) sonuç = katalog.Oku(ODBCBağlantısı());
    if (sonuç.Tamam())
        sonuç = İşSonucuYap(ODBCBağlantısı().Oku(Deyimler::ÜrünAğacı(), [&ürünler](OdbcSatırı& satır) {
            ürünler.push_back({satır.Metin(1), satır.Metin(2)});
            return true;
        }));
    if (!İşSonucunuGöster(sonuç)) return false;
    m_bağKaynağı.Satırlar.clear();
    for (const YarıMamulBağı& bağ : bağlar->Bağlar()) {
        const std::uint32_t yer = katalog.Dizin.Bul(bağ.Malzeme.toStdString());
        m_bağKaynağı.Satırlar.push_back(
            {bağ, yer == AdDizini::YOK ? std::nullopt : std::optional(katalog.Malzemeler[yer].Fiyat)});
    }
    m_malzemeler = std::move(katalog.Malzemeler);
    m_ürünKaynağı.Satırlar = std::move(ürünler);
    m_bağModeli.Yenile();
    NotuYaz(*m_not, *m_bağlar, Metin(YarıMamulMetni::YarıMamulYok));
    MalzemeleriSüz();
    ÜrünleriSüz();
    return true;
}

void YarıMamulFormu::MalzemeleriSüz() {
    const QString aranan = m_malzemeSüz->text().simplified();
    m_malzemeModeli.Süz([this, aranan](std::size_t satır) { return Türkçe::İçerir(m_malzemeler[satır].Ad, aranan); });
    DüğmeleriAyarla();
}

void YarıMamulFormu::ÜrünleriSüz() {
    const QString aranan = m_ürünSüz->text().simplified();
    m_ürünModeli.Süz([this, aranan](std::size_t satır) {
        const ÜrünAdı& ürün = m_ürünKaynağı.Satırlar[satır];
        return Türkçe::İçerir(ürün.Ad, aranan) || Türkçe::İçerir(ürün.Grup, aranan);
    });
    DüğmeleriAyarla();
}

void YarıMamulFormu::DüğmeleriAyarla() {
    const bool bağVar = m_bağlar->SeçiliSatır().has_value();
    m_git->setEnabled(bağVar);
    m_çöz->setEnabled(bağVar);
}

bool YarıMamulFormu::DövizeBağlıDeğil(const YarıMamulBağı& bağ) {
    std::optional<Deyimler::Döviz::Bağ> döviz;
    const İşSonucu sonuç = MalzemeninBağınıOku(ODBCBağlantısı(), bağ.Malzeme, döviz);
    if (!sonuç.Tamam()) İşSonucunuGöster(sonuç);
    if (!sonuç.Tamam() || !döviz) return sonuç.Tamam();
    return Uyar(Metin(YarıMamulMetni::DövizeBağlı).arg(bağ.Malzeme, döviz->Kod), *m_malzemeTablosu);
}

bool YarıMamulFormu::DöngüOlmaz(const YarıMamulBağları& bağlar, const YarıMamulBağı& bağ) {
    QStringList malzemeler;
    if (!İşSonucunuGöster(ÜrününMalzemeleri(ODBCBağlantısı(), bağ.Ürün, malzemeler))) return false;
    QStringList zincir = bağlar.Zincir(malzemeler, bağ.Malzeme);
    if (zincir.isEmpty()) return true;
    zincir.removeLast();  // the material itself, which the text ends with
    zincir.prepend(bağ.Ürün.Ad);
    return Uyar(Metin(YarıMamulMetni::DöngüOlur).arg(bağ.Malzeme, bağ.Ürün.Ad, ZincirMetni(bağ.Malzeme, zincir)),
                *m_ürünler);
}

bool YarıMamulFormu::FiyatıVar(const YarıMamulBağı& bağ) {
    YarıMamulFiyatı fiyat;
    if (!İşSonucunuGöster(ÜrününFiyatınıHesapla(ODBCBağlantısı(), bağ.Ürün, bağ.Tür, fiyat))) return false;
    return fiyat.Durum == BağDurumu::Uyuyor ||
           Uyar(Metin(YarıMamulMetni::FiyatHesaplanamıyor)
                    .arg(bağ.Ürün.Grup, bağ.Ürün.Ad, TutarTürüMetni(bağ.Tür), DurumMetni(fiyat.Durum)),
                *m_ürünler);
}

// What the file holds at this moment counts, not what is shown.
bool YarıMamulFormu::Bağlanır(const YarıMamulBağı& bağ) {
    for (const QString& ad : {bağ.Malzeme, bağ.Ürün.Grup, bağ.Ürün.Ad})
        if (!Deyimler::Yazılabilir(ad)) return Uyar(Metin(YarıMamulMetni::KesmeliBağlanmaz).arg(ad), *m_malzemeTablosu);
    const YarıMamulBağları* bağlar = nullptr;
    if (!İşSonucunuGöster(YarıMamulleriAl(ODBCBağlantısı(), bağlar))) return false;
    if (const YarıMamulBağı* eski = bağlar->Bağı(bağ.Malzeme))
        return Uyar(Metin(YarıMamulMetni::ZatenBağlı).arg(eski->Malzeme, eski->Ürün.Grup, eski->Ürün.Ad), *m_bağlar);
    return DövizeBağlıDeğil(bağ) && DöngüOlmaz(*bağlar, bağ) && FiyatıVar(bağ);
}

// The material's price becomes the product's; asked again where the data have changed meanwhile.
Fiyatİşi YarıMamulFormu::İş(const YarıMamulBağı& bağ) const {
    const QString açıklama =
        Metin(YarıMamulMetni::BağlamaAçıklaması).arg(bağ.Malzeme, bağ.Ürün.Grup, bağ.Ürün.Ad, TutarTürüMetni(bağ.Tür));
    return {{İşlemTürü::YarıMamul, açıklama}, [bağ](FiyatTeklifi& teklif, QStringList& notlar) {
                std::optional<KatalogMalzemesi> malzeme;
                YarıMamulFiyatı fiyat;
                İşSonucu sonuç = MalzemeyiOku(ODBCBağlantısı(), bağ.Malzeme, malzeme);
                if (sonuç.Tamam()) sonuç = ÜrününFiyatınıHesapla(ODBCBağlantısı(), bağ.Ürün, bağ.Tür, fiyat);
                if (!sonuç.Tamam()) return sonuç;
                if (!malzeme) {
                    notlar.append(Metin(YarıMamulMetni::KatalogdaYok).arg(bağ.Malzeme));
                    return sonuç;
                }
                FiyatÖnerisi öneri{malzeme->Ad, malzeme->Fiyat, fiyat.Fiyat};
                if (malzeme->Fiyat == fiyat.Fiyat) öneri.Neden = PlanNedeni::Değişmiyor;
                if (fiyat.Durum != BağDurumu::Uyuyor) {
                    notlar.append(DurumMetni(fiyat.Durum));
                    return sonuç;
                }
                teklif.Öneriler.push_back(öneri);
                teklif.Bağ = bağ;
                return sonuç;
            }};
}

void YarıMamulFormu::Bağla() {
    const std::optional<std::size_t> malzeme = m_malzemeTablosu->SeçiliSatır();
    const std::optional<std::size_t> ürün = m_ürünler->SeçiliSatır();
    if (!malzeme || !ürün) {
        malzeme ? Uyar(YarıMamulMetni::ÜrünSeçiniz, *m_ürünler)
                : Uyar(YarıMamulMetni::MalzemeSeçiniz, *m_malzemeTablosu);
        return;
    }
    const YarıMamulBağı bağ{m_malzemeler[*malzeme].Ad, m_ürünKaynağı.Satırlar[*ürün],
                            static_cast<TutarTürü>(m_tür->currentIndex())};
    if (!Bağlanır(bağ) || !FiyatİşiniYürüt(İş(bağ), this)) return;
    m_değişti = true;
    static_cast<void>(Yükle());
    m_bağlar->SatırıSeç([&](std::size_t satır) { return m_bağKaynağı.Satırlar[satır].Bağ.Malzeme == bağ.Malzeme; });
    m_bağlar->setFocus();
}

void YarıMamulFormu::Çöz() {
    const std::optional<std::size_t> satır = m_bağlar->SeçiliSatır();
    if (!satır) return;
    const YarıMamulBağı bağ = m_bağKaynağı.Satırlar[*satır].Bağ;
    if (!Sor(Metin(YarıMamulMetni::ÇözmeOnayı).arg(bağ.Malzeme, bağ.Ürün.Grup, bağ.Ürün.Ad))) return;
    İşSonucunuGöster(YarıMamulBağınıÇöz(ODBCBağlantısı(), bağ.Malzeme));
    m_değişti = true;
    static_cast<void>(Yükle());
    m_bağlar->setFocus();
}

void YarıMamulFormu::Git() {
    const std::optional<std::size_t> satır = m_bağlar->SeçiliSatır();
    if (!satır) return;
    const YarıMamulBağı& bağ = m_bağKaynağı.Satırlar[*satır].Bağ;
    if (bağ.Durum == BağDurumu::ÜrünYok) {
        Uyar(Metin(YarıMamulMetni::ÜrünBulunamadı).arg(bağ.Ürün.Grup, bağ.Ürün.Ad), *m_bağlar);
        return;
    }
    m_gidilecek = bağ.Ürün;
    accept();
}

Yazdırılacak YarıMamulFormu::Rapor() const {
    return {windowTitle(), [this](SayfaYüzeyi& yüzey) { BağlarıYaz(yüzey, windowTitle(), m_bağKaynağı, m_bağModeli); },
            true};
}

void YarıMamulFormu::Çizelgeye() {
    ÇizelgeyeKaydet(*this, windowTitle(), [this](const QString& yol) {
        return BağlarıÇizelgeyeYaz(yol, windowTitle(), m_bağKaynağı, m_bağModeli);
    });
}
