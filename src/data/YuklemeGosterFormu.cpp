#include "YuklemeGosterFormu.h"

#include <QApplication>
#include <QCloseEvent>
#include <QEventLoop>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include "MetinTablosu.h"
#include "OdbcModulu.h"

namespace {

YüklemeGösterFormu* Geçerli = nullptr;
constexpr qint64 GörünmeSüresi = 200;  // milliseconds that a load lasts before the form appears
constexpr qint64 ÇizimAralığı = 16;    // milliseconds between two paintings

}  // namespace

YüklemeGösterFormu::YüklemeGösterFormu(QWidget* sahip)
    : QDialog(sahip, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint) {
    setObjectName(QStringLiteral("YüklemeGösterFormu"));
    setModal(true);
    auto* altlık = new QWidget(this);
    altlık->setObjectName(QStringLiteral("Altlık"));
    m_etiket = new QLabel(Metin(MetinNo::Yükleniyor), altlık);
    m_etiket->setObjectName(QStringLiteral("Etiket"));
    m_ilerlemeÇubuğu = new QProgressBar(altlık);
    m_ilerlemeÇubuğu->setObjectName(QStringLiteral("İlerlemeÇubuğu"));
    m_ilerlemeÇubuğu->setAccessibleName(Metin(MetinNo::Yükleniyor));
    m_ilerlemeÇubuğu->setMinimumWidth(320);
    auto* içDüzen = new QVBoxLayout(altlık);
    içDüzen->addWidget(m_etiket);
    içDüzen->addWidget(m_ilerlemeÇubuğu);
    auto* düzen = new QVBoxLayout(this);
    düzen->setContentsMargins(0, 0, 0, 0);
    düzen->addWidget(altlık);
    m_sonÇizim.start();
    Geçerli = this;
}

YüklemeGösterFormu::~YüklemeGösterFormu() {
    Geçerli = nullptr;
}

void YüklemeGösterFormu::Çalıştır(const std::function<void()>& yükleyici, QWidget* sahip) {
    const YüklemeGösterFormu form(sahip);
    yükleyici();
}

void YüklemeGösterFormu::ÇalıştırVazgeçilebilir(const QString& metin, const Vazgeçilebilirİş& iş, QWidget* sahip) {
    YüklemeGösterFormu form(sahip);
    form.VazgeçilebilirYap(metin);
    iş([&form](int binde) { return form.Bildir(binde); });
}

void YüklemeGösterFormu::VazgeçilebilirYap(const QString& metin) {
    constexpr int bütün = 1000;
    m_etiket->setText(metin);
    m_ilerlemeÇubuğu->setAccessibleName(metin);
    m_ilerlemeÇubuğu->setRange(0, bütün);
    m_iptalButonu = new QPushButton(Metin(MetinNo::İlerlemeİptali), m_etiket->parentWidget());
    m_iptalButonu->setObjectName(QStringLiteral("İptalButonu"));
    m_iptalButonu->setAutoDefault(false);  // Enter, pressed on the way, is no giving up
    connect(m_iptalButonu, &QPushButton::clicked, this, [this] { reject(); });
    m_etiket->parentWidget()->layout()->addWidget(m_iptalButonu);
    m_etiket->parentWidget()->layout()->setAlignment(m_iptalButonu, Qt::AlignHCenter);
}

bool YüklemeGösterFormu::Bildir(int binde) {
    if (m_sonÇizim.hasExpired(isVisible() ? ÇizimAralığı : GörünmeSüresi)) {
        m_ilerlemeÇubuğu->setValue(binde);
        show();
        QApplication::processEvents();
        m_sonÇizim.restart();
    }
    if (m_vazgeçildi) m_iptalButonu->setEnabled(false);
    return !m_vazgeçildi;
}

void YüklemeGösterFormu::closeEvent(QCloseEvent* olay) {
    olay->ignore();
}

void YüklemeGösterFormu::İlerle() {
    if (!m_sonÇizim.hasExpired(isVisible() ? ÇizimAralığı : GörünmeSüresi)) return;
    m_ilerlemeÇubuğu->setValue(YüklenenKayıt);
    show();
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    m_sonÇizim.restart();
}

Yüklemeİlerlemesi::Yüklemeİlerlemesi(std::int32_t azami) {
    YüklenenKayıt = 0;
    if (Geçerli) Geçerli->m_ilerlemeÇubuğu->setRange(0, azami);
}

void Yüklemeİlerlemesi::Arttır() {
    ++YüklenenKayıt;
    if (Geçerli) Geçerli->İlerle();
}
