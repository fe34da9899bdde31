#compdef fernwick
# Completion of fernwick for zsh: install it as _fernwick in a folder of $fpath, such as /usr/share/zsh/vendor-completions.
# Commands, options and other names come from the program's own help.

# Offers the entries of a section of the help with their meanings: the tag, the section's heading, the program's arguments.
_fernwick_help() {
  local -a entries
  entries=(${(f)"$(fernwick "${@:3}" 2>/dev/null | awk -v heading="$2" '
    index($0, heading) == 1 { inside = 1; next }
    inside && /^  [^ ]/ {
      meaning = $0
      sub(/^  [^ ]+( [A-Z=]+)? +/, "", meaning)
      count = split($1, names, ",")
      for (i = 1; i <= count; i++) print names[i] ":" meaning
      entries++
    }
    inside && entries && /^$/ { exit }')"})
  local -a grouping
  [[ $1 == option* ]] && grouping=(-o)
  _describe $grouping -t $1 ${1%s} entries
}

_fernwick_targets() {
  local -a targets
  targets=(${${(f)"$(fernwick targets 2>/dev/null)"}%% *})
  _wanted targets expl 'design target' compadd -a targets
}

_fernwick_formats() {
  local formats=${${(M)${(f)"$(fernwick help $1 2>/dev/null)"}:#'  --format '*}##*: }
  _wanted formats expl format compadd ${=${formats//(,| or)/ }}
}

_fernwick_numbers() {
  local -a numbers
  numbers=(${${${(f)"$(fernwick explain 2>/dev/null)"}## #}%% *})
  _wanted numbers expl 'message' compadd -a numbers
}

_fernwick() {
  local verb action word previous=
  for word in ${words[2,CURRENT-1]}; do
    if [[ $word != -* && $previous != --(format|color|device|migrate|to|template|depfile|depfile-target|output|name|answer|code-page|source-root|seed|budget|filter|junit|files) ]]; then
      if [[ -z $verb ]]; then verb=$word; elif [[ -z $action ]]; then action=$word; fi
    fi
    previous=$word
  done

  case $previous in
    --format) _fernwick_formats $verb; return ;;
    --color) compadd auto always never; return ;;
    --source-root) _files -/; return ;;
    --device | --migrate | --to) _fernwick_targets; return ;;
    --template) _files -g '(#i)*.vbp'; return ;;
    --depfile) _files -g '(#i)*.d'; return ;;
    --output | --files) _files -/; return ;;
    --junit) _files -g '(#i)*.xml'; return ;;
    --name | --depfile-target | --seed | --budget | --filter) return ;;
    --answer) compset -P '*=' && compadd yes no cancel ok || _fernwick_help questions Questions help answers; return ;;
    --code-page) compadd 1250 1251 1252 932 936 949 950 65001; return ;;
  esac
  if [[ $PREFIX == -* ]]; then
    _fernwick_help options Options: ${verb:+help} ${verb:---help}
    return
  fi
  case $verb in
    "") _fernwick_help verbs Commands: --help ;;
    help) compadd answers; _fernwick_help verbs Commands: --help ;;
    completion) compadd bash zsh fish ;;
    convert | init | messages | run | test | upgrade) _files -g '(#i)*.vbp' ;;
    build | clean | info | validate | workbench) _files -g '(#i)*.(vbp|vbg)' ;;
    image) _files -g '(#i)*.qlx' ;;
    check) _files -g '(#i)*.(vbp|vbg|bas|cls|frm|ctl|pag|dsr|dob)' ;;
    deploy | package) _files -g '(#i)*.(vbp|vbg|qlpkg)' ;;
    explain) _fernwick_numbers ;;
    dependencies)
      [[ -z $action || ${action:l} == *.vbp ]] && compadd list add remove
      if [[ -z $action ]]; then _files -g '(#i)*.vbp'; else _files; fi ;;
    steps)
      case $previous in
        add | remove | move) compadd pre post ;;
        *)
          [[ -z $action || ${action:l} == *.vbp ]] && compadd list add remove move
          [[ -z $action || $action == list ]] && _files -g '(#i)*.vbp' ;;
      esac ;;
    trust)
      [[ -z $action ]] && compadd list add remove
      _files -g '(#i)*.vbp' ;;
    devices)
      case $action in
        "") compadd list add remove set ;;
        set) if [[ $previous == set ]]; then _fernwick_targets
             else compadd -S = Host Port User KeyFile Folder KnownHosts; fi ;;
        add | remove) _fernwick_targets ;;
      esac ;;
    settings)
      case $action in
        "") compadd list get set reset ;;
        list) _files -g '(#i)*.vbp' ;;
        *) if [[ ${previous:l} == targetdevice ]]; then _fernwick_targets
           else
             _fernwick_help settings Settings: help settings
             _files -g '(#i)*.vbp'
           fi ;;
      esac ;;
    registry)
      case $action in
        "") compadd get set delete export import ;;
        import) _files -g '(#i)*.reg' ;;
        *) compadd -S '\' HKEY_CURRENT_USER HKEY_LOCAL_MACHINE HKEY_CLASSES_ROOT ;;
      esac ;;
  esac
}

_fernwick "$@"
