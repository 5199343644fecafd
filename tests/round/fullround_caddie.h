// A player who knows the course only by ear: from the transcript heard so
// far it picks a club and a power at the club prompt, a power at the putt
// prompt and a key at the end of a hole, and writes them as script lines
// for the runner. It plays three kinds of hole in turn: straight at the
// green; aiming 20 yards short, into the ring of the trap and the pond; and
// short again, with once a driver off the deck and once a wood in the trap
// where it can. It also keeps the card of each hole as heard: the strokes
// (swings, putts and the penalties spoken), the par told at the tee, and
// whether the verdict said matches them. Asked whether it is the new record
// holder, it says yes.
#pragma once

#include <algorithm>
#include <cmath>
#include <deque>
#include <optional>
#include <regex>
#include <string>
#include <vector>

#include "round/flight.h"
#include "round/holeout.h"

namespace caddie {

struct Card {
    int par = 0;
    int strokes = 0;        // as heard
    bool ongreen = false;   // " You are on the green" was said
    bool verdictHeard = false;
};

class Caddie {
public:
    // holes: how many holes the round has left, 18 for a new round.
    explicit Caddie(std::vector<std::string> opening = {}, size_t holes = 18)
        : queue_(opening.begin(), opening.end()), holes_(holes) {}

    // The next script line, or nothing once the round is over.
    std::optional<std::string> next(const std::vector<std::string>& lines) {
        listen(lines);
        if (!queue_.empty()) return pop();
        if (over_) return std::nullopt;
        for (size_t i = mark_; i < lines.size(); ++i) {
            const std::string& l = lines[i];
            if (!said(l)) continue;
            if (l.find("Select Your Club") != std::string::npos) return answer(lines, &Caddie::clubKeys);
            if (l.find("ready to putt") != std::string::npos) return answer(lines, &Caddie::puttKeys);
            if (l.find("press any key to continue") != std::string::npos) return answer(lines, &Caddie::holeDone);
            if (l.find("correct for the name of the new record holder? yes") != std::string::npos)
                return answer(lines, &Caddie::holderKeys);
        }
        return "wait 0.25";
    }

    const std::vector<Card>& cards() const { return cards_; }
    bool over() const { return over_; }
    // The line of the transcript where each hole's closing prompt stands.
    const std::vector<size_t>& holeEnds() const { return holeEnds_; }

private:
    static bool said(const std::string& l) {
        return l.find(" say \"") != std::string::npos || l.find(" say2 \"") != std::string::npos;
    }

    static int number(const std::string& l, const std::regex& re) {
        std::smatch m;
        return std::regex_search(l, m, re) ? std::stoi(m[1]) : -1;
    }

    // Brings the picture of the hole up to date with what was said since.
    void listen(const std::vector<std::string>& lines) {
        static const std::regex holeno(R"(hole number  (\d+)\.)");
        static const std::regex distance(R"(distance  (\d+) yards\. par  (\d+))");
        static const std::regex left(R"(it's  (\d+) yards from the green)");
        static const std::regex feet(R"(You are on the green (\d+|Too) f)");
        for (; heard_ < lines.size(); ++heard_) {
            const std::string& l = lines[heard_];
            if (!said(l)) continue;
            std::smatch m;
            if (std::regex_search(l, m, holeno)) hole_ = std::stoi(m[1]);
            if (std::regex_search(l, m, distance)) {
                holelen_ = togo_ = std::stoi(m[1]);
                card_ = Card{};
                offdeck_ = woodtrap_ = false;
                card_.par = std::stoi(m[2]);
                lie_ = 1;
            }
            if (int t = number(l, left); t >= 0) {
                togo_ = t;
                lie_ = l.find("in  A-Sand Trap") != std::string::npos ? 5 : 1;
            }
            if (std::regex_search(l, m, feet)) {
                feet_ = m[1] == "Too" ? 2 : std::stoi(m[1]);
                card_.ongreen = true;
            }
            if (l.find(" into A-pond, ") != std::string::npos) card_.strokes += 1;
            if (l.find(" out of bounds, ") != std::string::npos) card_.strokes += 2;
            heardLines_.push_back(l);
        }
    }

