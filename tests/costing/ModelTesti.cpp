// A random sequence of everything that changes the data, done through the forms with keys and mouse. After each step
// the data file, the tree and the shown list equal a plain model of what they should be.
// VARNEK_TOHUM sets the seed, VARNEK_ADIM the number of steps.

#include <QRandomGenerator>
#include <QTreeView>
#include <array>

#include "AnaFormOrtami.h"
#include "VeriModeli.h"

namespace {

using VM = VeriModeli;

const QStringList Gruplar = {"MASA", "DOLAP", "ÇEKMECE", "IŞIK", "İSKELE"};
const QStringList ÜrünAdları = {"Sehpa", "Işıklı Vitrin", "İnce Raf", "Çatı", "Üç Ayaklı Tabure"};
const QStringList Malzemeler = {"Vida", "Çivi", "Ihlamur", "İp", "Şerit", "Ölçü Bandı", "Gazlı Bez"};
const QStringList Türler = {"Adet", "Metre", "Kutu"};

constexpr int İşSayısı = 13;

class Model : public AnaFormOrtamı {
  protected:
    Model() : m_tohum(Sayı("VARNEK_TOHUM", QRandomGenerator::global()->generate())), m_rastgele(m_tohum) {
        SaatiAyarla([this] { return m_bugün; });
    }

    static quint32 Sayı(const char* değişken, quint32 yoksa) {
        return qEnvironmentVariableIsSet(değişken) ? qEnvironmentVariable(değişken).toUInt() : yoksa;
    }
    int Rastgele(int n) { return static_cast<int>(m_rastgele.bounded(n)); }
    template <typename T>
    const T& Biri(const QList<T>& hepsi) {
        return hepsi.at(Rastgele(static_cast<int>(hepsi.size())));
    }
    bool Belki() { return Rastgele(2) == 0; }
    QString RastgeleFiyat() { return *SayıMetniBiçimle(QString("%1,%2").arg(Rastgele(3000)).arg(Rastgele(100)), 2); }

    void ÜrünFormunda(const std::function<void()>& iş) { Modal("ÜrünEkleSilMenüsü", "ÜrünEkleSilFormu", iş); }
    void MalzemeFormunda(const std::function<void()>& iş) { Modal("MalzemeEkleSilMenüsü", "MalzemeEkleSilFormu", iş); }

    // A second click on the current node would begin to rename it.
    void BirKezTıkla(const QString& grup, const QString& ürün = {}) {
        if (Bul<QTreeView>(Ağaç).currentIndex() != Yer(Ağaç, grup, ürün)) Seç(grup, ürün);
        ASSERT_EQ(Bul<QTreeView>(Ağaç).currentIndex(), Yer(Ağaç, grup, ürün)) << "a click makes a node current";
    }

    // A product is selected with a click; false when there is none.
    bool ÜrünSeçilsin() {
        if (m_model.Ürünler.isEmpty()) return false;
        const auto ürün = Biri(m_model.Ürünler);
        m_grup = ürün[VM::Grup];
        m_ürün = ürün[VM::Ürün];
        BirKezTıkla(m_grup, m_ürün);
        return true;
    }

    void ÜrünEkle() {
        const QString grup = Biri(Gruplar);
        const QString ad = Biri(ÜrünAdları);
        const bool vazgeç = Rastgele(5) == 0;
        const bool var = VM::Var(m_model.Ürünler, {{VM::Grup, grup}, {VM::Ürün, ad}});
        ÜrünFormunda([&] {
            Tıkla("ÜrünEkleKaydetButonu");
            Yaz("ÜrünGrubuListesi", grup);
            Yaz("ÜrünAdıKutusu", ad);
            if (!vazgeç) {
                if (var) Kutular().Yanıtla(Yanıt::Tamam);
                Tıkla("ÜrünEkleKaydetButonu");
            }
        });
        if (!vazgeç && !var) m_model.Ürünler += {grup, ad, "0", "0", "0", "0"};
    }

