#pragma once

#include <cstdint>
#include <functional>
#include <string>

namespace Dosya {

enum class DisKopyaSonucu {
    Yazıldı,
    Var,  // the name is taken; nothing was replaced
    Yazılamadı,
    Tutmadı,  // what was read back was something else
    Durduruldu
};

// Copies a file into a folder of another disk, which may know neither modes nor hard links: beside its target, synced,
// dropped from the cache, read back from the disk and compared, renamed. `ilerle` gets the bytes done, of twice the
// file's size; false stops. Unless Yazıldı, nothing new is left there.
DisKopyaSonucu DışarıKopyala(const std::string& kaynak, const std::string& hedef,
                             const std::function<bool(std::int64_t yapılan)>& ilerle);

// Whether both lie on one disk; also when one of them cannot be asked.
bool AynıDisk(const std::string& a, const std::string& b);

}  // namespace Dosya
