#!/usr/bin/python3
"""Key to first audible sample, from bench_record's recording and
bench_keys' press times.

Every read of the recorder returned at a known time with a known number of
frames in total. A frame cannot have been played later than the read that
returned it, and the earliest of those bounds, taken over the reads near a
press, gives the recording's own timeline: frame n was played at
min(t_i - n_i / R) + n / R. Each press is measured to the first frame on
that timeline after the press whose level is above -36 dBFS.

The null sink takes sound a block ahead of its clock and its monitor hands
it on at once, so that timeline can run up to a block early: an answer may
seem to begin a little before its press. Such a press counts, with the
answer's first sample inside the block before it; a press that finds sound
earlier in the 100 ms before it (the last answer still heard) cannot be
measured and is left out.

usage: analyze.py RECPREFIX KEYSFILE [THRESHOLD] [BLOCK_FRAMES]
"""
import sys

import numpy as np

RATE = 48000


def main():
    prefix, keys = sys.argv[1], sys.argv[2]
    threshold = float(sys.argv[3]) if len(sys.argv) > 3 else 32768 * 10 ** (-36 / 20)
    block = int(sys.argv[4]) if len(sys.argv) > 4 else 96
    samples = np.fromfile(prefix + ".raw", dtype="<i2").reshape(-1, 2)[:, 0].astype(np.int32)
    reads = np.loadtxt(prefix + ".ts", dtype=np.int64, ndmin=2)
    total, returned = reads[:, 0], reads[:, 1]
    presses = [int(line.split()[1]) for line in open(keys) if line.startswith("send")]
    loud = np.abs(samples) > threshold
    latencies = []
    busy = 0
    for press in presses:
        near = (returned > press - 2e9) & (returned < press + 2e9)
        if not near.any():
            continue
        origin = np.min(returned[near] - total[near] * 1e9 / RATE)
        first = int(np.ceil((press - origin) * RATE / 1e9))
        if first < RATE // 10 or first >= len(samples):
            continue
        # A press while the last answer still sounds cannot be measured.
        if loud[first - RATE // 10:first - block].any():
            busy += 1
            continue
        hits = np.nonzero(loud[first - block:first + RATE])[0]
        if len(hits) == 0:
            continue
        latencies.append((origin + (first - block + hits[0]) * 1e9 / RATE - press) / 1e6)
    if not latencies:
        print("no answers found in the recording")
        return 1
    v = np.array(latencies)
    print(f"key to first audible sample (-36 dBFS): n={len(v)} of {len(presses)} presses"
          f" ({busy} left out: the last answer still heard in the 100 ms before the press)")
    print(f"  median {np.median(v):.2f} ms  p90 {np.percentile(v, 90):.2f} ms  "
          f"min {v.min():.2f} ms  max {v.max():.2f} ms  (target: median 3 ms, p90 5 ms)")
    return 0


if __name__ == "__main__":
    sys.exit(main())
