#!/bin/bash
# Dropouts of the real game's sound from its start: the game is started again
# and again against a private PulseAudio null sink while a timestamping
# recorder reads the sink's monitor. For each start it counts the runs of
# exact digital silence of 32 frames or more inside audible output (a stream
# that ran dry, heard as a click on either side) and the underruns that the
# sound server reports for the game's stream.
# usage: bench/dropouts.sh [BUILD_DIR[:sdl][,BUILD_DIR...]] [STARTS] [SECONDS] [LOAD_COMMAND]
#   Several build folders, separated by commas, take their starts in turn, so
#   that all of them are measured under the same conditions; ":sdl" after a
#   folder plays that build through SDL's output (GREENLARK_AUDIO=sdl) instead
#   of our own stream. The word "tone" in the list stands for bench_tone of
#   the first build: a bare SDL stream with the game's old period playing a
#   tone, whose dropouts are the machine's.
#   SECONDS: how long each start runs (the opening and the name prompt).
#   LOAD_COMMAND: run in the background for the whole measurement, for
#   example a parallel build; its process group is stopped at the end.
# Target: no dropout in ten starts on an idle machine.
set -u
HERE=$(cd "$(dirname "$0")" && pwd)
IFS=, read -ra BUILDS <<<"${1:-$HERE/../build-real}"
STARTS=${2:-10}
SECONDS_EACH=${3:-8}
LOAD=${4:-}
. "$HERE/rig.sh"
for i in "${!BUILDS[@]}"; do
  b=${BUILDS[$i]}
  [ "$b" = tone ] && continue
  out=
  [[ $b == *:sdl ]] && { out=:sdl; b=${b%:sdl}; }
  BUILDS[$i]=$(cd "$b" && pwd)$out || exit 1
done
BUILD=
for b in "${BUILDS[@]}"; do [ -z "$BUILD" ] && [ "$b" != tone ] && BUILD=${b%:sdl}; done
[ -n "$BUILD" ] || { echo "name a build folder besides tone"; exit 1; }
rig_need_game
rig_need bench_record bench_speech_alone
[[ " ${BUILDS[*]} " == *" tone "* ]] && rig_need bench_tone

# The rule for a cut, checked on speech alone: the voice's own pauses are no
# dropouts.
"$BUILD/bench/bench_speech_alone" "$RIG/speech" >/dev/null
/usr/bin/python3 "$HERE/dropouts.py" --speech "$RIG/speech"

RIG_PULSE_DEBUG=1 rig_pulse
rig_xvfb || exit 1
rig_recorder
sleep 3
LOADPID=
if [ -n "$LOAD" ]; then
  setsid bash -c "$LOAD" >"$RIG/load.log" 2>&1 &
  LOADPID=$!
  sleep 5
fi

now() { /usr/bin/python3 -c 'import time; print(time.monotonic_ns())'; }
loadavg() { cut -d' ' -f1 /proc/loadavg; }

LOADS=()
for ((i = 0; i < STARTS; i++)); do
  for b in "${BUILDS[@]}"; do
    line0=$(wc -l <"$RIG/pulse.log")
    t0=$(now)
    if [ "$b" = tone ]; then
      SDL_AUDIODRIVER=pulseaudio "$BUILD/bench/bench_tone" >>"$RIG/game.log" 2>&1 &
    else
      out=pulse
      [[ $b == *:sdl ]] && out=sdl
      (cd "${b%:sdl}/game" && exec env SDL_AUDIODRIVER=pulseaudio GREENLARK_AUDIO=$out ./greenlark) \
        >>"$RIG/game.log" 2>&1 &
    fi
    game=$!
    sleep "$SECONDS_EACH"
    t1=$(now)
    line1=$(wc -l <"$RIG/pulse.log")
    kill $game
    for _ in $(seq 30); do kill -0 $game 2>/dev/null || break; sleep 0.1; done
    kill -9 $game 2>/dev/null
    wait $game 2>/dev/null
    echo "$b $t0 $t1 $line0 $line1" >>"$RIG/starts"
    LOADS+=("$(loadavg)")
    sleep 0.5
  done
done
if [ -n "$LOADPID" ]; then
  kill -- -"$LOADPID" 2>/dev/null
  wait "$LOADPID" 2>/dev/null
fi
kill $RECORDER
wait $RECORDER
echo "greenlark started ${STARTS} times per build, ${SECONDS_EACH} s each, pulseaudio null sink;" \
  "load average during the starts: ${LOADS[*]}"
[ -n "$LOAD" ] && echo "under load: $LOAD"
/usr/bin/python3 "$HERE/dropouts.py" "$RIG/rec" "$RIG/starts" "$RIG/pulse.log"
rc=$?
# The machine's own slack, to read the counts against.
[ -x "$BUILD/bench/bench_wake_jitter" ] && "$BUILD/bench/bench_wake_jitter" 10
exit $rc
