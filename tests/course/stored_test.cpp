// How values lie on disk: the bytes of each tag, the string form in the code
// page, sums that keep the widest tag, readers that refuse what is not there,
// and the text files with their number forms, lines and fields.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

#include "course/codepage.h"
#include "course/stored.h"
#include "course/textfile.h"
#include "platform/platform.h"

using course::File;
using course::Num;

namespace {

std::string hex(const std::string& bytes) {
    static const char* digits = "0123456789ABCDEF";
    std::string out;
    for (unsigned char b : bytes) {
        if (!out.empty()) out += ' ';
        out += digits[b >> 4];
        out += digits[b & 15];
    }
    return out;
}

File reading(const std::string& bytes) {
    File f;
    f.path = "test";
    f.bytes = bytes;
    return f;
}

TEST(StoredValue, EachTagHasItsBytesAndReadsBackWithIt) {
    const std::pair<Num, const char*> forms[] = {
        {{2006, 2}, "02 00 D6 07"},
        {{-1, 2}, "02 00 FF FF"},
        {{-32768, 2}, "02 00 00 80"},
        {{40000, 2}, "03 00 40 9C 00 00"},   // too wide for its tag: the next width
        {{8, 3}, "03 00 08 00 00 00"},
        {{1.5, 4}, "04 00 00 00 C0 3F"},
        {{2026, 5}, "05 00 00 00 00 00 00 A8 9F 40"},
        {{std::nan(""), 2}, "02 00 00 00"},
    };
    for (auto [n, bytes] : forms) EXPECT_EQ(hex(course::encodevalue(n)), bytes) << n.v;
    EXPECT_EQ(course::encodevalue({3e9, 3}).substr(0, 2), std::string("\x05\x00", 2));
    File f;
    course::writevalue(f, 0);
    EXPECT_EQ(hex(f.bytes), "02 00 00 00") << "the game's own whole numbers take tag 2";

    File out;
    const Num values[] = {{-7, 2}, {123456, 3}, {0.25, 4}, {2026, 5}};
    for (Num n : values) course::writevalue(out, n);
    File in = reading(out.bytes);
    for (Num want : values) {
        Num got = course::readvalue(in);
        EXPECT_EQ(got.v, want.v);
        EXPECT_EQ(got.tag, want.tag);
    }
    EXPECT_EQ(in.pos, in.bytes.size());
    for (const std::string& bad : {std::string(), std::string("\x05\x00\x00\x00", 4),
                                   std::string("\x07\x00\x01\x00", 4), std::string("\x02", 1)}) {
        File b = reading(bad);
        EXPECT_THROW(course::readvalue(b), platform::Failure) << hex(bad);
    }

    EXPECT_EQ((Num{3, 2} + Num{4, 2}).tag, 2);
    EXPECT_EQ((Num{3, 2} + Num{4, 3}).tag, 3);
    EXPECT_EQ((Num{3, 3} + Num{4, 4}).tag, 4);
    EXPECT_EQ((Num{3, 5} + Num{4, 2}).tag, 5) << "a sum takes the widest tag";
    EXPECT_EQ((Num{3, 5} + Num{4, 2}).v, 7);
    const std::pair<double, int> wholes[] = {{4.0, 4},   {2.5, 2},         {3.5, 4},          {-2.6, -3},
                                             {std::nan(""), 0}, {1e308, 1000000}, {-1e308, -1000000}};
    for (auto [v, w] : wholes) EXPECT_EQ(course::whole(v), w) << v;
    EXPECT_EQ(course::whole(std::numeric_limits<double>::infinity(), 50), 50);
}

TEST(StoredString, TheGamesOwnFormAnyTagAndTheCodePage) {
    File eight;
    course::writestring(eight, "Tom Pike");
    EXPECT_EQ(eight.bytes.size(), 38u);
    EXPECT_EQ(hex(eight.bytes.substr(0, 10)), "03 00 08 00 00 00 02 00 54 00");
    File back = reading(eight.bytes);
    EXPECT_EQ(course::readstring(back), "Tom Pike");
    // A maker's tool may write the length and the codes with any tag.
    File mixed = reading(course::encodevalue({2, 5}) + course::encodevalue({72.4, 4}) + course::encodevalue({105, 3}));
    EXPECT_EQ(course::readstring(mixed), "Hi");
    // One value a character of the code page, not a UTF-8 byte.
    File f;
    course::writestring(f, "caf\u00e9 \u20ac");
    EXPECT_EQ(f.bytes.size(), 6u + 6u * 4u);
    EXPECT_EQ(f.bytes.substr(6 + 3 * 4, 4), course::encodevalue({0xE9, 2}));
    EXPECT_EQ(f.bytes.substr(6 + 5 * 4, 4), course::encodevalue({0x80, 2}));
    File in = reading(f.bytes);
    EXPECT_EQ(course::readstring(in), "caf\u00e9 \u20ac");

    std::string atLimit = course::encodevalue({4000, 3});
    for (int i = 0; i < 4000; ++i) atLimit += course::encodevalue({65, 2});
    File longest = reading(atLimit);
    EXPECT_EQ(course::readstring(longest), std::string(4000, 'A'));
    const std::string damaged[] = {
        course::encodevalue({-1, 3}) + course::encodevalue({65, 2}),
        course::encodevalue({4001, 3}) + course::encodevalue({65, 2}),
        course::encodevalue({1e308, 5}) + course::encodevalue({65, 2}),
        course::encodevalue({std::nan(""), 5}) + course::encodevalue({65, 2}),
        course::encodevalue({1, 3}) + course::encodevalue({256, 2}),
        course::encodevalue({1, 3}) + course::encodevalue({-1, 2}),
        course::encodevalue({1, 3}) + course::encodevalue({std::nan(""), 5}),
        course::encodevalue({3, 3}) + course::encodevalue({65, 2}),
    };
    for (const auto& bytes : damaged) {
        File d = reading(bytes);
        EXPECT_THROW(course::readstring(d), platform::Failure) << hex(bytes);
    }

    std::string all;
    for (int b = 0; b < 256; ++b) all += char(b);
    EXPECT_EQ(course::toCp1252(course::toUtf8(all)), all) << "every byte goes there and back";
    EXPECT_EQ(course::toUtf8("\x80\x93\xE9"), "\u20ac\u201c\u00e9");
    EXPECT_EQ(course::toCp1252("\u4e2d x"), "? x");
    EXPECT_EQ(course::toCp1252("a\xC3"), "a?") << "a cut UTF-8 sequence";
    EXPECT_EQ(course::toCp1252("\xFF\xFE"), "??");
}

TEST(TextFile, NumberFormsLinesAndFields) {
    EXPECT_EQ(course::printed(7) + course::printed(-100) + course::printed(0), " 7 -100  0 ");
    EXPECT_EQ(course::spaced(7) + course::spaced(-100), " 7-100");
    EXPECT_EQ(course::bare(7) + "," + course::bare(-100), "7,-100");

    File f;
    course::printline(f, course::printed(-100));
    course::printitem(f, course::printed(7));
    course::printline(f, " Jo ");
    course::printline(f, "Ren\u00e9e \u20ac5");
    EXPECT_EQ(f.bytes, "-100 \r\n 7  Jo \r\nRen\xE9" "e \x80" "5\r\n");
    File in = reading(f.bytes);
    EXPECT_EQ(course::readnumber(in), -100);
    EXPECT_EQ(course::readfield(in), "7  Jo") << "a field runs to the end of the line, trailing blanks dropped";
    EXPECT_EQ(course::readline(in), "Ren\u00e9e \u20ac5");
    EXPECT_TRUE(course::atend(in));

    File byField = reading("Jo, 72\r\n  \"a, b\" ,x\r\n   \r\nword\r\n\r\nlast\r\n");
    EXPECT_EQ(course::readfield(byField), "Jo");
    EXPECT_EQ(course::readnumber(byField), 72);
    EXPECT_EQ(course::readfield(byField), "a, b");
    EXPECT_EQ(course::readfield(byField), "x");
    EXPECT_EQ(course::readfield(byField), "") << "a line of blanks";
    EXPECT_EQ(course::readnumber(byField), 0) << "a word spells no number";
    EXPECT_EQ(course::readfield(byField), "");
    EXPECT_FALSE(course::atend(byField));
    EXPECT_EQ(course::readfield(byField), "last");
    EXPECT_TRUE(course::atend(byField)) << "the last line end goes with the last field";
    EXPECT_THROW(course::readfield(byField), platform::Failure);
    File byLine = reading("Jo, 72\r\n12\n34");
    EXPECT_EQ(course::readline(byLine), "Jo, 72") << "a comma does not split a line";
    EXPECT_EQ(course::readnumber(byLine), 12) << "a lone LF ends a line too";
    EXPECT_EQ(course::readline(byLine), "34");
    EXPECT_TRUE(course::atend(byLine));
    EXPECT_THROW(course::readline(byLine), platform::Failure);
}

}  // namespace
