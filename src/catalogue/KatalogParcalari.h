#pragma once

#include <QList>
#include <QListWidget>
#include <QString>
#include <functional>

#include "TekSecimli.h"

enum class MetinNo : int;
class KomutDüğmesi;
class QDialog;
class QLabel;
class QWidget;

// Pieces that the catalogue forms have in common.

// A button that is as wide as the widest of its captions, so that it keeps its place when its role
// changes; it bears the first. An error that nobody foresaw in `komut` is shown, and the form stays as it is.
KomutDüğmesi* KatalogDüğmesi(const QString& ad, const QList<MetinNo>& başlıklar, std::function<void()> komut);

// The caption Etiket(sıra) of a box, list or tree, highlighted while the user is in it.
QLabel* KatalogEtiketi(int sıra, MetinNo metin, QWidget* kutu);

// A list of names for tens of thousands of rows, in which Enter moves on. A name that it cuts is told by a tooltip.
class KatalogListesi : public TekSeçimli<QListWidget> {
  public:
    explicit KatalogListesi(const QString& ad);
};

// Makes a box wide enough for the largest amount with the most decimals.
void TutaraYerAç(QWidget* kutu);

// The form's background panel, which holds everything on it.
QWidget* KatalogAltlığı(QDialog* form);

// Tells that a command of several statements went only half way; the failed statement has been reported.
void YarımKaldı(MetinNo metin, const QString& ek = {});

// Shows an information box and puts the focus on the control that it is about; always false.
bool Uyar(MetinNo metin, QWidget& kutu);
