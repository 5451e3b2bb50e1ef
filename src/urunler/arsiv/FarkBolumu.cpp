#include "FarkBolumu.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QSplitter>
#include <QVBoxLayout>
#include <algorithm>

#include "ArsivCiktilari.h"
#include "ArsivMetinleri.h"
#include "ArsivMetni.h"
#include "CizelgeKaydi.h"
#include "FormParcalari.h"
#include "GirisKutusu.h"
#include "IlerlemeKutusu.h"
#include "OdbcModulu.h"
#include "Saat.h"
#include "Tablo.h"
#include "UrunMetinleri.h"
#include "Yazdirma.h"

FarkBölümü::FarkBölümü(Bağlar bağlar, QWidget* sahip)
    : QWidget(sahip),
      m_bağlar(std::move(bağlar)),
      m_model(m_kaynak, FarkSütunlarınıVer()),
      m_parçaModeli(m_parçaKaynağı, ParçaSütunlarınıVer()) {
    KontrolleriKur();
    Yerleştir();
    Boşalt();
}

FarkBölümü::~FarkBölümü() {
    // The views go before the models that they show.
    delete m_tablo;
    delete m_parçalar;
}

void FarkBölümü::KontrolleriKur() {
    m_günler = new QComboBox;
    m_günler->setObjectName(QStringLiteral("ÖtekiGünListesi"));
    m_öteki = new QComboBox;
    m_öteki->setObjectName(QStringLiteral("ÖtekiAdListesi"));
    for (QComboBox* liste : {m_günler, m_öteki}) {
        liste->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        Enterİleİlerlesin(liste);
    }
    m_özet = new QLabel;
    m_özet->setObjectName(QStringLiteral("FarkÖzetiEtiketi"));
    m_özet->setTextFormat(Qt::PlainText);
    m_özet->setWordWrap(true);
    m_tablo = new Tablo(QStringLiteral("FarkTablosu"), m_model);
    connect(m_tablo->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] { SatırSeçildi(); });
    m_parçalar = new Tablo(QStringLiteral("ParçaTablosu"), m_parçaModeli);
    m_karşılaştır =
        DüğmeOluştur(QStringLiteral("KarşılaştırButonu"), ArşivMetni::Karşılaştır, [this] { Karşılaştır(); });
    m_eşleştir = DüğmeOluştur(QStringLiteral("EşleştirButonu"), ArşivMetni::Eşleştir, [this] { Eşleştir(); });
    m_yazdır = DüğmeOluştur(QStringLiteral("YazdırButonu"), MetinNo::Yazdır,
                            [this] { static_cast<void>(Yazdır(*window(), *m_yazdır, Rapor())); });
    m_pdf = DüğmeOluştur(QStringLiteral("PdfKaydetButonu"), MetinNo::PdfKaydet,
                         [this] { PdfKaydet(*window(), *m_pdf, Rapor()); });
    m_önizle =
        DüğmeOluştur(QStringLiteral("ÖnizlemeButonu"), MetinNo::Önizleme, [this] { Önizle(*window(), Rapor()); });
    m_aktar = DüğmeOluştur(QStringLiteral("TabloyaAktarButonu"), ÜrünMetni::TabloyaAktar, [this] { Çizelgeye(); });
}

void FarkBölümü::Yerleştir() {
    auto* üst = new QHBoxLayout;
    üst->addWidget(VurgulananEtiket(11, ArşivMetni::ÖtekiGün, m_günler));
    üst->addWidget(m_günler, 1);
    üst->addWidget(m_karşılaştır);
    auto* adSırası = new QHBoxLayout;
    adSırası->addWidget(VurgulananEtiket(13, ArşivMetni::ÖtekiAdı, m_öteki));
    adSırası->addWidget(m_öteki, 1);
    adSırası->addWidget(m_eşleştir);
    auto* alt = new QWidget;
    auto* altDüzen = new QVBoxLayout(alt);
    altDüzen->setContentsMargins(0, 0, 0, 0);
    altDüzen->addLayout(adSırası);
    altDüzen->addWidget(TabloBölümü(14, ArşivMetni::ParçalarEtiketi, m_parçalar), 1);
    auto* bölen = new QSplitter(Qt::Vertical);
    bölen->setObjectName(QStringLiteral("FarkBölen"));
    bölen->setChildrenCollapsible(false);
    bölen->addWidget(TabloBölümü(12, ArşivMetni::FarklarEtiketi, m_tablo));
    bölen->addWidget(alt);
    constexpr int çok = 2;
    bölen->setStretchFactor(0, çok);
    bölen->setStretchFactor(1, 1);
    bölen->setSizes({400, 200});
    auto* düzen = new QVBoxLayout(this);
    düzen->addLayout(üst);
    düzen->addWidget(m_özet);
    düzen->addWidget(bölen, 1);
    düzen->addLayout(DüğmeSırası({m_yazdır, m_pdf, m_önizle, m_aktar, nullptr}));
}

