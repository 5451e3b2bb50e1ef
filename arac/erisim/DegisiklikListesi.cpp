#include "DegisiklikListesi.h"

#include "DegisiklikOzeti.h"

namespace Erişim {

namespace {

std::string_view NedenAdı(Neden neden) {
    switch (neden) {
        case Neden::Boş:
            return "boş değer";
        case Neden::Okunamayan:
            return "okunamayan değer";
        case Neden::Yuvarlanan:
            return "dört basamağa yuvarlanan fiyat";
        case Neden::TekDuyarlık:
            return "en kısa ondalığıyla alınan yüzde";
        case Neden::Saat:
            return "saati atılan tarih";
        case Neden::KesmeVeSatır:
            return "işareti değiştirilen metin";
        case Neden::BoşSatır:
            return "alınmayan boş satır";
        case Neden::AyrılanAd:
            return "adı değiştirilen malzeme";
        case Neden::BirleşenMalzeme:
            return "bir kez alınan malzeme";
        case Neden::Son_:
            break;
    }
    return {};
}

void TekSatırEkle(std::string& metin, std::string_view eklenen) {
    for (const char harf : eklenen) metin += static_cast<unsigned char>(harf) < 0x20 ? ' ' : harf;
}

}  // namespace

void DeğişiklikListesi::Ekle(Neden neden, std::string_view nerede, std::string_view eski, std::string_view yeni) {
    ++m_sayılar[static_cast<std::size_t>(neden)];
    ++m_sayı;
    TekSatırEkle(m_satırlar, nerede);
    m_satırlar += ": ";
    m_satırlar += NedenAdı(neden);
    if (neden != Neden::BoşSatır) {
        m_satırlar += "; ";
        TekSatırEkle(m_satırlar, neden == Neden::Boş ? "(boş)" : "\"" + std::string(eski) + "\"");
        m_satırlar += " -> ";
        TekSatırEkle(m_satırlar, "\"" + std::string(yeni) + "\"");
    }
    m_satırlar += '\n';
}

std::string DeğişiklikListesi::Özet() const {
    std::string özet = std::to_string(m_sayı) + " değer olduğu gibi alınamadı (";
    std::string_view ayraç;
    for (std::size_t i = 0; i < m_sayılar.size(); ++i) {
        if (m_sayılar[i] == 0) continue;
        özet += ayraç;
        özet += std::to_string(m_sayılar[i]) + " " + std::string(NedenAdı(static_cast<Neden>(i)));
        ayraç = ", ";
    }
    return özet + ")";
}

std::string DeğişiklikListesi::Metin() const {
    return std::string(LİSTE_BAŞLIĞI) + "\n" + Özet() + "\n\n" + m_satırlar;
}

}  // namespace Erişim
