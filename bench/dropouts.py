#!/usr/bin/python3
"""Counts the dropouts of each start of the game, for dropouts.sh.

A dropout in the recording is a run of 32 frames or more in which both
channels are exactly zero inside sound: what a null sink plays when a
stream runs dry, cutting the wave where it stands and taking it up again
where it stands. So on both sides of the run the 5 ms next to it are
audible (above -50 dBFS), and the samples right at the edge are a quarter
of that stretch's level or more. The game's own silences (the pauses of
speech) fade to zero and rise again from it: the sample at one edge at
least is far quieter than the stretch beside it. A recording of speech
alone (bench_speech_alone, given with --speech) must show no dropout.
The recording is placed in time as in key_latency/analyze.py, and each
start's frames are those played between its start and its end.

An underrun is the sound server's report that the game's stream ran out
("Implicit underrun" or "Actual underrun" in its debug log) between the
start and the end, except one followed within 50 ms by the stream's removal:
a stream that the game closes runs dry as it goes. The game's stream is
SDL's "Audio Stream" or our own "Greenlark".

usage: dropouts.py RECPREFIX STARTSFILE PULSELOG
       dropouts.py --speech RECPREFIX
"""
import re
import sys

import numpy as np

RATE = 48000
MIN_RUN = 32
SIDE = RATE // 200
EDGE = 2
CUT = 0.25
LOUD = 32768 * 10 ** (-50 / 20)
STREAMS = ("Audio Stream", "Greenlark")


def recording(prefix):
    samples = np.fromfile(prefix + ".raw", dtype="<i2").reshape(-1, 2).astype(np.int32)
    reads = np.loadtxt(prefix + ".ts", dtype=np.int64, ndmin=2)
    return samples, reads[:, 0], reads[:, 1]


def frames_of(t0, t1, total, returned):
    """The recording's frames heard from monotonic time t0 to t1."""
    near = (returned > t0 - 2e9) & (returned < t1 + 2e9)
    if not near.any():
        return 0, 0
    origin = np.min(returned[near] - total[near] * 1e9 / RATE)
    return int(np.ceil((t0 - origin) * RATE / 1e9)), int((t1 - origin) * RATE / 1e9)


def sounding(samples, first, last):
    """Seconds from the first sound to the last in frames [first, last)."""
    loud = np.nonzero(np.abs(samples[max(first, 0):max(last, 0)]).max(axis=1, initial=0) > LOUD)[0]
    return (loud[-1] - loud[0]) / RATE if len(loud) else 0.0


def gaps(samples, first, last):
    """Lengths of the cuts in frames [first, last)."""
    first, last = max(first, 0), min(last, len(samples))
    if last <= first:
        return []
    block = samples[first:last]
    zero = (block[:, 0] == 0) & (block[:, 1] == 0)
    level = np.abs(block).max(axis=1)
    edges = np.diff(np.concatenate(([0], zero.astype(np.int8), [0])))
    found = []
    for a, b in zip(np.nonzero(edges == 1)[0], np.nonzero(edges == -1)[0]):
        if b - a < MIN_RUN or a < SIDE or b + SIDE > len(block):
            continue
        before = np.sqrt(np.mean(block[a - SIDE:a].astype(float) ** 2))
        after = np.sqrt(np.mean(block[b:b + SIDE].astype(float) ** 2))
        if min(before, after) < LOUD:
            continue
        if level[a - EDGE:a].max() >= CUT * before and level[b:b + EDGE].max() >= CUT * after:
            found.append(int(b - a))
    return found


def underruns(log, line0, line1):
    """The server's underrun reports of the game's stream in log lines [line0, line1)."""
    stamp = re.compile(r"^\(\s*([0-9.]+)\|")

    def time_of(line):
        m = stamp.match(line)
        return float(m.group(1)) if m else None

    count = 0
    for k in range(line0, min(line1, len(log))):
        line = log[k]
        if not any(f"underrun of '{name}'" in line for name in STREAMS):
            continue
        t = time_of(line)
        closing = False
        for later in log[k + 1:k + 400]:
            tl = time_of(later)
            if t is not None and tl is not None and tl > t + 0.05:
                break
            if "Freeing input" in later and any(f'"{name}"' in later for name in STREAMS):
                closing = True
                break
        if not closing:
            count += 1
    return count


def speech_alone(prefix):
    samples, _, _ = recording(prefix)
    g = gaps(samples, 0, len(samples))
    print(f"speech alone, {len(samples) / RATE:.1f} s: {len(g)} dropouts found (must be 0)")
    return 1 if g else 0


def main():
    if sys.argv[1] == "--speech":
        return speech_alone(sys.argv[2])
    samples, total, returned = recording(sys.argv[1])
    starts = [line.split() for line in open(sys.argv[2])]
    log = open(sys.argv[3], errors="replace").read().splitlines()
    summary = {}
    print(f"{'build':40} start  sound s  dropouts  longest  underruns")
    for n, (build, t0, t1, line0, line1) in enumerate(starts):
        first, last = frames_of(int(t0), int(t1), total, returned)
        g = gaps(samples, first, last)
        u = underruns(log, int(line0), int(line1))
        heard = sounding(samples, first, last)
        s = summary.setdefault(build, [0, 0, 0, 0, 0.0])
        s[0] += 1
        s[1] += len(g)
        s[2] += 1 if g else 0
        s[3] += u
        s[4] += heard
        longest = f"{max(g):5d} fr" if g else "     -  "
        print(f"{build[-40:]:40} {n + 1:5d}  {heard:7.2f}  {len(g):8d}  {longest}  {u:9d}")
    for build, (runs, dropouts, dropped, under, heard) in summary.items():
        rate = f"{dropouts / heard:.1f}" if heard > 0 else "-"
        print(f"{build}: {dropouts} dropouts in {runs} starts ({dropped} starts with any; {rate} a second of"
              f" sound), {under} underruns reported")
    return 0


if __name__ == "__main__":
    sys.exit(main())
