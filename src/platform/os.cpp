#include "platform/platform.h"

namespace platform {

namespace {
Platform* current = nullptr;
}

Platform& os() { return *current; }
void install(Platform* p) { current = p; }

void reportFailure(const std::string& what) {
    if (current) current->failed(what);
}

}  // namespace platform
