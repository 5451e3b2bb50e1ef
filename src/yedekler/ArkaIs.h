#pragma once

#include <QString>
#include <QTemporaryDir>
#include <atomic>
#include <cstdint>
#include <functional>

enum class MetinNo : int;
class QWidget;

// The stopping of work in another thread, and how far it has come. Work of the driver ends when the file DurYolu is
// there.
class ArkaDurum {
  public:
    void Durdur();
    bool Durdu() const { return m_durdu; }
    QString DurYolu() const { return m_klasör.filePath(QStringLiteral("dur")); }
    void Bildir(std::int64_t yapılan) { m_yapılan = yapılan; }
    std::int64_t Yapılan() const { return m_yapılan; }

  private:
    QTemporaryDir m_klasör;
    std::atomic<bool> m_durdu = false;
    std::atomic<std::int64_t> m_yapılan = 0;
};

// Runs the work in a thread of its own and comes back when it has ended; the windows stay alive behind a box with
// progress and "İptal". The program's end stops it as well. `azami`: what it counts up to; 0: not known.
void ArkadaYürüt(MetinNo metin, std::int64_t azami, QWidget* sahip, const std::function<void(ArkaDurum&)>& iş);
