#include "Ceviri.h"

#include "Hata.h"
#include "Sayi.h"
#include "Utf8.h"

namespace Motor {

namespace {

// A text of the statement within a message.
std::string Alıntı(std::string_view metin) {
    constexpr std::size_t enÇok = 60;
    const std::string_view baş = BütünKarakterlerleKes(metin, enÇok);
    return std::string(baş) + (baş.size() < metin.size() ? "…" : "");
}

[[noreturn]] void TürUymuyor(const SütunTanımı& sütun, const std::string& neden) {
    throw Hata(Durum::TürUymuyor, "Data type mismatch: " + sütun.Ad + " sütunu için " + neden);
}

Değer SayıyıÇevir(const SütunTanımı& sütun, const std::optional<Ondalık>& sayı, std::string_view metin) {
    if (!sayı) TürUymuyor(sütun, "\"" + Alıntı(metin) + "\" geçerli bir sayı değil.");
    if (sütun.Tür == SütunTürü::Para) return ParayaÇevir(*sayı);
    return OndalığaÇevir(*sayı);
}

bool Sayısal(SütunTürü tür) {
    return tür == SütunTürü::Para || tür == SütunTürü::Ondalık;
}

// The stored form of a literal in the given column.
Değer YazımıÇevir(const SütunTanımı& sütun, const Yazım& yazım) {
    if (const auto* metin = std::get_if<MetinYazımı>(&yazım)) {
        if (sütun.Tür == SütunTürü::Metin) return metin->Metin;
        if (Sayısal(sütun.Tür)) return SayıyıÇevir(sütun, SayıMetniÇöz(metin->Metin), metin->Metin);
        TürUymuyor(sütun, "#ay/gün/yıl# biçiminde bir tarih gerekiyor.");
    }
    if (const auto* sayı = std::get_if<SayıYazımı>(&yazım)) {
        if (Sayısal(sütun.Tür)) return SayıyıÇevir(sütun, SayıYazımıÇöz(sayı->Metin), sayı->Metin);
        TürUymuyor(sütun, "bir sayı kullanılamaz.");
    }
    if (sütun.Tür != SütunTürü::Tarih) TürUymuyor(sütun, "bir tarih kullanılamaz.");
    return std::get<TarihYazımı>(yazım).Tarih;
}

void UzunluğuDenetle(const SütunTanımı& sütun, const Değer& değer) {
    const auto* metin = std::get_if<std::string>(&değer);
    if (metin && Utf16Uzunluğu(*metin) > static_cast<std::size_t>(sütun.Uzunluk))
        throw Hata(Durum::MetinUzun, sütun.Ad + " sütununa en çok " + std::to_string(sütun.Uzunluk) +
                                         " karakter yazılabilir; kayıt yapılmadı.");
}

// Builds one command; a value becomes the next parameter.
class Çevirmen {
  public:
    explicit Çevirmen(Şema& şema) : m_şema(şema) {}

    SqliteKomutu operator()(const SeçDeyimi& seç) {
        const TabloTanımı& tablo = Tablo(seç.Tablo);
        m_komut.Sql = seç.Ayrık ? "SELECT DISTINCT " : "SELECT ";
        if (seç.Say)
            SayımıYaz(seç, tablo);
        else
            SütunlarıYaz(seç, tablo);
        m_komut.Sql += " FROM " + Tırnakla(tablo.Ad);
        if (!seç.Koşullar.empty()) KoşullarıYaz(tablo, seç.Koşullar);
        if (!seç.Sıralar.empty()) m_komut.Sql += " ORDER BY " + Sıralar(tablo, seç.Sıralar);
        return std::move(m_komut);
    }

    SqliteKomutu operator()(const EkleDeyimi& ekle) {
        const TabloTanımı& tablo = Tablo(ekle.Tablo);
        std::string sütunlar;
        std::string değerler;
        for (const Eşitlik& eşitlik : ekle.Değerler) {
            const SütunTanımı& sütun = BirKez(tablo, eşitlik.Sütun);
            sütunlar += (sütunlar.empty() ? "" : ", ") + Tırnakla(sütun.Ad);
            değerler += (değerler.empty() ? "" : ", ") + Yazılacak(sütun, eşitlik.Değer);
        }
        m_komut.Tür = SqliteKomutu::Sınıf::Değişiklik;
        m_komut.Sql = "INSERT INTO " + Tırnakla(tablo.Ad) + " (" + sütunlar + ") VALUES (" + değerler + ")";
        return std::move(m_komut);
    }

