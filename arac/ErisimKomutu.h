#pragma once

#include <QStringList>

// varnek-veri erisimden-al DOSYA [--hedef YENİ] [--liste LİSTE] [--bildir]: takes an Access file over. With --bildir
// its reports go to the standard output in the form that erisim/AlmaSureci reads. The exit code.
int ErişimKomutu(const QStringList& sözler);
