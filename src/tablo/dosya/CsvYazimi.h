#pragma once

#include <string>
#include <string_view>

// How text files hold rows: UTF-8 behind a byte order mark, ";" between the fields, CRLF behind each row.
inline constexpr std::string_view CsvBaşı = "\xEF\xBB\xBF";
inline constexpr std::string_view CsvSatırSonu = "\r\n";
inline constexpr char CsvAyracı = ';';

// Appends a field: in quotes where it holds the separator, a quote or a line break, or has blanks at its ends.
void CsvAlanıEkle(std::string& satır, std::string_view alan);
