// The after-shot report.
#include <cmath>

#include "course/course.h"
#include "input/keys.h"
#include "platform/platform.h"
#include "round/flight.h"
#include "round/state.h"
#include "voice/speech.h"

namespace play {

std::string shotreporttext() {
    if (rs.lie < 0 || rs.lie >= course::locSlots) throw platform::Failure("no lie " + std::to_string(rs.lie) + " to report");
    long off = long(std::floor(rs.offl));
    std::string t = " shot went " + spaced(rs.yds) + " yards. it's " + spaced(long(rs.remain)) +
                    " yards from the green and is " + spaced(off) + " yard" + (off == 1 ? " " : "s ") +
                    " off line in " + (rs.lie == lie::trap ? "" : "the ") + course::cs.locs[rs.lie];
    return cut(t) + ". ";
}

void shotreport() {
    input::clk();
    voice::say2(shotreporttext());
}

}  // namespace play
