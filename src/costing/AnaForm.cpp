#include "AnaForm.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QKeyEvent>

#include "DegiskenModulu.h"
#include "Deyimler.h"
#include "FormParcalari.h"
#include "MesajKutusu.h"
#include "KullanilanMalzemeler.h"
#include "MaliyetAlani.h"
#include "MetinTablosu.h"
#include "MiktarAlani.h"
#include "OdbcModulu.h"
#include "UrunAgaci.h"

namespace {

constexpr qsizetype EnÇokSayılanSatır = 10;  // rows that a message box names

}  // namespace

AnaForm::~AnaForm() {
    m_ağaç->Sustur();
}

void AnaForm::Yükle() {
    HataYakala([this] {
        m_haneSayısı->setCurrentIndex(OndalıkBasamak - 1);
        // What was left undone when the program last ended, or came in by a restored file.
        VeriDeğişti({.Hepsi = true});
        m_ağaç->Yükle();
        ÜrünListesiTıkla();
        Yerleş();
        m_bağlar.KarşılamayıKapat();
        QApplication::processEvents();
        show();
        AğacaGirildi();
    });
}

void AnaForm::AğacaGirildi() {
    if (m_ağaç->Boş()) {
        // A list that could not be read is not an empty one.
        if (m_ağaç->Tam() && Sor(Metin(MetinNo::ÜrünListesiBoş))) İlkÜrünüEkle();
        return;
    }
    m_miktar->SeçimiKaldır();
}

void AnaForm::DüğümTıklandı() {
    // Unticked before the load: a product of different units must not be met by a message for the tick of the last one.
    m_miktar->SeçimiKaldır();
    ÜrünListesiTıkla();
}

void AnaForm::ÜrünListesiTıkla() {
    HataYakala([this] {
        m_miktar->Boşalt();
        m_miktar->MiktarıAyarla(0, false);
        if (m_ağaç->ÜrünSeçili()) {
            MalzemeTablosuYükle();
        } else {
            m_liste->clear();
            YüklemeyiUygula(false);
        }
    });
}

void AnaForm::MalzemeTablosuYükle() {
    if (!m_ağaç->ÜrünSeçili()) return;
    bool yüklendi = false;
    QStringList sayılmayanlar;
    HataYakala([&] { yüklendi = SeçiliÜrünüYükle(sayılmayanlar); });
    HataYakala([&] {
        YüklemeyiUygula(yüklendi);
        if (m_miktar->Seçili()) yüklendi ? m_miktar->SeçeneğiUygula() : m_miktar->SeçimiKaldır();
        if (!sayılmayanlar.isEmpty()) SayılmayanlarıGöster(sayılmayanlar);
    });
}

bool AnaForm::SeçiliÜrünüYükle(QStringList& sayılmayanlar) {
    const QString grup = m_ağaç->SeçiliGrup();
    const QString ürün = m_ağaç->SeçiliÜrün();
    // Nothing of the product before stands there while a box tells that this one cannot be loaded.
    m_miktar->MiktarıAyarla(0, false);
    m_miktar->Boşalt();
    m_maliyet->Boşalt();
    const KullanılanMalzemeListesi::Yüklenen yüklenen = m_liste->Yükle(grup, ürün, OndalıkBasamak);
    if (!yüklenen.Tamam) return false;
    m_miktar->MiktarıAyarla(yüklenen.Toplam.ToplamMiktar(), yüklenen.Toplam.BirimlerFarklı());
    m_maliyet->MalzemeMaliyetiniGöster(yüklenen.Toplam.Tutar());
    if (!m_maliyet->YüzdeleriYükle(grup, ürün)) return false;
    ToplamMaliyetHesapla();
    sayılmayanlar = yüklenen.Sayılmayanlar;
    return true;
}

// What may be done with the selection, once it has been loaded or not. While a group is selected nothing is.
void AnaForm::YüklemeyiUygula(bool yüklendi) {
    m_ürünYüklendi = yüklendi;
    const bool malzemeVar = yüklendi && !m_liste->Boş();
    m_komutlar.ListeyeMalzemeEkle->setEnabled(yüklendi);
    m_komutlar.MiktarlarıGöster->setEnabled(yüklendi);
    m_komutlar.MaliyetDağılımı->setEnabled(yüklendi);
    m_komutlar.ÜrünKopyala->setEnabled(yüklendi);
    m_komutlar.ListedenMalzemeSil->setEnabled(malzemeVar);
    m_komutlar.DeğişiklikleriKaydet->setEnabled(false);
    m_komutlar.YarıMamulAğacı->setEnabled(yüklendi);
    YazdırmayaİzinVer(malzemeVar);
    m_maliyet->setEnabled(malzemeVar);
    m_miktar->SeçeneğeİzinVer(yüklendi);
    m_ürünBildirimi->setVisible(!yüklendi && m_ağaç->ÜrünSeçili());
    if (yüklendi) return;
    m_miktar->MiktarıAyarla(0, false);
    m_miktar->Boşalt();
    m_maliyet->Boşalt();
}