    std::string pop() {
        std::string s = queue_.front();
        queue_.pop_front();
        return s;
    }

    std::string answer(const std::vector<std::string>& lines, std::vector<std::string> (Caddie::*keys)()) {
        mark_ = lines.size();
        auto k = (this->*keys)();
        queue_.assign(k.begin(), k.end());
        return pop();
    }

    static int percent(double want, double full) {
        return std::clamp(int(std::lround(want / full * 50)), 1, 50);
    }

    // The club whose middle distance is the least that still reaches, at
    // the power that should carry it there; from the sand irons only, and
    // the driver only on the tee.
    std::vector<std::string> clubKeys() {
        card_.strokes += 1;
        int style = (hole_ - 1) % 3;
        if (style == 2 && lie_ == 5 && !woodtrap_) {
            woodtrap_ = true;
            return full(choose("3", "w"));
        }
        if (style == 2 && lie_ == 1 && togo_ != holelen_ && togo_ > 100 && !offdeck_) {
            offdeck_ = true;
            return full(choose("1", "w"));
        }
        double want = style != 0 && lie_ == 1 && togo_ > 60 ? togo_ - 20 : togo_;
        struct Club {
            double value;
            std::vector<std::string> keys;
        };
        std::vector<Club> bag;
        bool sand = lie_ == 5;
        if (!sand && togo_ == holelen_) bag.push_back({1, choose("1", "w")});
        if (!sand)
            for (int w = 2; w <= 4; ++w) bag.push_back({double(w), choose(std::to_string(w), "w")});
        for (int i = 1; i <= 9; ++i) bag.push_back({i + 4.5, choose(std::to_string(i), "i")});
        bag.push_back({15, {"key Up", "expect \" pitching wedge \"", "key Enter"}});
        double share = sand ? 0.4 : 1.0;   // a sand shot keeps 30 to 49 per cent
        const Club* pick = &bag.front();
        for (const Club& c : bag)
            if (play::fullcarry(1, c.value, 0.5) * share >= want) pick = &c;
        std::vector<std::string> keys = pick->keys;
        int p = percent(want, play::fullcarry(1, pick->value, 0.5) * share);
        keys.push_back("at golf7 " + std::to_string(p) + " Space");
        return keys;
    }

    static std::vector<std::string> full(std::vector<std::string> keys) {
        keys.push_back("at golf7 50 Space");
        return keys;
    }

    static std::vector<std::string> choose(const std::string& digit, const std::string& kind) {
        return {"key " + digit, "expect \" select \"", "key " + kind};
    }

    // A putt travels four fifths of a foot for each point of the reading.
    std::vector<std::string> puttKeys() {
        card_.strokes += 1;
        int p = std::clamp(int(std::lround(feet_ / 0.8)), 1, 50);
        return {"key Space", "at golf6 " + std::to_string(p) + " Space"};
    }

    // The name it was asked about is the right one.
    std::vector<std::string> holderKeys() { return {"key Enter"}; }

    std::vector<std::string> holeDone() {
        if (cards_.size() == holes_) {
            over_ = true;   // the end of the round's own prompt
            return {"key Space"};
        }
        card_.verdictHeard = verdictMatches();
        cards_.push_back(card_);
        holeEnds_.push_back(mark_);
        heardLines_.clear();
        return {"key Space"};
    }

    // The words of the verdict for the strokes counted by ear were said.
    bool verdictMatches() const {
        std::string want =
            "say2 \"" + play::verdicttext(play::classify(card_.strokes, card_.par), card_.ongreen ? 1 : 0) + "\"";
        for (const auto& l : heardLines_)
            if (l.find(want) != std::string::npos) return true;
        return false;
    }

    std::deque<std::string> queue_;
    size_t holes_ = 18;
    size_t mark_ = 0;    // prompts before this line are answered
    size_t heard_ = 0;   // lines listened to
    int hole_ = 1, holelen_ = 0, togo_ = 0, lie_ = 1, feet_ = 0;
    bool over_ = false, offdeck_ = false, woodtrap_ = false;
    Card card_;
    std::vector<Card> cards_;
    std::vector<size_t> holeEnds_;
    std::vector<std::string> heardLines_;   // said on this hole
};

}  // namespace caddie
