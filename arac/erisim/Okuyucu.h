#pragma once

#include <string>

namespace Erişim {

// Reads the tables of an Access file with the library for such files and sends them as frames to `çıkış`. To be run in
// a process of its own that ends with it: hostile files make the library crash, hang or eat memory.
void TablolarıGönder(const std::string& yol, int çıkış);

}  // namespace Erişim
