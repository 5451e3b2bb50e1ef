#include "MetinTablosu.h"

#include "MetinSatirlari.h"

namespace {

// Numbers from 2000 on are later additions.
constexpr MetinSatırı Tablo[] = {
    {MetinNo::SürümOkunamadı, "Windows'un sürüm bilgisi öğrenilirken bir hata oluştuğu için program devam edemiyor."},
    {MetinNo::SürümYetersiz,
     "Programın çalışabilmesi için bilgisayarınızda NT 4.0 ile \"Servis Pack 3\" veya daha yüksek bir sürümün yüklü "
     "olması gerekiyor."},
    {MetinNo::ÇıkışSorusu, "Programdan çıkmak istediğinizden emin misiniz?"},
    {MetinNo::EkranDar, "Bu programın çalışması için ekran çözünürlüğünüzün en az 800x600 olması gerekiyor!"},
    {MetinNo::VeriDosyasıYok,
     "Veritabanı dosyanıza ulaşılamadığı için program başlayamıyor! \n"
     "Lütfen, kontrol edip tekrar deneyin."},
    {MetinNo::OdbcErişilemiyor, "Bilgisayarınızda olması gereken ODBC sürücülerine erişilemiyor!"},
    {MetinNo::BağlantıyaBellekYok, "Bağlantı için bellek ayrılamıyor!"},
    {MetinNo::OdbcHatası, "ODBC Hatası"},
    {MetinNo::OdbcHatasıOkunamadı, "Bir ODBC hatası oluştu; ancak hata bilgisi okunamıyor!"},

    // Main form: menu
    {MetinNo::ProgramMenüsü, "&Program"},
    {MetinNo::ÜrünEkleSilMenüsü, "Ürün Ekle-Sil..."},
    {MetinNo::MalzemeEkleSilMenüsü, "Malzeme Ekle-Sil-Fiyat Değiştir..."},
    {MetinNo::ÇıkışMenüsü, "Çıkış"},
    {MetinNo::YardımMenüsü, "Yardım"},
    {MetinNo::İçindekilerMenüsü, "İçindekiler..."},
    {MetinNo::HataBildirmeMenüsü, "Hata Bildirme..."},
    {MetinNo::HakkındaMenüsü, "Hakkında"},

    // Main form
    {MetinNo::ÜrünListesiBaşlığı, "Ürü&n Listesi"},
    {MetinNo::KullanılanMalzemelerBaşlığı, "Kullanılan &Malzemeler"},
    {MetinNo::EkleDeğiştir, "&Ekle-Değiştir"},
    {MetinNo::ListedenÇıkar, "Listeden Çıka&r"},
    {MetinNo::Yazdır, "&Yazdır"},
    {MetinNo::YazıcıYok, "Bilgisayarınızda yüklü bir yazıcı yok! Lütfen, bir yazıcı yükleyip tekrar deneyiniz."},
    {MetinNo::ToplamMalzemeMaliyeti, "Toplam Malzeme Maliyeti"},
    {MetinNo::İşçilikYüzdesi, "İşç&ilik (%)"},
    {MetinNo::KârYüzdesi, "&Kâr (%)"},
    {MetinNo::DiğerYüzdesi, "&Diğer (%)"},
    {MetinNo::VadeYüzdesi, "&Vade (%)"},
    {MetinNo::ToplamVarnek, "Toplam Varnek"},
    {MetinNo::DeğişiklikleriKaydet, "D&eğişiklikleri Kaydet"},
    {MetinNo::GünlükMalzemeHareketleriDüğmesi, "Günlük Malzeme Hareketleri (F4)"},
    {MetinNo::MalzemeListesiDüğmesi, "Malzeme Listesi (F5)"},
    {MetinNo::ÜrünListesiDüğmesi, "Ürün Listesi (F6)"},
    {MetinNo::ÇıkışDüğmesi, "Çıkış (Esc)"},
    {MetinNo::MiktarıSütunu, "Miktarı"},
    {MetinNo::AdıSütunu, "Adı"},
    {MetinNo::FiyatıSütunu, "Fiyatı"},
    {MetinNo::TutarıSütunu, "Tutarı"},
    {MetinNo::ÜrünListesiBoş, "Ürün listeniz boş! Yeni bir ürün eklemek ister misiniz?"},
    {MetinNo::MalzemeListesiBoş,
     "Malzeme listeniz boş olduğu için önce malzeme eklemelisiniz! \n"
     "Şimdi listeye malzeme eklemek ister misiniz?"},
    {MetinNo::ListedenÇıkarmaSorusu,
     "Aşağıdaki malzemeyi listeden çıkarmak istiyor musunuz? \n"
     "Listeden çıkarılacak malzeme:"},

    // Products and product groups
    {MetinNo::ÜrünFormuBaşlığı, "Ürün Ekle/Sil"},
    {MetinNo::ÜrünGrubuSil, "Ürün Grubu &Sil"},
    {MetinNo::ÜrünSil, "Ürün &Sil"},
    {MetinNo::ÜrünGrubu, "Ürün &Grubu"},
    {MetinNo::ÜrünAdı, "Ürün &Adı"},
    {MetinNo::ÜrünEkle, "Ürün &Ekle"},
    {MetinNo::TamamDüğmesi, "Tamam"},
    {MetinNo::Kapat, "Kapat (Esc)"},
    {MetinNo::Kaydet, "Kaydet"},
    {MetinNo::İptal, "İptal"},
    {MetinNo::ÜrünSeçiniz, "Lütfen, listeden bir \"Ürün\" seçiniz!"},
    {MetinNo::GrupSilmeSorusu,
     "Bir \"ürün grubu\"nu silerseniz, bu gruba ait \"tüm ürünler\" de silinir! \n"
     "Yine de bu ürün grubunu silmek istiyor musunuz?"},
    {MetinNo::SilmeGeriAlınamaz,
     "Silme işlemi geri alınamaz! \n"
     "Devam etmek istediğinizden emin misiniz?"},
    {MetinNo::ÜrünGrubuBoş, "Bir \"ürün grubu\" girmeniz gerekiyor!"},
    {MetinNo::ÜrünGrubuSayı,
     "Ürün grubu, harf ve rakamlardan oluşabilir; ancak sadece rakam olamaz! Lütfen, ürün grubu olarak sadece rakam "
     "girmeyiniz!"},
    {MetinNo::ÜrünAdıBoş, "Bir \"ürün adı\" girmeniz gerekiyor!"},
    {MetinNo::ÜrünListedeVar, "Bu \"ürün\" listenizde var, lütfen farklı bir \"ürün\" giriniz!"},

    // Material catalogue
    {MetinNo::MalzemeFormuBaşlığı, "Malzeme Ekle/Sil/Fiyat Değiştir"},
    {MetinNo::MalzemeListesiEtiketi, "&Malzeme Listesi"},
    {MetinNo::MalzemeBul, "Malzeme &Bul"},
    {MetinNo::MalzemeAdı, "Malzeme &Adı"},
    {MetinNo::MalzemeFiyatı, "Malzeme &Fiyatı"},
    {MetinNo::MalzemeEkle, "Malzeme &Ekle"},
    {MetinNo::MalzemeSil, "Malzeme &Sil"},
    {MetinNo::FiyatDeğiştir, "Fiyat &Değiştir"},
    {MetinNo::MalzemeAdıBoş, "Malzeme adını boş bırakamazsınız!"},
    {MetinNo::MalzemeFiyatıBoş, "Malzeme fiyatını boş bırakamazsınız!"},
    {MetinNo::MalzemeListedeVar, "Bu \"malzeme\" listenizde var! Lütfen, farklı bir \"malzeme\" giriniz!"},
    {MetinNo::MalzemeSeçiniz, "Lütfen, listeden bir \"malzeme\" seçiniz!"},
    {MetinNo::ÜrünlerdenÇıkarmaSorusu,
     "Bazı \"ürünler\" bu malzemeyi kullanabilir! Malzeme, bu ürünlerin listesinden çıkarılsın mı?"},

    // Material list builder
    {MetinNo::ListeFormuBaşlığı, "Malzeme Listesi Oluştur"},
    {MetinNo::Miktar, "Mi&ktar"},
    {MetinNo::MiktarTürü, "Miktar Türü"},
    {MetinNo::EklenecekListe, "Eklenecek Malzeme &Listesi"},
    {MetinNo::ListeyeEkle, "Malzemeyi Listeye &Ekle"},
    {MetinNo::EklenecektenÇıkar, "Malzemeyi Listeden Çıka&r"},
    {MetinNo::ListeyiTemizle, "Listeyi &Temizle"},
    {MetinNo::ListeyiAktar, "Listeyi &Aktar"},
    {MetinNo::MiktarıBelirtiniz, "Lütfen \"malzeme miktarı\"nı belirtiniz!"},
    {MetinNo::MiktarTürünüBelirtiniz, "Lütfen \"miktar türü\"nü belirtiniz!"},
    {MetinNo::MiktarSıfır, "Malzeme miktarı en az \"1\" olmalıdır!"},
    {MetinNo::TekrarEklemeSorusu, "Bu malzeme listenize eklenmiş! Tekrar eklemek istediğinizden emin misiniz?"},
    {MetinNo::AktarmaSorusu, "Hazırladığınız listeyi \"Malzeme Listesi\"ne aktarmak istiyor musunuz?"},
    {MetinNo::Yükleniyor, "Veriler yüklenirken lütfen bekleyiniz!"},

    // Printouts and reports
    {MetinNo::FişMalzemeMaliyeti, "Malzeme Maliyeti:"},
    {MetinNo::FişİşçilikBaşı, "İşçilik (%"},
    {MetinNo::FişKârBaşı, "Kar (%"},
    {MetinNo::FişDiğerBaşı, "Diğer Varnek (%"},
    {MetinNo::FişVadeBaşı, "Vade Farkı (%"},
    {MetinNo::FişToplam, "Toplam:"},
    {MetinNo::SayfaBaşı, "Sayfa -"},
    {MetinNo::HareketlerFormuBaşlığı, "Günlük Malzeme Hareketleri..."},
    {MetinNo::TarihliHareketler, "Tarihli Malzeme Hareketleri"},
    {MetinNo::KullanıldığıÜrünSütunu, "Kullanıldığı Ürün"},
    {MetinNo::TarihDeğiştir, "&Tarih Değiştir"},
    {MetinNo::TarihFormuBaşlığı, "Tarih Değiştir..."},
    {MetinNo::TarihSeç, "Tarih Seç"},

    // Error report and about
    {MetinNo::HataBildirmeBaşlığı, "Hata Bildirme"},
    {MetinNo::HatalarıBildirin, "Hataları Bildirin!"},
    {MetinNo::HataBildirmeAçıklaması,
     "Lütfen, programda gördüğünüz hataları aşağıdaki yollardan biri ile bize iletiniz. \n"
     "İlginiz için şimdiden teşekkürler..."},
    {MetinNo::HakkındaBaşlığı, "Hakkında..."},
    {MetinNo::MalzemeListesiBaşlığı, "Malzeme Listesi"},
    {MetinNo::ÜrünListesiRaporBaşlığı, "Ürün Listesi"},
    {MetinNo::GrubuSütunu, "Grubu"},

    // Unit names
    {MetinNo::Adet, "Adet"},
    {MetinNo::Paket, "Paket"},
    {MetinNo::Litre, "Litre"},
    {MetinNo::Kilogram, "Kilogram"},
    {MetinNo::Metre, "Metre"},
    {MetinNo::Metrekare, "Metrekare"},
    {MetinNo::Metreküp, "Metreküp"},

    // Quantities and waste
    {MetinNo::MiktarGösterSeçeneği, "Malzeme Miktarı ve Birim Maliyeti &Göster"},
    {MetinNo::ToplamMalzeme, "Toplam Malzeme"},
    {MetinNo::BirimVarnek, "Birim Varnek"},
    {MetinNo::BirimlerFarklı, "Birimler farklı olduğu için bu işlem yapılamaz!"},
    {MetinNo::OndalıkBasamaklar, "Ondalık Basamaklar"},
    {MetinNo::HaneOlsun, "Hane Olsun"},
    {MetinNo::FireOranı, "Fire Oranı (%)"},
    {MetinNo::FireliToplamMalzeme, "Fireli T. Malzeme"},
    {MetinNo::FireliBirimVarnekEtiketi, "Fireli B. Varnek"},
    {MetinNo::FişToplamMiktar, "Toplam Malzeme Miktarı"},
    {MetinNo::FişFireliMiktar, "Fireli Malzeme Miktarı"},
    {MetinNo::FişFireliBirimVarnek, "Fireli Birim Varnek"},

    // The amounts form
    {MetinNo::MiktarFormuBaşlığı, "Diğer Varnek Miktarları"},
    {MetinNo::MalzemeMaliyetiTutarı, "Malzeme Maliyeti:"},
    {MetinNo::İşçilikTutarı, "Işçilik Miktarı:"},
    {MetinNo::KârTutarı, "Kâr Miktarı:"},
    {MetinNo::VadeTutarı, "Vade Miktarı:"},
    {MetinNo::DiğerTutarı, "Diğer Miktarı:"},
    {MetinNo::ToplamTutarı, "Toplam Varnek:"},
    {MetinNo::DiğerMaliyetler, "Diğer Maliyetler"},
    {MetinNo::MiktarlarıGösterDüğmesi, "..."},
    {MetinNo::MiktarlarıGösterAçıklaması, "Diğer Varnek Miktarlarını Göster"},

    // Later additions: message boxes
    {MetinNo::Evet, "Evet"},
    {MetinNo::Hayır, "Hayır"},
    {MetinNo::Tamam, "Tamam"},
    {MetinNo::BeklenmeyenHata, "Beklenmeyen bir hata oluştu:"},
    {MetinNo::SayıDeğil, "Girdiğiniz değer bir sayı değil (hata 13: tür uyuşmazlığı)!"},

    // Later additions: start
    {MetinNo::KlasöreYazılamıyor,
     "Programın klasörüne yazılamadığı için program başlayamıyor! \n"
     "Lütfen, bu klasöre yazma izniniz olup olmadığını kontrol ediniz:"},
    {MetinNo::YedekGeriYüklenemedi,
     "Veritabanı dosyanız yerinde yok ve son yedeği geri yüklenemedi; program başlayamıyor! \n"
     "Lütfen, diskte yeterince boş yer olup olmadığını kontrol edip tekrar deneyiniz:"},
    {MetinNo::YedekZararGörmüş,
     "Veritabanı dosyanız yerinde yok ve son yedeği zarar görmüş; program başlayamıyor! \n"
     "Yedek dosyanıza dokunulmadı:"},
    {MetinNo::YedekKlasörüYok,
     "Yedek klasörü oluşturulamadı; bu yüzden yedek alınamayacak! \n"
     "Lütfen, bu klasöre yazma izniniz olup olmadığını kontrol ediniz:"},

    // Later additions: main form
    {MetinNo::SayılmayanMalzemeler, "Bu malzemelerin miktarı veya fiyatı okunamadığı için maliyete katılmadılar:"},
    {MetinNo::KayıtlarEksik, "Kayıtların hepsi okunamadı; gösterilenler eksik!"},
    {MetinNo::KayıtOkunamadı, "Kayıt okunamadı!"},
    {MetinNo::GrupBirleştirmeSorusu,
     "Birleşecek iki grupta aynı adlı ürünler var! Bunlar tek ürün olur: malzemeleri birlikte listelenir, yüzdeleri "
     "birlikte değişir, biri silinince öteki de silinir. \n"
     "Bu işlem geri alınamaz; yine de grupları birleştirmek istiyor musunuz?"},
    {MetinNo::ÜrünListesiOkunamadı, "Ürün listesinin tamamı okunamadı!"},
    {MetinNo::ÜrünOkunamadı, "Bu ürünün bilgileri okunamadı; okunana kadar değiştirilemez ve yazdırılamaz!"},
    {MetinNo::ListeyiTekrarYükle, "Tekrar Yük&le"},
    {MetinNo::ÜrünüTekrarYükle, "&Tekrar Yükle"},

    // Later additions: number boxes
    {MetinNo::SayıÇokBüyük, "Bu sayı çok büyük! \nGirebileceğiniz en büyük sayı:"},
    {MetinNo::BasamakÇokFazla,
     "Bu sayının basamakları çok fazla! \n"
     "Virgülden önce ve sonra, toplam en çok 15 basamak girebilirsiniz."},
    {MetinNo::SayıAlınmadı, "Bu metin bir sayı olmadığı veya çok uzun olduğu için alınmadı."},
    {MetinNo::MetinÇokUzun, "Bu metin çok uzun olduğu için alınmadı; en çok %1 harf olabilir."},

    // Later additions: renaming
    {MetinNo::MalzemelerEskiAdda,
     "Yeni ad ürünlere yazıldı, ancak kullanılan malzemelere yazılamadı! \n"
     "Malzemeler eski adda kaldı; onlara ulaşmak için eski adı geri verip yeniden deneyiniz. Eski ad:\n"},

    // Later additions: data file and backup at the start
    {MetinNo::YedekAlınamadı,
     "Bugünün yedeği alınamadı! \n"
     "Nedeni: %1\n\n"
     "Veri dosyanız: %2\n"
     "Yedeğin yeri: %3"},
    {MetinNo::SonYedekDuruyor,
     "Son yedeğinize dokunulmadı. Veri dosyanız zarar gördüyse programdan çıkıp ona başka bir ad verin; sonraki "
     "açılışta "
     "son yedek geri yüklenir."},
    {MetinNo::VeriBaşkaKopyada,
     "Veri dosyanız Varnek'in başka bir kopyasında açık; ikinci bir kopya başlayamaz! \n"
     "Lütfen, öbür oturumda açık olan programı kullanınız ya da kapatıp tekrar deneyiniz:"},
    {MetinNo::VeriSaltOkunur,
     "Veri dosyanız salt okunur; yapacağınız değişiklikler kaydedilemeyecek! \n"
     "Lütfen, bu dosyaya yazma izniniz olup olmadığını kontrol ediniz:"},
    {MetinNo::İlkDosyaOluşturulamadı,
     "İlk veri dosyanız oluşturulamadı; program başlayamıyor! \n"
     "Lütfen, diskte yer ve bu klasöre yazma izniniz olup olmadığını kontrol edip tekrar deneyiniz:"},
    {MetinNo::YedekGeriYüklemeSorusu,
     "Veri dosyanızda hiç kayıt yok, ama %1 tarihli son yedeğinizde kayıtlar var.\n\n"
     "Veri dosyanız: %2\n"
     "Yedeğiniz: %3\n\n"
     "Yedek geri yüklensin mi?\n\n"
     "Evet: Yedekteki kayıtlar geri gelir; boş dosya şu adla saklanır:\n%4\n"
     "Hayır: Boş dosyayla başlanır; yedeğiniz ayrıca şu adla saklanır:\n%5"},
    {MetinNo::YedeğinEşiSaklanamadı,
     "Yedeğinizin eşi saklanamadı! \n"
     "Boş veri dosyasına kayıt girmeden önce yedeğinizi kendiniz başka bir yere kopyalayınız:"},
    {MetinNo::BoştaYedekZararGörmüş,
     "Son yedeğiniz zarar görmüş; geri yüklenemedi ve program başlayamıyor! \n"
     "Dosyalarınıza dokunulmadı. Boş dosyayla başlamak için tekrar açıp soruyu \"Hayır\" ile yanıtlayabilirsiniz:"},
    {MetinNo::BoştaYedekGeriYüklenemedi,
     "Son yedeğiniz geri yüklenemedi; program başlayamıyor! \n"
     "Lütfen, diskte yeterince boş yer olup olmadığını kontrol edip tekrar deneyiniz:"},
    {MetinNo::BoştaYedekOkunamıyor, "Veri dosyanız boş ve son yedeğiniz okunamıyor; üzerine yazılmadı. %1"},
    {MetinNo::VeriYoluUzun,
     "Veri dosyanızın bulunduğu klasörün yolu çok uzun; program başlayamıyor! \n"
     "Lütfen, programı daha kısa yollu bir klasöre taşıyıp tekrar deneyiniz:"},
    {MetinNo::YedekYoluUzun, "Yedek klasörünün yolu çok uzun."},
    {MetinNo::BoştaYedekBozuk, "Veri dosyanız boş ve son yedeğiniz zarar görmüş; üzerine yazılmadı."},

    // Later additions: catalogue forms
    {MetinNo::SilinmişMalzeme, "Bu malzeme veri dosyasında artık yok; fiyatı değiştirilemez!"},
    {MetinNo::FiyatÜrünlerdeEski,
     "Yeni fiyat malzeme listesine yazıldı, ancak ürünlere yazılamadı! \n"
     "Lütfen, fiyat değişimini yeniden deneyiniz."},
    {MetinNo::FiyatKatalogdaEski,
     "Yeni fiyat ürünlere yazıldı, ancak malzeme listesine yazılamadı! \n"
     "Lütfen, fiyat değişimini yeniden deneyiniz."},
    {MetinNo::ÜrünlerdenSilinemedi,
     "Malzeme silindi, ancak ürünlerin listesinden çıkarılamadı! \n"
     "Çıkarmak için, listede bırakılan malzemeyi yeniden siliniz."},
    {MetinNo::MalzemeleriKaldı,
     "Ürün kaydı silindi, ancak kullanılan malzemeleri silinemedi! \n"
     "Silmek için, listede bırakılan satırı yeniden siliniz."},
    {MetinNo::Aktarılamayanlar, "Bu malzemeler ürüne aktarılamadı:"},

    // Later additions: about, error report, guide
    {MetinNo::ProgramınSimgesi, "Programın simgesi"},
    {MetinNo::SiteBağlantısı, "www.tovrek.example"},
    {MetinNo::PostaBağlantısı, "destek@tovrek.example"},
    {MetinNo::MesajSayfasıBağlantısı, "www.tovrek.example mesaj sayfası"},
    {MetinNo::KılavuzYok,
     "Kullanım kılavuzu bulunamadı! \n"
     "Kılavuz, programla birlikte gelen \"kilavuz\" klasöründe olmalıdır."},

    // Later additions: printouts
    {MetinNo::PdfKaydet, "PD&F Kaydet..."},
    {MetinNo::Önizleme, "Öni&zleme..."},
    {MetinNo::PdfFormuBaşlığı, "PDF Olarak Kaydet"},
    {MetinNo::PdfSüzgeci, "PDF Dosyaları (*.pdf)"},
    {MetinNo::ÜzerineYazmaSorusu, "Bu adda bir dosya var! Üzerine yazılsın mı?"},
    {MetinNo::PdfYazılamadı,
     "PDF dosyası yazılamadı! \n"
     "Lütfen, bu yere yazma izniniz ve diskte yeterince boş yer olup olmadığını kontrol edip tekrar deneyiniz:"},
    {MetinNo::ÖnizlemeBaşlığı, "Baskı Önizleme"},

    // Later additions: movements
    {MetinNo::TarihGeçersiz,
     "Bu tarih takvimde yok veya eksik yazılmış! Lütfen, günü, ayı ve yılı yazınız (örneğin 15.10.2026)."},
    {MetinNo::TutarÇokBüyük, "Tutarı çok büyük olduğu için hesaplanamadı."},
};

static_assert(Sıralı(Tablo));

}  // namespace

const char* AnaMetniBul(MetinNo numara) {
    return MetniBul(Tablo, numara);
}

QString Metin(MetinNo numara) {
    const char* metin = nullptr;
    for (const auto bul : Bulucular)
        if (!metin) metin = bul(numara);
    if (!metin) {
        Q_ASSERT_X(false, "Metin", "unknown text number");
        return QStringLiteral("?%1?").arg(static_cast<int>(numara));
    }
    return QString::fromUtf8(metin);
}
