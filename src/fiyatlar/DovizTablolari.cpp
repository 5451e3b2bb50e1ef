#include "DovizTablolari.h"

#include <algorithm>

#include "FiyatYazimi.h"
#include "MetinTablosu.h"

using Deyimler::Döviz::Bağ;

İşSonucu DövizVerisi::Oku(OdbcBağlantısı& bağlantı) {
    DövizVerisi yeni;
    std::vector<Bağ> bağlar;
    İşSonucu sonuç = DövizleriOku(bağlantı, yeni.Dövizler);
    if (sonuç.Tamam()) sonuç = DövizBağlarınıOku(bağlantı, bağlar);
    if (sonuç.Tamam()) sonuç = yeni.Katalog.Oku(bağlantı);
    if (!sonuç.Tamam()) return sonuç;
    yeni.MalzemeBağları.assign(yeni.Katalog.Malzemeler.size(), AdDizini::YOK);
    yeni.BağSayıları.assign(yeni.Dövizler.size(), 0);
    for (Bağ& bağ : bağlar) {
        const std::uint32_t yer = yeni.Katalog.Dizin.Bul(bağ.Malzeme.toStdString());
        if (yer != AdDizini::YOK) yeni.MalzemeBağları[yer] = static_cast<std::uint32_t>(yeni.Bağlar.size());
        for (std::size_t i = 0; i < yeni.Dövizler.size(); ++i) yeni.BağSayıları[i] += yeni.Dövizler[i].Kod == bağ.Kod;
        yeni.Bağlar.push_back({std::move(bağ), yer});
    }
    *this = std::move(yeni);
    return sonuç;
}

QList<TabloSütunu> DövizKaynağı::Sütunlar() {
    return {{MetinNo::DövizKoduSütunu, 8},
            {MetinNo::KurSütunu, 12, true},
            {MetinNo::KurGünüSütunu, 11, false, ÇizelgedeSütun::Tarih},
            {MetinNo::BağlıSayısıSütunu, 6, true}};
}

QString DövizKaynağı::Hücre(std::size_t satır, int sütun) const {
    const Deyimler::Döviz::Döviz& döviz = m_veri.Dövizler[satır];
    switch (sütun) {
        case DKod:
            return döviz.Kod;
        case DKur:
            return FiyatMetni(döviz.Kur);
        case DGün:
            return GünMetni(döviz.Gün);
        default:
            return QString::number(m_veri.BağSayıları[satır]);
    }
}

int DövizKaynağı::Karşılaştır(std::size_t a, std::size_t b, int sütun) const {
    const Deyimler::Döviz::Döviz& x = m_veri.Dövizler[a];
    const Deyimler::Döviz::Döviz& y = m_veri.Dövizler[b];
    switch (sütun) {
        case DKur:
            return Sırala(x.Kur, y.Kur);
        case DGün:
            return Sırala(x.Gün, y.Gün);
        case DBağlı:
            return Sırala(m_veri.BağSayıları[a], m_veri.BağSayıları[b]);
        default:
            return TabloKaynağı::Karşılaştır(a, b, sütun);
    }
}

QList<TabloSütunu> BağKaynağı::Sütunlar() {
    return {{MetinNo::MalzemeSütunu, 16},
            {MetinNo::DövizFiyatıSütunu, 9, true},
            {MetinNo::TLFiyatıSütunu, 9, true},
            {MetinNo::DurumSütunu, 11}};
}

void BağKaynağı::DöviziSeç(const QString& kod) {
    m_satırlar.clear();
    for (std::size_t i = 0; i < m_veri.Bağlar.size(); ++i)
        if (m_veri.Bağlar[i].Bağ.Kod == kod) m_satırlar.push_back(i);
}

std::optional<Para> BağKaynağı::KatalogFiyatı(std::size_t satır) const {
    const std::uint32_t yer = Satır(satır).Yer;
    return yer == AdDizini::YOK ? std::nullopt : std::optional(m_veri.Katalog.Malzemeler[yer].Fiyat);
}

QString BağKaynağı::Hücre(std::size_t satır, int sütun) const {
    const std::optional<Para> fiyat = KatalogFiyatı(satır);
    switch (sütun) {
        case BMalzeme:
            return Bağ(satır).Malzeme;
        case BFiyat:
            return FiyatMetni(Bağ(satır).Fiyat);
        case BKatalog:
            return fiyat ? FiyatMetni(*fiyat) : QString();
        default:
            if (!fiyat) return Metin(MetinNo::KatalogdaYok);
            return *fiyat == Bağ(satır).Yazılan ? QString() : Metin(MetinNo::NedenElleDeğişmiş);
    }
}

int BağKaynağı::Karşılaştır(std::size_t a, std::size_t b, int sütun) const {
    switch (sütun) {
        case BFiyat:
            return Sırala(Bağ(a).Fiyat, Bağ(b).Fiyat);
        case BKatalog:
            return Sırala(KatalogFiyatı(a), KatalogFiyatı(b));
        default:
            return TabloKaynağı::Karşılaştır(a, b, sütun);
    }
}

QList<TabloSütunu> AdayKaynağı::Sütunlar() {
    return {{MetinNo::MalzemeSütunu, 16}, {MetinNo::FiyatıSütunu, 9, true}, {MetinNo::BağSütunu, 10}};
}

const Bağ* AdayKaynağı::Bağ(std::size_t satır) const {
    const std::uint32_t yer = m_veri.MalzemeBağları[satır];
    return yer == AdDizini::YOK ? nullptr : &m_veri.Bağlar[yer].Bağ;
}

QString AdayKaynağı::Hücre(std::size_t satır, int sütun) const {
    switch (sütun) {
        case AMalzeme:
            return Ad(satır);
        case AFiyat:
            return FiyatMetni(m_veri.Katalog.Malzemeler[satır].Fiyat);
        default:
            const auto* bağ = Bağ(satır);
            return bağ ? bağ->Kod + QLatin1Char(' ') + FiyatMetni(bağ->Fiyat) : QString();
    }
}

int AdayKaynağı::Karşılaştır(std::size_t a, std::size_t b, int sütun) const {
    if (sütun == AFiyat) return Sırala(m_veri.Katalog.Malzemeler[a].Fiyat, m_veri.Katalog.Malzemeler[b].Fiyat);
    if (sütun == ABağ && Bağ(a) && Bağ(b) && Bağ(a)->Kod == Bağ(b)->Kod) return Sırala(Bağ(a)->Fiyat, Bağ(b)->Fiyat);
    return TabloKaynağı::Karşılaştır(a, b, sütun);
}
