#include "platform/real/pacer.h"

#include <algorithm>

namespace platform::real {

void Pacer::active() {
    quick_ = kQuickTurns;
    backoff_ = 1;
}

int Pacer::sleepFor(std::uint32_t now) {
    if (quick_ > 0) {
        --quick_;
        return 0;
    }
    int ms = backoff_;
    backoff_ = std::min(backoff_ * 2, kCapMs);
    if (due_) {
        // Ticks wrap; the difference as a signed number is what is left.
        auto left = std::int32_t(*due_ - now);
        if (left > 0) return std::min(ms, int(left));
        due_.reset();
    }
    return ms;
}

}  // namespace platform::real
