#!/bin/bash
# The mixer's play cursor against what a live device really played: the real
# platform plays a looping click through a private PulseAudio null sink
# while a timestamping recorder reads the sink's monitor; each reported
# cursor is compared with the time since the click was heard.
# usage: bench/cursor_live.sh [BUILD_DIR[:sdl]] [SECONDS]
#   ":sdl" plays through SDL's output (GREENLARK_AUDIO=sdl, its 256-frame
#   period) instead of our own stream.
# Target: p99 under 1 ms.
set -u
HERE=$(cd "$(dirname "$0")" && pwd)
ARG=${1:-$HERE/../build-real}
OUT=pulse
[[ $ARG == *:sdl ]] && { OUT=sdl; ARG=${ARG%:sdl}; }
BUILD=$(cd "$ARG" && pwd)
SECONDS_MEASURED=${2:-10}
. "$HERE/rig.sh"
rig_need bench_record bench_cursor_live

rig_pulse
rig_xvfb || exit 1
rig_recorder
# The recorder settles before the sound starts.
sleep 3
SDL_AUDIODRIVER=pulseaudio GREENLARK_AUDIO=$OUT "$BUILD/bench/bench_cursor_live" "$RIG" "$SECONDS_MEASURED" \
  2>"$RIG/live.log"
sleep 0.3
kill $RECORDER
wait $RECORDER
echo "play cursor on a live device (pulseaudio null sink, output $OUT), ${SECONDS_MEASURED} s"
/usr/bin/python3 "$HERE/cursor_live.py" "$RIG/rec" "$RIG/cursor"
