#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <unistd.h>

#include "platform/platform.h"
#include "platform/real/system_info.h"

namespace fs = std::filesystem;

namespace {

using namespace platform::real;

TEST(SystemInfo, ShortDateIsMonthFirstWithoutLeadingZeros) {
    std::tm t{};
    t.tm_year = 2026 - 1900;
    t.tm_mon = 10;
    t.tm_mday = 22;
    EXPECT_EQ(shortDate(t), "11/22/2026");
    t.tm_mon = 0;
    t.tm_mday = 5;
    EXPECT_EQ(shortDate(t), "1/5/2026");
}

TEST(SystemInfo, SecondsSinceMidnight) {
    std::tm t{};
    t.tm_hour = 13;
    t.tm_min = 2;
    t.tm_sec = 7;
    EXPECT_EQ(secondsSinceMidnight(t), 13 * 3600 + 2 * 60 + 7);
}

struct Home : ::testing::Test {
    fs::path home;
    void SetUp() override {
        char pattern[] = "/tmp/greenlark-home-XXXXXX";
        home = mkdtemp(pattern);
        fs::create_directories(home / ".config");
    }
    void TearDown() override { fs::remove_all(home); }
    void userDirs(const std::string& line) { std::ofstream(home / ".config/user-dirs.dirs") << "# made\n" << line << "\n"; }
};

TEST_F(Home, DocumentsFolderFromUserDirs) {
    fs::create_directories(home / "Papers");
    userDirs("XDG_DOCUMENTS_DIR=\"$HOME/Papers\"");
    EXPECT_EQ(documentsFolderOf(home, ""), (home / "Papers").string());
    EXPECT_EQ(documentsFolderOf(home, (home / "elsewhere").string()), "");
}

TEST_F(Home, FallsBackToDocumentsInHomeOrNothing) {
    userDirs("XDG_DOCUMENTS_DIR=\"$HOME/Missing\"");
    EXPECT_EQ(documentsFolderOf(home, ""), "");
    fs::create_directories(home / "Documents");
    EXPECT_EQ(documentsFolderOf(home, ""), (home / "Documents").string());
}

TEST_F(Home, LaunchStartsAProgramWithoutWaiting) {
    // The program waits for a sign that only comes once launch() returned;
    // were launch() to wait for it, it would give up after five seconds and
    // leave its mark before the sign.
    fs::path script = home / "run.sh", go = home / "go", mark = home / "ran";
    std::ofstream(script) << "#!/bin/sh\nfor i in $(seq 100); do [ -e " << go.string()
                          << " ] && break; sleep 0.05; done\ntouch " << mark.string() << "\n";
    fs::permissions(script, fs::perms::owner_all);
    launch(script);
    EXPECT_FALSE(fs::exists(mark));
    std::ofstream(go) << "";
    for (int i = 0; i < 200 && !fs::exists(mark); ++i) usleep(20000);
    EXPECT_TRUE(fs::exists(mark));
    EXPECT_THROW(launch((home / "nothing").string()), platform::Failure);
}

TEST(SystemInfo, ExecutableFolderIsWhereThisTestLives) {
    EXPECT_TRUE(fs::exists(fs::path(executableFolder()) / "greenlark_real_tests"));
}

// An installed program finds its data beside its bin folder; a program in a
// build's game folder keeps its own folder.
TEST(SystemInfo, DataFolderInstalledOrBesideTheProgram) {
    char pattern[] = "/tmp/greenlark-prefix-XXXXXX";
    fs::path prefix = mkdtemp(pattern);
    fs::create_directories(prefix / "bin");
    fs::create_directories(prefix / "game");
    EXPECT_EQ(dataFolderOf((prefix / "game").string()), (prefix / "game").string());
    EXPECT_EQ(dataFolderOf((prefix / "bin").string()), (prefix / "bin").string()) << "no share folder yet";
    fs::create_directories(prefix / "share" / "greenlark");
    EXPECT_EQ(dataFolderOf((prefix / "bin").string()), fs::canonical(prefix / "share" / "greenlark").string());
    EXPECT_EQ(dataFolderOf(""), "");
    fs::remove_all(prefix);
}

}  // namespace
