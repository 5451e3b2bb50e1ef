#include "UrunEkleSilFormu.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "AcilirGirisKutusu.h"
#include "AnaFormErisimi.h"
#include "Deyimler.h"
#include "GirisKutusu.h"
#include "FormParcalari.h"
#include "KatalogListesi.h"
#include "MesajKutusu.h"
#include "MetinTablosu.h"
#include "MetinTemsilcisi.h"
#include "OdbcModulu.h"
#include "TurkceSira.h"
#include "YeniUrun.h"
#include "Yukleyiciler.h"

using MesajKutusu::Düğmeler;
using MesajKutusu::Simge;
using MesajKutusu::Yanıt;

namespace {}  // namespace

ÜrünEkleSilFormu::ÜrünEkleSilFormu(AnaFormErişimi& anaForm, QWidget* sahip) : QDialog(sahip), m_anaForm(anaForm) {
    setObjectName(QStringLiteral("ÜrünEkleSilFormu"));
    setWindowTitle(Metin(MetinNo::ÜrünFormuBaşlığı));
    KontrolleriKur();
    Yerleştir();
}

void ÜrünEkleSilFormu::KontrolleriKur() {
    m_ağaç = new TekSeçimli<QTreeWidget>;
    m_ağaç->setObjectName(QStringLiteral("ÜrünListesi"));
    m_ağaç->setHeaderHidden(true);
    m_ağaç->setUniformRowHeights(true);
    m_ağaç->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_ağaç->setItemDelegate(new MetinTemsilcisi(m_ağaç));
    Enterİleİlerlesin(m_ağaç);
    m_ağaç->Seçilince([this] { SilDüğmesiniAdlandır(); });
    connect(m_ağaç, &QTreeWidget::itemCollapsed, this, [this](QTreeWidgetItem* grup) { m_ağaç->setCurrentItem(grup); });

    m_çerçeve = ÇerçeveOluştur();
    m_çerçeve->setEnabled(false);
    m_grup = new GrupKutusu;
    m_grup->setObjectName(QStringLiteral("ÜrünGrubuListesi"));
    m_ad = new AdKutusu;
    m_ad->setObjectName(QStringLiteral("ÜrünAdıKutusu"));

    m_ekleKaydet = RolDeğiştirenDüğme(QStringLiteral("ÜrünEkleKaydetButonu"), {MetinNo::ÜrünEkle, MetinNo::Kaydet},
                                      [this] { ÜrünEkleKaydetButonu_Click(); });
    m_sil = RolDeğiştirenDüğme(QStringLiteral("ÜrünSilButonu"), {MetinNo::ÜrünGrubuSil, MetinNo::ÜrünSil},
                               [this] { ÜrünSilButonu_Click(); });
    m_kapatİptal = RolDeğiştirenDüğme(QStringLiteral("KapatİptalButonu"), {MetinNo::Kapat, MetinNo::İptal},
                                      [this] { KapatİptalButonu_Click(); });
}

void ÜrünEkleSilFormu::Yerleştir() {
    auto* kutular = new QVBoxLayout(m_çerçeve);
    kutular->addWidget(VurgulananEtiket(1, MetinNo::ÜrünGrubu, m_grup));
    kutular->addWidget(m_grup);
    kutular->addWidget(VurgulananEtiket(2, MetinNo::ÜrünAdı, m_ad));
    kutular->addWidget(m_ad);
    m_çerçeve->setMinimumWidth(300);

    auto* sağ = new QVBoxLayout;
    sağ->addWidget(m_çerçeve);
    sağ->addStretch();
    sağ->addLayout(DüğmeSırası({m_ekleKaydet, m_sil, nullptr, m_kapatİptal}));
    auto* sol = new QVBoxLayout;
    sol->addWidget(VurgulananEtiket(0, MetinNo::ÜrünListesiBaşlığı, m_ağaç));
    sol->addWidget(m_ağaç);
    auto* düzen = new QHBoxLayout(FormAltlığı(this));
    düzen->addLayout(sol, 1);
    düzen->addLayout(sağ);
    resize(680, 440);
    m_ağaç->setFocus();
}

