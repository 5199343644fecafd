// How values lie on disk. A value file is a run of stored values: a 16-bit
// little-endian tag and the value in the width the tag names. A stored
// string is a length value and one value per character. Text files are
// lines of single-byte text ending in CR LF (see textfile.h).
//
// Files are opened, used and closed within one step: a file to read is read
// whole when opened; a file to write gathers its bytes and goes to the disk
// at closefile, through the platform's writer that never loses the old file.
#pragma once

#include <cstddef>
#include <string>

namespace course {

// Tags of the stored values.
inline constexpr int tagShort = 2;    // signed 16-bit whole number
inline constexpr int tagLong = 3;     // signed 32-bit whole number
inline constexpr int tagSingle = 4;   // single precision
inline constexpr int tagDouble = 5;   // double precision

// A stored string longer than this, or of a negative length, marks its file
// as damaged.
inline constexpr int maxStringChars = 4000;

// A number with the tag it came with; it is written back with that tag.
struct Num {
    double v = 0;
    int tag = tagShort;
};

// The tag of a sum: the wider of the two, a real tag wider than a whole one.
int widest(int a, int b);
Num operator+(Num a, Num b);

// The widest whole number a reader takes from a file, either way: sums and
// steps on it cannot overflow.
inline constexpr int wholeBound = 1000000;
// v as a whole number held within -bound..bound: NaN gives 0, the rest is
// rounded to the nearest, a half to the even neighbour.
int whole(double v, int bound = wholeBound);

struct File {
    enum Mode { reading, replacing, appending };
    std::string path;
    std::string bytes;   // the whole file when reading; what was written so far otherwise
    std::size_t pos = 0; // next byte to read
    Mode mode = reading;
};

// Reads the whole file; a missing file throws platform::Failure.
File openread(const std::string& path);
// A file that replaces whatever stands at path when it is closed.
File openreplace(const std::string& path);
// A file whose lines go behind the old ones when it is closed; made if missing.
File openappend(const std::string& path);
// Writes a replacing or appending file to the disk; a reading file is done.
void closefile(File& f);

// Appends one stored value with n's tag. A whole tag whose number does not
// fit takes the next width that holds it.
void writevalue(File& f, Num n);
// A whole number of the game's own: tag 2.
void writevalue(File& f, int n);
// The next stored value; past the end or with a tag outside 2..5 it throws
// platform::Failure.
Num readvalue(File& f);
// The string form: the length with tag 3, each character's code page value
// with tag 2.
void writestring(File& f, const std::string& text);
// Any numeric tag for the length and the characters; each character value
// is rounded and must be a code of the code page (0..255).
std::string readstring(File& f);

// The stored bytes of one value, as writevalue appends them.
std::string encodevalue(Num n);

}  // namespace course
