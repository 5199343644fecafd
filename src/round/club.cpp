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
    rs.noc += by;
    if (rs.noc == 0) rs.noc = 10;
    if (rs.noc == 11) rs.noc = 1;
    input::clk();
    voice::saynoc(rs.noc);
}

void sayanswer() {
    voice::say2(rs.wi == 1 ? " wood " : " iron ");
    if (ks.g.empty()) input::clk();
}

void askwoodoriron() {
    input::clk();
    rs.wi = rs.club <= 4 ? 1 : 2;
    voice::say2(" select ");
    sayanswer();
}

bool rejected() {
    notchoice();
    input::clk();
    return false;
}

// The key at the wood or iron question, as the code of the letter it
// stands for: Enter takes the offered answer.
std::string woodoriron() {
    while (true) {
        keywait();
        if (ks.g == key::Up || ks.g == key::Down) {
            rs.wi = rs.wi == 1 ? 2 : 1;
            input::clk();
            sayanswer();
            continue;
        }
        if (ks.g == key::Enter) {
            if (rs.wi == 1) return key::W;
            if (rs.wi == 2) return key::I;
            return ks.g;
        }
        if (ks.g2 == "w") return key::W;
        if (ks.g2 == "i") return key::I;
        return ks.g;
    }
}

bool wedgechosen(const std::string& code) {
    rs.noc = 1;
    if (code != key::W) return rejected();
    rs.wedge = 1;
    rs.club = 20;
    return true;
}

bool secondwait() {
    std::string code = woodoriron();
    if (rs.pflag == 1) return wedgechosen(code);
    if (code == key::W) return rs.club <= 4 ? true : rejected();
    if (code == key::I) {
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
        if (ks.g == key::Up || ks.g == key::Down) {
            movepointer(ks.g == key::Up ? -1 : 1);
            continue;
        }
        if (ks.g == key::Enter) {
            input::clk();
            if (rs.noc == 10) return wedgechosen(key::W);
            rs.keynum = rs.noc + key::code::Digit0;
        } else if (ks.g2 == "p") {
            rs.noc = 1;
            rs.pflag = 1;
            input::clk();
            return secondwait();
        }
        rs.noc = 1;
        rs.club = rs.keynum - key::code::Digit0;
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
