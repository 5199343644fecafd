#include "records/report.h"

#include <cstdlib>

#include "course/course.h"
#include "course/textfile.h"
#include "input/keys.h"
#include "platform/platform.h"
#include "records/coursefile.h"
#include "records/courserecord.h"
#include "records/state.h"
#include "round/state.h"
#include "sound/bank.h"
#include "voice/speech.h"

namespace records {

namespace {

using input::ks;
using play::rs;
using voice::cut;
using voice::spaced;

// The verdict word of sank, 1..8.
const char* const verdictwords[] = {
    "",
    " A-double bo ghee ",
    " A-bo ghee ",
    " A-par ",
    " maybe you had better get your money back ",
    " A-birdy ",
    " A-hole in one ",
    " an eagle ",
    " A-double eagle ",
};

std::string endtext() {
    std::string t = rs.pn + " your score is as follows, ";
    for (const ScoreCount& c : scorecounts) {
        int n = rs.*c.counter;
        t += spaced(n) + c.spoken + (n == 1 ? ". " : "s. ");
    }
    t += " par for the " + course::cs.cname[rs.c];
    t = cut(t) + ", is " + course::bare(rs.total) + ". ";
    t += " your score was " + spaced(rs.stks);
    t = cut(t) + ".  which is ";
    if (rs.stks != rs.total) {
        int off = std::abs(rs.stks - rs.total);
        t += spaced(off) + " stroke" + (off == 1 ? " " : "s ") + (rs.total > rs.stks ? " under " : " over ");
    }
    return t + " par. ";
}

}  // namespace

void clapwait() {
    auto& os = platform::os();
    while (ks.g.empty() && os.getStatus(sound::bk.b_golf13) == platform::statusPlaying) os.yield();
}

void resaydidonhole() {
    input::clk();
    std::string t;
    if (rs.virgin == 1)
        rs.virgin = 0;
    else if (rs.sank >= 1 && rs.sank <= 8)
        t = verdictwords[rs.sank];
    t += rs.pn + " Your Score On Hole " + spaced(rs.hole - 1) + " was " + spaced(rs.stk);
    t = cut(t) + ".  Total Par So Far Is" + spaced(rs.total);
    t = cut(t) + ". Your Current Score Is " + spaced(rs.stks);
    voice::say2(cut(t) + ". ");
}

void sayendscore() {
    input::clk();
    std::string t = endtext();
    input::clk();
    voice::say2(t);
    voice::speechwait();
    if (rs.stks <= rs.total && ks.g.empty() && course::cs.firstend != 1) {
        platform::attempt([] {
            sound::playclap1();
            sound::playclap3();
        });
        platform::attempt(clapwait);
    }
    course::cs.firstend = 1;
}

void SayRecOrNot() {
    if (rs.c == rs.nocs || !ks.g.empty()) return;
    bool stands = recordstands(rc.old0.v, rs.stks);
    if (!stands) {
        voice::say(rc.old0.v == rs.stks ? tiesText : newRecordText);
        if (!ks.g.empty()) return;
    }
    voice::say2(recordtext(rs.c, stands, {rc.old0, rc.old1, rc.old2, rc.old3, rc.oldpn}, rs.total));
}

void repeatend() {
    platform::attempt(sayendscore);
    platform::attempt(SayRecOrNot);
}

}  // namespace records
