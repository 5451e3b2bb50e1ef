#include "NeredeKullaniliyorFormu.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>
#include <set>

#include "CizelgeKaydi.h"
#include "DegiskenModulu.h"
#include "FiyatIsi.h"
#include "FormParcalari.h"
#include "IlerlemeKutusu.h"
#include "KullanimCiktilari.h"
#include "KullanimMetinleri.h"
#include "MalzemeDegistirFormu.h"
#include "MalzemeKutusu.h"
#include "OdbcModulu.h"
#include "Tablo.h"
#include "UrunMetinleri.h"
#include "Yazdirma.h"

NeredeKullanılıyorFormu::NeredeKullanılıyorFormu(QWidget* sahip)
    : QDialog(sahip), m_model(m_kaynak, KullanımSütunlarınıVer()) {
    setObjectName(QStringLiteral("NeredeKullanılıyorFormu"));
    setWindowTitle(Metin(KullanımMetni::NeredeKullanılıyorBaşlığı));
    KontrolleriKur();
    Yerleştir();
}

NeredeKullanılıyorFormu::~NeredeKullanılıyorFormu() {
    delete m_tablo;  // before the model that it shows
}

void NeredeKullanılıyorFormu::KontrolleriKur() {
    m_malzeme = new MalzemeKutusu(QStringLiteral("MalzemeListesi"));
    m_malzeme->Seçilince([this] { MalzemeSeçildi(); });
    m_sayı = new QLabel;
    m_sayı->setObjectName(QStringLiteral("KullanımSayısıEtiketi"));
    m_tablo = new Tablo(QStringLiteral("KullanımTablosu"), m_model);
    connect(m_tablo->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] { DüğmeleriAyarla(); });
    connect(m_tablo, &QAbstractItemView::doubleClicked, this, [this] { Git(); });
    m_git = DüğmeOluştur(QStringLiteral("GitButonu"), ÜrünMetni::ÜrüneGit, [this] { Git(); });
    m_değiştir = DüğmeOluştur(QStringLiteral("DeğiştirButonu"), KullanımMetni::DeğiştirDüğmesi, [this] { Değiştir(); });
    m_yazdır = DüğmeOluştur(QStringLiteral("YazdırButonu"), MetinNo::Yazdır,
                            [this] { static_cast<void>(Yazdır(*this, *m_yazdır, Rapor())); });
    m_pdf = DüğmeOluştur(QStringLiteral("PdfKaydetButonu"), MetinNo::PdfKaydet,
                         [this] { PdfKaydet(*this, *m_pdf, Rapor()); });
    m_önizle = DüğmeOluştur(QStringLiteral("ÖnizlemeButonu"), MetinNo::Önizleme, [this] { Önizle(*this, Rapor()); });
    m_aktar = DüğmeOluştur(QStringLiteral("TabloyaAktarButonu"), ÜrünMetni::TabloyaAktar, [this] { Çizelgeye(); });
}

void NeredeKullanılıyorFormu::Yerleştir() {
    auto* üst = new QHBoxLayout;
    üst->addWidget(VurgulananEtiket(1, KullanımMetni::MalzemeEtiketi, m_malzeme));
    üst->addWidget(m_malzeme, 1);
    üst->addWidget(m_sayı);
    auto* kapat = DüğmeOluştur(QStringLiteral("KapatButonu"), MetinNo::Kapat, [this] { reject(); });
    auto* düzen = new QVBoxLayout(this);
    düzen->addLayout(üst);
    düzen->addWidget(TabloBölümü(2, KullanımMetni::KullananlarEtiketi, m_tablo), 1);
    düzen->addLayout(DüğmeSırası({m_değiştir, m_git, m_yazdır, m_pdf, m_önizle, m_aktar, nullptr, kapat}));
    m_malzeme->setFocus();
    BoyVer(*this, {960, 560});
}

