#include "records/state.h"

#include "course/course.h"
#include "round/session.h"

namespace records {

RecordState rc;

const ScoreCount scorecounts[8] = {
    {&play::RoundState::BAD, " awful shot", " awful shot"},
    {&play::RoundState::DOUBLEBOGEY, " double bogey", " double bo ghee"},
    {&play::RoundState::Bogey, " bogey", " bo ghee"},
    {&play::RoundState::PARS, " par", " par"},
    {&play::RoundState::BIRDIE, " birdie", " birdie"},
    {&play::RoundState::EAGLE, " eagle", " eagle"},
    {&play::RoundState::DOUEAG, " double eagle", " double eagle"},
    {&play::RoundState::HOLEINONE, " hole in one", " hole in one"},
};

std::string golog() { return play::kp() + "/golflog.txt"; }

std::string recordsfile() { return play::kp() + "/golfrecords.txt"; }

std::string grfname(int a) {
    const std::string& file = course::cs.cfile[a];
    return file.substr(0, file.size() < 4 ? 0 : file.size() - 4) + ".grf";
}

std::string grfpath(int a) { return play::kp() + "/" + grfname(a); }

std::string padded(long n) { return (n < 10 ? "0" : "") + std::to_string(n); }

}  // namespace records
