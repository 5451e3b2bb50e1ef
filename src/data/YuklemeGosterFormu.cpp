#include "YuklemeGosterFormu.h"

#include <QApplication>
#include <QCloseEvent>
#include <QEventLoop>
#include <QLabel>
#include <QProgressBar>
#include <QTimer>
#include <QVBoxLayout>

#include "MetinTablosu.h"
#include "OdbcModulu.h"

namespace {

YüklemeGösterFormu* Ekrandaki = nullptr;
constexpr qint64 ÇizimAralığı = 16;  // milliseconds

}  // namespace

YüklemeGösterFormu::YüklemeGösterFormu(std::function<void()> yükleyici, QWidget* sahip)
    : QDialog(sahip, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint), m_yükleyici(std::move(yükleyici)) {
    setObjectName(QStringLiteral("YüklemeGösterFormu"));
    setModal(true);
    auto* altlık = new QWidget(this);
    altlık->setObjectName(QStringLiteral("Altlık"));
    auto* etiket = new QLabel(Metin(870), altlık);
    etiket->setObjectName(QStringLiteral("Etiket"));
    m_ilerlemeÇubuğu = new QProgressBar(altlık);
    m_ilerlemeÇubuğu->setObjectName(QStringLiteral("İlerlemeÇubuğu"));
    m_ilerlemeÇubuğu->setAccessibleName(Metin(870));
    m_ilerlemeÇubuğu->setMinimumWidth(320);
    auto* içDüzen = new QVBoxLayout(altlık);
    içDüzen->addWidget(etiket);
    içDüzen->addWidget(m_ilerlemeÇubuğu);
    auto* düzen = new QVBoxLayout(this);
    düzen->setContentsMargins(0, 0, 0, 0);
    düzen->addWidget(altlık);
}

YüklemeGösterFormu::~YüklemeGösterFormu() {
    if (Ekrandaki == this) Ekrandaki = nullptr;
}

void YüklemeGösterFormu::Çalıştır(std::function<void()> yükleyici, QWidget* sahip) {
    YüklemeGösterFormu form(std::move(yükleyici), sahip);
    form.exec();
    if (form.m_hata) std::rethrow_exception(form.m_hata);
}

void YüklemeGösterFormu::showEvent(QShowEvent* olay) {
    QDialog::showEvent(olay);
    if (m_başladı) return;
    m_başladı = true;
    Ekrandaki = this;
    QTimer::singleShot(0, this, [this] { Yükle(); });
}

void YüklemeGösterFormu::closeEvent(QCloseEvent* olay) {
    olay->ignore();
}

void YüklemeGösterFormu::Yükle() {
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    m_sonÇizim.start();
    try {
        m_yükleyici();
    } catch (...) {
        // An exception must not cross the event loop; the caller gets it once the form has ended.
        m_hata = std::current_exception();
    }
    Ekrandaki = nullptr;
    done(QDialog::Accepted);
}

Yüklemeİlerlemesi::Yüklemeİlerlemesi(std::int32_t azami) {
    YüklenenKayıt = 0;
    if (!Ekrandaki) return;
    Ekrandaki->m_ilerlemeÇubuğu->setRange(0, azami);
    Ekrandaki->m_ilerlemeÇubuğu->setValue(0);
}

void Yüklemeİlerlemesi::Arttır() {
    ++YüklenenKayıt;
    if (!Ekrandaki || !Ekrandaki->m_sonÇizim.hasExpired(ÇizimAralığı)) return;
    Ekrandaki->m_ilerlemeÇubuğu->setValue(YüklenenKayıt);
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    Ekrandaki->m_sonÇizim.restart();
}
