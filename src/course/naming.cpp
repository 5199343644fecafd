#include "course/course.h"
#include "course/locs.h"
#include "platform/platform.h"

namespace course {

namespace {

bool inRange(int v, int slots) { return v >= 0 && v < slots; }

}  // namespace

std::string locname(int hole, int side, int id) {
    if (!inRange(id, locSlots)) throw platform::Failure("no location " + std::to_string(id));
    if (cs.fox == 1 || id != customLoc) return cs.locs[id];
    if (!inRange(hole, holeSlots) || !inRange(side, textSlots))
        throw platform::Failure("no custom text for hole " + std::to_string(hole) + " side " +
                                std::to_string(side));
    return cs.HS[hole][side];
}

void nameSides(int hole, int leftloc, int rightloc, std::string& leftname,
               std::string& rightname) {
    platform::attempt([&] { leftname = locname(hole, 1, leftloc); });
    platform::attempt([&] { rightname = locname(hole, 2, rightloc); });
}

}  // namespace course
