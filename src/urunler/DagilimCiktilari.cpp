#include "DagilimCiktilari.h"

#include <QGuiApplication>
#include <QPainter>
#include <algorithm>

#include "ListeCizelgesi.h"
#include "MetinTablosu.h"
#include "SayfaDuzeni.h"
#include "UrunMetinleri.h"

namespace {

constexpr double BİRİM_MİLİMETRE = 25.4 / 96;  // the plots' unit
constexpr double SAYFADA_SATIR = 16;           // of a plot, in that unit
constexpr double ŞEKİL_ARASI = 4;              // millimetres
constexpr double SAYFA_PAYI = 35;              // millimetres that a plot leaves of a small page

constexpr int RESİM_GENİŞLİĞİ = 900;  // in the plots' unit
constexpr int RESİM_KENARI = 20;
constexpr int RESİM_ÖLÇEĞİ = 2;  // pixels of a unit
constexpr int RESİM_YAZISI = 13;

void ŞekliYaz(SayfaDüzeni& düzen, const ÇubukDizisi& dizi) {
    SayfaYüzeyi& yüzey = düzen.Yüzey();
    const double boy = std::min(ÇubuklarınBoyu(dizi, SAYFADA_SATIR) * BİRİM_MİLİMETRE,
                                static_cast<double>(düzen.SayfaYüksekliği()) - SAYFA_PAYI);
    yüzey.YAyarla(yüzey.Y() + ŞEKİL_ARASI);
    düzen.SayfaSonunaBak(boy + ŞEKİL_ARASI);
    const double sol = düzen.SütunKonumu(0);
    yüzey.XAyarla(sol);
    yüzey.Şekil({yüzey.Genişlik() - 2 * sol, boy},
                [&dizi](QPainter& boyacı, const QRectF& alan) { ÇubuklarıÇiz(boyacı, alan, dizi, KâğıtPaleti()); });
    yüzey.YAyarla(yüzey.Y() + boy + ŞEKİL_ARASI);
}

void SatırlarıYaz(SayfaDüzeni& düzen, const DağılımKaynağı& kaynak) {
    for (const DağılımSatırı& satır : kaynak.Satırlar) {
        const auto hücre = [&satır](DağılımSütunu sütun) { return DağılımKaynağı::Hücre(satır, sütun); };
        QString ad = satır.Ad;
        if (!satır.Miktar.isEmpty()) ad += QStringLiteral(" – ") + satır.Miktar;
        düzen.SatırYaz({ad, hücre(DağılımSütunu::Tutar), hücre(DağılımSütunu::Pay), hücre(DağılımSütunu::Birikimli)});
    }
}

void Ekle(QList<ÇizelgeDeğeri>& değerler, const std::optional<Ondalık>& sayı) {
    sayı ? değerler.emplaceBack(*sayı) : değerler.emplaceBack();
}

}  // namespace

void DağılımıYaz(SayfaYüzeyi& yüzey, const QString& başlık, const ÜrünDağılımı& dağılım) {
    SayfaDüzeni düzen(yüzey, başlık,
                      {{ÜrünMetni::KalemSütunu, 13.5, HücreTürü::Metin},
                       {MetinNo::TutarıSütunu, 1.8, HücreTürü::Sayı},
                       {ÜrünMetni::PaySütunu, 1.42, HücreTürü::Sayı},
                       {ÜrünMetni::BirikimliPaySütunu, 1.24, HücreTürü::Sayı}});
    if (!düzen.Başla()) return;
    SatırlarıYaz(düzen, dağılım.Kalemler);
    ŞekliYaz(düzen, dağılım.KalemGrafiği);
    ŞekliYaz(düzen, dağılım.MalzemeGrafiği);
    SatırlarıYaz(düzen, dağılım.Malzemeler);
    düzen.Bitir();
}

