// What the platform tells about the machine: the date, the player's
// documents folder, the program's folder, and starting other programs.
#pragma once

#include <ctime>
#include <string>

namespace platform::real {

// Month first, without leading zeros: "11/22/2026".
std::string shortDate(const std::tm& local);
double secondsSinceMidnight(const std::tm& local);
// The documents folder named in user-dirs.dirs under `configHome`, else
// `home`/Documents; empty when the folder found does not exist.
std::string documentsFolderOf(const std::string& home, const std::string& configHome);
std::string executableFolder();
// Where the game's data lies for a program in `exeFolder`: an installed
// program finds it in ../share/greenlark beside its bin folder; a program in
// a build's game folder has it beside itself.
std::string dataFolderOf(const std::string& exeFolder);
// Makes the data folder the working folder; left as it is when that fails.
void startInDataFolder();
// Starts a program, or opens a document with the desktop's opener, without
// waiting for it. Throws Failure when neither can be done.
void launch(const std::string& path);

}  // namespace platform::real
