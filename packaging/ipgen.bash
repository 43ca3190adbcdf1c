# bash completion for ipgen
# shellcheck shell=bash

# Offers those of the names, one a line of the input, that go on from "$1" as it is typed. Names
# are data: compgen -W would expand them.
_ipgen_names()
{
    local typed name names=()
    typed=$(printf %s "$1" | sed 's/\\\(.\)/\1/g')
    mapfile -t names
    COMPREPLY=()
    for name in "${names[@]}"; do
        if [[ $name == "$typed"* ]]; then
            COMPREPLY+=("$(printf %q "$name")")
        fi
    done
}

# The names of the presets, out of JSON.
_ipgen_presets()
{
    local name
    ipgen presets --json 2>/dev/null | sed -n 's/^ *"name": "\(.*\)",$/\1/p' |
        sed 's/\\\\/\\x5c/g; s/\\"/"/g' |
        while IFS= read -r name; do
            printf '%b\n' "$name"
        done
}

_ipgen()
{
    local cur prev words cword
    _init_completion -n : || return
    local command="" i
    for ((i = 1; i < cword; i++)); do
        case ${words[i]} in
            --plugin-dir) ((i++)) ;;
            -*) ;;
            *) command=${words[i]}; break ;;
        esac
    done
    case $prev in
        --plugin-dir | --out)
            _filedir -d
            return
            ;;
        --script | --report | --record | --batch | --config | --svg | --png)
            _filedir
            return
            ;;
        --device)
            _ipgen_names "$cur" < <(ipgen devices 2>/dev/null | awk 'NR > 1 { print $1 }')
            return
            ;;
        --ip)
            _ipgen_names "$cur" < <(ipgen catalog 2>/dev/null | grep '^[^ ]')
            return
            ;;
        --preset)
            _ipgen_names "$cur" < <(_ipgen_presets)
            return
            ;;
        --set | --jobs)
            return
            ;;
    esac
    local options
    case $command in
        "") options="--help --version --plugin-dir" ;;
        catalog) options="--help --plugin-dir --json" ;;
        devices) options="--help --plugin-dir --json" ;;
        presets) options="--help --plugin-dir --ip --device --json" ;;
        new) options="--help --plugin-dir --device" ;;
        list) options="--help --plugin-dir --json" ;;
        create) options="--help --plugin-dir --ip --preset --set --script --report --show --record" ;;
        open) options="--help --plugin-dir --preset --set --script --report --show --record" ;;
        check) options="--help --plugin-dir --json" ;;
        generate) options="--help --plugin-dir --netlist --quiet --json" ;;
        example) options="--help --plugin-dir --out --json" ;;
        resources) options="--help --plugin-dir --json" ;;
        figure) options="--help --plugin-dir --json --svg --png" ;;
        remove) options="--help --plugin-dir" ;;
        emit) options="--help --plugin-dir --batch --config --device --out --report --jobs --ip --json" ;;
        gui) options="--help --plugin-dir" ;;
        diff) options="--help --plugin-dir --json" ;;
        summary) options="--help --plugin-dir --json --markdown" ;;
        *) return ;;
    esac
    if [[ $cur == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$options" -- "$cur")
        return
    fi
    case $command in
        "")
            mapfile -t COMPREPLY < <(compgen -W "catalog devices presets new list create open check generate example resources figure remove emit gui diff summary" -- "$cur")
            return
            ;;
        catalog | devices | presets | emit)
            return
            ;;
        diff)
            _filedir
            return
            ;;
    esac
    # The project first, then its instances.
    local project="" word
    for word in "${words[@]:i+1:cword-i-1}"; do
        if [[ $word != -* && -f $word/project.json ]]; then
            project=$word
        fi
    done
    if [[ -z $project ]]; then
        _filedir -d
    elif [[ $command != new && $command != gui ]]; then
        _ipgen_names "$cur" < <(ipgen list "$project" 2>/dev/null | awk 'NR > 1 { print $1 }')
    fi
} &&
    complete -F _ipgen ipgen