QImage DağılımResmi(const QString& başlık, const ÜrünDağılımı& dağılım) {
    QFont yazı = QGuiApplication::font();
    yazı.setPixelSize(RESİM_YAZISI);
    QFont başlıkYazısı = yazı;
    başlıkYazısı.setPixelSize(RESİM_YAZISI * 3 / 2);
    başlıkYazısı.setBold(true);
    constexpr int bayraklar = Qt::AlignHCenter | Qt::TextWordWrap | Qt::TextWrapAnywhere;
    constexpr double genişlik = RESİM_GENİŞLİĞİ - 2 * RESİM_KENARI;
    const double satır = QFontMetricsF(yazı).height();
    QRectF alan = QFontMetricsF(başlıkYazısı).boundingRect(QRectF(0, 0, genişlik, 1e6), bayraklar, başlık);
    alan = QRectF(RESİM_KENARI, RESİM_KENARI, genişlik, alan.height() + 1);
    double boy = alan.bottom() + RESİM_KENARI;
    for (const ÇubukDizisi* dizi : {&dağılım.KalemGrafiği, &dağılım.MalzemeGrafiği})
        boy += ÇubuklarınBoyu(*dizi, satır) + RESİM_KENARI;
    QImage resim(RESİM_GENİŞLİĞİ * RESİM_ÖLÇEĞİ, static_cast<int>(boy * RESİM_ÖLÇEĞİ), QImage::Format_RGB32);
    resim.fill(Qt::white);
    QPainter boyacı(&resim);
    boyacı.scale(RESİM_ÖLÇEĞİ, RESİM_ÖLÇEĞİ);
    boyacı.setFont(başlıkYazısı);
    boyacı.setPen(Qt::black);
    boyacı.drawText(alan, bayraklar, başlık);
    boyacı.setFont(yazı);
    double y = alan.bottom() + RESİM_KENARI;
    for (const ÇubukDizisi* dizi : {&dağılım.KalemGrafiği, &dağılım.MalzemeGrafiği}) {
        alan = QRectF(RESİM_KENARI, y, genişlik, ÇubuklarınBoyu(*dizi, satır));
        ÇubuklarıÇiz(boyacı, alan, *dizi, KâğıtPaleti());
        y = alan.bottom() + RESİM_KENARI;
    }
    return resim;
}

YazmaSonucu DağılımıÇizelgeyeYaz(const QString& yol, const QString& başlık, const ÜrünDağılımı& dağılım, int basamak) {
    QList<ÇizelgeSütunu> sütunlar{{Metin(MetinNo::TürSütunu), 12}, {Metin(ÜrünMetni::KalemSütunu), 34}};
    MiktarSütunlarıEkle(sütunlar, Metin(MetinNo::MiktarıSütunu));
    sütunlar.append({Metin(MetinNo::TutarıSütunu), 18, ÇizelgeSütunTürü::Para, basamak});
    sütunlar.append({Metin(ÜrünMetni::PaySütunu), 12, ÇizelgeSütunTürü::Yüzde, 2});
    sütunlar.append({Metin(ÜrünMetni::BirikimliPaySütunu), 18, ÇizelgeSütunTürü::Yüzde, 2});
    ÇizelgeYazıcı yazıcı(yol, başlık, sütunlar);
    YazmaSonucu sonuç = yazıcı.Aç();
    for (const auto& [tür, kaynak] : {std::pair(ÜrünMetni::ToplamSütunu, &dağılım.Kalemler),
                                      std::pair(MetinNo::MalzemeSütunu, &dağılım.Malzemeler)}) {
        for (const DağılımSatırı& satır : kaynak->Satırlar) {
            if (!sonuç.Tamam()) return sonuç;
            QList<ÇizelgeDeğeri> değerler;
            for (const QString& metin : {Metin(tür), satır.Ad}) değerler.emplaceBack(metin);
            MiktarEkle(değerler, satır.SaklananMiktar);
            Ekle(değerler, satır.Parça.Tutar);
            Ekle(değerler, GösterilenPay(satır.Parça.Pay));
            Ekle(değerler, GösterilenPay(satır.Birikimli));
            sonuç = yazıcı.SatırEkle(değerler);
        }
    }
    return sonuç.Tamam() ? yazıcı.Bitir() : sonuç;
}
