#include "input/keys.h"
#include "voice/patterns.h"
#include "voice/speech.h"

namespace voice {

using input::ks;

int menu(const Menu& m) {
    int n = int(m.entries.size());
    int ptr = m.start;
    bool header = true;
    while (true) {
        if (header) {
            input::clk();
            say2(m.header);
            header = false;
        }
        input::clk();
        if (ptr >= 1 && ptr <= n) say2(m.entries[size_t(ptr - 1)]);
        input::getkey();
        if (ks.g == key::Enter) return ptr;
        if (ks.g == key::Up || ks.g == key::Down) {
            ptr += ks.g == key::Up ? -1 : 1;
            if (ptr < 1) ptr = n;
            if (ptr > n) ptr = 1;
            continue;
        }
        if (ks.g == key::F1) {
            if (m.resetOnF1) ptr = m.start;
            header = true;
            continue;
        }
        int to = m.hot ? m.hot(ks.g, ks.g2) : 0;
        if (to >= 1 && to <= n) {
            ptr = to;
            continue;
        }
        if (m.own && m.own(ptr)) continue;
        saykey();
        if (m.resetOnOther) ptr = m.start;
        header = true;
    }
}

}  // namespace voice
