#!/bin/bash
# speech-dispatcher's own time to silence, without the game: a bare
# libspeechd client (bench_dispatcher_cut) cancels texts of three lengths
# while they are heard, playing to a private PulseAudio null sink whose
# monitor a timestamping recorder reads. Compare with the game's figures
# from voice_latency.sh.
# usage: bench/dispatcher_cut.sh [BUILD_DIR] [ROUNDS]
set -u
HERE=$(cd "$(dirname "$0")" && pwd)
BUILD=$(cd "${1:-$HERE/../build-real}" && pwd)
ROUNDS=${2:-10}
. "$HERE/rig.sh"
rig_need bench_record bench_dispatcher_cut

rig_pulse
rig_recorder
rig_speechd
sleep 3
"$BUILD/bench/bench_dispatcher_cut" "$ROUNDS" >"$RIG/cuts" || exit 1
sleep 0.5
kill $RECORDER
wait $RECORDER
for label in $(awk '{ print $2 }' "$RIG/cuts" | uniq); do
  echo "== a text of $label, cancelled while heard"
  awk -v l="$label" '$2 == l { print "cut", $3 }' "$RIG/cuts" >"$RIG/$label.cuts"
  /usr/bin/python3 "$HERE/key_latency/cutoff.py" "$RIG/rec" "$RIG/$label.cuts"
done
