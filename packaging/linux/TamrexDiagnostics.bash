# SPDX-License-Identifier: Apache-2.0
# Made by TamrexDiagnostics --print-completion.
_TamrexDiagnostics() {
    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}
    case $previous in
        --test) mapfile -t COMPREPLY < <(compgen -W 'p m' -- "$current"); return ;;
        --device) COMPREPLY=(); return ;;
        --listen) COMPREPLY=(); return ;;
        --microphone) COMPREPLY=(); return ;;
        --speak-through) COMPREPLY=(); return ;;
        --report) mapfile -t COMPREPLY < <(compgen -f -- "$current"); return ;;
        --verdict-file) mapfile -t COMPREPLY < <(compgen -f -- "$current"); return ;;
        --keep-audio) mapfile -t COMPREPLY < <(compgen -f -- "$current"); return ;;
        --screenshots) mapfile -t COMPREPLY < <(compgen -d -- "$current"); return ;;
        --mistype) COMPREPLY=(); return ;;
        --language) mapfile -t COMPREPLY < <(compgen -W 'pt_BR en_US es_ES fr_FR it_IT de_DE nl_NL zh_CN ja_JP' -- "$current"); return ;;
        --config) mapfile -t COMPREPLY < <(compgen -d -- "$current"); return ;;
        --simulate-event) COMPREPLY=(); return ;;
        --stop-after) COMPREPLY=(); return ;;
    esac
    mapfile -t COMPREPLY < <(compgen -W '--unattended --test --device --listen --microphone --speak-through --report --verdict-file --keep-audio --channel-check --screenshots --mistype --language --config --developer --simulate-event --stop-after --verbose --self-check --print-manual --print-completion --help --version' -- "$current")
}
complete -o filenames -F _TamrexDiagnostics TamrexDiagnostics
