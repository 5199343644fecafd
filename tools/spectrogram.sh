#!/bin/sh
# Renders a spectrogram of a wave file: spectrogram.sh FILE.wav [OUT.png]
# (OUT defaults to FILE.png beside it). Time runs left to right, frequency up.
set -eu
if [ $# -lt 1 ] || [ $# -gt 2 ]; then
    echo "usage: $0 FILE.wav [OUT.png]" >&2
    exit 2
fi
in=$1
out=${2:-${in%.*}.png}
name=$(basename "$in")
sox "$in" -n spectrogram -x 1000 -y 257 -z 90 -t "$name" -c "greenlark" -o "$out"
echo "$out"
