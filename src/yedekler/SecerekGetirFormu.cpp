#include "SecerekGetirFormu.h"

#include <QDateTime>
#include <QFileInfo>
#include <QItemSelectionModel>
#include <QLabel>
#include <QSplitter>
#include <QVBoxLayout>

#include "ArkaIs.h"
#include "CizelgeKaydi.h"
#include "DegiskenModulu.h"
#include "FiyatIsi.h"
#include "FiyatMetinleri.h"
#include "FormParcalari.h"
#include "GeriYukleme.h"
#include "GetirmeMetinleri.h"
#include "IlerlemeKutusu.h"
#include "KopyaYazma.h"
#include "MesajKutusu.h"
#include "OdbcModulu.h"
#include "Saat.h"
#include "Tablo.h"
#include "UrunMetinleri.h"

namespace {

void Bildir(MesajKutusu::Simge simge, const QString& metin) {
    MesajKutusuOrtala();
    MesajKutusu::Göster(simge, MesajKutusu::Düğmeler::Tamam, metin);
}

// What stands now is kept before a backup's things come in. False: it cannot be, or the user gave up. `yol`: the copy;
// "" where there is nothing to keep.
bool ÖncekiniSakla(const VeriYolları& yollar, QString& yol, QWidget* sahip) {
    KopyaSonucu kopya;
    ArkadaYürüt(GetirmeMetni::Getiriliyor, 0, sahip, [&](ArkaDurum& durum) {
        kopya = KopyaYaz({yollar.YedekKlasörü,
                          yollar.GerçekDosya,
                          QFileInfo(yollar.GerçekDosya).lastModified(),
                          KopyaTürü::Önce,
                          {},
                          durum.DurYolu()});
    });
    yol = kopya.Yol;
    if (kopya.Ne == KopyaSonucu::Tür::YerYok || kopya.Ne == KopyaSonucu::Tür::Olmadı)
        Bildir(MesajKutusu::Simge::Kritik,
               Metin(GetirmeMetni::Saklanamadı)
                   .arg(kopya.Ne == KopyaSonucu::Tür::YerYok ? Metin(GetirmeMetni::YerYok).arg(kopya.Neden)
                                                             : kopya.Neden));
    return kopya.Ne == KopyaSonucu::Tür::Yazıldı || kopya.Ne == KopyaSonucu::Tür::Boş;
}

}  // namespace

SeçerekGetirFormu::SeçerekGetirFormu(const Getirmeİsteği& istek, QWidget* sahip)
    : QDialog(sahip),
      m_istek(istek),
      m_kaynak(m_plan, istek.Yedek.has_value()),
      m_model(m_kaynak, GetirmeSütunlarınıVer(istek.Yedek.has_value())),
      m_ayrıntıModeli(m_ayrıntı, AyrıntıSütunlarınıVer(istek.Yedek.has_value())) {
    setObjectName(QStringLiteral("SeçerekGetirFormu"));
    setWindowTitle(Metin(istek.Yedek ? GetirmeMetni::YedektenBaşlığı : GetirmeMetni::DönüşBaşlığı));
    KontrolleriKur();
    Yerleştir();
}

SeçerekGetirFormu::~SeçerekGetirFormu() {
    // Before the models that they show.
    delete m_tablo;
    delete m_ayrıntıTablosu;
}

void SeçerekGetirFormu::KontrolleriKur() {
    m_özet = new QLabel;
    m_özet->setObjectName(QStringLiteral("ÖzetEtiketi"));
    m_özet->setWordWrap(true);
    m_özet->setTextFormat(Qt::PlainText);
    m_tablo = new Tablo(QStringLiteral("FarkTablosu"), m_model);
    m_ayrıntıTablosu = new Tablo(QStringLiteral("AyrıntıTablosu"), m_ayrıntıModeli);
    m_model.İşaretlenince([this] { Dene(); });
    connect(m_tablo->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] { AyrıntıyıYaz(); });
}

