#include "session/savedgame.h"

#include "course/builtin.h"
#include "course/catalogue.h"
#include "course/course.h"
#include "course/exists.h"
#include "course/stored.h"
#include "input/keys.h"
#include "platform/platform.h"
#include "round/session.h"
#include "round/state.h"
#include "sound/bank.h"
#include "voice/speech.h"

namespace session {

namespace {

using play::rs;

// The figures of a saved game in their order, behind the flag.
struct Saved {
    int hole, stks, counters[8], total, totaltag, dirty, hookset, c, nsaves;
};

int* counter(int i) {
    int* all[8] = {&rs.BAD, &rs.DOUBLEBOGEY, &rs.Bogey, &rs.PARS, &rs.BIRDIE, &rs.EAGLE, &rs.DOUEAG, &rs.HOLEINONE};
    return all[i];
}

// The fifteen values behind the flag; throws if the file ends before them.
Saved readfigures(course::File& f) {
    auto next = [&] { return course::whole(course::readvalue(f).v); };
    Saved s{};
    s.hole = next();
    s.stks = next();
    for (int& n : s.counters) n = next();
    course::Num total = course::readvalue(f);
    s.total = course::whole(total.v);
    s.totaltag = total.tag;
    s.dirty = next();
    s.hookset = next();
    s.c = next();
    s.nsaves = next();
    return s;
}

void restore(const Saved& s) {
    rs.hole = s.hole;
    rs.stks = s.stks;
    for (int i = 0; i < 8; ++i) *counter(i) = s.counters[i];
    rs.total = s.total;
    rs.totaltag = s.totaltag;
    rs.dirty = s.dirty;
    rs.hookset = s.hookset;
    rs.c = s.c;
    rs.nsaves = s.nsaves;
}

}  // namespace

std::string savepath() { return play::kp() + "/golfgame.sav"; }

std::string savedform() {
    course::File f;
    course::writevalue(f, 1);
    course::writevalue(f, rs.hole);
    course::writevalue(f, rs.stks);
    for (int i = 0; i < 8; ++i) course::writevalue(f, *counter(i));
    course::writevalue(f, course::Num{double(rs.total), rs.totaltag});
    course::writevalue(f, rs.dirty);
    course::writevalue(f, rs.hookset);
    course::writevalue(f, rs.c);
    course::writevalue(f, rs.nsaves);
    return f.bytes;
}

void savegame() {
    sound::StopAllSounds();
    sound::stopWater();
    rs.nsaves += 1;
    // The new file replaces the old one whole, or not at all.
    platform::attempt([] {
        course::File f = course::openreplace(savepath());
        f.bytes = savedform();
        course::closefile(f);
    });
    voice::say(" game saved ");
    play::leavegame();
}

void clearsave() {
    course::File f = course::openreplace(savepath());
    course::writevalue(f, 0);
    course::closefile(f);
}

void deletesave() {
    // Every spelling of the name goes, so that no older one is read instead.
    for (int i = 0; i < 8; ++i) {
        std::string found = course::findfile(savepath(), course::NameRule::lowerCase);
        if (found.empty()) return;
        platform::os().removeFile(found);
    }
}

void loadgame() {
    rs.resumed = 0;
    std::string found = course::findfile(savepath(), course::NameRule::lowerCase);
    if (found.empty()) return;
    course::File f = course::openread(found);
    if (course::readvalue(f).v != 1) return;
    Saved s = readfigures(f);
    // A hole outside the round is no game this program saved.
    if (s.hole < 1 || s.hole > 18) return;
    restore(s);
    rs.resumed = 1;
    rs.resumeskip = 1;
    platform::attempt(loadcourse);
}

void loadcourse() {
    for (int hole = 1; hole <= 18; ++hole) {
        course::cs.HF[hole] = 1;
        course::cs.partag[hole] = course::tagShort;
    }
    if (rs.c == rs.nocs)
        course::setrandomcourse();
    else if (rs.c <= course::builtins)
        course::SetHolesData(rs.c);
    else
        platform::attempt([] { course::GetCusCors(play::kp(), rs.c); });
    input::dy(0.2);
    input::clk();
}

}  // namespace session
