#include "voice/keys.h"
#include "voice/patterns.h"
#include "voice/speech.h"

namespace voice {

namespace {
const char* word(bool yes) { return yes ? " yes " : " no "; }
}  // namespace

bool yesno(const Question& q) {
    bool answer = q.first;
    bool ask = true;
    while (true) {
        if (ask) {
            say2(q.text + word(answer));
            ask = false;
        }
        getkey();
        if (vs.g == "13") return answer;
        if (vs.g == "38" || vs.g == "40") {
            answer = !answer;
            say2(word(answer));
            continue;
        }
        if (vs.g == "112") {
            answer = q.f1Answer;
            ask = true;
            continue;
        }
        if (q.waitKeyName)
            saykey2();
        else
            saykey();
        if (vs.g2 == "y") return true;
        if (vs.g2 == "n") return false;
        if (q.beforeOther) q.beforeOther();
        if (q.otherAnswer >= 0) answer = q.otherAnswer == 1;
        ask = true;
    }
}

}  // namespace voice
