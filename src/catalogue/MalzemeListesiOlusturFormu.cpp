#include "MalzemeListesiOlusturFormu.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>
#include <set>

#include "AcilirGirisKutusu.h"
#include "AnaFormErisimi.h"
#include "DegiskenModulu.h"
#include "Deyimler.h"
#include "GirisKutusu.h"
#include "MesajKutusu.h"
#include "FormParcalari.h"
#include "KatalogListesi.h"
#include "MetinTablosu.h"
#include "MiktarTurleri.h"
#include "OdbcModulu.h"
#include "OrtakFonksiyonlarModulu.h"
#include "Saat.h"
#include "SutunluListe.h"
#include "SayiKutusu.h"
#include "SayiMetni.h"
#include "TurkceSira.h"
#include "YariMamulMetinleri.h"
#include "Yukleyiciler.h"

namespace {

// Columns of the list that is to be transferred.
enum Sütun { MiktarSütunu, AdSütunu, FiyatSütunu, TutarSütunu };

constexpr qsizetype EnÇokSayılanSatır = 10;  // rows that a message box names

// Quantity, blank and type together fit a stored text: no quantity that can be stored is longer than the box's length.
constexpr int EnUzunTür = EnUzunAd - 1 - EnUzunSayı;

QString Başı(const QStringList& satırlar) {
    const QString metin = satırlar.mid(0, EnÇokSayılanSatır).join(QLatin1Char('\n'));
    return satırlar.size() > EnÇokSayılanSatır ? metin + QStringLiteral("\n...") : metin;
}

struct TürkçeKüçük {
    bool operator()(const QString& a, const QString& b) const {
        return Türkçe::Karşılaştır(QStringView(a), QStringView(b)) < 0;
    }
};

}  // namespace

MalzemeListesiOluşturFormu::MalzemeListesiOluşturFormu(AnaFormErişimi& anaForm, QWidget* sahip)
    : QDialog(sahip), m_anaForm(anaForm) {
    setObjectName(QStringLiteral("MalzemeListesiOluşturFormu"));
    setWindowTitle(Metin(MetinNo::ListeFormuBaşlığı));
    KontrolleriKur();
    Yerleştir();
}

void MalzemeListesiOluşturFormu::KontrolleriKur() {
    m_bul = new GirişKutusu;
    m_bul->setObjectName(QStringLiteral("MalzemeBulKutusu"));
    connect(m_bul, &QLineEdit::textChanged, this, [this] { MalzemeBulKutusu_Change(); });
    m_katalog = new KatalogListesi(QStringLiteral("MalzemeListesi"));
    connect(m_katalog, &QListWidget::itemDoubleClicked, this,
            [this] { HataYakala([this] { ListeyeEkleButonu_Click(); }); });
    m_miktar = new SayıKutusu(SayıKutusu::Tür::Miktar);
    m_miktar->setObjectName(QStringLiteral("MalzemeMiktarıKutusu"));
    TutaraYerAç(m_miktar);
    m_tür = new MiktarTürüKutusu;
    m_tür->setObjectName(QStringLiteral("MiktarTürüListesi"));
    m_tür->EnUzunOlsun(EnUzunTür);
    m_eklenecek = new SütunluListe({{MetinNo::MiktarıSütunu, 5.2, false, true},
                                    {MetinNo::AdıSütunu, 3.0, false},
                                    {MetinNo::FiyatıSütunu, 5.0, true},
                                    {MetinNo::TutarıSütunu, 4.6, true}});
    m_eklenecek->setObjectName(QStringLiteral("EklenecekMalzemeListesi"));
    Enterİleİlerlesin(m_eklenecek);
    connect(m_eklenecek, &QTreeWidget::itemDoubleClicked, this,
            [this] { HataYakala([this] { ListedenÇıkarButonu_Click(); }); });

    m_ekle =
        DüğmeOluştur(QStringLiteral("ListeyeEkleButonu"), MetinNo::ListeyeEkle, [this] { ListeyeEkleButonu_Click(); });
    m_çıkar = DüğmeOluştur(QStringLiteral("ListedenÇıkarButonu"), MetinNo::EklenecektenÇıkar,
                           [this] { ListedenÇıkarButonu_Click(); });
    m_temizle = DüğmeOluştur(QStringLiteral("ListeyiTemizleButonu"), MetinNo::ListeyiTemizle,
                             [this] { ListeyiTemizleButonu_Click(); });
    m_aktar = DüğmeOluştur(QStringLiteral("ListeyiAktarButonu"), MetinNo::ListeyiAktar,
                           [this] { ListeyiAktarButonu_Click(); });
    m_iptal = DüğmeOluştur(QStringLiteral("İptalButonu"), MetinNo::İptal, [this] { reject(); });
}

