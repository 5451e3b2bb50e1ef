// The main form's menu of prices, and what the price forms change on the form.

#include <QAction>
#include <QMenu>
#include <QMenuBar>

#include "AnaForm.h"
#include "DegisimIsi.h"
#include "DovizKurlariFormu.h"
#include "FiyatGecmisiFormu.h"
#include "FiyatIsi.h"
#include "FiyatListesiAlFormu.h"
#include "MaliyetAlani.h"
#include "MesajKutusu.h"
#include "MetinTablosu.h"
#include "TopluFiyatFormu.h"
#include "UrunAgaci.h"

void AnaForm::FiyatMenüsünüKur() {
    QMenu* menü = menuBar()->addMenu(Metin(MetinNo::FiyatlarMenüsü));
    menü->setObjectName(QStringLiteral("FiyatlarMenüsü"));
    const auto girişEkle = [this, menü](const QString& ad, MetinNo metin, std::function<void()> iş) {
        menü->addAction(KomutOluştur(ad, metin, std::move(iş)));
    };
    const auto değişirse = [this](bool (*iş)(const DeğişimÇevirici&, QWidget*)) {
        return [this, iş] {
            if (iş(DeğişimiÇevir, this)) FiyatlarDeğişti();
        };
    };
    girişEkle(QStringLiteral("TopluFiyatMenüsü"), MetinNo::TopluFiyatMenüsü, [this] { ToplucaFiyatDeğiştir(); });
    girişEkle(QStringLiteral("FiyatListesiAlMenüsü"), MetinNo::FiyatListesiAlMenüsü, [this] {
        FiyatListesiAlFormu form(this);
        if (form.Yükle()) form.exec();
        if (form.Uygulandı()) FiyatlarDeğişti();
    });
    girişEkle(QStringLiteral("DövizKurlarıMenüsü"), MetinNo::DövizKurlarıMenüsü, [this] {
        DövizKurlarıFormu form(this);
        if (form.Yükle()) form.exec();
        if (form.Uygulandı()) FiyatlarDeğişti();
    });
    girişEkle(QStringLiteral("FiyatGeçmişiMenüsü"), MetinNo::FiyatGeçmişiMenüsü, [this] {
        FiyatGeçmişiFormu form(DeğişimiÇevir, this);
        if (form.Yükle()) form.exec();
        if (form.Uygulandı()) FiyatlarDeğişti();
    });
    menü->addSeparator()->setObjectName(QStringLiteral("MenüÇizgisi4"));
    girişEkle(QStringLiteral("GeriAlMenüsü"), MetinNo::GeriAlMenüsü, değişirse(SonİşlemiGeriAl));
    girişEkle(QStringLiteral("YineleMenüsü"), MetinNo::YineleMenüsü, değişirse(SonGeriAlınanıYinele));
}

void AnaForm::ToplucaFiyatDeğiştir() {
    TopluFiyatFormu form(this);
    if (!form.Yükle()) return;
    if (form.Boş()) {
        MesajKutusuOrtala();
        MesajKutusu::Göster(MesajKutusu::Simge::Bilgi, MesajKutusu::Düğmeler::Tamam,
                            Metin(MetinNo::MalzemeListesiBoşFiyat));
        return;
    }
    form.exec();
    if (form.Uygulandı()) FiyatlarDeğişti();
}

// As after a price that was changed in the material's form. Percentages that are typed and not saved stay typed.
void AnaForm::FiyatlarDeğişti() {
    const std::int32_t sıra = m_ağaç->SeçiliSıra();
    if (sıra < 0) return;
    const bool kaydedilmemiş = m_komutlar.DeğişiklikleriKaydet->isEnabled();
    const MaliyetGirdisi yazılan = m_maliyet->Girdi();
    DüğümüSeç(sıra);
    if (!kaydedilmemiş || !m_ürünYüklendi) return;
    m_maliyet->YüzdeleriKoy(yazılan);
    ToplamMaliyetHesapla();
    m_komutlar.DeğişiklikleriKaydet->setEnabled(true);
}

// From the material form: for looking only.
void AnaForm::FiyatGeçmişiniGöster(const QString& malzeme, QWidget* sahip) {
    FiyatGeçmişiFormu form({}, sahip);
    if (form.Yükle(malzeme)) form.exec();
}
