#!/bin/bash
# Key to the first audible sample of the game's answer, through the desktop
# audio stack: the real greenlark at its name prompt (a letter key is
# answered by speaking the letter), in a private Xvfb, playing to a private
# PulseAudio null sink whose monitor a timestamping recorder reads; keys are
# pressed through XTEST with the time of each press noted. The keys start
# once the game has said its name prompt and the recording has fallen
# silent.
# usage: bench/key_latency.sh [BUILD_DIR[:sdl][,BUILD_DIR...]] [PRESSES] [INTERVAL_MS]
#   Several build folders, separated by commas, are measured one after the
#   other in one run; ":sdl" plays a build through SDL's output
#   (GREENLARK_AUDIO=sdl) instead of our own stream.
# Target: median 3 ms, p90 5 ms.
set -u
HERE=$(cd "$(dirname "$0")" && pwd)
IFS=, read -ra BUILDS <<<"${1:-$HERE/../build-real}"
PRESSES=${2:-40}
INTERVAL=${3:-400}
. "$HERE/rig.sh"
BUILD=$(cd "${BUILDS[0]%:sdl}" && pwd) || exit 1
rig_need_game
rig_need bench_record bench_keys

rig_pulse
rig_xvfb || exit 1
rig_recorder
sleep 3
for n in "${!BUILDS[@]}"; do
  b=${BUILDS[$n]}
  out=pulse
  [[ $b == *:sdl ]] && { out=sdl; b=${b%:sdl}; }
  (cd "$b/game" && exec env SDL_AUDIODRIVER=pulseaudio GREENLARK_AUDIO=$out ./greenlark --journal "$RIG/$n.journal") \
    >"$RIG/$n.log" 2>&1 &
  game=$!
  rig_track $game
  window=$(rig_window) || { echo "the game's window never came"; exit 1; }
  rig_name_keys "$window" "$RIG/$n.journal" "$PRESSES" "$INTERVAL" "$RIG/$n.keys"
  rig_end_game $game
done
kill $RECORDER
wait $RECORDER
echo "load average: $(cut -d' ' -f1-3 /proc/loadavg)"
for n in "${!BUILDS[@]}"; do
  echo "== ${BUILDS[$n]}: greenlark name prompt, $PRESSES letter keys every $INTERVAL ms (pulseaudio null sink)"
  /usr/bin/python3 "$HERE/key_latency/analyze.py" "$RIG/rec" "$RIG/$n.keys"
done
