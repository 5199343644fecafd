// Entries 5 and 6 of the main menu: the log and the records read aloud as
// one text of sentences, their message when the file is missing, and a key
// that stops the reading.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "records/reading.h"
#include "round/fresh_game.h"
#include "sim_harness.h"

namespace {

std::string docsWith(const std::string& name, const std::string& text) {
    std::string docs = simtest::tempDir();
    std::filesystem::create_directories(docs + "/brindlewick");
    if (!name.empty()) std::ofstream(docs + "/brindlewick/" + name, std::ios::binary) << text;
    return docs;
}

TEST(ReadAloud, TheLogIsOneTextOfSentencesAndAKeyStopsIt) {
    std::string docs = docsWith("golflog.txt",
                                "Greenlark   By Tobrell\r\n01-05-2024 \r\n Course, with comma \r\n"
                                "hole number 1 par 4 you shot a 5 \r\ntotal par so far 4 your score 5 \r\n");
    auto r = simtest::runInProcess("wait 1\nkey A\nend\n",
                                   [] {
                                       roundtest::freshGame();
                                       records::ReadLog();
                                   },
                                   docs);
    std::filesystem::remove_all(docs);
    ASSERT_EQ(r.code, 0) << r.dump();
    EXPECT_TRUE(r.has("say2 \" Greenlark   By Tobrell. 01-05-2024. Course. with comma. hole number 1 par 4 you shot a "
                      "5. total par so far 4 your score 5. \""))
        << r.dump();
    int key = r.find("key 65");
    ASSERT_GT(key, 0) << r.dump();
    EXPECT_GT(r.find("hush", key), key);
}

TEST(ReadAloud, MissingFilesSayTheirOwnSorry) {
    std::string docs = docsWith("", "");
    auto r = simtest::runInProcess("end\n",
                                   [] {
                                       roundtest::freshGame();
                                       records::ReadLog();
                                       records::ReadRecords();
                                   },
                                   docs);
    std::filesystem::remove_all(docs);
    ASSERT_EQ(r.code, 0) << r.dump();
    auto at = r.sequence({"say \" Sorry, but there is no golf log file yet. \"",
                          "say \" Sorry, but there is no golf records file yet. \""});
    EXPECT_GT(at.back(), 0) << r.dump();
}

TEST(ReadAloud, TheRecordsAreReadLineByLine) {
    std::string docs = docsWith("golfrecords.txt", "Greenlark   By Tobrell\r\n Down Hill  record\r\n0\r\n06-06-2006\r\nBy  No One \r\n");
    auto r = simtest::runInProcess("end\n",
                                   [] {
                                       roundtest::freshGame();
                                       records::ReadRecords();
                                   },
                                   docs);
    std::filesystem::remove_all(docs);
    ASSERT_EQ(r.code, 0) << r.dump();
    EXPECT_TRUE(r.has("say2 \" Greenlark   By Tobrell. Down Hill  record. 0. 06-06-2006. By  No One. \"")) << r.dump();
}

}  // namespace
