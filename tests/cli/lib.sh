# Functions for the cases. A case is a sequence of commands; its golden file contains their output and status.

# Runs a command and prints it, its output, its errors (after "! ") and its status.
run() {
  echo "\$ $*"
  local status=0
  "$@" >"$TMPDIR/../out" 2>"$TMPDIR/../err" </dev/null || status=$?
  shown "$status"
}

# The same for a shell command line.
runline() {
  echo "\$ $1"
  local status=0
  bash -c "$1" >"$TMPDIR/../out" 2>"$TMPDIR/../err" </dev/null || status=$?
  shown "$status"
}

shown() {
  cat "$TMPDIR/../out"
  sed 's/^/! /' "$TMPDIR/../err"
  [ "$1" -eq 0 ] || echo "[status $1]"
}

# Prints a remark to the golden file.
say() { echo "# $*"; }

# Copies a sample.
sample() { cp -r "$SAMPLES/$1" .; }

# Writes standard input to a file with CRLF line ends.
crlf() { sed 's/$/\r/' >"$1"; }

# Prints a stored value of a project file.
stored() { grep -a "^$2=" "$1" | tr -d '\r' || echo "no $2"; }

# Prints whether two files are identical.
same() { cmp -s "$1" "$2" && echo "# $1 is unchanged" || echo "# $1 has changed"; }

# Creates a project with one module: module_project NAME <code
module_project() {
  mkdir -p "$1"
  { printf 'Attribute VB_Name = "%s"\n' "mod$1"; cat; } | crlf "$1/mod$1.bas"
  {
    printf 'Type=Exe\nModule=mod%s; mod%s.bas\nStartup="Sub Main"\nCommand32=""\nName="%s"\n' "$1" "$1" "$1"
    printf 'MajorVer=1\nMinorVer=0\nRevisionVer=0\n\n[Quinloft Global]\nIsQuinloftProject=True\nProjectVersion=3.5\n'
    printf 'TargetDevice=PalmOS-DragonBall\nnumCompileTargets=1\nCompileTarget1=PalmOS-DragonBall\n'
  } | crlf "$1/$1.vbp"
}
