#pragma once

#include "DovizKayitlari.h"
#include "TabloModeli.h"

// All that the form of currencies shows, read at once.
struct DövizVerisi {
    struct BağlıMalzeme {
        Deyimler::Döviz::Bağ Bağ;
        std::uint32_t Yer;  // in the catalogue; AdDizini::YOK: not there any more
    };
    std::vector<Deyimler::Döviz::Döviz> Dövizler;
    std::vector<BağlıMalzeme> Bağlar;
    MalzemeKataloğu Katalog;
    std::vector<std::int64_t> BağSayıları;      // beside Dövizler
    std::vector<std::uint32_t> MalzemeBağları;  // places in Bağlar, beside the catalogue's materials

    // Whole or as it was.
    İşSonucu Oku(OdbcBağlantısı& bağlantı);
};

enum DövizSütunları { DKod, DKur, DGün, DBağlı };
class DövizKaynağı : public TabloKaynağı {
  public:
    explicit DövizKaynağı(const DövizVerisi& veri) : m_veri(veri) {}

    static QList<TabloSütunu> Sütunlar();
    std::size_t SatırSayısı() const override { return m_veri.Dövizler.size(); }
    QString Hücre(std::size_t satır, int sütun) const override;
    int Karşılaştır(std::size_t a, std::size_t b, int sütun) const override;

  private:
    const DövizVerisi& m_veri;
};

// The materials that are tied to one currency.
enum BağSütunları { BMalzeme, BFiyat, BKatalog, BDurum };
class BağKaynağı : public TabloKaynağı {
  public:
    explicit BağKaynağı(const DövizVerisi& veri) : m_veri(veri) {}

    static QList<TabloSütunu> Sütunlar();
    void DöviziSeç(const QString& kod);
    const Deyimler::Döviz::Bağ& Bağ(std::size_t satır) const { return Satır(satır).Bağ; }

    std::size_t SatırSayısı() const override { return m_satırlar.size(); }
    QString Hücre(std::size_t satır, int sütun) const override;
    int Karşılaştır(std::size_t a, std::size_t b, int sütun) const override;

  private:
    const DövizVerisi::BağlıMalzeme& Satır(std::size_t satır) const { return m_veri.Bağlar[m_satırlar[satır]]; }
    std::optional<Para> KatalogFiyatı(std::size_t satır) const;

    const DövizVerisi& m_veri;
    std::vector<std::size_t> m_satırlar;
};

// The catalogue, from which a material to be tied is chosen.
enum AdaySütunları { AMalzeme, AFiyat, ABağ };
class AdayKaynağı : public TabloKaynağı {
  public:
    explicit AdayKaynağı(const DövizVerisi& veri) : m_veri(veri) {}

    static QList<TabloSütunu> Sütunlar();
    const QString& Ad(std::size_t satır) const { return m_veri.Katalog.Malzemeler[satır].Ad; }
    // The material's tie; null without one.
    const Deyimler::Döviz::Bağ* Bağ(std::size_t satır) const;

    std::size_t SatırSayısı() const override { return m_veri.Katalog.Malzemeler.size(); }
    QString Hücre(std::size_t satır, int sütun) const override;
    int Karşılaştır(std::size_t a, std::size_t b, int sütun) const override;

  private:
    const DövizVerisi& m_veri;
};
