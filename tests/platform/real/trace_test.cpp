// A step abandoned under the error rule is written to standard error when
// GREENLARK_TRACE=1, and the player hears nothing of it either way.
#include <gtest/gtest.h>

#include <unistd.h>

#include <filesystem>

#include "headless.h"
#include "platform/real/sdl_platform.h"

namespace {

namespace fs = std::filesystem;

// What an abandoned step on a fresh real platform writes to standard error,
// with GREENLARK_TRACE set to `trace` ("" for not set) at its start.
std::string stderrOfAFailedStep(const std::string& trace) {
    fs::path folder = fs::temp_directory_path() / ("greenlark-trace-" + std::to_string(getpid()));
    fs::create_directories(folder);
    std::string written;
    {
        realtest::Headless env((folder / "out.raw").string());
        env.set("GREENLARK_TRACE", trace);
        platform::real::SdlPlatform p;
        platform::install(&p);
        p.openSoundDevice();
        testing::internal::CaptureStderr();
        bool done = platform::attempt([&] { p.createBuffer((folder / "golf7.wav").string()); });
        platform::attempt([&] { p.setVolumeDb(99, 0); });
        written = testing::internal::GetCapturedStderr();
        platform::install(nullptr);
        EXPECT_FALSE(done);
    }
    fs::remove_all(folder);
    return written;
}

TEST(FailureTrace, WrittenToStandardErrorOnlyWhenAskedFor) {
    std::string traced = stderrOfAFailedStep("1");
    std::string missing = fs::temp_directory_path().string() + "/greenlark-trace-" + std::to_string(getpid()) +
                          "/golf7.wav";
    EXPECT_NE(traced.find("greenlark: fail: cannot read " + missing + ": "), std::string::npos) << traced;
    EXPECT_NE(traced.find("greenlark: fail: no sound buffer 99\n"), std::string::npos) << traced;
    EXPECT_EQ(stderrOfAFailedStep(""), "");
    EXPECT_EQ(stderrOfAFailedStep("0"), "");
}

}  // namespace
