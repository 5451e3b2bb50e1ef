// What the main form does about materials that stand for products.

#include "AnaForm.h"
#include "FiyatIsi.h"
#include "FiyatMetinleri.h"
#include "FormParcalari.h"
#include "KullanilanMalzemeler.h"
#include "MesajKutusu.h"
#include "MetinTablosu.h"
#include "OdbcModulu.h"
#include "UrunAgaci.h"
#include "YariMamulAgaciFormu.h"
#include "YariMamulFormu.h"
#include "YariMamulMetinleri.h"

void AnaForm::VeriDeğişti(const VeriDeğişimi& değişim) {
    const Yayılım yayılım = YarıMamulleriYürüt(ODBCBağlantısı(), değişim);
    if (!yayılım.Sonuç.Tamam()) {
        İşSonucunuGöster(yayılım.Sonuç);
        YarımKaldı(YarıMamulMetni::FiyatlarYazılamadı);
    }
    if (yayılım.Çözülenler.isEmpty()) return;
    MesajKutusuOrtala();
    MesajKutusu::Göster(MesajKutusu::Simge::Bilgi, MesajKutusu::Düğmeler::Tamam,
                        Metin(YarıMamulMetni::BağlarÇözüldü).arg(AdlarınBaşı(yayılım.Çözülenler)));
}

// Joined groups may have changed what the selected product uses.
void AnaForm::AdDeğişti(const ÜrünAdı& eski, const ÜrünAdı& yeni) {
    VeriDeğişti({.Ürünler = {eski}, .YeniAd = yeni});
}

void AnaForm::YarıMamuller() {
    YarıMamulFormu form(this);
    if (!form.Yükle()) return;
    form.exec();
    if (form.Değişti()) FiyatlarDeğişti();
    if (const ÜrünAdı* ürün = form.Gidilecek()) ÜrüneGit(ürün->Grup, ürün->Ad);
}

void AnaForm::YarıMamulAğacı() {
    YarıMamulAğacıFormu form({m_ağaç->SeçiliGrup(), m_ağaç->SeçiliÜrün()}, this);
    if (form.Yükle()) form.exec();
}

// A product that is not there any more leaves everything as it is.
void AnaForm::YarıMamuleGit(const QString& malzeme) {
    const YarıMamulBağları* bağlar = nullptr;
    if (!İşSonucunuGöster(YarıMamulleriAl(ODBCBağlantısı(), bağlar))) return;
    const YarıMamulBağı* bağ = bağlar->Bağı(malzeme);
    if (!bağ) return;
    const ÜrünAdı ürün = bağ->Ürün;
    if (!ÜrüneGit(ürün.Grup, ürün.Ad)) Uyar(Metin(YarıMamulMetni::ÜrünBulunamadı).arg(ürün.Grup, ürün.Ad), *m_liste);
}
