#pragma once

#include <functional>
#include <string>

#include "GeciciDosya.h"

namespace Dosya {

bool İçerikleriAynı(const std::string& a, const std::string& b, const std::function<void()>& bak = {});

// A file's copy that is kept for good.
struct YanKopya {
    Sonuç Ne;
    std::string Yol;
    bool Yeni = false;  // made by this call
};

// Copies the file to "<kök><ek>" or, where that is taken by another content, to "<kök>-2<ek>" and so on; an equal copy
// is used again, and nothing is ever replaced. The copy lets in whom the file does. `bak` is called now and then and
// may throw; nothing is left then.
YanKopya YanaKopyala(const std::string& dosya, const std::string& kök, const std::string& ek,
                     const std::function<void()>& bak = {});

}  // namespace Dosya
