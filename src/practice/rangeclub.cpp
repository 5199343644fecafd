// The club prompt of the range. It follows the round's rules of choice, with
// the range's own key wait and these differences: the wedge is only a club
// value, a key pending behind " wood " or " iron " cuts the speech, and a
// refusal at the wood or iron question says the prompt again without the
// pointer and goes back to the first wait.
#include <string>

#include "input/keys.h"
#include "practice/range.h"
#include "practice/state.h"
#include "round/club.h"
#include "round/inplay.h"
#include "round/state.h"
#include "voice/speech.h"

namespace practice {

namespace {

using input::ks;
using play::rs;

enum class Choice { made, refused, refusedanswer };

void prompt() {
    voice::say2(play::clubPrompt);
    rs.noc = 1;
    voice::saynoc(rs.noc);
}

void sayanswer() {
    voice::say2(pr.wi == 1 ? " wood " : " iron ");
    if (ks.g.empty())
        input::clk();
    else
        voice::stopspeech();
}

void askwoodoriron() {
    input::clk();
    pr.wi = play::offeredwi(pr.club);
    voice::say2(" select ");
    sayanswer();
}

// The key at the wood or iron question, as the code of the letter it
// stands for.
std::string woodoriron() {
    while (true) {
        rangewait();
        if (ks.g != key::Up && ks.g != key::Down) return play::answercode(ks.g, ks.g2, pr.wi);
        pr.wi = pr.wi == 1 ? 2 : 1;
        input::clk();
        sayanswer();
    }
}

Choice secondwait() {
    double chosen = play::chosenclub(woodoriron(), pr.club, pr.pflag);
    if (chosen == 0) {
        play::notchoice(true);
        input::clk();
        return Choice::refusedanswer;
    }
    pr.club = chosen;
    return Choice::made;
}

Choice firstwait() {
    pr.pflag = 0;
    while (true) {
        rangewait();
        if (ks.g == key::Up || ks.g == key::Down) {
            rs.noc = play::movednoc(rs.noc, ks.g == key::Up ? -1 : 1);
            input::clk();
            voice::saynoc(rs.noc);
            continue;
        }
        if (ks.g == key::Enter) {
            input::clk();
            if (rs.noc == 10) {
                rs.noc = 1;
                pr.club = play::wedgeClub;
                return Choice::made;
            }
            pr.keynum = rs.noc + key::code::Digit0;
        } else if (ks.g2 == "p") {
            rs.noc = 1;
            pr.pflag = 1;
            input::clk();
            return secondwait();
        }
        rs.noc = 1;
        pr.club = pr.keynum - key::code::Digit0;
        if (!play::digitclub(pr.club)) {
            play::notchoice(true);
            return Choice::refused;
        }
        askwoodoriron();
        return secondwait();
    }
}

}  // namespace

void rangeclub() {
    prompt();
    while (true) {
        Choice c = firstwait();
        if (c == Choice::made) return;
        if (c == Choice::refused)
            prompt();
        else
            voice::say2(play::clubPrompt);
    }
}

}  // namespace practice
