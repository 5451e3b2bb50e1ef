#include "ArsivFoyuFormu.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include "ArsivCiktilari.h"
#include "ArsivMetinleri.h"
#include "ArsivMetni.h"
#include "CizelgeKaydi.h"
#include "FisCizelgesi.h"
#include "FormParcalari.h"
#include "ListeCizelgesi.h"
#include "Tablo.h"
#include "UrunMetinleri.h"
#include "Yazdirma.h"

ArşivFöyüFormu::ArşivFöyüFormu(Başlık arşiv, OkunanFöy föy, QWidget* sahip)
    : QDialog(sahip), m_arşiv(std::move(arşiv)), m_föy(std::move(föy)), m_model(m_kaynak, FöyMalzemeSütunlarınıVer()) {
    setObjectName(QStringLiteral("ArşivFöyüFormu"));
    setWindowTitle(
        Metin(ArşivMetni::FöyBaşlığı).arg(m_föy.Föy.Ürün, GünMetni(m_arşiv.Gün), QString::number(m_arşiv.No)));
    m_kaynak.Satırlar = m_föy.Föy.Satırlar;
    m_tablo = new Tablo(QStringLiteral("FöyMalzemeTablosu"), m_model);
    m_model.Yenile();
    m_yazdır = DüğmeOluştur(QStringLiteral("YazdırButonu"), MetinNo::Yazdır,
                            [this] { static_cast<void>(Yazdır(*this, *m_yazdır, Rapor())); });
    m_pdf = DüğmeOluştur(QStringLiteral("PdfKaydetButonu"), MetinNo::PdfKaydet,
                         [this] { PdfKaydet(*this, *m_pdf, Rapor()); });
    Yerleştir();
}

ArşivFöyüFormu::~ArşivFöyüFormu() {
    delete m_tablo;  // goes before the model that it shows
}

QWidget* ArşivFöyüFormu::Özet() {
    const ArşivFöyü& f = m_föy.Föy;
    const std::tuple<const char*, MetinNo, QString> satırlar[] = {
        {"MalzemeMaliyetiKutusu", ArşivMetni::MalzemeSatırı, f.MalzemeMetni},
        {"İşçilikKutusu", ArşivMetni::İşçilikSatırı, f.YüzdeMetinleri[0]},
        {"KârKutusu", ArşivMetni::KârSatırı, f.YüzdeMetinleri[1]},
        {"DiğerKutusu", ArşivMetni::DiğerSatırı, f.YüzdeMetinleri[2]},
        {"VadeKutusu", ArşivMetni::VadeSatırı, f.YüzdeMetinleri[3]},
        {"ToplamKutusu", ArşivMetni::ToplamSatırı, f.ToplamMetni},
        {"ToplamMiktarKutusu", ArşivMetni::ToplamMiktarSatırı, f.MiktarMetni},
        {"BirimMaliyetKutusu", ArşivMetni::BirimSatırı, f.BirimMetni}};
    auto* özet = new QWidget;
    auto* düzen = new QGridLayout(özet);
    düzen->setContentsMargins(0, 0, 0, 0);
    constexpr int yarı = 4;
    int sıra = 0;
    for (const auto& [ad, metin, değer] : satırlar) {
        QLineEdit* kutu = GösterimKutusu(QString::fromUtf8(ad));
        kutu->setText(değer);
        const int sütun = sıra / yarı * 2;
        düzen->addWidget(EtiketOluştur(sıra + 2, metin, kutu), sıra % yarı, sütun);
        düzen->addWidget(kutu, sıra % yarı, sütun + 1);
        ++sıra;
    }
    return özet;
}

void ArşivFöyüFormu::Yerleştir() {
    auto* açıklama = new QLabel;
    açıklama->setObjectName(QStringLiteral("NotEtiketi"));
    açıklama->setTextFormat(Qt::PlainText);
    açıklama->setWordWrap(true);
    QStringList notlar;
    if (!m_föy.Sağlam) notlar.append(Metin(ArşivMetni::FöyBozukUyarısı));
    const QString dikkat = ArşivDikkatMetni(m_föy.Föy.Dikkat);
    if (!dikkat.isEmpty())
        notlar.append(FöyEksik(m_föy.Föy.Dikkat) ? Metin(ArşivMetni::DurumEksik).arg(dikkat) : dikkat);
    if (!m_arşiv.Not.isEmpty()) notlar.append(SatırlaraBölünür(m_arşiv.Not));
    açıklama->setText(notlar.join(QLatin1Char('\n')));
    açıklama->setVisible(!notlar.isEmpty());
    if (!m_föy.Sağlam) {
        QFont kalın = açıklama->font();
        kalın.setBold(true);
        açıklama->setFont(kalın);
    }
    auto* önizle =
        DüğmeOluştur(QStringLiteral("ÖnizlemeButonu"), MetinNo::Önizleme, [this] { Önizle(*this, Rapor()); });
    auto* aktar = DüğmeOluştur(QStringLiteral("TabloyaAktarButonu"), ÜrünMetni::TabloyaAktar, [this] { Çizelgeye(); });
    auto* kapat = DüğmeOluştur(QStringLiteral("KapatButonu"), MetinNo::Kapat, [this] { reject(); });
    auto* düzen = new QVBoxLayout(this);
    düzen->addWidget(açıklama);
    düzen->addWidget(TabloBölümü(1, ArşivMetni::FöyünSatırları, m_tablo), 1);
    düzen->addWidget(Özet());
    düzen->addLayout(DüğmeSırası({m_yazdır, m_pdf, önizle, aktar, nullptr, kapat}));
    m_tablo->setFocus();
    BoyVer(*this, {760, 560});
}

Yazdırılacak ArşivFöyüFormu::Rapor() const {
    const MaliyetFişi fiş = ArşivFişi(m_arşiv, m_föy);
    return {fiş.Ürün, [fiş](SayfaYüzeyi& yüzey) { MaliyetFişiniYaz(yüzey, fiş); }};
}

// The title last, as it says where the sheet is not what it was.
void ArşivFöyüFormu::Çizelgeye() {
    const MaliyetFişi fiş = ArşivFişi(m_arşiv, m_föy);
    QList<QList<ÇizelgeDeğeri>> sonra = FişÖzetininSatırları(fiş);
    QList<ÇizelgeDeğeri>& başlık = sonra.emplaceBack();
    for (int boş = 0; boş < 2; ++boş) başlık.emplaceBack();
    başlık.emplaceBack(fiş.Ürün);
    ÇizelgeyeKaydet(*this, fiş.Ürün,
                    [&](const QString& yol) { return TabloyuÇizelgeyeYaz(yol, fiş.Ürün, m_model, sonra); });
}
