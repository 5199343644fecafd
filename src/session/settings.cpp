// The F-key hooks of the settings.
#include "session/settings.h"

#include "input/keys.h"

namespace session {

void wiresettings() {
    auto& f = input::fkeys;
    if (!f.adjrate) f.adjrate = adjrate;
    if (!f.adjvol) f.adjvol = adjvol;
    if (!f.changevoice2) f.changevoice2 = [] { changevoice(2); };
}

}  // namespace session
