#pragma once

#include <QString>

class QImage;
class QWidget;

// Asks where a picture is to be saved as PNG, offered under `ad`, and writes it there; a failure is told and leaves
// what stood there.
void ResmiKaydet(QWidget& form, const QString& ad, const QImage& resim);
