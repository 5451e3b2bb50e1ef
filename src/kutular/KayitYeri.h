#pragma once

#include <QString>
#include <QStringList>

enum class MetinNo : int;
class QWidget;

// What kind of file is to be written.
struct KayıtTürü {
    QString KutuAdı;  // the dialog's object name
    QString Uzantı;   // without the dot
    MetinNo Başlık;
    MetinNo Süzgeç;           // one line for each kind of file, parted by ";;"
    QStringList Diğerleri{};  // the endings of the further kinds, in that order
};

// Asks where to write; the file is offered under `ad`. One that is there is written over only if the user says so.
// Where there are several kinds, the name's ending says which; a name with none of them gets that of the kind that is
// chosen in the dialog. Empty: nowhere.
QString KaydedilecekYer(QWidget& form, const QString& ad, const KayıtTürü& tür);