bool NeredeKullanılıyorFormu::Yükle(const QString& malzeme) {
    MalzemeKullanımı kullanım;
    İşSonucu sonuç;
    {
        İlerlemeKutusu kutu(KullanımMetni::KullanımOkunuyor, 0, isVisible() ? this : parentWidget());
        sonuç = kullanım.Oku(ODBCBağlantısı(), OndalıkBasamak,
                             [&kutu](std::int64_t okunan) { return kutu.Bildir(okunan); });
    }
    if (!İşSonucunuGöster(sonuç)) return false;
    m_gidilecek = nullptr;
    m_kullanım = std::move(kullanım);
    QList<MalzemeKutusu::Öğe> öğeler;
    for (const MalzemeKullanımı::Malzeme& m : m_kullanım.Malzemeler())
        öğeler.append({m.Ad, m.Katalogda ? QString() : Metin(KullanımMetni::KatalogdaYokEki)});
    m_malzeme->MalzemeleriKoy(öğeler);
    if (!malzeme.isEmpty()) m_malzeme->AdıylaSeç(malzeme);
    MalzemeSeçildi();
    return true;
}

void NeredeKullanılıyorFormu::MalzemeSeçildi() {
    m_kaynak.Satırlar.clear();
    const std::optional<std::size_t> malzeme = m_malzeme->Seçilen();
    if (malzeme) m_kaynak.Al(m_kullanım, *malzeme, OndalıkBasamak);
    m_model.Yenile();
    std::set<const MalzemeKullanımı::Ürün*> ürünler;
    for (const KullanımSatırları::Satır& satır : m_kaynak.Satırlar) ürünler.insert(satır.Ürün);
    m_sayı->setText(malzeme ? Metin(KullanımMetni::KullanımSayısı).arg(ürünler.size()).arg(m_kaynak.Satırlar.size())
                            : Metin(KullanımMetni::MalzemeSeçilmemiş));
    DüğmeleriAyarla();
}

void NeredeKullanılıyorFormu::DüğmeleriAyarla() {
    const std::optional<std::size_t> satır = m_tablo->SeçiliSatır();
    m_git->setEnabled(satır && m_kaynak.Satırlar[*satır].Ürün->Listede);
    m_değiştir->setEnabled(!m_kaynak.Satırlar.empty());
    for (KomutDüğmesi* düğme : {m_yazdır, m_pdf, m_önizle, m_aktar})
        düğme->setEnabled(m_malzeme->Seçilen().has_value());
}

void NeredeKullanılıyorFormu::Git() {
    const std::optional<std::size_t> satır = m_tablo->SeçiliSatır();
    if (!satır || !m_kaynak.Satırlar[*satır].Ürün->Listede) return;
    m_gidilecek = m_kaynak.Satırlar[*satır].Ürün;
    accept();
}

void NeredeKullanılıyorFormu::Değiştir() {
    const std::optional<std::size_t> malzeme = m_malzeme->Seçilen();
    if (!malzeme) return;
    MalzemeDeğiştirFormu form(m_kullanım.Malzemeler()[*malzeme].Ad, this);
    if (!form.Yükle() || form.exec() != QDialog::Accepted) return;
    m_uygulandı = true;
    // What is on screen is no longer so; if it cannot be read anew, it is not left standing.
    if (!Yükle()) reject();
}

QString NeredeKullanılıyorFormu::Başlık() const {
    const std::optional<std::size_t> malzeme = m_malzeme->Seçilen();
    return malzeme ? Metin(KullanımMetni::KullanımRaporBaşlığı).arg(m_kullanım.Malzemeler()[*malzeme].Ad) : QString();
}

Yazdırılacak NeredeKullanılıyorFormu::Rapor() const {
    return {Başlık(), [this](SayfaYüzeyi& yüzey) { KullanımıYaz(yüzey, Başlık(), m_kaynak, m_model); }, true, true};
}

void NeredeKullanılıyorFormu::Çizelgeye() {
    ÇizelgeyeKaydet(*this, Başlık(),
                    [this](const QString& yol) { return KullanımıÇizelgeyeYaz(yol, Başlık(), m_kaynak, m_model); });
}
