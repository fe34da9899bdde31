#!/bin/sh
# Compares the parser with gbc3's full compilation of modules with the same structure, and the time per line in a module
# of a million lines. Needs gambas3-devel, and parser_bench of a release build as its argument:
#   bench/parser_vs_gbc3.sh build/release/bench/parser_bench
set -eu
bench=$(realpath "${1:?usage: parser_vs_gbc3.sh PATH/TO/parser_bench}")
work=$(mktemp -d "${BENCH_FOLDER:-/dev/shm}/parser-bench.XXXXXX")
trap 'rm -rf "$work"' EXIT
python3 "$(dirname "$0")/parser_vs_gbc3.py" "$bench" "$work"
