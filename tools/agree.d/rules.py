# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""The differences between VOK and dnf that are meant, each with its reason."""

import collections
import re

from mirror import KEEP, group
from window import GROUP, INSTALL, INSTALLABLE, REMOVE, UPDATABLE, UPDATE

# `lines` are the configuration lines of the root, `marks` is [(row, action)], `kinds` those of the boxes.
Step = collections.namedtuple("Step", "lines rows marks kinds")
# `explains(line, step)`: a line of a difference.
Rule = collections.namedtuple("Rule", "name why explains")
# `more(rows, marks)`: the marks that dnf needs besides to do what VOK does.
Translation = collections.namedtuple("Translation", "name why more")

# What another vendor offers, and what is left without that.
_RIVALS = {"updates: only DNF easel.noarch 2.0-1", "updates: only DNF palette.noarch 2.0-1",
           "updates: only VOK easel.noarch 1.1-1"}


def _of_groups(rows, marks, action, kinds):
    """The rows of the members of the groups marked so."""
    names = {name for row, one in marks if row.kind == GROUP and one == action
             for kind, name, *_ in group(row)[1] if kind in kinds}
    return [row for row in rows if row.kind != GROUP and row.name in names]


_REQUIRED = {"mandatory", "default"}
_ALL = {*_REQUIRED, "optional", "conditional"}


def twins(rows, marks):
    """The installed rows that are not marked and share a name with one that is removed."""
    marked = {row for row, _ in marks}
    removed = {row.name for row, action in marks if action == REMOVE and row.kind != GROUP}
    return [row for row in rows if row.name in removed and row not in marked and row.kind != GROUP
            and row.state != INSTALLABLE]


TRANSLATIONS = [
    Translation("group removal", "VOK removes all members of a group, dnf those that came with it.",
                lambda rows, marks: [(row, REMOVE) for row in _of_groups(rows, marks, REMOVE, _ALL)
                                     if row.state != INSTALLABLE]),
    Translation("group installation", "VOK updates the members that are there, dnf leaves them.",
                lambda rows, marks: [(row, UPDATE) for row in _of_groups(rows, marks, INSTALL, _ALL - {"optional"})
                                     if row.state == UPDATABLE]),
    Translation("group update", "VOK updates optional members too, and installs required ones that are "
                "missing; dnf does what the group has new.",
                lambda rows, marks: [(row, UPDATE) for row in _of_groups(rows, marks, UPDATE, _ALL)
                                     if row.state == UPDATABLE]
                + [(row, INSTALL) for row in _of_groups(rows, marks, UPDATE, _REQUIRED)
                   if row.state == INSTALLABLE]),
    Translation("kept architecture", "Beside other marks a removal leaves the other architecture to VOK, while "
                "dnf's shell removes it unless it is told to keep it.",
                lambda rows, marks: [(row, KEEP) for row in twins(rows, marks)]
                if {action for _, action in marks} != {REMOVE} else []),
]


def _removed_member(line, step, action, ours, theirs):
    """A member of a group with that action is removed, for different reasons."""
    names = [row.name for row in _of_groups(step.rows, step.marks, action, _ALL)]
    found = re.match(r"records: only (VOK|DNF) remove (.+)-\S+-\S+ \((group|user),", line)
    return found and found[2] in names and (found[1], found[3]) in (("VOK", ours), ("DNF", theirs))


def _kept_no_longer(line, step):
    names = [row.name for row in _of_groups(step.rows, step.marks, REMOVE, _ALL)]
    found = re.match(r"records: only DNF reason change (.+)-\S+-\S+ \(", line)
    return found and found[1] in names


EXCLUDES = Translation("excludes", "dnf hides installed packages that the main file excludes, VOK shows and "
                       "removes them; so the same is said for each repository. In a step with removals those "
                       "that are not marked are hidden.", None)
_REPLACED = {"quill": "fountain-pen", "oldname": "newname", "oldtwin": "merged"}


def _replaced(line, step):
    marked = {row.name for row, action in step.marks if action == INSTALL}.intersection(_REPLACED)
    return any(re.search(rf"\b({name}|{_REPLACED[name]})-\d", line) for name in marked)


def _other_family(line, step):
    found = re.fullmatch(r"updates: only DNF (\S+)\.(\w+) (\S+)", line)
    return found and any((row.name, row.arch, row.version) == found.groups() and row.state == INSTALLABLE
                         for row in step.rows) \
        and any(row.name == found[1] and row.state != INSTALLABLE for row in step.rows)