void MalzemeListesiOluşturFormu::Yerleştir() {
    auto* katalog = new QVBoxLayout;
    katalog->addWidget(VurgulananEtiket(3, MetinNo::MalzemeBul, m_bul));
    katalog->addWidget(m_bul);
    katalog->addWidget(VurgulananEtiket(2, MetinNo::MalzemeListesiEtiketi, m_katalog));
    katalog->addWidget(m_katalog);
    auto* miktar = new QGridLayout;
    miktar->addWidget(VurgulananEtiket(0, MetinNo::Miktar, m_miktar), 0, 0);
    miktar->addWidget(m_miktar, 1, 0);
    miktar->addWidget(VurgulananEtiket(1, MetinNo::MiktarTürü, m_tür), 0, 1);
    miktar->addWidget(m_tür, 1, 1);
    miktar->setColumnStretch(0, 1);
    miktar->setColumnStretch(1, 1);
    auto* giriş = new QVBoxLayout;
    giriş->addLayout(miktar);
    giriş->addWidget(m_ekle, 0, Qt::AlignRight);
    giriş->addStretch();
    auto* üst = new QHBoxLayout;
    üst->addLayout(katalog, 5);
    üst->addLayout(giriş, 4);

    auto* düzen = new QVBoxLayout(FormAltlığı(this));
    düzen->addLayout(üst, 1);
    düzen->addWidget(VurgulananEtiket(4, MetinNo::EklenecekListe, m_eklenecek));
    düzen->addWidget(m_eklenecek, 1);
    düzen->addLayout(DüğmeSırası({m_çıkar, m_temizle, m_aktar, nullptr, m_iptal}));
    resize(740, 540);
    m_bul->setFocus();
}

void MalzemeListesiOluşturFormu::Yükle() {
    QStringList türler = MiktarTürleri::Oku();
    // What the settings hold and no product could take is not offered.
    türler.removeIf([](const QString& tür) { return tür.size() > EnUzunTür || tür.contains(u'\''); });
    m_tür->Doldur(türler);
    m_katalogOkundu = MalzemeListesiniYükle(*m_katalog) == Okuma::Tamam;
    if (m_katalog->count() > 0) m_katalog->setCurrentRow(0);
    m_tür->setCurrentIndex(türler.isEmpty() ? -1 : 0);
    ListeDüğmeleriniAyarla();
}

bool MalzemeListesiOluşturFormu::KatalogBoş() const {
    return m_katalog->count() == 0;
}

void MalzemeListesiOluşturFormu::MalzemeBulKutusu_Change() {
    const int satır = m_katalog->ÖnekAra(m_bul->text());
    m_katalog->setCurrentRow(satır);
    if (satır >= 0) m_katalog->scrollToItem(m_katalog->item(satır));
}

void MalzemeListesiOluşturFormu::ListeDüğmeleriniAyarla() {
    const bool dolu = m_eklenecek->topLevelItemCount() > 0;
    m_çıkar->setEnabled(dolu);
    m_temizle->setEnabled(dolu);
    m_aktar->setEnabled(dolu);
}

bool MalzemeListesiOluşturFormu::GirilenlerUygun() {
    if (!m_katalog->SeçiliÖğe()) return Uyar(MetinNo::MalzemeSeçiniz, *m_katalog);
    if (m_miktar->text().isEmpty()) return Uyar(MetinNo::MiktarıBelirtiniz, *m_miktar);
    const QString tür = m_tür->currentText().trimmed();
    if (tür.isEmpty()) return Uyar(MetinNo::MiktarTürünüBelirtiniz, *m_tür);
    TürüHatırla(tür);  // before the quantity is judged
    // Only zero is refused, though the message speaks of 1.
    if (DoubleOku(m_miktar->text()).value_or(0) == 0) return Uyar(MetinNo::MiktarSıfır, *m_miktar);
    return m_miktar->Saklanır();
}

void MalzemeListesiOluşturFormu::TürüHatırla(const QString& tür) {
    QStringList türler;
    for (int sıra = 0; sıra < m_tür->count(); ++sıra) türler.append(m_tür->itemText(sıra));
    MiktarTürleri::Hatırla(türler, tür);
    m_tür->Doldur(türler);
    // The list goes on from the type that the box shows.
    m_tür->setCurrentIndex(static_cast<int>(türler.indexOf(tür)));
    m_tür->setEditText(tür);
}

bool MalzemeListesiOluşturFormu::ZatenEklenmiş(const QString& malzeme) const {
    for (int sıra = 0; sıra < m_eklenecek->topLevelItemCount(); ++sıra) {
        const QString ad = m_eklenecek->topLevelItem(sıra)->text(AdSütunu);
        if (Türkçe::Aynı(ad, malzeme)) return true;
    }
    return false;
}

std::optional<Para> MalzemeListesiOluşturFormu::BirimFiyat(const QString& malzeme) const {
    QString saklanan;
    const Kayıt kayıt = KaydıOku(Deyimler::MalzemeFiyatı(malzeme), [&saklanan] { saklanan = SütunOku(1); });
    if (kayıt == Kayıt::Okunamadı) return std::nullopt;
    if (kayıt == Kayıt::Yok) return Para::OnBindeBirden(Para::Ölçek);  // no longer in the catalogue: 1
    // Rounded to the decimals on display before use.
    const auto metin = SayıMetniBiçimle(NoktayıVirgüleÇevir(saklanan), OndalıkBasamak);
    const auto fiyat = metin ? ParaOku(*metin) : std::nullopt;
    if (!fiyat) BeklenmeyenHataGöster(malzeme);
    return fiyat;
}

