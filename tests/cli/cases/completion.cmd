. "$FERNWICK_SOURCE/Apps/fernwick/completion/fernwick.bash"
complete_line() {
  local line="$*"
  read -r -a COMP_WORDS <<<"$line"
  [[ $line == *' ' ]] && COMP_WORDS+=("")
  COMP_CWORD=$((${#COMP_WORDS[@]} - 1)) COMPREPLY=()
  _fernwick
  echo "\$ $line<Tab>"
  printf '  %s\n' "${COMPREPLY[@]}" | sort
}
sample HelloWorld
mkdir other && touch other/x.vbp a.bas b.txt
complete_line 'fernwick '
complete_line 'fernwick s'
complete_line 'fernwick build '
complete_line 'fernwick build --d'
complete_line 'fernwick build --device '
complete_line 'fernwick build --device Pocket'
complete_line 'fernwick build --format '
complete_line 'fernwick info --format '
complete_line 'fernwick build --answer d'
complete_line 'fernwick build HelloWorld/'
complete_line 'fernwick check '
complete_line 'fernwick settings '
complete_line 'fernwick settings get '
complete_line 'fernwick settings set Default'
complete_line 'fernwick settings set TargetDevice P'
complete_line 'fernwick registry '
complete_line 'fernwick devices '
complete_line 'fernwick devices add P'
complete_line 'fernwick devices set L'
complete_line 'fernwick devices set LinuxHandheld-ARM K'
complete_line 'fernwick explain 820'
complete_line 'fernwick explain --format '
complete_line 'fernwick dependencies '
complete_line 'fernwick dependencies HelloWorld/HelloWorld.vbp a'
complete_line 'fernwick dependencies add b'
complete_line 'fernwick help '
