#!/bin/bash
# A key's letter spoken through both kinds of voice in one run: the game's
# own espeak-ng and the player's speech-dispatcher (its espeak-ng module),
# both into a private PulseAudio null sink whose monitor a timestamping
# recorder reads. Prints, for each voice, the time from the key to the first
# audible sample and from silencing to the last one.
# usage: bench/voice_latency.sh [BUILD_DIR] [PRESSES] [INTERVAL_MS]
set -u
HERE=$(cd "$(dirname "$0")" && pwd)
BUILD=$(cd "${1:-$HERE/../build-real}" && pwd)
PRESSES=${2:-30}
INTERVAL=${3:-400}
. "$HERE/rig.sh"
rig_need bench_record bench_voices
command -v speech-dispatcher >/dev/null || { echo "needs speech-dispatcher and speech-dispatcher-espeak-ng"; exit 1; }

rig_pulse
speech-dispatcher -d -t 0 2>/dev/null
for _ in $(seq 50); do [ -e "$XDG_RUNTIME_DIR/speech-dispatcher/pid/speech-dispatcher.pid" ] && break; sleep 0.1; done
rig_track "$(cat "$XDG_RUNTIME_DIR/speech-dispatcher/pid/speech-dispatcher.pid")"
rig_recorder
sleep 3
SDL_AUDIODRIVER=pulseaudio SDL_VIDEODRIVER=dummy "$BUILD/bench/bench_voices" "$PRESSES" "$INTERVAL" \
  "$RIG/embedded" "$RIG/dispatcher" || exit 1
sleep 0.5
kill $RECORDER
wait $RECORDER
for voice in embedded dispatcher; do
  echo "== $voice voice, $PRESSES keys every $INTERVAL ms"
  /usr/bin/python3 "$HERE/key_latency/analyze.py" "$RIG/rec" "$RIG/$voice"
  /usr/bin/python3 "$HERE/key_latency/cutoff.py" "$RIG/rec" "$RIG/$voice"
done
