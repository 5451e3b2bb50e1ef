#pragma once

#include <QString>
#include <QStringList>

// A table of cases written as text, the rows parted by " | ", the fields of a row by " > ".
inline QList<QStringList> Tablo(const char* metin) {
    QList<QStringList> satırlar;
    for (const QString& satır : QString::fromUtf8(metin).split(QStringLiteral(" | ")))
        satırlar << satır.split(QStringLiteral(" > "));
    return satırlar;
}
