#include "Deyim.h"

#include "Hata.h"
#include "Sozcukleyici.h"
#include "Utf8.h"

#include <algorithm>
#include <charconv>
#include <iterator>

namespace Motor {

namespace {

constexpr int AzamiMetinUzunluğu = 255;
constexpr std::size_t AzamiDeyimBoyu = 1'000'000;  // bytes

// A recursive-descent parser with one word of look-ahead; each function reads one piece of the grammar in Deyim.h.
class Çözümleyici {
  public:
    explicit Çözümleyici(std::string_view metin) : m_metin(metin), m_sözcükleyici(metin) { İlerle(); }

    Deyim Oku() {
        Deyim deyim = DeyimOku();
        if (m_sözcük.Tür != SözcükTürü::Son) Bekleniyordu("deyimin sonu");
        return deyim;
    }

  private:
    void İlerle() {
        m_metinBitti = m_sözcük.Tür == SözcükTürü::Metin;
        m_sözcük = m_sözcükleyici.Sonraki();
    }

    // Whether the text before the word that was not understood is the beginning of a name with an apostrophe: what
    // follows it is neither the end nor what could have been meant there.
    bool KesmeİşaretindenBozuk() const {
        if (!m_metinBitti || m_sözcük.Tür == SözcükTürü::Son || m_sözcük.Metin == ";") return false;
        if (m_metin[m_sözcük.Yer - 1] == '\'') return true;
        constexpr std::string_view sqlSözcükleri[] = {"AND", "OR", "NOT", "WHERE", "ORDER", "GROUP", "UNION", "LIKE"};
        return std::none_of(std::begin(sqlSözcükleri), std::end(sqlSözcükleri),
                            [this](std::string_view sözcük) { return AsciiEşit(m_sözcük.Metin, sözcük); });
    }

    [[noreturn]] void Bekleniyordu(std::string_view ne) const {
        if (KesmeİşaretindenBozuk()) Sözcükleyici::KesmeİşaretiHatası();
        const std::size_t sıra = Sözcükleyici::KarakterSırası(m_metin, m_sözcük.Yer);
        throw Hata(Durum::SözDizimi, "Deyim anlaşılamadı: " + std::to_string(sıra) + ". karakterde " + std::string(ne) +
                                         " bekleniyordu.");
    }

    bool SözcükVarsa(std::string_view anahtar) {
        if (m_sözcük.Tür != SözcükTürü::Ad || !AsciiEşit(m_sözcük.Metin, anahtar)) return false;
        İlerle();
        return true;
    }

    void SözcükGerek(std::string_view anahtar) {
        if (!SözcükVarsa(anahtar)) Bekleniyordu(anahtar);
    }

    bool İşaretVarsa(std::string_view işaret) {
        if (m_sözcük.Tür != SözcükTürü::İşaret || m_sözcük.Metin != işaret) return false;
        İlerle();
        return true;
    }

    void İşaretGerek(std::string_view işaret) {
        if (!İşaretVarsa(işaret)) Bekleniyordu("\"" + std::string(işaret) + "\"");
    }

    std::string AdOku(std::string_view ne) {
        if (m_sözcük.Tür != SözcükTürü::Ad) Bekleniyordu(ne);
        std::string ad(m_sözcük.Metin);
        İlerle();
        return ad;
    }

    std::string TabloAdı() { return AdOku("tablo adı"); }
    std::string SütunAdı() { return AdOku("sütun adı"); }

    Yazım YazımOku() {
        const Sözcük sözcük = m_sözcük;
        switch (sözcük.Tür) {
            case SözcükTürü::Metin:
                İlerle();
                return MetinYazımı{std::string(sözcük.Metin)};
            case SözcükTürü::Sayı:
                İlerle();
                return SayıYazımı{std::string(sözcük.Metin)};
            case SözcükTürü::Tarih:
                İlerle();
                return TarihYazımı{sözcük.Tarih};
            default:
                Bekleniyordu("değer");
        }
    }

