// The system's short date text, month first, as three numbers.
#pragma once

#include <string>

namespace records {

// Month, day and year from a text such as "11/22/2026"; false when the text
// does not hold three numbers of at least 1 apart.
bool datenumbers(const std::string& text, long& m, long& d, long& y);
// The platform's date text; empty when it cannot be had.
std::string systemdate();

}  // namespace records
