# Completion of fernwick for bash: source it, or install it as /usr/share/bash-completion/completions/fernwick.
# Commands, options and other names come from the program's own help.

_fernwick_files() { # extensions, separated by "|"
  local IFS=$'\n'
  COMPREPLY+=($(compgen -d -S / -- "$cur"))
  local file
  for file in $(compgen -f -- "$cur"); do
    [[ -f $file && ${file,,} == *.@($1) ]] && COMPREPLY+=("$file")
  done
  compopt -o nospace -o filenames 2>/dev/null
}

_fernwick_words() { COMPREPLY+=($(compgen -W "$1" -- "$cur")); }

# Offers the names in a section of the help: the section's heading, the program's arguments.
_fernwick_help() {
  _fernwick_words "$(fernwick "${@:2}" 2>/dev/null | awk -v heading="$1" '
    index($0, heading) == 1 { inside = 1; next }
    inside && /^  [^ ]/ { gsub(",", " ", $1); print $1; entries++ }
    inside && entries && /^$/ { exit }')"
}

_fernwick_targets() { _fernwick_words "$(fernwick targets 2>/dev/null | cut -d' ' -f1)"; }

_fernwick_settings() { _fernwick_help Settings: help settings; }

_fernwick_formats() { _fernwick_words "$(fernwick help $verb 2>/dev/null | sed -n 's/^  --format .*: //p' | sed 's/,\| or / /g')"; }

_fernwick_options='--format|--color|--device|--migrate|--to|--template|--depfile|--depfile-target|--output|--name|--answer|--code-page|--source-root|--seed|--budget|--filter|--junit|--files' # with a value

_fernwick() {
  local cur=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]} verb= action= word
  local extglob=$(shopt -p extglob)
  shopt -s extglob
  COMPREPLY=()
  local before=
  for word in "${COMP_WORDS[@]:1:COMP_CWORD-1}"; do
    if [[ $word != -* && $before != @($_fernwick_options) ]]; then
      if [[ -z $verb ]]; then verb=$word; elif [[ -z $action ]]; then action=$word; fi
    fi
    before=$word
  done
  _fernwick_complete
  $extglob
}

_fernwick_complete() {
  case $previous in
    --format) _fernwick_formats; return ;;
    --color) _fernwick_words "auto always never"; return ;;
    --source-root) COMPREPLY+=($(compgen -d -S / -- "$cur")); compopt -o nospace 2>/dev/null; return ;;
    --device | --migrate | --to) _fernwick_targets; return ;;
    --template) _fernwick_files "vbp"; return ;;
    --answer) _fernwick_words "$(fernwick help answers 2>/dev/null | sed -n 's/^  \([a-z-]*\) .*/\1=/p')"
      compopt -o nospace 2>/dev/null; return ;;
    --depfile) _fernwick_files "d"; return ;;
    --junit) _fernwick_files "xml"; return ;;
    --output | --files) _fernwick_files "!(*)"; return ;;
    --name | --depfile-target | --seed | --budget | --filter) return ;;
    --code-page) _fernwick_words "1250 1251 1252 932 936 949 950 65001"; return ;;
  esac
  if [[ $cur == -* ]]; then
    if [[ -z $verb ]]; then _fernwick_help Options: --help; else _fernwick_help Options: help "$verb"; fi
    return
  fi
  case $verb in
    "") _fernwick_help Commands: --help ;;
    convert | init | messages | run | test | upgrade) _fernwick_files "vbp" ;;
    build | clean | validate) _fernwick_files "vbp|vbg" ;;
    dependencies) [[ -z $action || ${action,,} == *.vbp ]] && _fernwick_words "list add remove"
      if [[ -z $action ]]; then _fernwick_files "vbp"; else _fernwick_files "*"; fi ;;
    steps) case $previous in
        add | remove | move) _fernwick_words "pre post" ;;
        *) [[ -z $action || ${action,,} == *.vbp ]] && _fernwick_words "list add remove move"
          [[ -z $action || $action == list ]] && _fernwick_files "vbp" ;;
      esac ;;
    trust) [[ -z $action ]] && _fernwick_words "list add remove"
      _fernwick_files "vbp" ;;
    deploy | package) _fernwick_files "vbp|vbg|qlpkg" ;;
    devices)
      case $action in
        "") _fernwick_words "list add remove set" ;;
        set) if [[ $previous == set ]]; then _fernwick_targets
             else
               _fernwick_words "Host= Port= User= KeyFile= Folder= KnownHosts="
               compopt -o nospace 2>/dev/null
             fi ;;
        add | remove) _fernwick_targets ;;
      esac ;;
    explain) _fernwick_words "$(fernwick explain 2>/dev/null | sed 's/^ *\([0-9]*\) .*/\1/')" ;;
    image) if [[ -z $action ]]; then _fernwick_files "qlx"; fi ;;
    info | workbench) _fernwick_files "vbp|vbg" ;;
    check) _fernwick_files "vbp|vbg|bas|cls|frm|ctl|pag|dsr|dob" ;;
    help) _fernwick_words answers; _fernwick_help Commands: --help ;;
    completion) _fernwick_words "bash zsh fish" ;;
    settings)
      case $action in
        "") _fernwick_words "list get set reset" ;;
        list) _fernwick_files "vbp" ;;
        *) if [[ ${previous,,} == targetdevice ]]; then _fernwick_targets
           else
             _fernwick_settings
             _fernwick_files "vbp"
           fi ;;
      esac ;;
    registry)
      case $action in
        "") _fernwick_words "get set delete export import" ;;
        import) _fernwick_files "reg" ;;
        *) _fernwick_words 'HKEY_CURRENT_USER HKEY_LOCAL_MACHINE HKEY_CLASSES_ROOT' ;;
      esac ;;
  esac
}

complete -F _fernwick fernwick
