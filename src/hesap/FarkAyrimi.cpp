#include "FarkAyrimi.h"

#include <algorithm>
#include <numeric>

#include "MalzemeToplami.h"
#include "TurkceSira.h"

namespace {

constexpr int BASAMAK = 4;

int Sırala(const QString& a, const QString& b) {
    return Türkçe::Karşılaştır(QStringView(a), QStringView(b));
}

using Yerler = std::vector<const FarkMalzemesi*>;

Yerler Sıralı(const std::vector<FarkMalzemesi>& malzemeler) {
    Yerler yerler;
    for (const FarkMalzemesi& malzeme : malzemeler) yerler.push_back(&malzeme);
    std::stable_sort(yerler.begin(), yerler.end(),
                     [](const auto* a, const auto* b) { return Sırala(a->Ad, b->Ad) < 0; });
    return yerler;
}

// The rows of one name, from `yer` on.
Yerler Adaşlar(const Yerler& yerler, std::size_t yer) {
    std::size_t son = yer;
    while (son < yerler.size() && Sırala(yerler[son]->Ad, yerler[yer]->Ad) == 0) ++son;
    return {yerler.begin() + static_cast<std::ptrdiff_t>(yer), yerler.begin() + static_cast<std::ptrdiff_t>(son)};
}

// A row beside the one that it was.
struct Çift {
    const FarkMalzemesi* Eski;
    const FarkMalzemesi* Yeni;
};

struct Eşleşme {
    Yerler Çıkanlar;
    std::vector<Çift> Kalanlar;
    Yerler Eklenenler;
};

Eşleşme Eşleştir(const FarkTarafı& eski, const FarkTarafı& yeni) {
    const Yerler eskiler = Sıralı(eski.Malzemeler);
    const Yerler yeniler = Sıralı(yeni.Malzemeler);
    Eşleşme sonuç;
    const auto kat = [](Yerler& hedef, const Yerler& olan) { hedef.insert(hedef.end(), olan.begin(), olan.end()); };
    std::size_t i = 0;
    std::size_t j = 0;
    while (i < eskiler.size() || j < yeniler.size()) {
        const int fark = i == eskiler.size() ? 1 : j == yeniler.size() ? -1 : Sırala(eskiler[i]->Ad, yeniler[j]->Ad);
        const Yerler çıkan = fark <= 0 ? Adaşlar(eskiler, i) : Yerler();
        const Yerler eklenen = fark >= 0 ? Adaşlar(yeniler, j) : Yerler();
        i += çıkan.size();
        j += eklenen.size();
        if (çıkan.size() == 1 && eklenen.size() == 1 && çıkan[0]->Birim == eklenen[0]->Birim) {
            sonuç.Kalanlar.push_back({çıkan[0], eklenen[0]});
        } else {
            kat(sonuç.Çıkanlar, çıkan);
            kat(sonuç.Eklenenler, eklenen);
        }
    }
    return sonuç;
}

Para Tutarı(const std::optional<double>& miktar, Para fiyat) {
    return miktar ? MalzemeTutarı(*miktar, fiyat).value_or(Para()) : Para();
}

// The sheet on its way from old to new.
class Yürüyüş {
  public:
    Yürüyüş(const FarkTarafı& eski, FarkAyrımı& sonuç) : m_sonuç(sonuç), m_oranlar(eski.Oranlar) {
        for (const FarkMalzemesi& m : eski.Malzemeler) Ekle(Tutarı(m.Miktar, m.Fiyat));
        m_toplam = m_sonuç.Eski = Toplam();
    }

    void Malzeme(FarkTürü tür, const QString& ad, Para önce, Para sonra) {
        Ekle(Para::OnBindeBirden(-önce.OnBindeBir()));
        Ekle(sonra);
        Yaz(tür, ad);
    }

    void Oran(FarkTürü tür, Para MaliyetOranları::*alan, const MaliyetOranları& yeni) {
        m_oranlar.*alan = yeni.*alan;
        Yaz(tür, {});
    }

    void Bitir() { m_sonuç.Yeni = m_toplam; }

  private:
    void Ekle(Para tutar) {
        const std::optional<Para> yeni = Topla(m_malzeme, tutar);
        m_sonuç.Taştı |= !yeni;
        m_malzeme = yeni.value_or(m_malzeme);
    }
    Para Toplam() const { return GösterilenToplam(m_malzeme, m_oranlar, BASAMAK); }

    void Yaz(FarkTürü tür, const QString& ad) {
        const Para yeni = Toplam();
        const Para parça = TutarFarkı(yeni, m_toplam);
        m_toplam = yeni;
        if (parça == Para()) return;
        Para& yer = m_sonuç.Parçalar[static_cast<std::size_t>(tür)];
        const std::optional<Para> hepsi = Topla(yer, parça);
        m_sonuç.Taştı |= !hepsi;
        yer = hepsi.value_or(yer);
        m_sonuç.Kalemler.push_back({tür, ad, parça});
    }

    FarkAyrımı& m_sonuç;
    MaliyetOranları m_oranlar;
    Para m_malzeme;
    Para m_toplam;
};

}  // namespace

Para TutarFarkı(Para a, Para b) {
    std::int64_t fark = 0;
    return Para::OnBindeBirden(__builtin_sub_overflow(a.OnBindeBir(), b.OnBindeBir(), &fark) ? 0 : fark);
}

FarkAyrımı FarkıAyır(const FarkTarafı& eski, const FarkTarafı& yeni) {
    FarkAyrımı sonuç;
    const Eşleşme eşleşme = Eşleştir(eski, yeni);
    Yürüyüş yürüyüş(eski, sonuç);
    for (const auto* m : eşleşme.Çıkanlar) yürüyüş.Malzeme(FarkTürü::Çıkan, m->Ad, Tutarı(m->Miktar, m->Fiyat), {});
    for (const auto& [e, y] : eşleşme.Kalanlar)
        yürüyüş.Malzeme(FarkTürü::Miktar, y->Ad, Tutarı(e->Miktar, e->Fiyat), Tutarı(y->Miktar, e->Fiyat));
    for (const auto& [e, y] : eşleşme.Kalanlar)
        yürüyüş.Malzeme(FarkTürü::Fiyat, y->Ad, Tutarı(y->Miktar, e->Fiyat), Tutarı(y->Miktar, y->Fiyat));
    for (const auto* m : eşleşme.Eklenenler) yürüyüş.Malzeme(FarkTürü::Eklenen, m->Ad, {}, Tutarı(m->Miktar, m->Fiyat));
    yürüyüş.Oran(FarkTürü::İşçilik, &MaliyetOranları::İşçilik, yeni.Oranlar);
    yürüyüş.Oran(FarkTürü::Kâr, &MaliyetOranları::Kâr, yeni.Oranlar);
    yürüyüş.Oran(FarkTürü::Diğer, &MaliyetOranları::Diğer, yeni.Oranlar);
    yürüyüş.Oran(FarkTürü::Vade, &MaliyetOranları::Vade, yeni.Oranlar);
    yürüyüş.Bitir();
    return sonuç;
}

Para YuvarlamaKalanı(Para gösterilenFark, std::span<const Para> parçalar, int basamak) {
    return std::accumulate(parçalar.begin(), parçalar.end(), gösterilenFark, [basamak](Para kalan, Para parça) {
        return TutarFarkı(kalan, GösterilenTutar(parça, basamak).value_or(parça));
    });
}
