#include "YuklemeGosterFormu.h"

#include <QApplication>
#include <QCloseEvent>
#include <QEventLoop>
#include <QLabel>
#include <QProgressBar>
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
    auto* etiket = new QLabel(Metin(MetinNo::Yükleniyor), altlık);
    etiket->setObjectName(QStringLiteral("Etiket"));
    m_ilerlemeÇubuğu = new QProgressBar(altlık);
    m_ilerlemeÇubuğu->setObjectName(QStringLiteral("İlerlemeÇubuğu"));
    m_ilerlemeÇubuğu->setAccessibleName(Metin(MetinNo::Yükleniyor));
    m_ilerlemeÇubuğu->setMinimumWidth(320);
    auto* içDüzen = new QVBoxLayout(altlık);
    içDüzen->addWidget(etiket);
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
