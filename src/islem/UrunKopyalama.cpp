#include "UrunKopyalama.h"

#include "Deyimler.h"
#include "OdbcHareketi.h"
#include "OdbcTanitici.h"
#include "SayiMetni.h"
#include "YariMamulYayilimi.h"

namespace {

ÜrünKopyaSonucu Yazılamadı(const OdbcSonucu& odbc) {
    return {KopyaSonu::Yazılamadı, odbc};
}

// Writes inside a transaction that is under way; stops at the first thing that is not as it should be.
class Kopyalayıcı {
  public:
    Kopyalayıcı(OdbcBağlantısı& bağlantı, const ÜrünAdı& yeni, QDate gün)
        : m_bağlantı(bağlantı), m_yeni(yeni), m_tarih(Deyimler::Tarih(gün)) {}

    // The product's row comes first: from then on nobody else writes, and what is read stays so.
    ÜrünKopyaSonucu Yaz(const ÜrünAdı& eski, const SaklananÜrün& saklanan) {
        static_cast<void>(Değiştir(Deyimler::ÜrünEkle(m_yeni.Grup, m_yeni.Ad)) &&
                          Say(Deyimler::ÜrünVarMı(m_yeni.Grup, m_yeni.Ad), 1, KopyaSonu::AdVar) &&
                          Say(Deyimler::KullanılanMalzemeler(m_yeni.Grup, m_yeni.Ad), 0, KopyaSonu::KalanVar) &&
                          Durur(eski, saklanan) && YüzdeleriYaz(saklanan) && SatırlarıYaz(saklanan));
        return m_sonuç;
    }

  private:
    bool Bak(const OdbcSonucu& odbc, bool beklenen, KopyaSonu değilse) {
        m_sonuç.Odbc = odbc;
        if (!odbc.Başarılı())
            m_sonuç.Son = KopyaSonu::Yazılamadı;
        else if (!beklenen)
            m_sonuç.Son = değilse;
        return m_sonuç.Son == KopyaSonu::Tamam;
    }

    bool Değiştir(const QString& deyim) {
        const OdbcSonucu s = m_bağlantı.Çalıştır(deyim);
        return Bak(s, s.Etkilenen == 1, KopyaSonu::Yazılamadı);
    }

    bool Say(const QString& deyim, int beklenen, KopyaSonu değilse) {
        int sayı = 0;
        const OdbcSonucu s = m_bağlantı.Oku(deyim, [&](OdbcSatırı&) { return ++sayı <= beklenen; });
        return Bak(s, sayı == beklenen, değilse);
    }

    bool Durur(const ÜrünAdı& eski, const SaklananÜrün& saklanan) {
        std::optional<SaklananÜrün> şimdiki;
        const İşSonucu s = SaklananÜrünüOku(m_bağlantı, eski, şimdiki);
        return Bak(s.Odbc, şimdiki == saklanan, KopyaSonu::Değişmiş);
    }

    bool YüzdeleriYaz(const SaklananÜrün& saklanan) {
        const auto& [işçilik, kâr, diğer, vade] = saklanan.Yüzdeler;
        return Değiştir(Deyimler::YüzdeleriKaydet(NoktayıVirgüleÇevir(işçilik), NoktayıVirgüleÇevir(kâr),
                                                  NoktayıVirgüleÇevir(diğer), NoktayıVirgüleÇevir(vade), m_yeni.Grup,
                                                  m_yeni.Ad));
    }

    bool SatırlarıYaz(const SaklananÜrün& saklanan) {
        for (const SaklananÜrün::Satır& satır : saklanan.Satırlar)
            if (!Değiştir(Deyimler::KullanılanMalzemeEkle(
                    {m_yeni.Grup, m_yeni.Ad, satır.Malzeme, satır.Miktar, NoktayıVirgüleÇevir(satır.Fiyat), m_tarih})))
                return false;
        return true;
    }

    OdbcBağlantısı& m_bağlantı;
    const ÜrünAdı& m_yeni;
    const QString m_tarih;
    ÜrünKopyaSonucu m_sonuç;
};

}  // namespace

İşSonucu SaklananÜrünüOku(OdbcBağlantısı& bağlantı, const ÜrünAdı& ürün, std::optional<SaklananÜrün>& saklanan) {
    saklanan.reset();
    OdbcSonucu odbc = bağlantı.Oku(Deyimler::Yüzdeler(ürün.Grup, ürün.Ad), [&saklanan](OdbcSatırı& satır) {
        saklanan.emplace();
        for (int i = 0; i < 4; ++i) saklanan->Yüzdeler[static_cast<std::size_t>(i)] = satır.Metin(i + 1);
        return false;
    });
    if (odbc.Başarılı() && saklanan)
        odbc = bağlantı.Oku(Deyimler::KullanılanMalzemeler(ürün.Grup, ürün.Ad), [&saklanan](OdbcSatırı& satır) {
            saklanan->Satırlar.push_back({satır.Metin(1), satır.Metin(2), satır.Metin(3)});
            return true;
        });
    if (!odbc.Başarılı()) saklanan.reset();
    return İşSonucuYap(odbc);
}

ÜrünKopyaSonucu ÜrünüKopyala(OdbcBağlantısı& bağlantı, const ÜrünAdı& eski, const SaklananÜrün& saklanan,
                             const ÜrünAdı& yeni, QDate gün) {
    const YarıMamulBağları* bağlar = nullptr;
    if (const İşSonucu s = YarıMamulleriAl(bağlantı, bağlar); !s.Tamam()) return Yazılamadı(s.Odbc);
    QStringList malzemeler;
    for (const SaklananÜrün::Satır& satır : saklanan.Satırlar) malzemeler.append(satır.Malzeme);
    // A tie whose product is gone may wait for this very name.
    if (const QStringList zincir = bağlar->Zincir(malzemeler, yeni); !zincir.isEmpty())
        return {KopyaSonu::Döngü, {}, zincir};
    OdbcHareketi hareket(bağlantı);  // rolls back on every way out but the commit's success
    if (const OdbcSonucu s = hareket.Başla(); !s.Başarılı()) return Yazılamadı(s);
    if (const ÜrünKopyaSonucu s = Kopyalayıcı(bağlantı, yeni, gün).Yaz(eski, saklanan); s.Son != KopyaSonu::Tamam)
        return s;
    if (const Yayılım y = YarıMamulleriYay(bağlantı, {.Ürünler = {yeni}}); !y.Sonuç.Tamam())
        return Yazılamadı(y.Sonuç.Odbc);
    if (const OdbcSonucu s = hareket.Onayla(); !s.Başarılı()) {
        YarıMamulleriUnut();
        return Yazılamadı(s);
    }
    return {};
}
