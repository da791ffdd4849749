# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

# Completion of vok's options for bash.

_vok_repositories() {
    sed -n 's/^\[\([^]]*\)\].*/\1/p' /etc/yum.repos.d/*.repo /etc/yum/repos.d/*.repo \
        /etc/yum/yum.conf /etc/yum.conf /etc/dnf/dnf.conf 2>/dev/null | grep -vx main | sort -u
}

_vok() {
    local cur=${COMP_WORDS[COMP_CWORD]} option=${COMP_WORDS[COMP_CWORD - 1]}
    # "=" is a word of its own here.
    if [ "$cur" = = ]; then
        cur=
    elif [ "$option" = = ]; then
        option=${COMP_WORDS[COMP_CWORD - 2]}
    fi
    local words
    case $option in
        -m | --mode) words="filter search" ;;
        -s | --state) words="updatable installable removable all" ;;
        --enablerepo | --disablerepo) words=$(_vok_repositories) ;;
        -e | --regexp) return ;;
        *)
            words="--help --mode= --regexp= --state= --duplicates --groups --repo-editor --log
                --enablerepo= --disablerepo="
            ;;
    esac
    mapfile -t COMPREPLY < <(compgen -W "$words" -- "$cur")
    case ${COMPREPLY[*]} in *=) compopt -o nospace ;; esac
}

complete -F _vok vok vok-launch
