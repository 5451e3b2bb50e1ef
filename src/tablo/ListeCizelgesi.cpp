#include "ListeCizelgesi.h"

#include "CizelgeMetinleri.h"
#include "CizelgeYazici.h"
#include "DegiskenModulu.h"
#include "MalzemeToplami.h"
#include "SayiMetni.h"
#include "SutunluListe.h"
#include "SutunluSatir.h"
#include "TabloModeli.h"

namespace {

QList<ÇizelgeSütunu> Sütunlar(const SütunluListe& liste, const QList<ListeSütunu>& türler) {
    constexpr double ad = 34, tutar = 16;
    QList<ÇizelgeSütunu> sütunlar;
    for (int sıra = 0; sıra < türler.size(); ++sıra) {
        const QString başlık = liste.headerItem()->text(sıra);
        switch (türler[sıra]) {
            case ListeSütunu::Metin:
            case ListeSütunu::Grup:
                sütunlar.append({başlık, ad});
                break;
            case ListeSütunu::Miktar:
                MiktarSütunlarıEkle(sütunlar, başlık);
                break;
            case ListeSütunu::Fiyat:
            case ListeSütunu::Tutar:
                sütunlar.append({başlık, tutar, ÇizelgeSütunTürü::Para, OndalıkBasamak});
                break;
        }
    }
    return sütunlar;
}

// Beside each other the row's texts; what is stored goes before what is shown.
class SatırOkuyucu {
  public:
    explicit SatırOkuyucu(const QList<ListeSütunu>& türler) : m_türler(türler), m_gruplar(türler.size()) {}

    QList<ÇizelgeDeğeri> Değerler(const QTreeWidgetItem& satır) {
        const auto* saklayan = dynamic_cast<const SütunluSatır*>(&satır);
        QList<ÇizelgeDeğeri> değerler;
        for (int sıra = 0; sıra < m_türler.size(); ++sıra) {
            const QString gösterilen = satır.text(sıra);
            const QString saklanan = saklayan ? saklayan->Saklanan(sıra) : QString();
            const QString& asıl = saklanan.isEmpty() ? gösterilen : saklanan;
            switch (m_türler[sıra]) {
                case ListeSütunu::Metin:
                    değerler.emplaceBack(gösterilen);
                    break;
                case ListeSütunu::Grup:
                    if (!gösterilen.isEmpty()) m_gruplar[sıra] = gösterilen;
                    değerler.emplaceBack(m_gruplar[sıra]);
                    break;
                case ListeSütunu::Miktar:
                    MiktarEkle(değerler, asıl);
                    break;
                case ListeSütunu::Fiyat:
                    değerler.append(GösterilenDeğer(asıl));
                    break;
                case ListeSütunu::Tutar:
                    değerler.append(GösterilenDeğer(gösterilen));
                    break;
            }
        }
        return değerler;
    }

  private:
    const QList<ListeSütunu>& m_türler;
    QList<QString> m_gruplar;  // the last one of each column
};

const QString GÜN_YAZIMI = QStringLiteral("dd.MM.yyyy");

bool İşaretlenir(const TabloModeli& model) {
    for (int satır = 0; satır < model.rowCount(); ++satır)
        if (model.Kaynak().İşaret(model.KaynakSatırı(satır))) return true;
    return false;
}

// As many decimals as the column's figures are shown with.
int Basamak(const TabloModeli& model, int sütun) {
    qsizetype basamak = 0;
    for (int satır = 0; satır < model.rowCount(); ++satır) {
        const QString metin = model.index(satır, sütun).data().toString();
        const qsizetype virgül = metin.indexOf(QLatin1Char(','));
        if (virgül >= 0 && SayıMı(metin)) basamak = qMax(basamak, metin.size() - virgül - 1);
    }
    return static_cast<int>(basamak);
}

QList<ÇizelgeDeğeri> SatırınDeğerleri(const TabloModeli& model, int satır) {
    QList<ÇizelgeDeğeri> değerler;
    for (int sütun = 0; sütun < model.columnCount(); ++sütun) {
        const TabloSütunu& tanım = model.Sütunlar().at(sütun);
        const QString metin = model.Kaynak().Saklanan(model.KaynakSatırı(satır), sütun);
        const QDate gün = tanım.Çizelgede == ÇizelgedeSütun::Tarih ? QDate::fromString(metin, GÜN_YAZIMI) : QDate();
        if (tanım.Çizelgede == ÇizelgedeSütun::Miktar)
            MiktarEkle(değerler, metin);
        else if (tanım.Sayı && tanım.Çizelgede != ÇizelgedeSütun::Metin)
            değerler.append(GösterilenDeğer(metin));
        else if (gün.isValid())
            değerler.emplaceBack(gün);
        else
            değerler.emplaceBack(metin);
    }
    const std::optional<bool> işaret = model.Kaynak().İşaret(model.KaynakSatırı(satır));
    if (işaret) değerler.emplaceBack(Metin(*işaret ? ÇizelgeMetni::İşaretli : ÇizelgeMetni::İşaretsiz));
    return değerler;
}

}  // namespace