def _shared(line, step):
    groups = [(group(row), action) for row, action in step.marks if row.kind == GROUP]
    removed, wanted = ({name for (_, members), action in groups if (action == REMOVE) is removing
                        for _, name, *_ in members} for removing in (True, False))
    shared = removed & wanted
    named = any(re.search(rf"\b{name}-\d", line) for name in shared)
    return named or bool(shared) and any(f"group {identifier} " in line for (identifier, _), _ in groups)


def _without_packages(line, step):
    groups = [group(row) for row, action in step.marks if row.kind == GROUP and action == INSTALL]
    names = {name for _, members in groups for _, name, *_ in members}
    if not {"best", "allow_vendor_change"} <= set(step.lines) or names.isdisjoint(("easel", "palette")):
        return False
    return "only VOK" in line and any(f" {name}-" in line for name in names) \
        or any(f"group {identifier} " in line for identifier, _ in groups)


def _unkept(line, step):
    names = {row.name for row, action in step.marks if row.kind != GROUP and action == REMOVE}
    if "multilib_policy" not in step.lines or all(action == REMOVE for _, action in step.marks):
        return False
    names.update({"twin-guest"} if "libtwin" in names else ())
    # DNF notes the reason of the first installed package again when another package of a removed name stays.
    return any(f" {name}-" in line for name in names) and bool(re.search("only VOK|only DNF remove", line)) \
        or bool(names) and "only VOK reason change" in line


def _removed_beside(line, step):
    members = {name for row, action in step.marks if row.kind == GROUP and action != REMOVE
               for _, name, *_ in group(row)[1]}
    removed = {row.name for row, action in step.marks if row.kind != GROUP and action == REMOVE} & members
    if removed and "best" in step.lines:  # dnf meets "conflicting requests" and installs the group's record alone
        return True
    return any(re.search(rf"\b{name}-\d", line) for name in removed) \
        or bool(removed) and bool(re.match("records: only (VOK|DNF) install group ", line))


RULES = [
    Rule("vendor list", "dnf lists upgrades that a change of vendor forbids, and does not take them.",
         lambda line, step: "allow_vendor_change" in step.lines and line in _RIVALS),
    Rule("other family", "dnf lists what comes for another family of architectures as an upgrade, VOK as an "
         "installation.", _other_family),
    Rule("reason of a removed member", "A member that somebody had installed goes with the group by VOK, "
         "and is recorded so; dnf is told to remove it by itself.",
         lambda line, step: _removed_member(line, step, REMOVE, "group", "user")),
    Rule("member removed by itself", "A member that is removed while its group is installed is recorded as removed "
         "for the group by dnf, for its own mark by VOK.",
         lambda line, step: _removed_member(line, step, INSTALL, "user", "group")),
    Rule("reason before removal", "dnf notes that a removed group no longer keeps a member, and then removes "
         "it for another mark.", _kept_no_longer),
    Rule("shared member", "Of two groups with a member, one is removed and one installed: VOK removes what "
         "is there, dnf installs it again.", _shared),
    Rule("unlisted removal", "VOK records what rpm removes beside the transaction, once it was agreed to; "
         "dnf never learns it.",
         lambda line, step: "unlisted" in step.kinds and line.startswith("records: only VOK remove ")),
    Rule("twin by upgrade", "dnf's upgrade of one architecture fails where the installation of the same "
         "package takes both.",
         lambda line, step: line.startswith("dnf upgrade leaves out libtwin")),
    Rule("installed as marked", "A package that another one on offer replaces is installed as marked; dnf "
         "installs what replaces it.", _replaced),
    Rule("member removed beside its group", "A member that is marked for removal by itself beside the installation of its "
         "group goes in VOK; dnf installs it again.", _removed_beside),
    Rule("architecture not kept", "With multilib_policy=all dnf does nothing for the installation of an installed package, "
         "so that it cannot be told to keep an architecture beside a removed one.", _unkept),
    Rule("group without packages", "With best=1, if a change of vendor forbids the newest version of an installed member, "
         "dnf installs the group's record and none of its packages; VOK installs the other members.", _without_packages),
    Rule("either member", "With obsoletes=0 one of two members that exclude each other is left out; which "
         "one goes by the order of the marks.",
         lambda line, step: "obsoletes" in step.lines and bool(re.search("quill|fountain-pen", line))),
]
