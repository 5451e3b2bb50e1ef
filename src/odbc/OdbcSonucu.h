#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <cstdint>

// One error as the driver reported it.
struct OdbcHatası {
    QString Durum;           // state code, five characters
    std::int32_t Yerel = 0;  // the driver's own number; 0: none
    QString İleti;           // a message that the driver gives with length 0 is an empty text
};

QStringList OdbcİletileriniAl(const QList<OdbcHatası>& hatalar);

// What became of work on a connection. Nothing in this folder shows anything: what the user reads is the caller's.
struct [[nodiscard]] OdbcSonucu {
    std::int16_t Kod = 0;         // ODBC's return code; 0 = success, everything else is failure
    QList<OdbcHatası> Hatalar;    // of a failure, in the driver's order; none where there is no handle to ask
    std::int64_t Etkilenen = -1;  // rows that a change changed; -1: it was none

    bool Başarılı() const { return Kod == 0; }
};
