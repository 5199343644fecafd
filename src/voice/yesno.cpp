#include "input/keys.h"
#include "voice/patterns.h"
#include "voice/speech.h"

namespace voice {

using input::ks;

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
        input::getkey();
        if (ks.g == key::Enter) return answer;
        if (ks.g == key::Up || ks.g == key::Down) {
            answer = !answer;
            say2(word(answer));
            continue;
        }
        if (ks.g == key::F1) {
            answer = q.f1Answer;
            ask = true;
            continue;
        }
        if (q.waitKeyName)
            saykey2();
        else
            saykey();
        if (ks.g2 == "y") return true;
        if (ks.g2 == "n") return false;
        if (q.beforeOther) q.beforeOther();
        if (q.otherAnswer >= 0) answer = q.otherAnswer == 1;
        ask = true;
    }
}

}  // namespace voice