    SqliteKomutu operator()(const GüncelleDeyimi& güncelle) {
        const TabloTanımı& tablo = Tablo(güncelle.Tablo);
        std::string atamalar;
        for (const Eşitlik& eşitlik : güncelle.Atamalar) {
            const SütunTanımı& sütun = BirKez(tablo, eşitlik.Sütun);
            atamalar += (atamalar.empty() ? "" : ", ") + Tırnakla(sütun.Ad) + "=" + Yazılacak(sütun, eşitlik.Değer);
        }
        m_komut.Tür = SqliteKomutu::Sınıf::Değişiklik;
        m_komut.Sql = "UPDATE " + Tırnakla(tablo.Ad) + " SET " + atamalar;
        KoşullarıYaz(tablo, güncelle.Koşullar);
        return std::move(m_komut);
    }

    SqliteKomutu operator()(const SilDeyimi& sil) {
        const TabloTanımı& tablo = Tablo(sil.Tablo);
        m_komut.Tür = SqliteKomutu::Sınıf::Değişiklik;
        m_komut.Sql = "DELETE FROM " + Tırnakla(tablo.Ad);
        KoşullarıYaz(tablo, sil.Koşullar);
        return std::move(m_komut);
    }

    SqliteKomutu operator()(const TabloOluşturDeyimi& oluştur) {
        if (m_şema.Tablo(oluştur.Tablo))
            throw Hata(Durum::TabloVar, Alıntı(oluştur.Tablo) + " adında bir tablo zaten var.");
        DizinYok(oluştur.Tablo);
        std::string sütunlar;
        for (const SütunBildirimi& sütun : oluştur.Sütunlar)
            sütunlar += (sütunlar.empty() ? "" : ", ") + SütunSql(sütun);
        m_komut.Tür = SqliteKomutu::Sınıf::Tanım;
        m_komut.Sql = "CREATE TABLE " + Tırnakla(oluştur.Tablo) + " (" + sütunlar + ")";
        return std::move(m_komut);
    }

    SqliteKomutu operator()(const DizinOluşturDeyimi& oluştur) {
        const TabloTanımı& tablo = Tablo(oluştur.Tablo);
        DizinYok(oluştur.Dizin);
        m_komut.Tür = SqliteKomutu::Sınıf::Tanım;
        m_komut.Sql = std::string(oluştur.Tekil ? "CREATE UNIQUE INDEX " : "CREATE INDEX ") + Tırnakla(oluştur.Dizin) +
                      " ON " + Tırnakla(tablo.Ad) + " (" + Sıralar(tablo, oluştur.Sütunlar) + ")";
        return std::move(m_komut);
    }

  private:
    const TabloTanımı& Tablo(const std::string& ad) const {
        if (const TabloTanımı* tablo = m_şema.Tablo(ad)) return *tablo;
        throw Hata(Durum::TabloYok, Alıntı(ad) + " adında bir tablo yok.");
    }

    void DizinYok(const std::string& ad) const {
        if (m_şema.DizinVar(ad)) throw Hata(Durum::DizinVar, Alıntı(ad) + " adında bir dizin zaten var.");
    }

    std::string Parametre(Değer değer) {
        m_komut.Değerler.push_back(std::move(değer));
        return "?" + std::to_string(m_komut.Değerler.size());
    }

    std::string Yazılacak(const SütunTanımı& sütun, const Yazım& yazım) {
        Değer değer = YazımıÇevir(sütun, yazım);
        UzunluğuDenetle(sütun, değer);
        return Parametre(std::move(değer));
    }

    // The column, which a statement may write only once.
    const SütunTanımı& BirKez(const TabloTanımı& tablo, const std::string& ad) {
        const SütunTanımı& sütun = tablo.Sütun(ad);
        for (const SütunTanımı* önceki : m_yazılanlar)
            if (önceki == &sütun) throw Hata(Durum::SözDizimi, sütun.Ad + " sütunu deyimde iki kez yazılmış.");
        m_yazılanlar.push_back(&sütun);
        return sütun;
    }

