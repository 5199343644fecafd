// The state of a program that has just started, for tests that run round
// routines in this process: keys, sounds and place names made anew, the
// round state cleared and the player named " Jo ".
#pragma once

#include "course/locs.h"
#include "input/keys.h"
#include "platform/platform.h"
#include "round/state.h"
#include "sound/bank.h"
#include "voice/state.h"

namespace roundtest {

inline void freshGame() {
    input::ks = input::KeyState{};
    voice::vs = voice::VoiceState{};
    sound::bk = sound::Bank{};
    input::fkeys.stopAbAndClaps = sound::stopAbAndClaps;
    platform::os().setKeyHandler([](int code) { input::Form_KeyDown(code); });
    sound::CreateSounds();
    course::fillLocs();
    play::rs = play::RoundState{};
    play::rs.pn = " Jo ";
}

}  // namespace roundtest
