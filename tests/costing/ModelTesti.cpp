// A random sequence of everything that changes the data, done through the forms with keys and mouse. After each step
// the data file, the tree and the shown list equal a plain model of what they should be.
// VARNEK_TOHUM sets the seed, VARNEK_ADIM the number of steps.

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QListWidget>
#include <QRandomGenerator>
#include <array>

#include "FormOrtami.h"
#include "ModalBekleyici.h"
#include "Saat.h"
#include "SayiMetni.h"
#include "VeriModeli.h"

using MesajKutusu::Yanıt;

namespace {

const QStringList Gruplar = {QStringLiteral("MASA"), QStringLiteral("DOLAP"), QStringLiteral("ÇEKMECE"),
                             QStringLiteral("IŞIK"), QStringLiteral("İSKELE")};
const QStringList Adlar = {QStringLiteral("Sehpa"), QStringLiteral("Işıklı Vitrin"), QStringLiteral("İnce Raf"),
                           QStringLiteral("Çatı"), QStringLiteral("Üç Ayaklı Tabure")};
const QStringList Malzemeler = {QStringLiteral("Vida"),     QStringLiteral("Çivi"),  QStringLiteral("Ihlamur"),
                                QStringLiteral("İp"),       QStringLiteral("Şerit"), QStringLiteral("Ölçü Bandı"),
                                QStringLiteral("Gazlı Bez")};
const QStringList Türler = {QStringLiteral("Adet"), QStringLiteral("Metre"), QStringLiteral("Kutu")};

constexpr int İşSayısı = 13;

class Model : public FormOrtamı {
  protected:
    Model() : m_tohum(Sayı("VARNEK_TOHUM", QRandomGenerator::global()->generate())), m_rastgele(m_tohum) {
        SaatiAyarla([this] { return m_bugün; });
    }

    static quint32 Sayı(const char* değişken, quint32 yoksa) {
        bool tamam = false;
        const quint32 sayı = qEnvironmentVariable(değişken).toUInt(&tamam);
        return tamam ? sayı : yoksa;
    }
    int Rastgele(int n) { return static_cast<int>(m_rastgele.bounded(n)); }
    const QString& Biri(const QStringList& adlar) { return adlar.at(Rastgele(static_cast<int>(adlar.size()))); }
    bool Belki() { return Rastgele(2) == 0; }
    QString RastgeleFiyat() {
        return *SayıMetniBiçimle(QStringLiteral("%1,%2").arg(Rastgele(3000)).arg(Rastgele(100)), 2);
    }

    static void Yazı(QWidget& kutu, const QString& metin) {
        QApplication::setActiveWindow(kutu.window());
        kutu.setFocus();
        auto* satır = qobject_cast<QLineEdit*>(&kutu);
        if (auto* açılır = qobject_cast<QComboBox*>(&kutu)) satır = açılır->lineEdit();
        satır->selectAll();
        for (const QChar harf : metin) {
            QKeyEvent bas(QEvent::KeyPress, 0, Qt::NoModifier, QString(harf));
            QApplication::sendEvent(&kutu, &bas);
        }
    }
    static void Bas(QWidget& form, const char* düğme) {
        QTest::mouseClick(form.findChild<QAbstractButton*>(QString::fromUtf8(düğme)), Qt::LeftButton);
    }
    static QWidget& Kutu(QWidget& form, const char* ad) { return *form.findChild<QWidget*>(QString::fromUtf8(ad)); }
    static void Esc(QWidget& form) { QTest::keyClick(&form, Qt::Key_Escape); }

    void Menüden(const char* giriş, const char* form, const std::function<void(QWidget&)>& iş) {
        ModalAç([&] { Form().findChild<QAction*>(QString::fromUtf8(giriş))->trigger(); }, QString::fromUtf8(form), iş);
    }
    void ÜrünFormunda(const std::function<void(QWidget&)>& iş) { Menüden("ÜrünEkleSilMenüsü", "ÜrünEkleSilFormu", iş); }
    void MalzemeFormunda(const std::function<void(QWidget&)>& iş) {
        Menüden("MalzemeEkleSilMenüsü", "MalzemeEkleSilFormu", iş);
    }

    void ÜrünEkle();
    void ÜrünSil();
    void Adlandır();
    void MalzemeEkle();
    void MalzemeSil();
    void FiyatDeğiştir();
    void Aktar();
    void Çıkar();
    void YüzdeKaydet();
    void BirAdım(int tür);
    void Karşılaştır(const QString& adım);

    // A second click on the current node would begin to rename it.
    void BirKezTıkla(QTreeWidgetItem* düğüm) {
        if (Ağaç().currentItem() != düğüm) Tıkla(düğüm);
        ASSERT_EQ(Ağaç().currentItem(), düğüm) << "a click makes a node current";
    }

