#include "YedeklerFormu.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QItemSelectionModel>
#include <QLabel>
#include <QVBoxLayout>
#include <algorithm>

#include "CizelgeKaydi.h"
#include "FormParcalari.h"
#include "GeriYukleme.h"
#include "GetirmeMetinleri.h"
#include "OdbcModulu.h"
#include "OdbcYedek.h"
#include "SecerekGetirme.h"
#include "Tablo.h"
#include "UrunMetinleri.h"
#include "YedekIsi.h"
#include "YedekMetinleri.h"

YedeklerFormu::YedeklerFormu(Açılış açılış, QWidget* sahip)
    : QDialog(sahip),
      m_açılış(açılış),
      m_yollar(VeriYollarınıBul()),
      m_model(m_kaynak, YedekSütunlarınıVer()),
      m_denetim({[this](std::size_t satır) {
                     m_kaynak.Satırlar[satır].Aşama = YedekSatırı::Denetim::Sürüyor;
                     m_model.HücrelerDeğişti();
                 },
                 [this](std::size_t satır, const YedekBilgisi& bilgi) {
                     m_kaynak.Satırlar[satır].Aşama = YedekSatırı::Denetim::Bitti;
                     m_kaynak.Satırlar[satır].Bilgi = bilgi;
                     m_model.HücrelerDeğişti();
                 }}) {
    setObjectName(QStringLiteral("YedeklerFormu"));
    setWindowTitle(Metin(YedekMetni::YedeklerBaşlığı));
    Yerleştir();
}

YedeklerFormu::~YedeklerFormu() {
    m_denetim.Durdur();
    delete m_tablo;  // before its model
}

void YedeklerFormu::Yerleştir() {
    m_tablo = new Tablo(QStringLiteral("YedekTablosu"), m_model);
    m_not = TabloNotu(QStringLiteral("YedekNotu"), *m_tablo);
    connect(m_tablo->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] { SeçimDeğişti(); });
    auto* şimdi = DüğmeOluştur(QStringLiteral("ŞimdiYedekleButonu"), YedekMetni::ŞimdiYedekle, [this] { Yedekle(); });
    auto* başka = DüğmeOluştur(QStringLiteral("BaşkaKlasöreButonu"), YedekMetni::BaşkaKlasöre, [this] { DışarıYaz(); });
    m_geriYükle = DüğmeOluştur(QStringLiteral("GeriYükleButonu"), YedekMetni::GeriYükle, [this] { GeriYükle(); });
    m_seçerekGetir = DüğmeOluştur(QStringLiteral("SeçerekGetirButonu"), GetirmeMetni::SeçerekGetir, [this] { Seç(); });
    auto* aç = DüğmeOluştur(QStringLiteral("DosyaAçButonu"), YedekMetni::DosyaAç, [this] { DosyaAç(); });
    auto* kapat = DüğmeOluştur(QStringLiteral("KapatButonu"), MetinNo::Kapat, [this] { reject(); });
    auto* düzen = new QVBoxLayout(this);
    düzen->addWidget(TabloBölümü(1, YedekMetni::YedeklerEtiketi, m_tablo), 1);
    auto* aktar = TabloyaAktarDüğmesi(ÜrünMetni::TabloyaAktar, m_model);
    düzen->addLayout(DüğmeSırası({şimdi, başka, m_geriYükle, m_seçerekGetir, aç, aktar, nullptr, kapat}));
    const bool program = m_açılış == Açılış::Program;
    şimdi->setVisible(program);
    başka->setVisible(program);
    m_seçerekGetir->setVisible(program);
    m_tablo->setFocus();
    BoyVer(*this, {1150, 560});
}

// A file that the program is not connected to is not opened for it.
QString YedeklerFormu::Damga() const {
    return m_açılış == Açılış::Program ? VeriDosyasıDamgası(ODBCBağlantısı()) : QString();
}

