#include "FiyatIsi.h"

#include <QWidget>

#include "DegiskenModulu.h"
#include "FiyatMetinleri.h"
#include "FiyatOnizlemeFormu.h"
#include "GeriAlma.h"
#include "MalzemeDegisimi.h"
#include "IlerlemeKutusu.h"
#include "MesajKutusu.h"
#include "MetinTablosu.h"
#include "OdbcModulu.h"

namespace {

using Deyimler::Fiyat::İşlem;

void Bildir(MetinNo metin) {
    MesajKutusuOrtala();
    MesajKutusu::Göster(MesajKutusu::Simge::Bilgi, MesajKutusu::Düğmeler::Tamam, Metin(metin));
}

bool GeriAlYaDaYinele(const İşlem& işlem, İşlemTürü tür, const DeğişimÇevirici& çevir, QWidget* sahip) {
    if (ÜrünleriDeğiştirir(işlem)) return çevir(işlem, tür, sahip);
    const MetinNo açıklama = tür == İşlemTürü::GeriAlma ? MetinNo::GeriAlmaAçıklaması : MetinNo::YinelemeAçıklaması;
    const Fiyatİşi iş{{tür, Metin(açıklama).arg(işlem.No).arg(işlem.Açıklama), işlem.No, işlem.GeriAlan},
                      [işlem, tür](FiyatTeklifi& teklif, QStringList& notlar) {
                          GeriAlmaEksikleri eksikler;
                          const İşSonucu sonuç = GeriAlmaÖnerileri(ODBCBağlantısı(), işlem, tür, teklif, eksikler);
                          notlar += EksiklerNotu(eksikler.Malzemeler);
                          if (!eksikler.Döviz.isEmpty())
                              notlar.append(Metin(MetinNo::KurGeriAlınmıyor).arg(eksikler.Döviz));
                          return sonuç;
                      }};
    return FiyatİşiniYürüt(iş, sahip);
}

bool SonuncuyuYürüt(std::optional<İşlem> (*bul)(const std::vector<İşlem>&), İşlemTürü tür, MetinNo yok,
                    const DeğişimÇevirici& çevir, QWidget* sahip) {
    std::vector<İşlem> işlemler;
    const İşSonucu sonuç = İşlemleriOku(ODBCBağlantısı(), işlemler);
    if (!İşSonucunuGöster(sonuç)) return false;
    const std::optional<İşlem> işlem = bul(işlemler);
    if (!işlem) {
        Bildir(yok);
        return false;
    }
    return GeriAlYaDaYinele(*işlem, tür, çevir, sahip);
}

}  // namespace

bool İşSonucunuGöster(const İşSonucu& sonuç) {
    if (sonuç.Son == İşSonu::Olmadı) {
        const QStringList iletiler = OdbcİletileriniAl(sonuç.Odbc.Hatalar);
        HatalarıGöster(iletiler.isEmpty() ? QStringList{QString()} : iletiler);
    }
    return sonuç.Tamam();
}

ÖnizlemeAdımı UygulamayıBildir(const UygulamaSonucu& sonuç, MetinNo yazılamadı) {
    const auto bildir = [](MesajKutusu::Simge simge, const QString& metin) {
        MesajKutusuOrtala();
        MesajKutusu::Göster(simge, MesajKutusu::Düğmeler::Tamam, metin);
    };
    switch (sonuç.Son) {
        case UygulamaSonu::Tamam:
            return ÖnizlemeAdımı::Kabul;
        case UygulamaSonu::Vazgeçildi:
            break;  // everything is as it was
        case UygulamaSonu::Olmadı:
            bildir(MesajKutusu::Simge::Kritik,
                   Metin(yazılamadı).arg(OdbcİletileriniAl(sonuç.Odbc.Hatalar).join(QLatin1Char('\n'))));
            break;
        case UygulamaSonu::Değişmiş:
            bildir(MesajKutusu::Simge::Ünlem, Metin(MetinNo::VerilerDeğişmiş).arg(sonuç.Malzeme));
            return ÖnizlemeAdımı::YenidenKur;
        case UygulamaSonu::İşlemDeğişmiş:
            bildir(MesajKutusu::Simge::Ünlem, Metin(MetinNo::İşlemDeğişmiş));
            return ÖnizlemeAdımı::Ret;
    }
    return ÖnizlemeAdımı::Kal;
}

bool FiyatİşiniYürüt(const Fiyatİşi& iş, QWidget* sahip) {
    FiyatÖnizlemeFormu form(iş, sahip);
    return form.PlanıKur() && form.exec() == QDialog::Accepted;
}

bool İşlemiGeriAl(const İşlem& işlem, const DeğişimÇevirici& çevir, QWidget* sahip) {
    return GeriAlYaDaYinele(işlem, İşlemTürü::GeriAlma, çevir, sahip);
}

bool SonİşlemiGeriAl(const DeğişimÇevirici& çevir, QWidget* sahip) {
    return SonuncuyuYürüt(GeriAlınacakİşlem, İşlemTürü::GeriAlma, MetinNo::GeriAlınacakYok, çevir, sahip);
}

bool SonGeriAlınanıYinele(const DeğişimÇevirici& çevir, QWidget* sahip) {
    return SonuncuyuYürüt(YinelenecekİşlemiBul, İşlemTürü::Yineleme, MetinNo::YinelenecekYok, çevir, sahip);
}
