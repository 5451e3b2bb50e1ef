#include "FiyatMetinleri.h"

#include "DegiskenModulu.h"
#include "KullanimMetinleri.h"
#include "MetinTablosu.h"
#include "SayiMetni.h"
#include "YariMamulMetinleri.h"
#include "GetirmeMetinleri.h"

namespace {

QString İşaretli(const QString& metin, bool artı) {
    return artı ? QLatin1Char('+') + metin : metin;
}

QString Fark(Para önce, Para sonra, QString (*biçim)(Para)) {
    const std::optional<Para> fark = Topla(sonra, Para::OnBindeBirden(-önce.OnBindeBir()));
    return fark ? İşaretli(biçim(*fark), *fark > Para()) : QString();
}

}  // namespace

QString ToplamMetni(Para toplam) {
    return SayıBiçimle(toplam, OndalıkBasamak);
}

QString FiyatFarkı(Para önce, Para sonra) {
    return Fark(önce, sonra, FiyatMetni);
}

QString ToplamFarkı(Para önce, Para sonra) {
    return Fark(önce, sonra, ToplamMetni);
}

QString YüzdeFarkı(Para önce, Para sonra) {
    if (önce.OnBindeBir() == 0) return {};
    const double oran = (sonra.Double() - önce.Double()) / std::abs(önce.Double()) * 100;
    return İşaretli(SayıBiçimle(oran, 2).value_or(QString()), oran >= 0.005);
}

QString NedenMetni(PlanNedeni neden) {
    switch (neden) {
        case PlanNedeni::Yok:
            return {};
        case PlanNedeni::Olağandışı:
            return Metin(MetinNo::NedenOlağandışı);
        case PlanNedeni::SonradanDeğişmiş:
            return Metin(MetinNo::NedenSonradanDeğişmiş);
        case PlanNedeni::ElleDeğişmiş:
            return Metin(MetinNo::NedenElleDeğişmiş);
        case PlanNedeni::Çakışıyor:
            return Metin(MetinNo::NedenÇakışıyor);
        case PlanNedeni::Kullanılıyor:
            return Metin(MetinNo::NedenKullanılıyor);
        case PlanNedeni::FiyatıDeğişmiş:
            return Metin(MetinNo::NedenSonradanDeğişmiş);
        case PlanNedeni::KatalogdaVar:
            return Metin(MetinNo::NedenKatalogdaVar);
        case PlanNedeni::Değişmiyor:
            return Metin(MetinNo::NedenDeğişmiyor);
        case PlanNedeni::TersineDöndü:
            return Metin(MetinNo::NedenTersineDöndü);
        case PlanNedeni::SıfırYaDaAltı:
            return Metin(MetinNo::NedenSıfırYaDaAltı);
        case PlanNedeni::ÇokBüyük:
            return Metin(MetinNo::NedenÇokBüyük);
        case PlanNedeni::AdıYazılamaz:
            return Metin(MetinNo::NedenAdıYazılamaz);
        case PlanNedeni::YarıMamul:
            return Metin(YarıMamulMetni::NedenYarıMamul);
    }
    return {};
}

QString AdlarınBaşı(const QStringList& adlar) {
    constexpr qsizetype enÇok = 10;
    QString metin = adlar.mid(0, enÇok).join(QStringLiteral(", "));
    return adlar.size() > enÇok ? metin + Metin(MetinNo::VeDiğerleri).arg(adlar.size() - enÇok) : metin;
}

QStringList EksiklerNotu(const QStringList& eksikler) {
    if (eksikler.isEmpty()) return {};
    return {Metin(MetinNo::KatalogdaOlmayanlar).arg(AdlarınBaşı(eksikler))};
}

QString TürMetni(const QString& sözcük) {
    const std::optional<İşlemTürü> tür = SözcüğünTürü(sözcük);
    if (!tür) return sözcük;
    switch (*tür) {
        case İşlemTürü::Elle:
            return Metin(MetinNo::TürElle);
        case İşlemTürü::Toplu:
            return Metin(MetinNo::TürToplu);
        case İşlemTürü::Liste:
            return Metin(MetinNo::TürListe);
        case İşlemTürü::Kur:
            return Metin(MetinNo::TürKur);
        case İşlemTürü::GeriAlma:
            return Metin(MetinNo::TürGeriAlma);
        case İşlemTürü::YarıMamul:
            return Metin(YarıMamulMetni::TürYarıMamul);
        case İşlemTürü::Değiştir:
            return Metin(KullanımMetni::TürDeğiştir);
        case İşlemTürü::Getir:
            return Metin(GetirmeMetni::TürGetir);
        case İşlemTürü::Yineleme:
            break;
    }
    return Metin(MetinNo::TürYineleme);
}
