#include "SatisFiyatListesiFormu.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "CizelgeKaydi.h"
#include "DegiskenModulu.h"
#include "FiyatIsi.h"
#include "FiyatYazimi.h"
#include "FormParcalari.h"
#include "IlerlemeKutusu.h"
#include "KullanimMetinleri.h"
#include "OdbcModulu.h"
#include "OrtakFonksiyonlarModulu.h"
#include "SatisCiktilari.h"
#include "SayiKutusu.h"
#include "SayiMetni.h"
#include "Tablo.h"
#include "TurkceSira.h"
#include "UrunMetinleri.h"
#include "Yazdirma.h"

namespace {

const QString BÖLÜM = QStringLiteral("SatisFiyatListesi");
const QString KDV = QStringLiteral("Kdv");
const QString BAŞLIK = QStringLiteral("Baslik");
const QString ALT_YAZI = QStringLiteral("AltYazi");
const QString VARSAYILAN_KDV = QStringLiteral("20");

// A line of text for the list: the apostrophe becomes the printers' one.
class YazıKutusu : public GirişKutusu {
  public:
    explicit YazıKutusu(const QString& ad) { setObjectName(ad); }
    bool Denetle(QString& metin, int& imleç) override {
        const bool alınır = GirişKutusu::Denetle(metin, imleç);
        metin.replace(QLatin1Char('\''), QChar(u'’'));
        return alınır;
    }
};

std::optional<Para> OranOku(const QString& metin) {
    const std::optional<Para> oran = ParaOku(metin);
    constexpr std::int64_t yüz = 100 * Para::Ölçek;
    const bool olur = oran && *oran >= Para() && oran->OnBindeBir() <= yüz;
    return olur ? oran : std::nullopt;
}

}  // namespace

SatışFiyatListesiFormu::SatışFiyatListesiFormu(QWidget* sahip)
    : QDialog(sahip), m_model(m_kaynak, SatışSütunlarınıVer()) {
    setObjectName(QStringLiteral("SatışFiyatListesiFormu"));
    setWindowTitle(Metin(KullanımMetni::SatışListesiBaşlığı));
    KontrolleriKur();
    Yerleştir();
}

SatışFiyatListesiFormu::~SatışFiyatListesiFormu() {
    AyarlarıSakla();
    delete m_tablo;  // before the model that it shows
}

void SatışFiyatListesiFormu::KontrolleriKur() {
    m_süz = new GirişKutusu;
    m_süz->setObjectName(QStringLiteral("SüzKutusu"));
    connect(m_süz, &QLineEdit::textChanged, this, [this] { Süz(); });
    m_dikkat = new QCheckBox(Metin(ÜrünMetni::DikkatSeçeneği));
    m_dikkat->setObjectName(QStringLiteral("DikkatSeçeneği"));
    connect(m_dikkat, &QCheckBox::toggled, this, [this] { Süz(); });
    m_kdv = new SayıKutusu(SayıKutusu::Tür::Serbest);
    m_kdv->setObjectName(QStringLiteral("KdvKutusu"));
    const QString kdv = AyarOku(BÖLÜM, KDV, VARSAYILAN_KDV);
    m_kdv->setText(OranOku(kdv) ? kdv : VARSAYILAN_KDV);
    connect(m_kdv, &QLineEdit::textChanged, this, [this] { Hesapla(); });
    for (QComboBox* liste : {m_yuvarlama.Adımlar, m_yuvarlama.Yönler})
        connect(liste, &QComboBox::currentIndexChanged, this, [this] { Hesapla(); });
    m_başlık = new YazıKutusu(QStringLiteral("BaşlıkKutusu"));
    m_başlık->setText(AyarOku(BÖLÜM, BAŞLIK, Metin(KullanımMetni::SatışListesiİlkBaşlığı)).left(EnUzunAd));
    m_altYazı = new YazıKutusu(QStringLiteral("AltYazıKutusu"));
    m_altYazı->setText(AyarOku(BÖLÜM, ALT_YAZI, {}).left(EnUzunAd));
    m_sayı = new QLabel;
    m_sayı->setObjectName(QStringLiteral("İşaretliSayısıEtiketi"));
    m_tablo = new Tablo(QStringLiteral("FiyatTablosu"), m_model);
    m_model.İşaretlenince([this] { SayıyıYaz(); });
    const auto basınca = [this](auto iş) {
        return [this, iş] {
            if (Basılır()) iş();
        };
    };
    m_yazdır = DüğmeOluştur(QStringLiteral("YazdırButonu"), MetinNo::Yazdır,
                            basınca([this] { static_cast<void>(Yazdır(*this, *m_yazdır, Rapor())); }));
    m_pdf = DüğmeOluştur(QStringLiteral("PdfKaydetButonu"), MetinNo::PdfKaydet,
                         basınca([this] { PdfKaydet(*this, *m_pdf, Rapor()); }));
    m_önizle =
        DüğmeOluştur(QStringLiteral("ÖnizlemeButonu"), MetinNo::Önizleme, basınca([this] { Önizle(*this, Rapor()); }));
    m_aktar =
        DüğmeOluştur(QStringLiteral("TabloyaAktarButonu"), ÜrünMetni::TabloyaAktar, basınca([this] { Çizelgeye(); }));
}

