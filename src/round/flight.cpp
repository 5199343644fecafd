// The strike, the flight and the landing of a full shot.
#include "round/flight.h"

#include <cmath>

#include "input/keys.h"
#include "platform/rnd.h"
#include "round/driver.h"
#include "round/lies.h"
#include "round/state.h"
#include "sound/bank.h"
#include "sound/wave_table.h"
#include "voice/speech.h"

namespace play {

int fullcarry(int dirty, double club, double u) {
    double d = 30 - dirty;
    return int(std::floor((d * 2.5 + 230) - ((d * 0.25 + 20) * club) / 2 + u * 20));
}

int swingcarry(int full, double pw) { return int(std::floor(full * pw)); }

double offline(int yds, int dirty, double u) {
    return (u / 0.6) * (2 * dirty + 16) * std::fabs(std::tan(yds * 0.003));
}

int landing(double offl, int togo, int yds) {
    double along = std::abs(togo - yds);
    return int(std::floor(std::sqrt(offl * offl + along * along)));
}

bool overthegreen(int togo, int yds, int remain) { return togo - yds < 0 && remain >= 20; }

Zone zone(int remain) {
    if (remain > 25) return Zone::open;
    if (remain >= 16) return Zone::greenside;
    if (remain >= 2) return Zone::green;
    return Zone::hole;
}

bool onfairway(double offl, int fairw, int dirty, double pw) {
    return offl < fairw + dirty * 1.1 - pw * 20;
}

void strikeball() {
    sound::playgolfwav();
    sound::playcrowdwav();
    sound::playantwav();
    if (rs.pw > 0.97) sound::play(sound::stem::bigSwing);
    carry();
}

void carry() {
    rs.yds = swingcarry(fullcarry(rs.dirty, rs.club, platform::U()), rs.pw);
    input::dy(rs.yds / 250.0);
    landball();
}

namespace {

// Open ground: on the fairway inside the margin; outside it the hook and
// slice selector decides, and at 3 the ball keeps the lie it had.
void lierule() {
    if (onfairway(rs.offl, rs.fairw, rs.dirty, rs.pw)) {
        rs.lie = lie::fairway;
        return;
    }
    switch (rs.hookset + 1) {
        case 1:
            voice::say2(" you hooked it ");
            rs.lie = rs.leftloc;
            break;
        case 2:
            voice::say2(" you sliced it ");
            rs.lie = rs.rightloc;
            break;
        default:
            return;
    }
    if (rs.offl > 50) voice::say2(" out of sight ");
}

}  // namespace

void landball() {
    rs.offl = offline(rs.yds, rs.dirty, platform::U());
    rs.remain = landing(rs.offl, rs.togo, rs.yds);
    if (overthegreen(rs.togo, rs.yds, int(rs.remain)))
        voice::say2(" too much club, you are over the green ");
    rs.lasttogo = rs.togo;
    rs.togo = int(rs.remain);
    switch (zone(int(rs.remain))) {
        case Zone::open:
            lierule();
            aftershot();
            break;
        case Zone::greenside:
            greenside();
            break;
        case Zone::green:
            rs.lie = lie::fairway;
            rs.remain = std::floor(rs.remain * (platform::U() * 4));   // now feet
            greenstep();
            break;
        case Zone::hole:
            rs.remain = 0;
            greenstep();
            break;
    }
}

}  // namespace play
