#include "DagilimSatirlari.h"

#include "MetinTablosu.h"
#include "SayiMetni.h"
#include "UrunMetinleri.h"

namespace {

constexpr int PAY_BASAMAĞI = 2;
constexpr std::size_t EN_ÇOK_ÇUBUK = 15;
enum Dokular { MalzemeDokusu, İlkYüzde, YuvarlamaDokusu = 5, DiğerleriDokusu = 1 };

QString TutarMetni(const std::optional<Ondalık>& tutar) {
    return tutar ? SayıBiçimle(*tutar, static_cast<int>(tutar->Basamak)) : QString();
}

QString PayMetni(const std::optional<double>& pay) {
    const std::optional<Ondalık> gösterilen = GösterilenPay(pay);
    return gösterilen ? SayıBiçimle(*gösterilen, PAY_BASAMAĞI) : QString();
}

double Büyüklük(const DağılımParçası& parça) {
    return parça.Tutar ? EnYakınDouble(*parça.Tutar).value_or(0) : 0;
}

Çubuk ÇubukYap(const QString& ad, const DağılımParçası& parça, int doku) {
    QString yazı = TutarMetni(parça.Tutar);
    const QString pay = PayMetni(parça.Pay);
    if (!pay.isEmpty()) yazı += QStringLiteral(" (%") + pay + QLatin1Char(')');
    return {ad, Büyüklük(parça), yazı, doku};
}

QString Başlık(MetinNo ad, const Ondalık& tutar) {
    return Metin(ad) + QStringLiteral(": ") + TutarMetni(tutar);
}

// Shares of the whole itself.
DağılımSatırı Bütün(MetinNo ad, const Ondalık& tutar, bool paylı) {
    DağılımSatırı satır{Metin(ad), {}, {tutar, std::nullopt}, std::nullopt};
    if (paylı) satır.Parça.Pay = 100;
    return satır;
}

}  // namespace

std::optional<Ondalık> GösterilenPay(const std::optional<double>& pay) {
    const std::optional<Ondalık> haneler = pay ? OnBeşHaneyle(*pay) : std::nullopt;
    return haneler ? std::optional(Yuvarla(*haneler, PAY_BASAMAĞI, Yarım::SıfırdanUzağa)) : std::nullopt;
}

QList<TabloSütunu> KalemSütunları() {
    return {{ÜrünMetni::KalemSütunu, 14}, {MetinNo::TutarıSütunu, 11, true}, {ÜrünMetni::PaySütunu, 6, true}};
}

QList<TabloSütunu> PaySütunları() {
    return {{MetinNo::MalzemeSütunu, 16},
            {MetinNo::MiktarıSütunu, 11, false, ÇizelgedeSütun::Miktar},
            {MetinNo::TutarıSütunu, 9, true},
            {ÜrünMetni::PaySütunu, 6, true},
            {ÜrünMetni::BirikimliPaySütunu, 7, true}};
}

QString DağılımKaynağı::Hücre(const DağılımSatırı& satır, DağılımSütunu sütun) {
    switch (sütun) {
        case DağılımSütunu::Ad:
            return satır.Ad;
        case DağılımSütunu::Miktar:
            return satır.Miktar;
        case DağılımSütunu::Tutar:
            return TutarMetni(satır.Parça.Tutar);
        case DağılımSütunu::Pay:
            return PayMetni(satır.Parça.Pay);
        case DağılımSütunu::Birikimli:
            return PayMetni(satır.Birikimli);
    }
    return {};
}

int DağılımKaynağı::Karşılaştır(std::size_t a, std::size_t b, int sütun) const {
    switch (m_sütunlar[sütun]) {
        case DağılımSütunu::Tutar:
        case DağılımSütunu::Pay:  // of one whole: their order is that of the amounts
            return Sırala(Büyüklük(Satırlar[a].Parça), Büyüklük(Satırlar[b].Parça));
        case DağılımSütunu::Birikimli:
            return Sırala(Satırlar[a].Birikimli, Satırlar[b].Birikimli);
        default:
            return TabloKaynağı::Karşılaştır(a, b, sütun);
    }
}