    Eşitlik EşitlikOku() {
        Eşitlik eşitlik{SütunAdı(), {}};
        İşaretGerek("=");
        eşitlik.Değer = YazımOku();
        return eşitlik;
    }

    std::vector<Eşitlik> KoşullarıOku() {
        std::vector<Eşitlik> koşullar;
        do koşullar.push_back(EşitlikOku());
        while (SözcükVarsa("AND"));
        return koşullar;
    }

    std::vector<Sıralama> SıralarıOku() {
        std::vector<Sıralama> sıralar;
        do {
            Sıralama sıra{SütunAdı(), false};
            sıra.Azalan = !SözcükVarsa("ASC") && SözcükVarsa("DESC");
            sıralar.push_back(std::move(sıra));
        } while (İşaretVarsa(","));
        return sıralar;
    }

    // Count is no reserved word: it counts only with a bracket behind it, otherwise it is a column's name.
    void SeçimListesiniOku(SeçDeyimi& seç) {
        if (İşaretVarsa("*")) return;
        std::string ilk = SütunAdı();
        if (AsciiEşit(ilk, "Count") && İşaretVarsa("(")) {
            seç.Say = true;
            if (!İşaretVarsa("*")) seç.Sütunlar.push_back(SütunAdı());
            İşaretGerek(")");
            seç.SayımAdı = SözcükVarsa("AS") ? SütunAdı() : "Expr1000";
            return;
        }
        seç.Sütunlar.push_back(std::move(ilk));
        while (İşaretVarsa(",")) seç.Sütunlar.push_back(SütunAdı());
    }

    SeçDeyimi SeçOku() {
        SeçDeyimi seç;
        seç.Ayrık = SözcükVarsa("DISTINCT");
        SeçimListesiniOku(seç);
        if (seç.Ayrık && seç.Say) Bekleniyordu("DISTINCT olmadan Count");
        SözcükGerek("FROM");
        seç.Tablo = TabloAdı();
        if (SözcükVarsa("WHERE")) seç.Koşullar = KoşullarıOku();
        if (SözcükVarsa("ORDER")) {
            SözcükGerek("BY");
            seç.Sıralar = SıralarıOku();
        }
        return seç;
    }

    EkleDeyimi EkleOku() {
        EkleDeyimi ekle;
        SözcükGerek("INTO");
        ekle.Tablo = TabloAdı();
        İşaretGerek("(");
        do ekle.Değerler.push_back({SütunAdı(), {}});
        while (İşaretVarsa(","));
        İşaretGerek(")");
        SözcükGerek("VALUES");
        İşaretGerek("(");
        std::size_t sıra = 0;
        do {
            Yazım değer = YazımOku();
            if (sıra < ekle.Değerler.size()) ekle.Değerler[sıra].Değer = std::move(değer);
            ++sıra;
        } while (İşaretVarsa(","));
        İşaretGerek(")");
        if (sıra != ekle.Değerler.size())
            throw Hata(Durum::SütunSayısı, "Sütunların sayısı ile değerlerin sayısı birbirini tutmuyor.");
        return ekle;
    }

    GüncelleDeyimi GüncelleOku() {
        GüncelleDeyimi güncelle;
        güncelle.Tablo = TabloAdı();
        SözcükGerek("SET");
        do güncelle.Atamalar.push_back(EşitlikOku());
        while (İşaretVarsa(","));
        SözcükGerek("WHERE");
        güncelle.Koşullar = KoşullarıOku();
        return güncelle;
    }

    SilDeyimi SilOku() {
        SilDeyimi sil;
        SözcükGerek("FROM");
        sil.Tablo = TabloAdı();
        SözcükGerek("WHERE");
        sil.Koşullar = KoşullarıOku();
        return sil;
    }

