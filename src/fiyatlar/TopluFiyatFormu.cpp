#include "TopluFiyatFormu.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QRadioButton>
#include <QVBoxLayout>
#include <algorithm>

#include "CizelgeKaydi.h"
#include "CizelgeMetinleri.h"
#include "FiyatMetinleri.h"
#include "FormParcalari.h"
#include "GirisKutusu.h"
#include "IlerlemeKutusu.h"
#include "MetinTablosu.h"
#include "OdbcModulu.h"
#include "Saat.h"
#include "SayiKutusu.h"
#include "SayiMetni.h"
#include "Tablo.h"
#include "TarihKutusu.h"
#include "TurkceSira.h"

namespace {

enum Sütunlar { AdSütunu, FiyatSütunu, SonDeğişimSütunu };

const QList<TabloSütunu> SÜTUNLAR{{MetinNo::MalzemeSütunu, 30},
                                  {MetinNo::FiyatıSütunu, 14, true},
                                  {MetinNo::SonDeğişimSütunu, 12, false, ÇizelgedeSütun::Tarih}};

}  // namespace

class TopluFiyatFormu::MalzemeKaynağı : public TabloKaynağı {
  public:
    struct Satır {
        KatalogMalzemesi Malzeme;
        bool İşaretli = false;
        bool Kullanılıyor = false;
        QString SonDeğişim;  // yyyy-MM-dd; "": none recorded
    };
    std::vector<Satır> Satırlar;

    std::size_t SatırSayısı() const override { return Satırlar.size(); }
    QString Hücre(std::size_t satır, int sütun) const override {
        const Satır& s = Satırlar[satır];
        switch (sütun) {
            case AdSütunu:
                return s.Malzeme.Ad;
            case FiyatSütunu:
                return FiyatMetni(s.Malzeme.Fiyat);
            default:
                return GünMetni(s.SonDeğişim);
        }
    }
    int Karşılaştır(std::size_t a, std::size_t b, int sütun) const override {
        const Satır& x = Satırlar[a];
        const Satır& y = Satırlar[b];
        if (sütun == FiyatSütunu) return Sırala(x.Malzeme.Fiyat, y.Malzeme.Fiyat);
        if (sütun == SonDeğişimSütunu) return x.SonDeğişim.compare(y.SonDeğişim);
        return TabloKaynağı::Karşılaştır(a, b, sütun);
    }
    std::optional<bool> İşaret(std::size_t satır) const override { return Satırlar[satır].İşaretli; }
    void İşaretle(std::size_t satır, bool işaretli) override { Satırlar[satır].İşaretli = işaretli; }

    std::ptrdiff_t İşaretliSayısı() const {
        return std::count_if(Satırlar.begin(), Satırlar.end(), [](const Satır& s) { return s.İşaretli; });
    }
};

TopluFiyatFormu::TopluFiyatFormu(QWidget* sahip)
    : QDialog(sahip),
      m_kaynak(std::make_unique<MalzemeKaynağı>()),
      m_model(std::make_unique<TabloModeli>(*m_kaynak, SÜTUNLAR)) {
    setObjectName(QStringLiteral("TopluFiyatFormu"));
    setWindowTitle(Metin(MetinNo::TopluFiyatBaşlığı));
    KontrolleriKur();
    KuralıKur();
    Yerleştir();
    KuralDeğişti();
}

TopluFiyatFormu::~TopluFiyatFormu() {
    delete m_tablo;  // before the model that it shows
}