void SeçerekGetirFormu::Yerleştir() {
    m_getir = DüğmeOluştur(QStringLiteral("GetirButonu"), m_istek.Yedek ? GetirmeMetni::Getir : GetirmeMetni::Uygula,
                           [this] { Getir(); });
    auto* hepsi =
        DüğmeOluştur(QStringLiteral("TümünüSeçButonu"), GetirmeMetni::Tümünüİşaretle, [this] { Tümünüİşaretle(); });
    auto* aktar = TabloyaAktarDüğmesi(ÜrünMetni::TabloyaAktar, m_model);
    auto* iptal = DüğmeOluştur(QStringLiteral("İptalButonu"), MetinNo::Vazgeç, [this] { reject(); });
    auto* bölen = new QSplitter(Qt::Vertical);
    bölen->setObjectName(QStringLiteral("Bölen"));
    bölen->setChildrenCollapsible(false);
    bölen->addWidget(TabloBölümü(1, GetirmeMetni::FarklarEtiketi, m_tablo));
    bölen->addWidget(TabloBölümü(2, GetirmeMetni::AyrıntıEtiketi, m_ayrıntıTablosu));
    auto* düzen = new QVBoxLayout(this);
    düzen->addWidget(m_özet);
    düzen->addWidget(bölen, 1);
    düzen->addLayout(DüğmeSırası({m_getir, hepsi, aktar, nullptr, iptal}));
    m_tablo->setFocus();
    BoyVer(*this, {1120, 680});
}

bool SeçerekGetirFormu::Yükle() {
    if (!m_ortam.Hazırla(m_istek, isVisible() ? this : parentWidget()) || !PlanıKur()) return false;
    if (m_plan.Kalemler().empty()) {
        Bildir(MesajKutusu::Simge::Bilgi, Metin(m_istek.Yedek ? GetirmeMetni::FarkYok : GetirmeMetni::GeriAlınacakYok));
        return false;
    }
    Dene();
    m_tablo->SatırıSeç([](std::size_t) { return true; });
    return true;
}

bool SeçerekGetirFormu::PlanıKur() {
    İlerlemeKutusu kutu(GetirmeMetni::Karşılaştırılıyor, 0, isVisible() ? this : parentWidget());
    const auto ilerleme = [&kutu](std::int64_t okunan) { return kutu.Bildir(okunan); };
    const İşSonucu sonuç =
        m_istek.Yedek ? m_plan.YedektenKur(m_ortam.Deneme(), m_ortam.Yedek(), OndalıkBasamak, ilerleme)
                      : m_plan.KayıttanKur(m_ortam.Deneme(), m_istek.İşlem, m_istek.Tür, OndalıkBasamak, ilerleme);
    m_ayrıntı.Boşalt();
    m_ayrıntıModeli.Yenile();
    m_model.Yenile();
    return İşSonucunuGöster(sonuç);
}

void SeçerekGetirFormu::Dene() {
    {
        İlerlemeKutusu kutu(GetirmeMetni::Deneniyor, 0, isVisible() ? this : parentWidget());
        m_denenen = m_plan.Dene([&kutu](std::int64_t yapılan) { return kutu.Bildir(yapılan); });
    }
    m_model.HücrelerDeğişti();
    ÖzetiYaz();
    if (m_denenen.Uygulama.Son == UygulamaSonu::Olmadı)
        UygulamayıBildir(m_denenen.Uygulama, GetirmeMetni::Getirilemedi);
}

void SeçerekGetirFormu::ÖzetiYaz() {
    const GetirmeÖzeti özet = m_plan.Özet();
    const QString neyin = m_istek.Yedek ? GünMetni(*m_istek.Yedek) : m_istek.İşlem.Açıklama;
    QStringList satırlar{Metin(m_istek.Yedek ? GetirmeMetni::Özet : GetirmeMetni::DönüşÖzeti)
                             .arg(neyin)
                             .arg(özet.Ürün)
                             .arg(özet.Malzeme)};
    if (özet.Diğer > 0) satırlar.append(Metin(GetirmeMetni::DiğerÜrünler).arg(özet.Diğer));
    if (!m_plan.Eksikler().isEmpty())
        satırlar.append(Metin(GetirmeMetni::GidenMalzemeler).arg(AdlarınBaşı(m_plan.Eksikler())));
    if (!m_denenen.Çember.isEmpty())
        satırlar.append(Metin(GetirmeMetni::ÇemberVar).arg(AdlarınBaşı(m_denenen.Çember)));
    else if (!m_denenen.Tamam())
        satırlar.append(Metin(GetirmeMetni::Hesaplanamadı));
    m_özet->setText(Bölünebilir(satırlar.join(QLatin1Char('\n'))));
    m_getir->setEnabled(m_denenen.Tamam() && özet.Ürün + özet.Malzeme > 0);
}

