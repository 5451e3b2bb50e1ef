// The main form's commands that open the catalogue forms and the amounts form, and what those forms need of it.

#include "AnaForm.h"
#include "DegiskenModulu.h"
#include "KullanilanMalzemeler.h"
#include "MaliyetAlani.h"
#include "MalzemeEkleSilFormu.h"
#include "MalzemeListesiOlusturFormu.h"
#include "MesajKutusu.h"
#include "MetinTablosu.h"
#include "MiktarGosterFormu.h"
#include "SayiMetni.h"
#include "UrunAgaci.h"
#include "UrunEkleSilFormu.h"
#include "YuklemeGosterFormu.h"
#include "MaliyetHesabi.h"

void AnaForm::ÜrünAğacınıYenile() {
    m_ağaç->Yükle();
    ÜrünListesiTıkla();
}

void AnaForm::DüğümüSeç(std::int32_t sıra) {
    if (m_ağaç->SırayıSeç(sıra)) ÜrünListesiTıkla();
}

std::optional<AnaFormErişimi::Ürün> AnaForm::SeçiliÜrün() const {
    if (!m_ürünYüklendi) return std::nullopt;
    return Ürün{m_ağaç->SeçiliGrup(), m_ağaç->SeçiliÜrün()};
}

QStringList AnaForm::KullanılanMalzemeAdları() const {
    return m_liste->MalzemeAdları();
}

void AnaForm::ÜrünEkleSil() {
    ÜrünEkleSilFormu form(*this, this);
    YüklemeGösterFormu::Çalıştır([&form] { form.Yükle(); }, this);
    form.exec();
}

void AnaForm::İlkÜrünüEkle() {
    ÜrünEkleSilFormu form(*this, this);
    form.Yükle();
    if (!form.GruplarOkundu()) return;  // the user has been told
    form.ÜrünEkleKaydetButonu_Click();
    form.exec();
}

void AnaForm::MalzemeEkleSil() {
    SeçiliÜrünSırası = m_ağaç->SeçiliSıra();
    MalzemeEkleSilFormu form(*this, this);
    YüklemeGösterFormu::Çalıştır([&form] { form.Yükle(); }, this);
    form.exec();
}

void AnaForm::ListeyeMalzemeEkle() {
    MalzemeListesiOluşturFormu form(*this, this);
    YüklemeGösterFormu::Çalıştır([&form] { form.Yükle(); }, this);
    if (!form.KatalogBoş()) {
        form.exec();
        return;
    }
    if (!form.KatalogOkundu()) return;  // not known to be empty; the user has been told
    if (!Sor(Metin(MetinNo::MalzemeListesiBoş))) return;
    SeçiliÜrünSırası = m_ağaç->SeçiliSıra();
    MalzemeEkleSilFormu malzemeler(*this, this);
    malzemeler.Yükle();
    malzemeler.MalzemeEkleKaydetButonu_Click();
    malzemeler.exec();
}

void AnaForm::MiktarlarıGöster() {
    const MaliyetGirdisi girdi = m_maliyet->Girdi();
    // An amount that cannot be computed leaves its box empty.
    const auto tutar = [&girdi](const QString& yüzde) {
        const std::optional<double> sonuç = YüzdeTutarı(girdi.MalzemeMaliyeti, yüzde);
        return sonuç ? SayıBiçimle(*sonuç, OndalıkBasamak).value_or(QString()) : QString();
    };
    MiktarGösterFormu({girdi.MalzemeMaliyeti, tutar(girdi.İşçilik), tutar(girdi.Kâr), tutar(girdi.Vade),
                       tutar(girdi.Diğer), m_maliyet->ToplamMaliyet()},
                      this)
        .exec();
}
