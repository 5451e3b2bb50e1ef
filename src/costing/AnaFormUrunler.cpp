// The main form's menu of products as a whole. All of it works on what is stored.

#include <QAction>
#include <QMenu>
#include <QMenuBar>

#include "AnaForm.h"
#include "MaliyetTablosuFormu.h"
#include "MesajKutusu.h"
#include "MetinTablosu.h"
#include "UrunMetinleri.h"
#include "KullanilanMalzemeler.h"
#include "KullanimMetinleri.h"
#include "MiktarAlani.h"
#include "NeredeKullaniliyorFormu.h"
#include "SatisFiyatListesiFormu.h"
#include "UrunAgaci.h"

void AnaForm::ÜrünMenüsünüKur() {
    QMenu* menü = menuBar()->addMenu(Metin(ÜrünMetni::ÜrünlerMenüsü));
    menü->setObjectName(QStringLiteral("ÜrünlerMenüsü"));
    const auto girişEkle = [this, menü](const QString& ad, MetinNo metin, std::function<void()> iş) {
        menü->addAction(KomutOluştur(ad, metin, [this, iş = std::move(iş)] {
            if (KaydedilmemişiSor()) iş();
        }));
    };
    girişEkle(QStringLiteral("MaliyetTablosuMenüsü"), ÜrünMetni::MaliyetTablosuMenüsü, [this] { MaliyetTablosu(); });
    girişEkle(QStringLiteral("NeredeKullanılıyorMenüsü"), ÜrünMetni::NeredeKullanılıyorMenüsü,
              [this] { NeredeKullanılıyor(m_liste->SeçiliMalzeme()); });
    girişEkle(QStringLiteral("SatışFiyatListesiMenüsü"), ÜrünMetni::SatışFiyatListesiMenüsü,
              [this] { SatışFiyatListesi(); });
}

// What is not saved does not count there. False: it was to be saved, and could not be.
bool AnaForm::KaydedilmemişiSor() {
    if (!m_komutlar.DeğişiklikleriKaydet->isEnabled()) return true;
    if (!Sor(Metin(ÜrünMetni::YüzdeleriKaydetSorusu))) return true;
    DeğişiklikleriKaydet();
    return !m_komutlar.DeğişiklikleriKaydet->isEnabled();
}

void AnaForm::MaliyetTablosu() {
    MaliyetTablosuFormu form(this);
    if (!form.Yükle()) return;
    if (form.Boş()) {
        MesajKutusuOrtala();
        MesajKutusu::Göster(MesajKutusu::Simge::Bilgi, MesajKutusu::Düğmeler::Tamam, Metin(ÜrünMetni::ÜrünYok));
        return;
    }
    if (form.exec() != QDialog::Accepted || !form.Gidilecek()) return;
    ÜrüneGit(form.Gidilecek()->Grup, form.Gidilecek()->Ad);
}

void AnaForm::SatışFiyatListesi() {
    SatışFiyatListesiFormu form(this);
    if (!form.Yükle()) return;
    if (form.Boş()) {
        MesajKutusuOrtala();
        MesajKutusu::Göster(MesajKutusu::Simge::Bilgi, MesajKutusu::Düğmeler::Tamam, Metin(ÜrünMetni::ÜrünYok));
        return;
    }
    form.exec();
}

void AnaForm::NeredeKullanılıyor(const QString& malzeme) {
    NeredeKullanılıyorFormu form(this);
    if (!form.Yükle(malzeme)) return;
    if (form.Boş()) {
        MesajKutusuOrtala();
        MesajKutusu::Göster(MesajKutusu::Simge::Bilgi, MesajKutusu::Düğmeler::Tamam,
                            Metin(KullanımMetni::KullanılanYok));
        return;
    }
    const bool gidilir = form.exec() == QDialog::Accepted && form.Gidilecek();
    if (form.Uygulandı()) FiyatlarDeğişti();
    if (gidilir) ÜrüneGit(form.Gidilecek()->Grup, form.Gidilecek()->Ad);
}

// A product that is gone meanwhile leaves the selection as it is.
void AnaForm::ÜrüneGit(const QString& grup, const QString& ürün) {
    if (!m_ağaç->ÜrünüSeç(grup, ürün)) return;
    m_miktar->SeçimiKaldır();
    ÜrünListesiTıkla();
    m_ağaç->setFocus();
}
