// The start of a hole and its spoken description.
#include "course/course.h"
#include "course/locs.h"
#include "course/stored.h"
#include "input/keys.h"
#include "platform/platform.h"
#include "round/driver.h"
#include "round/state.h"
#include "sound/ambient.h"
#include "sound/bank.h"
#include "voice/speech.h"

namespace play {

namespace {

// The hole's par joins the total; a par that came with a wider tag from its
// course file widens the total's.
void addpar() {
    rs.total += rs.par;
    rs.totaltag = course::widest(rs.totaltag, course::cs.partag[rs.hole]);
}

}  // namespace

void starthole() {
    if (rs.hole < 1 || rs.hole > 18) throw platform::Failure("no hole " + std::to_string(rs.hole) + " to start");
    const int* h = course::cs.H[rs.hole];
    rs.par = h[1];
    rs.togo = rs.holelen = h[2];
    rs.leftloc = h[3];
    rs.rightloc = h[4];
    course::nameSides(rs.hole, rs.leftloc, rs.rightloc, rs.leftname, rs.rightname);
    rs.fairw = h[5];
    rs.trapped = 0;
    rs.greensaid = 0;
    sound::chamb(rs.hole);
    sound::playcrowdwav();
    sound::startwater();
    rs.wedge = 0;
    rs.firstapp = 1;
    rs.f1state = 1;
    describehole();
    input::dy(0.5);
    if (rs.resumeskip == 1)
        rs.resumeskip = 0;
    else
        addpar();
}

std::string holetext() {
    std::string t = rs.pn + " You are at hole number " + spaced(rs.hole);
    t = cut(t) + ". distance " + spaced(rs.togo) + " yards. par " + spaced(rs.par);
    t = cut(t) + ". on your left is " + rs.leftname;
    t = cut(t) + ". on your right is " + rs.rightname;
    bool pond = rs.hole >= 0 && rs.hole < course::holeSlots && course::cs.HF[rs.hole] == 1;
    return cut(t) + ". next to the green is " + (pond ? "A-pond and " : "") + "A-sand trap. ";
}

void describehole() {
    rs.savestate = 1;
    std::string t = holetext();
    input::clk();
    voice::say2(t);
}

}  // namespace play
