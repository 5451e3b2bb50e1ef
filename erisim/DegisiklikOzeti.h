#pragma once

#include <string>
#include <string_view>

namespace Erişim {

// The list of what was stored otherwise than it stands in an Access file: this heading, a line with the counts, and the
// values. It lies beside the data file.
inline constexpr std::string_view LİSTE_BAŞLIĞI = "Access dosyasından olduğu gibi alınamayan değerler";
inline constexpr std::string_view LİSTE_EKİ = ".access.txt";

// The line with the counts; "" when there is no such list.
std::string ListeninÖzeti(const std::string& liste);

}  // namespace Erişim
