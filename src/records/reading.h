// The log and the records read aloud from the main menu.
#pragma once

#include <string>

namespace records {

// Main menu " 5. reed golf log file ": golflog.txt as one text.
void ReadLog();
// Main menu " 6. reed golf records file ": golfrecords.txt as one text.
void ReadRecords();
// A text file read aloud: each field a sentence; missing is said when the
// file is not there. A key stops the reading.
void readaloud(const std::string& path, const std::string& name, const std::string& missing);

}  // namespace records
