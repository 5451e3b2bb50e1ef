#pragma once

#include <QPushButton>

// A button that runs a command. A click or its mnemonic moves the focus to it first, so that the box which the user was
// in is left and formatted before the command runs; a number box that cannot be left stops them. Enter presses the
// button that has the focus and no other: there are no default buttons.
class KomutDüğmesi : public QPushButton {
  public:
    explicit KomutDüğmesi(const QString& metin, QWidget* sahip = nullptr);
    explicit KomutDüğmesi(QWidget* sahip = nullptr) : KomutDüğmesi(QString(), sahip) {}

  protected:
    bool event(QEvent* olay) override;
    void keyPressEvent(QKeyEvent* olay) override;
};
