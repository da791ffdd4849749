# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

# Completion of vok's options for bash, by the functions of bash-completion, which loads it.

# No name that a shell would read otherwise than as a word.
_vok_repositories() {
    sed -n 's/^\[\([[:alnum:]_.:-]*\)\].*/\1/p' /etc/yum.repos.d/*.repo /etc/yum/repos.d/*.repo \
        /etc/yum/yum.conf /etc/yum.conf /etc/dnf/dnf.conf 2>/dev/null | grep -vx main | sort -u
}

_vok() {
    # shellcheck disable=SC2034
    local cur prev words cword split
    _init_completion -s -n : || return
    local choices
    case $prev in
        -m | --mode) choices="filter search" ;;
        -s | --state) choices="updatable installable removable all" ;;
        --enablerepo | --disablerepo) choices=$(_vok_repositories) ;;
        -e | --regexp) return ;;
        *)
            choices="--help --mode= --regexp= --state= --duplicates --groups --repo-editor --log
                --enablerepo= --disablerepo="
            ;;
    esac
    mapfile -t COMPREPLY < <(compgen -W "$choices" -- "$cur")
    __ltrim_colon_completions "$cur"
    case ${COMPREPLY[*]} in *=) compopt -o nospace ;; esac
}

complete -F _vok vok vok-launch
