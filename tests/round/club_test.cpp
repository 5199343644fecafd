// Choosing a club: every key path of the prompt and the club value it
// leaves, run in this process on the simulated platform.
#include <gtest/gtest.h>

#include "input/keys.h"
#include "platform/platform.h"
#include "round/club.h"
#include "round/state.h"
#include "sim_harness.h"
#include "sound/bank.h"
#include "voice/state.h"

namespace {

struct Case {
    const char* keys;   // script lines after the prompt
    int wi;             // what an earlier choice left; 0: never asked
    double club;
    bool noChoice;      // the keys are refused, then "2" and Enter take the 2 wood
};

const Case cases[] = {
    {"key 3\nexpect \" wood \"\nkey Enter\n", 0, 3, false},   // wood is offered up to 4
    {"key 3\nexpect \" wood \"\nkey I\n", 0, 12.5, false},
    {"key 7\nexpect \" iron \"\nkey Enter\n", 0, 16.5, false},   // iron from 5 on
    {"key 4\nexpect \" wood \"\nkey W\n", 0, 4, false},
    {"key 1\nexpect \" wood \"\nkey Down\nexpect \" iron \"\nkey Enter\n", 0, 10.5, false},
    {"key 3\nexpect \" wood \"\nkey Num9\n", 0, 12.5, false},   // pad 9 reads "i"
    {"key 3\nexpect \" wood \"\nkey F1\nexpect \"Pitching Wedge. \"\nkey Enter\n", 0, 3, false},
    {"key Up\nexpect \" pitching wedge \"\nkey Enter\n", 0, 20, false},
    {"key Down\nexpect \" 2\"\nkey Enter\nexpect \" wood \"\nkey Enter\n", 0, 2, false},
    {"key Down Down Down Down Down Down Down Down Down\nexpect \" pitching wedge \"\n"
     "key Down\nexpect \" 1\"\nkey Up Up Up Enter\nexpect \" iron \"\nkey Enter\n", 0, 17.5, false},
    {"key P W\n", 0, 20, false},
    {"key P Enter\n", 1, 20, false},   // Enter after p is w only if wood was left
    {"key P Up\nexpect \" wood \"\nkey Enter\n", 2, 20, false},
    {"key 5\nexpect \" iron \"\nkey W\n", 0, 2, true},   // no 5 wood
    {"key 5\nexpect \" iron \"\nkey Up\nexpect \" wood \"\nkey Enter\n", 0, 2, true},
    {"key 0\n", 0, 2, true},
    {"key Num5\n", 0, 2, true},   // pad digits are no digits
    {"key A\n", 0, 2, true},
    {"key 3\nexpect \" wood \"\nkey 4\n", 0, 2, true},   // a digit at the second wait
    {"key P I\n", 1, 2, true},
    {"key P Enter\n", 0, 2, true},
    {"key P Enter\n", 2, 2, true},
};

TEST(ClubChoice, EveryKeyPathLeavesItsClubValue) {
    for (const Case& c : cases) {
        SCOPED_TRACE(c.keys);
        std::string script = std::string("expect \"Select Your Club\"\n") + c.keys;
        if (c.noChoice)
            script += "expect \" That is not A-choice. \"\nexpect \" please try again. \"\n"
                      "expect \"Select Your Club\"\nkey 2\nexpect \" wood \"\nkey Enter\n";
        double club = -1;
        int wedge = -1, noc = -1;
        auto r = simtest::runInProcess(script + "end\n", [&] {
            input::ks = input::KeyState{};
            voice::vs = voice::VoiceState{};
            sound::bk = sound::Bank{};
            platform::os().setKeyHandler([](int k) { input::Form_KeyDown(k); });
            play::rs = play::RoundState{};
            play::rs.wi = c.wi;
            play::rs.f1state = 1;
            play::clubprompt();
            play::pickclub();
            club = play::rs.club, wedge = play::rs.wedge, noc = play::rs.noc;
        });
        ASSERT_EQ(r.code, 0) << r.dump();
        EXPECT_EQ(club, c.club);
        EXPECT_EQ(wedge, c.club == 20 ? 1 : 0);
        EXPECT_EQ(noc, 1);
        EXPECT_EQ(r.count(" That is not A-choice. "), c.noChoice ? 1 : 0);
        EXPECT_EQ(r.count("play golf19"), c.noChoice ? 1 : 0);
        // The prompt again after a refusal; F1 says it with its closing blank.
        EXPECT_EQ(r.count("Select Your Club"), c.noChoice ? 2 : 1 + (r.has("key 112") ? 1 : 0));
    }
}

}  // namespace
