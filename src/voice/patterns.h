// The spoken patterns every part of the game repeats: the menu and the
// yes/no question.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace voice {

struct Menu {
    std::string header;
    std::vector<std::string> entries;   // entry 1 is entries[0]
    int start = 1;
    bool resetOnF1 = false;      // F1 also puts the pointer back on start
    bool resetOnOther = false;   // so does any other key
    // A hot key moves the pointer to the entry it returns (0: not a hot key).
    std::function<int(const std::string& g, const std::string& g2)> hot;
    // A key the menu handles itself (the course picker's letter search):
    // returns true when it moved the pointer.
    std::function<bool(int& pointer)> own;
};

// Runs the menu until Enter; returns the accepted entry's number.
int menu(const Menu& m);

struct Question {
    std::string text;         // without its answer
    bool first = true;        // the answer it starts with
    bool f1Answer = true;     // the answer F1 asks again with
    int otherAnswer = -1;     // the answer any other key asks again with; -1 keeps it
    bool waitKeyName = false; // saykey2 in place of saykey
    std::function<void()> beforeOther;   // said first on any other key
};

// Asks until answered; true for yes.
bool yesno(const Question& q);

}  // namespace voice