void AnaForm::AğacıYenidenYükle() {
    ÜrünAğacınıYenile();
    if (!m_ağaç->Tam()) return;
    m_ağaç->setFocus();
    AğacaGirildi();
}

void AnaForm::ÜrünüYenidenYükle() {
    ÜrünListesiTıkla();
    if (m_ürünYüklendi) m_ağaç->setFocus();
}

void AnaForm::SayılmayanlarıGöster(const QStringList& satırlar) {
    QStringList metin{Metin(MetinNo::SayılmayanMalzemeler)};
    metin += satırlar.mid(0, EnÇokSayılanSatır);
    if (satırlar.size() > EnÇokSayılanSatır) metin += QStringLiteral("...");
    MesajKutusuOrtala();
    MesajKutusu::Göster(MesajKutusu::Simge::Kritik, MesajKutusu::Düğmeler::Tamam, metin.join(QLatin1Char('\n')));
}

void AnaForm::ToplamMaliyetHesapla() {
    m_maliyet->ToplamMaliyetHesapla();
}

void AnaForm::ListedenMalzemeSil() {
    if (m_liste->Boş()) return;
    if (!m_liste->SeçiliÖğe()) {
        Uyar(MetinNo::MalzemeSeçiniz, *m_liste);
        return;
    }
    const QString malzeme = m_liste->SeçiliMalzeme();
    if (!Sor(Metin(MetinNo::ListedenÇıkarmaSorusu) + QLatin1Char(' ') + m_liste->SeçiliMiktar() + QLatin1Char(' ') +
             malzeme))
        return;
    const ÜrünAdı ürün{m_ağaç->SeçiliGrup(), m_ağaç->SeçiliÜrün()};
    const bool çıkarıldı = DeyimiYürüt(Deyimler::KullanılanMalzemeÇıkar(ürün.Grup, ürün.Ad, malzeme));
    if (!çıkarıldı) return;
    VeriDeğişti({.Ürünler = {ürün}});
    MalzemeTablosuYükle();
}

void AnaForm::DeğişiklikleriKaydet() {
    const ÜrünAdı ürün{m_ağaç->SeçiliGrup(), m_ağaç->SeçiliÜrün()};
    if (!m_maliyet->YüzdeleriKaydet(ürün.Grup, ürün.Ad)) return;
    m_komutlar.DeğişiklikleriKaydet->setEnabled(false);
    VeriDeğişti({.Ürünler = {ürün}});
}

QAction* AnaForm::TuşKomutu(int tuş) const {
    switch (tuş) {
        case Qt::Key_F4:
            return m_komutlar.GünlükMalzemeHareketleri;
        case Qt::Key_F5:
            return m_komutlar.MalzemeListesi;
        case Qt::Key_F6:
            return m_komutlar.ÜrünListesi;
        default:
            return nullptr;
    }
}

bool AnaForm::eventFilter(QObject* hedef, QEvent* olay) {
    if (olay->type() != QEvent::KeyPress && olay->type() != QEvent::KeyRelease) return false;
    const auto* tuş = static_cast<QKeyEvent*>(olay);
    QAction* komut = TuşKomutu(tuş->key());
    if (!komut || tuş->modifiers() != Qt::NoModifier) return false;
    const auto* denetim = qobject_cast<QWidget*>(hedef);
    if (!denetim || denetim->window() != this) return false;
    // The press is kept from the controls: F4 would open a drop-down list.
    if (olay->type() == QEvent::KeyRelease && !tuş->isAutoRepeat()) komut->trigger();
    return true;
}

void AnaForm::closeEvent(QCloseEvent* olay) {
    if (!m_kapandı && !m_bağlar.Kapanış(isMinimized(), pos())) {
        olay->ignore();
        return;
    }
    m_kapandı = true;
    m_ağaç->Sustur();  // the data connection is closed
    const QWidgetList formlar = QApplication::topLevelWidgets();
    for (QWidget* form : formlar) {
        if (form != this && form->isVisible()) form->close();
    }
    olay->accept();
}
