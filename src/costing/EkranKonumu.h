#pragma once

#include <QList>
#include <QPoint>
#include <QRect>

// The top left corner at which a window can be reached: its own if enough of its title bar lies on a screen, otherwise
// the nearest one on the screen that holds most of it (the first screen when none does).
QPoint EkranaGetir(const QRect& pencere, const QList<QRect>& ekranlar);
