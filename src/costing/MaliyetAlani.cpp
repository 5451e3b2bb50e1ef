#include "MaliyetAlani.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>
#include <algorithm>

#include "DegiskenModulu.h"
#include "Deyimler.h"
#include "FormParcalari.h"
#include "MetinTablosu.h"
#include "OdbcModulu.h"
#include "SayiKutusu.h"
#include "SayiMetni.h"

namespace {

enum Yüzdeler { İşçilik, Kâr, Diğer, Vade };

}  // namespace

MaliyetAlanı::MaliyetAlanı(std::function<void(bool düzenlendi)> değişince, QWidget* sahip)
    : QFrame(sahip), m_değişince(std::move(değişince)) {
    setObjectName(QStringLiteral("Çerçeve"));
    setFrameShape(QFrame::StyledPanel);
    Yerleştir();
    connect(m_malzeme, &QLineEdit::textChanged, this, [this](const QString& metin) { MalzemeMaliyetiDeğişti(metin); });
}

void MaliyetAlanı::Yerleştir() {
    m_malzeme = GösterimKutusu(QStringLiteral("MalzemeMaliyetiToplamıKutusu"));
    m_toplam = GösterimKutusu(QStringLiteral("ToplamMaliyetKutusu"));
    QFont büyük = m_toplam->font();
    büyük.setBold(true);
    büyük.setPointSizeF(büyük.pointSizeF() * 1.6);
    m_toplam->setFont(büyük);

    m_toplam->setMinimumWidth(m_toplam->fontMetrics().horizontalAdvance(QStringLiteral("888.888.888,88")));

    auto* malzemeSatırı = new QHBoxLayout;
    malzemeSatırı->addWidget(EtiketOluştur(2, MetinNo::ToplamMalzemeMaliyeti, m_malzeme));
    malzemeSatırı->addWidget(m_malzeme, 1);
    auto* toplamSatırı = new QHBoxLayout;
    QLabel* toplamEtiketi = EtiketOluştur(7, MetinNo::ToplamVarnek, m_toplam);
    QFont kalın = toplamEtiketi->font();
    kalın.setBold(true);
    toplamEtiketi->setFont(kalın);
    toplamSatırı->addWidget(toplamEtiketi);
    toplamSatırı->addWidget(m_toplam, 1);

    auto* düzen = new QVBoxLayout(this);
    düzen->addLayout(malzemeSatırı);
    düzen->addLayout(YüzdeleriYerleştir());
    düzen->addLayout(toplamSatırı);
}

QLayout* MaliyetAlanı::YüzdeleriYerleştir() {
    const std::array adlar = {"İşçilikYüzdesiKutusu", "KarYüzdesiKutusu", "DiğerMaliyetYüzdesiKutusu",
                              "VadeFarkıYüzdesiKutusu"};
    const std::array başlıklar = {MetinNo::İşçilikYüzdesi, MetinNo::KârYüzdesi, MetinNo::DiğerYüzdesi,
                                  MetinNo::VadeYüzdesi};
    auto* düzen = new QGridLayout;
    for (const int kutuSütunu : {1, 3}) düzen->setColumnStretch(kutuSütunu, 1);
    for (int i = İşçilik; i <= Vade; ++i) {
        // Only other costs may be negative (a discount).
        auto* kutu = new SayıKutusu(i == Diğer ? SayıKutusu::Tür::EksiliYüzde : SayıKutusu::Tür::Yüzde);
        kutu->setObjectName(QString::fromUtf8(adlar[i]));
        kutu->Düzenlenince([this] { ToplamıGöster(Toplam(), true); });
        m_yüzdeler[i] = kutu;
        const int satır = i / 2;
        const int sütun = i % 2 * 2;
        düzen->addWidget(VurgulananEtiket(3 + i, başlıklar[i], kutu), satır, sütun);
        düzen->addWidget(kutu, satır, sütun + 1);
    }
    return düzen;
}