    void ÜrünSil() {
        if (m_model.Ürünler.isEmpty()) return;
        const auto ürün = Biri(m_model.Ürünler);
        const bool grupMu = Rastgele(4) == 0;
        const bool evet = Belki();
        ÜrünFormunda([&] {
            Bul<QTreeView>(Ağaç).setCurrentIndex(Yer(Ağaç, ürün[VM::Grup], grupMu ? QString() : ürün[VM::Ürün]));
            if (grupMu) Kutular().Yanıtla(Yanıt::Evet);
            Kutular().Yanıtla(evet ? Yanıt::Evet : Yanıt::Hayır);
            Tıkla("ÜrünSilButonu");
        });
        if (!evet) return;
        VM::Değerler koşul{{VM::Grup, ürün[VM::Grup]}};
        if (!grupMu) koşul[VM::Ürün] = ürün[VM::Ürün];
        for (VM::Satırlar* tablo : {&m_model.Ürünler, &m_model.Kullanımlar}) VM::Sil(*tablo, koşul);
    }

    void Adlandır() {
        if (!ÜrünSeçilsin()) return;
        const bool grupMu = Belki();
        if (grupMu) BirKezTıkla(m_grup);
        QString yeni = Biri(grupMu ? Gruplar : ÜrünAdları);
        if (Belki()) yeni = yeni.toUpper();
        const QString eski = grupMu ? m_grup : m_ürün;
        // Groups that have a product in common become one only if the user wants it.
        const bool sorulacak = grupMu && m_model.OrtakÜrünVar(eski, yeni);
        const bool vazgeç = sorulacak && Belki();
        // Another product of the group bears the name.
        bool tamam = true;
        for (const QStringList& aynı : VM::Bul(m_model.Ürünler, {{VM::Grup, m_grup}, {VM::Ürün, yeni}}))
            tamam = tamam && (grupMu || yeni == eski || aynı[VM::Ürün] == eski);
        if (sorulacak || !tamam) Kutular().Yanıtla(!tamam ? Yanıt::Tamam : vazgeç ? Yanıt::Hayır : Yanıt::Evet);
        YeniAdVer(yeni);
        EXPECT_EQ(Düzenleyici() != nullptr, !tamam) << "a refused name can be typed again";
        if (!tamam) QTest::keyClick(Düzenleyici(), Qt::Key_Escape);
        EXPECT_TRUE(Bekle([this] { return !Düzenleyici(); }));
        if (!tamam || vazgeç || yeni == eski) return;
        for (VM::Satırlar* tablo : {&m_model.Ürünler, &m_model.Kullanımlar})
            grupMu ? VM::Değiştir(*tablo, {{VM::Grup, eski}}, {{VM::Grup, yeni}})
                   : VM::Değiştir(*tablo, {{VM::Grup, m_grup}, {VM::Ürün, eski}}, {{VM::Ürün, yeni}});
    }

    void MalzemeEkle() {
        const QString ad = Biri(Malzemeler);
        const QString fiyat = RastgeleFiyat();
        const bool var = VM::Var(m_model.Malzemeler, {{VM::Ad, ad}});
        MalzemeFormunda([&] {
            Tıkla("MalzemeEkleKaydetButonu");
            Yaz("MalzemeAdıKutusu", ad);
            Yaz("MalzemeFiyatıKutusu", fiyat);
            if (var) Kutular().Yanıtla(Yanıt::Tamam);
            Tıkla("MalzemeEkleKaydetButonu");
        });
        if (!var) m_model.Malzemeler += {ad, fiyat};
    }

    void MalzemeSil() {
        if (m_model.Malzemeler.isEmpty()) return;
        const QString ad = Biri(m_model.Malzemeler)[VM::Ad];
        const bool ürünlerdenDe = Belki();
        MalzemeFormunda([&] {
            Yaz("MalzemeBulKutusu", ad);
            Kutular().Yanıtla(Yanıt::Evet);
            Kutular().Yanıtla(ürünlerdenDe ? Yanıt::Evet : Yanıt::Hayır);
            Tıkla("MalzemeSilButonu");
        });
        VM::Sil(m_model.Malzemeler, {{VM::Ad, ad}});
        if (ürünlerdenDe) VM::Sil(m_model.Kullanımlar, {{VM::Malzeme, ad}});
    }

