#include "TedarikciDeyimleri.h"

#include "DeyimParcalari.h"
#include "FiyatDeyimleri.h"

namespace Deyimler::Tedarikçi {

namespace {

const QString SÜTUNLAR = QStringLiteral(
    "Tedarikci, Sayfa, BaslikSatiri, AdSutunu, FiyatSutunu, AdBasligi, FiyatBasligi, Ondalik, Ayrac, Iskonto, "
    "YuvarlamaAdimi, YuvarlamaYonu");

QString Tutar(Para tutar) {
    return Tırnakla(SaklanacakSayı(tutar));
}

}  // namespace

QStringList TablolarıOluştur() {
    return {
        QStringLiteral("CREATE TABLE TedarikciTablosu (Tedarikci TEXT(255) NOT NULL, Sayfa TEXT(255) NOT NULL, "
                       "BaslikSatiri DOUBLE NOT NULL, AdSutunu DOUBLE NOT NULL, FiyatSutunu DOUBLE NOT NULL, "
                       "AdBasligi TEXT(255) NOT NULL, FiyatBasligi TEXT(255) NOT NULL, Ondalik TEXT(1) NOT NULL, "
                       "Ayrac TEXT(1) NOT NULL, Iskonto CURRENCY NOT NULL, YuvarlamaAdimi CURRENCY NOT NULL, "
                       "YuvarlamaYonu DOUBLE NOT NULL)"),
        QStringLiteral("CREATE UNIQUE INDEX TedarikciSirasi ON TedarikciTablosu (Tedarikci)"),
        QStringLiteral("CREATE TABLE TedarikciBagiTablosu (Tedarikci TEXT(255) NOT NULL, ListeAdi TEXT(255) NOT NULL, "
                       "MalzemeAdi TEXT(255) NOT NULL, Bolen CURRENCY NOT NULL)"),
        QStringLiteral("CREATE UNIQUE INDEX TedarikciBagiSirasi ON TedarikciBagiTablosu (Tedarikci, ListeAdi)"),
    };
}

QString Tedarikçiler() {
    return QStringLiteral("SELECT ") + SÜTUNLAR + QStringLiteral(" FROM TedarikciTablosu ORDER BY Tedarikci ASC");
}

QString TedarikçiEkle(const Tedarikçi& t) {
    return QStringLiteral("INSERT INTO TedarikciTablosu (") + SÜTUNLAR + QLatin1Char(')') +
           Değerler({Tırnakla(t.Ad), Tırnakla(SaklanacakMetin(t.Sayfa)), Numara(t.BaşlıkSatırı), Numara(t.AdSütunu),
                     Numara(t.FiyatSütunu), Tırnakla(SaklanacakMetin(t.AdBaşlığı)),
                     Tırnakla(SaklanacakMetin(t.FiyatBaşlığı)), Tırnakla(t.Ondalık), Tırnakla(t.Ayraç),
                     Tutar(t.İskonto), Tutar(t.YuvarlamaAdımı), Numara(t.YuvarlamaYönü)});
}

QString TedarikçiSil(const QString& ad) {
    return QStringLiteral("DELETE FROM TedarikciTablosu WHERE Tedarikci= ") + Tırnakla(ad);
}

QString Bağlar(const QString& tedarikçi) {
    return QStringLiteral("SELECT ListeAdi, MalzemeAdi, Bolen FROM TedarikciBagiTablosu WHERE Tedarikci= ") +
           Tırnakla(tedarikçi);
}

QString BağEkle(const QString& tedarikçi, const Bağ& bağ) {
    return QStringLiteral("INSERT INTO TedarikciBagiTablosu (Tedarikci, ListeAdi, MalzemeAdi, Bolen)") +
           Değerler({Tırnakla(tedarikçi), Tırnakla(bağ.ListeAdı), Tırnakla(bağ.Malzeme), Tutar(bağ.Bölen)});
}

QString BağSil(const QString& tedarikçi, const QString& listeAdı) {
    return QStringLiteral("DELETE FROM TedarikciBagiTablosu WHERE Tedarikci= ") + Tırnakla(tedarikçi) +
           QStringLiteral(" AND ListeAdi= ") + Tırnakla(listeAdı);
}

}  // namespace Deyimler::Tedarikçi
