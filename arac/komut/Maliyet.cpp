// Every product's cost, as the main form shows it.
#include <array>
#include <optional>

#include "CsvYazimi.h"
#include "Komut.h"
#include "MaliyetTablosu.h"
#include "Okunan.h"
#include "SayiMetni.h"
#include "Uc.h"
#include "VeriDosyasi.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int EN_ÇOK_BASAMAK = 6;
constexpr const char* SÜTUNLAR[] = {"UrunGrubu", "UrunAdi", "MalzemeMaliyeti", "Iscilik", "Kar",
                                    "Diger",     "Vade",    "Toplam"};
constexpr std::size_t AD_SÜTUNU = 2;  // the first so many are texts

struct Seçenekler {
    QString Dosya;
    int Basamak = 2;
    bool Json = false;
};

Seçenekler SözleriOku(const QStringList& sözler) {
    Seçenekler seçenekler;
    QStringList dosyalar;
    for (qsizetype i = 0; i < sözler.size(); ++i) {
        const QString ad = sözler[i].section(u'=', 0, 0);
        if (ad != u"--basamak" && ad != u"--bicim") {
            dosyalar.append(sözler[i]);
            continue;
        }
        const QString değer = sözler[i].contains(u'=') ? sözler[i].section(u'=', 1) : sözler.value(++i);
        if (ad == u"--basamak") {
            const bool tek = değer.size() == 1 && değer[0] >= u'1' && değer[0].unicode() <= u'0' + EN_ÇOK_BASAMAK;
            if (!tek) throw KullanımHatası(u"--basamak 1 ile 6 arasında bir sayıdır."_s);
            seçenekler.Basamak = değer.toInt();
        } else {
            if (değer != u"csv" && değer != u"json") throw KullanımHatası(u"--bicim csv ya da json olur."_s);
            seçenekler.Json = değer == u"json";
        }
    }
    seçenekler.Dosya = Sözler(dosyalar, 1)[0];
    return seçenekler;
}

// Without group dots; empty where there is none, as the form leaves its box empty.
std::string Tutar(const std::optional<QString>& metin) {
    return metin.value_or(QString()).remove(u'.').toStdString();
}

std::array<std::string, std::size(SÜTUNLAR)> Hücreler(const MaliyetTablosuSatırı& satır, int basamak) {
    std::array<std::string, std::size(SÜTUNLAR)> hücreler{satır.Grup.toStdString(), satır.Ad.toStdString(),
                                                          Tutar(SayıBiçimle(satır.MalzemeMaliyeti, basamak))};
    std::size_t yer = AD_SÜTUNU + 1;
    for (const std::optional<double>& tutar : satır.Tutarlar)
        hücreler[yer++] = Tutar(tutar ? SayıBiçimle(*tutar, basamak) : std::nullopt);
    hücreler[yer] = Tutar(SayıBiçimle(satır.Toplam, basamak));
    return hücreler;
}

std::string JsonMetni(const std::string& metin) {
    std::string json = "\"";
    for (const char harf : metin) {
        if (harf == '"' || harf == '\\')
            json.append(1, '\\').append(1, harf);
        else if (static_cast<unsigned char>(harf) < 0x20)
            json += u"\\u%1"_s.arg(int{harf}, 4, 16, QChar(u'0')).toStdString();
        else
            json += harf;
    }
    return json + '"';
}

std::string JsonSayısı(std::string sayı) {
    if (sayı.empty()) return "null";
    if (const std::size_t virgül = sayı.find(','); virgül != std::string::npos) sayı[virgül] = '.';
    return sayı;
}

void CsvYaz(const std::vector<MaliyetTablosuSatırı>& satırlar, int basamak) {
    std::string metin;
    for (const char* sütun : SÜTUNLAR) (metin += metin.empty() ? "" : ";") += sütun;
    ÇıktıYaz(metin + '\n');
    for (const MaliyetTablosuSatırı& satır : satırlar) {
        metin.clear();
        for (const std::string& hücre : Hücreler(satır, basamak)) {
            CsvAlanıEkle(metin, hücre);
            metin += CsvAyracı;
        }
        metin.back() = '\n';
        ÇıktıYaz(metin);
        YarıdaKesildiMi();
    }
}

void JsonYaz(const std::vector<MaliyetTablosuSatırı>& satırlar, int basamak) {
    std::string_view ara = "[";
    for (const MaliyetTablosuSatırı& satır : satırlar) {
        const auto hücreler = Hücreler(satır, basamak);
        std::string metin(ara);
        for (std::size_t i = 0; i < hücreler.size(); ++i) {
            metin.append(i == 0 ? "\n{\"" : ", \"").append(SÜTUNLAR[i]).append("\": ");
            metin += i < AD_SÜTUNU ? JsonMetni(hücreler[i]) : JsonSayısı(hücreler[i]);
        }
        ÇıktıYaz(metin + '}');
        YarıdaKesildiMi();
        ara = ",";
    }
    ÇıktıYaz(satırlar.empty() ? "[]\n" : "\n]\n");
}

int Maliyet(const QStringList& sözler) {
    const Seçenekler seçenekler = SözleriOku(sözler);
    OkunanDosya dosya(seçenekler.Dosya);
    std::vector<MaliyetTablosuSatırı> satırlar;
    {
        İlerlemeSatırı ilerleme(u"Maliyetler hesaplanıyor"_s);
        Denetle(MaliyetTablosunuOku(dosya.Bağlantı(), seçenekler.Basamak, satırlar, [&](std::int64_t okunan) {
            ilerleme.Bildir(okunan);
            return true;
        }));
    }
    seçenekler.Json ? JsonYaz(satırlar, seçenekler.Basamak) : CsvYaz(satırlar, seçenekler.Basamak);
    return Tamam;
}

}  // namespace

const Komut MaliyetKomutu{
    u"maliyet", u"DOSYA [--basamak N] [--bicim csv|json]", u"her ürünün maliyetini programın gösterdiği gibi yazar",
    u"  --basamak N   ondalık basamak sayısı, 1 ile 6 arasında (verilmezse 2)\n"
    u"  --bicim B     csv (verilmezse) ya da json\n\n"
    u"CSV: ayraç ;, ondalık virgül, binlik ayracı yok; ilk satırı sütun adlarıdır:\n"
    u"UrunGrubu;UrunAdi;MalzemeMaliyeti;Iscilik;Kar;Diger;Vade;Toplam\n"
    u"Malzeme maliyeti ve toplam ana formun, dört tutar Maliyet Tutarları formunun gösterdiğidir; kuruş\n"
    u"yuvarlamaları yüzünden toplamları biraz farklı olabilir. Hesaplanamayan bir tutar boştur (json: null).\n"
    u"Ürünler ağaçtaki sıradadır. DOSYA değişmez, program açıkken de okunur.\n\n"
    u"Çıkış kodu: 0 başarılı, 1 okunamadı ya da yazılamadı, 2 yanlış kullanım",
    Maliyet};