void ÜrünEkleSilFormu::Yükle() {
    m_gruplarOkundu = GruplarıDoldur(*m_grup);
    ÜrünAğacınıYükle(*m_ağaç);
    SilDüğmesiniAdlandır();
    ListeDurumunuAyarla();
}

bool ÜrünEkleSilFormu::EklemeKipinde() const {
    return m_çerçeve->isEnabledTo(this);
}

void ÜrünEkleSilFormu::EklemeKipineGeç() {
    m_çerçeve->setEnabled(true);
    m_ağaç->setEnabled(false);
    m_sil->setEnabled(false);
    m_ekleKaydet->setText(Metin(MetinNo::Kaydet));
    m_kapatİptal->setText(Metin(MetinNo::İptal));
    m_grup->setFocus();
}

void ÜrünEkleSilFormu::GözatmaKipineDön() {
    m_ekleKaydet->setText(Metin(MetinNo::ÜrünEkle));
    m_kapatİptal->setText(Metin(MetinNo::Kapat));
    m_grup->setCurrentIndex(-1);  // the next use of the list begins at its first entry
    m_grup->clearEditText();
    m_ad->clear();
    m_çerçeve->setEnabled(false);
    ListeDurumunuAyarla();
}

void ÜrünEkleSilFormu::ListeDurumunuAyarla() {
    const bool dolu = m_ağaç->topLevelItemCount() > 0;
    m_ağaç->setEnabled(dolu);
    m_sil->setEnabled(dolu);
}

void ÜrünEkleSilFormu::SilDüğmesiniAdlandır() {
    const QTreeWidgetItem* düğüm = m_ağaç->SeçiliÖğe();
    m_sil->setText(Metin(düğüm && düğüm->parent() ? MetinNo::ÜrünSil : MetinNo::ÜrünGrubuSil));
}

void ÜrünEkleSilFormu::ÜrünEkleKaydetButonu_Click() {
    if (!EklemeKipinde()) {
        // A group that is not known could come in a second time, spelled otherwise.
        if (!m_gruplarOkundu) m_gruplarOkundu = GruplarıDoldur(*m_grup);
        if (m_gruplarOkundu) EklemeKipineGeç();
        return;
    }
    if (!YeniÜrünUygun(*m_grup, *m_ad)) return;
    const QString grup = KayıtlıGrup(*m_grup);
    const QString ürün = m_ad->text();
    if (!DeyimiYürüt(Deyimler::ÜrünEkle(grup, ürün))) return;
    m_anaForm.VeriDeğişti({.Ürünler = {{grup, ürün}}});
    EkleneniYerleştir(grup, ürün);
    m_anaForm.ÜrünAğacınıYenile();
    GözatmaKipineDön();
    m_ekleKaydet->setFocus();
}

QTreeWidgetItem* ÜrünEkleSilFormu::GrupDüğümü(const QString& grup) const {
    for (int sıra = 0; sıra < m_ağaç->topLevelItemCount(); ++sıra) {
        if (m_ağaç->topLevelItem(sıra)->text(0) == grup) return m_ağaç->topLevelItem(sıra);
    }
    return nullptr;
}

