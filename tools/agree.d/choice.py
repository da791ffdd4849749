# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""Which rows are marked in a step."""

from window import GROUP, INSTALL, INSTALLABLE, INSTALLED, NONE, REMOVE, UPDATABLE, UPDATE

# Slow, large, or making everything else impossible.
_NEVER = {"heavy", "many-files", "slow-1", "slow-2", "slow-3", "busybox", "loud", "filesystem"}
_SELDOM = {"broken", "needs-broken", "stuck", "shunned", "needs-shunned", "enemy", "usurper", "unsigned",
           "damaged", "foreign-key", "needs-foreign", "vital", "vital-libs", "aster-release",
           "clash-left", "clash-right", "clash-calendar", "no-shell", "pins-old", "inquisitive"}
# Of several architectures, changing theirs, with a substitute, or newer in a repository of lower priority.
_OFTEN = {"libtwin", "libhalf", "libsolo", "twin-guest", "heron", "stork", "swift-data", "swallow-data",
          "mail-alpha", "mail-beta", "mail-reader", "hinge", "hinged", "kernel"}


def _odds(row):
    if row.name in _NEVER:
        return 0.0
    trouble = row.name in _SELDOM or row.name.startswith(("fail-", "needs-", "bad"))
    return 0.08 if trouble else 3.0 if row.name in _OFTEN else 1.0


def _some(random, rows, most):
    """Up to that many different rows."""
    chosen = []
    rows = [row for row in rows if _odds(row)]
    for _ in range(random.randint(1, most)):
        rows = [row for row in rows if row not in chosen]
        if not rows:
            break
        chosen += random.choices(rows, [_odds(row) for row in rows])
    return chosen


def marks(random, rows):
    """[(row, action)] of a step, at least one of which usually can be done."""
    packages = [row for row in rows if row.kind != GROUP]
    groups = [row for row in rows if row.kind == GROUP]
    updatable = [row for row in packages if row.state == UPDATABLE]
    installable = [row for row in packages if row.state == INSTALLABLE]
    there = [row for row in packages if row.state != INSTALLABLE]
    plan = random.choices(("updates", "installs", "removals", "mixed", "group", "group and more"),
                          (5, 4, 5, 5, 3, 2))[0]
    result = {}
    if plan in ("updates", "mixed") or plan == "group and more" and random.random() < 0.5:
        result.update((row, UPDATE) for row in _some(random, updatable, 4))
    if plan in ("installs", "mixed"):
        result.update((row, INSTALL) for row in _some(random, installable, 3))
    if plan in ("removals", "mixed") or plan == "group and more" and random.random() < 0.5:
        result.update((row, REMOVE) for row in _some(random, there, 2))
    if plan.startswith("group"):
        for row in random.sample(groups, min(len(groups), random.choice((1, 1, 1, 2)))):
            actions = {UPDATABLE: (UPDATE, UPDATE, REMOVE), INSTALLABLE: (INSTALL,),
                       INSTALLED: (REMOVE,)}[row.state]
            result[row] = random.choice(actions)
    return [(row, action) for row, action in result.items() if action != NONE]
