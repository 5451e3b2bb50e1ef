#pragma once

#include <QString>

enum class MetinNo : int;
class QWidget;

// What kind of file is to be written.
struct KayıtTürü {
    QString KutuAdı;  // the dialog's object name
    QString Uzantı;   // without the dot
    MetinNo Başlık;
    MetinNo Süzgeç;
};

// Asks where to write; the file is offered under `ad`. One that is there is written over only if the user says so.
// Empty: nowhere.
QString KaydedilecekYer(QWidget& form, const QString& ad, const KayıtTürü& tür);
