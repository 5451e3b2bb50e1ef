#include "KabukFormu.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "FormParcalari.h"
#include "MetinTablosu.h"
#include "Simge.h"
#include "WebEtiketi.h"

namespace {

constexpr int Boşluk = 16;  // pixels: the forms' grid
constexpr int SimgeBoyu = 64;
constexpr int MetinGenişliği = 380;
constexpr std::uint32_t Lacivert = 0x00C00000;

}  // namespace

KabukFormu::KabukFormu(const QString& ad, const QString& başlık, QWidget* sahip)
    : QDialog(sahip), m_altlık(FormAltlığı(this)), m_sütun(new QVBoxLayout) {
    setObjectName(ad);
    setWindowTitle(başlık);
    setMouseTracking(true);
    m_altlık->setMouseTracking(true);

    auto* simge = new QLabel(m_altlık);
    simge->setObjectName(QStringLiteral("Simge"));
    simge->setPixmap(ProgramSimgesi().pixmap(QSize(SimgeBoyu, SimgeBoyu), devicePixelRatio()));
    simge->setAccessibleName(Metin(MetinNo::ProgramınSimgesi));
    simge->setAttribute(Qt::WA_TransparentForMouseEvents);

    auto* üst = new QHBoxLayout;
    üst->setSpacing(Boşluk);
    üst->addWidget(simge, 0, Qt::AlignTop);
    üst->addLayout(m_sütun, 1);
    m_düzen = new QVBoxLayout(m_altlık);
    m_düzen->setContentsMargins(Boşluk, Boşluk, Boşluk, Boşluk);
    m_düzen->setSpacing(Boşluk);
    m_düzen->addLayout(üst);
    layout()->setSizeConstraint(QLayout::SetFixedSize);
}

QLabel* KabukFormu::EtiketEkle(const QString& metin) {
    auto* etiket = new QLabel(metin, m_altlık);
    etiket->setObjectName(SıralıAd(QStringLiteral("Etiket"), m_etiketSayısı++));
    etiket->setTextFormat(Qt::PlainText);
    etiket->setWordWrap(true);
    etiket->setIndent(2);  // in line with the links, which keep a margin
    etiket->setFixedWidth(MetinGenişliği);
    // A text is part of the background to the mouse.
    etiket->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_sütun->addWidget(etiket);
    return etiket;
}

void KabukFormu::BaşlıkEkle(const QString& metin) {
    QLabel* etiket = EtiketEkle(metin);
    QFont font = etiket->font();
    font.setBold(true);
    font.setPointSizeF(font.pointSizeF() * 1.4);
    etiket->setFont(font);
}

void KabukFormu::BağlantıEkle(const QString& caption, const QString& adres) {
    auto* bağlantı = new WebEtiketi(m_altlık);
    bağlantı->setObjectName(SıralıAd(QStringLiteral("WebEtiketi"), static_cast<int>(m_bağlantılar.size())));
    bağlantı->ÖzellikleriOku({{QStringLiteral("Caption"), caption},
                              {QStringLiteral("Url"), adres},
                              {QStringLiteral("ForeColor"), Lacivert},
                              {QStringLiteral("PasifRenk"), Lacivert},
                              {QStringLiteral("RenkDeğiştir"), true}});
    bağlantı->MouseMoveAyarla([bağlantı](Qt::MouseButtons, Qt::KeyboardModifiers, QPoint) {
        if (!bağlantı->RenkDeğiştir()) return;
        bağlantı->ForeColorAyarla(bağlantı->AktifRenk());
        bağlantı->FontUnderlineAyarla(true);
    });
    m_sütun->addWidget(bağlantı);
    m_bağlantılar.push_back(bağlantı);
}

void KabukFormu::TamamEkle() {
    m_düzen->addWidget(DüğmeOluştur(QStringLiteral("TamamButonu"), MetinNo::TamamDüğmesi, [this] { close(); }), 0,
                       Qt::AlignRight);
}

bool KabukFormu::event(QEvent* olay) {
    const bool sonuç = QDialog::event(olay);
    if (olay->type() == QEvent::WindowActivate) m_altlık->setFocus();
    return sonuç;
}

// The panel passes on what it does not use, so this is the mouse over the form and over its panel.
void KabukFormu::mouseMoveEvent(QMouseEvent* olay) {
    QDialog::mouseMoveEvent(olay);
    for (WebEtiketi* bağlantı : m_bağlantılar) {
        bağlantı->FontUnderlineAyarla(false);
        bağlantı->ForeColorAyarla(bağlantı->PasifRenk());
    }
}