ÇizelgeDeğeri GösterilenDeğer(const QString& metin) {
    const std::optional<Ondalık> sayı = OndalıkOku(metin, NoktaKuralı::Yerinde);
    return sayı ? ÇizelgeDeğeri(*sayı) : ÇizelgeDeğeri(metin);
}

YazmaSonucu ListeyiÇizelgeyeYaz(const QString& yol, const QString& sayfaAdı, const SütunluListe& liste,
                                const QList<ListeSütunu>& sütunlar, const QList<QList<ÇizelgeDeğeri>>& sonra) {
    ÇizelgeYazıcı yazıcı(yol, sayfaAdı, Sütunlar(liste, sütunlar));
    YazmaSonucu sonuç = yazıcı.Aç();
    SatırOkuyucu okuyucu(sütunlar);
    for (int i = 0; i < liste.topLevelItemCount() && sonuç.Tamam(); ++i)
        sonuç = yazıcı.SatırEkle(okuyucu.Değerler(*liste.topLevelItem(i)));
    for (const QList<ÇizelgeDeğeri>& satır : sonra)
        if (sonuç.Tamam()) sonuç = yazıcı.SatırEkle(satır);
    return sonuç.Tamam() ? yazıcı.Bitir() : sonuç;
}

QList<ÇizelgeSütunu> ÇizelgeSütunları(const TabloModeli& model, int basamak) {
    QList<ÇizelgeSütunu> sütunlar;
    for (const TabloSütunu& sütun : model.Sütunlar()) {
        const bool tarih = sütun.Çizelgede == ÇizelgedeSütun::Tarih;
        const bool rakam = sütun.Sayı && sütun.Çizelgede != ÇizelgedeSütun::Metin;
        if (sütun.Çizelgede == ÇizelgedeSütun::Miktar)
            MiktarSütunlarıEkle(sütunlar, Metin(sütun.Başlık));
        else
            sütunlar.append({Metin(sütun.Başlık), sütun.Harf * 1.2,
                             tarih   ? ÇizelgeSütunTürü::Tarih
                             : rakam ? ÇizelgeSütunTürü::Para
                                     : ÇizelgeSütunTürü::Metin,
                             basamak});
    }
    return sütunlar;
}

void MiktarSütunlarıEkle(QList<ÇizelgeSütunu>& sütunlar, const QString& başlık) {
    constexpr double miktar = 14, birim = 12;
    sütunlar.append({başlık, miktar, ÇizelgeSütunTürü::Sayı});
    sütunlar.append({Metin(ÇizelgeMetni::BirimiSütunu), birim});
}

void MiktarEkle(QList<ÇizelgeDeğeri>& değerler, const QString& miktar) {
    const MiktarParçaları parçalar = MiktarıAyır(miktar);
    if (const auto sayı = OndalıkOku(parçalar.Sayı, NoktaKuralı::Yerinde)) {
        değerler.emplaceBack(*sayı);
        değerler.emplaceBack(parçalar.Kalan.trimmed().toString());
    } else {
        değerler.emplaceBack(miktar);
        değerler.emplaceBack();
    }
}

YazmaSonucu TabloyuÇizelgeyeYaz(const QString& yol, const QString& sayfaAdı, const TabloModeli& model,
                                const QList<QList<ÇizelgeDeğeri>>& sonra) {
    QList<ÇizelgeSütunu> sütunlar = ÇizelgeSütunları(model, 0);
    int yer = 0;
    for (int sütun = 0; sütun < model.columnCount(); ++sütun, ++yer) {
        if (model.Sütunlar().at(sütun).Sayı) sütunlar[yer].Basamak = Basamak(model, sütun);
        if (model.Sütunlar().at(sütun).Çizelgede == ÇizelgedeSütun::Miktar) ++yer;
    }
    if (İşaretlenir(model)) sütunlar.append({Metin(ÇizelgeMetni::İşaretSütunu)});
    ÇizelgeYazıcı yazıcı(yol, sayfaAdı, sütunlar);
    YazmaSonucu sonuç = yazıcı.Aç();
    for (int satır = 0; satır < model.rowCount() && sonuç.Tamam(); ++satır)
        sonuç = yazıcı.SatırEkle(SatırınDeğerleri(model, satır));
    for (const QList<ÇizelgeDeğeri>& satır : sonra)
        if (sonuç.Tamam()) sonuç = yazıcı.SatırEkle(satır);
    return sonuç.Tamam() ? yazıcı.Bitir() : sonuç;
}
