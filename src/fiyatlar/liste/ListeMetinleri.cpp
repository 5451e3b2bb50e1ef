#include "ListeMetinleri.h"

#include <QLocale>

#include "MetinTablosu.h"

namespace {

QString OkunamazMetni(const ListeSatırı& satır) {
    switch (satır.Fiyat.Neden) {
        case OkunamazNedeni::Tarih:
            return Metin(MetinNo::HücreTarih);
        case OkunamazNedeni::Yüzde:
            return Metin(MetinNo::HücreYüzde);
        case OkunamazNedeni::BaşkaPara:
            return Metin(MetinNo::HücreBaşkaPara).arg(satır.FiyatHücresi.ParaBirimi).simplified();
        case OkunamazNedeni::Mantıksal:
            return Metin(MetinNo::HücreMantıksal);
        case OkunamazNedeni::Hata:
            return Metin(MetinNo::HücreHata);
        case OkunamazNedeni::Hesapsız:
            return Metin(MetinNo::HücreHesapsız);
        case OkunamazNedeni::Eksi:
            return Metin(MetinNo::HücreEksi);
        case OkunamazNedeni::Bozuk:
        case OkunamazNedeni::Anlaşılmadı:
        case OkunamazNedeni::Yok:
            break;
    }
    return Metin(MetinNo::HücreAnlaşılmadı);
}

MetinNo DurumAdı(ListeDurumu durum) {
    switch (durum) {
        case ListeDurumu::Eşleşti:
            return MetinNo::ListeBağlı;
        case ListeDurumu::Yeni:
            return MetinNo::ListeYeni;
        case ListeDurumu::Çakışıyor:
            return MetinNo::NedenÇakışıyor;
        case ListeDurumu::Yinelenen:
            return MetinNo::ListeYinelenen;
        case ListeDurumu::Belirsiz:
            return MetinNo::ListeBelirsiz;
        case ListeDurumu::BağKopuk:
            return MetinNo::ListeBağKopuk;
        case ListeDurumu::Kuşkulu:
            return MetinNo::ListeKuşkulu;
        case ListeDurumu::FiyatSıfır:
            return MetinNo::NedenSıfırYaDaAltı;
        case ListeDurumu::AdOkunamaz:
            return MetinNo::ListeAdOkunamaz;
        case ListeDurumu::AdYok:
            return MetinNo::ListeAdYok;
        case ListeDurumu::AdUzun:
            return MetinNo::ListeAdUzun;
        case ListeDurumu::FiyatBüyük:
        case ListeDurumu::FiyatOkunamaz:
            break;
    }
    return MetinNo::NedenÇokBüyük;
}

}  // namespace

QString OkumaHatası(const OkumaSonucu& sonuç) {
    const QLocale yerel(QLocale::Turkish, QLocale::Turkey);
    switch (sonuç.Hata) {
        case ÇizelgeHatası::Açılamadı:
            return Metin(MetinNo::DosyaAçılamadı).arg(sonuç.Ayrıntı);
        case ÇizelgeHatası::BoşDosya:
            return Metin(MetinNo::DosyaBoş);
        case ÇizelgeHatası::EskiBiçim:
            return Metin(MetinNo::DosyaEskiBiçim);
        case ÇizelgeHatası::Şifreli:
            return Metin(MetinNo::DosyaŞifreli);
        case ÇizelgeHatası::TanınmayanTür:
            return Metin(MetinNo::DosyaTanınmadı);
        case ÇizelgeHatası::BozukArşiv:
        case ÇizelgeHatası::BozukXml:
            return Metin(MetinNo::DosyaBozuk).arg(sonuç.Ayrıntı).trimmed();
        case ÇizelgeHatası::ÇokSatır:
            return Metin(MetinNo::DosyaÇokSatır).arg(yerel.toString(EnÇokSatır));
        case ÇizelgeHatası::ÇokSütun:
            return Metin(MetinNo::DosyaÇokSütun).arg(sonuç.SatırNo).arg(EnÇokSütun);
        case ÇizelgeHatası::ÇokBüyük:
            return Metin(MetinNo::DosyaÇokBüyük).arg(EnÇokBayt >> 20);
        case ÇizelgeHatası::KapanmayanTırnak:
            return Metin(MetinNo::DosyaTırnak).arg(sonuç.SatırNo);
        case ÇizelgeHatası::SayfaYok:
            return Metin(MetinNo::DosyaSayfaYok);
        case ÇizelgeHatası::Yok:
        case ÇizelgeHatası::Durduruldu:
            break;
    }
    return {};
}

QString DurumMetni(const ListeSatırı& satır) {
    QStringList metin;
    if (satır.Gizli) metin.append(Metin(MetinNo::ListeGizli));
    if (satır.Durum == ListeDurumu::Çakışıyor && satır.YeniMi()) metin.append(Metin(MetinNo::ListeYeni));
    if (satır.Durum == ListeDurumu::FiyatOkunamaz)
        metin.append(OkunamazMetni(satır));
    else if (satır.Durum != ListeDurumu::Eşleşti || satır.Bağlı)
        metin.append(Metin(DurumAdı(satır.Durum)));
    return metin.join(QStringLiteral("; "));
}

QString SütunHarfi(int sütun) {
    constexpr int harfSayısı = 26;
    QString harfler;
    for (int kalan = sütun; kalan >= 0; kalan = kalan / harfSayısı - 1)
        harfler.prepend(QChar(static_cast<char16_t>(u'A' + kalan % harfSayısı)));
    return harfler;
}
