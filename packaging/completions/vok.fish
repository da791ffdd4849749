# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

# Completion of vok's options for fish.

# No name that a shell would read otherwise than as a word.
function __vok_repositories
    set -l files /etc/yum.repos.d/*.repo /etc/yum/repos.d/*.repo
    sed -n 's/^\[\([[:alnum:]_.:-]*\)\].*/\1/p' $files /etc/yum/yum.conf /etc/yum.conf /etc/dnf/dnf.conf /dev/null 2>/dev/null |
        string match -v main | sort -u
end

for program in vok vok-launch
    complete -c $program -f
    complete -c $program -s h -s H -l help -d "Display help"
    complete -c $program -s m -l mode -x -a "filter search" -d "Start with the mode"
    complete -c $program -s e -l regexp -x -d "Start with the expression"
    complete -c $program -s s -l state -x -a "updatable installable removable all" -d "Start with the state"
    complete -c $program -l duplicates -d "Start without duplicates"
    complete -c $program -s g -l groups -d "Start with groups"
    complete -c $program -s r -l repo-editor -d "Start with the repository editor"
    complete -c $program -s l -l log -d "Start with the log window"
    complete -c $program -l enablerepo -x -a "(__vok_repositories)" -d "Use the repository in this session"
    complete -c $program -l disablerepo -x -a "(__vok_repositories)" -d "Do not use the repository in this session"
end
