// The main form's menu of products as a whole. All of it works on what is stored.

#include <QAction>
#include <QMenu>
#include <QMenuBar>

#include "AnaForm.h"
#include "BulFormu.h"
#include "MaliyetDagilimiFormu.h"
#include "MaliyetArsiviFormu.h"
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
#include "UrunKopyalaFormu.h"

void AnaForm::ÜrünMenüsünüKur() {
    QMenu* menü = menuBar()->addMenu(Metin(ÜrünMetni::ÜrünlerMenüsü));
    menü->setObjectName(QStringLiteral("ÜrünlerMenüsü"));
    const auto girişEkle = [this, menü](const QString& ad, MetinNo metin, std::function<void()> iş) {
        QAction* komut = KomutOluştur(ad, metin, [this, iş = std::move(iş)] {
            if (KaydedilmemişiSor()) iş();
        });
        menü->addAction(komut);
        return komut;
    };
    girişEkle(QStringLiteral("MaliyetTablosuMenüsü"), ÜrünMetni::MaliyetTablosuMenüsü, [this] { MaliyetTablosu(); });
    m_komutlar.MaliyetDağılımı = girişEkle(QStringLiteral("MaliyetDağılımıMenüsü"), ÜrünMetni::MaliyetDağılımıMenüsü,
                                           [this] { MaliyetDağılımınıGöster(); });
    m_komutlar.ÜrünKopyala =
        girişEkle(QStringLiteral("ÜrünKopyalaMenüsü"), ÜrünMetni::ÜrünKopyalaMenüsü, [this] { ÜrünüKopyala(); });
    girişEkle(QStringLiteral("NeredeKullanılıyorMenüsü"), ÜrünMetni::NeredeKullanılıyorMenüsü,
              [this] { MalzemeKullanımınıGöster(m_liste->SeçiliMalzeme()); });
    menü->addSeparator()->setObjectName(QStringLiteral("MenüÇizgisi5"));
    girişEkle(QStringLiteral("YarıMamulMenüsü"), ÜrünMetni::YarıMamulMenüsü, [this] { YarıMamuller(); });
    m_komutlar.YarıMamulAğacı = girişEkle(QStringLiteral("YarıMamulAğacıMenüsü"), ÜrünMetni::YarıMamulAğacıMenüsü,
                                          [this] { YarıMamulAğacı(); });
    menü->addSeparator()->setObjectName(QStringLiteral("MenüÇizgisi6"));
    girişEkle(QStringLiteral("MaliyetArşiviMenüsü"), ÜrünMetni::MaliyetArşiviMenüsü, [this] { MaliyetArşivi(); });
    girişEkle(QStringLiteral("SatışFiyatListesiMenüsü"), ÜrünMetni::SatışFiyatListesiMenüsü,
              [this] { SatışFiyatListesi(); });
    menü->addSeparator()->setObjectName(QStringLiteral("MenüÇizgisi7"));
    QAction* bul = girişEkle(QStringLiteral("BulMenüsü"), ÜrünMetni::BulMenüsü, [this] { BuluAç(); });
    bul->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_F));
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

void AnaForm::MaliyetDağılımınıGöster() {
    MaliyetDağılımıFormu form({m_ağaç->SeçiliGrup(), m_ağaç->SeçiliÜrün()}, this);
    if (form.Yükle()) form.exec();
}

void AnaForm::ÜrünüKopyala() {
    ÜrünKopyalaFormu form({m_ağaç->SeçiliGrup(), m_ağaç->SeçiliÜrün()}, this);
    if (!form.Yükle() || form.exec() != QDialog::Accepted) return;
    ÜrünAğacınıYenile();
    ÜrüneGit(form.Yeni().Grup, form.Yeni().Ad);
}

void AnaForm::BuluAç() {
    BulFormu form(this);
    if (!form.Yükle() || form.exec() != QDialog::Accepted || !form.Gidilecek()) return;
    const ArananAd& bulunan = *form.Gidilecek();
    if (bulunan.Malzeme)
        MalzemeKullanımınıGöster(bulunan.Ad);
    else
        ÜrüneGit(bulunan.Grup, bulunan.Ad);
}

void AnaForm::MaliyetArşivi() {
    MaliyetArşiviFormu form({m_ağaç->SeçiliGrup(), m_ağaç->SeçiliÜrün()}, this);
    if (form.Yükle()) form.exec();
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

void AnaForm::MalzemeKullanımınıGöster(const QString& malzeme) {
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
bool AnaForm::ÜrüneGit(const QString& grup, const QString& ürün) {
    if (!m_ağaç->ÜrünüSeç(grup, ürün)) return false;
    m_miktar->SeçimiKaldır();
    ÜrünListesiTıkla();
    m_ağaç->setFocus();
    return true;
}
