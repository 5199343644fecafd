#!/bin/bash
# CPU use of the real game waiting at a prompt: the name prompt, or the club
# prompt at the first tee with the crowd and the ambient sounds running.
# usage: bench/idle_cpu.sh [BUILD_DIR] [AUDIO_DRIVER] [SECONDS] [name|tee]
#   AUDIO_DRIVER: dummy (default) or pulseaudio (a private null sink; the
#   sound server's own CPU over the same time is given too)
# Target: under 2 % of one core.
set -u
HERE=$(cd "$(dirname "$0")" && pwd)
BUILD=$(cd "${1:-$HERE/../build-real}" && pwd)
DRIVER=${2:-dummy}
SECONDS_MEASURED=${3:-10}
PLACE=${4:-name}
. "$HERE/rig.sh"
rig_need_game

rig_xvfb || exit 1
[ "$DRIVER" = pulseaudio ] && rig_pulse
cd "$BUILD/game" || exit 1
SDL_AUDIODRIVER=$DRIVER ./greenlark >"$RIG/game.log" 2>&1 &
GAME=$!
rig_track $GAME
WIN=$(rig_window) || { echo "the game's window never came"; exit 1; }
# The opening jingle and the prompt end well within this.
sleep 6
if [ "$PLACE" = tee ]; then
  # A name, yes, and the hole's description: then the club prompt waits.
  xdotool key --window "$WIN" a l Return
  sleep 3
  xdotool key --window "$WIN" y
  sleep 25
fi

ticks() { awk '{print $14 + $15}' "$1"; }
declare -A before
for t in /proc/$GAME/task/*; do before[$t]=$(ticks $t/stat); done
SERVER=
[ "$DRIVER" = pulseaudio ] && SERVER=$(cat "$XDG_RUNTIME_DIR/pulse/pid")
[ -n "$SERVER" ] && s0=$(ticks /proc/$SERVER/stat)
c0=$(ticks /proc/$GAME/stat); t0=$(date +%s.%N)
sleep "$SECONDS_MEASURED"
c1=$(ticks /proc/$GAME/stat); t1=$(date +%s.%N)
[ -n "$SERVER" ] && s1=$(ticks /proc/$SERVER/stat)
hz=$(getconf CLK_TCK)
echo "greenlark waiting at the $PLACE prompt, audio driver $DRIVER, ${SECONDS_MEASURED} s"
for t in /proc/$GAME/task/*; do
  [ -n "${before[$t]:-}" ] || continue
  awk -v n="$(cat $t/comm)" -v a="${before[$t]}" -v b="$(ticks $t/stat)" -v hz=$hz -v s="$t0" -v e="$t1" \
    'BEGIN { printf "  thread %-16s %6.2f %%\n", n, (b - a) / hz / (e - s) * 100 }'
done
awk -v a=$c0 -v b=$c1 -v hz=$hz -v s="$t0" -v e="$t1" \
  'BEGIN { printf "CPU of the whole process: %.2f %% of one core (target: under 2 %%)\n", (b - a) / hz / (e - s) * 100 }'
[ -n "$SERVER" ] && awk -v a=$s0 -v b=$s1 -v hz=$hz -v s="$t0" -v e="$t1" \
  'BEGIN { printf "CPU of the PulseAudio server: %.2f %% of one core\n", (b - a) / hz / (e - s) * 100 }'
true
