#include "Yukleyiciler.h"

#include <QHash>
#include <QListWidget>
#include <QSignalBlocker>
#include <QTreeWidget>

#include "Deyimler.h"
#include "OdbcModulu.h"
#include "YuklemeGosterFormu.h"

namespace {

// Rows of groups that differ only in letter case may interleave in the data file's order, so each group's node is
// looked up by its exact text; most rows belong to the group of the row before.
class GrupDüğümleri {
  public:
    QTreeWidgetItem* Düğüm(const QString& grup) {
        if (!m_son || grup != m_sonGrup) {
            m_sonGrup = grup;
            QTreeWidgetItem*& düğüm = m_düğümler[grup];
            if (!düğüm) {
                düğüm = new QTreeWidgetItem(QStringList(grup));
                m_sıra.append(düğüm);
            }
            m_son = düğüm;
        }
        return m_son;
    }
    const QList<QTreeWidgetItem*>& Sıra() const { return m_sıra; }

  private:
    QHash<QString, QTreeWidgetItem*> m_düğümler;
    QList<QTreeWidgetItem*> m_sıra;
    QString m_sonGrup;
    QTreeWidgetItem* m_son = nullptr;
};

}  // namespace

Okuma ÜrünAğacınıYükle(QTreeWidget& ağaç) {
    const QSignalBlocker sessiz(ağaç);
    ağaç.clear();
    SQLMetni = Deyimler::ÜrünSayısı();
    Yüklemeİlerlemesi ilerleme(KayıtSayısıAl());
    GrupDüğümleri gruplar;
    const Okuma okuma = SatırlarıOku(Deyimler::ÜrünAğacı(), [&] {
        QTreeWidgetItem* grup = gruplar.Düğüm(SütunOku(1));
        new QTreeWidgetItem(grup, QStringList(SütunOku(2)));
        ilerleme.Arttır();
    });
    ağaç.addTopLevelItems(gruplar.Sıra());
    return okuma;
}

Okuma MalzemeListesiniYükle(QListWidget& liste) {
    const QSignalBlocker sessiz(liste);
    liste.clear();
    SQLMetni = Deyimler::MalzemeSayısı();
    Yüklemeİlerlemesi ilerleme(KayıtSayısıAl());
    QStringList adlar;
    const Okuma okuma = SatırlarıOku(Deyimler::MalzemeListesi(), [&] {
        adlar.append(SütunOku(1));
        ilerleme.Arttır();
    });
    liste.addItems(adlar);
    return okuma;
}
