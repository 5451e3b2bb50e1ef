#pragma once

#include <QByteArray>
#include <QString>
#include <string_view>

// The letters of a text file.
enum class MetinKodlaması { Utf8, Windows1254 };

// A text file's bytes as its cells are cut from them: without byte order mark, UTF-16 turned into UTF-8. What is no
// well-formed UTF-8 is taken for Windows' Turkish letters.
struct KodluMetin {
    QByteArray Baytlar;
    MetinKodlaması Kodlama = MetinKodlaması::Utf8;
};
KodluMetin KodlamayıÇöz(QByteArray dosya);

QString MetneÇevir(std::string_view baytlar, MetinKodlaması kodlama);
