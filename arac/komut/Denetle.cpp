// Looks through a data file for what is wrong with it.
#include <array>

#include "AdDizini.h"
#include "FiyatDeyimleri.h"
#include "Komut.h"
#include "MalzemeToplami.h"
#include "Okunan.h"
#include "TurkceMetin.h"
#include "TurkceSira.h"
#include "Uc.h"
#include "YariMamulDeyimleri.h"

using namespace Qt::StringLiterals;

namespace {

QString Yazı(std::string_view baytlar) {
    return TekSatır(Utf8Metni(baytlar));
}

class Denetçi {
  public:
    explicit Denetçi(OdbcBağlantısı& bağlantı) : m_bağlantı(bağlantı) {}

    void Çalış() {
        ::Denetle(m_bağlantı.TabloVar(u"YariMamulTablosu"_s, m_bağlarVar));
        Ürünler();
        Malzemeler();
        Kullanılanlar();
        ÇiftKullanılanlar();
        if (m_bağlarVar) Bağlar();
    }

    std::int64_t Bulgu = 0;
    std::int64_t Not = 0;

  private:
    void Bulundu(const QString& satır) {
        ++Bulgu;
        ÇıktıSatırı(u"bulgu: "_s + satır);
    }

    void NotDüş(const QString& satır) {
        ++Not;
        ÇıktıSatırı(u"not: "_s + satır);
    }

    // Goes through a statement's rows; `satır` gets the first columns, which stay good while it runs.
    template <typename İş>
    void Oku(const QString& ne, const QString& deyim, İş iş) {
        İlerlemeSatırı ilerleme(ne);
        std::int64_t no = 0;
        Denetle(m_bağlantı.Oku(deyim, [&](OdbcSatırı& satır) {
            iş(++no, [&satır](int sütun) { return satır.Baytlar(sütun).value_or(std::string_view()); });
            ilerleme.Bildir(no);
            return true;
        }));
    }

    void Ürünler() {
        Oku(u"UrunTablosu"_s, Deyimler::TümÜrünler(), [this](std::int64_t no, auto sütun) {
            const auto yer = static_cast<std::uint32_t>(no);
            const std::uint32_t ilk = m_ürünler.BulYaDaEkle(sütun(1), sütun(2), yer);
            if (ilk != yer)
                Bulundu(u"UrunTablosu %1: ürün iki kez yazılmış (ilki %2. satırda): %3 / %4"_s.arg(no).arg(ilk).arg(
                    Yazı(sütun(1)), Yazı(sütun(2))));
        });
    }

    void Malzemeler() {
        Oku(u"MalzemeTablosu"_s, u"SELECT MalzemeAdi, MalzemeFiyati FROM MalzemeTablosu"_s,
            [this](std::int64_t no, auto sütun) {
                const auto yer = static_cast<std::uint32_t>(no);
                const std::uint32_t ilk = m_malzemeler.BulYaDaEkle(sütun(1), yer);
                if (ilk != yer)
                    Bulundu(
                        u"MalzemeTablosu %1: malzeme iki kez yazılmış (ilki %2. satırda): %3"_s.arg(no).arg(ilk).arg(
                            Yazı(sütun(1))));
            });
    }

    void Kullanılanlar() {
        Oku(u"UrunMalzemeTablosu"_s, Deyimler::TümKullanılanlar(), [this](std::int64_t no, auto sütun) {
            const auto yer = [&] {
                return u"UrunMalzemeTablosu %1: %2 / %3 / %4: "_s.arg(no).arg(Yazı(sütun(1)), Yazı(sütun(2)),
                                                                              Yazı(sütun(3)));
            };
            if (m_ürünler.Bul(sütun(1), sütun(2)) == AdDizini::YOK) Bulundu(yer() + u"ürünü yok"_s);
            if (!MiktarSayısı(sütun(4))) Bulundu(yer() + u"miktarı okunamıyor: \"%1\""_s.arg(Yazı(sütun(4))));
            // Whoever keeps a deleted material in its products leaves such rows: nothing is wrong with them.
            if (m_malzemeler.Bul(sütun(3)) == AdDizini::YOK) NotDüş(yer() + u"malzemesi katalogda yok"_s);
        });
    }

    void ÇiftKullanılanlar() {
        std::array<std::string, 3> önceki;
        Oku(u"UrunMalzemeTablosu"_s, Deyimler::SıralıKullanılanlar(), [&](std::int64_t no, auto sütun) {
            bool aynı = no > 1;
            for (int i = 0; i < 3; ++i) {
                std::string& ad = önceki[static_cast<std::size_t>(i)];
                aynı = aynı && Türkçe::Karşılaştır(std::string_view(ad), sütun(i + 1)) == 0;
                ad = sütun(i + 1);
            }
            if (aynı)
                Bulundu(u"UrunMalzemeTablosu: malzeme üründe iki kez yazılmış: %1 / %2 / %3"_s.arg(
                    Yazı(önceki[0]), Yazı(önceki[1]), Yazı(önceki[2])));
        });
    }

    // Ties between a material and the product that it stands for.
    void Bağlar() {
        Oku(u"YariMamulTablosu"_s, Deyimler::YarıMamul::Bağlar(), [this](std::int64_t, auto sütun) {
            if (m_ürünler.Bul(sütun(2), sütun(3)) == AdDizini::YOK)
                NotDüş(u"YariMamulTablosu: %1: yerine geçtiği ürün yok: %2 / %3"_s.arg(Yazı(sütun(1)), Yazı(sütun(2)),
                                                                                       Yazı(sütun(3))));
        });
    }

    OdbcBağlantısı& m_bağlantı;
    bool m_bağlarVar = false;
    AdDizini m_ürünler;
    AdDizini m_malzemeler;
};

int DosyayıDenetle(const QStringList& sözler) {
    OkunanDosya dosya(Sözler(sözler, 1)[0]);
    Denetçi denetçi(dosya.Bağlantı());
    denetçi.Çalış();
    Bildir(u"Dosya sağlam: %1 bulgu, %2 not."_s.arg(denetçi.Bulgu).arg(denetçi.Not));
    return denetçi.Bulgu == 0 ? Tamam : BulguVar;
}

}  // namespace

const Komut DenetleKomutu{
    u"denetle", u"DOSYA", u"dosyayı denetler; her bulguyu bir satırda yazar",
    u"Önce dosyanın bütünlüğü denetlenir. Bulgular: ürünü olmayan satırlar, okunamayan miktarlar, iki kez yazılmış\n"
    u"adlar. Malzemesi katalogda olmayan satırlar yalnızca not edilir: bir malzeme, ürünlerde kalarak silinmiş\n"
    u"olabilir. DOSYA değişmez, program açıkken de okunur.\n\n"
    u"Çıkış kodu: 0 bulgu yok, 1 bozuk ya da okunamıyor, 2 yanlış kullanım, 3 bulgu var",
    DosyayıDenetle};
