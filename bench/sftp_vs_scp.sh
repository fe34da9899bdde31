#!/usr/bin/env bash
# Compares sending a large file to a Linux handheld with scp, in turn, over the loopback to an SSH server started by
# this script. Usage: bench/sftp_vs_scp.sh [PROGRAM] [MEGABYTES]. Prints both times and their ratio; status 1 if it is
# above 1.25.
set -euo pipefail
program=${1:-$(dirname "$0")/../build/release/bench/sftp_upload}
megabytes=${2:-200}
runs=5

work=$(mktemp -d "${BENCH_FOLDER:-/dev/shm}/sftp-bench.XXXXXX")
server=
trap '[ -z "$server" ] || kill "$server"; rm -rf "$work"' EXIT
ssh-keygen -q -t ed25519 -N '' -f "$work/host_key"
ssh-keygen -q -t ed25519 -N '' -f "$work/user_key"
cp "$work/user_key.pub" "$work/authorized_keys"
port=$(python3 -c 'import socket; s = socket.socket(); s.bind(("127.0.0.1", 0)); print(s.getsockname()[1])')
echo "[127.0.0.1]:$port $(cat "$work/host_key.pub")" >"$work/known_hosts"
cat >"$work/sshd_config" <<CONFIG
Port $port
ListenAddress 127.0.0.1
HostKey $work/host_key
AuthorizedKeysFile $work/authorized_keys
PidFile none
UsePAM no
StrictModes no
PermitRootLogin yes
Subsystem sftp internal-sftp
CONFIG
[ "$(id -u)" -ne 0 ] || mkdir -p /run/sshd
/usr/sbin/sshd -D -e -f "$work/sshd_config" 2>"$work/log" &
server=$!
for ((i = 0; i < 200; i++)); do (: </dev/tcp/127.0.0.1/"$port") 2>/dev/null && break || sleep 0.05; done

head -c "${megabytes}M" /dev/urandom >"$work/file"

ours() { "$program" "$port" "$work/user_key" "$work/known_hosts" "$work/device" "$work/file"; }
theirs() {
  scp -q -F none -o UserKnownHostsFile="$work/known_hosts" -o IdentitiesOnly=yes -i "$work/user_key" -P "$port" \
    "$work/file" "127.0.0.1:$work/by_scp"
}
# In milliseconds.
timed() {
  local begin end
  begin=$(date +%s%N)
  "$@"
  end=$(date +%s%N)
  echo $(((end - begin) / 1000000))
}
median() { printf '%s\n' "$@" | sort -n | sed -n "$(((runs + 1) / 2))p"; }

a=() b=()
for ((i = 0; i < runs; i++)); do
  a+=("$(timed ours)")
  b+=("$(timed theirs)")
done
cmp "$work/file" "$work/device/bench/file"
awk -v ours="$(median "${a[@]}")" -v theirs="$(median "${b[@]}")" -v size="$megabytes" 'BEGIN {
  printf "%d MB, fernwick %d ms (%.0f MB/s), scp %d ms (%.0f MB/s), ratio %.2f (at most 1.25)\n",
    size, ours, size * 1000 / ours, theirs, size * 1000 / theirs, ours / theirs
  exit ours / theirs > 1.25
}'
