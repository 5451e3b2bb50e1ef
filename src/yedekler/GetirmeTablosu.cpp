#include "GetirmeTablosu.h"

#include <QDate>
#include <algorithm>

#include "FiyatMetinleri.h"
#include "FiyatYazimi.h"
#include "GetirmeMetinleri.h"
#include "MaliyetHesabi.h"
#include "TurkceSira.h"

namespace {

QString TutarMetni(const GetirmeKalemi& kalem, const std::optional<Para>& tutar) {
    if (!tutar) return {};
    return kalem.Ürün ? ToplamMetni(*tutar) : FiyatMetni(*tutar);
}

QString NedenMetni(const GetirmeKalemi& kalem) {
    switch (kalem.Neden) {
        case GetirmeNedeni::Yok:
            break;
        case GetirmeNedeni::FiyatlarıDeğişmiş:
            return Metin(GetirmeMetni::NedenFiyatlarıDeğişmiş);
        case GetirmeNedeni::DövizeBağlı:
            return Metin(GetirmeMetni::NedenDövizeBağlı);
        case GetirmeNedeni::İkiKez:
            return Metin(GetirmeMetni::NedenİkiKez);
        case GetirmeNedeni::AdYazılamaz:
            return NedenMetni(PlanNedeni::AdıYazılamaz);
        case GetirmeNedeni::SatırOkunamaz:
            return Metin(GetirmeMetni::NedenSatırOkunamaz);
        case GetirmeNedeni::YarıMamul:
            return NedenMetni(PlanNedeni::YarıMamul);
        case GetirmeNedeni::SonradanDeğişmiş:
            return Metin(GetirmeMetni::NedenSonradanDeğişmiş);
        case GetirmeNedeni::Fiyatta:
        case GetirmeNedeni::FiyatEngeli:
            return NedenMetni(kalem.FiyatNedeni);
    }
    if (kalem.FiyatNedeni != PlanNedeni::Yok) return NedenMetni(kalem.FiyatNedeni);
    if (kalem.Eksik) return Metin(GetirmeMetni::NedenEksik);
    return kalem.Birlikte ? Metin(GetirmeMetni::NedenBirlikte) : QString();
}

QString DurumMetni(const GetirmePlanı& plan, const GetirmeKalemi& kalem) {
    if (!kalem.Şimdiki) return Metin(GetirmeMetni::DurumŞimdiYok);
    const bool silinecek = plan.Denendi() && Gelir(kalem) && !kalem.Sonraki;
    return Metin(silinecek ? GetirmeMetni::DurumSilinecek : GetirmeMetni::DurumFarklı);
}

// A date literal as the user writes it.
QString KullanımGünü(const QString& tarih) {
    return QDate::fromString(tarih.mid(1, tarih.size() - 2), QStringLiteral("M/d/yyyy"))
        .toString(QStringLiteral("dd.MM.yyyy"));
}

std::vector<KullanılanSatır> Sıralı(std::vector<KullanılanSatır> satırlar) {
    std::stable_sort(satırlar.begin(), satırlar.end(), [](const KullanılanSatır& a, const KullanılanSatır& b) {
        return Türkçe::Karşılaştır(QStringView(a.Malzeme), QStringView(b.Malzeme)) < 0;
    });
    return satırlar;
}

}  // namespace

QList<TabloSütunu> GetirmeSütunlarınıVer(bool yedekten) {
    QList<TabloSütunu> sütunlar{{GetirmeMetni::NeSütunu, 8},
                                {GetirmeMetni::GrupSütunu, 11},
                                {GetirmeMetni::AdSütunu, 20},
                                {GetirmeMetni::DurumSütunu, 9},
                                {GetirmeMetni::YedekteSütunu, 11, true},
                                {GetirmeMetni::ŞimdiSütunu, 11, true},
                                {GetirmeMetni::SonraSütunu, 11, true},
                                {MetinNo::NedenSütunu, 28}};
    if (!yedekten) {
        sütunlar.removeAt(GYedekte);
        sütunlar[GSonra - 1].Başlık = GetirmeMetni::SonrakiSütunu;
    }
    return sütunlar;
}

QString GetirmeSatırları::Hücre(std::size_t satır, int sütun) const {
    const GetirmeKalemi& kalem = m_plan.Kalemler()[satır];
    switch (Sütun(sütun)) {
        case GNe:
            return Metin(kalem.Ürün ? GetirmeMetni::NeÜrün : GetirmeMetni::NeMalzeme);
        case GGrup:
            return kalem.Grup;
        case GAd:
            return kalem.Ad;
        case GDurum:
            return DurumMetni(m_plan, kalem);
        case GYedekte:
            return TutarMetni(kalem, kalem.Yedekteki);
        case GŞimdi:
            return TutarMetni(kalem, kalem.Şimdiki);
        case GSonra:
            return TutarMetni(kalem, kalem.Sonraki);
        default:
            return NedenMetni(kalem);
    }
}