void ÜrünEkleSilFormu::EkleneniYerleştir(const QString& grup, const QString& ürün) {
    // A new group whose text begins an existing group's name counts as existing: it gets no entry and no node here.
    if (m_grup->ÖnEkleBul(grup) < 0) {
        m_grup->ÖğeEkle(SıralıYer(
                            m_grup->count(), [this](int sıra) { return m_grup->itemText(sıra); }, grup),
                        grup);
        const auto düğümAdı = [this](int sıra) { return m_ağaç->topLevelItem(sıra)->text(0); };
        m_ağaç->insertTopLevelItem(SıralıYer(m_ağaç->topLevelItemCount(), düğümAdı, grup),
                                   new QTreeWidgetItem(QStringList(grup)));
    }
    // Without its group's node the product is not shown here; the main form's tree, read anew, shows it.
    QTreeWidgetItem* düğüm = GrupDüğümü(grup);
    if (!düğüm) return;
    const auto ürünAdı = [düğüm](int sıra) { return düğüm->child(sıra)->text(0); };
    düğüm->insertChild(SıralıYer(düğüm->childCount(), ürünAdı, ürün), new QTreeWidgetItem(QStringList(ürün)));
}

bool ÜrünEkleSilFormu::SilmeOnayı(bool grupMu) {
    if (grupMu && !Sor(Metin(MetinNo::GrupSilmeSorusu))) return false;
    MesajKutusuOrtala();
    return MesajKutusu::Göster(Simge::Ünlem, Düğmeler::EvetHayır, Metin(MetinNo::SilmeGeriAlınamaz)) == Yanıt::Evet;
}

void ÜrünEkleSilFormu::ÜrünSilButonu_Click() {
    const QTreeWidgetItem* düğüm = m_ağaç->SeçiliÖğe();
    if (!düğüm) {
        Uyar(MetinNo::ÜrünSeçiniz, *m_ağaç);
        return;
    }
    const bool grupMu = !düğüm->parent();
    const QString grup = (grupMu ? düğüm : düğüm->parent())->text(0);
    const QString ürün = grupMu ? QString() : düğüm->text(0);
    if (!SilmeOnayı(grupMu)) return;
    if (!DeyimiYürüt(grupMu ? Deyimler::GrubuSil(grup) : Deyimler::ÜrünüSil(grup, ürün))) return;
    const bool malzemelerSilindi =
        DeyimiYürüt(grupMu ? Deyimler::GrubunMalzemeleriniSil(grup) : Deyimler::ÜrününMalzemeleriniSil(grup, ürün));
    m_anaForm.VeriDeğişti({.Ürünler = {{grup, ürün}}, .Silindi = true});
    if (!malzemelerSilindi) {
        // The node stays here: through it the materials left behind can still be deleted.
        YarımKaldı(MetinNo::MalzemeleriKaldı);
        m_anaForm.ÜrünAğacınıYenile();
        return;
    }
    SilineniKaldır(grup, ürün, grupMu);
    m_anaForm.ÜrünAğacınıYenile();
    SilDüğmesiniAdlandır();
    ListeDurumunuAyarla();
}

void ÜrünEkleSilFormu::SilineniKaldır(const QString& grup, const QString& ürün, bool grupMu) {
    // The statements met every letter case of the names, so every such node goes.
    bool grupGitti = false;
    for (int sıra = m_ağaç->topLevelItemCount() - 1; sıra >= 0; --sıra) {
        QTreeWidgetItem* düğüm = m_ağaç->topLevelItem(sıra);
        if (!Türkçe::Aynı(düğüm->text(0), grup)) continue;
        for (int çocuk = düğüm->childCount() - 1; çocuk >= 0; --çocuk) {
            if (grupMu || Türkçe::Aynı(düğüm->child(çocuk)->text(0), ürün)) delete düğüm->takeChild(çocuk);
        }
        if (düğüm->childCount() > 0) continue;
        delete m_ağaç->takeTopLevelItem(sıra);
        grupGitti = true;
    }
    const int kayıt = grupGitti ? m_grup->ÖnEkleBul(grup) : -1;
    if (kayıt >= 0) m_grup->ÖğeÇıkar(kayıt);
}

void ÜrünEkleSilFormu::KapatİptalButonu_Click() {
    if (EklemeKipinde()) {
        GözatmaKipineDön();
        m_ekleKaydet->setFocus();
    } else {
        QDialog::reject();
    }
}
