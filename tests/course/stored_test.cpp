// Stored values on disk: the bytes of each tag, the string form, sums that
// keep the widest tag, and readers that refuse what is not there.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

#include "course/codepage.h"
#include "course/stored.h"
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

TEST(StoredValue, EachTagHasItsBytes) {
    EXPECT_EQ(hex(course::encodevalue({2006, 2})), "02 00 D6 07");
    EXPECT_EQ(hex(course::encodevalue({8, 3})), "03 00 08 00 00 00");
    EXPECT_EQ(hex(course::encodevalue({2026, 5})), "05 00 00 00 00 00 00 A8 9F 40");
    EXPECT_EQ(hex(course::encodevalue({1.5, 4})), "04 00 00 00 C0 3F");
    EXPECT_EQ(hex(course::encodevalue({-1, 2})), "02 00 FF FF");
    File f;
    course::writevalue(f, 0);
    EXPECT_EQ(hex(f.bytes), "02 00 00 00") << "the game's own whole numbers take tag 2";
}

TEST(StoredValue, AWholeNumberTooWideForItsTagTakesTheNextWidth) {
    EXPECT_EQ(hex(course::encodevalue({40000, 2})), "03 00 40 9C 00 00");
    EXPECT_EQ(hex(course::encodevalue({-32768, 2})), "02 00 00 80");
    EXPECT_EQ(course::encodevalue({3e9, 3}).substr(0, 2), std::string("\x05\x00", 2));
    EXPECT_EQ(course::encodevalue({std::nan(""), 2}), course::encodevalue({0, 2}));
}

TEST(StoredValue, EveryTagReadsBackWithItsTag) {
    File out;
    for (Num n : {Num{-7, 2}, Num{123456, 3}, Num{0.25, 4}, Num{2026, 5}}) course::writevalue(out, n);
    File in = reading(out.bytes);
    for (Num want : {Num{-7, 2}, Num{123456, 3}, Num{0.25, 4}, Num{2026, 5}}) {
        Num got = course::readvalue(in);
        EXPECT_EQ(got.v, want.v);
        EXPECT_EQ(got.tag, want.tag);
    }
    EXPECT_EQ(in.pos, in.bytes.size());
}

TEST(StoredValue, TagsTwoAndFiveReadAlike) {
    // The month of a record as this game writes it by default and as it
    // writes it from the date.
    File shortMonth = reading(course::encodevalue({6, 2}));
    File realMonth = reading(course::encodevalue({6, 5}));
    EXPECT_EQ(course::readvalue(shortMonth).v, course::readvalue(realMonth).v);
}

TEST(StoredValue, ReadingPastTheEndOrAnUnknownTagFails) {
    File empty = reading("");
    EXPECT_THROW(course::readvalue(empty), platform::Failure);
    File cut = reading(std::string("\x05\x00\x00\x00", 4));
    EXPECT_THROW(course::readvalue(cut), platform::Failure);
    File odd = reading(std::string("\x07\x00\x01\x00", 4));
    EXPECT_THROW(course::readvalue(odd), platform::Failure);
    File lone = reading(std::string("\x02", 1));
    EXPECT_THROW(course::readvalue(lone), platform::Failure);
}

TEST(StoredString, TheGamesOwnFormAndAnyTagOnReading) {
    File eight;
    course::writestring(eight, "Tom Pike");
    EXPECT_EQ(eight.bytes.size(), 38u);
    EXPECT_EQ(hex(eight.bytes.substr(0, 10)), "03 00 08 00 00 00 02 00 54 00");
    File back = reading(eight.bytes);
    EXPECT_EQ(course::readstring(back), "Tom Pike");
    // A maker's tool may write the length and the codes with any tag.
    std::string any = course::encodevalue({2, 5}) + course::encodevalue({72.4, 4}) + course::encodevalue({105, 3});
    File mixed = reading(any);
    EXPECT_EQ(course::readstring(mixed), "Hi");
    File empty;
    course::writestring(empty, "");
    EXPECT_EQ(hex(empty.bytes), "03 00 00 00 00 00");
}

