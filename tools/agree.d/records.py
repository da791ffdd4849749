# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""What a root holds: its packages, and what DNF's records say of them and of the groups."""

import contextlib
import pathlib
import sqlite3
import subprocess

import root

_HISTORY = pathlib.Path("var/lib/dnf/history.sqlite")
_ITEMS = """
    select t.id, i.id, i.action, i.reason, i.state, p.repoid, r.name || '-' || r.epoch || ':' || r.version
        || '-' || r.release || '.' || r.arch, g.groupid, g.pkg_types, g.item_id
    from trans t left join trans_item i on i.trans_id = t.id left join repo p on p.id = i.repo_id
        left join rpm r on r.item_id = i.item_id left join comps_group g on g.item_id = i.item_id
    where t.id > ?"""
_REASONS = {0: "unknown", 1: "dependency", 2: "user", 3: "clean", 4: "weak", 5: "group"}
_ACTIONS = dict(enumerate(("", "install", "downgrade", "downgraded", "obsolete", "obsoleted", "upgrade",
                           "upgraded", "remove", "reinstall", "reinstalled", "reason change")))


def rpm(place, *arguments):
    done = subprocess.run(root.in_root(root.rpm_command(place, arguments)), check=True, text=True,
                          env=root.environment(place), stdout=subprocess.PIPE, stdin=subprocess.DEVNULL)
    return done.stdout


def packages(place):
    """The installed packages, {"name-epoch:version-release.arch"}; keys by their identifiers."""
    return set(rpm(place, "-qa", "--qf", "%{name}-%{epochnum}:%{version}-%{release}.%{arch}\\n").split())


def last_transaction(place):
    """The number of the last transaction in DNF's records."""
    with _open(place) as records:
        return records.execute("select coalesce(max(id), 0) from trans").fetchone()[0]


def transactions(place, after):
    """The transactions since that number, each a sorted list of texts."""
    result = {}
    with _open(place) as records:
        names, replaced = {}, []
        for trans, item, action, reason, state, repo, package, group, types, key in \
                records.execute(_ITEMS, (after,)):
            lines = result.setdefault(trans, [])
            if package is None and group is None:
                continue
            kind = f"{_ACTIONS.get(action, action)} {package or 'group ' + group}"
            names[item] = kind
            line = f"{kind} ({_REASONS.get(reason, reason)}, {repo}, state {state})"
            if group is not None:
                members = records.execute("select name, installed, pkg_type from comps_group_package "
                                          "where group_id = ?", (key,))
                line += f" kinds {types}: {sorted(members)}"
            lines.append(line)
            replaced += [(trans, item, by) for by, in records.execute(
                "select by_trans_item_id from item_replaced_by where trans_item_id = ?", (item,))]
        for trans, item, by in replaced:
            result[trans].append(f"{names[item]} replaced by {names.get(by, by)}")
    return [sorted(lines) for _, lines in sorted(result.items())]


def groups(place):
    """The identifiers of the groups that are recorded as installed."""
    with _open(place) as records:
        last = records.execute("select g.groupid, i.action from trans_item i join comps_group g "
                               "on g.item_id = i.item_id order by i.id")
        return {name for name, action in dict(last).items() if _ACTIONS[action] != "remove"}


def _open(place):
    return contextlib.closing(sqlite3.connect(f"file:{place / _HISTORY}?mode=ro", uri=True))
