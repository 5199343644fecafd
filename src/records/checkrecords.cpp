// CheckRecords: the score against the course record.
#include "course/course.h"
#include "input/keys.h"
#include "platform/platform.h"
#include "records/coursefile.h"
#include "records/courserecord.h"
#include "records/roundlog.h"
#include "records/report.h"
#include "records/state.h"
#include "round/state.h"
#include "sound/bank.h"
#include "voice/getter.h"
#include "voice/patterns.h"
#include "voice/speech.h"
#include "voice/state.h"

namespace records {

namespace {

using input::ks;
using play::rs;

// Three applauses at once; held while the biggest plays and no key came.
void applause() {
    sound::playclap1();
    sound::playclap2();
    sound::playclap3();
    clapwait();
}

// " which sets A-new record! " or the tie, and the applause; false when a
// key cut them short.
bool cheer(bool tie) {
    voice::say(tie ? tiesText : newRecordText);
    if (!ks.g.empty()) return false;
    platform::attempt(applause);
    if (ks.g.empty()) return true;
    sound::StopAllSounds();
    voice::stopspeech();
    return false;
}

// The name is confirmed with yes; at a no it is typed anew.
std::string askholder(std::string holder) {
    while (true) {
        voice::Question q;
        q.text = " Is " + holder + " correct for the name of the new record holder?";
        if (voice::yesno(q)) return holder;
        input::clk();
        voice::getter(" Please enter the name of the new record holder. ");
        holder = " " + voice::vs.r + " ";
        input::clk();
    }
}

void keepold(const Record& rec) {
    rc.recs = rec.strokes;
    rc.recd[1] = rec.mm, rc.recd[2] = rec.dd, rc.recd[3] = rec.yy;
    rc.old0 = rec.strokes;
    rc.old1 = rec.mm, rc.old2 = rec.dd, rc.old3 = rec.yy;
    rc.oldpn = rec.holder;
}

}  // namespace

void CheckRecords() {
    Record rec = recordof(rs.c);
    keepold(rec);
    bool stands = recordstands(rec.strokes.v, rs.stks);
    std::string text;
    if (stands || cheer(rec.strokes.v == rs.stks)) text = recordtext(rs.c, stands, rec, rs.total);
    if (!text.empty()) voice::say2(text);
    if (stands) return;
    Today now = today();
    rc.recs = {double(rs.stks), course::tagShort};
    rc.recd[1] = now.mm, rc.recd[2] = now.dd, rc.recd[3] = now.yy;
    voice::speechwait();
    input::clk();
    std::string holder = askholder(rs.pn);
    input::clk();
    platform::attempt([&] { writerecord(grfpath(rs.c), {rc.recs, rc.recd[1], rc.recd[2], rc.recd[3], holder}); });
    platform::attempt(dorecs);
    platform::attempt(doendlog);
}

}  // namespace records
