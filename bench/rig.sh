# Sourced by the benchmark scripts: a private PulseAudio with a null sink
# "cap" and a private Xvfb, both in a temporary folder and stopped by
# process id when the script ends.
#   rig_pulse      starts PulseAudio (sets HOME, with a Documents folder, and
#                  XDG_RUNTIME_DIR); with
#                  RIG_PULSE_DEBUG=1 its log in $RIG/pulse.log is at debug
#                  level with times, which names every underrun of a stream.
#                  RIG_SERVER=pipewire starts PipeWire with its pulse layer
#                  and WirePlumber instead (on a session bus of its own),
#                  with the same null sink "cap"; it names no underruns.
#                  RIG_SERVERS holds the server's process ids
#   rig_xvfb       starts Xvfb on a free display (sets DISPLAY)
#   rig_window     waits for the game's window, prints its id
#   rig_track PID  stops PID when the script ends
#   rig_need TOOL...  stops unless the build has these benchmark programs
#   rig_need_game  stops unless the build has the game and its sound files
#   rig_letters WINDOW PRESSES INTERVAL OUT  presses letter keys, notes when
#   rig_speechd    starts speech-dispatcher on the private PulseAudio (after
#                  rig_pulse); stops the script when it is not installed
#   rig_said TEXT JOURNAL  waits until the game's journal names TEXT: the
#                  game writes each text there as it begins to say it
#   rig_quiet MS   waits until the last MS milliseconds of the recording are
#                  silent (below -50 dBFS): what was said has been heard out
#   rig_stream_gone  waits until the private server plays no stream: the
#                  game's stream stopped after its two quiet seconds
#   rig_name_keys WINDOW JOURNAL PRESSES INTERVAL OUT  once the game has said
#                  its name prompt and it has been heard out, presses letters
#                  as rig_letters does
#   rig_end_game PID  kills the game and waits for its window to go

RIG=$(mktemp -d "${TMPDIR:-/tmp}/greenlark-bench-XXXXXX")
RIG_PIDS=()

rig_track() { RIG_PIDS+=("$1"); }

