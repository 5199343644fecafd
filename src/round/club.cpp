// The club prompt and its two key waits.
#include "round/club.h"

#include <string>

#include "round/inplay.h"
#include "round/state.h"
#include "voice/keys.h"
#include "voice/speech.h"

namespace play {

namespace {

using voice::vs;

void movepointer(int by) {
    rs.noc += by;
    if (rs.noc == 0) rs.noc = 10;
    if (rs.noc == 11) rs.noc = 1;
    voice::clk();
    voice::saynoc(rs.noc);
}

void sayanswer() {
    voice::say2(rs.wi == 1 ? " wood " : " iron ");
    if (vs.g.empty()) voice::clk();
}

void askwoodoriron() {
    voice::clk();
    rs.wi = rs.club <= 4 ? 1 : 2;
    voice::say2(" select ");
    sayanswer();
}

bool rejected() {
    notchoice();
    voice::clk();
    return false;
}

// The key at the wood or iron question, as the code of the letter it
// stands for: Enter takes the offered answer.
std::string woodoriron() {
    while (true) {
        keywait();
        if (vs.g == "38" || vs.g == "40") {
            rs.wi = rs.wi == 1 ? 2 : 1;
            voice::clk();
            sayanswer();
            continue;
        }
        if (vs.g == "13") {
            if (rs.wi == 1) return "87";
            if (rs.wi == 2) return "73";
            return vs.g;
        }
        if (vs.g2 == "w") return "87";
        if (vs.g2 == "i") return "73";
        return vs.g;
    }
}

bool wedgechosen(const std::string& code) {
    rs.noc = 1;
    if (code != "87") return rejected();
    rs.wedge = 1;
    rs.club = 20;
    return true;
}

bool secondwait() {
    std::string code = woodoriron();
    if (rs.pflag == 1) return wedgechosen(code);
    if (code == "87") return rs.club <= 4 ? true : rejected();
    if (code == "73") {
        rs.club += 9.5;
        return true;
    }
    rs.noc = 1;
    return rejected();
}

// The first key wait; false when the key was no choice.
bool firstwait() {
    rs.pflag = 0;
    while (true) {
        keywait();
        if (vs.g == "38" || vs.g == "40") {
            movepointer(vs.g == "38" ? -1 : 1);
            continue;
        }
        if (vs.g == "13") {
            voice::clk();
            if (rs.noc == 10) return wedgechosen("87");
            rs.keynum = rs.noc + 48;
        } else if (vs.g2 == "p") {
            rs.noc = 1;
            rs.pflag = 1;
            voice::clk();
            return secondwait();
        }
        rs.noc = 1;
        rs.club = rs.keynum - 48;
        if (rs.club < 1 || rs.club > 9) {
            notchoice();
            return false;
        }
        askwoodoriron();
        return secondwait();
    }
}

}  // namespace

void clubprompt() {
    voice::say2(clubPrompt);
    rs.noc = 1;
    voice::saynoc(rs.noc);
}

void pickclub() {
    while (!firstwait()) clubprompt();
}

}  // namespace play
