#include "voice/text.h"

namespace voice {

std::string spaced(long n) { return n < 0 ? "-" + std::to_string(-n) : " " + std::to_string(n); }

std::string cut(std::string text) {
    while (!text.empty() && text.back() == ' ') text.pop_back();
    return text;
}

}  // namespace voice