    void FiyatDeğiştir() {
        if (m_model.Malzemeler.isEmpty()) return;
        const QString ad = Biri(m_model.Malzemeler)[VM::Ad];
        const QString fiyat = RastgeleFiyat();
        const bool vazgeç = Rastgele(4) == 0;
        MalzemeFormunda([&] {
            Yaz("MalzemeBulKutusu", ad);
            Tıkla("MalzemeFiyatıDeğiştirButonu");
            Yaz("MalzemeFiyatıKutusu", fiyat);
            if (!vazgeç) Tıkla("MalzemeFiyatıDeğiştirButonu");
        });
        if (vazgeç) return;
        VM::Değiştir(m_model.Malzemeler, {{VM::Ad, ad}}, {{VM::Fiyatı, fiyat}});
        VM::Değiştir(m_model.Kullanımlar, {{VM::Malzeme, ad}}, {{VM::Fiyat, fiyat}});
    }

    void Aktar() {
        if (m_model.Malzemeler.isEmpty() || !ÜrünSeçilsin()) return;
        m_bugün = m_bugün.addDays(Rastgele(3));
        const bool vazgeç = Rastgele(4) == 0;
        VM::Satırlar satırlar;
        const auto iş = [&] {
            const int sayı = 1 + Rastgele(3);
            for (int i = 0; i < sayı; ++i) {
                const auto malzeme = Biri(m_model.Malzemeler);
                const QString miktar = QString("%1,5").arg(Rastgele(2000));
                const QString tür = Biri(Türler);
                Yaz("MalzemeBulKutusu", malzeme[VM::Ad]);
                Yaz("MalzemeMiktarıKutusu", miktar);
                Yaz("MiktarTürüListesi", tür);
                if (VM::Var(satırlar, {{VM::Malzeme, malzeme[VM::Ad]}})) Kutular().Yanıtla(Yanıt::Evet);
                Tıkla("ListeyeEkleButonu");
                satırlar += {m_grup,
                             m_ürün,
                             malzeme[VM::Ad],
                             *SayıMetniBiçimle(miktar, 2) + ' ' + tür,
                             malzeme[VM::Fiyatı],
                             m_bugün.toString(Qt::ISODate)};
            }
            if (vazgeç) return;
            Kutular().Yanıtla(Yanıt::Evet);
            Tıkla("ListeyiAktarButonu");
        };
        Modal("ListeyeMalzemeEkleButonu", "MalzemeListesiOluşturFormu", iş);
        if (vazgeç) return;
        // What the product used before the transfer is replaced, in each of its rows.
        const VM::Satırlar önce = m_model.Kullanımlar;
        for (const QStringList& satır : satırlar) {
            const VM::Değerler aynısı{{VM::Grup, m_grup}, {VM::Ürün, m_ürün}, {VM::Malzeme, satır[VM::Malzeme]}};
            if (!VM::Var(önce, aynısı)) m_model.Kullanımlar += satır;
            for (QStringList& k : m_model.Kullanımlar)
                if (VM::Var(önce, aynısı) && VM::Uyar(k, aynısı)) k = satır;
        }
    }

    void Çıkar() {
        if (!ÜrünSeçilsin() || Satırlar(Liste).isEmpty()) return;
        const QString malzeme = Biri(Satırlar(Liste).split("; ")).section('|', 1, 1);
        auto& liste = Bul<QTreeView>(Liste);
        liste.setCurrentIndex(liste.model()->match(liste.model()->index(0, 1), Qt::DisplayRole, malzeme).value(0));
        const bool evet = Belki();
        Kutular().Yanıtla(evet ? Yanıt::Evet : Yanıt::Hayır);
        Tıkla("ListedenMalzemeSilButonu");
        if (evet) VM::Sil(m_model.Kullanımlar, {{VM::Grup, m_grup}, {VM::Ürün, m_ürün}, {VM::Malzeme, malzeme}});
    }

