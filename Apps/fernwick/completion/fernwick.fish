# Completion of fernwick for fish: install it in /usr/share/fish/vendor_completions.d or in ~/.config/fish/completions.
# Commands, options and other names come from the program's own help.

# The entries of a section of the help with their meanings: the section's heading, the program's arguments.
function __fernwick_help
    fernwick $argv[2..] 2>/dev/null | awk -v heading="$argv[1]" '
        index($0, heading) == 1 { inside = 1; next }
        inside && /^  [^ ]/ {
            meaning = $0
            sub(/^  [^ ]+( [A-Z=]+)? +/, "", meaning)
            count = split($1, names, ",")
            for (i = 1; i <= count; i++) print names[i] "\t" meaning
            entries++
        }
        inside && entries && /^$/ { exit }'
end

function __fernwick_targets
    fernwick targets 2>/dev/null | string replace -r ' .*' ''
end

function __fernwick_complete
    set -l verb
    set -l action
    set -l previous
    for word in (commandline -opc)[2..]
        if not string match -q -- '-*' $word
            and not contains -- "$previous" --format --color --device --migrate --to --template --depfile --depfile-target --output --name --answer --code-page --source-root --seed --budget --filter --junit --files
            if test -z "$verb"
                set verb $word
            else if test -z "$action"
                set action $word
            end
        end
        set previous $word
    end

    switch "$previous"
        case --format
            fernwick help $verb 2>/dev/null | string replace -rf '^  --format .*: ' '' | string split -n ', ' | string split ' or '
            return
        case --color
            printf '%s\n' auto always never
            return
        case --source-root
            __fish_complete_directories (commandline -ct)
            return
        case --device --migrate --to
            __fernwick_targets
            return
        case --template
            __fish_complete_suffix .vbp
            return
        case --depfile
            __fish_complete_suffix .d
            return
        case --output --files
            __fish_complete_directories
            return
        case --junit
            __fish_complete_suffix .xml
            return
        case --name --depfile-target --seed --budget --filter
            return
        case --answer
            __fernwick_help Questions help answers | string replace \t =\t
            return
        case --code-page
            printf '%s\n' 1250 1251 1252 932 936 949 950 65001
            return
    end
    if string match -q -- '-*' (commandline -ct)
        if test -z "$verb"
            __fernwick_help Options: --help
        else
            __fernwick_help Options: help $verb
        end
        return
    end
    switch "$verb"
        case ''
            __fernwick_help Commands: --help
        case help
            echo answers
            __fernwick_help Commands: --help
        case completion
            printf '%s\n' bash zsh fish
        case convert init messages run test upgrade
            __fish_complete_suffix .vbp
        case build clean info validate workbench
            __fish_complete_suffix .vbp
            __fish_complete_suffix .vbg
        case image
            __fish_complete_suffix .qlx
        case check
            __fish_complete_path (commandline -ct)
        case deploy package
            __fish_complete_suffix .vbp
            __fish_complete_suffix .vbg
            __fish_complete_suffix .qlpkg
        case explain
            fernwick explain 2>/dev/null | string replace -r '^ *(\d+) +\S+ +' '$1\t'
        case dependencies
            if test -z "$action"; or string match -qi '*.vbp' -- $action
                printf '%s\n' list add remove
            end
            if test -z "$action"
                __fish_complete_suffix .vbp
            else
                __fish_complete_path (commandline -ct)
            end
        case steps
            switch "$previous"
                case add remove move
                    printf '%s\n' pre post
                case '*'
                    if test -z "$action"; or string match -qi '*.vbp' -- $action
                        printf '%s\n' list add remove move
                    end
                    if test -z "$action"; or test "$action" = list
                        __fish_complete_suffix .vbp
                    end
            end
        case trust
            if test -z "$action"
                printf '%s\n' list add remove
            end
            __fish_complete_suffix .vbp
        case devices
            switch "$action"
                case ''
                    printf '%s\n' list add remove set
                case set
                    if test "$previous" = set
                        __fernwick_targets
                    else
                        printf '%s\n' Host= Port= User= KeyFile= Folder= KnownHosts=
                    end
                case add remove
                    __fernwick_targets
            end
        case settings
            switch "$action"
                case ''
                    printf '%s\n' list get set reset
                case list
                    __fish_complete_suffix .vbp
                case '*'
                    if string match -qi targetdevice -- $previous
                        __fernwick_targets
                    else
                        __fernwick_help Settings: help settings
                        __fish_complete_suffix .vbp
                    end
            end
        case registry
            switch "$action"
                case ''
                    printf '%s\n' get set delete export import
                case import
                    __fish_complete_suffix .reg
                case '*'
                    printf '%s\n' HKEY_CURRENT_USER HKEY_LOCAL_MACHINE HKEY_CLASSES_ROOT
            end
    end
end

complete -c fernwick -f -a '(__fernwick_complete)'
