// The main form's menu of prices, and what the price forms change on the form.

#include <QAction>
#include <QMenu>
#include <QMenuBar>

#include "AnaForm.h"
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
            if (iş(İşlemÇevirici(), this)) FiyatlarDeğişti();
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
        FiyatGeçmişiFormu form(İşlemÇevirici(), this);
        if (form.Yükle()) form.exec();
        if (form.Uygulandı()) FiyatlarDeğişti();
    });
    menü->addSeparator()->setObjectName(QStringLiteral("MenüÇizgisi4"));
    girişEkle(QStringLiteral("GeriAlMenüsü"), MetinNo::GeriAlMenüsü, değişirse(SonİşlemiGeriAl));
    girişEkle(QStringLiteral("YineleMenüsü"), MetinNo::YineleMenüsü, değişirse(SonGeriAlınanıYinele));
}

DeğişimÇevirici AnaForm::İşlemÇevirici() {
    return [this](const Deyimler::Fiyat::İşlem& işlem, İşlemTürü tür, QWidget* sahip) {
        return İşlemiÇevir(işlem, tür, sahip);
    };
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

// Percentages that are typed and not saved stay typed where `yükle` has the same product loaded again.
void AnaForm::YazılanıKoru(const std::function<bool()>& yükle) {
    const bool kaydedilmemiş = m_komutlar.DeğişiklikleriKaydet->isEnabled();
    const MaliyetAlanı::Yazılanlar yazılan = m_maliyet->Yazılan();
    if (!yükle() || !kaydedilmemiş || !m_ürünYüklendi) return;
    m_maliyet->YazılanıKoy(yazılan);
    ToplamMaliyetHesapla();
    m_komutlar.DeğişiklikleriKaydet->setEnabled(true);
}

// As after a price that was changed in the material's form.
void AnaForm::FiyatlarDeğişti() {
    const std::int32_t sıra = m_ağaç->SeçiliSıra();
    if (sıra < 0) return;
    YazılanıKoru([this, sıra] {
        DüğümüSeç(sıra);
        return true;
    });
}

// Products have come, gone or become others.
void AnaForm::ÜrünlerDeğişti() {
    const QString grup = m_ağaç->SeçiliGrup();
    const QString ürün = m_ağaç->SeçiliÜrün();
    YazılanıKoru([&] {
        AğacıYenidenYükle();
        return ÜrüneGit(grup, ürün);
    });
}

// From the material form: for looking only.
void AnaForm::FiyatGeçmişiniGöster(const QString& malzeme, QWidget* sahip) {
    FiyatGeçmişiFormu form({}, sahip);
    if (form.Yükle(malzeme)) form.exec();
}