// What has been checked stays so as long as the file is the same.
void YedeklerFormu::Yükle() {
    m_denetim.Durdur();
    const std::optional<std::size_t> seçili = m_tablo->SeçiliSatır();
    const QString seçiliYol = seçili ? m_kaynak.Satırlar[*seçili].Yol : QString();
    std::vector<YedekSatırı> önceki = std::move(m_kaynak.Satırlar);
    m_kaynak.Satırlar = YedekleriBul(m_yollar, Damga());
    for (const YedekSatırı& eski : önceki)
        if (eski.Ne == YedekSatırı::Cins::Dosya) m_kaynak.Satırlar.push_back(eski);
    for (YedekSatırı& satır : m_kaynak.Satırlar) {
        const auto eski = std::find_if(önceki.begin(), önceki.end(), [&satır](const YedekSatırı& aday) {
            return aday.Yol == satır.Yol && aday.Değişme == satır.Değişme && aday.Boy == satır.Boy &&
                   aday.Aşama == YedekSatırı::Denetim::Bitti;
        });
        if (eski != önceki.end()) satır = *eski;
    }
    m_model.Yenile();
    NotuYaz(*m_not, *m_tablo, m_kaynak.Satırlar.empty() ? Metin(YedekMetni::YedekYok) : QString());
    // Another row must not come under the hand of who tries again.
    m_tablo->SatırıSeç(
        [&](std::size_t satır) { return seçili ? m_kaynak.Satırlar[satır].Yol == seçiliYol : satır == 0; });
    SeçimDeğişti();
    Denetle();
}

void YedeklerFormu::Denetle() {
    std::vector<SıralıDenetim::İş> işler;
    for (std::size_t i = 0; i < m_kaynak.Satırlar.size(); ++i) {
        YedekSatırı& satır = m_kaynak.Satırlar[i];
        if (satır.Aşama == YedekSatırı::Denetim::Bitti) continue;
        satır.Aşama = YedekSatırı::Denetim::Sırada;
        işler.push_back({i, satır.Yol});
    }
    m_model.HücrelerDeğişti();
    if (!işler.empty()) m_denetim.Başlat(std::move(işler), m_yollar.YedekKlasörü);
}

void YedeklerFormu::SeçimDeğişti() {
    m_geriYükle->setEnabled(m_tablo->SeçiliSatır().has_value());
    m_seçerekGetir->setEnabled(m_tablo->SeçiliSatır().has_value());
}

void YedeklerFormu::Yedekle() {
    m_denetim.Durdur();
    ŞimdiYedekle(m_yollar, this);
    Yükle();
}

void YedeklerFormu::DışarıYaz() {
    m_denetim.Durdur();
    BaşkaKlasöreYedekle(m_yollar, this);
    Denetle();
}

void YedeklerFormu::DosyaAç() {
    QFileDialog kutu(this, Metin(YedekMetni::DosyaAçBaşlığı), m_yollar.YedekKlasörü, Metin(YedekMetni::DosyaSüzgeci));
    kutu.setObjectName(QStringLiteral("YedekDosyasıFormu"));
    kutu.setFileMode(QFileDialog::ExistingFile);
    if (kutu.exec() != QDialog::Accepted) return;
    const QString yol = kutu.selectedFiles().value(0);
    m_denetim.Durdur();
    m_kaynak.Satırlar.push_back(DosyaSatırı(yol));
    const std::size_t yeni = m_kaynak.Satırlar.size() - 1;
    m_model.Yenile();
    NotuYaz(*m_not, *m_tablo, {});
    m_tablo->SatırıSeç([yeni](std::size_t satır) { return satır == yeni; });
    SeçimDeğişti();
    Denetle();
}

void YedeklerFormu::GeriYükle() {
    const std::optional<std::size_t> seçili = m_tablo->SeçiliSatır();
    if (!seçili) return;
    m_denetim.Durdur();
    const YedekSatırı satır = m_kaynak.Satırlar[*seçili];
    if (YedeğiGeriYükle(m_yollar, satır, m_açılış == Açılış::Program, this)) {
        m_geriYüklendi = true;
        accept();
        return;
    }
    Yükle();
}

void YedeklerFormu::Seç() {
    const std::optional<std::size_t> seçili = m_tablo->SeçiliSatır();
    if (!seçili || (m_seçmedenÖnce && !m_seçmedenÖnce())) return;
    m_denetim.Durdur();
    const YedekSatırı satır = m_kaynak.Satırlar[*seçili];
    m_getirildi |= SeçerekGetir(m_yollar, satır, this);
    Yükle();
}
