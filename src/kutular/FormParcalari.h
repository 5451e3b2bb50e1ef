#pragma once

#include <QFrame>
#include <QPushButton>
#include <QSize>
#include <functional>

enum class MetinNo : int;
class QAction;
class QBoxLayout;
class QDialog;
class QGroupBox;
class QHBoxLayout;
class QLabel;
class QLineEdit;

// The parts that forms are put together from: captions, buttons, panels, figures. Every control is found by its object
// name and bears a caption or an accessible name. Tab follows the order in which parts are put into their layouts.

// The object name of one of several parts of a kind: Etiket(3).
QString SıralıAd(const QString& ad, int sıra);

// The caption Etiket(sıra), as plain text. `denetim` takes it as its accessible name, and its mnemonic leads there.
QLabel* EtiketOluştur(int sıra, MetinNo metin, QWidget* denetim = nullptr);

// The same for a box, list or tree that the user works in: the caption is highlighted meanwhile.
QLabel* VurgulananEtiket(int sıra, MetinNo metin, QWidget* denetim);

// For a label that goes on in further lines: a run of letters that no line could hold gets invisible places to break
// at, so that it does not make the form as wide as itself.
QString Bölünebilir(const QString& metin);

// Makes `etiket` the caption of `kutu` (box, list or tree): its mnemonic leads there, screen readers read it, and it
// takes EtkinEtiketRengi while the user is in `kutu`. To be called once the caption has its text.
void EtiketEşle(QLabel* etiket, QWidget* kutu);

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

// A button of a form. An error that nobody foresaw in `iş` is shown, and the form stays as it is.
KomutDüğmesi* DüğmeOluştur(const QString& ad, MetinNo metin, std::function<void()> iş);
// One whose role changes: it bears the first caption, and is as wide as the widest, so that it keeps its place.
KomutDüğmesi* RolDeğiştirenDüğme(const QString& ad, const QList<MetinNo>& metinler, std::function<void()> iş);
// The button of a command that has its work elsewhere: it bears the command's text and is enabled with it.
KomutDüğmesi* KomutaBağlıDüğme(const QString& ad, QAction* komut);

// A row of buttons; what follows a null stands at the right.
QHBoxLayout* DüğmeSırası(const QList<KomutDüğmesi*>& düğmeler);
// Tab goes on from `ilk` to the row's buttons as they stand from left to right.
void SekmeSırasınıKur(QWidget* ilk, const QBoxLayout& sıra);

// The form's first size: what is wanted, as far as the screen has room for it.
void BoyVer(QWidget& form, QSize istenen);

// A background panel, and the one that holds everything on a form.
QWidget* AltlıkOluştur(const QString& ad);
QWidget* FormAltlığı(QDialog* form, const QString& ad = QStringLiteral("Altlık"));

// The frame Çerçeve around what belongs together, plain or with a caption.
QFrame* ÇerçeveOluştur();
QGroupBox* ÇerçeveOluştur(MetinNo başlık);

// A box that only shows a figure: it can be selected and copied with the mouse, but is no stop for Tab.
QLineEdit* GösterimKutusu(const QString& ad);

// Makes a box wide enough for the largest amount with the most decimals.
void TutaraYerAç(QLineEdit* kutu, bool eksiOlabilir = false);

// The line over a list that could not be loaded whole: it says so, and its button, named after it, loads again. Hidden
// at first.
class YüklenemediBildirimi : public QFrame {
  public:
    YüklenemediBildirimi(const QString& ad, MetinNo metin, MetinNo düğme, std::function<void()> yenidenYükle);
};

// Tells that a command of several statements went only half way; the failed statement has been reported.
void YarımKaldı(MetinNo metin, const QString& ek = {});

// Shows an information box and puts the focus on the control that it is about; always false.
bool Uyar(const QString& metin, QWidget& kutu);
bool Uyar(MetinNo metin, QWidget& kutu);
