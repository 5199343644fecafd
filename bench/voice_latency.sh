#!/bin/bash
# A key's answer through both kinds of voice in one run: the real greenlark,
# started once with its own espeak-ng voice and once with the player's first
# speech-dispatcher voice (chosen through golf.cfg in the player's folder),
# in a private Xvfb with keys pressed through XTEST, playing to a private
# PulseAudio null sink whose monitor a timestamping recorder reads.
#
# With a name stored, the game first asks whether the name is correct; the
# stored name is long, so the question speaks for seconds. There F1 asks it
# again and F8 silences it (nothing is said after F8): each F8 is a cut,
# measured to the last audible sample. Then n brings the name prompt, where
# every letter key is answered by speaking the letter: key to the first
# audible sample. The game writes a journal, which tells the script when a
# prompt has been reached.
# usage: bench/voice_latency.sh [BUILD_DIR] [PRESSES] [INTERVAL_MS] [CUTS]
# Targets: 10 ms (median) to the answer; silenced within 50 ms.
set -u
HERE=$(cd "$(dirname "$0")" && pwd)
BUILD=$(cd "${1:-$HERE/../build-real}" && pwd)
PRESSES=${2:-30}
INTERVAL=${3:-400}
CUTS=${4:-10}
# F1 to F8 and F8 to the next F1: the question is still speaking at the cut,
# and the cut's last sound has a second of silence after it.
CUT_STEP=1200
NAME="Bartholomew Montgomery Fitzwilliam Worthington the third of Little Hampton upon the Marsh"
. "$HERE/rig.sh"
rig_need_game
rig_need bench_record bench_keys bench_voices

rig_pulse
rig_speechd
DISPATCHER=$(SDL_AUDIODRIVER=dummy SDL_VIDEODRIVER=dummy "$BUILD/bench/bench_voices") || exit 1
rig_xvfb || exit 1
# The player's folder: golf.cfg there marks a later run and holds the voice.
PLAYER=$HOME/Documents/brindlewick
mkdir -p "$PLAYER"
rig_recorder
sleep 3

# Waits until the game has begun to say TEXT: its journal names every text
# as it is spoken.
said() {
  for _ in $(seq 300); do grep -qF "$1" "$2" 2>/dev/null && return 0; sleep 0.1; done
  echo "the game never said \"$1\""
  exit 1
}

# One start of the game with voice $2, its keys noted under $RIG/$1.
measure() {
  local label=$1 voice=$2
  printf '%s\n%s\n0\n95\n0\n0\n0\n0\n0\n\n' "$NAME" "$voice" >"$PLAYER/golf.cfg"
  (cd "$BUILD/game" && exec env SDL_AUDIODRIVER=pulseaudio ./greenlark --journal "$RIG/$label.journal") \
    >"$RIG/$label.log" 2>&1 &
  local game=$!
  rig_track $game
  local window
  window=$(rig_window) || { echo "the game's window never came"; exit 1; }
  said " correct for your name?" "$RIG/$label.journal"
  sleep 1
  "$BUILD/bench/bench_keys" "$window" $((2 * CUTS)) $CUT_STEP F1 F8 >"$RIG/$label.question"
  awk '$3 == "F8" { print "cut", $2 }' "$RIG/$label.question" >"$RIG/$label.cuts"
  # No: the name prompt, spoken and done before the first letter.
  xdotool key --window "$window" n
  said " Please enter your name. " "$RIG/$label.journal"
  sleep 2.5
  rig_letters "$window" "$PRESSES" "$INTERVAL" "$RIG/$label.keys"
  sleep 0.5
  kill -9 $game
  wait $game 2>/dev/null
}

measure embedded 0
measure dispatcher "$DISPATCHER"
kill $RECORDER
wait $RECORDER

declare -A MEDIAN
for label in embedded dispatcher; do
  echo "== $label voice: $PRESSES letter keys every $INTERVAL ms at the name prompt, $CUTS cuts with F8"
  out=$(/usr/bin/python3 "$HERE/key_latency/analyze.py" "$RIG/rec" "$RIG/$label.keys")
  echo "$out"
  MEDIAN[$label]=$(sed -n 's/.*median \([0-9.]*\) ms.*/\1/p' <<<"$out")
  /usr/bin/python3 "$HERE/key_latency/cutoff.py" "$RIG/rec" "$RIG/$label.cuts"
done
if [ -n "${MEDIAN[embedded]}" ] && [ -n "${MEDIAN[dispatcher]}" ]; then
  awk -v e="${MEDIAN[embedded]}" -v d="${MEDIAN[dispatcher]}" \
    'BEGIN { if (e > 0) printf "speech-dispatcher against embedded, key to audible, median: %.1f times\n", d / e }'
fi
