#include "KullanimMetinleri.h"
#include "MetinSatirlari.h"

namespace {

constexpr MetinSatırı Tablo[] = {
    {KullanımMetni::NeredeKullanılıyorBaşlığı, "Malzeme Nerede Kullanılıyor"},
    {KullanımMetni::MalzemeEtiketi, "&Malzeme"},
    {KullanımMetni::KullananlarEtiketi, "Kullanan ü&rünler"},
    {KullanımMetni::PaySütunu, "Pay (%)"},
    {KullanımMetni::ÜrünListedeYok, "ürün listesinde yok"},
    {KullanımMetni::KatalogdaYokEki, " (katalogda yok)"},
    {KullanımMetni::KullanımSayısı, "%1 ürün, %2 satır"},
    {KullanımMetni::MalzemeSeçilmemiş, "malzeme seçilmedi"},
    {KullanımMetni::KullanımRaporBaşlığı, "%1 - Kullanıldığı Ürünler"},
    {KullanımMetni::KullanımOkunuyor, "Kullanılan malzemeler okunuyor..."},
    {KullanımMetni::KullanılanYok, "Malzeme listeniz boş; gösterilecek malzeme yok."},
    {KullanımMetni::TürDeğiştir, "Malzeme değişimi"},
    {KullanımMetni::DeğiştirDüğmesi, "&Başka Malzemeyle Değiştir..."},
    {KullanımMetni::MalzemeDeğiştirBaşlığı, "Başka Malzemeyle Değiştir"},
    {KullanımMetni::EskiMalzemeMetni, "Değiştirilecek malzeme: %1"},
    {KullanımMetni::YeniMalzemeEtiketi, "&Yeni malzeme"},
    {KullanımMetni::ÇarpanEtiketi, "Ça&rpan"},
    {KullanımMetni::ÇarpanAçıklaması,
     "Eski miktar bu sayıyla çarpılır: 1 birim yerine bundan kaç birim kullanılacağı."},
    {KullanımMetni::ÇarpanBoş, "Lütfen, bir çarpan giriniz!"},
    {KullanımMetni::ÇarpanSıfır, "Çarpan sıfırdan büyük olmalı! Lütfen, başka bir sayı giriniz."},
    {KullanımMetni::DeğişimAçıklaması, "Malzeme değişimi: %1 yerine %2; çarpan %3"},
    {KullanımMetni::DeğişimÖnizlemeBaşlığı, "Malzeme Değişimi Önizleme"},
    {KullanımMetni::DeğişimHesaplanıyor, "Değişimin etkisi hesaplanıyor..."},
    {KullanımMetni::DeğişimYazılıyor, "Malzeme değiştiriliyor..."},
    {KullanımMetni::DeğişimYazılamadı, "Malzeme değiştirilemedi; hiçbir şey yazılmadı. \n%1"},
    {KullanımMetni::YeniMalzemeKatalogdaYok,
     "Yeni malzeme artık malzeme listesinde yok! Lütfen, başka bir malzeme seçiniz."},
    {KullanımMetni::DeğişimÖzeti, "%1 ürün, silinecek %2 satır, yazılacak %3 satır"},
    {KullanımMetni::GünündenÇıkanSayısı, "Kendi gününün malzeme hareketlerinden çıkacak satır: %1"},
    {KullanımMetni::DışarıdaKalanSayısı, "Değiştirilemeyen ürün: %1"},
    {KullanımMetni::ÖncekiSatırlarSütunu, "Önceki malzeme"},
    {KullanımMetni::SonrakiSatırlarSütunu, "Sonraki malzeme"},
    {KullanımMetni::NedenFiyatıAyrı, "fiyatı katalogdakinden ayrı"},
    {KullanımMetni::NedenSatırlarıDeğişmiş, "satırları sonradan değişmiş"},
    {KullanımMetni::NedenBirimFarklı, "birimleri farklı"},
    {KullanımMetni::NedenMiktarOkunamaz, "miktarı okunamıyor"},
    {KullanımMetni::NedenSatırOkunamaz, "satırının fiyatı ya da tarihi okunamıyor"},
    {KullanımMetni::NedenSonuçSıfır, "yeni miktar sıfır"},
    {KullanımMetni::NedenMetinUzun, "yeni miktar çok uzun"},
    {KullanımMetni::NedenÇemberKapatır, "yarı mamuller çember oluşturur"},
    {KullanımMetni::SatışListesiBaşlığı, "Satış Fiyat Listesi"},
    {KullanımMetni::SatışListesiİlkBaşlığı, "Fiyat Listesi"},
    {KullanımMetni::FiyatSütunu, "Fiyat"},
    {KullanımMetni::KdvSütunu, "KDV (%)"},
    {KullanımMetni::KdvliSütunu, "KDV'li fiyat"},
    {KullanımMetni::FiyatSıfırYaDaAltı, "fiyat sıfır ya da altında"},
    {KullanımMetni::KdvEtiketi, "&KDV oranı (%)"},
    {KullanımMetni::BaşlıkEtiketi, "&Başlık"},
    {KullanımMetni::AltYazıEtiketi, "&Alt yazı"},
    {KullanımMetni::BasılacakSayısı, "%1 ürün basılacak"},
    {KullanımMetni::BasılmayanSayısı, "%1 ürün basılacak; süzgeç dışındaki %2 işaretli ürün basılmaz"},
    {KullanımMetni::KdvAralıkDışı, "KDV oranı 0 ile 100 arasında olmalı! Lütfen, başka bir oran giriniz."},
};

static_assert(Sıralı(Tablo));

}  // namespace

const char* KullanımMetniBul(MetinNo numara) {
    return MetniBul(Tablo, numara);
}