void TopluFiyatFormu::KontrolleriKur() {
    m_süz = new GirişKutusu;
    m_süz->setObjectName(QStringLiteral("MalzemeSüzKutusu"));
    connect(m_süz, &QLineEdit::textChanged, this, [this] { SüzgeciUygula(); });
    m_tablo = new Tablo(QStringLiteral("MalzemeTablosu"), *m_model);
    m_model->İşaretlenince([this] { SayıyıYaz(); });
    m_kullanılmayanlar = new QCheckBox(Metin(MetinNo::KullanılmayanlarSeçeneği));
    m_kullanılmayanlar->setObjectName(QStringLiteral("KullanılmayanlarSeçeneği"));
    connect(m_kullanılmayanlar, &QCheckBox::toggled, this, [this](bool seçili) {
        if (seçili && !KullanılanlarıOku())
            m_kullanılmayanlar->setChecked(false);
        else
            SüzgeciUygula();
    });
    m_değişmeyenler = new QCheckBox(Metin(MetinNo::DeğişmeyenlerSeçeneği));
    m_değişmeyenler->setObjectName(QStringLiteral("DeğişmeyenlerSeçeneği"));
    m_tarih = new TarihKutusu;
    m_tarih->setObjectName(QStringLiteral("DeğişmeyenlerTarihi"));
    m_tarih->setAccessibleName(Metin(MetinNo::DeğişmeyenlerSeçeneği).remove(QLatin1Char('&')));
    m_tarih->setDate(Bugün());
    m_tarih->setEnabled(false);
    connect(m_değişmeyenler, &QCheckBox::toggled, this, [this](bool seçili) {
        m_tarih->setEnabled(seçili);
        SüzgeciUygula();
    });
    m_tarih->Yazılınca([this] { SüzgeciUygula(); });
    m_tümünüSeç = DüğmeOluştur(QStringLiteral("TümünüSeçButonu"), MetinNo::TümünüSeç, [this] { TümünüSeç(); });
    m_sayı = new QLabel;
    m_sayı->setObjectName(QStringLiteral("İşaretliSayısıEtiketi"));
}

void TopluFiyatFormu::KuralıKur() {
    const auto seçenek = [this](const char* ad, MetinNo metin) {
        auto* düğme = new QRadioButton(Metin(metin));
        düğme->setObjectName(QString::fromUtf8(ad));
        connect(düğme, &QRadioButton::toggled, this, [this] { KuralDeğişti(); });
        return düğme;
    };
    m_oran = new SayıKutusu(SayıKutusu::Tür::Serbest);
    m_oran->setObjectName(QStringLiteral("OranKutusu"));
    TutaraYerAç(m_oran, true);
    m_yüzde = seçenek("YüzdeSeçeneği", MetinNo::YüzdeSeçeneği);
    m_tutar = seçenek("TutarSeçeneği", MetinNo::TutarSeçeneği);
    m_fiyat = seçenek("FiyatSeçeneği", MetinNo::FiyatSeçeneği);
    m_yüzde->setChecked(true);
    m_önizle = DüğmeOluştur(QStringLiteral("ÖnizleButonu"), MetinNo::FiyatÖnizle, [this] { Önizle(); });
}

QWidget* TopluFiyatFormu::SeçimBölümü() {
    auto* bölüm = new QWidget;
    auto* tarihli = new QHBoxLayout;
    tarihli->addWidget(m_değişmeyenler);
    tarihli->addWidget(m_tarih);
    tarihli->addStretch();
    auto* altı = new QHBoxLayout;
    altı->addWidget(m_tümünüSeç);
    altı->addStretch();
    altı->addWidget(m_sayı);
    auto* düzen = new QVBoxLayout(bölüm);
    düzen->setContentsMargins(0, 0, 0, 0);
    düzen->addWidget(VurgulananEtiket(1, MetinNo::MalzemeSüz, m_süz));
    düzen->addWidget(m_süz);
    düzen->addWidget(m_kullanılmayanlar);
    düzen->addLayout(tarihli);
    düzen->addWidget(VurgulananEtiket(2, MetinNo::MalzemelerEtiketi, m_tablo));
    düzen->addWidget(m_tablo, 1);
    düzen->addLayout(altı);
    return bölüm;
}

QWidget* TopluFiyatFormu::KuralBölümü() {
    QFrame* çerçeve = ÇerçeveOluştur();
    auto* düzen = new QVBoxLayout(çerçeve);
    for (QRadioButton* seçenek : {m_yüzde, m_tutar, m_fiyat}) düzen->addWidget(seçenek);
    düzen->addWidget(VurgulananEtiket(3, MetinNo::OranEtiketi, m_oran));
    düzen->addWidget(m_oran);
    düzen->addWidget(VurgulananEtiket(4, MetinNo::YuvarlamaEtiketi, m_yuvarlama.Adımlar));
    düzen->addWidget(m_yuvarlama.Adımlar);
    düzen->addWidget(VurgulananEtiket(5, MetinNo::YuvarlamaYönüEtiketi, m_yuvarlama.Yönler));
    düzen->addWidget(m_yuvarlama.Yönler);
    düzen->addStretch();
    return çerçeve;
}