rig_stop() {
  local pid
  for ((i=${#RIG_PIDS[@]}-1; i>=0; i--)); do
    pid=${RIG_PIDS[$i]}
    kill "$pid" 2>/dev/null
    for _ in $(seq 30); do kill -0 "$pid" 2>/dev/null || break; sleep 0.1; done
    kill -9 "$pid" 2>/dev/null
  done
  [ -n "${RIG_KEEP:-}" ] || rm -rf "$RIG"
}
trap rig_stop EXIT

rig_pulse() {
  export HOME=$RIG/home XDG_RUNTIME_DIR=$RIG/xdg
  # With a documents folder the game keeps the player's files there, not
  # beside itself in the build's game folder, where they would outlive the run.
  mkdir -p "$HOME/Documents" "$XDG_RUNTIME_DIR" && chmod 700 "$XDG_RUNTIME_DIR"
  [ "${RIG_SERVER:-}" = pipewire ] && { rig_pipewire; return; }
  # Run as root without a session bus: warnings about both are harmless.
  local level=()
  [ -n "${RIG_PULSE_DEBUG:-}" ] && level=(--log-level=debug --log-time=1)
  pulseaudio -D -n --exit-idle-time=-1 --disallow-exit "${level[@]}" \
    --load="module-native-protocol-unix" \
    --load="module-null-sink sink_name=cap rate=48000 format=s16le channels=2" \
    --log-target=file:"$RIG/pulse.log" 2>/dev/null
  for _ in $(seq 50); do pactl info >/dev/null 2>&1 && break; sleep 0.1; done
  RIG_SERVERS=("$(cat "$XDG_RUNTIME_DIR/pulse/pid")")
  rig_track "${RIG_SERVERS[0]}"
  pactl set-default-sink cap
}

rig_pipewire() {
  local p
  dbus-daemon --session --fork --address="unix:path=$RIG/bus" --print-pid=3 3>"$RIG/dbus.pid" || exit 1
  rig_track "$(cat "$RIG/dbus.pid")"
  export DBUS_SESSION_BUS_ADDRESS=unix:path=$RIG/bus
  RIG_SERVERS=()
  for p in pipewire wireplumber pipewire-pulse; do
    "$p" >"$RIG/$p.log" 2>&1 &
    rig_track $!
    RIG_SERVERS+=($!)
    [ $p = pipewire ] && sleep 1
  done
  for _ in $(seq 50); do pactl info >/dev/null 2>&1 && break; sleep 0.1; done
  pactl load-module module-null-sink sink_name=cap rate=48000 format=s16le channels=2 >/dev/null
  for _ in $(seq 50); do pactl set-default-sink cap 2>/dev/null && break; sleep 0.1; done
  touch "$RIG/pulse.log"
}

rig_xvfb() {
  local n
  for n in $(seq 150 199); do
    [ -e /tmp/.X11-unix/X$n ] || [ -e /tmp/.X$n-lock ] && continue
    Xvfb :$n -screen 0 640x480x24 -nolisten tcp -noreset >"$RIG/xvfb.log" 2>&1 &
    local pid=$!
    for _ in $(seq 50); do [ -e /tmp/.X11-unix/X$n ] && break; kill -0 $pid 2>/dev/null || break; sleep 0.1; done
    if [ -e /tmp/.X11-unix/X$n ] && kill -0 $pid 2>/dev/null; then
      rig_track $pid
      export DISPLAY=:$n
      return 0
    fi
  done
  echo "no free display for Xvfb" >&2
  return 1
}

rig_window() {
  local w
  for _ in $(seq 100); do
    w=$(xdotool search --name Greenlark 2>/dev/null | head -1)
    [ -n "$w" ] && { echo "$w"; return 0; }
    sleep 0.1
  done
  return 1
}

# Stops unless BUILD has these benchmark programs.
rig_need() {
  for tool in "$@"; do
    [ -x "$BUILD/bench/$tool" ] || { echo "build $tool first (ninja -C $BUILD $tool)"; exit 1; }
  done
}

# Stops unless BUILD has the game and its sound files: without them the game
# stops at its file check and nothing is heard.
rig_need_game() {
  [ -x "$BUILD/game/greenlark" ] || { echo "build the game first (ninja -C $BUILD greenlark)"; exit 1; }
  [ -e "$BUILD/game/golf0.wav" ] || { echo "build the sound files first (ninja -C $BUILD greenlark-waves)"; exit 1; }
}

# Presses PRESSES letter keys, INTERVAL ms apart, in the game's WINDOW and
# writes each press with its time to OUT (bench_keys' "send NS KEY" lines).
rig_letters() {
  "$BUILD/bench/bench_keys" "$1" "$2" "$3" a b c d e f g h i j k l m n o p q r s t u v w x y z >"$4"
}

# The timestamping recorder of the null sink's monitor, in the background,
# as RECORDER; it is given three seconds to settle.
rig_recorder() {
  "$BUILD/bench/bench_record" cap.monitor "$RIG/rec" 96 &
  RECORDER=$!
  rig_track $RECORDER
}

rig_speechd() {
  command -v speech-dispatcher >/dev/null || { echo "needs speech-dispatcher and speech-dispatcher-espeak-ng"; exit 1; }
  local pidfile=$XDG_RUNTIME_DIR/speech-dispatcher/pid/speech-dispatcher.pid
  speech-dispatcher -d -t 0 2>/dev/null
  for _ in $(seq 50); do [ -e "$pidfile" ] && break; sleep 0.1; done
  rig_track "$(cat "$pidfile")"
}

rig_said() {
  for _ in $(seq 600); do grep -qF "$1" "$2" 2>/dev/null && return 0; sleep 0.1; done
  echo "the game never said \"$1\""
  exit 1
}

rig_quiet() {
  /usr/bin/python3 - "$RIG/rec.raw" "$1" <<'PY' || { echo "the game never fell silent"; exit 1; }
import os, sys, time
import numpy as np
path, ms = sys.argv[1], int(sys.argv[2])
tail = ms * 48 * 4
for _ in range(1200):
    size = os.path.getsize(path)
    if size > tail:
        with open(path, "rb") as f:
            f.seek(size - tail)
            if np.abs(np.frombuffer(f.read(tail), dtype="<i2")).max() < 32768 * 10 ** (-50 / 20):
                sys.exit(0)
    time.sleep(0.05)
sys.exit(1)
PY
}

rig_stream_gone() {
  for _ in $(seq 600); do [ -z "$(pactl list short sink-inputs 2>/dev/null)" ] && return 0; sleep 0.1; done
  echo "the game's stream never stopped"
  exit 1
}

rig_name_keys() {
  rig_said " Please enter your name. " "$2"
  rig_quiet 700
  rig_letters "$1" "$3" "$4" "$5"
  sleep 0.5
}

rig_end_game() {
  kill -9 "$1"
  wait "$1" 2>/dev/null
  for _ in $(seq 50); do xdotool search --name Greenlark >/dev/null 2>&1 || return 0; sleep 0.1; done
}
