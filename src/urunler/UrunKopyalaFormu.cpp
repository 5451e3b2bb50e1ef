#include "UrunKopyalaFormu.h"

#include <QLabel>
#include <QVBoxLayout>

#include "AcilirGirisKutusu.h"
#include "FormParcalari.h"
#include "KesmesizKutu.h"
#include "KisalanEtiket.h"
#include "MesajKutusu.h"
#include "MetinTablosu.h"
#include "FiyatIsi.h"
#include "OdbcModulu.h"
#include "Saat.h"
#include "UrunMetinleri.h"
#include "YariMamulBaglari.h"
#include "YariMamulMetinleri.h"
#include "YeniUrun.h"

namespace {

class YeniGrupKutusu : public GrupKutusu {
  public:
    QString Düzelt(const QString& metin) const override { return GrupKutusu::Düzelt(metin).replace(u'\'', u'’'); }
};

}  // namespace

ÜrünKopyalaFormu::ÜrünKopyalaFormu(ÜrünAdı eski, QWidget* sahip) : QDialog(sahip), m_eski(std::move(eski)) {
    setObjectName(QStringLiteral("ÜrünKopyalaFormu"));
    setWindowTitle(Metin(ÜrünMetni::KopyaBaşlığı));
    m_açıklama = new QLabel;
    m_açıklama->setObjectName(QStringLiteral("KopyalananEtiketi"));
    m_açıklama->setTextFormat(Qt::PlainText);
    m_açıklama->setWordWrap(true);
    m_grup = new YeniGrupKutusu;
    m_grup->setObjectName(QStringLiteral("YeniGrupListesi"));
    m_grup->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);  // a long name scrolls
    m_ad = new KesmesizKutu<AdKutusu>;
    m_ad->setObjectName(QStringLiteral("YeniAdKutusu"));
    m_tamam = DüğmeOluştur(QStringLiteral("TamamButonu"), ÜrünMetni::KopyaTamam, [this] { Kopyala(); });
    Yerleştir();
}

void ÜrünKopyalaFormu::Yerleştir() {
    auto* ürün = new KısalanEtiket(QStringLiteral("ÜrünEtiketi"));
    ürün->setText(m_eski.Grup + QStringLiteral(" / ") + m_eski.Ad);
    QFont kalın = ürün->font();
    kalın.setBold(true);
    ürün->setFont(kalın);
    auto* iptal = DüğmeOluştur(QStringLiteral("İptalButonu"), MetinNo::İptal, [this] { reject(); });
    auto* düzen = new QVBoxLayout(this);
    düzen->addWidget(ürün);
    düzen->addWidget(m_açıklama);
    düzen->addWidget(VurgulananEtiket(1, MetinNo::ÜrünGrubu, m_grup));
    düzen->addWidget(m_grup);
    düzen->addWidget(VurgulananEtiket(2, MetinNo::ÜrünAdı, m_ad));
    düzen->addWidget(m_ad);
    düzen->addStretch();
    düzen->addLayout(DüğmeSırası({m_tamam, nullptr, iptal}));
    m_ad->setFocus();
    BoyVer(*this, {460, 240});
}

bool ÜrünKopyalaFormu::Yükle() {
    if (!GruplarıDoldur(*m_grup) || !ÜrünüOku()) return false;
    m_grup->setCurrentIndex(m_grup->findText(m_eski.Grup, Qt::MatchFixedString | Qt::MatchCaseSensitive));
    m_grup->setEditText(m_eski.Grup);
    m_ad->setText(m_eski.Ad);
    m_ad->selectAll();
    return true;
}

bool ÜrünKopyalaFormu::ÜrünüOku() {
    std::optional<SaklananÜrün> saklanan;
    if (!İşSonucunuGöster(SaklananÜrünüOku(ODBCBağlantısı(), m_eski, saklanan))) return false;
    if (!saklanan) return Uyar(ÜrünMetni::ÜrünArtıkYok, *m_ad);
    m_saklanan = std::move(*saklanan);
    m_açıklama->setText(Metin(ÜrünMetni::Kopyalanan).arg(m_saklanan.Satırlar.size()));
    return true;
}

void ÜrünKopyalaFormu::Kopyala() {
    if (!YeniÜrünUygun(*m_grup, *m_ad)) return;
    m_yeni = {KayıtlıGrup(*m_grup), m_ad->text()};
    const ÜrünKopyaSonucu sonuç = ÜrünüKopyala(ODBCBağlantısı(), m_eski, m_saklanan, m_yeni, Bugün());
    switch (sonuç.Son) {
        case KopyaSonu::Tamam:
            accept();
            return;
        case KopyaSonu::AdVar:
            Uyar(MetinNo::ÜrünListedeVar, *m_ad);
            return;
        case KopyaSonu::KalanVar:
            Uyar(ÜrünMetni::KopyaKalanVar, *m_ad);
            return;
        case KopyaSonu::Döngü:
            Uyar(Metin(YarıMamulMetni::KopyaDöngüsü).arg(m_yeni.Ad, ZincirMetni(m_yeni.Ad, sonuç.Zincir)), *m_ad);
            return;
        case KopyaSonu::Değişmiş:
            if (!ÜrünüOku()) return reject();
            Uyar(ÜrünMetni::KopyalananDeğişmiş, *m_tamam);
            return;
        case KopyaSonu::Yazılamadı:
            İşSonucunuGöster({İşSonu::Olmadı, sonuç.Odbc});
            return;
    }
}
