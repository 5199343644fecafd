#!/usr/bin/python3
"""Time from silencing the voice to the last audible sample, from
bench_record's recording and the "cut NS" lines that voice_latency.sh notes
for the keys that silence the game.

usage: cutoff.py RECPREFIX KEYSFILE
"""
import sys

import numpy as np

RATE = 48000


def main():
    prefix, keys = sys.argv[1], sys.argv[2]
    threshold = 32768 * 10 ** (-36 / 20)
    samples = np.fromfile(prefix + ".raw", dtype="<i2").reshape(-1, 2)[:, 0].astype(np.int32)
    reads = np.loadtxt(prefix + ".ts", dtype=np.int64, ndmin=2)
    total, returned = reads[:, 0], reads[:, 1]
    cuts = [int(line.split()[1]) for line in open(keys) if line.startswith("cut")]
    loud = np.abs(samples) > threshold
    after = []
    for cut in cuts:
        near = (returned > cut - 2e9) & (returned < cut + 2e9)
        if not near.any():
            continue
        origin = np.min(returned[near] - total[near] * 1e9 / RATE)
        first = int(np.ceil((cut - origin) * RATE / 1e9))
        if first >= len(samples) or not loud[max(0, first - RATE // 5):first].any():
            continue   # nothing was heard before the cut
        hits = np.nonzero(loud[first:first + RATE])[0]
        after.append(0.0 if len(hits) == 0 else (origin + (first + hits[-1]) * 1e9 / RATE - cut) / 1e6)
    if not after:
        print("no cut found in the recording")
        return 1
    v = np.array(after)
    print(f"silence to last audible sample: n={len(v)}  median {np.median(v):.2f} ms  max {v.max():.2f} ms"
          f"  (target: under 50 ms)")
    return 0


if __name__ == "__main__":
    sys.exit(main())
