#include "FiyatOnizlemeTablolari.h"

#include <algorithm>

#include "FiyatMetinleri.h"
#include "MetinTablosu.h"

namespace {

double Büyüklük(Para önce, Para sonra) {
    return std::abs(sonra.Double() - önce.Double());
}

double OranBüyüklüğü(Para önce, Para sonra) {
    return önce.OnBindeBir() == 0 ? -1 : Büyüklük(önce, sonra) / std::abs(önce.Double());
}

}  // namespace

QList<TabloSütunu> PlanınMalzemeSütunları() {
    return {{MetinNo::MalzemeSütunu, 28},          {MetinNo::EskiFiyatSütunu, 12, true},
            {MetinNo::YeniFiyatSütunu, 12, true},  {MetinNo::FarkSütunu, 11, true},
            {MetinNo::YüzdeSütunu, 8, true},       {MetinNo::SatırSütunu, 5, true},
            {MetinNo::AyrıFiyatlıSütunu, 5, true}, {MetinNo::NedenSütunu, 20}};
}

QList<TabloSütunu> PlanınÜrünSütunları() {
    return {{MetinNo::GrubuSütunu, 16},
            {MetinNo::ÜrünSütunu, 26},
            {MetinNo::ÖncekiToplamSütunu, 14, true},
            {MetinNo::SonrakiToplamSütunu, 14, true},
            {MetinNo::FarkSütunu, 12, true},
            {MetinNo::YüzdeSütunu, 8, true},
            {MetinNo::UyarıSütunu, 18}};
}

QString PlanınMalzemeleri::Hücre(std::size_t satır, int sütun) const {
    const PlanMalzemesi& m = m_plan.Malzemeler()[satır];
    const bool yazılır = Uygulanır(m.Neden);
    const bool karşılaştırılır = yazılır && m.Malzemenin == Varlık::Aynı;
    switch (sütun) {
        case MAd:
            return m.Malzeme;
        case MEski:
            return m.Malzemenin == Varlık::Eklendi ? QString() : FiyatMetni(m.Eski);
        case MYeni:
            return yazılır && m.Malzemenin != Varlık::Silindi ? FiyatMetni(m.Yeni) : QString();
        case MFark:
            return karşılaştırılır ? FiyatFarkı(m.Eski, m.Yeni) : QString();
        case MYüzde:
            return karşılaştırılır ? YüzdeFarkı(m.Eski, m.Yeni) : QString();
        case MSatır:
            return QString::number(m.DeğişenSatır);
        case MAyrı:
            return QString::number(m.Ayrılar.size());
        default:
            return Açıklama(satır);
    }
}

int PlanınMalzemeleri::Karşılaştır(std::size_t a, std::size_t b, int sütun) const {
    const PlanMalzemesi& x = m_plan.Malzemeler()[a];
    const PlanMalzemesi& y = m_plan.Malzemeler()[b];
    switch (sütun) {
        case MEski:
            return Sırala(x.Eski, y.Eski);
        case MYeni:
            return Sırala(x.Yeni, y.Yeni);
        case MFark:
            return Sırala(Büyüklük(x.Eski, x.Yeni), Büyüklük(y.Eski, y.Yeni));
        case MYüzde:
            return Sırala(OranBüyüklüğü(x.Eski, x.Yeni), OranBüyüklüğü(y.Eski, y.Yeni));
        case MSatır:
            return Sırala(x.DeğişenSatır, y.DeğişenSatır);
        case MAyrı:
            return Sırala(x.Ayrılar.size(), y.Ayrılar.size());
        default:
            return TabloKaynağı::Karşılaştır(a, b, sütun);
    }
}

std::optional<bool> PlanınMalzemeleri::İşaret(std::size_t satır) const {
    const PlanMalzemesi& m = m_plan.Malzemeler()[satır];
    return Uygulanır(m.Neden) ? std::optional(m.İşaretli) : std::nullopt;
}

void PlanınMalzemeleri::İşaretle(std::size_t satır, bool işaretli) {
    static_cast<void>(m_plan.İşaretle(static_cast<std::uint32_t>(satır), işaretli));
}

QString PlanınMalzemeleri::Açıklama(std::size_t satır) const {
    const PlanMalzemesi& m = m_plan.Malzemeler()[satır];
    QStringList metin;
    if (m.Malzemenin == Varlık::Eklendi) metin.append(Metin(MetinNo::YeniMalzeme));
    if (m.Malzemenin == Varlık::Silindi) metin.append(Metin(MetinNo::SilinecekMalzeme));
    if (m.Neden != PlanNedeni::Yok) metin.append(NedenMetni(m.Neden));
    const auto eksik = std::count_if(m.Tekler.begin(), m.Tekler.end(), [](const TekSatır& t) { return !t.Bulundu; });
    if (eksik > 0) metin.append(Metin(MetinNo::BulunamayanSatırlar).arg(eksik));
    return metin.join(QStringLiteral("; "));
}

QString PlanınÜrünleri::Hücre(std::size_t satır, int sütun) const {
    const PlanÜrünü& ü = m_plan.Ürünler()[satır];
    switch (sütun) {
        case ÜGrup:
            return ü.Grup;
        case ÜAd:
            return ü.Ad;
        case ÜÖnce:
            return ToplamMetni(ü.Önce);
        case ÜSonra:
            return ToplamMetni(ü.Sonra);
        case ÜFark:
            return ToplamFarkı(ü.Önce, ü.Sonra);
        case ÜYüzde:
            return YüzdeFarkı(ü.Önce, ü.Sonra);
        default:
            return Açıklama(satır);
    }
}

int PlanınÜrünleri::Karşılaştır(std::size_t a, std::size_t b, int sütun) const {
    const PlanÜrünü& x = m_plan.Ürünler()[a];
    const PlanÜrünü& y = m_plan.Ürünler()[b];
    switch (sütun) {
        case ÜÖnce:
            return Sırala(x.Önce, y.Önce);
        case ÜSonra:
            return Sırala(x.Sonra, y.Sonra);
        case ÜFark:
            return Sırala(Büyüklük(x.Önce, x.Sonra), Büyüklük(y.Önce, y.Sonra));
        case ÜYüzde:
            return Sırala(OranBüyüklüğü(x.Önce, x.Sonra), OranBüyüklüğü(y.Önce, y.Sonra));
        default:
            return TabloKaynağı::Karşılaştır(a, b, sütun);
    }
}

QString PlanınÜrünleri::Açıklama(std::size_t satır) const {
    const PlanÜrünü& ü = m_plan.Ürünler()[satır];
    QStringList metin;
    if (ü.Eksik) metin.append(Metin(MetinNo::UyarıSayılmayan));
    if (ü.KatalogDışı) metin.append(Metin(MetinNo::UyarıKatalogDışı));
    return metin.join(QStringLiteral("; "));
}
