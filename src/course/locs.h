// The place-name vocabulary and the rule that names the two sides of a hole.
#pragma once

#include <string>

namespace course {

// The first seven place ids are also the lies of the ball.
namespace lie {
inline constexpr int fairway = 1;
inline constexpr int rough = 2;
inline constexpr int trees = 3;
inline constexpr int adjacent = 4;   // the adjacent fairway
inline constexpr int trap = 5;
inline constexpr int pond = 6;
inline constexpr int outofbounds = 7;
}  // namespace lie

// Fills cs.locs with the fixed texts of ids 1..162 and empties 0 and
// 163..165. Start-up calls it once; the texts never change afterwards.
void fillLocs();

// The spoken name of location `id` on one side of `hole` (side 1 left,
// 2 right). Unless fox is 1, an id of 160 takes the custom text HS(hole,side);
// otherwise the name is locs(id). An id outside 0..165 (or, for custom
// text, a hole outside 0..19) throws platform::Failure.
std::string locname(int hole, int side, int id);

// The naming rule at the start of a hole: leftname from leftloc and
// rightname from rightloc, each side settled by itself. A side whose lookup
// fails keeps the name it held (the previous hole's).
void nameSides(int hole, int leftloc, int rightloc, std::string& leftname,
               std::string& rightname);

}  // namespace course
