# SPDX-License-Identifier: Apache-2.0
# Made by TamrexDiagnosticsCLI --print-completion.
_TamrexDiagnosticsCLI() {
    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]} command='' word
    local options='-Maudio --help --version --gnu-exit --print-manual --print-completion'
    case $previous in
        --config) mapfile -t COMPREPLY < <(compgen -d -- "$current"); return ;;
        --test) mapfile -t COMPREPLY < <(compgen -W 'p m' -- "$current"); return ;;
        --device) COMPREPLY=(); return ;;
        --listen) COMPREPLY=(); return ;;
        --microphone) COMPREPLY=(); return ;;
        --speak-through) COMPREPLY=(); return ;;
        --report) mapfile -t COMPREPLY < <(compgen -f -- "$current"); return ;;
        --keep-audio) mapfile -t COMPREPLY < <(compgen -f -- "$current"); return ;;
        --reports) mapfile -t COMPREPLY < <(compgen -d -- "$current"); return ;;
        --screenshots) mapfile -t COMPREPLY < <(compgen -d -- "$current"); return ;;
        --language) mapfile -t COMPREPLY < <(compgen -W 'pt_BR en_US es_ES fr_FR it_IT de_DE nl_NL zh_CN ja_JP' -- "$current"); return ;;
        -o | --output) mapfile -t COMPREPLY < <(compgen -f -- "$current"); return ;;
        --folder) mapfile -t COMPREPLY < <(compgen -d -- "$current"); return ;;
    esac
    for word in "${COMP_WORDS[@]:1:COMP_CWORD - 1}"; do
        case $word in list | info | run | report | clips) command=$word; break ;; esac
    done
    case $command in
        list) options='--json --config --verbose --gnu-exit --print-manual --print-completion --help --version'; [[ $current == -* ]] || { COMPREPLY=(); return; } ;;
        info) options='--json --self-check --verbose --gnu-exit --print-manual --print-completion --help --version'; [[ $current == -* ]] || { COMPREPLY=(); return; } ;;
        run) options='--config --test --device --listen --microphone --speak-through --report --keep-audio --all-languages --reports --channel-check --screenshots --allow-virtual --language --verbose --gnu-exit --print-manual --print-completion --help --version'; [[ $current == -* ]] || { COMPREPLY=(); return; } ;;
        report) options='--output --verbose --gnu-exit --print-manual --print-completion --help --version'; [[ $current == -* ]] || { mapfile -t COMPREPLY < <(compgen -f -- "$current"); return; } ;;
        clips) options='--json --language --folder --verbose --gnu-exit --print-manual --print-completion --help --version'; [[ $current == -* ]] || { mapfile -t COMPREPLY < <(compgen -W 'verify' -- "$current"); return; } ;;
        *) [[ $current == -* ]] || options='list info run report clips' ;;
    esac
    mapfile -t COMPREPLY < <(compgen -W "$options" -- "$current")
}
complete -o filenames -F _TamrexDiagnosticsCLI TamrexDiagnosticsCLI