    void KoşullarıYaz(const TabloTanımı& tablo, const std::vector<Eşitlik>& koşullar) {
        std::string_view bağlaç = " WHERE ";
        for (const Eşitlik& koşul : koşullar) {
            const SütunTanımı& sütun = tablo.Sütun(koşul.Sütun);
            m_komut.Sql += bağlaç;
            m_komut.Sql += Tırnakla(sütun.Ad) + "=" + Parametre(YazımıÇevir(sütun, koşul.Değer));
            bağlaç = " AND ";
        }
    }

    static std::string Sıralar(const TabloTanımı& tablo, const std::vector<Sıralama>& sıralar) {
        std::string sql;
        for (const Sıralama& sıra : sıralar)
            sql += (sql.empty() ? "" : ", ") + Tırnakla(tablo.Sütun(sıra.Sütun).Ad) + (sıra.Azalan ? " DESC" : "");
        return sql;
    }

    // Counting rows is much cheaper for SQLite than counting a column that cannot be NULL, and gives the same.
    void SayımıYaz(const SeçDeyimi& seç, const TabloTanımı& tablo) {
        const SütunTanımı* sütun = seç.Sütunlar.empty() ? nullptr : &tablo.Sütun(seç.Sütunlar.front());
        m_komut.Sql += !sütun || sütun->BoşOlamaz ? "COUNT(*)" : "COUNT(" + Tırnakla(sütun->Ad) + ")";
        m_komut.Sütunlar.push_back({seç.SayımAdı, SütunTürü::TamSayı, 0, true});
    }

    void SütunlarıYaz(const SeçDeyimi& seç, const TabloTanımı& tablo) {
        if (seç.Sütunlar.empty())
            m_komut.Sütunlar = tablo.Sütunlar;
        else
            for (const std::string& ad : seç.Sütunlar) m_komut.Sütunlar.push_back(tablo.Sütun(ad));
        if (m_komut.Sütunlar.size() > AzamiSütun)
            throw Hata(Durum::SözDizimi,
                       "Bir deyimde en çok " + std::to_string(AzamiSütun) + " sütun okunabilir; işlem yapılmadı.");
        std::string liste;
        for (const SütunTanımı& sütun : m_komut.Sütunlar) liste += (liste.empty() ? "" : ", ") + Tırnakla(sütun.Ad);
        m_komut.Sql += liste;
    }

    static std::string SütunSql(const SütunBildirimi& bildirim) {
        std::string sql = Tırnakla(bildirim.Ad);
        switch (bildirim.Tür) {
            case BildirilenTür::Metin:
                sql += " TEXT(" + std::to_string(bildirim.Uzunluk) + ") COLLATE TURKCE";
                break;
            case BildirilenTür::Para:
                sql += " CURRENCY";
                break;
            case BildirilenTür::Ondalık:
                sql += " DOUBLE";
                break;
            case BildirilenTür::Tarih:
                sql += " DATETIME";
                break;
        }
        if (!bildirim.Varsayılan.empty()) sql += " DEFAULT " + VarsayılanSql(bildirim);
        return sql + (bildirim.BoşOlamaz ? " NOT NULL" : "");
    }

    // A definition cannot take parameters; the number goes in as digits only.
    static std::string VarsayılanSql(const SütunBildirimi& bildirim) {
        const Ondalık sayı = SayıYazımıÇöz(bildirim.Varsayılan).value();
        if (bildirim.Tür == BildirilenTür::Para) return "(" + std::to_string(ParayaÇevir(sayı)) + ")";
        return std::string(sayı.Eksi ? "(-" : "(").append(sayı.Tam()).append(".").append(sayı.Kesir()).append("0)");
    }

    Şema& m_şema;
    SqliteKomutu m_komut;
    std::vector<const SütunTanımı*> m_yazılanlar;
};

}  // namespace

SqliteKomutu Çevir(const Deyim& deyim, Şema& şema) {
    return std::visit(Çevirmen(şema), deyim);
}

}  // namespace Motor
