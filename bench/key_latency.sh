#!/bin/bash
# Key to the first audible sample of the game's answer, through the desktop
# audio stack: the real greenlark at its name prompt (a letter key is
# answered by speaking the letter), in a private Xvfb, playing to a private
# PulseAudio null sink whose monitor a timestamping recorder reads; keys are
# pressed through XTEST with the time of each press noted.
# usage: bench/key_latency.sh [BUILD_DIR] [PRESSES] [INTERVAL_MS]
# Target: 10 ms (median).
set -u
HERE=$(cd "$(dirname "$0")" && pwd)
BUILD=$(cd "${1:-$HERE/../build-real}" && pwd)
PRESSES=${2:-40}
INTERVAL=${3:-400}
. "$HERE/rig.sh"
rig_need_game
rig_need bench_record bench_keys

rig_pulse
rig_xvfb || exit 1
rig_recorder
(cd "$BUILD/game" && exec env SDL_AUDIODRIVER=pulseaudio ./greenlark) >"$RIG/game.log" 2>&1 &
GAME=$!
rig_track $GAME
WINDOW=$(rig_window) || { echo "the game's window never came"; exit 1; }
# Past the opening jingle and the prompt; the recorder has settled by then.
sleep 6
rig_letters "$WINDOW" "$PRESSES" "$INTERVAL" "$RIG/keys"
sleep 0.5
kill -9 $GAME
wait $GAME 2>/dev/null
kill $RECORDER
wait $RECORDER
echo "greenlark name prompt, $PRESSES letter keys, SDL audio driver pulseaudio (null sink)"
/usr/bin/python3 "$HERE/key_latency/analyze.py" "$RIG/rec" "$RIG/keys"
