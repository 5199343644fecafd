// Single-byte text on disk, UTF-8 in the program. Files keep text in the
// Windows-1252 code page; everything is turned at the file boundary.
#pragma once

#include <string>

namespace course {

// Bytes in Windows-1252 to UTF-8. Each of the five bytes the code page
// leaves unassigned stands for the control character of the same number.
std::string toUtf8(const std::string& bytes);
// UTF-8 to Windows-1252; a character the code page lacks, or a broken UTF-8
// sequence, becomes "?".
std::string toCp1252(const std::string& text);

}  // namespace course
