#!/usr/bin/env bash
# Compares the start of the program, alone and with a small project, with that of a similar compiler command (Debian's
# gambas3-devel), and a run of an unchanged small program with the start alone. Usage: bench/startup.sh [PROGRAM]. Prints times
# and ratios; status 1 if a ratio is above its limit.
set -euo pipefail
program=$(realpath "${1:-$(dirname "$0")/../build/release/Apps/fernwick/fernwick}")
sample=$(realpath "$(dirname "$0")/../samples/HelloWorld")
command -v gbc3 >/dev/null || { echo "gbc3 is missing: apt-get install gambas3-devel" >&2; exit 3; }

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cp -r "$sample" "$work/HelloWorld"
export HOME="$work/home" XDG_CONFIG_HOME= XDG_DATA_HOME= XDG_STATE_HOME= FERNWICK_MACHINE_STORE="$work/machine"
mkdir "$HOME"
cd "$work/HelloWorld"
printf 'Attribute VB_Name = "Hello"\r\nSub Main()\r\n  Debug.Print "Hello"\r\nEnd Sub\r\n' >Hello.bas
printf 'Type=Exe\r\nModule=Hello; Hello.bas\r\nStartup="Sub Main"\r\nName="Hello"\r\n' >Hello.vbp

# Microseconds for one run of the command, the mean of 100.
mean() {
  local begin end i
  begin=$(date +%s%N)
  for ((i = 0; i < 100; i++)); do "$@" >/dev/null 2>&1; done
  end=$(date +%s%N)
  echo $(((end - begin) / 100000))
}

# Microseconds of processor time for one run of the command, the mean of 100.
processor() {
  local TIMEFORMAT='%U %S' i
  { time for ((i = 0; i < 100; i++)); do "$@" >/dev/null 2>&1; done; } 2>&1 | awk '{ printf "%d\n", ($1 + $2) * 10000 }'
}

declare -A best limit=([version]=2.5 [info]=10 [build]=25)
measure() {
  local how=$1 name=$2 each
  each=$("$how" "${@:3}")
  if [ "${best[$name]:-$each}" -ge "$each" ]; then best[$name]=$each; fi
}

# In turn, and the best of five rounds, so that other work on the machine disturbs all of them alike.
for _ in 1 2 3 4 5; do
  measure mean peer gbc3 --version
  measure mean version "$program" --version
  measure mean info "$program" info HelloWorld.vbp
  measure mean build "$program" build HelloWorld.vbp
  measure processor start "$program" --version
  measure processor run "$program" run Hello.vbp
done

echo "gbc3 --version ${best[peer]} us"
status=0
for name in version info build; do
  awk -v name="$name" -v ours="${best[$name]}" -v peer="${best[peer]}" -v limit="${limit[$name]}" 'BEGIN {
    printf "fernwick %s %d us, ratio %.2f (at most %s)\n", name, ours, ours / peer, limit
    exit ours / peer > limit
  }' || status=1
done
awk -v start="${best[start]}" -v run="${best[run]}" 'BEGIN {
  printf "fernwick run, unchanged: %d us of processor time, ratio to --version %.2f (at most 3)\n", run, run / start
  exit run / start > 3
}' || status=1
exit $status
