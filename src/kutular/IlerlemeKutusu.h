#pragma once

#include <QElapsedTimer>
#include <QProgressDialog>
#include <cstdint>

enum class MetinNo : int;

// Shows how far long work has come and lets the user give it up. It appears once the work has lasted half a second; the
// windows behind it take no input meanwhile. Its Esc and its close box mean "İptal".
class İlerlemeKutusu {
  public:
    // `azami`: what Bildir counts up to; 0: not known.
    İlerlemeKutusu(MetinNo metin, std::int64_t azami, QWidget* sahip);

    // False: the user gave up. Costs next to nothing, however often it is called.
    bool Bildir(std::int64_t yapılan);

  private:
    QProgressDialog m_kutu;
    std::int64_t m_azami;
    QElapsedTimer m_sonÇizim;
};
