#!/usr/bin/python3
"""Compares bench_cursor_live's reported play cursors with the recording.

The recording is placed in time as in key_latency/analyze.py (the lower
envelope of the recorder's read times). Each click of the half-second loop
marks the moment the loop's frame 0 was heard; a cursor reported at time t
should then read (t - click) * 48000 frames, two bytes each. A stretch
between clicks that lasted longer than the loop had an underrun in it (the
device ran dry and went on later), so where it is heard inside is unknown:
such stretches are left out and counted.

usage: cursor_live.py RECPREFIX CURSORFILE
"""
import sys

import numpy as np

RATE = 48000
LOOP = RATE // 2


def click_times(prefix):
    samples = np.fromfile(prefix + ".raw", dtype="<i2").reshape(-1, 2)[:, 0].astype(np.int32)
    reads = np.loadtxt(prefix + ".ts", dtype=np.int64, ndmin=2)
    total, returned = reads[:, 0], reads[:, 1]
    loud = np.nonzero(np.abs(samples) > 16000)[0]
    onsets = loud[np.insert(np.diff(loud) > RATE // 10, 0, True)]
    times = []
    for n in onsets:
        t_read = returned[min(np.searchsorted(total, n + 1), len(returned) - 1)]
        near = (returned > t_read - 2e9) & (returned < t_read + 2e9)
        origin = np.min(returned[near] - total[near] * 1e9 / RATE)
        times.append(origin + n * 1e9 / RATE)
    return np.array(times)


def main():
    clicks = click_times(sys.argv[1])
    cursor = np.loadtxt(sys.argv[2], dtype=np.int64, ndmin=2)
    if len(clicks) < 3:
        print("too few clicks recorded")
        return 1
    errors = []
    whole = np.abs(np.diff(clicks) / 1e6 - 1000 * LOOP / RATE) < 1.0
    for t, played in cursor:
        k = np.searchsorted(clicks, t) - 1
        if k < 1 or k >= len(clicks) - 1 or not whole[k]:
            continue
        truth = (t - clicks[k]) * RATE / 1e9
        told = played / 2
        diff = (told - truth + LOOP / 2) % LOOP - LOOP / 2
        errors.append(diff / RATE * 1000)
    if not errors:
        print(f"every loop had an underrun ({len(whole)}): the machine is too busy to measure")
        return 1
    e = np.array(errors)
    a = np.abs(e)
    print(f"cursor minus heard: n={len(e)}  mean {e.mean():+.3f} ms"
          f"  ({np.count_nonzero(~whole)} of {len(whole)} loops left out: underruns)")
    print(f"  |error| median {np.median(a):.3f}  p90 {np.percentile(a, 90):.3f}  p99 {np.percentile(a, 99):.3f}"
          f"  max {a.max():.3f} ms  (target: p99 under 1 ms)")
    return 0


if __name__ == "__main__":
    sys.exit(main())
