// Eighteen holes of course 1 played by ear to the end of the round: once in
// this process, where the card can be held against the round's figures, and
// once through greenlark-sim from the name prompt on, judged by what was
// heard alone.
#include <gtest/gtest.h>

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <functional>
#include <istream>
#include <optional>
#include <streambuf>
#include <string>
#include <vector>

#include "course/locs.h"
#include "input/keys.h"
#include "platform/platform.h"
#include "platform/rnd.h"
#include "round/driver.h"
#include "round/fresh_game.h"
#include "round/fullround_caddie.h"
#include "round/state.h"
#include "sim_harness.h"
#include "sound/ambient.h"
#include "sound/bank.h"

using caddie::Caddie;

namespace {

// Script lines made one at a time, as the runner asks for them.
class Feed : public std::streambuf {
public:
    explicit Feed(std::function<std::optional<std::string>()> next) : next_(std::move(next)) {}

protected:
    int_type underflow() override {
        if (gptr() < egptr()) return traits_type::to_int_type(*gptr());
        auto line = next_();
        if (!line) return traits_type::eof();
        buf_ = *line + "\n";
        setg(buf_.data(), buf_.data(), buf_.data() + buf_.size());
        return traits_type::to_int_type(*gptr());
    }

private:
    std::function<std::optional<std::string>()> next_;
    std::string buf_;
};

// The live runner around program in this process; after each line the
// caddie gives, watch runs inside the program's wait.
simtest::Result playInProcess(Caddie& c, const std::function<void()>& program, const std::function<void()>& watch) {
    simtest::Result out;
    Feed feed([&]() -> std::optional<std::string> {
        auto line = c.next(out.lines);
        watch();
        return line;
    });
    std::istream in(&feed);
    simtest::runInProcessLive(in, program, out, simtest::tempDir());
    return out;
}

bool isDone(const std::string& line, int n) {
    std::string tail = " done " + std::to_string(n);
    return line.size() > tail.size() && line.ends_with(tail) && line.find('"') == std::string::npos;
}

// greenlark-sim reading its script from a pipe: each line is written once
// the one before it is done.
simtest::Result playThroughSim(Caddie& c) {
    simtest::Result out;
    int toSim[2], fromSim[2];
    if (pipe(toSim) != 0 || pipe(fromSim) != 0) return out;
    pid_t pid = fork();
    if (pid == 0) {
        dup2(toSim[0], 0);
        dup2(fromSim[1], 1);
        for (int fd : {toSim[0], toSim[1], fromSim[0], fromSim[1]}) close(fd);
        execl(GREENLARK_SIM, GREENLARK_SIM, "-", static_cast<char*>(nullptr));
        _exit(127);
    }
    close(toSim[0]);
    close(fromSim[1]);
    auto oldPipe = signal(SIGPIPE, SIG_IGN);
    FILE* to = fdopen(toSim[1], "w");
    FILE* from = fdopen(fromSim[0], "r");
    char buf[8192];
    auto readLine = [&]() -> bool {
        if (!std::fgets(buf, sizeof buf, from)) return false;
        std::string l(buf);
        if (!l.empty() && l.back() == '\n') l.pop_back();
        out.lines.push_back(l);
        return true;
    };
    for (int sent = 1;; ++sent) {
        auto line = c.next(out.lines);
        if (!line) break;
        std::fprintf(to, "%s\n", line->c_str());
        std::fflush(to);
        bool done = false;
        while (!done && readLine()) done = isDone(out.lines.back(), sent);
        if (!done) break;   // the program has ended
    }
    std::fclose(to);
    while (readLine()) {
    }
    std::fclose(from);
    int status = 0;
    waitpid(pid, &status, 0);
    signal(SIGPIPE, oldPipe);
    out.code = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    return out;
}

const int course1Pars[18] = {5, 3, 5, 4, 4, 4, 3, 4, 4, 4, 4, 3, 5, 4, 4, 3, 4, 5};

void expectCardsOfCourseOne(const Caddie& c, const std::string& dump) {
    ASSERT_TRUE(c.over()) << dump;
    ASSERT_EQ(c.cards().size(), 18u) << dump;
    for (int h = 0; h < 18; ++h) {
        SCOPED_TRACE("hole " + std::to_string(h + 1));
        const auto& card = c.cards()[size_t(h)];
        EXPECT_EQ(card.par, course1Pars[h]);
        EXPECT_GE(card.strokes, 1);
        EXPECT_TRUE(card.verdictHeard) << "the verdict for " << card.strokes << " on par " << card.par;
    }
}

TEST(FullRound, CourseOneToTheEndWithTheCardAndTheCountersAgreeing) {
    Caddie c;
    std::vector<int> stk, sank;
    auto r = playInProcess(
        c,
        [] {
            roundtest::freshGame();
            sound::bk.ab = sound::loadbuffer("golf0", 0);
            play::rs.c = 1;
            platform::reseed(platform::os().tick());
            play::playround();
        },
        [&] {
            // Inside the wait at the end of each hole, before its key.
            if (c.cards().size() > stk.size()) {
                stk.push_back(play::rs.stk);
                sank.push_back(play::rs.sank);
            }
        });
    ASSERT_EQ(r.code, 0) << r.dump();
    expectCardsOfCourseOne(c, r.dump());
    ASSERT_EQ(stk.size(), 18u);
    int sum = 0, classes[9] = {};
    for (int h = 0; h < 18; ++h) {
        EXPECT_EQ(stk[size_t(h)], c.cards()[size_t(h)].strokes) << "hole " << h + 1 << ": counted as heard";
        sum += stk[size_t(h)];
        classes[sank[size_t(h)]] += 1;
    }
    const auto& rs = play::rs;
    EXPECT_EQ(rs.hole, 19);
    EXPECT_EQ(rs.total, 72);
    EXPECT_EQ(rs.stks, sum);
    EXPECT_EQ(rs.DOUBLEBOGEY + rs.Bogey + rs.PARS + rs.BAD + rs.BIRDIE + rs.HOLEINONE + rs.EAGLE + rs.DOUEAG, 18);
    EXPECT_EQ(rs.DOUBLEBOGEY, classes[1]);
    EXPECT_EQ(rs.Bogey, classes[2]);
    EXPECT_EQ(rs.PARS, classes[3]);
    EXPECT_EQ(rs.BAD, classes[4]);
    EXPECT_EQ(rs.BIRDIE, classes[5]);
    EXPECT_EQ(rs.HOLEINONE, classes[6]);
    EXPECT_EQ(rs.EAGLE, classes[7]);
    EXPECT_EQ(rs.DOUEAG, classes[8]);
    // After the last hole's key, the end of the round asks for one more.
    size_t last = c.holeEnds().back();
    int ends = 0;
    for (size_t i = last; i < r.lines.size(); ++i) ends += r.lines[i].find("say2 \" press any key to continue \"") != std::string::npos;
    EXPECT_EQ(ends, 1) << r.dump();
}

TEST(FullRound, CourseOneThroughTheSimulatorByEar) {
    Caddie c({"expect \"Please enter your name\"", "type Jo", "key Enter", "expect \"correct for your name? yes\"",
              "key Enter"});
    auto r = playThroughSim(c);
    ASSERT_EQ(r.code, 0) << r.dump();
    expectCardsOfCourseOne(c, r.dump());
    // The caddie misuses a club where it can: off the deck after most tees,
    // and in the trap once the ball lies there.
    EXPECT_GT(r.count("say2 \" Where Did You Learn To Play Golf? You Don't Hit A-Driver In The Fairway \""), 0);
    EXPECT_GT(r.count("say2 \" Where Did You Learn To Play Golf? You Don't Hit  A-Wood  In A-sand trap. \""), 0);
    for (int h = 1; h <= 18; ++h) {
        int at = -1;
        for (size_t i = 0; i < r.lines.size() && at < 0; ++i)
            if (r.lines[i].find("You are at hole number  " + std::to_string(h) + ".") != std::string::npos) at = int(i);
        EXPECT_GE(at, 0) << "hole " << h;
    }
}

}  // namespace