void MalzemeListesiOluşturFormu::ListeyeEkleButonu_Click() {
    if (!GirilenlerUygun()) return;
    const QString malzeme = m_katalog->SeçiliÖğe()->text();
    if (ZatenEklenmiş(malzeme) && !Sor(Metin(MetinNo::TekrarEklemeSorusu))) return;
    const std::optional<Para> fiyat = BirimFiyat(malzeme);
    if (!fiyat) return;
    const double miktar = DoubleOku(m_miktar->text()).value_or(0);
    const std::optional<QString> tutar = SayıBiçimle(fiyat->Double() * miktar, OndalıkBasamak);
    auto* satır = new QTreeWidgetItem({m_miktar->text() + QLatin1Char(' ') + m_tür->currentText().trimmed(), malzeme,
                                       SayıBiçimle(*fiyat, OndalıkBasamak), tutar.value_or(QString())});
    m_eklenecek->addTopLevelItem(satır);
    m_eklenecek->setCurrentItem(satır);
    ListeDüğmeleriniAyarla();
}

void MalzemeListesiOluşturFormu::ListedenÇıkarButonu_Click() {
    if (m_eklenecek->Boş()) return;
    QTreeWidgetItem* satır = m_eklenecek->SeçiliÖğe();
    if (!satır) {
        Uyar(MetinNo::MalzemeSeçiniz, *m_eklenecek);
        return;
    }
    if (!Sor(Metin(MetinNo::ListedenÇıkarmaSorusu) + QLatin1Char(' ') + satır->text(MiktarSütunu) + QLatin1Char(' ') +
             satır->text(AdSütunu)))
        return;
    delete satır;
    ListeDüğmeleriniAyarla();
}

void MalzemeListesiOluşturFormu::ListeyiTemizleButonu_Click() {
    m_eklenecek->clear();
    ListeDüğmeleriniAyarla();
}

void MalzemeListesiOluşturFormu::ListeyiAktarButonu_Click() {
    if (m_eklenecek->topLevelItemCount() == 0) return;
    HareketTarihiSQL = Deyimler::Tarih(Bugün());
    if (Sor(Metin(MetinNo::AktarmaSorusu)) && !Aktar()) return;
    accept();
}

// False: nothing was done, the list stays.
bool MalzemeListesiOluşturFormu::Aktar() {
    const auto ürün = m_anaForm.SeçiliÜrün();
    if (!ürün) return true;
    // What the product already uses is rewritten, the rest is new; names compare as the data file compares them.
    const QStringList adlar = m_anaForm.KullanılanMalzemeAdları();
    const std::set<QString, TürkçeKüçük> kullanılan(adlar.cbegin(), adlar.cend());
    QStringList aktarılamayanlar;
    QStringList döngüler;
    const YarıMamulBağları* bağlar = nullptr;
    if (const İşSonucu s = YarıMamulleriAl(ODBCBağlantısı(), bağlar); !s.Tamam()) {
        // Unknown ties could close a circle, which nobody would see.
        HatalarıGöster(OdbcİletileriniAl(s.Odbc.Hatalar));
        return false;
    }
    for (int sıra = 0; sıra < m_eklenecek->topLevelItemCount(); ++sıra) {
        const QTreeWidgetItem& satır = *m_eklenecek->topLevelItem(sıra);
        const Deyimler::KullanılanMalzeme kayıt{
            ürün->Grup,      ürün->Ad, satır.text(AdSütunu), satır.text(MiktarSütunu), satır.text(FiyatSütunu),
            HareketTarihiSQL};
        const QStringList zincir = bağlar->Zincir({kayıt.Malzeme}, ÜrünAdı{ürün->Grup, ürün->Ad});
        if (!zincir.isEmpty()) {
            döngüler.append(ZincirMetni(ürün->Ad, zincir));
            continue;
        }
        // A failing statement has been reported; the others still go.
        if (!DeyimiYürüt(kullanılan.count(kayıt.Malzeme) ? Deyimler::KullanılanMalzemeDeğiştir(kayıt)
                                                         : Deyimler::KullanılanMalzemeEkle(kayıt)))
            aktarılamayanlar.append(kayıt.Miktar + QLatin1Char(' ') + kayıt.Malzeme);
    }
    if (aktarılamayanlar.size() + döngüler.size() < m_eklenecek->topLevelItemCount())
        m_anaForm.VeriDeğişti({.Ürünler = {{ürün->Grup, ürün->Ad}}});
    m_anaForm.MalzemeTablosuYükle();
    if (!döngüler.isEmpty()) YarımKaldı(YarıMamulMetni::DöngüyleAktarılmayanlar, QLatin1Char('\n') + Başı(döngüler));
    // The list goes with the form: what has to be entered again is named.
    if (!aktarılamayanlar.isEmpty()) YarımKaldı(MetinNo::Aktarılamayanlar, QLatin1Char('\n') + Başı(aktarılamayanlar));
    return true;
}
