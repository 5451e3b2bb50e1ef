#include "MalzemeEkleSilFormu.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "AnaFormErisimi.h"
#include "DegiskenModulu.h"
#include "Deyimler.h"
#include "DovizEtiketi.h"
#include "ElleDegisim.h"
#include "GirisKutusu.h"
#include "MesajKutusu.h"
#include "FormParcalari.h"
#include "MetinTablosu.h"
#include "KatalogListesi.h"
#include "Saat.h"
#include "SayiKutusu.h"
#include "SayiMetni.h"
#include "YariMamulMetinleri.h"
#include "Yukleyiciler.h"

using MesajKutusu::Düğmeler;
using MesajKutusu::Simge;
using MesajKutusu::Yanıt;

MalzemeEkleSilFormu::MalzemeEkleSilFormu(AnaFormErişimi& anaForm, QWidget* sahip) : QDialog(sahip), m_anaForm(anaForm) {
    setObjectName(QStringLiteral("MalzemeEkleSilFormu"));
    setWindowTitle(Metin(MetinNo::MalzemeFormuBaşlığı));
    KontrolleriKur();
    Yerleştir();
}

void MalzemeEkleSilFormu::KontrolleriKur() {
    m_bul = new GirişKutusu;
    m_bul->setObjectName(QStringLiteral("MalzemeBulKutusu"));
    connect(m_bul, &QLineEdit::textChanged, this, [this] { MalzemeBulKutusu_Change(); });
    m_liste = new KatalogListesi(QStringLiteral("MalzemeListesi"));
    m_liste->Seçilince([this] { HataYakala([this] { SeçileniGöster(); }); });

    m_çerçeve = ÇerçeveOluştur();
    m_çerçeve->setEnabled(false);
    m_ad = new AdKutusu;
    m_ad->setObjectName(QStringLiteral("MalzemeAdıKutusu"));
    m_fiyat = new SayıKutusu(SayıKutusu::Tür::Tutar);
    m_fiyat->setObjectName(QStringLiteral("MalzemeFiyatıKutusu"));
    TutaraYerAç(m_fiyat);
    m_döviz = new DövizEtiketi;

    m_ekleKaydet =
        RolDeğiştirenDüğme(QStringLiteral("MalzemeEkleKaydetButonu"), {MetinNo::MalzemeEkle, MetinNo::Kaydet},
                           [this] { MalzemeEkleKaydetButonu_Click(); });
    m_sil = DüğmeOluştur(QStringLiteral("MalzemeSilButonu"), MetinNo::MalzemeSil, [this] { MalzemeSilButonu_Click(); });
    m_fiyatDeğiştir =
        RolDeğiştirenDüğme(QStringLiteral("MalzemeFiyatıDeğiştirButonu"), {MetinNo::FiyatDeğiştir, MetinNo::Kaydet},
                           [this] { MalzemeFiyatıDeğiştirButonu_Click(); });
    m_geçmiş =
        DüğmeOluştur(QStringLiteral("FiyatGeçmişiButonu"), MetinNo::FiyatGeçmişiDüğmesi, [this] { GeçmişiGöster(); });
    m_kapatİptal = RolDeğiştirenDüğme(QStringLiteral("KapatİptalButonu"), {MetinNo::Kapat, MetinNo::İptal},
                                      [this] { KapatİptalButonu_Click(); });
}

void MalzemeEkleSilFormu::Yerleştir() {
    auto* sol = new QVBoxLayout;
    sol->addWidget(VurgulananEtiket(1, MetinNo::MalzemeBul, m_bul));
    sol->addWidget(m_bul);
    sol->addWidget(VurgulananEtiket(0, MetinNo::MalzemeListesiEtiketi, m_liste));
    sol->addWidget(m_liste);

    auto* kutular = new QVBoxLayout(m_çerçeve);
    kutular->addWidget(VurgulananEtiket(2, MetinNo::MalzemeAdı, m_ad));
    kutular->addWidget(m_ad);
    kutular->addWidget(VurgulananEtiket(3, MetinNo::MalzemeFiyatı, m_fiyat));
    kutular->addWidget(m_fiyat);
    kutular->addWidget(m_döviz);

    auto* sağ = new QVBoxLayout;
    sağ->addWidget(m_çerçeve);
    sağ->addLayout(DüğmeSırası({m_ekleKaydet, m_sil, m_fiyatDeğiştir}));
    sağ->addStretch();
    sağ->addLayout(DüğmeSırası({m_geçmiş, nullptr, m_kapatİptal}));

    auto* düzen = new QHBoxLayout(FormAltlığı(this));
    düzen->addLayout(sol, 1);
    düzen->addLayout(sağ);
    resize(720, 460);
    m_bul->setFocus();
}

