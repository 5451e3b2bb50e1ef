#pragma once

#include <QObject>
#include <functional>

class QWidget;

// Tells when the user enters and leaves a control. The toolkit's focus events say more than that: a message box, a menu
// or another program takes the focus for a while, and the control is still the one the user works in.
class Odakİzleyici : public QObject {
  public:
    enum class Çıkış {
        Ayrıldı,        // another control of the form has the focus now
        FormKapanıyor,  // the form is going away: nothing may be changed or shown any more
    };

    // `kutu` is the control that takes the focus itself (a combo box, not the line edit in it). The callbacks run on
    // entering (with how it came about) and on leaving, in turns. Must not outlive `kutu`.
    Odakİzleyici(QWidget* kutu, std::function<void(Qt::FocusReason)> girince, std::function<void(Çıkış)> çıkınca);

    bool eventFilter(QObject* nesne, QEvent* olay) override;

  private:
    void Gir(Qt::FocusReason neden);
    void Çık(Çıkış çıkış);
    bool DışarıdaMı(const QWidget* odaklanan) const;

    QWidget* m_kutu;
    std::function<void(Qt::FocusReason)> m_girince;
    std::function<void(Çıkış)> m_çıkınca;
    bool m_içeride = false;
};