QWidget* SatışFiyatListesiFormu::KuralBölümü() {
    auto* bölüm = new QWidget;
    auto* düzen = new QGridLayout(bölüm);
    düzen->setContentsMargins(0, 0, 0, 0);
    düzen->addWidget(VurgulananEtiket(3, KullanımMetni::KdvEtiketi, m_kdv), 0, 0);
    düzen->addWidget(m_kdv, 0, 1);
    düzen->addWidget(VurgulananEtiket(4, MetinNo::YuvarlamaEtiketi, m_yuvarlama.Adımlar), 0, 2);
    düzen->addWidget(m_yuvarlama.Adımlar, 0, 3);
    düzen->addWidget(VurgulananEtiket(5, MetinNo::YuvarlamaYönüEtiketi, m_yuvarlama.Yönler), 0, 4);
    düzen->addWidget(m_yuvarlama.Yönler, 0, 5);
    düzen->addWidget(VurgulananEtiket(6, KullanımMetni::BaşlıkEtiketi, m_başlık), 1, 0);
    düzen->addWidget(m_başlık, 1, 1, 1, 5);
    düzen->addWidget(VurgulananEtiket(7, KullanımMetni::AltYazıEtiketi, m_altYazı), 2, 0);
    düzen->addWidget(m_altYazı, 2, 1, 1, 5);
    for (const int sütun : {1, 3, 5}) düzen->setColumnStretch(sütun, 1);
    for (QComboBox* liste : {m_yuvarlama.Adımlar, m_yuvarlama.Yönler}) Enterİleİlerlesin(liste);
    return bölüm;
}

void SatışFiyatListesiFormu::Yerleştir() {
    auto* üst = new QHBoxLayout;
    üst->addWidget(VurgulananEtiket(1, ÜrünMetni::ÜrünSüz, m_süz));
    üst->addWidget(m_süz, 1);
    üst->addWidget(m_dikkat);
    üst->addWidget(m_sayı);
    auto* kapat = DüğmeOluştur(QStringLiteral("KapatButonu"), MetinNo::Kapat, [this] { reject(); });
    auto* düzen = new QVBoxLayout(this);
    düzen->addLayout(üst);
    düzen->addWidget(TabloBölümü(2, MetinNo::ÜrünlerEtiketi, m_tablo), 1);
    düzen->addWidget(KuralBölümü());
    düzen->addLayout(DüğmeSırası({m_yazdır, m_pdf, m_önizle, m_aktar, nullptr, kapat}));
    m_tablo->setFocus();
    BoyVer(*this, {960, 640});
}