void SeçerekGetirFormu::AyrıntıyıYaz() {
    m_ayrıntı.Boşalt();
    const std::optional<std::size_t> seçili = m_tablo->SeçiliSatır();
    ÜrünHali şimdi;
    ÜrünHali sonra;
    if (seçili && m_plan.Kalemler()[*seçili].Ürün && İşSonucunuGöster(m_plan.ÜrünüOku(*seçili, şimdi, sonra)))
        m_ayrıntı.Kur(şimdi, sonra, OndalıkBasamak);
    m_ayrıntıModeli.Yenile();
}

// Ticks all rows; once all of them are, takes their ticks away.
void SeçerekGetirFormu::Tümünüİşaretle() {
    bool hepsi = true;
    for (const GetirmeKalemi& kalem : m_plan.Kalemler()) hepsi = hepsi && (kalem.İşaretli || !Uygulanır(kalem.Neden));
    m_model.Görünenleriİşaretle(!hepsi);
}

UygulamaSonucu SeçerekGetirFormu::Yürüt(QStringList& çözülenler) {
    const GetirmeÖzeti özet = m_plan.Özet();
    İşlemBilgisi bilgi{İşlemTürü::Getir, {}};
    if (m_istek.Yedek) {
        bilgi.Açıklama = Metin(GetirmeMetni::Açıklama).arg(GünMetni(*m_istek.Yedek)).arg(özet.Ürün).arg(özet.Malzeme);
    } else {
        const bool geri = m_istek.Tür == İşlemTürü::GeriAlma;
        bilgi = {m_istek.Tür,
                 Metin(geri ? MetinNo::GeriAlmaAçıklaması : MetinNo::YinelemeAçıklaması)
                     .arg(m_istek.İşlem.No)
                     .arg(m_istek.İşlem.Açıklama),
                 m_istek.İşlem.No, m_istek.İşlem.GeriAlan};
    }
    İlerlemeKutusu kutu(GetirmeMetni::Getiriliyor, 0, this);
    const GetirmeSonucu sonuç = m_plan.Uygula(ODBCBağlantısı(), bilgi, ŞimdikiZaman(),
                                              [&kutu](std::int64_t biten) { return kutu.Bildir(biten); });
    çözülenler = sonuç.Çözülenler;
    // The trial found no circle: the ties are others now.
    if (!sonuç.Çember.isEmpty()) return {UygulamaSonu::Değişmiş, {}, sonuç.Çember.first()};
    return sonuç.Uygulama;
}

// What was kept goes again where surely nothing was written.
void SeçerekGetirFormu::SaklananıBağla(const QString& saklanan, bool getirildi, bool yazılmadı) {
    if (saklanan.isEmpty() || (!getirildi && !yazılmadı)) return;
    ArkadaYürüt(GetirmeMetni::Getiriliyor, 0, this, [&](ArkaDurum&) { ÖncekiKopyayıBağla(saklanan, getirildi); });
}

void SeçerekGetirFormu::Getir() {
    QString saklanan;
    if (m_istek.Yedek && !ÖncekiniSakla(m_istek.Yollar, saklanan, this)) return;
    const GetirmeÖzeti özet = m_plan.Özet();
    QStringList çözülenler;
    const auto dosya = [yol = m_istek.Yollar.GerçekDosya] {
        const QFileInfo bilgi(yol);
        return std::pair(bilgi.lastModified(), bilgi.size());
    };
    const auto önce = dosya();
    const UygulamaSonucu sonuç = Yürüt(çözülenler);
    SaklananıBağla(saklanan, sonuç.Son == UygulamaSonu::Tamam, dosya() == önce);
    switch (UygulamayıBildir(sonuç, GetirmeMetni::Getirilemedi)) {
        case ÖnizlemeAdımı::Kabul:
            if (m_istek.Yedek) {
                Bildir(MesajKutusu::Simge::Bilgi, Metin(GetirmeMetni::Getirildi).arg(özet.Ürün).arg(özet.Malzeme));
                ErişimdenDeğişenleriBildir(*m_ortam.Açılan(), m_istek.Yollar);
            }
            if (!çözülenler.isEmpty())
                Bildir(MesajKutusu::Simge::Bilgi, Metin(GetirmeMetni::BağlarÇözüldü).arg(AdlarınBaşı(çözülenler)));
            accept();
            return;
        case ÖnizlemeAdımı::Kal:
            return;
        case ÖnizlemeAdımı::YenidenKur:
            if (Yükle()) return;
            break;
        case ÖnizlemeAdımı::Ret:
            break;
    }
    reject();
}
