// The system's short date text, as the platform gives it now.
#pragma once

#include <string>

namespace records {

// The platform's date text; empty when it cannot be had.
std::string systemdate();

}  // namespace records