void TopluFiyatFormu::Yerleştir() {
    auto* üst = new QHBoxLayout;
    üst->addWidget(SeçimBölümü(), 1);
    üst->addWidget(KuralBölümü());
    auto* kapat = DüğmeOluştur(QStringLiteral("KapatButonu"), MetinNo::Kapat, [this] { reject(); });
    auto* düzen = new QVBoxLayout(this);
    düzen->addLayout(üst, 1);
    auto* aktar = TabloyaAktarDüğmesi(ÇizelgeMetni::TabloyaAktarY, *m_model);
    düzen->addLayout(DüğmeSırası({m_önizle, aktar, nullptr, kapat}));
    m_tablo->setFocus();
    BoyVer(*this, {860, 560});
}

bool TopluFiyatFormu::Yükle() {
    MalzemeKataloğu katalog;
    if (!İşSonucunuGöster(katalog.Oku(ODBCBağlantısı()))) return false;
    m_kaynak->Satırlar.clear();
    for (KatalogMalzemesi& malzeme : katalog.Malzemeler)
        m_kaynak->Satırlar.push_back({std::move(malzeme), false, false, {}});
    if (!SonDeğişimleriOku()) return false;
    m_model->Yenile();
    SayıyıYaz();
    return true;
}

bool TopluFiyatFormu::Boş() const {
    return m_kaynak->Satırlar.empty();
}

bool TopluFiyatFormu::SonDeğişimleriOku() {
    std::vector<SonDeğişim> değişimler;
    if (!İşSonucunuGöster(SonDeğişimleri(ODBCBağlantısı(), değişimler))) return false;
    AdDizini yerler;
    for (std::uint32_t i = 0; i < değişimler.size(); ++i) yerler.BulYaDaEkle(değişimler[i].Malzeme.toStdString(), i);
    for (MalzemeKaynağı::Satır& satır : m_kaynak->Satırlar) {
        const std::uint32_t yer = yerler.Bul(satır.Malzeme.Ad.toStdString());
        if (yer != AdDizini::YOK) satır.SonDeğişim = değişimler[yer].Gün;
    }
    return true;
}

bool TopluFiyatFormu::KullanılanlarıOku() {
    AdDizini kullanılanlar;
    İlerlemeKutusu kutu(MetinNo::PlanKuruluyor, 0, this);
    const İşSonucu sonuç =
        KullanılanAdlar(ODBCBağlantısı(), kullanılanlar, [&kutu](std::int64_t okunan) { return kutu.Bildir(okunan); });
    if (!İşSonucunuGöster(sonuç)) return false;
    for (MalzemeKaynağı::Satır& satır : m_kaynak->Satırlar)
        satır.Kullanılıyor = kullanılanlar.Bul(satır.Malzeme.Ad.toStdString()) != AdDizini::YOK;
    return true;
}

// Ticks of rows that the filter hides stay: the number beside the table counts them too.
void TopluFiyatFormu::SüzgeciUygula() {
    const QString aranan = m_süz->text().simplified();
    const bool kullanılmayan = m_kullanılmayanlar->isChecked();
    const bool değişmeyen = m_değişmeyenler->isChecked();
    // Of a date that cannot be read nothing is known: no row is shown rather than those of another date.
    const QString gün = m_tarih->YazılanTarih().value_or(QDate()).toString(Qt::ISODate);
    m_model->Süz([this, aranan, kullanılmayan, değişmeyen, gün](std::size_t yer) {
        const MalzemeKaynağı::Satır& satır = m_kaynak->Satırlar[yer];
        return (!kullanılmayan || !satır.Kullanılıyor) && (!değişmeyen || satır.SonDeğişim < gün) &&
               Türkçe::İçerir(satır.Malzeme.Ad, aranan);
    });
    SayıyıYaz();
}

// Ticks the shown rows; once all of them are, takes their ticks away.
void TopluFiyatFormu::TümünüSeç() {
    bool hepsi = true;
    for (int satır = 0; satır < m_model->rowCount() && hepsi; ++satır)
        hepsi = m_kaynak->Satırlar[m_model->KaynakSatırı(satır)].İşaretli;
    m_model->Görünenleriİşaretle(!hepsi);
}

