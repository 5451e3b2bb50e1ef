#include "YedekMetinleri.h"
#include "MetinSatirlari.h"

namespace {

constexpr MetinSatırı Tablo[] = {
    {YedekMetni::YedeklerMenüsü, "Yedekler..."},
    {YedekMetni::YedeklerBaşlığı, "Yedekler"},
    {YedekMetni::YedeklerEtiketi, "&Yedekler"},
    {YedekMetni::GünSütunu, "Son değişme"},
    {YedekMetni::TürSütunu, "Türü"},
    {YedekMetni::BoySütunu, "Boyu"},
    {YedekMetni::ÜrünSütunu, "Ürün"},
    {YedekMetni::MalzemeSütunu, "Malzeme"},
    {YedekMetni::SatırSütunu, "Satır"},
    {YedekMetni::DenetimSütunu, "Denetim"},
    {YedekMetni::YerSütunu, "Yeri"},
    {YedekMetni::ŞimdiYedekle, "Şimdi Ye&dekle"},
    {YedekMetni::BaşkaKlasöre, "&Başka Klasöre..."},
    {YedekMetni::GeriYükle, "&Geri Yükle..."},
    {YedekMetni::DosyaAç, "Dosya &Aç..."},
    {YedekMetni::TürGünlük, "günlük"},
    {YedekMetni::TürElle, "elle"},
    {YedekMetni::TürÖnce, "yedekten almadan önce"},
    {YedekMetni::TürHam, "yedekten almadan önce, ham"},
    {YedekMetni::TürSonYedek, "son yedek"},
    {YedekMetni::TürDosya, "açılan dosya"},
    {YedekMetni::BuDosya, "bu veri dosyası"},
    {YedekMetni::YeriBilinmiyor, "bilinmiyor"},
    {YedekMetni::DenetimSırada, "sırada"},
    {YedekMetni::DenetimSürüyor, "denetleniyor..."},
    {YedekMetni::DenetimSağlam, "sağlam"},
    {YedekMetni::DenetimBozuk, "BOZUK"},
    {YedekMetni::DenetimBaşkaSürüm, "başka sürüm"},
    {YedekMetni::DenetimOkunamadı, "okunamadı"},
    {YedekMetni::YedekYok, "Henüz tarihli yedek yok."},
    {YedekMetni::BoyMetni, "%1 KB"},
    {YedekMetni::Yedekleniyor, "Yedek alınıyor..."},
    {YedekMetni::KapanıştaYedekleniyor, "Bugünkü değişikliklerin yedeği alınıyor..."},
    {YedekMetni::DışarıYazılıyor, "Yedek yazılıyor ve geri okunarak denetleniyor..."},
    {YedekMetni::Hazırlanıyor, "Yedek okunuyor ve denetleniyor..."},
    {YedekMetni::GeriYükleniyor, "Yedek geri yükleniyor..."},
    {YedekMetni::YedekAlındı, "Yedek alındı ve denetlendi:\n%1"},
    {YedekMetni::YedekAlınamadı, "Yedek alınamadı; eski yedekler yerinde duruyor.\n%1"},
    {YedekMetni::YedekYeriYok,
     "Diskte yeterince boş yer olmadığı için tarihli yedek alınamadı; eski yedekler yerinde duruyor. Lütfen, diskte "
     "yer açınız.\n%1"},
    {YedekMetni::VeriBoş, "Veri dosyasında ne ürün ne malzeme var; yedek alınmadı."},
    {YedekMetni::KlasörSeçBaşlığı, "Yedeğin Yazılacağı Klasör"},
    {YedekMetni::KlasörYok,
     "Geçen sefer seçilen klasör şu anda yok:\n%1\nBellek takılı değilse takıp yeniden deneyebilir ya da başka bir "
     "klasör seçebilirsiniz."},
    {YedekMetni::AynıDisk,
     "Bu klasör veri dosyasıyla aynı diskte; disk bozulursa yedek de gider. Bellek takılı olmayabilir.\n%1\nYedek yine "
     "de buraya yazılsın mı?"},
    {YedekMetni::DışarıYazıldı, "Yedek yazıldı ve geri okunarak doğrulandı:\n%1"},
    {YedekMetni::DışarıYazılamadı, "Yedek bu klasöre yazılamadı; klasörde yarım dosya bırakılmadı.\n%1"},
    {YedekMetni::DışarıTutmadı, "Yazılan yedek geri okunduğunda tutmadı ve silindi; bellek bozuk olabilir.\n%1"},
    {YedekMetni::DosyaAçBaşlığı, "Yedek Dosyası Aç"},
    {YedekMetni::DosyaSüzgeci, "Yedekler ve veri dosyaları (*.ydk *.vtb *.vtb.access);;Bütün dosyalar (*)"},
    {YedekMetni::YedekKullanılamaz, "Bu yedek kullanılamaz: %1\n%2"},
    {YedekMetni::GeriYüklemeSorusu,
     "%1 tarihli yedek, şimdiki verilerin yerine konacak.\n\nYedekte: %2 ürün, %3 malzeme, %4 malzeme satırı.\nŞimdi: "
     "%5 ürün, %6 malzeme, %7 malzeme satırı.\nYedekte bulunmayan %8 ürün ve %9 malzeme gidecek; yedekten sonra "
     "yapılan bütün değişiklikler de gidecek.\n\nŞimdiki veriler önce ayrı bir yedek olarak saklanır. Kaydedilmemiş "
     "yüzdeler kaybolur. Geri yüklensin mi?"},
    {YedekMetni::GeriYüklemeSorusuBilinmeyen,
     "%1 tarihli yedek, veri dosyasının yerine konacak.\n\nYedekte: %2 ürün, %3 malzeme, %4 malzeme satırı.\nŞimdiki "
     "veri dosyası okunamıyor ya da yok; varsa olduğu gibi ayrıca saklanır.\n\nGeri yüklensin mi?"},
    {YedekMetni::Saklanamadı, "Şimdiki veriler saklanamadığı için geri yükleme yapılmadı; hiçbir şey değişmedi.\n%1"},
    {YedekMetni::GeriYüklenemedi, "Yedek geri yüklenemedi; veri dosyası eskisi gibi.\n%1"},
    {YedekMetni::GeriYüklendi, "Yedek geri yüklendi. Önceki veriler şurada saklandı:\n%1"},
    {YedekMetni::GeriYüklendiSaklanansız, "Yedek geri yüklendi."},
    {YedekMetni::BağlantıKurulamadı,
     "Veri dosyasına yeniden bağlanılamadı. Lütfen, programı kapatıp yeniden başlatınız."},
    {YedekMetni::BaşlangıçtaSunum,
     "Veri dosyanız açılamıyor; ama tarihli yedekler var. Bunlardan birini geri yüklemek ister misiniz?"},
    {YedekMetni::GeriYüklendiDoğrulanamadı,
     "Yedek veri dosyasının yerine kondu, ama diskte kaldığı doğrulanamadı. Önceki verilerin saklandığı yer aşağıdaki "
     "son satırda.\n%1\n%2"},
    {YedekMetni::TabloAçıklaması, "%1\n%2"},
    {YedekMetni::ErişimdenDeğişenler, "Yedek bir Access dosyası; %1.\nListesi:\n%2"},
    {YedekMetni::ErişimdenDeğişenlerListesiz,
     "Yedek bir Access dosyası; %1.\nBunların listesi veri dosyasının yanına yazılamadı."},
    {YedekMetni::ZatenSaklı,
     "Veriler, elle alınan son yedekten beri değişmemiş; yeni bir yedek gerekmedi. Bu durum şurada saklı:\n%1"},
};

static_assert(Sıralı(Tablo));

}  // namespace

const char* YedekMetniBul(MetinNo numara) {
    return MetniBul(Tablo, numara);
}
