// New data files: empty, with the sample, or large.
#include <QDate>

#include "BuyukVeri.h"
#include "Komut.h"
#include "OrnekVeri.h"
#include "Uc.h"
#include "VeriDosyasi.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int EN_ÇOK_SATIR = 100'000'000;
constexpr char16_t YARDIM[] =
    u"Var olan bir dosyanın üzerine yazılmaz.\n\n"
    u"Çıkış kodu: 0 başarılı, 1 dosya oluşturulamadı (geride bir şey kalmaz), 2 yanlış kullanım";

int Oluştur(const QString& dosya, const std::function<void(VeriYazıcısı&)>& doldur) {
    VeriDosyasıYap(dosya, doldur);
    YapılanıBildir(u"%1 oluşturuldu."_s.arg(dosya));
    return Tamam;
}

int Yeni(const QStringList& sözler) {
    return Oluştur(Sözler(sözler, 1)[0], [](VeriYazıcısı&) {});
}

int Örnek(const QStringList& sözler) {
    return Oluştur(Sözler(sözler, 1)[0], [](VeriYazıcısı& yazıcı) { ÖrnekVeriYaz(yazıcı, QDate::currentDate()); });
}

int Büyük(const QStringList& sözler) {
    bool sayı = false;
    const int satır = Sözler(sözler, 2)[1].toInt(&sayı);
    if (!sayı || satır < 1 || satır > EN_ÇOK_SATIR) throw KullanımHatası(u"N 1 ile 100000000 arasında bir sayıdır."_s);
    const İlerlemeSatırı ilerleme(u"Veri dosyası yazılıyor"_s);
    return Oluştur(sözler[0], [satır](VeriYazıcısı& yazıcı) { BüyükVeriYaz(yazıcı, satır, QDate::currentDate()); });
}

}  // namespace

const Komut YeniKomutu{u"yeni", u"DOSYA", u"boş bir veri dosyası oluşturur", YARDIM, Yeni};
const Komut ÖrnekKomutu{u"ornek", u"DOSYA", u"örnek bir mobilya atölyesinin verileriyle oluşturur", YARDIM, Örnek};
const Komut BüyükKomutu{u"buyuk", u"DOSYA N", u"ölçme için N kullanılan malzeme satırıyla oluşturur", YARDIM, Büyük};