    int UzunlukOku() {
        if (!İşaretVarsa("(")) return AzamiMetinUzunluğu;
        int uzunluk = 0;
        const std::string_view metin = m_sözcük.Metin;
        const auto sonuç = std::from_chars(metin.data(), metin.data() + metin.size(), uzunluk);
        const bool sayı = m_sözcük.Tür == SözcükTürü::Sayı && sonuç.ec == std::errc() && sonuç.ptr == metin.end();
        if (!sayı || uzunluk < 1 || uzunluk > AzamiMetinUzunluğu) Bekleniyordu("1 ile 255 arasında bir uzunluk");
        İlerle();
        İşaretGerek(")");
        return uzunluk;
    }

    SütunBildirimi SütunBildirimiOku() {
        SütunBildirimi sütun{SütunAdı(), BildirilenTür::Metin, 0, {}, false};
        if (SözcükVarsa("TEXT"))
            sütun.Uzunluk = UzunlukOku();
        else if (SözcükVarsa("CURRENCY"))
            sütun.Tür = BildirilenTür::Para;
        else if (SözcükVarsa("DOUBLE"))
            sütun.Tür = BildirilenTür::Ondalık;
        else if (SözcükVarsa("DATETIME"))
            sütun.Tür = BildirilenTür::Tarih;
        else
            Bekleniyordu("TEXT, CURRENCY, DOUBLE veya DATETIME");
        const bool sayısal = sütun.Tür == BildirilenTür::Para || sütun.Tür == BildirilenTür::Ondalık;
        if (sayısal && SözcükVarsa("DEFAULT")) {
            if (m_sözcük.Tür != SözcükTürü::Sayı) Bekleniyordu("sayı");
            sütun.Varsayılan = m_sözcük.Metin;
            İlerle();
        }
        if (SözcükVarsa("NOT")) {
            SözcükGerek("NULL");
            sütun.BoşOlamaz = true;
        }
        return sütun;
    }

    TabloOluşturDeyimi TabloOluşturOku() {
        TabloOluşturDeyimi oluştur;
        oluştur.Tablo = TabloAdı();
        İşaretGerek("(");
        do oluştur.Sütunlar.push_back(SütunBildirimiOku());
        while (İşaretVarsa(","));
        İşaretGerek(")");
        return oluştur;
    }

    DizinOluşturDeyimi DizinOluşturOku(bool tekil) {
        DizinOluşturDeyimi oluştur;
        oluştur.Tekil = tekil;
        oluştur.Dizin = AdOku("dizin adı");
        SözcükGerek("ON");
        oluştur.Tablo = TabloAdı();
        İşaretGerek("(");
        oluştur.Sütunlar = SıralarıOku();
        İşaretGerek(")");
        return oluştur;
    }

    Deyim OluşturOku() {
        if (SözcükVarsa("TABLE")) return TabloOluşturOku();
        const bool tekil = SözcükVarsa("UNIQUE");
        if (!SözcükVarsa("INDEX")) Bekleniyordu(tekil ? "INDEX" : "TABLE veya INDEX");
        return DizinOluşturOku(tekil);
    }

    Deyim DeyimOku() {
        if (SözcükVarsa("SELECT")) return SeçOku();
        if (SözcükVarsa("INSERT")) return EkleOku();
        if (SözcükVarsa("UPDATE")) return GüncelleOku();
        if (SözcükVarsa("DELETE")) return SilOku();
        if (SözcükVarsa("CREATE")) return OluşturOku();
        Bekleniyordu("SELECT, INSERT, UPDATE, DELETE veya CREATE");
    }

    std::string_view m_metin;
    Sözcükleyici m_sözcükleyici;
    Sözcük m_sözcük;
    bool m_metinBitti = false;  // the word before was a text literal
};

}  // namespace

Deyim Çözümle(std::string_view metin) {
    if (metin.size() > AzamiDeyimBoyu) throw Hata(Durum::SözDizimi, "Deyim çok uzun; işlem yapılmadı.");
    try {
        return Çözümleyici(metin).Oku();
    } catch (const Hata&) {
        if (std::count(metin.begin(), metin.end(), '\'') % 2 != 0) Sözcükleyici::KesmeİşaretiHatası();
        throw;
    }
}

}  // namespace Motor
