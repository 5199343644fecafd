// golflog.txt as a whole round leaves it: the head, two lines a hole, the
// summary and the record lines, byte for byte, with the record files and
// the list of records the first round on a course leaves; and a resumed
// round that goes on with the log of the round it saved.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "course/catalogue.h"
#include "course/stored.h"
#include "platform/platform.h"
#include "platform/rnd.h"
#include "round/driver.h"
#include "round/fresh_game.h"
#include "round/fullround_play.h"
#include "round/holeout.h"
#include "round/session.h"
#include "round/state.h"
#include "sim_harness.h"

using caddie::Caddie;
using caddie::scriptLines;

namespace {

const std::string kCourse1 = " Amateur Green Grass Country Club Rating 65 ";

// The record file of a course nobody has played, byte for byte.
const std::string kDefaultRecord = std::string(
    "\x02\x00\x00\x00\x02\x00\x06\x00\x02\x00\x06\x00\x02\x00\xD6\x07\x03\x00\x08\x00\x00\x00"
    "\x02\x00\x20\x00\x02\x00\x4E\x00\x02\x00\x6F\x00\x02\x00\x20\x00\x02\x00\x4F\x00\x02\x00"
    "\x6E\x00\x02\x00\x65\x00\x02\x00\x20\x00",
    54);

using simtest::slurp;

int lineCount(const std::string& text) {
    int n = 0;
    for (size_t at = text.find("\r\n"); at != std::string::npos; at = text.find("\r\n", at + 2)) ++n;
    return n;
}

// The log's lines for the holes on the cards, starting at hole first with
// the par and the score of the holes before it; adds to the counts of each
// class.
std::string holeLines(const std::vector<caddie::Card>& cards, int first, int total, int stks, int counts[9]) {
    std::string out;
    int hole = first;
    for (const auto& card : cards) {
        total += card.par;
        stks += card.strokes;
        counts[play::classify(card.strokes, card.par)] += 1;
        out += "hole number " + std::to_string(hole) + " par " + std::to_string(card.par) + " you shot a " +
               std::to_string(card.strokes) + " \r\n";
        out += "total par so far " + std::to_string(total) + " your score " + std::to_string(stks) + " \r\n";
        ++hole;
    }
    return out;
}

// "So you had" and the eight counts, in the log's order and words.
std::string summaryLines(const int counts[9]) {
    struct Row {
        int sank;
        const char* label;
    };
    const Row rows[] = {{4, " awful shot"}, {1, " double bogey"}, {2, " bogey"}, {3, " par"},
                        {5, " birdie"},     {7, " eagle"},        {8, " double eagle"}, {6, " hole in one"}};
    std::string out = "So you had\r\n";
    for (const Row& row : rows)
        out += std::to_string(counts[row.sank]) + row.label + (counts[row.sank] == 1 ? " " : "s") + "\r\n";
    return out;
}

int strokesOf(const std::vector<caddie::Card>& cards) {
    int n = 0;
    for (const auto& card : cards) n += card.strokes;
    return n;
}

TEST(RoundLog, AWholeRoundLeavesItsLogByteForByte) {
    std::string docs = simtest::tempDir();
    std::filesystem::create_directories(docs + "/brindlewick");
    Caddie c(scriptLines(simtest::kToTheTee));
    auto r = caddie::playThroughSim(c, {"--docs", docs, "--date", "1/5/2024"});
    ASSERT_EQ(r.code, 0) << r.dump();
    ASSERT_EQ(c.cards().size(), 18u) << r.dump();
    int counts[9] = {};
    std::string want = "Greenlark   By Tobrell\r\n01-05-2024 \r\n" + kCourse1 + "\r\n";
    want += holeLines(c.cards(), 1, 0, 0, counts);
    want += summaryLines(counts);
    int stks = strokesOf(c.cards());
    // The first round on the course sets its record.
    want += "Your score of " + std::to_string(stks) + " sets a new record.\r\nThe old record was 0\r\n on 06-06-2006\r\nBy  No One \r\n";
    std::string kp = docs + "/brindlewick/";
    std::string log = slurp(kp + "golflog.txt");
    EXPECT_EQ(log, want);
    EXPECT_EQ(lineCount(log), 52);

    // What was heard: the new record, the applause, the old record's text, the question.
    auto at = r.sequence({"say \" which sets A-new record! \"", "play golf11", "play golf12", "play golf13",
                          "say2 \" the record for the  Amateur Green Grass Country Club Rating 65.  was  0 by  No One  on  6 6 2006\"",
                          "say2 \" Is  Jo  correct for the name of the new record holder? yes \""});
    EXPECT_GT(at.back(), 0) << r.dump();
    EXPECT_FALSE(r.has("strokes or"));

    // The course's record: the score with tag 2, today with tag 5, the holder.
    std::string grf = course::encodevalue({double(stks), 2}) + course::encodevalue({1, 5}) +
                      course::encodevalue({5, 5}) + course::encodevalue({2024, 5});
    grf += course::encodevalue({4, 3});
    for (char ch : std::string(" Jo ")) grf += course::encodevalue({double(ch), 2});
    EXPECT_EQ(slurp(kp + "golfAmateur Green Grass Country Club Rating 65.grf"), grf);
    // Every other course got its default record when the list was written.
    const std::string courses[] = {"Down Hill Country Club Rating 69", "Swamp Grass USA Rating 72",
                                   "Erie Lake Contry Club rating 69", "Harlo chip and putt golf course rating 48",
                                   "Ostrey Memorial golf course rating 75"};
    for (const auto& name : courses) EXPECT_EQ(slurp(kp + "golf" + name + ".grf"), kDefaultRecord) << name;
    std::string list = "Greenlark   By Tobrell\r\n" + kCourse1 + " record\r\n" + std::to_string(stks) +
                       "\r\n01-05-2024\r\nBy  Jo \r\n";
    for (const char* name : {" Down Hill Country Club Rating 69 ", " Swamp Grass USA. Rating 72 ",
                             " Erie Lake Contry Club rating 69 ", " Harlo chip and putt golf course rating 48 ",
                             " Ostrey Memorial golf course rating 75 "})
        list += std::string(name) + " record\r\n0\r\n06-06-2006\r\nBy  No One \r\n";
    EXPECT_EQ(slurp(kp + "golfrecords.txt"), list);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(kp), {}), 9) << "no record of the random course";
    std::filesystem::remove_all(docs);
}