bool SatışFiyatListesiFormu::Yükle() {
    std::vector<MaliyetTablosuSatırı> satırlar;
    İlerlemeKutusu kutu(ÜrünMetni::MaliyetlerOkunuyor, 0, parentWidget());
    const İşSonucu sonuç = MaliyetTablosunuOku(ODBCBağlantısı(), OndalıkBasamak, satırlar,
                                               [&kutu](std::int64_t okunan) { return kutu.Bildir(okunan); });
    if (!İşSonucunuGöster(sonuç)) return false;
    m_kaynak.Al(satırlar);
    m_kaynak.Hesapla(m_yuvarlama.Seçilen(), Oran());
    Süz();
    return true;
}

std::optional<Para> SatışFiyatListesiFormu::Oran() const {
    return OranOku(m_kdv->text());
}

void SatışFiyatListesiFormu::Süz() {
    const QString aranan = m_süz->text().simplified();
    const bool yalnızDikkat = m_dikkat->isChecked();
    m_model.Süz([this, aranan, yalnızDikkat](std::size_t yer) {
        const SatışSatırları::Satır& satır = m_kaynak.Satırlar[yer];
        return (!yalnızDikkat || satır.Dikkat != 0) &&
               (Türkçe::İçerir(satır.Ad, aranan) || Türkçe::İçerir(satır.Grup, aranan));
    });
    SayıyıYaz();
}

// Keeps ticks, order and place.
void SatışFiyatListesiFormu::Hesapla() {
    m_kaynak.Hesapla(m_yuvarlama.Seçilen(), Oran());
    m_model.HücrelerDeğişti();
    SayıyıYaz();
}

void SatışFiyatListesiFormu::SayıyıYaz() {
    int basılan = 0;
    for (int sıra = 0; sıra < m_model.rowCount(); ++sıra) basılan += m_kaynak.İşaretli(m_model.KaynakSatırı(sıra));
    int hepsi = 0;
    for (std::size_t yer = 0; yer < m_kaynak.Satırlar.size(); ++yer) hepsi += m_kaynak.İşaretli(yer);
    m_sayı->setText(hepsi == basılan ? Metin(KullanımMetni::BasılacakSayısı).arg(basılan)
                                     : Metin(KullanımMetni::BasılmayanSayısı).arg(basılan).arg(hepsi - basılan));
    for (KomutDüğmesi* düğme : {m_yazdır, m_pdf, m_önizle, m_aktar}) düğme->setEnabled(basılan > 0);
}

// Nothing leaves the form without a rate.
bool SatışFiyatListesiFormu::Basılır() {
    if (m_kdv->text().isEmpty()) return Uyar(KullanımMetni::KdvAralıkDışı, *m_kdv);
    if (!m_kdv->Saklanır()) return false;
    if (!Oran()) return Uyar(KullanımMetni::KdvAralıkDışı, *m_kdv);
    AyarlarıSakla();
    return true;
}

// A rate that is none leaves the former one.
void SatışFiyatListesiFormu::AyarlarıSakla() const {
    if (const std::optional<Para> oran = Oran()) AyarYaz(BÖLÜM, KDV, SayıYazımı(*oran));
    AyarYaz(BÖLÜM, BAŞLIK, m_başlık->text());
    AyarYaz(BÖLÜM, ALT_YAZI, m_altYazı->text());
}

SatışListesi SatışFiyatListesiFormu::Liste() const {
    return {m_başlık->text().trimmed(), m_altYazı->text().trimmed(), m_kaynak, m_model};
}

Yazdırılacak SatışFiyatListesiFormu::Rapor() const {
    return {windowTitle(), [this](SayfaYüzeyi& yüzey) { SatışListesiniYaz(yüzey, Liste()); }, true};
}

void SatışFiyatListesiFormu::Çizelgeye() {
    ÇizelgeyeKaydet(*this, windowTitle(),
                    [this](const QString& yol) { return SatışListesiniÇizelgeyeYaz(yol, windowTitle(), Liste()); });
}
