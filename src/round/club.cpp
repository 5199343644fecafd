// The club prompt and its two key waits.
#include "round/club.h"

#include <string>

#include "input/keys.h"
#include "round/inplay.h"
#include "round/state.h"
#include "voice/speech.h"

namespace play {

namespace {

using input::ks;

void movepointer(int by) {
    rs.noc = movednoc(rs.noc, by);
    input::clk();
    voice::saynoc(rs.noc);
}

void sayanswer() {
    voice::say2(rs.wi == 1 ? " wood " : " iron ");
    if (ks.g.empty()) input::clk();
}

void askwoodoriron() {
    input::clk();
    rs.wi = offeredwi(rs.club);
    voice::say2(" select ");
    sayanswer();
}

bool rejected() {
    notchoice();
    input::clk();
    return false;
}

// The key at the wood or iron question, as the code of the letter it
// stands for.
std::string woodoriron() {
    while (true) {
        keywait();
        if (ks.g != key::Up && ks.g != key::Down) return answercode(ks.g, ks.g2, rs.wi);
        rs.wi = rs.wi == 1 ? 2 : 1;
        input::clk();
        sayanswer();
    }
}

bool wedgechosen() {
    rs.noc = 1;
    rs.wedge = 1;
    rs.club = wedgeClub;
    return true;
}

bool secondwait() {
    double chosen = chosenclub(woodoriron(), rs.club, rs.pflag);
    rs.noc = 1;
    if (chosen == 0) return rejected();
    if (rs.pflag == 1) return wedgechosen();
    rs.club = chosen;
    return true;
}

// The first key wait; false when the key was no choice.
bool firstwait() {
    rs.pflag = 0;
    while (true) {
        keywait();
        if (ks.g == key::Up || ks.g == key::Down) {
            movepointer(ks.g == key::Up ? -1 : 1);
            continue;
        }
        if (ks.g == key::Enter) {
            input::clk();
            if (rs.noc == 10) return wedgechosen();
            rs.keynum = rs.noc + key::code::Digit0;
        } else if (ks.g2 == "p") {
            rs.noc = 1;
            rs.pflag = 1;
            input::clk();
            return secondwait();
        }
        rs.noc = 1;
        rs.club = rs.keynum - key::code::Digit0;
        if (!digitclub(rs.club)) {
            notchoice();
            return false;
        }
        askwoodoriron();
        return secondwait();
    }
}

}  // namespace

int movednoc(int noc, int by) {
    noc += by;
    if (noc == 0) return 10;
    if (noc == 11) return 1;
    return noc;
}

bool digitclub(double club) { return club >= 1 && club <= 9; }

int offeredwi(double club) { return club <= 4 ? 1 : 2; }

std::string answercode(const std::string& g, const std::string& g2, int wi) {
    if (g == key::Enter) {
        if (wi == 1) return key::W;
        if (wi == 2) return key::I;
        return g;   // no answer offered yet
    }
    if (g2 == "w") return key::W;
    if (g2 == "i") return key::I;
    return g;
}

double chosenclub(const std::string& code, double club, int pflag) {
    if (pflag == 1) return code == key::W ? wedgeClub : 0;   // "p" then "w" spells PW
    if (code == key::W) return club <= 4 ? club : 0;        // no 5 wood
    if (code == key::I) return club + 9.5;
    return 0;
}

void clubprompt() {
    voice::say2(clubPrompt);
    rs.noc = 1;
    voice::saynoc(rs.noc);
}

void pickclub() {
    while (!firstwait()) clubprompt();
}

}  // namespace play
