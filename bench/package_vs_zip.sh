#!/bin/sh
# Compares packing 200 files (50 MB in total) with zip -X at the same level, run in turn, and prints the best times, the
# processor times and their ratios. Fails if packing needs more than 0.6 of zip's time on a machine with two idle cores,
# or more than 1.1 of its processor time. Needs zip, and package_bench of a release build as its argument:
#   bench/package_vs_zip.sh build/release/bench/package_bench
set -eu
bench=$(realpath "${1:?usage: package_vs_zip.sh PATH/TO/package_bench}")
work=$(mktemp -d "${BENCH_FOLDER:-/dev/shm}/package-bench.XXXXXX")
trap 'rm -rf "$work"' EXIT
python3 "$(dirname "$0")/package_vs_zip.py" "$bench" "$work"
