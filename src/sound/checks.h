// The checks on the wave files: all of them present with their exact sizes
// at start-up, and the power indicator in use before every reading. The
// verdict stands in bk.fq: failedCheck means a file failed.
#pragma once

namespace sound {

void checkwaves();
void CheckHitWav();
void checkputtwav();
// The start-up failure: spoken, shown in a message box, then the caller
// shuts down.
void corruptFilesEnding();

}  // namespace sound