void MaliyetAlanı::MalzemeMaliyetiniGöster(Para maliyet) {
    m_malzeme->setText(SayıBiçimle(maliyet, OndalıkBasamak));
}

void MaliyetAlanı::MalzemeMaliyetiDeğişti(const QString& metin) {
    const std::optional<QString> biçimli = SayıMetniBiçimle(metin, OndalıkBasamak);
    if (biçimli) m_malzeme->setText(*biçimli);
}

bool MaliyetAlanı::YüzdeleriYükle(const QString& grup, const QString& ürün) {
    // No percentage of the product before may stay in a box.
    for (SayıKutusu* kutu : m_yüzdeler) kutu->clear();
    std::array<QString, 4> saklanan;
    const Kayıt kayıt = KaydıOku(Deyimler::Yüzdeler(grup, ürün), [&saklanan] {
        for (int i = İşçilik; i <= Vade; ++i) saklanan[i] = SütunOku(i + 1);
    });
    if (kayıt != Kayıt::Var) return false;
    for (int i = İşçilik; i <= Vade; ++i) m_yüzdeler[i]->setText(YüzdeMetni(saklanan[i], OndalıkBasamak));
    GösterileniTut();
    return true;
}

void MaliyetAlanı::GösterileniTut() {
    for (std::size_t i = 0; i < m_yüzdeler.size(); ++i) m_saklanan[i] = m_yüzdeler[i]->text();
}

MaliyetAlanı::Yazılanlar MaliyetAlanı::Yazılan() const {
    Yazılanlar yazılan;
    for (std::size_t i = 0; i < m_yüzdeler.size(); ++i)
        if (m_yüzdeler[i]->text() != m_saklanan[i]) yazılan[i] = m_yüzdeler[i]->text();
    return yazılan;
}

void MaliyetAlanı::YazılanıKoy(const Yazılanlar& yazılan) {
    for (std::size_t i = 0; i < m_yüzdeler.size(); ++i)
        if (yazılan[i]) m_yüzdeler[i]->setText(*yazılan[i]);
}

bool MaliyetAlanı::YüzdeleriKaydet(const QString& grup, const QString& ürün) {
    const bool saklanır =
        std::all_of(m_yüzdeler.begin(), m_yüzdeler.end(), [](SayıKutusu* kutu) { return kutu->Saklanır(); });
    const MaliyetGirdisi yüzdeler = Girdi();
    if (!saklanır || !DeyimiYürüt(Deyimler::YüzdeleriKaydet(yüzdeler.İşçilik, yüzdeler.Kâr, yüzdeler.Diğer,
                                                            yüzdeler.Vade, grup, ürün)))
        return false;
    GösterileniTut();
    return true;
}

void MaliyetAlanı::ToplamMaliyetHesapla() {
    ToplamıGöster(Toplam(), false);
}

QString MaliyetAlanı::Toplam() const {
    return SayıBiçimle(MaliyetHesapla(Girdi()).Toplam, OndalıkBasamak);
}

void MaliyetAlanı::ToplamıGöster(const QString& toplam, bool düzenlendi) {
    const bool değişti = toplam != m_toplam->text();
    m_toplam->setText(toplam);
    if (değişti || düzenlendi) m_değişince(düzenlendi);
}

void MaliyetAlanı::Boşalt() {
    m_malzeme->clear();
    for (SayıKutusu* kutu : m_yüzdeler) kutu->clear();
    ToplamıGöster({}, false);
}

MaliyetGirdisi MaliyetAlanı::Girdi() const {
    return {m_malzeme->text(), m_yüzdeler[İşçilik]->text(), m_yüzdeler[Kâr]->text(), m_yüzdeler[Diğer]->text(),
            m_yüzdeler[Vade]->text()};
}

QString MaliyetAlanı::ToplamMaliyet() const {
    return m_toplam->text();
}