void TopluFiyatFormu::SayıyıYaz() {
    const auto sayı = m_kaynak->İşaretliSayısı();
    std::ptrdiff_t görünmeyen = sayı;
    for (int satır = 0; satır < m_model->rowCount(); ++satır)
        görünmeyen -= m_kaynak->Satırlar[m_model->KaynakSatırı(satır)].İşaretli;
    m_sayı->setText(görünmeyen > 0 ? Metin(MetinNo::İşaretliVeGizliSayısı).arg(sayı).arg(görünmeyen)
                                   : Metin(MetinNo::İşaretliSayısı).arg(sayı));
    m_önizle->setEnabled(sayı > 0);
}

void TopluFiyatFormu::KuralDeğişti() {
    m_oran->EksiOlsun(!m_fiyat->isChecked());
}

std::optional<Para> TopluFiyatFormu::Değer() {
    if (m_oran->text().isEmpty()) {
        Uyar(MetinNo::OranBoş, *m_oran);
        return std::nullopt;
    }
    if (!m_oran->Saklanır()) return std::nullopt;
    const std::optional<Para> değer = ParaOku(m_oran->text());
    if (değer && m_fiyat->isChecked() && *değer <= Para()) {
        Uyar(MetinNo::FiyatSıfır, *m_oran);
        return std::nullopt;
    }
    if (değer && *değer == Para()) {
        Uyar(MetinNo::OranSıfır, *m_oran);
        return std::nullopt;
    }
    return değer;
}

QString TopluFiyatFormu::Açıklama(Para değer) const {
    const MetinNo metin = m_yüzde->isChecked()   ? MetinNo::YüzdeAçıklaması
                          : m_tutar->isChecked() ? MetinNo::TutarAçıklaması
                                                 : MetinNo::FiyatAçıklaması;
    return Metin(metin).arg(FiyatMetni(değer)) + m_yuvarlama.Açıklama();
}

İşSonucu TopluFiyatFormu::Öner(Para değer, const Yuvarlama& yuvarlama, FiyatTeklifi& teklif,
                               QStringList& notlar) const {
    MalzemeKataloğu katalog;
    const İşSonucu sonuç = katalog.Oku(ODBCBağlantısı());
    if (!sonuç.Tamam()) return sonuç;
    QStringList eksikler;
    for (const MalzemeKaynağı::Satır& satır : m_kaynak->Satırlar) {
        if (!satır.İşaretli) continue;
        const std::uint32_t yer = katalog.Dizin.Bul(satır.Malzeme.Ad.toStdString());
        if (yer == AdDizini::YOK) {
            eksikler.append(satır.Malzeme.Ad);
            continue;
        }
        const KatalogMalzemesi& malzeme = katalog.Malzemeler[yer];
        const KesinTutar eski(malzeme.Fiyat);
        const auto kesin = m_yüzde->isChecked()   ? eski.YüzdeEkle(değer)
                           : m_tutar->isChecked() ? eski.Ekle(değer)
                                                  : std::optional(KesinTutar(değer));
        const YeniFiyat yeni = FiyatıBelirle(malzeme.Fiyat, kesin, yuvarlama);
        FiyatÖnerisi öneri{malzeme.Ad, malzeme.Fiyat, yeni.Fiyat, NedenBul(yeni.Durum)};
        öneri.İşaretli = öneri.Neden == PlanNedeni::Yok;
        teklif.Öneriler.push_back(std::move(öneri));
    }
    notlar += EksiklerNotu(eksikler);
    return sonuç;
}

void TopluFiyatFormu::Önizle() {
    const std::optional<Para> değer = Değer();
    if (!değer) return;
    const Yuvarlama yuvarlama = m_yuvarlama.Seçilen();
    const Fiyatİşi iş{{İşlemTürü::Toplu, Açıklama(*değer), 0},
                      [this, değer = *değer, yuvarlama](FiyatTeklifi& teklif, QStringList& notlar) {
                          return Öner(değer, yuvarlama, teklif, notlar);
                      }};
    if (!FiyatİşiniYürüt(iş, this)) return;
    m_uygulandı = true;
    accept();
}
