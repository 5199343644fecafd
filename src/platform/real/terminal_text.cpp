#include "platform/real/terminal_text.h"

#include <cstdio>

namespace platform::real {

std::string textLine(const std::string& spoken) {
    std::string line;
    for (char c : spoken) {
        bool blank = static_cast<unsigned char>(c) <= ' ' || c == 0x7f;
        if (!blank) line += c;
        else if (!line.empty() && line.back() != ' ') line += ' ';
    }
    if (!line.empty() && line.back() == ' ') line.pop_back();
    return line;
}

void writeTextLine(const std::string& spoken) {
    std::string line = textLine(spoken);
    if (line.empty()) return;
    line += '\n';
    std::fputs(line.c_str(), stdout);
    std::fflush(stdout);
}

}  // namespace platform::real
