#pragma once

#include <QObject>
#include <memory>
#include <thread>
#include <vector>

#include "ArkaIs.h"
#include "YedekOkuma.h"

// Checks backups one by one in a thread of its own.
class SıralıDenetim {
  public:
    struct İş {
        std::size_t Satır;
        QString Yol;
    };
    // Both are called among the user interface's events.
    struct Bildirimler {
        std::function<void(std::size_t satır)> Başladı;
        std::function<void(std::size_t satır, const YedekBilgisi& bilgi)> Bitti;
    };
    explicit SıralıDenetim(Bildirimler bildirimler) : m_bildirimler(std::move(bildirimler)) {}
    ~SıralıDenetim() { Durdur(); }
    SıralıDenetim(const SıralıDenetim&) = delete;
    SıralıDenetim& operator=(const SıralıDenetim&) = delete;

    void Başlat(std::vector<İş> işler, const QString& kök);
    // Waits for the end of the check under way; nothing is told any more.
    void Durdur();

  private:
    void Söyle(std::function<void()> söz);

    Bildirimler m_bildirimler;
    std::unique_ptr<QObject> m_alıcı;
    std::unique_ptr<ArkaDurum> m_durum;
    std::thread m_işçi;
};
