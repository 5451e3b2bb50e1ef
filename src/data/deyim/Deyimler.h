#pragma once

#include <QDate>
#include <QString>

// The text of every statement that the program issues. Texts and numbers go between single quotes as they are; nothing
// is escaped: a name with a single quote makes its statement fail. Dates are date literals (#3/7/2004#).
namespace Deyimler {

QString Tarih(QDate tarih);  // #month/day/year#

// Products and groups
QString ÜrünSayısı();
QString ÜrünAğacı();
QString ÜrünListesiRaporu();
QString ÜrünGrupları();
QString ÜrünVarMı(const QString& grup, const QString& ürün);
QString ÜrünAdıVarMı(const QString& grup, const QString& ürün);  // before a rename in the tree
QString ÜrünEkle(const QString& grup, const QString& ürün);
QString GrubuSil(const QString& grup);
QString GrubunMalzemeleriniSil(const QString& grup);
QString ÜrünüSil(const QString& grup, const QString& ürün);
QString ÜrününMalzemeleriniSil(const QString& grup, const QString& ürün);
QString GrupAdınıDeğiştir(const QString& eski, const QString& yeni);
QString MalzemelerdeGrupAdınıDeğiştir(const QString& eski, const QString& yeni);
QString ÜrünAdınıDeğiştir(const QString& grup, const QString& eski, const QString& yeni);
QString MalzemelerdeÜrünAdınıDeğiştir(const QString& grup, const QString& eski, const QString& yeni);

// Percentages of a product
QString Yüzdeler(const QString& grup, const QString& ürün);
QString YüzdeleriKaydet(const QString& işçilik, const QString& kâr, const QString& diğer, const QString& vade,
                        const QString& grup, const QString& ürün);

// The material catalogue
QString MalzemeSayısı();
QString MalzemeListesi();
QString MalzemeKataloğuRaporu();
QString MalzemeVarMı(const QString& malzeme);
QString MalzemeVeFiyatı(const QString& malzeme);
QString MalzemeFiyatı(const QString& malzeme);
QString MalzemeEkle(const QString& malzeme, const QString& fiyat);
QString MalzemeSil(const QString& malzeme);
QString FiyatDeğiştir(const QString& malzeme, const QString& fiyat);

// Materials that the products use
struct KullanılanMalzeme {
    QString Grup;
    QString Ürün;
    QString Malzeme;
    QString Miktar;  // number, one blank, unit
    QString Fiyat;
    QString Tarih;  // date literal
};
QString KullanılanMalzemeSayısı();  // over all products
QString KullanılanMalzemeler(const QString& grup, const QString& ürün);
QString KullanılanMalzemeEkle(const KullanılanMalzeme& satır);
QString KullanılanMalzemeDeğiştir(const KullanılanMalzeme& satır);
QString KullanılanMalzemeÇıkar(const QString& grup, const QString& ürün, const QString& malzeme);
QString MalzemeyiÜrünlerdenSil(const QString& malzeme);
QString ÜrünlerdeFiyatDeğiştir(const QString& malzeme, const QString& fiyat);
QString GününHareketleri(const QString& tarih);

}  // namespace Deyimler
