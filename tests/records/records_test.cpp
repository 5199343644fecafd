// The course record at the end of a round, driven by record files written
// here: a tie, a round that misses the record, and the repeat of the end
// report on F1 with the old record's figures.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "course/catalogue.h"
#include "course/stored.h"
#include "records/courserecord.h"
#include "round/driver.h"
#include "round/fresh_game.h"
#include "round/session.h"
#include "round/state.h"
#include "session/state.h"
#include "sim_harness.h"

namespace {

using course::encodevalue;
using play::rs;

const std::string kGrf = "golfAmateur Green Grass Country Club Rating 65.grf";
const std::string kRecordOf = " the record for the  Amateur Green Grass Country Club Rating 65. ";

using simtest::slurp;

std::string stored(const std::string& name) {
    std::string out = encodevalue({double(name.size()), 3});
    for (char ch : name) out += encodevalue({double(ch), 2});
    return out;
}

// A player folder whose course 1 holds the record given.
std::string docsWithRecord(int strokes, int month, int monthTag, int day, int year, const std::string& holder) {
    std::string docs = simtest::tempDir();
    std::filesystem::create_directories(docs + "/brindlewick");
    std::ofstream(docs + "/brindlewick/" + kGrf, std::ios::binary)
        << encodevalue({double(strokes), 2}) + encodevalue({double(month), monthTag}) + encodevalue({double(day), 2}) +
               encodevalue({double(year), 2}) + stored(holder);
    return docs;
}

// The end of a round on course 1 with the score and par given.
void endOfRound(int stks, int total) {
    roundtest::freshGame();
    // The date start-up takes from the simulated clock.
    session::ss.mm = 11, session::ss.dd = 22, session::ss.yy = 2026;
    rs.nocs = course::GetCors(play::kp());
    rs.c = 1, rs.stks = stks, rs.total = total;
}

TEST(CourseRecord, ATieIsSaidAppliedAndWrittenWithTheNewHolder) {
    std::string docs = docsWithRecord(70, 12, 2, 25, 6, " Ann ");
    auto r = simtest::runInProcess(R"(expect "correct for the name of the new record holder? yes"
key Down
expect " no "
key Enter
expect "Please enter the name of the new record holder"
type Bo
key Enter
expect "Is  Bo  correct for the name of the new record holder? yes"
key Enter
end
)",
                                   [] {
                                       endOfRound(70, 72);
                                       records::CheckRecords();
                                   },
                                   docs);
    std::string kp = docs + "/brindlewick/";
    ASSERT_EQ(r.code, 0) << r.dump();
    // The year 6 of an old file is spoken as 2006.
    auto at = r.sequence({"say \" Which ties the record \"", "play golf13",
                          "say2 \"" + kRecordOf + " was  70 strokes or  2 under  par  by  Ann  on  12 25 2006\"",
                          "say2 \" Is  Jo  correct for the name of the new record holder? yes \""});
    EXPECT_GT(at.back(), 0) << r.dump();
    // The strokes stay; the holder and the date are the new ones.
    EXPECT_EQ(slurp(kp + kGrf), encodevalue({70, 2}) + encodevalue({11, 5}) + encodevalue({22, 5}) +
                                    encodevalue({2026, 5}) + stored(" Bo "));
    const std::string head = "Greenlark   By Tobrell\r\n Amateur Green Grass Country Club Rating 65  record\r\n70\r\n"
                             "11-22-2026\r\nBy  Bo \r\n Down Hill";
    EXPECT_EQ(slurp(kp + "golfrecords.txt").substr(0, head.size()), head);
    // The log had gone: the lines make it anew, without a head; the old year as stored.
    EXPECT_EQ(slurp(kp + "golflog.txt"),
              "Your score of 70 ties the record \r\nThe old record was 70\r\n on 12-25-6\r\nBy  Ann \r\n");
    std::filesystem::remove_all(docs);
}

TEST(CourseRecord, ARoundAboveTheRecordLeavesItStanding) {
    std::string docs = docsWithRecord(68, 12, 5, 25, 2006, " Ann ");
    std::string before = slurp(docs + "/brindlewick/" + kGrf);
    auto r = simtest::runInProcess("end\n",
                                   [] {
                                       endOfRound(74, 72);
                                       records::CheckRecords();
                                   },
                                   docs);
    std::string kp = docs + "/brindlewick/";
    ASSERT_EQ(r.code, 0) << r.dump();
    EXPECT_TRUE(r.has("say2 \"" + kRecordOf + " is  68 strokes or  4 under  par  by  Ann  on  12 25 2006\"")) << r.dump();
    EXPECT_FALSE(r.has("play golf1"));
    EXPECT_FALSE(r.has("record!"));
    EXPECT_FALSE(r.has("ties"));
    EXPECT_FALSE(r.has("holder"));
    EXPECT_EQ(slurp(kp + kGrf), before);
    EXPECT_FALSE(std::filesystem::exists(kp + "golfrecords.txt"));
    EXPECT_FALSE(std::filesystem::exists(kp + "golflog.txt"));
    std::filesystem::remove_all(docs);
}

TEST(CourseRecord, F1AtTheEndRepeatsTheReportAndTheOldRecordWithoutApplause) {
    // A record equal to par: " strokes or " and then " par ".
    std::string docs = docsWithRecord(72, 12, 2, 25, 2006, " Ann ");
    auto r = simtest::runInProcess(R"(expect "new record holder? yes"
key Enter
expect "press any key to continue"
key F1
wait 30
key Space
end
)",
                                   [] {
                                       endOfRound(70, 72);
                                       rs.PARS = 16, rs.BIRDIE = 2;
                                       play::endround();
                                   },
                                   docs);
    ASSERT_EQ(r.code, 0) << r.dump();
    const std::string report =
        "say2 \" Jo  your score is as follows,  0 awful shots.  0 double bo ghees.  0 bo ghees.  16 pars.  2 birdies. "
        " 0 eagles.  0 double eagles.  0 hole in ones.  par for the  Amateur Green Grass Country Club Rating 65, is "
        "72.  your score was  70.  which is  2 strokes  under  par. \"";
    const std::string was = "say2 \"" + kRecordOf + " was  72 strokes or  par  by  Ann  on  12 25 2006\"";
    auto first = r.sequence({report, "play golf11", "play golf13", "say \" which sets A-new record! \"", "play golf12",
                             was, "new record holder? yes", "press any key to continue"});
    ASSERT_GT(first.back(), 0) << r.dump();
    int f1 = r.find("key 112", first.back());
    auto again = r.sequence({report, "say \" which sets A-new record! \"", was, "press any key to continue"}, f1);
    EXPECT_GT(again.back(), 0) << r.dump();
    EXPECT_LT(r.find("play golf11", f1), 0) << "the repeat never applauds";
    EXPECT_LT(r.find("holder", f1), 0);
    std::filesystem::remove_all(docs);
}

}  // namespace
