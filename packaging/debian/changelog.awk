# Prints CHANGELOG.md as a Debian changelog. The AppStream data, which is read first, gives each release its date.
# Usage: awk -v maintainer='NAME <ADDRESS>' -f changelog.awk fernwick-workbench.metainfo.xml CHANGELOG.md

function trailer(    command, date) {
  if (version == "") return
  command = "LC_ALL=C date -u -R -d " dates[version]
  command | getline date
  close(command)
  printf "\n -- %s  %s\n", maintainer, date
}

/<release version=/ {
  split($0, part, "\"") # version="..." date="..."
  dates[part[2]] = part[4]
}

/^## / {
  trailer()
  if (version != "") print ""
  version = $2
  if (dates[version] == "") {
    print "CHANGELOG.md: the AppStream data has no release " version > "/dev/stderr"
    failed = 1
    exit 1
  }
  printf "fernwick (%s) bookworm; urgency=medium\n\n", version
}

version != "" && sub(/^- /, "  * ") { print; next }
version != "" && sub(/^  /, "    ") { print }

END { if (!failed) trailer() }
