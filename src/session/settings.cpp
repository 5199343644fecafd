// Stand-ins until the settings are written: nothing changes.
#include "session/settings.h"

namespace session {

void getplayername() {}
void adjrate() {}
void adjvol() {}
void changevoice(int) {}

}  // namespace session