    void YüzdeKaydet() {
        if (!ÜrünSeçilsin() || Satırlar(Liste).isEmpty()) return;
        const QString yüzde = QString("-%1,25").arg(Rastgele(50));
        Yaz("DiğerMaliyetYüzdesiKutusu", yüzde);
        if (Belki()) return;
        Tıkla("DeğişiklikleriKaydetButonu");
        EXPECT_FALSE(Etkin("DeğişiklikleriKaydetButonu"));
        VM::Değiştir(m_model.Ürünler, {{VM::Grup, m_grup}, {VM::Ürün, m_ürün}}, {{VM::DiğerYüzdesi, yüzde}});
    }

    void BirAdım(int tür) {
        using İş = void (Model::*)();
        static constexpr std::array<İş, İşSayısı> İşler = {
            &Model::ÜrünEkle,    &Model::ÜrünEkle,   &Model::ÜrünSil,       &Model::Adlandır, &Model::MalzemeEkle,
            &Model::MalzemeEkle, &Model::MalzemeSil, &Model::FiyatDeğiştir, &Model::Aktar,    &Model::Aktar,
            &Model::Aktar,       &Model::Çıkar,      &Model::YüzdeKaydet};
        (this->*İşler.at(static_cast<std::size_t>(tür)))();
    }

    void Karşılaştır(const QString& adım) {
        SCOPED_TRACE(adım.toStdString());
        const auto düz = [](const QList<QStringList>& satırlar) {
            std::string metin;
            for (const QStringList& satır : satırlar) metin += satır.join('|').toStdString() + '\n';
            return metin;
        };
        ASSERT_EQ(düz(Veri().HerSatır()), düz(m_model.HerSatır()));
        QStringList ağaç, gruplar, düğümler;
        for (const QString& düğüm : Satırlar(Ağaç).split("; ", Qt::SkipEmptyParts)) {
            if (!düğüm.startsWith('-')) gruplar += düğüm;
            ağaç += düğüm.startsWith('-') ? gruplar.last() + düğüm : düğüm;
        }
        for (const QStringList& ü : m_model.Ürünler) {
            if (!düğümler.contains(ü[VM::Grup])) düğümler += ü[VM::Grup];
            düğümler += ü[VM::Grup] + '-' + ü[VM::Ürün];
        }
        düğümler.sort();
        ağaç.sort();
        ASSERT_EQ(ağaç, düğümler);
        const QModelIndex seçili = Bul<QTreeView>(Ağaç).currentIndex();
        const QModelIndex grubu = seçili.parent();
        QStringList beklenen;
        if (grubu.isValid()) beklenen = m_model.Liste(grubu.data().toString(), seçili.data().toString());
        QStringList liste = Satırlar(Liste).split("; ", Qt::SkipEmptyParts);
        liste.sort();
        ASSERT_EQ(liste, beklenen);
    }

    const quint32 m_tohum;
    QRandomGenerator m_rastgele;
    QDate m_bugün{2026, 1, 1};
    VeriModeli m_model;
    QString m_grup;  // of the product that ÜrünSeçilsin has selected
    QString m_ürün;
};

TEST_F(Model, RastgeleİşlerdenSonraVeriModelinAynıdır) {
    RecordProperty("seed", static_cast<int>(m_tohum));
    Kutular().Yanıtla(Yanıt::Hayır);
    Aç();
    const int adımlar = static_cast<int>(Sayı("VARNEK_ADIM", 2000));
    for (int adım = 0; adım < adımlar; ++adım) {
        const int tür = Rastgele(İşSayısı);
        BirAdım(tür);
        Kutular().Al();
        Karşılaştır(QString("seed %1, step %2, kind %3").arg(m_tohum).arg(adım).arg(tür));
        if (HasFailure()) return;
    }
}

}  // namespace
