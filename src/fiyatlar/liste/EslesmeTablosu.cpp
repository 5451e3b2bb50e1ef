#include "EslesmeTablosu.h"

#include "FiyatMetinleri.h"
#include "ListeMetinleri.h"
#include "MetinTablosu.h"

namespace {

QString HücreMetni(const ÇizelgeHücresi& hücre) {
    return (hücre.Metin.isEmpty() ? hücre.Değer : hücre.Metin).simplified();
}

}  // namespace

QList<TabloSütunu> EşleşmeninSütunları() {
    // The list's price stands as its file spells it, which may be otherwise than here.
    return {{MetinNo::ListedekiAdSütunu, 20},    {MetinNo::ListedekiFiyatSütunu, 11, true, ÇizelgedeSütun::Metin},
            {MetinNo::MalzemeSütunu, 18},        {MetinNo::EskiFiyatSütunu, 9, true},
            {MetinNo::YeniFiyatSütunu, 9, true}, {MetinNo::BölenSütunu, 5, true},
            {MetinNo::SatırSütunu, 5, true},     {MetinNo::DurumSütunu, 30}};
}

QString EşleşmeKaynağı::Hücre(std::size_t satır, int sütun) const {
    const ListeSatırı& s = m_liste.Satırlar()[satır];
    const bool malzemeli = s.Malzeme != AdDizini::YOK;
    switch (sütun) {
        case EAd:
            return HücreMetni(s.AdHücresi);
        case EFiyat:
            return HücreMetni(s.FiyatHücresi);
        case EMalzeme:
            return m_liste.MalzemeAdı(satır);
        case EEski:
            return malzemeli ? FiyatMetni(s.Eski) : QString();
        case EYeni:
            return s.Yeni > Para() ? FiyatMetni(s.Yeni) : QString();
        case EBölen:
            return s.Bölen == Para::OnBindeBirden(Para::Ölçek) ? QString() : SayıYazımı(s.Bölen);
        case ESatır:
            return QString::number(s.No);
        default:
            return Açıklama(satır);
    }
}

int EşleşmeKaynağı::Karşılaştır(std::size_t a, std::size_t b, int sütun) const {
    const ListeSatırı& x = m_liste.Satırlar()[a];
    const ListeSatırı& y = m_liste.Satırlar()[b];
    switch (sütun) {
        case EFiyat:
        case EYeni:
            return Sırala(x.Yeni, y.Yeni);
        case EEski:
            return Sırala(x.Eski, y.Eski);
        case EBölen:
            return Sırala(x.Bölen, y.Bölen);
        case ESatır:
            return Sırala(x.No, y.No);
        case EDurum:
            if (x.Durum != y.Durum) return Sırala(x.Durum, y.Durum);
            [[fallthrough]];
        default:
            return TabloKaynağı::Karşılaştır(a, b, sütun);
    }
}

std::optional<bool> EşleşmeKaynağı::İşaret(std::size_t satır) const {
    const ListeSatırı& s = m_liste.Satırlar()[satır];
    return İşaretlenir(s.Durum) ? std::optional(s.İşaretli) : std::nullopt;
}

QString EşleşmeKaynağı::Açıklama(std::size_t satır) const {
    return DurumMetni(m_liste.Satırlar()[satır]);
}
