// The file layer never loses a player's file: a replacement goes to a new
// file that is renamed over the old one only when it is complete, a full disk
// leaves the old file byte for byte, a writer killed half-way leaves it too,
// and a failed append is cut back.
#include <gtest/gtest.h>

#include <sched.h>
#include <signal.h>
#include <sys/mount.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "platform/files.h"
#include "sim_harness.h"

namespace files = platform::files;

namespace {

using simtest::slurp;

int entries(const std::string& dir) {
    int n = 0;
    for (auto& e : std::filesystem::directory_iterator(dir)) n += e.is_regular_file() ? 1 : 0;
    return n;
}

struct SafeWrite : ::testing::Test {
    std::string dir = simtest::tempDir();
    std::string path = dir + "/golfgame.sav";
    const std::string old = std::string("\x02\x00\x01\x00\x02\x00\x07\x00", 8);
    void SetUp() override { std::ofstream(path, std::ios::binary) << old; }
    void TearDown() override {
        files::faults() = files::Faults{};
        std::filesystem::remove_all(dir);
    }
};

TEST_F(SafeWrite, AReplacementOrAnAppendThatFailsLeavesTheOldFileByteForByte) {
    files::write("", path, std::string("\x02\x00\x00\x00", 4), false);
    EXPECT_EQ(slurp(path), std::string("\x02\x00\x00\x00", 4));
    files::write(dir, "golf.cfg", "a\r\n", false);
    EXPECT_EQ(slurp(dir + "/golf.cfg"), "a\r\n") << "a new file, relative to the working folder";
    for (long long space : {0LL, 3LL, 63LL}) {
        files::faults().spaceLeft = space;
        EXPECT_THROW(files::write("", path, std::string(64, 'x'), false), platform::Failure) << space;
        EXPECT_EQ(slurp(path), std::string("\x02\x00\x00\x00", 4));
        EXPECT_EQ(entries(dir), 2) << "the unfinished new file is gone";
    }
    files::faults().spaceLeft = 64;
    files::write("", path, std::string(64, 'x'), false);
    EXPECT_EQ(slurp(path), std::string(64, 'x')) << "exactly enough room";

    std::string log = dir + "/golflog.txt";
    files::faults() = files::Faults{};
    files::write("", log, "hole 1\r\n", true);
    files::write("", log, "hole 2\r\n", true);
    files::faults().spaceLeft = 4;
    EXPECT_THROW(files::write("", log, "hole 3\r\n", true), platform::Failure);
    EXPECT_EQ(slurp(log), "hole 1\r\nhole 2\r\n") << "a failed append is cut back";
    EXPECT_THROW(files::write("", dir + "/none/golf.cfg", "x", false), platform::Failure);
    EXPECT_THROW(files::write("", dir + "/none/golflog.txt", "x", true), platform::Failure);
}

TEST_F(SafeWrite, AWriterKilledHalfWayLeavesTheOldFile) {
    for (const char* when : {"written", "synced"}) {
        SCOPED_TRACE(when);
        pid_t child = fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            std::string at = when;
            files::faults().atStage = [at](const char* stage) {
                if (at == stage) raise(SIGKILL);
            };
            try {
                files::write("", path, std::string(64, 'y'), false);
            } catch (...) {
            }
            _exit(0);
        }
        int status = 0;
        waitpid(child, &status, 0);
        ASSERT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL) << "the writer was killed";
        EXPECT_EQ(slurp(path), old);
        // What the killed writer left is a hidden file no pattern of the game lists.
        for (auto& e : std::filesystem::directory_iterator(dir)) {
            std::string name = e.path().filename().string();
            if (name != "golfgame.sav") {
                EXPECT_EQ(name[0], '.') << name;
            }
        }
    }
    EXPECT_EQ(entries(dir), 2) << "the second writer cleared what the first left, then left its own";
    std::ofstream(dir + "/.golfgame.sav.keep", std::ios::binary) << "not ours";
    files::write("", path, "next", false);
    EXPECT_EQ(slurp(path), "next");
    EXPECT_EQ(entries(dir), 2) << "the next replacement clears what they left, and only that";
}

// A real full disk where the machine lets a test mount a small tmpfs of its
// own: the child fills it, then replaces golf.cfg and the saved game.
int fillAndReplace(const std::string& mnt) {
    if (unshare(CLONE_NEWNS) != 0) return 77;
    if (mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0) return 77;
    if (mount("none", mnt.c_str(), "tmpfs", 0, "size=64k") != 0) return 77;
    const std::string cfg = mnt + "/golf.cfg", sav = mnt + "/golfgame.sav";
    const std::string oldCfg = " 1 \r\n-100 \r\n", oldSav(64, '\x02');
    files::write("", cfg, oldCfg, false);
    files::write("", sav, oldSav, false);
    {
        std::ofstream filler(mnt + "/filler", std::ios::binary);
        std::string block(4096, 'f');
        for (int i = 0; i < 64 && filler; ++i) filler.write(block.data(), std::streamsize(block.size()));
    }
    bool cfgFailed = false, savFailed = false;
    try {
        files::write("", cfg, std::string(8192, 'c'), false);
    } catch (const platform::Failure&) {
        cfgFailed = true;
    }
    try {
        files::write("", sav, std::string("\x02\x00\x00\x00", 4), false);
    } catch (const platform::Failure&) {
        savFailed = true;
    }
    if (!cfgFailed || !savFailed) return 1;
    if (slurp(cfg) != oldCfg || slurp(sav) != oldSav) return 2;
    return 0;
}

TEST_F(SafeWrite, ARealFullDiskLeavesGolfCfgAndTheSavedGame) {
    std::string mnt = dir + "/small";
    std::filesystem::create_directory(mnt);
    pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) _exit(fillAndReplace(mnt));
    int status = 0;
    waitpid(child, &status, 0);
    ASSERT_TRUE(WIFEXITED(status));
    if (WEXITSTATUS(status) == 77) GTEST_SKIP() << "this machine does not let the test mount a tmpfs";
    EXPECT_EQ(WEXITSTATUS(status), 0) << "1: a replace on the full disk did not fail; 2: an old file changed";
}

}  // namespace
