#include "YariMamulMetinleri.h"
#include "MetinSatirlari.h"

namespace {

constexpr MetinSatırı Tablo[] = {
    {YarıMamulMetni::YarıMamulBaşlığı, "Yarı Mamuller"},
    {YarıMamulMetni::NedenYarıMamul, "yarı mamul"},
    {YarıMamulMetni::TürYarıMamul, "Yarı mamul"},
    {YarıMamulMetni::BağlamaAçıklaması, "\"%1\" malzemesinin fiyatı, \"%2 / %3\" ürününün %4"},
    {YarıMamulMetni::TürMalzemeMaliyeti, "malzeme maliyeti"},
    {YarıMamulMetni::TürToplamMaliyet, "toplam maliyeti"},
    {YarıMamulMetni::TürBirimMaliyet, "birim maliyeti"},
    {YarıMamulMetni::BağlarEtiketi, "Yarı mamu&ller"},
    {YarıMamulMetni::MalzemeSüz, "Malzeme &süz"},
    {YarıMamulMetni::MalzemelerEtiketi, "&Malzeme"},
    {YarıMamulMetni::ÜrünSüz, "Ür&ün süz"},
    {YarıMamulMetni::ÜrünlerEtiketi, "Fiyatı &veren ürün"},
    {YarıMamulMetni::TürEtiketi, "Malzem&enin fiyatı, ürünün"},
    {YarıMamulMetni::Bağla, "&Bağla..."},
    {YarıMamulMetni::Çöz, "Bağı Ç&öz"},
    {YarıMamulMetni::TutarSütunu, "Tutarı"},
    {YarıMamulMetni::DurumSütunu, "Durum"},
    {YarıMamulMetni::DurumUyuyor, "uyuyor"},
    {YarıMamulMetni::DurumÜrünYok, "ürün bulunamadı"},
    {YarıMamulMetni::DurumMalzemeYok, "malzeme katalogda yok"},
    {YarıMamulMetni::DurumDöngüde, "döngü: ürün, kendisinden yapılan malzemeyi kullanıyor"},
    {YarıMamulMetni::DurumMalzemesiz, "ürünün malzemesi yok"},
    {YarıMamulMetni::DurumOkunamayan, "üründe okunamayan miktar var"},
    {YarıMamulMetni::DurumFarklıBirim, "üründe farklı birimler var"},
    {YarıMamulMetni::DurumMiktarSıfır, "ürünün toplam miktarı sıfır ya da altında"},
    {YarıMamulMetni::DurumSıfır, "ürünün tutarı sıfır ya da altında"},
    {YarıMamulMetni::DurumBüyük, "ürünün tutarı çok büyük"},
    {YarıMamulMetni::DurumYazılamadı, "fiyat yazılamadı"},
    {YarıMamulMetni::ListeAçıklaması,
     "Yarı mamul: fiyatı, \"%1 / %2\" ürününün %3. Ürüne gitmek için Ctrl+Enter ya da Ctrl ile çift tıklama."},
    {YarıMamulMetni::FiyatıUymuyor, "Fiyatı ürüne uymuyor: %1."},
    {YarıMamulMetni::ÇözmeSorusu,
     "\"%1\" malzemesinin fiyatını \"%2 / %3\" ürünü belirliyor; elle değiştirilebilmesi için bağın çözülmesi gerekir. "
     "Fiyat şimdilik olduğu gibi kalır. Bağ çözülsün mü?"},
    {YarıMamulMetni::ÇözmeOnayı,
     "\"%1\" malzemesinin \"%2 / %3\" ürünüyle bağı çözülecek; fiyatı olduğu gibi kalır ve bundan sonra ürünü izlemez. "
     "Bağ "
     "çözülsün mü?"},
    {YarıMamulMetni::BağlarÇözüldü, "Silinenlere bağlı yarı mamullerin bağı çözüldü; fiyatları olduğu gibi kaldı:\n%1"},
    {YarıMamulMetni::FiyatlarYazılamadı,
     "Yarı mamullerin fiyatları yazılamadı; eski fiyatlar duruyor. Bir sonraki değişiklikte ya da programın bir "
     "sonraki açılışında yeniden denenecek."},
    {YarıMamulMetni::ÜrünBulunamadı, "\"%1 / %2\" ürünü, ürün listesinde bulunamadı!"},
    {YarıMamulMetni::DöngüyleAktarılmayanlar,
     "Şu malzemeler aktarılmadı, çünkü ürün dolaylı olarak kendisinden yapılmış olurdu:"},
    {YarıMamulMetni::MalzemeSeçiniz, "Lütfen, fiyatı bir üründen gelecek malzemeyi seçiniz!"},
    {YarıMamulMetni::ÜrünSeçiniz, "Lütfen, fiyatı verecek ürünü seçiniz!"},
    {YarıMamulMetni::ZatenBağlı,
     "\"%1\" malzemesi zaten \"%2 / %3\" ürününe bağlı. Başka türlü bağlamak için önce bağı çözünüz."},
    {YarıMamulMetni::DövizeBağlı,
     "\"%1\" malzemesinin fiyatı %2 kuruna bağlı; bir malzeme hem dövize hem ürüne bağlanamaz. Önce döviz bağını "
     "çözünüz."},
    {YarıMamulMetni::DöngüOlur,
     "\"%1\" malzemesi \"%2\" ürününe bağlanamaz, çünkü ürün dolaylı olarak kendisinden yapılmış olurdu:\n%3"},
    {YarıMamulMetni::FiyatHesaplanamıyor, "\"%1 / %2\" ürününün %3 fiyat olarak alınamaz: %4."},
    {YarıMamulMetni::KesmeliBağlanmaz, "Adında kesme işareti (') bulunan \"%1\" bağlanamaz."},
    {YarıMamulMetni::KatalogdaYok, "\"%1\" malzemesi katalogda bulunamadı!"},
    {YarıMamulMetni::DövizMalzemesiYarıMamul,
     "\"%1\" malzemesinin fiyatını \"%2 / %3\" ürünü belirliyor; bir malzeme hem dövize hem ürüne bağlanamaz. Önce "
     "Ürünler "
     "menüsündeki Yarı Mamuller formunda bağı çözünüz."},
    {YarıMamulMetni::YarıMamulYok,
     "Henüz yarı mamul yok. Aşağıdan malzemeyi, fiyatını verecek ürünü ve tutarı seçip \"Bağla\"ya basınız."},
    {YarıMamulMetni::KopyaDöngüsü,
     "Kopyanın adı \"%1\" olamaz, çünkü ürün dolaylı olarak kendisinden yapılmış olurdu:\n%2"},
    {YarıMamulMetni::NedenYarıMamulünden, "yarı mamulünün fiyatı değişir"},
    {YarıMamulMetni::YayılanSatırSayısı, "Yarı mamulün fiyatıyla değişecek satır: %1"},
    {YarıMamulMetni::AğaçBaşlığı, "Yarı Mamul Ağacı"},
    {YarıMamulMetni::AğaçÜrünü, "%1 / %2"},
    {YarıMamulMetni::AdetEtiketi, "&Adet"},
    {YarıMamulMetni::AğaçEtiketi, "Malzeme a&ğacı"},
    {YarıMamulMetni::ToplamlarEtiketi, "T&oplam malzeme"},
    {YarıMamulMetni::ToplamSütunu, "Toplam miktar"},
    {YarıMamulMetni::BirimSütunu, "Birim"},
    {YarıMamulMetni::NotSütunu, "Not"},
    {YarıMamulMetni::NotFarklıBirim, "birimi, ürününkinden farklı"},
    {YarıMamulMetni::NotOkunamayan, "okunamayan miktar"},
    {YarıMamulMetni::NotAçılamaz, "açılamadı: %1"},
    {YarıMamulMetni::AdetGerekli, "Adet sıfırdan büyük, saklanabilecek kadar küçük bir sayı olmalı."},
    {YarıMamulMetni::AğaçRaporu, "%1 / %2: %3 adet için malzeme"},
    {YarıMamulMetni::NotTaşıyor, "miktar çok büyük"},
    {YarıMamulMetni::DikkatBağ, "izlemeyen yarı mamul"},
};

static_assert(Sıralı(Tablo));

}  // namespace

const char* YarıMamulMetniBul(MetinNo numara) {
    return MetniBul(Tablo, numara);
}
