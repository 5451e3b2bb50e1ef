// A new data file from the text files that disari-aktar wrote.
#include <QDate>
#include <QDir>
#include <QFileInfo>
#include <algorithm>
#include <cmath>

#include "Csv.h"
#include "Deyimler.h"
#include "Komut.h"
#include "SayiCozumu.h"
#include "Tablolar.h"
#include "TurkceMetin.h"
#include "Uc.h"
#include "Utf8.h"
#include "VeriDosyasi.h"

using namespace Qt::StringLiterals;

namespace {

constexpr std::size_t PARA_BASAMAĞI = 4;

// One of those that the forms write, and not only the program's records.
bool AnaTablo(const QString& tablo) {
    const QStringList bildirimler = Deyimler::TabloTakımları().constFirst();
    return std::any_of(bildirimler.begin(), bildirimler.end(),
                       [&tablo](const QString& bildirim) { return Deyimler::BildirilenTablo(bildirim) == tablo; });
}

// One table's file: its columns are found by their names in the first row.
class TabloAlıcı {
  public:
    TabloAlıcı(VeriYazıcısı& yazıcı, const QString& tablo, const QString& yol)
        : m_yazıcı(yazıcı), m_tablo(tablo), m_anaTablo(AnaTablo(tablo)), m_csv(yol) {}

    std::int64_t Al() {
        BaşlığıOku();
        İlerlemeSatırı ilerleme(m_tablo);
        std::int64_t sayı = 0;
        while (m_csv.Sıradaki(m_alanlar)) {
            if (m_alanlar.size() != static_cast<std::size_t>(m_sütunlar.size()))
                m_csv.Hata(u"%1 alan var, %2 olmalı"_s.arg(m_alanlar.size()).arg(m_sütunlar.size()));
            QStringList değerler;
            for (int i = 0; i < m_sütunlar.size(); ++i)
                değerler.append(Yazım(m_sütunlar[i], m_alanlar[static_cast<std::size_t>(i)]));
            const QString neden = m_yazıcı.Dene(m_ekle + değerler.join(u", "_s) + u')');
            if (!neden.isEmpty()) m_csv.Hata(neden);
            ilerleme.Bildir(++sayı);
        }
        return sayı;
    }

  private:
    void BaşlığıOku() {
        QList<OdbcSütunu> tanımlar = m_yazıcı.Sütunlar(m_tablo);
        if (!m_csv.Sıradaki(m_alanlar)) m_csv.Hata(u"dosya boş; ilk satırında sütun adları olmalı"_s);
        QStringList adlar;
        for (const std::string& alan : m_alanlar) {
            const QString ad = Utf8Metni(alan);
            const auto tanım = std::find_if(tanımlar.begin(), tanımlar.end(),
                                            [&ad](const OdbcSütunu& sütun) { return sütun.Ad == ad; });
            if (tanım == tanımlar.end())
                m_csv.Hata(
                    (adlar.contains(ad) ? u"\"%1\" sütunu iki kez var"_s : u"bilinmeyen sütun: \"%1\""_s).arg(ad));
            m_sütunlar.append(*tanım);
            adlar.append(ad);
            tanımlar.erase(tanım);
        }
        if (!tanımlar.isEmpty()) m_csv.Hata(u"eksik sütun: %1"_s.arg(tanımlar.constFirst().Ad));
        m_ekle = u"INSERT INTO %1 (%2) VALUES ("_s.arg(m_tablo, adlar.join(u", "_s));
    }

    QString Yazım(const OdbcSütunu& sütun, const std::string& alan) const {
        if (sütun.Tür == OdbcSütunTürü::Tarih) return Tarih(sütun, alan);
        sütun.Tür == OdbcSütunTürü::Metin ? AdıDenetle(sütun, alan) : SayıyıDenetle(sütun, alan);
        if (alan.find('\'') != std::string::npos) m_csv.Hata(u"%1: kesme işareti (') kullanılamaz"_s.arg(sütun.Ad));
        return u'\'' + Utf8Metni(alan) + u'\'';
    }

    // Names are shorter than their columns: of the last character the program would not know.
    void AdıDenetle(const OdbcSütunu& sütun, const std::string& alan) const {
        if (m_anaTablo && sütun.Ad != u"KullanilanMalzemeMiktari" && alan.size() > EN_UZUN_METİN &&
            Utf16Uzunluğu(alan) > EN_UZUN_METİN)
            m_csv.Hata(u"%1: ad %2 karakterden uzun"_s.arg(sütun.Ad).arg(EN_UZUN_METİN));
    }