// A saved game at the tee of hole 18 of course 1, as the game writes it.
std::string savedAtEighteen() {
    std::string out;
    // flag, hole, stks, eight counters, total, dirty, hookset, c, nsaves
    for (int v : {1, 18, 80, 1, 3, 4, 5, 3, 1, 0, 0, 72, 1, 3, 1, 1}) out += course::encodevalue({double(v), 2});
    return out;
}

TEST(RoundLog, AResumedRoundGoesOnWithTheLogOfTheSavedRound) {
    std::string docs = simtest::tempDir();
    std::filesystem::create_directories(docs + "/brindlewick");
    const std::string before = "Greenlark   By Tobrell\r\n11-21-2026 \r\n" + kCourse1 +
                               "\r\nhole number 17 par 4 you shot a 5 \r\ntotal par so far 67 your score 80 \r\n";
    std::ofstream(docs + "/brindlewick/golflog.txt", std::ios::binary) << before;
    std::ofstream(docs + "/brindlewick/golfgame.sav", std::ios::binary) << savedAtEighteen();
    Caddie c({}, 1);
    auto r = caddie::playInProcess(
        c,
        [] {
            roundtest::freshGame();
            play::rs.nocs = course::GetCors(play::kp());
            platform::reseed(platform::os().tick());
            play::playround();
        },
        [] {}, docs);
    ASSERT_EQ(r.code, 0) << r.dump();
    ASSERT_EQ(c.cards().size(), 1u) << r.dump();
    const auto& last = c.cards();
    // By class: 3 double bogeys, 4 bogeys, 5 pars, 1 awful, 3 birdies, 1 eagle, as saved.
    int counts[9] = {0, 3, 4, 5, 1, 3, 0, 1, 0};
    std::string hole18 = holeLines(last, 18, 67, 80, counts);
    std::string log = slurp(docs + "/brindlewick/golflog.txt");
    std::filesystem::remove_all(docs);
    EXPECT_EQ(log, before + hole18 + summaryLines(counts) + "Your score of " + std::to_string(play::rs.stks) +
                       " sets a new record.\r\nThe old record was 0\r\n on 06-06-2006\r\nBy  No One \r\n")
        << "the head is not written again";
    EXPECT_EQ(strokesOf(last), play::rs.stks - 80);
}

}  // namespace
