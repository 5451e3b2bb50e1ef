// What the user waits for on the main form, each beside what the bare parts take.
#include <QApplication>
#include <QLineEdit>
#include <QTest>
#include <QTreeWidget>
#include <map>

#include "AnaForm.h"
#include "Cift.h"
#include "Deyimler.h"
#include "OlcumFormOrtami.h"
#include "SayiYereli.h"
#include "Yukleyiciler.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int AzSatır = 1'000;
constexpr int ÇokSatır = 1'000'000;  // 50,000 products in 1,000 groups
constexpr int Kalabalık = 1'700;     // materials of one product

// The main form on one data file. It is opened once and kept; its products are picked in a fixed, scattered order.
class AçıkForm {
  public:
    explicit AçıkForm(const QString& klasör) : m_klasör(klasör), m_form({[] {}, [](bool, QPoint) { return true; }}) {
        ÖlçümOrtamı::Bağlan(klasör);
        m_form.Yükle();
        m_ağaç = m_form.findChild<QTreeWidget*>(u"ÜrünListesi"_s);
        m_liste = m_form.findChild<QTreeWidget*>(u"KullanılanMalzemeListesi"_s);
        for (int grup = 0; grup < m_ağaç->topLevelItemCount(); ++grup) {
            QTreeWidgetItem* düğüm = m_ağaç->topLevelItem(grup);
            for (int ürün = 0; ürün < düğüm->childCount(); ++ürün) m_ürünler.append(düğüm->child(ürün));
        }
    }

    static AçıkForm& Al(const QString& klasör) {
        AçıkForm& form = Formlar().try_emplace(klasör, klasör).first->second;
        ÖlçümOrtamı::Bağlan(klasör);
        return form;
    }

    // All of them, to be cleared before the application ends.
    static std::map<QString, AçıkForm>& Formlar() {
        static std::map<QString, AçıkForm> formlar;
        return formlar;
    }

    // The highlight moves, but nothing is loaded.
    void Sessizce(QTreeWidgetItem* düğüm) {
        const QSignalBlocker sessiz(m_ağaç);
        m_ağaç->setCurrentItem(düğüm);
        QApplication::processEvents();
    }
    QTreeWidgetItem* SıradakiÜrün() {
        m_sıra = (m_sıra + 7919) % m_ürünler.size();
        return m_ürünler[m_sıra];
    }
    QTreeWidgetItem* Ürün(const QString& ad) {
        for (QTreeWidgetItem* ürün : m_ürünler) {
            if (ürün->text(0) == ad) return ürün;
        }
        qFatal("no such product");
    }

    // From the first statement to the shown list.
    void YükleVeGöster() {
        m_form.ÜrünListesiTıkla();
        m_liste->viewport()->repaint();
    }

    AnaForm& Form() { return m_form; }
    QTreeWidget& Liste() { return *m_liste; }

  private:
    QString m_klasör;
    AnaForm m_form;
    QTreeWidget* m_ağaç = nullptr;
    QTreeWidget* m_liste = nullptr;
    QList<QTreeWidgetItem*> m_ürünler;
    qsizetype m_sıra = 0;
};

ÖlçümYüzü ÜrünSeçimi(int satırSayısı) {
    return [satırSayısı](benchmark::State& durum) {
        AçıkForm& form = AçıkForm::Al(ÖlçümOrtamı::VeriKlasörü(satırSayısı));
        for (auto _ : durum) {
            durum.PauseTiming();
            form.Sessizce(form.SıradakiÜrün());
            durum.ResumeTiming();
            form.YükleVeGöster();
        }
        if (form.Liste().topLevelItemCount() != 20) durum.SkipWithError("the list is not filled");
    };
}

void AğacıYükle(benchmark::State& durum) {
    ÖlçümOrtamı::Bağlan(ÖlçümOrtamı::VeriKlasörü(ÇokSatır));
    QTreeWidget ağaç;
    for (auto _ : durum) {
        ÜrünAğacınıYükle(ağaç);
        durum.PauseTiming();
        if (ağaç.topLevelItemCount() != 1000) durum.SkipWithError("the tree is not filled");
        ağaç.clear();
        durum.ResumeTiming();
    }
}

void ÇıplakAğaç(benchmark::State& durum) {
    const auto vt = ÖlçümOrtamı::ÇıplakAç(ÖlçümOrtamı::VeriKlasörü(ÇokSatır));
    QTreeWidget ağaç;
    for (auto _ : durum) {
        const auto sorgu = ÖlçümOrtamı::ÇıplakSorgu(vt.get(), Deyimler::ÜrünAğacı().toUtf8());
        QList<QTreeWidgetItem*> gruplar;
        while (sqlite3_step(sorgu.get()) == SQLITE_ROW) {
            const QString grup = ÖlçümOrtamı::ÇıplakMetin(sorgu.get(), 0);
            if (gruplar.isEmpty() || gruplar.last()->text(0) != grup) gruplar += new QTreeWidgetItem(QStringList(grup));
            new QTreeWidgetItem(gruplar.last(), QStringList(ÖlçümOrtamı::ÇıplakMetin(sorgu.get(), 1)));
        }
        ağaç.addTopLevelItems(gruplar);
        durum.PauseTiming();
        ağaç.clear();
        durum.ResumeTiming();
    }
}

