#include "TedarikciKayitlari.h"

#include "OdbcTanitici.h"

using Deyimler::Tedarikçi::Bağ;
using Deyimler::Tedarikçi::Tedarikçi;

namespace {

const QString TABLO = QString::fromLatin1(Deyimler::Tedarikçi::TABLO);

// Nothing is read where there is no table.
İşSonucu VarsaOku(OdbcBağlantısı& bağlantı, const QString& deyim, const std::function<void(OdbcSatırı&)>& satır) {
    bool var = false;
    if (const OdbcSonucu s = bağlantı.TabloVar(TABLO, var); !s.Başarılı() || !var) return İşSonucuYap(s);
    return İşSonucuYap(bağlantı.Oku(deyim, [&satır](OdbcSatırı& okunan) {
        satır(okunan);
        return true;
    }));
}

İşSonucu Yaz(OdbcBağlantısı& bağlantı, const QStringList& deyimler) {
    return TablolaraYaz(bağlantı, TABLO, Deyimler::Tedarikçi::TablolarıOluştur(), deyimler);
}

}  // namespace

İşSonucu TedarikçileriOku(OdbcBağlantısı& bağlantı, std::vector<Tedarikçi>& tedarikçiler) {
    tedarikçiler.clear();
    return VarsaOku(bağlantı, Deyimler::Tedarikçi::Tedarikçiler(), [&tedarikçiler](OdbcSatırı& satır) {
        const auto sayı = [&satır](int sütun) { return static_cast<int>(SayıSütunu(satır, sütun)); };
        Tedarikçi t;
        t.Ad = satır.Metin(1);
        t.Sayfa = satır.Metin(2);
        t.BaşlıkSatırı = sayı(3);
        t.AdSütunu = sayı(4);
        t.FiyatSütunu = sayı(5);
        t.AdBaşlığı = satır.Metin(6);
        t.FiyatBaşlığı = satır.Metin(7);
        t.Ondalık = satır.Metin(8);
        t.Ayraç = satır.Metin(9);
        t.İskonto = ParaSütunu(satır, 10);
        t.YuvarlamaAdımı = ParaSütunu(satır, 11);
        t.YuvarlamaYönü = sayı(12);
        tedarikçiler.push_back(std::move(t));
    });
}

İşSonucu TedarikçiBağlarınıOku(OdbcBağlantısı& bağlantı, const QString& tedarikçi, std::vector<Bağ>& bağlar) {
    bağlar.clear();
    return VarsaOku(bağlantı, Deyimler::Tedarikçi::Bağlar(tedarikçi), [&bağlar](OdbcSatırı& satır) {
        bağlar.push_back({satır.Metin(1), satır.Metin(2), ParaSütunu(satır, 3)});
    });
}

İşSonucu TedarikçiyiYaz(OdbcBağlantısı& bağlantı, const Tedarikçi& tedarikçi) {
    return Yaz(bağlantı,
               {Deyimler::Tedarikçi::TedarikçiSil(tedarikçi.Ad), Deyimler::Tedarikçi::TedarikçiEkle(tedarikçi)});
}

İşSonucu TedarikçiBağınıYaz(OdbcBağlantısı& bağlantı, const QString& tedarikçi, const Bağ& bağ) {
    return Yaz(bağlantı,
               {Deyimler::Tedarikçi::BağSil(tedarikçi, bağ.ListeAdı), Deyimler::Tedarikçi::BağEkle(tedarikçi, bağ)});
}

İşSonucu TedarikçiBağınıSil(OdbcBağlantısı& bağlantı, const QString& tedarikçi, const QString& listeAdı) {
    return Yaz(bağlantı, {Deyimler::Tedarikçi::BağSil(tedarikçi, listeAdı)});
}