void ÜrünDağılımı::Hesapla(const SaklananÜrün& saklanan, int basamak) {
    DağılımGirdisi girdi{saklanan.Yüzdeler, {}};
    for (const SaklananÜrün::Satır& satır : saklanan.Satırlar)
        girdi.Satırlar.push_back({satır.Malzeme, satır.Miktar, NoktayıVirgüleÇevir(satır.Fiyat)});
    const MaliyetDağılımı dağılım = MaliyetiDağıt(girdi, basamak);
    KalemleriKoy(dağılım);
    MalzemeleriKoy(dağılım);
}

void ÜrünDağılımı::KalemleriKoy(const MaliyetDağılımı& dağılım) {
    constexpr MetinNo adlar[] = {ÜrünMetni::MalzemeMaliyetiSütunu, ÜrünMetni::İşçilikSütunu, ÜrünMetni::KârSütunu,
                                 ÜrünMetni::DiğerSütunu, ÜrünMetni::VadeSütunu};
    Kalemler.Satırlar.clear();
    KalemGrafiği = {Başlık(ÜrünMetni::ToplamSütunu, dağılım.Toplam), {}};
    const auto ekle = [this](MetinNo ad, const DağılımParçası& parça, int doku) {
        Kalemler.Satırlar.push_back({Metin(ad), {}, parça, std::nullopt});
        KalemGrafiği.Çubuklar.append(ÇubukYap(Metin(ad), parça, doku));
    };
    for (std::size_t i = 0; i < dağılım.Parçalar.size(); ++i) ekle(adlar[i], dağılım.Parçalar[i], static_cast<int>(i));
    if (dağılım.Yuvarlama)
        ekle(dağılım.Taşıyor() ? ÜrünMetni::DikkatTutarTaşıyor : ÜrünMetni::Yuvarlama, *dağılım.Yuvarlama,
             YuvarlamaDokusu);
    Kalemler.Satırlar.push_back(Bütün(ÜrünMetni::ToplamSütunu, dağılım.Toplam, dağılım.Parçalar[0].Pay.has_value()));
}

void ÜrünDağılımı::MalzemeleriKoy(const MaliyetDağılımı& dağılım) {
    Malzemeler.Satırlar.clear();
    Sayılmayanlar.clear();
    MalzemeGrafiği = {Başlık(ÜrünMetni::MalzemeMaliyetiSütunu, dağılım.MalzemeMaliyeti), {}};
    std::size_t sayılan = 0;
    for (const DağılımMalzemesi& m : dağılım.Malzemeler) {
        QString ad = m.Ad;
        if (!m.Sayıldı) {
            Sayılmayanlar.append(m.Miktar + QLatin1Char(' ') + m.Ad);
            ad += QStringLiteral(" (%1)").arg(Metin(ÜrünMetni::Katılmadı));
        } else if (sayılan++ < EN_ÇOK_ÇUBUK) {
            MalzemeGrafiği.Çubuklar.append(ÇubukYap(m.Ad, m.Parça, MalzemeDokusu));
        }
        Malzemeler.Satırlar.push_back({ad, m.Miktar, m.Parça, m.BirikimliPay, m.SaklananMiktar});
    }
    if (sayılan > EN_ÇOK_ÇUBUK)
        MalzemeGrafiği.Çubuklar.append(ÇubukYap(Metin(ÜrünMetni::Diğerleri).arg(sayılan - EN_ÇOK_ÇUBUK),
                                                dağılım.Kalanlar(EN_ÇOK_ÇUBUK), DiğerleriDokusu));
    const bool paylı = sayılan > 0 && dağılım.Malzemeler.front().Parça.Pay.has_value();
    if (const auto& yuvarlama = dağılım.MalzemeYuvarlaması) {
        DağılımSatırı satır{Metin(ÜrünMetni::Yuvarlama), {}, *yuvarlama, std::nullopt};
        if (paylı) satır.Birikimli = 100;
        MalzemeGrafiği.Çubuklar.append(ÇubukYap(satır.Ad, *yuvarlama, YuvarlamaDokusu));
        Malzemeler.Satırlar.push_back(satır);
    }
    Malzemeler.Satırlar.push_back(Bütün(ÜrünMetni::MalzemeMaliyetiSütunu, dağılım.MalzemeMaliyeti, paylı));
}