void MalzemeEkleSilFormu::Yükle() {
    MalzemeListesiniYükle(*m_liste);
    ListeyiEtkinleştir(m_liste->count() > 0);
    SatırıSeç(m_liste->count() > 0 ? 0 : -1);
}

MalzemeEkleSilFormu::Kip MalzemeEkleSilFormu::GeçerliKip() const {
    if (!m_çerçeve->isEnabledTo(this)) return Kip::Gözatma;
    return m_ekleKaydet->isEnabledTo(this) ? Kip::Ekleme : Kip::FiyatDeğişimi;
}

void MalzemeEkleSilFormu::ListeyiEtkinleştir(bool etkin) {
    m_liste->setEnabled(etkin);
    m_bul->setEnabled(etkin);
    m_sil->setEnabled(etkin);
    m_fiyatDeğiştir->setEnabled(etkin);
    m_geçmiş->setEnabled(etkin);
}

void MalzemeEkleSilFormu::SatırıSeç(int satır) {
    const QSignalBlocker sessiz(m_liste);
    m_liste->setCurrentRow(satır);
    if (satır >= 0) m_liste->scrollToItem(m_liste->item(satır));
    SeçileniGöster();
}

Kayıt MalzemeEkleSilFormu::SeçileniGöster() {
    m_ad->clear();
    m_fiyat->clear();
    m_döviz->clear();
    const QListWidgetItem* seçili = m_liste->SeçiliÖğe();
    if (!seçili) return Kayıt::Yok;
    QString ad;
    QString fiyat;
    const Kayıt kayıt = KaydıOku(Deyimler::MalzemeVeFiyatı(seçili->text()), [&] {
        ad = SütunOku(1);
        fiyat = NoktayıVirgüleÇevir(SütunOku(2));
    });
    if (kayıt == Kayıt::Var) {
        m_ad->setText(ad);
        m_ad->home(false);  // of a long name the beginning is seen
        m_fiyat->setText(SayıMetniBiçimle(fiyat, OndalıkBasamak).value_or(fiyat));
        m_döviz->Göster(ad, ParaOku(fiyat).value_or(Para()));
    }
    return kayıt;
}

void MalzemeEkleSilFormu::MalzemeBulKutusu_Change() {
    SatırıSeç(m_liste->ÖnekAra(m_bul->text()));
}

void MalzemeEkleSilFormu::EklemeKipineGeç() {
    m_ad->clear();
    m_fiyat->clear();
    m_döviz->clear();
    m_çerçeve->setEnabled(true);
    ListeyiEtkinleştir(false);
    m_ekleKaydet->setText(Metin(MetinNo::Kaydet));
    m_kapatİptal->setText(Metin(MetinNo::İptal));
    m_ad->setFocus();
}

void MalzemeEkleSilFormu::EklemedenDön() {
    m_ekleKaydet->setText(Metin(MetinNo::MalzemeEkle));
    m_kapatİptal->setText(Metin(MetinNo::Kapat));
    m_ad->clear();
    m_fiyat->clear();
    m_döviz->clear();
    m_çerçeve->setEnabled(false);
}

void MalzemeEkleSilFormu::FiyatKipineGeç() {
    m_liste->setEnabled(false);
    m_bul->setEnabled(false);
    m_çerçeve->setEnabled(true);
    m_ad->setEnabled(false);
    m_ekleKaydet->setEnabled(false);
    m_sil->setEnabled(false);
    m_geçmiş->setEnabled(false);
    m_fiyatDeğiştir->setText(Metin(MetinNo::Kaydet));
    m_kapatİptal->setText(Metin(MetinNo::İptal));
    m_fiyat->setFocus();
}

void MalzemeEkleSilFormu::FiyattanDön() {
    m_liste->setEnabled(true);
    m_bul->setEnabled(true);
    m_çerçeve->setEnabled(false);
    m_ad->setEnabled(true);
    m_ekleKaydet->setEnabled(true);
    m_sil->setEnabled(true);
    m_geçmiş->setEnabled(true);
    m_fiyatDeğiştir->setText(Metin(MetinNo::FiyatDeğiştir));
    m_kapatİptal->setText(Metin(MetinNo::Kapat));
}

