#!/bin/sh
# Compares running applications with Lua, LuaJIT and Gambas. Needs lua5.4, luajit, gambas3-devel and fernwick of a release
# build as its argument:
#   bench/run_vs_lua.sh build/release/Apps/fernwick/fernwick
set -eu
fernwick=$(realpath "${1:?usage: run_vs_lua.sh PATH/TO/fernwick}")
work=$(mktemp -d "${BENCH_FOLDER:-/dev/shm}/run-bench.XXXXXX")
trap 'rm -rf "$work"' EXIT
python3 "$(dirname "$0")/run_vs_lua.py" "$fernwick" "$work"
