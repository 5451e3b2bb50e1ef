#pragma once

#include <QString>
#include <deque>
#include <functional>
#include <vector>

#include "MesajKutusu.h"

// Stands in for the message box window while it lives. A test queues the answers before the step that asks, and reads
// afterwards what was shown. A box that finds no answer in the queue, an answer that the box does not offer and an
// answer that no box took each fail the test.
class KutuKuyruğu {
  public:
    KutuKuyruğu();
    ~KutuKuyruğu();
    KutuKuyruğu(const KutuKuyruğu&) = delete;
    KutuKuyruğu& operator=(const KutuKuyruğu&) = delete;

    // With something to look at or to do while the box is on screen.
    void Yanıtla(MesajKutusu::Yanıt yanıt, std::function<void(const MesajKutusu::İstek&)> kutuAçıkken = {});

    // The boxes shown since the last call, in their order.
    std::vector<MesajKutusu::İstek> Al();

    // Fails unless exactly one box was shown since the last look, with this icon and text and without a title.
    void TekKutu(MesajKutusu::Simge simge, const QString& metin);

    // Fails when a queued answer was not used; called at the end of every test.
    void Bitir();

  private:
    struct Beklenen {
        MesajKutusu::Yanıt Yanıt;
        std::function<void(const MesajKutusu::İstek&)> KutuAçıkken;
    };
    MesajKutusu::Yanıt Göster(const MesajKutusu::İstek& istek);

    std::deque<Beklenen> m_beklenenler;
    std::vector<MesajKutusu::İstek> m_gösterilenler;
};
