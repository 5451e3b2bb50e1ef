#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace Dosya {

// What tells a file from another one that was put in its place under its name.
struct DosyaKimliği {
    std::uint64_t Disk = 0;
    std::uint64_t No = 0;

    bool operator==(const DosyaKimliği&) const = default;
};

// Nothing: there is none.
std::optional<DosyaKimliği> KimliğiAl(const std::string& yol);

}  // namespace Dosya
