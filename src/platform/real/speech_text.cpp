#include "platform/real/speech_text.h"

#include <cctype>

namespace platform::real {

std::string textForSynth(const std::string& text) {
    std::string out = text;
    auto letter = [](char c) { return std::isalpha(static_cast<unsigned char>(c)) != 0; };
    for (size_t i = 1; i + 1 < out.size(); ++i)
        if (out[i] == '-' && letter(out[i - 1]) && letter(out[i + 1])) out[i] = ' ';
    return out;
}

}  // namespace platform::real
