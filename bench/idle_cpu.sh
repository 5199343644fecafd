#!/bin/bash
# CPU use of the real game waiting at a prompt, and of the sound server
# beside it (a private PulseAudio with a null sink, or PipeWire with
# RIG_SERVER=pipewire), over the same seconds:
#   name  at the name prompt of a first run, once the prompt has been said
#         and the game's stream has stopped after its quiet stretch;
#   tee   at the club prompt of the first tee, where the crowd's loop keeps a
#         stream running (the hole's description is hushed with Ctrl once the
#         prompt has been queued).
# Each step waits for the text the game's journal names, not for a time.
# usage: bench/idle_cpu.sh [BUILD_DIR[:sdl][,BUILD_DIR...]] [SECONDS] [name|tee|both]
#   ":sdl" plays a build through SDL's output (GREENLARK_AUDIO=sdl).
# Target: not above SDL's output.
set -u
HERE=$(cd "$(dirname "$0")" && pwd)
IFS=, read -ra BUILDS <<<"${1:-$HERE/../build-real}"
SECONDS_MEASURED=${2:-10}
PLACES=${3:-both}
[ "$PLACES" = both ] && PLACES="name tee"
. "$HERE/rig.sh"
BUILD=$(cd "${BUILDS[0]%:sdl}" && pwd) || exit 1
rig_need_game

rig_pulse
rig_xvfb || exit 1
PLAYER=$HOME/Documents/brindlewick

ticks() { awk '{print $14 + $15}' "$1"; }
serverTicks() {
  local sum=0 p
  for p in "${RIG_SERVERS[@]}"; do sum=$((sum + $(ticks /proc/$p/stat))); done
  echo $sum
}

# Waits for TEXT in the journal, then presses KEYS.
step() {
  rig_said "$1" "$JOURNAL"
  shift
  xdotool key --window "$WIN" "$@"
}

# The game and the server over SECONDS_MEASURED, as per cent of one core.
measure() {
  local g0 s0 t0 g1 s1 t1 hz
  hz=$(getconf CLK_TCK)
  g0=$(ticks /proc/$GAME/stat); s0=$(serverTicks); t0=$(date +%s.%N)
  sleep "$SECONDS_MEASURED"
  g1=$(ticks /proc/$GAME/stat); s1=$(serverTicks); t1=$(date +%s.%N)
  awk -v g=$((g1 - g0)) -v s=$((s1 - s0)) -v hz="$hz" -v a="$t0" -v b="$t1" -v what="$1" \
    'BEGIN { printf "  %-44s game %5.2f %%   server %5.2f %%\n", what, g / hz / (b - a) * 100, s / hz / (b - a) * 100 }'
}

for b in "${BUILDS[@]}"; do
  out=pulse
  [[ $b == *:sdl ]] && { out=sdl; b=${b%:sdl}; }
  echo "== $b, output $out, ${SECONDS_MEASURED} s each (load average $(cut -d' ' -f1 /proc/loadavg))"
  for place in $PLACES; do
    rm -rf "$PLAYER"
    mkdir -p "$PLAYER"
    # A stored name skips the first run's name prompt.
    [ "$place" = tee ] && printf '%s\n%s\n0\n95\n0\n0\n0\n0\n0\n\n' " al " 0 >"$PLAYER/golf.cfg"
    JOURNAL=$RIG/$place.journal
    (cd "$b/game" && exec env SDL_AUDIODRIVER=pulseaudio GREENLARK_AUDIO=$out ./greenlark --journal "$JOURNAL") \
      >"$RIG/game.log" 2>&1 &
    GAME=$!
    rig_track $GAME
    WIN=$(rig_window) || { echo "the game's window never came"; exit 1; }
    if [ "$place" = name ]; then
      rig_said " Please enter your name. " "$JOURNAL"
      rig_stream_gone
      measure "name prompt, stream stopped"
    else
      step " correct for your name?" y
      step " do you wish to use this voice." Return
      step " select power indicator sound files " Return
      step " Would you like to read the instructions?" Return
      step " Would you like to read the special key instructions?" Return
      step " Would you like to read the hints?" Return
      step " use ball washer " Return
      sleep 1
      xdotool key --window "$WIN" Return
      step " golf-course " Return
      step " Please Pick A-Course To Play. " Return
      step " Select Your Club." ctrl
      measure "first tee, club prompt, the crowd's loop playing"
    fi
    rig_end_game $GAME
  done
done
