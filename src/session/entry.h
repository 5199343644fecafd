// The program entry that both platforms run once their platform is installed.
#pragma once

namespace session {

void gamemain();

}  // namespace session
