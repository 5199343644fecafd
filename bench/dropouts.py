#!/usr/bin/python3
"""Counts the dropouts of each start of the game, for dropouts.sh.

A dropout in the recording is a run of 32 frames or more in which both
channels are exactly zero, with sound above -50 dBFS in the 8 frames on
either side: what a null sink plays when a stream runs dry in the middle of
a sound, cutting the wave where it stands. The game's own silences (the
pauses of speech) fade to zero and rise again from it, so their edges are
far quieter. The recording is placed in time as in key_latency/analyze.py, and
each start's frames are those played between its start and its end.

An underrun is the sound server's report that the game's stream ran out
("Implicit underrun" or "Actual underrun" in its debug log) between the
start and the end, except one followed within 50 ms by the stream's removal:
a stream that the game closes runs dry as it goes.

usage: dropouts.py RECPREFIX STARTSFILE PULSELOG
"""
import re
import sys

import numpy as np

RATE = 48000
MIN_RUN = 32
EDGE = 8
LOUD = 32768 * 10 ** (-50 / 20)
STREAM = "'Audio Stream'"


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
    """Lengths of the silent runs inside sound, in frames [first, last)."""
    first, last = max(first, 0), min(last, len(samples))
    if last <= first:
        return []
    block = samples[first:last]
    zero = (block[:, 0] == 0) & (block[:, 1] == 0)
    level = np.abs(block).max(axis=1)
    edges = np.diff(np.concatenate(([0], zero.astype(np.int8), [0])))
    found = []
    for a, b in zip(np.nonzero(edges == 1)[0], np.nonzero(edges == -1)[0]):
        if b - a < MIN_RUN or a < EDGE or b + EDGE > len(block):
            continue
        if level[a - EDGE:a].max() > LOUD and level[b:b + EDGE].max() > LOUD:
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
        if "underrun of " + STREAM not in line:
            continue
        t = time_of(line)
        closing = False
        for later in log[k + 1:k + 400]:
            tl = time_of(later)
            if t is not None and tl is not None and tl > t + 0.05:
                break
            if "Freeing input" in later and '"Audio Stream"' in later:
                closing = True
                break
        if not closing:
            count += 1
    return count


def main():
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
