// The state of a program that has just started, for tests that run round
// routines in this process: every shared struct made anew, the key event
// wired as start-up wires it, the sounds made, the ambient files counted,
// the place names filled, the player named " Jo " and the player's folder
// the documents folder + "/brindlewick".
#pragma once

#include "course/course.h"
#include "course/locs.h"
#include "input/keys.h"
#include "platform/platform.h"
#include "practice/state.h"
#include "records/state.h"
#include "round/state.h"
#include "session/state.h"
#include "sound/ambient.h"
#include "sound/bank.h"
#include "voice/state.h"

#include <string>

namespace roundtest {

inline void freshGame() {
    input::ks = input::KeyState{};
    input::fkeys = input::FKeyRoutines{};
    input::fkeys.stopAbAndClaps = sound::stopAbAndClaps;
    voice::vs = voice::VoiceState{};
    sound::bk = sound::Bank{};
    sound::am = sound::Ambient{};
    course::cs = course::Course{};
    play::rs = play::RoundState{};
    practice::pr = practice::PracticeState{};
    session::ss = session::SessionState{};
    records::rc = records::RecordState{};
    platform::os().setKeyHandler([](int code) { input::Form_KeyDown(code); });
    sound::CreateSounds();
    sound::countamb();
    course::fillLocs();
    play::rs.pn = " Jo ";
    session::ss.kp = platform::os().documentsFolder() + "/brindlewick";
}

// The script step that picks course c in the course picker of a new round:
// a built-in course by its digit, any other by Downs from the first entry.
inline std::string pickKeys(int c) {
    std::string keys = "expect \" Please Pick A-Course To Play. \"\nkey";
    if (c <= 6)
        keys += c == 1 ? "" : " " + std::to_string(c);
    else
        for (int i = 1; i < c; ++i) keys += " Down";
    return keys + " Enter\n";
}

}  // namespace roundtest
