#include "BulFormu.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QVBoxLayout>

#include "CizelgeKaydi.h"
#include "FormParcalari.h"
#include "IlerlemeKutusu.h"
#include "KesmesizKutu.h"
#include "ListeCizelgesi.h"
#include "MetinTablosu.h"
#include "FiyatIsi.h"
#include "OdbcModulu.h"
#include "Tablo.h"
#include "UrunMetinleri.h"

namespace {

enum Sütunlar { BAd, BGrup, BTür };

constexpr std::size_t EN_ÇOK_SATIR = 200;  // nobody reads more

}  // namespace

QString BulFormu::Kaynak::Hücre(std::size_t satır, int sütun) const {
    const ArananAd& ad = *Bulunanlar.İlkler[satır];
    switch (sütun) {
        case BAd:
            return ad.Ad;
        case BGrup:
            return ad.Grup;
        default:
            return Metin(ad.Malzeme ? ÜrünMetni::TürüMalzeme : ÜrünMetni::TürüÜrün);
    }
}

BulFormu::BulFormu(QWidget* sahip)
    : QDialog(sahip),
      m_model(m_kaynak, {{MetinNo::AdıSütunu, 34}, {MetinNo::GrubuSütunu, 22}, {MetinNo::TürSütunu, 9}}) {
    setObjectName(QStringLiteral("BulFormu"));
    setWindowTitle(Metin(ÜrünMetni::BulBaşlığı));
    m_kutu = new KesmesizKutu<GirişKutusu>;
    m_kutu->setObjectName(QStringLiteral("BulKutusu"));
    m_kutu->installEventFilter(this);  // comes before the box's own filter, to which Enter is Tab
    connect(m_kutu, &QLineEdit::textChanged, this, [this] { Ara(); });
    m_sayı = new QLabel;
    m_sayı->setObjectName(QStringLiteral("BulunanSayısıEtiketi"));
    m_tablo = new Tablo(QStringLiteral("BulunanlarListesi"), m_model);
    connect(m_tablo->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] { SeçimDeğişti(); });
    connect(m_tablo, &QAbstractItemView::doubleClicked, this, [this] { Git(); });
    Enterİleİlerlesin(m_tablo);
    m_git = DüğmeOluştur(QStringLiteral("GitButonu"), ÜrünMetni::Git, [this] { Git(); });
    Yerleştir();
    Ara();
}

BulFormu::~BulFormu() {
    delete m_tablo;  // before the model that it shows
}

void BulFormu::Yerleştir() {
    auto* liste = new QHBoxLayout;
    liste->addWidget(VurgulananEtiket(2, ÜrünMetni::Bulunanlar, m_tablo));
    liste->addStretch();
    liste->addWidget(m_sayı);
    auto* kapat = DüğmeOluştur(QStringLiteral("KapatButonu"), MetinNo::Kapat, [this] { reject(); });
    auto* düzen = new QVBoxLayout(this);
    düzen->addWidget(VurgulananEtiket(1, ÜrünMetni::Aranan, m_kutu));
    düzen->addWidget(m_kutu);
    düzen->addLayout(liste);
    düzen->addWidget(m_tablo, 1);
    auto* aktar = DüğmeOluştur(QStringLiteral("TabloyaAktarButonu"), ÜrünMetni::TabloyaAktar, [this] { Çizelgeye(); });
    DoluykenEtkin(*aktar, m_model);
    düzen->addLayout(DüğmeSırası({m_git, aktar, nullptr, kapat}));
    m_kutu->setFocus();
    BoyVer(*this, {640, 460});
}

bool BulFormu::Yükle() {
    İlerlemeKutusu kutu(ÜrünMetni::AdlarOkunuyor, 0, parentWidget());
    return İşSonucunuGöster(
        m_arama.Oku(ODBCBağlantısı(), [&kutu](std::int64_t okunan) { return kutu.Bildir(okunan); }));
}

void BulFormu::Ara() {
    m_kaynak.Bulunanlar = m_arama.Ara(m_kutu->text().simplified(), EN_ÇOK_SATIR);
    m_model.Yenile();
    m_tablo->setCurrentIndex(m_model.index(0, 0));  // what Enter goes to
    const std::size_t sayı = m_kaynak.Bulunanlar.Sayı;
    m_sayı->setText(sayı > EN_ÇOK_SATIR ? Metin(ÜrünMetni::İlkBulunanlar).arg(sayı).arg(EN_ÇOK_SATIR)
                                        : Metin(ÜrünMetni::BulunanSayısı).arg(sayı));
    SeçimDeğişti();
}

void BulFormu::SeçimDeğişti() {
    const std::optional<std::size_t> satır = m_tablo->SeçiliSatır();
    m_git->setEnabled(satır.has_value());
    // The focus stays in the box: it tells what is marked.
    QStringList hücreler;
    for (int sütun = BAd; satır && sütun <= BTür; ++sütun) hücreler.append(m_kaynak.Hücre(*satır, sütun));
    hücreler.removeAll(QString());
    m_kutu->setAccessibleDescription(hücreler.join(QStringLiteral(", ")));
}

void BulFormu::Git() {
    const std::optional<std::size_t> satır = m_tablo->SeçiliSatır();
    if (!satır) return;
    m_gidilecek = m_kaynak.Bulunanlar.İlkler[*satır];
    accept();
}

bool BulFormu::eventFilter(QObject* hedef, QEvent* olay) {
    if (hedef != m_kutu || olay->type() != QEvent::KeyPress) return QDialog::eventFilter(hedef, olay);
    const auto* tuş = static_cast<QKeyEvent*>(olay);
    if (tuş->modifiers() & ~Qt::KeypadModifier) return false;
    switch (tuş->key()) {
        case Qt::Key_Up:
        case Qt::Key_Down:
        case Qt::Key_PageUp:
        case Qt::Key_PageDown:
            QCoreApplication::sendEvent(m_tablo, olay);
            return true;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            if (!tuş->isAutoRepeat()) Git();
            return true;
        default:
            return false;
    }
}

// All that was found, also what the list has no room for.
void BulFormu::Çizelgeye() {
    Kaynak hepsi;
    hepsi.Bulunanlar = m_arama.Ara(m_kutu->text().simplified(), m_kaynak.Bulunanlar.Sayı);
    TabloModeli model(hepsi, m_model.Sütunlar());
    if (const int sütun = m_tablo->horizontalHeader()->sortIndicatorSection(); sütun >= 0)
        model.sort(sütun, m_tablo->horizontalHeader()->sortIndicatorOrder());
    ÇizelgeyeKaydet(*this, windowTitle(),
                    [&](const QString& yol) { return TabloyuÇizelgeyeYaz(yol, windowTitle(), model); });
}