int GetirmeSatırları::Karşılaştır(std::size_t a, std::size_t b, int sütun) const {
    const GetirmeKalemi& x = m_plan.Kalemler()[a];
    const GetirmeKalemi& y = m_plan.Kalemler()[b];
    switch (Sütun(sütun)) {
        case GYedekte:
            return Sırala(x.Yedekteki, y.Yedekteki);
        case GŞimdi:
            return Sırala(x.Şimdiki, y.Şimdiki);
        case GSonra:
            return Sırala(x.Sonraki, y.Sonraki);
        default:
            return TabloKaynağı::Karşılaştır(a, b, sütun);
    }
}

std::optional<bool> GetirmeSatırları::İşaret(std::size_t satır) const {
    const GetirmeKalemi& kalem = m_plan.Kalemler()[satır];
    if (!Uygulanır(kalem.Neden)) return std::nullopt;
    return Gelir(kalem);
}

QString GetirmeSatırları::Açıklama(std::size_t satır) const {
    return NedenMetni(m_plan.Kalemler()[satır]);
}

QList<TabloSütunu> AyrıntıSütunlarınıVer(bool yedekten) {
    return {{GetirmeMetni::AyrıntıAdı, 28},
            {yedekten ? GetirmeMetni::YedektekiMiktar : GetirmeMetni::GelecekMiktar, 16},
            {yedekten ? GetirmeMetni::YedektekiGün : GetirmeMetni::GelecekGün, 13},
            {GetirmeMetni::ŞimdikiMiktar, 16},
            {GetirmeMetni::ŞimdikiGün, 11},
            {GetirmeMetni::AyrıntıFarkı, 12}};
}

void GetirmeAyrıntısı::Kur(const ÜrünHali& şimdi, const ÜrünHali& sonra, int basamak) {
    Boşalt();
    constexpr MetinNo yüzdeler[] = {MetinNo::İşçilikYüzdesi, MetinNo::KârYüzdesi, MetinNo::DiğerYüzdesi,
                                    MetinNo::VadeYüzdesi};
    const auto farkı = [](bool gelen, bool şimdiki, bool aynı) {
        if (aynı) return QString();
        if (gelen && şimdiki) return Metin(GetirmeMetni::FarklıSatır);
        return Metin(gelen ? GetirmeMetni::YalnızGelen : GetirmeMetni::YalnızŞimdiki);
    };
    for (std::size_t i = 0; i < şimdi.Yüzdeler.size(); ++i) {
        const auto yüzde = [&](const ÜrünHali& hal) {
            return hal.Var ? YüzdeMetni(hal.Yüzdeler[i], basamak) : QString();
        };
        m_satırlar.push_back(
            {Metin(yüzdeler[i]).remove(QLatin1Char('&')),
             yüzde(sonra),
             {},
             yüzde(şimdi),
             {},
             farkı(sonra.Var, şimdi.Var, sonra.Yüzdeler[i] == şimdi.Yüzdeler[i] && sonra.Var == şimdi.Var)});
    }
    const std::vector<KullanılanSatır> gelenler = Sıralı(sonra.Satırlar);
    const std::vector<KullanılanSatır> şimdikiler = Sıralı(şimdi.Satırlar);
    std::size_t g = 0;
    std::size_t ş = 0;
    while (g < gelenler.size() || ş < şimdikiler.size()) {
        int sıra = g == gelenler.size() ? 1 : -1;
        if (g < gelenler.size() && ş < şimdikiler.size())
            sıra = Türkçe::Karşılaştır(QStringView(gelenler[g].Malzeme), QStringView(şimdikiler[ş].Malzeme));
        const KullanılanSatır* gelen = sıra <= 0 ? &gelenler[g++] : nullptr;
        const KullanılanSatır* şimdiki = sıra >= 0 ? &şimdikiler[ş++] : nullptr;
        const bool aynı = gelen && şimdiki && gelen->Miktar == şimdiki->Miktar && gelen->Tarih == şimdiki->Tarih;
        m_satırlar.push_back({(gelen ? gelen : şimdiki)->Malzeme, gelen ? gelen->Miktar : QString(),
                              gelen ? KullanımGünü(gelen->Tarih) : QString(), şimdiki ? şimdiki->Miktar : QString(),
                              şimdiki ? KullanımGünü(şimdiki->Tarih) : QString(), farkı(gelen, şimdiki, aynı)});
    }
}
