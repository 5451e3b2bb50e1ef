#pragma once

#include <string>

namespace Motor {

// The copy of a damaged file that the repair works on. It is gone with its folder.
class OnarımKopyası {
  public:
    OnarımKopyası();
    ~OnarımKopyası();
    OnarımKopyası(const OnarımKopyası&) = delete;
    OnarımKopyası& operator=(const OnarımKopyası&) = delete;

    // Copies file and journal; without the journal when that is not wanted. What the disk does not give becomes zeros,
    // and what was cut off is put there, empty. Throws Hata, also when the file `dur` appears.
    void Al(const std::string& kaynak, bool günlükle, const std::string& dur) const;

    std::string Dosya() const { return m_klasör + "/Onarilan.vtb"; }

  private:
    std::string m_klasör;
};

}  // namespace Motor
