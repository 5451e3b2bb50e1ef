#include "SiraliDenetim.h"

#include <utility>

void SıralıDenetim::Başlat(std::vector<İş> işler, const QString& kök) {
    Durdur();
    m_alıcı = std::make_unique<QObject>();
    m_durum = std::make_unique<ArkaDurum>();
    m_işçi = std::thread([this, işler = std::move(işler), kök] {
        for (const İş& iş : işler) {
            if (m_durum->Durdu()) return;
            Söyle([this, satır = iş.Satır] { m_bildirimler.Başladı(satır); });
            YedekBilgisi bilgi = AçılmışYedek(iş.Yol, kök).Denetle(m_durum->DurYolu());
            if (bilgi.Durum == YedekDurumu::Durduruldu) return;
            Söyle([this, satır = iş.Satır, bilgi = std::move(bilgi)] { m_bildirimler.Bitti(satır, bilgi); });
        }
    });
}

void SıralıDenetim::Durdur() {
    if (!m_işçi.joinable()) return;
    m_durum->Durdur();
    m_işçi.join();
    m_alıcı.reset();  // and with it what it has not been told yet
    m_durum.reset();
}

void SıralıDenetim::Söyle(std::function<void()> söz) {
    QMetaObject::invokeMethod(m_alıcı.get(), std::move(söz), Qt::QueuedConnection);
}
