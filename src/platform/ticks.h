// The millisecond tick count wraps at 2^32, about every 49.7 days. Ticks are
// compared by their unsigned difference, never by their size, so a wait that
// spans the wrap ends on time.
#pragma once

#include <cstdint>

namespace platform {

// Milliseconds from tick `from` to tick `to`, across a wrap.
inline std::uint32_t elapsed(std::uint32_t from, std::uint32_t to) { return to - from; }

// True when tick a lies after tick b; the two must be less than 24.8 days
// apart.
inline bool later(std::uint32_t a, std::uint32_t b) { return std::int32_t(a - b) > 0; }

}  // namespace platform