bool MalzemeEkleSilFormu::GirilenlerUygun() {
    if (m_ad->text().isEmpty()) return Uyar(MetinNo::MalzemeAdıBoş, *m_ad);
    if (m_fiyat->text().isEmpty()) return Uyar(MetinNo::MalzemeFiyatıBoş, *m_fiyat);
    const Kayıt aynısı = KaydıOku(Deyimler::MalzemeVarMı(m_ad->text()));
    if (aynısı == Kayıt::Var) return Uyar(MetinNo::MalzemeListedeVar, *m_ad);
    return aynısı == Kayıt::Yok && m_fiyat->Saklanır();
}

void MalzemeEkleSilFormu::MalzemeEkleKaydetButonu_Click() {
    if (GeçerliKip() != Kip::Ekleme) {
        EklemeKipineGeç();
        return;
    }
    if (!GirilenlerUygun()) return;
    const QString ad = m_ad->text();
    if (!DeyimiYürüt(Deyimler::MalzemeEkle(ad, m_fiyat->text()))) return;
    m_anaForm.VeriDeğişti({.Malzemeler = {ad}});
    EklemedenDön();
    const int yer = SıralıYer(
        m_liste->count(), [this](int satır) { return m_liste->item(satır)->text(); }, ad);
    {
        const QSignalBlocker sessiz(m_liste);
        m_liste->insertItem(yer, ad);
    }
    SatırıSeç(yer);
    ListeyiEtkinleştir(true);
    m_ekleKaydet->setFocus();
}

void MalzemeEkleSilFormu::MalzemeSilButonu_Click() {
    const QListWidgetItem* seçili = m_liste->SeçiliÖğe();
    if (!seçili) {
        Uyar(MetinNo::MalzemeSeçiniz, *m_liste);
        return;
    }
    const QString ad = seçili->text();
    MesajKutusuOrtala();
    if (MesajKutusu::Göster(Simge::Ünlem, Düğmeler::EvetHayır, Metin(MetinNo::SilmeGeriAlınamaz)) == Yanıt::Hayır)
        return;
    if (!DeyimiYürüt(Deyimler::MalzemeSil(ad))) return;
    const VeriDeğişimi değişim{.Malzemeler = {ad}, .Silindi = true};
    MesajKutusuOrtala();
    // Products keep the material's name, quantity and price unless the user agrees; No is the safe default.
    if (MesajKutusu::Göster(Simge::Soru, Düğmeler::EvetHayır, Metin(MetinNo::ÜrünlerdenÇıkarmaSorusu), {},
                            Yanıt::Hayır) == Yanıt::Evet) {
        const bool çıkarıldı = DeyimiYürüt(Deyimler::MalzemeyiÜrünlerdenSil(ad));
        m_anaForm.VeriDeğişti(değişim);
        if (!çıkarıldı) {
            // The row stays: through it the material can still be taken out of the products.
            YarımKaldı(MetinNo::ÜrünlerdenSilinemedi);
            return;
        }
        SeçiliÜrünüYenile();
    } else {
        m_anaForm.VeriDeğişti(değişim);
    }
    ListedenKaldır(m_liste->row(seçili));
}

void MalzemeEkleSilFormu::ListedenKaldır(int satır) {
    {
        const QSignalBlocker sessiz(m_liste);
        delete m_liste->takeItem(satır);
    }
    if (m_liste->count() > 0) {
        SatırıSeç(satır == 0 ? 0 : satır - 1);
        return;
    }
    ListeyiEtkinleştir(false);
    m_bul->clear();
    SatırıSeç(-1);
    m_ekleKaydet->setFocus();
}

void MalzemeEkleSilFormu::SeçiliÜrünüYenile() {
    if (SeçiliÜrünSırası >= 0) m_anaForm.DüğümüSeç(SeçiliÜrünSırası);
}

void MalzemeEkleSilFormu::GeçmişiGöster() {
    const QListWidgetItem* seçili = m_liste->SeçiliÖğe();
    if (seçili)
        m_anaForm.FiyatGeçmişiniGöster(seçili->text(), this);
    else
        Uyar(MetinNo::MalzemeSeçiniz, *m_liste);
}

