# Prints CHANGELOG.md as a Debian changelog. The AppStream data, which is read first, gives each release its date.
# Usage: awk -v maintainer='NAME <ADDRESS>' -f changelog.awk fernwick-workbench.metainfo.xml CHANGELOG.md

# An entry of the list, in lines of at most 78 columns.
function print_entry(    words, count, i, line) {
  count = split(entry, words, " ")
  line = "  *"
  for (i = 1; i <= count; i++) {
    if (length(line) + 1 + length(words[i]) > 78) {
      print line
      line = "   "
    }
    line = line " " words[i]
  }
  if (count) print line
  entry = ""
}

function print_trailer(    command, date) {
  print_entry()
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
  print_trailer()
  if (version != "") print ""
  version = $2
  if (dates[version] == "") {
    print "CHANGELOG.md: the AppStream data has no release " version > "/dev/stderr"
    failed = 1
    exit 1
  }
  printf "fernwick (%s) bookworm; urgency=medium\n\n", version
  next
}

version != "" && sub(/^- /, "") {
  print_entry()
  entry = $0
  next
}

entry != "" && /^  / { entry = entry " " $0 }

END { if (!failed) print_trailer() }