void FarkBölümü::ArşivleriAyarla(std::vector<Başlık> arşivler) {
    const std::int64_t seçilen =
        m_günler->currentIndex() > 0 ? m_arşivler[static_cast<std::size_t>(m_günler->currentIndex() - 1)].No : 0;
    m_arşivler = std::move(arşivler);
    m_günler->clear();
    m_günler->addItem(Metin(ArşivMetni::Bugün));
    int yer = 0;
    for (const Başlık& arşiv : m_arşivler) {
        m_günler->addItem(ArşivAdı(arşiv) + QStringLiteral(" – ") + KapsamMetni(arşiv.Neyin));
        if (arşiv.No == seçilen) yer = m_günler->count() - 1;
    }
    m_günler->setCurrentIndex(yer);
    const auto var = [this](const std::optional<Başlık>& aranan) {
        return !aranan || std::any_of(m_arşivler.begin(), m_arşivler.end(),
                                      [&aranan](const Başlık& arşiv) { return arşiv.No == aranan->No; });
    };
    if (!var(m_eski) || !var(m_yeni)) Boşalt();
}

void FarkBölümü::Boşalt() {
    m_eski.reset();
    m_yeni.reset();
    m_kaynak.Satırlar.clear();
    m_model.Yenile();
    SatırSeçildi();
    ÖzetiYaz();
}

void FarkBölümü::Karşılaştır() {
    const Başlık* seçili = m_bağlar.SeçiliArşiv();
    if (!seçili) {
        Uyar(ArşivMetni::ArşivSeçiniz, *m_günler);
        return;
    }
    Başlık eski = *seçili;
    std::optional<Başlık> yeni;
    if (const int sıra = m_günler->currentIndex(); sıra > 0) yeni = m_arşivler[static_cast<std::size_t>(sıra - 1)];
    if (yeni && yeni->No == eski.No) {
        Uyar(ArşivMetni::AynıGün, *m_günler);
        return;
    }
    if (yeni && yeni->No < eski.No) std::swap(*yeni, eski);  // the numbers alone give the order
    ArşivFarkı fark;
    İşSonucu sonuç;
    {
        İlerlemeKutusu kutu(ArşivMetni::Karşılaştırılıyor, 0, window());
        sonuç = GünleriKarşılaştır(ODBCBağlantısı(), eski, yeni, fark,
                                   [&kutu](std::int64_t okunan) { return kutu.Bildir(okunan); });
    }
    if (!sonuç.Tamam()) {
        ArşivSonucunuGöster(sonuç);
        return;
    }
    m_eski = std::move(eski);
    m_yeni = std::move(yeni);
    m_eksikFöy = fark.EksikFöy;
    m_kaynak.Satırlar = std::move(fark.Ürünler);
    m_model.Yenile();
    m_tablo->setCurrentIndex({});
    SatırSeçildi();
    ÖzetiYaz();
}

void FarkBölümü::ÖzetiYaz() {
    const bool var = m_eski.has_value();
    for (KomutDüğmesi* düğme : {m_yazdır, m_pdf, m_önizle, m_aktar}) düğme->setEnabled(var && m_model.rowCount() > 0);
    if (!var) {
        m_özet->setText(Metin(ArşivMetni::KarşılaştırmaYok));
        return;
    }
    QStringList satırlar{Metin(ArşivMetni::KarşılaştırmaÖzeti)
                             .arg(ArşivAdı(*m_eski), m_yeni ? ArşivAdı(*m_yeni) : Metin(ArşivMetni::Bugün))
                             .arg(m_kaynak.Satırlar.size())};
    const auto bozuk = std::count_if(m_kaynak.Satırlar.begin(), m_kaynak.Satırlar.end(),
                                     [](const ÜrünFarkı& fark) { return fark.Bozuk; });
    if (bozuk > 0) satırlar.append(Metin(ArşivMetni::BozukUyarısı).arg(bozuk));
    if (m_eksikFöy > 0) satırlar.append(Metin(ArşivMetni::FöyEksikUyarısı).arg(m_eksikFöy));
    m_özet->setText(satırlar.join(QLatin1Char('\n')));
}

void FarkBölümü::SatırSeçildi() {
    m_öteki->clear();
    m_adaylar.clear();
    m_parçaKaynağı.Boşalt();
    const std::optional<std::size_t> yer = m_tablo->SeçiliSatır();
    if (yer) {
        const ÜrünFarkı& fark = m_kaynak.Satırlar[*yer];
        fark.Eski&& fark.Yeni ? ParçalarıOku(*yer) : AdaylarıOku(fark);
        m_bağlar.ÜrünSeçildi({fark.Adı().Grup, fark.Adı().Ürün});
    }
    m_parçaModeli.Yenile();
    m_öteki->setEnabled(!m_adaylar.empty());
    m_eşleştir->setEnabled(!m_adaylar.empty());
}