void MalzemeEkleSilFormu::MalzemeFiyatıDeğiştirButonu_Click() {
    if (GeçerliKip() == Kip::Gözatma) {
        FiyatDeğişimineBaşla();
    } else if (m_fiyat->text().isEmpty()) {
        Uyar(MetinNo::MalzemeFiyatıBoş, *m_fiyat);
    } else if (m_fiyat->Saklanır()) {
        FiyatıKaydet();
    }
}

void MalzemeEkleSilFormu::FiyatDeğişimineBaşla() {
    if (!m_liste->SeçiliÖğe()) {
        Uyar(MetinNo::MalzemeSeçiniz, *m_liste);
        return;
    }
    // The boxes may hold what was typed and given up; the change begins with what is stored.
    const Kayıt kayıt = SeçileniGöster();
    if (kayıt == Kayıt::Yok) Uyar(MetinNo::SilinmişMalzeme, *m_liste);
    if (kayıt == Kayıt::Var && BağÇözüldü(m_liste->SeçiliÖğe()->text())) FiyatKipineGeç();
}

// The price of a material that stands for a product is that product's, until the user dissolves the tie. True also
// where there is none.
bool MalzemeEkleSilFormu::BağÇözüldü(const QString& malzeme) {
    const YarıMamulBağları* bağlar = nullptr;
    İşSonucu sonuç = YarıMamulleriAl(ODBCBağlantısı(), bağlar);
    if (sonuç.Tamam()) {
        const YarıMamulBağı* bağ = bağlar->Bağı(malzeme);
        if (!bağ) return true;
        if (!Sor(Metin(YarıMamulMetni::ÇözmeSorusu).arg(bağ->Malzeme, bağ->Ürün.Grup, bağ->Ürün.Ad))) return false;
        sonuç = YarıMamulBağınıÇöz(ODBCBağlantısı(), QString(bağ->Malzeme));
        SeçiliÜrünüYenile();  // the mark goes
    }
    if (!sonuç.Tamam()) HatalarıGöster(OdbcİletileriniAl(sonuç.Odbc.Hatalar));
    return sonuç.Tamam();
}

void MalzemeEkleSilFormu::FiyatıKaydet() {
    const QString ad = m_liste->SeçiliÖğe()->text();
    const QString fiyat = m_fiyat->text();
    ElleDeğişim kayıt(ODBCBağlantısı());
    kayıt.Hazırla(ad, ParaOku(fiyat).value_or(Para()));
    ElleDeğişim::Yazılan yazılan;
    // The second statement runs whatever became of the first.
    const auto deyimler = [&] {
        yazılan.Katalogda = DeyimiYürüt(Deyimler::FiyatDeğiştir(ad, fiyat));
        yazılan.Ürünlerde = DeyimiYürüt(Deyimler::ÜrünlerdeFiyatDeğiştir(ad, fiyat));
        return yazılan;
    };
    OdbcSonucu hata;
    const ElleDeğişim::Son son = kayıt.Yürüt(deyimler, Metin(MetinNo::ElleAçıklaması), ŞimdikiZaman(), hata);
    if (!hata.Başarılı()) HatalarıGöster(OdbcİletileriniAl(hata.Hatalar));
    if (son != ElleDeğişim::Son::Yazılamadı && yazılan.Katalogda != yazılan.Ürünlerde)
        YarımKaldı(yazılan.Katalogda ? MetinNo::FiyatÜrünlerdeEski : MetinNo::FiyatKatalogdaEski);
    if (son == ElleDeğişim::Son::Kaydedilemedi) {
        MesajKutusuOrtala();
        MesajKutusu::Göster(Simge::Ünlem, Düğmeler::Tamam, Metin(MetinNo::GeçmişeYazılamadı));
    }
    if (yazılan.Katalogda || yazılan.Ürünlerde) m_anaForm.VeriDeğişti({.Malzemeler = {ad}});
    SeçiliÜrünüYenile();
    FiyattanDön();
    SeçileniGöster();
    m_fiyatDeğiştir->setFocus();
}

void MalzemeEkleSilFormu::KapatİptalButonu_Click() {
    switch (GeçerliKip()) {
        case Kip::FiyatDeğişimi:
            // The price box keeps what was typed until the next selection.
            FiyattanDön();
            m_fiyatDeğiştir->setFocus();
            break;
        case Kip::Gözatma:
            QDialog::reject();
            break;
        case Kip::Ekleme:
            EklemedenDön();
            if (m_liste->count() > 0) ListeyiEtkinleştir(true);
            m_ekleKaydet->setFocus();
            break;
    }
}
