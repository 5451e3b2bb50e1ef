#include "IlerlemeKutusu.h"

#include <QCoreApplication>

#include "MetinTablosu.h"

namespace {

constexpr int GÖRÜNME_SÜRESİ = 500;  // milliseconds
constexpr int ÇİZİM_ARALIĞI = 30;
constexpr int PARÇA = 1000;  // steps of the bar

}  // namespace

İlerlemeKutusu::İlerlemeKutusu(MetinNo metin, std::int64_t azami, QWidget* sahip)
    : m_kutu(Metin(metin), Metin(MetinNo::İlerlemeİptali), 0, azami > 0 ? PARÇA : 0, sahip), m_azami(azami) {
    m_kutu.setObjectName(QStringLiteral("İlerlemeKutusu"));
    m_kutu.setWindowModality(Qt::ApplicationModal);
    m_kutu.setMinimumDuration(GÖRÜNME_SÜRESİ);
    m_kutu.setAutoClose(false);
    m_kutu.setAutoReset(false);
    m_sonÇizim.start();
}

bool İlerlemeKutusu::Bildir(std::int64_t yapılan) {
    if (m_sonÇizim.hasExpired(ÇİZİM_ARALIĞI)) {
        if (m_azami > 0) m_kutu.setValue(static_cast<int>(PARÇA * qMin(yapılan, m_azami) / m_azami));
        // While its value stands still the dialog looks neither at the clock nor at the mouse.
        QCoreApplication::processEvents(m_kutu.isVisible() ? QEventLoop::AllEvents
                                                           : QEventLoop::ExcludeUserInputEvents);
        m_sonÇizim.restart();
    }
    return !m_kutu.wasCanceled();
}
