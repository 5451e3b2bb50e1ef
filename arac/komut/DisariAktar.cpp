// Every table as a text file.
#include <QDir>
#include <QFileInfo>
#include <QSaveFile>
#include <QTemporaryDir>
#include <array>
#include <charconv>

#include "CsvYazimi.h"
#include "GeciciDosya.h"
#include "Komut.h"
#include "Okunan.h"
#include "Tablolar.h"
#include "Uc.h"
#include "VeriDosyasi.h"

using namespace Qt::StringLiterals;

namespace {

std::string Yol(const QString& yol) {
    return QFile::encodeName(yol).toStdString();
}

// As the driver writes it ("1250.5", "1e-20"): in full, with a decimal comma.
void SayıEkle(std::string& satır, std::string_view sayı) {
    std::array<char, 1100> tampon;  // more than any double needs
    if (sayı.find('e') != std::string_view::npos) {
        double değer = 0;
        std::from_chars(sayı.data(), sayı.data() + sayı.size(), değer);
        const auto son = std::to_chars(tampon.data(), tampon.data() + tampon.size(), değer, std::chars_format::fixed);
        sayı = {tampon.data(), static_cast<std::size_t>(son.ptr - tampon.data())};
    }
    const std::size_t baş = satır.size();
    satır += sayı;
    if (const std::size_t nokta = satır.find('.', baş); nokta != std::string::npos) satır[nokta] = ',';
}

// "yyyy-mm-dd 00:00:00" as gg.aa.yyyy.
void TarihEkle(std::string& satır, std::string_view tarih) {
    if (tarih.size() < 10) return;
    satır.append(tarih.substr(8, 2))
        .append(1, '.')
        .append(tarih.substr(5, 2))
        .append(1, '.')
        .append(tarih.substr(0, 4));
}

void DeğerEkle(std::string& satır, OdbcSütunTürü tür, std::string_view değer) {
    switch (tür) {
        case OdbcSütunTürü::Metin:
            return CsvAlanıEkle(satır, değer);
        case OdbcSütunTürü::Para:
        case OdbcSütunTürü::Ondalık:
            return SayıEkle(satır, değer);
        case OdbcSütunTürü::Tarih:
            return TarihEkle(satır, değer);
    }
}

void TabloyuYaz(OdbcBağlantısı& bağlantı, const QString& tablo, const QString& yol) {
    constexpr std::size_t parça = 1 << 16;
    QList<OdbcSütunu> sütunlar;
    Denetle(bağlantı.Sütunlar(tablo, sütunlar));
    QSaveFile dosya(yol);
    std::string birikmiş(CsvBaşı);
    const auto boşalt = [&] {
        if (dosya.write(birikmiş.data(), static_cast<qint64>(birikmiş.size())) < 0)
            throw VeriHatası(u"%1 yazılamadı: %2"_s.arg(tablo, dosya.errorString()));
        birikmiş.clear();
    };
    if (!dosya.open(QIODevice::WriteOnly)) throw VeriHatası(u"%1 yazılamadı: %2"_s.arg(tablo, dosya.errorString()));
    for (int i = 0; i < sütunlar.size(); ++i) {
        if (i > 0) birikmiş += CsvAyracı;
        birikmiş += sütunlar[i].Ad.toStdString();
    }
    birikmiş += CsvSatırSonu;
    İlerlemeSatırı ilerleme(tablo);
    std::int64_t sayı = 0;
    Denetle(bağlantı.Oku(u"SELECT * FROM "_s + tablo, [&](OdbcSatırı& satır) {
        for (int i = 0; i < sütunlar.size(); ++i) {
            if (i > 0) birikmiş += CsvAyracı;
            DeğerEkle(birikmiş, sütunlar[i].Tür, satır.Baytlar(i + 1).value_or(std::string_view()));
        }
        birikmiş += CsvSatırSonu;
        if (birikmiş.size() >= parça) boşalt();
        ilerleme.Bildir(++sayı);
        return true;
    }));
    boşalt();
    if (!dosya.flush() || !dosya.commit()) throw VeriHatası(u"%1 yazılamadı: %2"_s.arg(tablo, dosya.errorString()));
}

// Names it can be brought back under; what the program does not know it writes as well, and says so.
QStringList TablolarıYaz(OdbcBağlantısı& bağlantı, const QDir& klasör) {
    QStringList bilinenler;
    for (const QStringList& takım : Deyimler::TabloTakımları())
        for (const QString& bildirim : takım) bilinenler.append(Deyimler::BildirilenTablo(bildirim));
    QStringList tablolar;
    Denetle(bağlantı.Tablolar(tablolar));
    for (const QString& tablo : std::as_const(tablolar)) {
        TabloyuYaz(bağlantı, tablo, klasör.filePath(tablo + u".csv"_s));
        if (!bilinenler.contains(tablo))
            Bildir(
                u"Dikkat: %1 bu programın bildiği bir tablo değil; yazıldı, ama iceri-aktar onu almaz."_s.arg(tablo));
    }
    return tablolar;
}

// A folder that is there stays itself: the files come into it one by one, all of them or none.
void DosyalarıTaşı(const QDir& kaynak, const QString& klasör, const QStringList& tablolar) {
    QStringList taşınanlar;
    for (const QString& tablo : tablolar) {
        const QString ad = tablo + u".csv"_s;
        const QString hedef = klasör + u'/' + ad;
        if (Dosya::Taşı(Yol(kaynak.filePath(ad)), Yol(hedef), Dosya::Yerleştirme::Yeni).Yapıldı()) {
            taşınanlar.append(hedef);
            continue;
        }
        for (const QString& taşınan : std::as_const(taşınanlar)) QFile::remove(taşınan);
        throw VeriHatası(u"%1 adı verilemedi; klasörü ve diski denetleyin."_s.arg(hedef));
    }
}

int DışarıAktar(const QStringList& sözler) {
    const QString klasör = QFileInfo(Sözler(sözler, 2)[1]).absoluteFilePath();
    const QFileInfo bilgi(klasör);
    const bool var = bilgi.exists() || bilgi.isSymLink();
    if (var && (!bilgi.isDir() ||
                !QDir(klasör).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot)))
        throw VeriHatası(u"%1 zaten var ve boş bir klasör değil; üzerine yazılmaz."_s.arg(klasör));
    OkunanDosya dosya(sözler[0]);
    QTemporaryDir geçici(var ? klasör + u"/.yapiliyor-XXXXXX"_s : klasör + u".yapiliyor-XXXXXX"_s);
    if (!geçici.isValid())
        throw VeriHatası(u"%1 klasörüne yazılamıyor; yazma iznini ve diski denetleyin."_s.arg(klasör));
    const QStringList tablolar = TablolarıYaz(dosya.Bağlantı(), QDir(geçici.path()));
    YarıdaKesildiMi();
    if (var) {
        DosyalarıTaşı(QDir(geçici.path()), klasör, tablolar);
    } else {
        if (!Dosya::Taşı(Yol(geçici.path()), Yol(klasör), Dosya::Yerleştirme::Yeni).Yapıldı())
            throw VeriHatası(u"%1 adı verilemedi; klasörü ve diski denetleyin."_s.arg(klasör));
        geçici.setAutoRemove(false);
    }
    Bildir(u"%1 tablo %2 klasörüne yazıldı."_s.arg(tablolar.size()).arg(klasör));
    return Tamam;
}

}  // namespace

const Komut DışarıAktarKomutu{
    u"disari-aktar", u"DOSYA KLASOR", u"her tabloyu bir CSV dosyası olarak yazar",
    u"Her tablo KLASOR içinde kendi adıyla bir dosya olur: UTF-8 (BOM ile), ayraç ;, satır sonu CRLF, ondalık\n"
    u"virgül, tarihler gg.aa.yyyy, sayılar bütün basamaklarıyla, satırlar saklandıkları sırada.\n"
    u"KLASOR yoksa oluşturulur; varsa boş olmalıdır. DOSYA değişmez, program açıkken de okunur.\n\n"
    u"Çıkış kodu: 0 başarılı, 1 okunamadı ya da yazılamadı (geride bir şey kalmaz), 2 yanlış kullanım",
    DışarıAktar};