    void SayıyıDenetle(const OdbcSütunu& sütun, const std::string& alan) const {
        const auto sayı = SayıÇöz(std::string_view(alan), NoktaKuralı::Yerinde, [](char) { return false; });
        if (!sayı) m_csv.Hata(u"%1: \"%2\" bir sayı değil"_s.arg(sütun.Ad, Utf8Metni(alan)));
        const std::string_view kesir = sayı->Kesir();
        if (sütun.Tür == OdbcSütunTürü::Para && kesir.find_last_not_of('0') != std::string_view::npos &&
            kesir.find_last_not_of('0') >= PARA_BASAMAĞI)
            m_csv.Hata(u"%1: \"%2\" dörtten çok ondalık basamak taşıyor"_s.arg(sütun.Ad, Utf8Metni(alan)));
        if (m_anaTablo && sütun.Tür == OdbcSütunTürü::Ondalık &&
            std::abs(EnYakınDouble(*sayı).value_or(HUGE_VAL)) > EN_BÜYÜK_YÜZDE)
            m_csv.Hata(u"%1: \"%2\" bir yüzde için çok büyük"_s.arg(sütun.Ad, Utf8Metni(alan)));
    }

    QString Tarih(const OdbcSütunu& sütun, const std::string& alan) const {
        const QDate tarih = QDate::fromString(Utf8Metni(alan), u"dd.MM.yyyy"_s);
        if (alan.size() != 10 || !tarih.isValid())
            m_csv.Hata(u"%1: \"%2\" gg.aa.yyyy biçiminde bir tarih değil"_s.arg(sütun.Ad, Utf8Metni(alan)));
        // Taken from the digits: a year below 1000 keeps its zeros.
        return u"#%1/%2/%3#"_s.arg(tarih.month()).arg(tarih.day()).arg(Utf8Metni(alan.substr(6)));
    }

    VeriYazıcısı& m_yazıcı;
    QString m_tablo;
    bool m_anaTablo;
    CsvDosyası m_csv;
    std::vector<std::string> m_alanlar;
    QList<OdbcSütunu> m_sütunlar;  // in the file's order
    QString m_ekle;
};

struct Alınacaklar {
    QStringList Bildirimler;
    QStringList Tablolar;
};

// Which tables the folder holds. A set of tables that is there in part would pass for whole.
Alınacaklar KlasöreBak(const QString& yol) {
    const QDir klasör(yol);
    if (!klasör.exists()) throw VeriHatası(u"%1 klasörü bulunamadı."_s.arg(yol));
    QStringList dosyalar = klasör.entryList(QDir::AllEntries | QDir::NoDotAndDotDot, QDir::Name);
    Alınacaklar alınacaklar;
    const QList<QStringList> takımlar = Deyimler::TabloTakımları();
    for (const QStringList& takım : takımlar) {
        QStringList olanlar;
        QString eksik;
        for (const QString& bildirim : takım) {
            const QString tablo = Deyimler::BildirilenTablo(bildirim);
            if (tablo.isEmpty()) continue;
            dosyalar.removeOne(tablo + u".csv"_s) ? olanlar.append(tablo) : void(eksik = tablo);
        }
        const bool ana = alınacaklar.Bildirimler.isEmpty();
        if (!eksik.isEmpty() && (ana || !olanlar.isEmpty()))
            throw VeriHatası(u"%1.csv bulunamadı: %2"_s.arg(eksik, yol));
        if (olanlar.isEmpty()) continue;
        alınacaklar.Bildirimler += takım;
        alınacaklar.Tablolar += olanlar;
    }
    if (!dosyalar.isEmpty())
        throw VeriHatası(
            u"%1: bu programın tablolarından birinin dosyası değil."_s.arg(klasör.filePath(dosyalar.constFirst())));
    return alınacaklar;
}

int İçeriAktar(const QStringList& sözler) {
    const QDir klasör(Sözler(sözler, 2)[0]);
    const Alınacaklar alınacaklar = KlasöreBak(sözler[0]);
    std::int64_t sayı = 0;
    VeriDosyasıYap(sözler[1], alınacaklar.Bildirimler, [&](VeriYazıcısı& yazıcı) {
        for (const QString& tablo : alınacaklar.Tablolar)
            sayı += TabloAlıcı(yazıcı, tablo, klasör.filePath(tablo + u".csv"_s)).Al();
    });
    Bildir(u"%1 oluşturuldu: %2 tablo, %3 satır."_s.arg(sözler[1]).arg(alınacaklar.Tablolar.size()).arg(sayı));
    return Tamam;
}

}  // namespace

const Komut İçeriAktarKomutu{
    u"iceri-aktar", u"KLASOR DOSYA", u"disari-aktar ile yazılan tablolardan yeni bir veri dosyası oluşturur",
    u"Sütunlar, ilk satırdaki adlarıyla bulunur; sıraları önemli değildir. Bilinmeyen bir dosya ya da sütun, eksik\n"
    u"bir tablo ve programın saklamadığı bir değer (254 karakterden uzun bir ad, 10^15'ten büyük bir yüzde gibi),\n"
    u"dosya ve satır numarasıyla bildirilir; o zaman hiçbir şey oluşturulmaz.\n"
    u"Var olan bir dosyanın üzerine yazılmaz.\n\n"
    u"Çıkış kodu: 0 başarılı, 1 okunamadı ya da oluşturulamadı (geride bir şey kalmaz), 2 yanlış kullanım",
    İçeriAktar};
