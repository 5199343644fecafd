#include "voice/keys.h"
#include "voice/patterns.h"
#include "voice/speech.h"

namespace voice {

int menu(const Menu& m) {
    int n = int(m.entries.size());
    int ptr = m.start;
    bool header = true;
    while (true) {
        if (header) {
            clk();
            say2(m.header);
            header = false;
        }
        clk();
        if (ptr >= 1 && ptr <= n) say2(m.entries[size_t(ptr - 1)]);
        getkey();
        if (vs.g == "13") return ptr;
        if (vs.g == "38" || vs.g == "40") {
            ptr += vs.g == "38" ? -1 : 1;
            if (ptr < 1) ptr = n;
            if (ptr > n) ptr = 1;
            continue;
        }
        if (vs.g == "112") {
            if (m.resetOnF1) ptr = m.start;
            header = true;
            continue;
        }
        int to = m.hot ? m.hot(vs.g, vs.g2) : 0;
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
