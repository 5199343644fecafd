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
# audible sample, once the prompt has been heard out. The game writes a
# journal, which tells the script when a prompt has been reached.
# usage: bench/voice_latency.sh [BUILD_DIR[:sdl][,BUILD_DIR...]] [PRESSES] [INTERVAL_MS] [CUTS]
#   Every build folder is measured with the embedded voice, the first with
#   speech-dispatcher's as well; ":sdl" plays a build through SDL's output
#   (GREENLARK_AUDIO=sdl) instead of our own stream.
# Targets: embedded voice, median 3 ms and p90 5 ms to the answer, median
# 3 ms to silence; either voice silenced within 50 ms.
set -u
HERE=$(cd "$(dirname "$0")" && pwd)
IFS=, read -ra BUILDS <<<"${1:-$HERE/../build-real}"
BUILD=$(cd "${BUILDS[0]%:sdl}" && pwd) || exit 1
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

# One start of build $3 (with :sdl or not) with voice $2, its keys noted
# under $RIG/$1.
measure() {
  local label=$1 voice=$2 build=${3%:sdl} out=pulse
  [[ $3 == *:sdl ]] && out=sdl
  printf '%s\n%s\n0\n95\n0\n0\n0\n0\n0\n\n' "$NAME" "$voice" >"$PLAYER/golf.cfg"
  (cd "$build/game" && exec env SDL_AUDIODRIVER=pulseaudio GREENLARK_AUDIO=$out ./greenlark \
    --journal "$RIG/$label.journal") >"$RIG/$label.log" 2>&1 &
  local game=$!
  rig_track $game
  local window
  window=$(rig_window) || { echo "the game's window never came"; exit 1; }
  rig_said " correct for your name?" "$RIG/$label.journal"
  sleep 1
  "$BUILD/bench/bench_keys" "$window" $((2 * CUTS)) $CUT_STEP F1 F8 >"$RIG/$label.question"
  awk '$3 == "F8" { print "cut", $2 }' "$RIG/$label.question" >"$RIG/$label.cuts"
  # No: the name prompt, spoken and done before the first letter.
  xdotool key --window "$window" n
  rig_name_keys "$window" "$RIG/$label.journal" "$PRESSES" "$INTERVAL" "$RIG/$label.keys"
  rig_end_game $game
}

LABELS=()
for n in "${!BUILDS[@]}"; do
  measure "embedded$n" 0 "${BUILDS[$n]}"
  LABELS+=("embedded$n")
done
measure dispatcher "$DISPATCHER" "${BUILDS[0]}"
kill $RECORDER
wait $RECORDER

declare -A MEDIAN
echo "load average: $(cut -d' ' -f1-3 /proc/loadavg)"
for label in "${LABELS[@]}" dispatcher; do
  what=$label
  [[ $label == embedded* ]] && what="embedded voice, ${BUILDS[${label#embedded}]}"
  echo "== $what: $PRESSES letter keys every $INTERVAL ms at the name prompt, $CUTS cuts with F8"
  out=$(/usr/bin/python3 "$HERE/key_latency/analyze.py" "$RIG/rec" "$RIG/$label.keys")
  echo "$out"
  MEDIAN[$label]=$(sed -n 's/.*median \([0-9.]*\) ms.*/\1/p' <<<"$out")
  /usr/bin/python3 "$HERE/key_latency/cutoff.py" "$RIG/rec" "$RIG/$label.cuts"
done
if [ -n "${MEDIAN[embedded0]}" ] && [ -n "${MEDIAN[dispatcher]}" ]; then
  awk -v e="${MEDIAN[embedded0]}" -v d="${MEDIAN[dispatcher]}" \
    'BEGIN { if (e > 0) printf "speech-dispatcher against embedded, key to audible, median: %.1f times\n", d / e }'
fi
