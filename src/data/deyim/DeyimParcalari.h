#pragma once

#include <QString>
#include <cstdint>

// What statements are put together from.
namespace Deyimler {

inline QString Tırnakla(const QString& metin) {
    return QLatin1Char('\'') + metin + QLatin1Char('\'');
}

inline QString Numara(std::int64_t sayı) {
    return Tırnakla(QString::number(sayı));
}

// 'a', 'b', 'c' of texts that are literals already.
inline QString Değerler(const QStringList& yazımlar) {
    return QStringLiteral(" VALUES (") + yazımlar.join(QStringLiteral(", ")) + QLatin1Char(')');
}

}  // namespace Deyimler