    // A product is selected with a click; false when there is none.
    bool ÜrünSeçilsin() {
        if (m_model.Ürünler.isEmpty()) return false;
        const auto ürün = m_model.Ürünler.at(Rastgele(static_cast<int>(m_model.Ürünler.size())));
        BirKezTıkla(Düğüm(ürün.Grup, ürün.Ad));
        m_grup = ürün.Grup;
        m_ürün = ürün.Ad;
        return true;
    }

    const quint32 m_tohum;
    QRandomGenerator m_rastgele;
    QDate m_bugün{2026, 1, 1};
    VeriModeli m_model;
    QString m_grup;  // of the product that ÜrünSeçilsin has selected
    QString m_ürün;
};

void Model::ÜrünEkle() {
    const QString grup = Biri(Gruplar);
    const QString ad = Biri(Adlar);
    const bool vazgeç = Rastgele(5) == 0;
    const bool var = m_model.ÜrünVar(grup, ad);
    ÜrünFormunda([&](QWidget& form) {
        Bas(form, "ÜrünEkleKaydetButonu");
        Yazı(Kutu(form, "ÜrünGrubuListesi"), grup);
        Yazı(Kutu(form, "ÜrünAdıKutusu"), ad);
        if (!vazgeç) {
            if (var) Kutular().Yanıtla(Yanıt::Tamam);
            Bas(form, "ÜrünEkleKaydetButonu");
        }
        if (vazgeç || var) Esc(form);
        Esc(form);
    });
    const QString sıfır = QStringLiteral("0");
    if (!vazgeç && !var) m_model.Ürünler.append({grup, ad, {sıfır, sıfır, sıfır, sıfır}});
}

void Model::ÜrünSil() {
    if (m_model.Ürünler.isEmpty()) return;
    const auto ürün = m_model.Ürünler.at(Rastgele(static_cast<int>(m_model.Ürünler.size())));
    const bool grupMu = Rastgele(4) == 0;
    const bool evet = Belki();
    ÜrünFormunda([&](QWidget& form) {
        auto* ağaç = form.findChild<QTreeWidget*>();
        QTreeWidgetItem* düğüm = ağaç->findItems(ürün.Grup, Qt::MatchExactly).value(0);
        for (int i = 0; !grupMu && i < düğüm->childCount(); ++i) {
            if (düğüm->child(i)->text(0) == ürün.Ad) {
                düğüm = düğüm->child(i);
                break;
            }
        }
        ağaç->setCurrentItem(düğüm);
        if (grupMu) Kutular().Yanıtla(Yanıt::Evet);
        Kutular().Yanıtla(evet ? Yanıt::Evet : Yanıt::Hayır);
        Bas(form, "ÜrünSilButonu");
        Esc(form);
    });
    if (evet && grupMu) m_model.GrubuSil(ürün.Grup);
    if (evet && !grupMu) m_model.ÜrünüSil(ürün.Grup, ürün.Ad);
}

void Model::Adlandır() {
    if (!ÜrünSeçilsin()) return;
    const bool grupMu = Belki();
    if (grupMu) BirKezTıkla(Düğüm(m_grup));
    QString yeni = Biri(grupMu ? Gruplar : Adlar);
    if (Belki()) yeni = yeni.toUpper();
    const QString eski = grupMu ? m_grup : m_ürün;
    VeriModeli sonra = m_model;
    // Groups that have a product in common become one only if the user wants it.
    const bool sorulacak = grupMu && m_model.OrtakÜrünVar(eski, yeni);
    const bool vazgeç = sorulacak && Belki();
    bool tamam = true;
    if (yeni != eski && grupMu) sonra.GrubuAdlandır(m_grup, yeni);
    if (yeni != eski && !grupMu) tamam = sonra.ÜrünüAdlandır(m_grup, m_ürün, yeni);
    bool soruldu = false;
    if (sorulacak) {
        Kutular().Yanıtla(vazgeç ? Yanıt::Hayır : Yanıt::Evet, [&](const MesajKutusu::İstek&) { soruldu = true; });
    }
    if (!tamam) Kutular().Yanıtla(Yanıt::Tamam, [&](const MesajKutusu::İstek&) { soruldu = true; });
    // An editor that has closed lives on unseen for a while.
    const auto düzenleyici = [this]() -> QLineEdit* {
        for (auto* kutu : Ağaç().findChildren<QLineEdit*>(QStringLiteral("AdDüzenleyici"))) {
            if (kutu->isVisible()) return kutu;
        }
        return nullptr;
    };
    QTreeWidgetItem* düğüm = Ağaç().currentItem();
    QTest::keyClick(&Ağaç(), Qt::Key_F2);
    ASSERT_TRUE(düzenleyici());
    Yazı(*düzenleyici(), yeni);
    QTest::keyClick(düzenleyici(), Qt::Key_Return);
    if (vazgeç) {
        EXPECT_TRUE(Bekle([&] { return soruldu; }));
    } else if (tamam) {
        // A rename that makes groups one builds the tree anew.
        EXPECT_TRUE(Bekle([&] { return Ağaç().currentItem() != düğüm || düğüm->text(0) == yeni; }));
    } else {
        EXPECT_TRUE(Bekle([&] { return soruldu && düzenleyici(); }));
        QTest::keyClick(düzenleyici(), Qt::Key_Escape);
    }
    EXPECT_TRUE(Bekle([&] { return !düzenleyici(); }));
    if (tamam && !vazgeç) m_model = sonra;
}

void Model::MalzemeEkle() {
    const QString ad = Biri(Malzemeler);
    const QString fiyat = RastgeleFiyat();
    const bool var = m_model.MalzemeVar(ad);
    MalzemeFormunda([&](QWidget& form) {
        Bas(form, "MalzemeEkleKaydetButonu");
        Yazı(Kutu(form, "MalzemeAdıKutusu"), ad);
        Yazı(Kutu(form, "MalzemeFiyatıKutusu"), fiyat);
        if (var) Kutular().Yanıtla(Yanıt::Tamam);
        Bas(form, "MalzemeEkleKaydetButonu");
        if (var) Esc(form);
        Esc(form);
    });
    if (!var) m_model.Malzemeler.append({ad, fiyat});
}

void Model::MalzemeSil() {
    if (m_model.Malzemeler.isEmpty()) return;
    const QString ad = m_model.Malzemeler.at(Rastgele(static_cast<int>(m_model.Malzemeler.size()))).Ad;
    const bool ürünlerdenDe = Belki();
    MalzemeFormunda([&](QWidget& form) {
        Yazı(Kutu(form, "MalzemeBulKutusu"), ad);
        Kutular().Yanıtla(Yanıt::Evet);
        Kutular().Yanıtla(ürünlerdenDe ? Yanıt::Evet : Yanıt::Hayır);
        Bas(form, "MalzemeSilButonu");
        Esc(form);
    });
    m_model.MalzemeSil(ad, ürünlerdenDe);
}

void Model::FiyatDeğiştir() {
    if (m_model.Malzemeler.isEmpty()) return;
    const QString ad = m_model.Malzemeler.at(Rastgele(static_cast<int>(m_model.Malzemeler.size()))).Ad;
    const QString fiyat = RastgeleFiyat();
    const bool vazgeç = Rastgele(4) == 0;
    MalzemeFormunda([&](QWidget& form) {
        Yazı(Kutu(form, "MalzemeBulKutusu"), ad);
        Bas(form, "MalzemeFiyatıDeğiştirButonu");
        Yazı(Kutu(form, "MalzemeFiyatıKutusu"), fiyat);
        if (vazgeç) {
            Esc(form);
        } else {
            Bas(form, "MalzemeFiyatıDeğiştirButonu");
        }
        Esc(form);
    });
    if (!vazgeç) m_model.FiyatDeğiştir(ad, fiyat);
}

void Model::Aktar() {
    if (m_model.Malzemeler.isEmpty() || !ÜrünSeçilsin()) return;
    m_bugün = m_bugün.addDays(Rastgele(3));
    const bool vazgeç = Rastgele(4) == 0;
    QList<VeriModeli::Kullanım> satırlar;
    const auto iş = [&](QWidget& form) {
        const int sayı = 1 + Rastgele(3);
        for (int i = 0; i < sayı; ++i) {
            const auto malzeme = m_model.Malzemeler.at(Rastgele(static_cast<int>(m_model.Malzemeler.size())));
            const QString miktar = QStringLiteral("%1,5").arg(Rastgele(2000));
            const QString tür = Biri(Türler);
            Yazı(Kutu(form, "MalzemeBulKutusu"), malzeme.Ad);
            Yazı(Kutu(form, "MalzemeMiktarıKutusu"), miktar);
            Yazı(Kutu(form, "MiktarTürüListesi"), tür);
            for (const auto& satır : satırlar) {
                if (VeriModeli::Eş(satır.Malzeme, malzeme.Ad)) {
                    Kutular().Yanıtla(Yanıt::Evet);
                    break;
                }
            }
            Bas(form, "ListeyeEkleButonu");
            satırlar.append({m_bugün.toString(Qt::ISODate), m_grup, m_ürün, malzeme.Ad,
                             *SayıMetniBiçimle(miktar, 2) + QLatin1Char(' ') + tür, malzeme.Fiyat});
        }
        if (vazgeç) {
            Esc(form);
        } else {
            Kutular().Yanıtla(Yanıt::Evet);
            Bas(form, "ListeyiAktarButonu");
        }
    };
    ModalAç([&] { QTest::mouseClick(&Bul("ListeyeMalzemeEkleButonu"), Qt::LeftButton); },
            QStringLiteral("MalzemeListesiOluşturFormu"), iş);
    if (vazgeç) return;
    const QStringList varolan = m_model.KullanılanAdlar(m_grup, m_ürün);
    for (const auto& satır : satırlar) m_model.Aktar(varolan, satır);
}

void Model::Çıkar() {
    if (!ÜrünSeçilsin() || Liste().topLevelItemCount() == 0) return;
    QTreeWidgetItem* satır = Liste().topLevelItem(Rastgele(Liste().topLevelItemCount()));
    Liste().setCurrentItem(satır);
    const QString malzeme = satır->text(1);
    const bool evet = Belki();
    Kutular().Yanıtla(evet ? Yanıt::Evet : Yanıt::Hayır);
    QTest::mouseClick(&Bul("ListedenMalzemeSilButonu"), Qt::LeftButton);
    if (evet) m_model.Çıkar(m_grup, m_ürün, malzeme);
}

void Model::YüzdeKaydet() {
    if (!ÜrünSeçilsin() || Liste().topLevelItemCount() == 0) return;
    std::array<QString, 4> yüzdeler = m_model.İlkÜrün(m_grup, m_ürün)->Yüzdeler;
    yüzdeler[2] = QStringLiteral("-%1,25").arg(Rastgele(50));
    Yaz("DiğerMaliyetYüzdesiKutusu", yüzdeler[2]);
    const bool kaydet = Belki();
    if (!kaydet) return;
    QTest::mouseClick(&Bul("DeğişiklikleriKaydetButonu"), Qt::LeftButton);
    EXPECT_FALSE(Etkin("DeğişiklikleriKaydetButonu"));
    m_model.YüzdeleriKaydet(m_grup, m_ürün, yüzdeler);
}

void Model::BirAdım(int tür) {
    using İş = void (Model::*)();
    static constexpr std::array<İş, İşSayısı> İşler = {
        &Model::ÜrünEkle,    &Model::ÜrünEkle,   &Model::ÜrünSil,       &Model::Adlandır, &Model::MalzemeEkle,
        &Model::MalzemeEkle, &Model::MalzemeSil, &Model::FiyatDeğiştir, &Model::Aktar,    &Model::Aktar,
        &Model::Aktar,       &Model::Çıkar,      &Model::YüzdeKaydet};
    // The offscreen platform does not bring the window back once a modal form has gone.
    QApplication::setActiveWindow(&Form());
    const İş iş = İşler.at(static_cast<std::size_t>(tür));
    (this->*iş)();
}

void Model::Karşılaştır(const QString& adım) {
    SCOPED_TRACE(adım.toStdString());
    const auto birleşik = [](const QList<QStringList>& satırlar) {
        QStringList metinler;
        for (const QStringList& satır : satırlar) metinler.append(satır.join(QLatin1Char('|')) + QLatin1Char('\n'));
        return metinler.join(QString()).toStdString();
    };
    ASSERT_EQ(birleşik(HerSatır()), birleşik(m_model.HerSatır()));
    QMap<QString, QStringList> ağaç;
    for (int i = 0; i < Ağaç().topLevelItemCount(); ++i) {
        const QTreeWidgetItem* grup = Ağaç().topLevelItem(i);
        ASSERT_FALSE(ağaç.contains(grup->text(0))) << "a group has two nodes";
        for (int j = 0; j < grup->childCount(); ++j) ağaç[grup->text(0)].append(grup->child(j)->text(0));
        ağaç[grup->text(0)].sort();
    }
    ASSERT_EQ(ağaç, m_model.Ağaç());
    const QTreeWidgetItem* seçili = Ağaç().currentItem();
    QStringList beklenen;
    if (seçili && seçili->parent()) beklenen = m_model.Liste(seçili->parent()->text(0), seçili->text(0));
    QStringList liste = Satırlar();
    liste.sort();
    ASSERT_EQ(liste, beklenen);
}

TEST_F(Model, RastgeleİşlerdenSonraVeriModelinAynıdır) {
    RecordProperty("seed", static_cast<int>(m_tohum));
    Kutular().Yanıtla(Yanıt::Hayır);
    Aç();
    const int adımlar = static_cast<int>(Sayı("VARNEK_ADIM", 2000));
    for (int adım = 0; adım < adımlar; ++adım) {
        const int tür = Rastgele(İşSayısı);
        BirAdım(tür);
        Kutular().Al();
        Karşılaştır(QStringLiteral("seed %1, step %2, kind %3").arg(m_tohum).arg(adım).arg(tür));
        if (HasFailure()) return;
    }
}

}  // namespace
