#pragma once

#include <string>

namespace Erişim {

// Access keeps a file "<name>.ldb" as long as somebody has "<name>.vtb" open. What is to be told of one that lies
// beside this Access file; "" when there is none.
std::string AçıkGörünmeNedeni(const std::string& yol);

}  // namespace Erişim