void KalabalıkÜrün(benchmark::State& durum) {
    AçıkForm& form = AçıkForm::Al(ÖlçümOrtamı::VeriKlasörü(AzSatır, Kalabalık));
    form.Sessizce(form.Ürün(ÖlçümOrtamı::KalabalıkÜrün()));
    for (auto _ : durum) form.YükleVeGöster();
    if (form.Liste().topLevelItemCount() != Kalabalık) durum.SkipWithError("the list is not filled");
}

// Reads the same rows, and puts the texts that the form shows for them into the same list.
void ÇıplakKalabalık(benchmark::State& durum) {
    AçıkForm& form = AçıkForm::Al(ÖlçümOrtamı::VeriKlasörü(AzSatır, Kalabalık));
    QTreeWidget& liste = form.Liste();
    form.Sessizce(form.Ürün(ÖlçümOrtamı::KalabalıkÜrün()));
    form.YükleVeGöster();
    QList<QStringList> metinler;
    for (int i = 0; i < Kalabalık; ++i) {
        const QTreeWidgetItem* satır = liste.topLevelItem(i);
        metinler += {satır->text(0), satır->text(1), satır->text(2), satır->text(3)};
    }
    const auto vt = ÖlçümOrtamı::ÇıplakAç(ÖlçümOrtamı::VeriKlasörü(AzSatır, Kalabalık));
    const QByteArray sql =
        Deyimler::KullanılanMalzemeler(ÖlçümOrtamı::KalabalıkGrup(), ÖlçümOrtamı::KalabalıkÜrün()).toUtf8();
    for (auto _ : durum) {
        liste.clear();
        const auto sorgu = ÖlçümOrtamı::ÇıplakSorgu(vt.get(), sql);
        QList<QTreeWidgetItem*> satırlar;
        while (sqlite3_step(sorgu.get()) == SQLITE_ROW) {
            for (int sütun = 0; sütun < 3; ++sütun) {
                benchmark::DoNotOptimize(ÖlçümOrtamı::ÇıplakMetin(sorgu.get(), sütun));
            }
            satırlar += new QTreeWidgetItem(metinler[satırlar.size()]);
        }
        liste.addTopLevelItems(satırlar);
        liste.viewport()->repaint();
    }
}

// A keystroke in a percentage box: no statement may be sent.
void YüzdeTuşu(benchmark::State& durum) {
    AçıkForm& form = AçıkForm::Al(ÖlçümOrtamı::VeriKlasörü(AzSatır));
    form.Sessizce(form.SıradakiÜrün());
    const long önceki = ÖlçümOrtamı::GönderilenDeyim();
    form.YükleVeGöster();
    const long yükleme = ÖlçümOrtamı::GönderilenDeyim();
    auto* kutu = form.Form().findChild<QLineEdit*>(u"İşçilikYüzdesiKutusu"_s);
    auto* toplam = form.Form().findChild<QLineEdit*>(u"ToplamMaliyetKutusu"_s);
    form.Form().activateWindow();
    kutu->setFocus();
    kutu->clear();
    const QString ilk = toplam->text();
    for (auto _ : durum) {
        QTest::keyClick(kutu, Qt::Key_1);
        toplam->repaint();
        durum.PauseTiming();
        if (toplam->text() == ilk) durum.SkipWithError("the total cost was not recomputed");
        QTest::keyClick(kutu, Qt::Key_Backspace);
        durum.ResumeTiming();
    }
    const long tuş = ÖlçümOrtamı::GönderilenDeyim() - yükleme;
    durum.counters["statements"] = double(tuş);
    if (tuş != 0 || yükleme == önceki) durum.SkipWithError("statements were sent, or not counted");
}

}  // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    ÖlçümOrtamı::Kur();
    QApplication uygulama(argc, argv);
    SayıYereliniSabitle();
    ÇiftEkle("select product: 1,000,000 / 1,000 rows", 1.2, ÜrünSeçimi(ÇokSatır), ÜrünSeçimi(AzSatır));
    ÇiftEkle("fill tree: 50,000 products / bare", 1.5, AğacıYükle, ÇıplakAğaç);
    ÇiftEkle("product of 1,700 materials / bare", 1.5, KalabalıkÜrün, ÇıplakKalabalık);
    benchmark::RegisterBenchmark("keystroke in a percentage box", YüzdeTuşu)->Unit(benchmark::kMillisecond);
    const int sonuç = ÇiftleriÖlç(argc, argv);
    AçıkForm::Formlar().clear();
    return sonuç;
}
