// Text files: lines of single-byte text ending in CR LF, read by field or by
// line. Items are UTF-8 in the program and Windows-1252 on disk.
#pragma once

#include <string>

#include "course/stored.h"
#include "voice/text.h"

namespace course {

// The three forms of a number in text. printed: a blank or a minus, the
// digits, a blank. spaced: a blank or a minus, the digits. bare: the digits,
// a minus before them if negative.
std::string printed(long n);
using voice::spaced;
std::string bare(long n);

// Adds an item to the open line.
void printitem(File& f, const std::string& item);
// Adds an item and ends the line with CR LF.
void printline(File& f, const std::string& item = "");

// The next field: blanks before it skipped; a field that opens with a double
// quote runs to the next one, any other to the next comma or the end of the
// line, without its trailing blanks. The comma or line end behind it is
// consumed. Past the end of the file it throws platform::Failure.
std::string readfield(File& f);
// The next field read into a number: the number it spells, 0 if it spells
// none.
double readnumber(File& f);
// The next line without its line end, blanks and commas as they stand. Past
// the end of the file it throws platform::Failure.
std::string readline(File& f);
// Nothing more to read.
bool atend(const File& f);

}  // namespace course
