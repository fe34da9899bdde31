# What cases use. A case is a story of commands; its golden file holds what each printed and its status.

# Runs a command and shows it, its output, its errors (behind "! ") and its status.
run() {
  echo "\$ $*"
  local status=0
  "$@" >"$TMPDIR/../out" 2>"$TMPDIR/../err" </dev/null || status=$?
  shown "$status"
}

# The same for a line of the shell.
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

# A remark in the golden file.
say() { echo "# $*"; }

# A sample of our own to change.
sample() { cp -r "$SAMPLES/$1" .; }

# Writes standard input as a file with the line ends of Windows.
crlf() { sed 's/$/\r/' >"$1"; }

# The stored value of a project file.
stored() { grep -a "^$2=" "$1" | tr -d '\r' || echo "no $2"; }

# Says whether a file is the same as before.
same() { cmp -s "$1" "$2" && echo "# $1 is unchanged" || echo "# $1 has changed"; }

# A project of one module. module NAME <code
module_project() {
  mkdir -p "$1"
  { printf 'Attribute VB_Name = "%s"\n' "mod$1"; cat; } | crlf "$1/mod$1.bas"
  {
    printf 'Type=Exe\nModule=mod%s; mod%s.bas\nStartup="Sub Main"\nCommand32=""\nName="%s"\n' "$1" "$1" "$1"
    printf 'MajorVer=1\nMinorVer=0\nRevisionVer=0\n\n[Quinloft Global]\nIsQuinloftProject=True\nProjectVersion=3.5\n'
    printf 'TargetDevice=PalmOS-DragonBall\nnumCompileTargets=1\nCompileTarget1=PalmOS-DragonBall\n'
  } | crlf "$1/$1.vbp"
}