TEST(StoredString, CharactersAreTheCodePagesOnDiskAndUtf8InTheProgram) {
    File f;
    course::writestring(f, "caf\u00e9 \u20ac");
    EXPECT_EQ(f.bytes.size(), 6u + 4u * 6u) << "one value per character, not per UTF-8 byte";
    File in = reading(f.bytes);
    course::readvalue(in);
    for (int i = 0; i < 3; ++i) course::readvalue(in);
    EXPECT_EQ(course::readvalue(in).v, 0xE9);
    course::readvalue(in);
    EXPECT_EQ(course::readvalue(in).v, 0x80);
    File back = reading(f.bytes);
    EXPECT_EQ(course::readstring(back), "caf\u00e9 \u20ac");
}

TEST(StoredString, ADamagedLengthOrCharacterFails) {
    for (Num length : {Num{-1, 3}, Num{4001, 3}, Num{1e308, 5}, Num{std::nan(""), 5}}) {
        File f = reading(course::encodevalue(length) + course::encodevalue({65, 2}));
        EXPECT_THROW(course::readstring(f), platform::Failure) << length.v;
    }
    std::string atLimit = course::encodevalue({4000, 3});
    for (int i = 0; i < 4000; ++i) atLimit += course::encodevalue({65, 2});
    File longest = reading(atLimit);
    EXPECT_EQ(course::readstring(longest), std::string(4000, 'A'));
    for (Num code : {Num{256, 2}, Num{-1, 2}, Num{std::nan(""), 5}}) {
        File f = reading(course::encodevalue({1, 3}) + course::encodevalue(code));
        EXPECT_THROW(course::readstring(f), platform::Failure) << code.v;
    }
    File fewer = reading(course::encodevalue({3, 3}) + course::encodevalue({65, 2}));
    EXPECT_THROW(course::readstring(fewer), platform::Failure);
}

TEST(StoredNumber, ASumTakesTheWidestTag) {
    EXPECT_EQ((Num{3, 2} + Num{4, 2}).tag, 2);
    EXPECT_EQ((Num{3, 2} + Num{4, 3}).tag, 3);
    EXPECT_EQ((Num{3, 3} + Num{4, 4}).tag, 4);
    EXPECT_EQ((Num{3, 5} + Num{4, 2}).tag, 5);
    EXPECT_EQ((Num{3, 5} + Num{4, 2}).v, 7);
}

TEST(StoredNumber, WholeIsSafeForAnyDouble) {
    EXPECT_EQ(course::whole(4.0), 4);
    EXPECT_EQ(course::whole(2.5), 2);
    EXPECT_EQ(course::whole(3.5), 4);
    EXPECT_EQ(course::whole(-2.6), -3);
    EXPECT_EQ(course::whole(std::nan("")), 0);
    EXPECT_EQ(course::whole(1e308), 1000000);
    EXPECT_EQ(course::whole(-1e308), -1000000);
    EXPECT_EQ(course::whole(std::numeric_limits<double>::infinity(), 50), 50);
}

TEST(CodePage, HighBytesAndUnmappedCharacters) {
    std::string all;
    for (int b = 0; b < 256; ++b) all += char(b);
    EXPECT_EQ(course::toCp1252(course::toUtf8(all)), all) << "every byte goes there and back";
    EXPECT_EQ(course::toUtf8("\x80\x93\xE9"), "\u20ac\u201c\u00e9");
    EXPECT_EQ(course::toCp1252("\u4e2d x"), "? x");
    EXPECT_EQ(course::toCp1252("a\xC3"), "a?") << "a cut UTF-8 sequence";
    EXPECT_EQ(course::toCp1252("\xFF\xFE"), "??");
}

}  // namespace
