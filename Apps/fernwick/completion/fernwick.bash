# Completion of fernwick for bash: source it, or install it as /usr/share/bash-completion/completions/fernwick.
# What only the program knows (targets, names of settings) is asked of the program.

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

_fernwick_targets() { _fernwick_words "$(fernwick targets 2>/dev/null | cut -d' ' -f1)"; }

_fernwick_settings() { _fernwick_words "$(fernwick help settings 2>/dev/null | sed -n '/^Settings:/,$s/^  \([A-Z][A-Za-z]*\) .*/\1/p')"; }

_fernwick() {
  local cur=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]} verb= action= word
  local extglob=$(shopt -p extglob)
  shopt -s extglob
  COMPREPLY=()
  for word in "${COMP_WORDS[@]:1:COMP_CWORD-1}"; do
    [[ $word == -* ]] && continue
    if [[ -z $verb ]]; then verb=$word; elif [[ -z $action ]]; then action=$word; fi
  done
  _fernwick_complete
  $extglob
}

_fernwick_complete() {
  case $previous in
    --format)
      case $verb in build | check | deploy | install-runtime | messages | package | validate)
        _fernwick_words "text json sarif" ;; explain) _fernwick_words "text json markdown" ;;
        *) _fernwick_words "text json" ;; esac
      return ;;
    --device) _fernwick_targets; return ;;
    --answer) _fernwick_words "$(fernwick help answers 2>/dev/null | sed -n 's/^  \([a-z-]*\) .*/\1=/p')"
      compopt -o nospace 2>/dev/null; return ;;
    --depfile) _fernwick_files "d"; return ;;
    --output) _fernwick_files "!(*)"; return ;;
    --name | --depfile-target) return ;;
    --code-page) _fernwick_words "1250 1251 1252 932 936 949 950 65001"; return ;;
  esac
  local common="--format --quiet --verbose --help" answers="--yes --no --answer"
  local outcome="--output --no-store --no-wait"
  if [[ $cur == -* ]]; then
    case $verb in
      "") _fernwick_words "--help --version" ;;
      build) _fernwick_words "$common $answers $outcome --device --depfile --depfile-target --dry-run --trust-steps --no-steps" ;;
      check) _fernwick_words "$common --name --code-page" ;;
      clean) _fernwick_words "$common --output --no-wait --dry-run" ;;
      dependencies) _fernwick_words "$common $answers --no-wait" ;;
      deploy) _fernwick_words "$common $answers $outcome --device --my-devices --trust-steps --no-steps" ;;
      install-runtime) _fernwick_words "$common --device --my-devices" ;;
      package) _fernwick_words "$common $answers $outcome --device --my-devices --list --verify --trust-steps --no-steps" ;;
      validate) _fernwick_words "$common $answers --device --forms --no-store --no-wait" ;;
      info) _fernwick_words "$common --verify" ;;
      settings) _fernwick_words "$common $answers --all --no-wait --dry-run" ;;
      registry) _fernwick_words "$common --bare --utf16 --dry-run" ;;
      help | workbench) _fernwick_words "--help" ;;
      *) _fernwick_words "$common" ;;
    esac
    return
  fi
  case $verb in
    "") _fernwick_words "build check clean dependencies deploy devices doctor explain help info install-runtime messages package registry settings targets validate version workbench" ;;
    messages) _fernwick_files "vbp" ;;
    build | clean | validate) _fernwick_files "vbp|vbg" ;;
    dependencies) [[ -z $action || ${action,,} == *.vbp ]] && _fernwick_words "list add remove"
      if [[ -z $action ]]; then _fernwick_files "vbp"; else _fernwick_files "*"; fi ;;
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
    info | workbench) _fernwick_files "vbp|vbg" ;;
    check) _fernwick_files "vbp|vbg|bas|cls|frm|ctl|pag|dsr|dob" ;;
    help) _fernwick_words "answers build check clean dependencies deploy devices doctor explain info install-runtime messages package registry settings targets validate version workbench" ;;
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
