#!/usr/bin/env bash
# Compares the start time of the program with that of a similar compiler command (Debian's gambas3-devel).
# Usage: bench/startup.sh [PROGRAM]. Prints both start times and their ratio; status 1 if it is above 3.
set -euo pipefail
program=${1:-$(dirname "$0")/../build/release/Apps/fernwick/fernwick}
command -v gbc3 >/dev/null || { echo "gbc3 is missing: apt-get install gambas3-devel" >&2; exit 3; }
starts=200

# Microseconds per start, the best of three rounds.
measure() {
  local best=0 round begin end
  for round in 1 2 3; do
    begin=$(date +%s%N)
    for ((i = 0; i < starts; i++)); do "$@" >/dev/null; done
    end=$(date +%s%N)
    local each=$(((end - begin) / starts / 1000))
    if [ "$best" -eq 0 ] || [ "$each" -lt "$best" ]; then best=$each; fi
  done
  echo "$best"
}

peer=$(measure gbc3 --version)
ours=$(measure "$program" --version)
awk -v ours="$ours" -v peer="$peer" 'BEGIN {
  printf "fernwick --version %d us, gbc3 --version %d us, ratio %.2f (at most 3)\n", ours, peer, ours / peer
  exit ours / peer > 3
}'