// Two sheets' difference into the row. False: the user has been told, or one of them is gone.
bool FarkBölümü::Oku(std::size_t yer, const FöyYeri& eski, const FöyYeri& yeni) {
    std::optional<ÜrünFarkı> fark;
    const İşSonucu sonuç = FöyleriKarşılaştır(ODBCBağlantısı(), eski, yeni, fark);
    ArşivSonucunuGöster(sonuç);
    if (!sonuç.Tamam()) return false;
    if (!fark) return Uyar(ArşivMetni::ÜrünArtıkYok, *m_karşılaştır);
    m_kaynak.Satırlar[yer] = std::move(*fark);
    return true;
}

void FarkBölümü::ParçalarıOku(std::size_t yer) {
    const ÜrünFarkı fark = m_kaynak.Satırlar[yer];
    if (!Oku(yer, *fark.Eski, *fark.Yeni)) return;
    m_parçaKaynağı.Göster(m_kaynak.Satırlar[yer]);
    m_model.HücrelerDeğişti();
}

// The other side's sheets that no product of the table has yet.
void FarkBölümü::AdaylarıOku(const ÜrünFarkı& fark) {
    const bool eskiAranan = !fark.Eski;
    std::vector<FöyYeri> yerler;
    const İşSonucu sonuç = FöyYerleriniOku(ODBCBağlantısı(), eskiAranan ? std::optional(*m_eski) : m_yeni, yerler);
    ArşivSonucunuGöster(sonuç);
    if (!sonuç.Tamam()) return;
    AdDizini alınanlar;
    for (const ÜrünFarkı& satır : m_kaynak.Satırlar)
        if (satır.Eski && satır.Yeni) {
            const FöyYeri& alınan = eskiAranan ? *satır.Eski : *satır.Yeni;
            alınanlar.BulYaDaEkle(alınan.Grup.toStdString(), alınan.Ürün.toStdString(), 0);
        }
    QStringList adlar;
    for (FöyYeri& aday : yerler) {
        if (alınanlar.Bul(aday.Grup.toStdString(), aday.Ürün.toStdString()) != AdDizini::YOK) continue;
        adlar.append(KapsamMetni({aday.Grup, aday.Ürün}));
        m_adaylar.push_back(std::move(aday));
    }
    m_öteki->addItems(adlar);
}

void FarkBölümü::Eşleştir() {
    const std::optional<std::size_t> yer = m_tablo->SeçiliSatır();
    const int sıra = m_öteki->currentIndex();
    if (!yer || sıra < 0) return;
    const FöyYeri öteki = m_adaylar[static_cast<std::size_t>(sıra)];
    const ÜrünFarkı eskisi = m_kaynak.Satırlar[*yer];
    const bool tamam = eskisi.Eski ? Oku(*yer, *eskisi.Eski, öteki) : Oku(*yer, öteki, *eskisi.Yeni);
    if (!tamam) return;
    const ÜrünFarkı eşleşen = m_kaynak.Satırlar[*yer];
    std::vector<ÜrünFarkı>& satırlar = m_kaynak.Satırlar;
    const auto kendisi = [&](const ÜrünFarkı& satır) {
        const std::optional<FöyYeri>& tek = eskisi.Eski ? satır.Yeni : satır.Eski;
        return satır.Eski.has_value() != satır.Yeni.has_value() && tek && AynıÜrün(*tek, öteki);
    };
    satırlar.erase(std::remove_if(satırlar.begin(), satırlar.end(), kendisi), satırlar.end());
    m_model.Yenile();
    m_tablo->SatırıSeç([&](std::size_t aranan) {
        const ÜrünFarkı& satır = satırlar[aranan];
        return satır.Eski && satır.Yeni && AynıÜrün(*satır.Yeni, *eşleşen.Yeni);
    });
    m_tablo->setFocus();
    SatırSeçildi();
    ÖzetiYaz();
}

QString FarkBölümü::RaporBaşlığı() const {
    if (!m_eski) return window()->windowTitle();
    const QString bugün = Bugün().toString(QStringLiteral("dd.MM.yyyy"));
    return Metin(ArşivMetni::MaliyetArşiviBaşlığı) + QStringLiteral(": ") + ArşivAdı(*m_eski) + QStringLiteral(" → ") +
           (m_yeni ? ArşivAdı(*m_yeni) : bugün);
}

Yazdırılacak FarkBölümü::Rapor() const {
    return {RaporBaşlığı(), [this](SayfaYüzeyi& yüzey) { FarklarıYaz(yüzey, RaporBaşlığı(), m_kaynak, m_model); }, true,
            true};
}

void FarkBölümü::Çizelgeye() {
    ÇizelgeyeKaydet(*window(), RaporBaşlığı(), [this](const QString& yol) {
        return FarklarıÇizelgeyeYaz(yol, Metin(ArşivMetni::MaliyetArşiviBaşlığı), m_kaynak, m_model);
    });
}
