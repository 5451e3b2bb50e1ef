#include "MetinTablosu.h"

#include <algorithm>
#include <iterator>

namespace {

struct Satır {
    int Numara;
    const char* Metin;  // UTF-8
};

// In the order of their numbers. Numbers from 2000 on are later additions.
constexpr Satır Tablo[] = {
    {10, "Windows'un sürüm bilgisi öğrenilirken bir hata oluştuğu için program devam edemiyor."},
    {20,
     "Programın çalışabilmesi için bilgisayarınızda NT 4.0 ile \"Servis Pack 3\" veya daha yüksek bir sürümün yüklü "
     "olması gerekiyor."},
    {60, "Programdan çıkmak istediğinizden emin misiniz?"},
    {100, "Bu programın çalışması için ekran çözünürlüğünüzün en az 800x600 olması gerekiyor!"},
    {150,
     "Veritabanı dosyanıza ulaşılamadığı için program başlayamıyor! \n"
     "Lütfen, kontrol edip tekrar deneyin."},
    {160, "Bilgisayarınızda olması gereken ODBC sürücülerine erişilemiyor!"},
    {170, "Bağlantı için bellek ayrılamıyor!"},
    {180, "ODBC Hatası"},
    {190, "Bir ODBC hatası oluştu; ancak hata bilgisi okunamıyor!"},

    // Main form: menu
    {200, "&Program"},
    {210, "Ürün Ekle-Sil..."},
    {220, "Malzeme Ekle-Sil-Fiyat Değiştir..."},
    {240, "Çıkış"},
    {250, "Yardım"},
    {260, "İçindekiler..."},
    {270, "Hata Bildirme..."},
    {280, "Hakkında"},

    // Main form
    {300, "Ürü&n Listesi"},
    {310, "Kullanılan &Malzemeler"},
    {320, "&Ekle-Değiştir"},
    {330, "Listeden Çıka&r"},
    {335, "&Yazdır"},
    {337, "Bilgisayarınızda yüklü bir yazıcı yok! Lütfen, bir yazıcı yükleyip tekrar deneyiniz."},
    {340, "Toplam Malzeme Maliyeti"},
    {350, "İşç&ilik (%)"},
    {360, "&Kâr (%)"},
    {370, "&Diğer (%)"},
    {380, "&Vade (%)"},
    {390, "Toplam Varnek"},
    {400, "D&eğişiklikleri Kaydet"},
    {402, "Günlük Malzeme Hareketleri (F4)"},
    {404, "Malzeme Listesi (F5)"},
    {406, "Ürün Listesi (F6)"},
    {410, "Çıkış (Esc)"},
    {412, "Miktarı"},
    {414, "Adı"},
    {416, "Fiyatı"},
    {418, "Tutarı"},
    {420, "Ürün listeniz boş! Yeni bir ürün eklemek ister misiniz?"},
    {430,
     "Malzeme listeniz boş olduğu için önce malzeme eklemelisiniz! \n"
     "Şimdi listeye malzeme eklemek ister misiniz?"},
    {440,
     "Aşağıdaki malzemeyi listeden çıkarmak istiyor musunuz? \n"
     "Listeden çıkarılacak malzeme:"},

    // Products and product groups
    {450, "Ürün Ekle/Sil"},
    {460, "Ürün Grubu &Sil"},
    {470, "Ürün &Sil"},
    {480, "Ürün &Grubu"},
    {490, "Ürün &Adı"},
    {500, "Ürün &Ekle"},
    {505, "Tamam"},
    {510, "Kapat (Esc)"},
    {520, "Kaydet"},
    {530, "İptal"},
    {538, "Lütfen, listeden bir \"Ürün\" seçiniz!"},
    {540,
     "Bir \"ürün grubu\"nu silerseniz, bu gruba ait \"tüm ürünler\" de silinir! \n"
     "Yine de bu ürün grubunu silmek istiyor musunuz?"},
    {550,
     "Silme işlemi geri alınamaz! \n"
     "Devam etmek istediğinizden emin misiniz?"},
    {560, "Bir \"ürün grubu\" girmeniz gerekiyor!"},
    {565,
     "Ürün grubu, harf ve rakamlardan oluşabilir; ancak sadece rakam olamaz! Lütfen, ürün grubu olarak sadece rakam "
     "girmeyiniz!"},
    {570, "Bir \"ürün adı\" girmeniz gerekiyor!"},
    {580, "Bu \"ürün\" listenizde var, lütfen farklı bir \"ürün\" giriniz!"},

    // Material catalogue
    {600, "Malzeme Ekle/Sil/Fiyat Değiştir"},
    {610, "&Malzeme Listesi"},
    {620, "Malzeme &Bul"},
    {630, "Malzeme &Adı"},
    {640, "Malzeme &Fiyatı"},
    {650, "Malzeme &Ekle"},
    {660, "Malzeme &Sil"},
    {670, "Fiyat &Değiştir"},
    {680, "Malzeme adını boş bırakamazsınız!"},
    {690, "Malzeme fiyatını boş bırakamazsınız!"},
    {700, "Bu \"malzeme\" listenizde var! Lütfen, farklı bir \"malzeme\" giriniz!"},
    {710, "Lütfen, listeden bir \"malzeme\" seçiniz!"},
    {720, "Bazı \"ürünler\" bu malzemeyi kullanabilir! Malzeme, bu ürünlerin listesinden çıkarılsın mı?"},

    // Material list builder
    {750, "Malzeme Listesi Oluştur"},
    {760, "Mi&ktar"},
    {765, "Miktar Türü"},
    {770, "Eklenecek Malzeme &Listesi"},
    {780, "Malzemeyi Listeye &Ekle"},
    {790, "Malzemeyi Listeden Çıka&r"},
    {800, "Listeyi &Temizle"},
    {810, "Listeyi &Aktar"},
    {820, "Lütfen \"malzeme miktarı\"nı belirtiniz!"},
    {830, "Lütfen \"miktar türü\"nü belirtiniz!"},
    {840, "Malzeme miktarı en az \"1\" olmalıdır!"},
    {850, "Bu malzeme listenize eklenmiş! Tekrar eklemek istediğinizden emin misiniz?"},
    {860, "Hazırladığınız listeyi \"Malzeme Listesi\"ne aktarmak istiyor musunuz?"},
    {870, "Veriler yüklenirken lütfen bekleyiniz!"},

    // Printouts and reports
    {872, "Malzeme Maliyeti:"},
    {874, "İşçilik (%"},
    {876, "Kar (%"},
    {878, "Diğer Varnek (%"},
    {880, "Vade Farkı (%"},
    {882, "Toplam:"},
    {884, "Sayfa -"},
    {886, "Günlük Malzeme Hareketleri..."},
    {888, "Tarihli Malzeme Hareketleri"},
    {890, "Kullanıldığı Ürün"},
    {892, "&Tarih Değiştir"},
    {894, "Tarih Değiştir..."},
    {896, "Tarih Seç"},

    // Error report and about
    {955, "Hata Bildirme"},
    {960, "Hataları Bildirin!"},
    {970,
     "Lütfen, programda gördüğünüz hataları aşağıdaki yollardan biri ile bize iletiniz. \n"
     "İlginiz için şimdiden teşekkürler..."},
    {1000, "Hakkında..."},
    {1010, "Malzeme Listesi"},
    {1020, "Ürün Listesi"},
    {1030, "Grubu"},

    // Unit names
    {1200, "Adet"},
    {1210, "Paket"},
    {1220, "Litre"},
    {1230, "Kilogram"},
    {1240, "Metre"},
    {1250, "Metrekare"},
    {1260, "Metreküp"},

    // Quantities and waste
    {1265, "Malzeme Miktarı ve Birim Maliyeti &Göster"},
    {1270, "Toplam Malzeme"},
    {1280, "Birim Varnek"},
    {1290, "Birimler farklı olduğu için bu işlem yapılamaz!"},
    {1295, "Ondalık Basamaklar"},
    {1300, "Hane Olsun"},
    {1315, "Fire Oranı (%)"},
    {1320, "Fireli T. Malzeme"},
    {1325, "Fireli B. Varnek"},
    {1330, "Toplam Malzeme Miktarı"},
    {1335, "Fireli Malzeme Miktarı"},
    {1340, "Fireli Birim Varnek"},

    // The amounts form
    {1350, "Diğer Varnek Miktarları"},
    {1351, "Malzeme Maliyeti:"},
    {1352, "Işçilik Miktarı:"},
    {1353, "Kâr Miktarı:"},
    {1354, "Vade Miktarı:"},
    {1355, "Diğer Miktarı:"},
    {1356, "Toplam Varnek:"},
    {1357, "Diğer Maliyetler"},
    {1358, "..."},
    {1359, "Diğer Varnek Miktarlarını Göster"},

    // Later additions: message boxes
    {2100, "Evet"},
    {2101, "Hayır"},
    {2102, "Tamam"},
    {2110, "Beklenmeyen bir hata oluştu:"},
    {2111, "Girdiğiniz değer bir sayı değil (hata 13: tür uyuşmazlığı)!"},

    // Later additions: start
    {2120,
     "Programın klasörüne yazılamadığı için program başlayamıyor! \n"
     "Lütfen, bu klasöre yazma izniniz olup olmadığını kontrol ediniz:"},
    {2121,
     "Veritabanı dosyanız yerinde yok ve son yedeği geri yüklenemedi; program başlayamıyor! \n"
     "Lütfen, diskte yeterince boş yer olup olmadığını kontrol edip tekrar deneyiniz:"},
    {2122,
     "Veritabanı dosyanız yerinde yok ve son yedeği zarar görmüş; program başlayamıyor! \n"
     "Yedek dosyanıza dokunulmadı:"},
    {2123,
     "Yedek klasörü oluşturulamadı; bu yüzden yedek alınamayacak! \n"
     "Lütfen, bu klasöre yazma izniniz olup olmadığını kontrol ediniz:"},

    // Later additions: main form
    {2130, "Bu malzemelerin miktarı veya fiyatı okunamadığı için maliyete katılmadılar:"},
    {2132, "Kayıtların hepsi okunamadı; gösterilenler eksik!"},
    {2133, "Kayıt okunamadı!"},
    {2134,
     "Birleşecek iki grupta aynı adlı ürünler var! Bunlar tek ürün olur: malzemeleri birlikte listelenir, yüzdeleri "
     "birlikte değişir, biri silinince öteki de silinir. \n"
     "Bu işlem geri alınamaz; yine de grupları birleştirmek istiyor musunuz?"},
    {2135, "Ürün listesinin tamamı okunamadı!"},
    {2136, "Bu ürünün bilgileri okunamadı; okunana kadar değiştirilemez ve yazdırılamaz!"},
    {2137, "Tekrar Yük&le"},
    {2138, "&Tekrar Yükle"},

    // Later additions: number boxes
    {2140, "Bu sayı çok büyük! \nGirebileceğiniz en büyük sayı:"},
    {2141,
     "Bu sayının basamakları çok fazla! \n"
     "Virgülden önce ve sonra, toplam en çok 15 basamak girebilirsiniz."},
    {2142, "Bu metin bir sayı olmadığı veya çok uzun olduğu için alınmadı."},
    {2143, "Bu metin çok uzun olduğu için alınmadı; en çok %1 harf olabilir."},

    // Later additions: renaming
    {2144,
     "Yeni ad ürünlere yazıldı, ancak kullanılan malzemelere yazılamadı! \n"
     "Malzemeler eski adda kaldı; onlara ulaşmak için eski adı geri verip yeniden deneyiniz. Eski ad:\n"},

    // Later additions: data file and backup at the start
    {2150,
     "Bugünün yedeği alınamadı! \n"
     "Nedeni: %1\n\n"
     "Veri dosyanız: %2\n"
     "Yedeğin yeri: %3"},
    {2151,
     "Son yedeğinize dokunulmadı. Veri dosyanız zarar gördüyse programdan çıkıp ona başka bir ad verin; sonraki "
     "açılışta "
     "son yedek geri yüklenir."},
    {2152,
     "Veri dosyanız Varnek'in başka bir kopyasında açık; ikinci bir kopya başlayamaz! \n"
     "Lütfen, öbür oturumda açık olan programı kullanınız ya da kapatıp tekrar deneyiniz:"},
    {2153,
     "Veri dosyanız salt okunur; yapacağınız değişiklikler kaydedilemeyecek! \n"
     "Lütfen, bu dosyaya yazma izniniz olup olmadığını kontrol ediniz:"},
    {2154,
     "İlk veri dosyanız oluşturulamadı; program başlayamıyor! \n"
     "Lütfen, diskte yer ve bu klasöre yazma izniniz olup olmadığını kontrol edip tekrar deneyiniz:"},
    {2155,
     "Veri dosyanızda hiç kayıt yok, ama %1 tarihli son yedeğinizde kayıtlar var.\n\n"
     "Veri dosyanız: %2\n"
     "Yedeğiniz: %3\n\n"
     "Yedek geri yüklensin mi?\n\n"
     "Evet: Yedekteki kayıtlar geri gelir; boş dosya şu adla saklanır:\n%4\n"
     "Hayır: Boş dosyayla başlanır; yedeğiniz ayrıca şu adla saklanır:\n%5"},
    {2156,
     "Yedeğinizin eşi saklanamadı! \n"
     "Boş veri dosyasına kayıt girmeden önce yedeğinizi kendiniz başka bir yere kopyalayınız:"},
    {2157,
     "Son yedeğiniz zarar görmüş; geri yüklenemedi ve program başlayamıyor! \n"
     "Dosyalarınıza dokunulmadı. Boş dosyayla başlamak için tekrar açıp soruyu \"Hayır\" ile yanıtlayabilirsiniz:"},
    {2158,
     "Son yedeğiniz geri yüklenemedi; program başlayamıyor! \n"
     "Lütfen, diskte yeterince boş yer olup olmadığını kontrol edip tekrar deneyiniz:"},
    {2159, "Veri dosyanız boş ve son yedeğiniz okunamıyor; üzerine yazılmadı. %1"},
    {2160,
     "Veri dosyanızın bulunduğu klasörün yolu çok uzun; program başlayamıyor! \n"
     "Lütfen, programı daha kısa yollu bir klasöre taşıyıp tekrar deneyiniz:"},
    {2161, "Yedek klasörünün yolu çok uzun."},
    {2162, "Veri dosyanız boş ve son yedeğiniz zarar görmüş; üzerine yazılmadı."},

    // Later additions: catalogue forms
    {2170, "Bu malzeme veri dosyasında artık yok; fiyatı değiştirilemez!"},
    {2171,
     "Yeni fiyat malzeme listesine yazıldı, ancak ürünlere yazılamadı! \n"
     "Lütfen, fiyat değişimini yeniden deneyiniz."},
    {2172,
     "Yeni fiyat ürünlere yazıldı, ancak malzeme listesine yazılamadı! \n"
     "Lütfen, fiyat değişimini yeniden deneyiniz."},
    {2173,
     "Malzeme silindi, ancak ürünlerin listesinden çıkarılamadı! \n"
     "Çıkarmak için, listede bırakılan malzemeyi yeniden siliniz."},
    {2174,
     "Ürün kaydı silindi, ancak kullanılan malzemeleri silinemedi! \n"
     "Silmek için, listede bırakılan satırı yeniden siliniz."},
    {2175, "Bu malzemeler ürüne aktarılamadı:"},

    // Later additions: about, error report, guide
    {2200, "Programın simgesi"},
    {2201, "www.tovrek.example"},
    {2202, "destek@tovrek.example"},
    {2203, "www.tovrek.example mesaj sayfası"},
    {2204,
     "Kullanım kılavuzu bulunamadı! \n"
     "Kılavuz, programla birlikte gelen \"kilavuz\" klasöründe olmalıdır."},

    // Later additions: printouts
    {2300, "PD&F Kaydet..."},
    {2301, "Öni&zleme..."},
    {2302, "PDF Olarak Kaydet"},
    {2303, "PDF Dosyaları (*.pdf)"},
    {2304, "Bu adda bir dosya var! Üzerine yazılsın mı?"},
    {2305,
     "PDF dosyası yazılamadı! \n"
     "Lütfen, bu yere yazma izniniz ve diskte yeterince boş yer olup olmadığını kontrol edip tekrar deneyiniz:"},
    {2306, "Baskı Önizleme"},

    // Later additions: date of the movements
    {2310, "Bu tarih takvimde yok veya eksik yazılmış! Lütfen, günü, ayı ve yılı yazınız (örneğin 15.10.2026)."},
};

// The search goes by the order.
static_assert(std::adjacent_find(std::begin(Tablo), std::end(Tablo), [](const Satır& bu, const Satır& sonraki) {
                  return bu.Numara >= sonraki.Numara;
              }) == std::end(Tablo));

}  // namespace

QString Metin(int numara) {
    const auto* satır = std::lower_bound(std::begin(Tablo), std::end(Tablo), numara,
                                         [](const Satır& s, int n) { return s.Numara < n; });
    if (satır == std::end(Tablo) || satır->Numara != numara) {
        Q_ASSERT_X(false, "Metin", "unknown text number");
        return QStringLiteral("?%1?").arg(numara);
    }
    return QString::fromUtf8(satır->Metin);
}
