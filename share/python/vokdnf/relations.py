# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""What other packages have to do with one. Packages are DNF's objects."""


def required_by(sack, pkg):
    """The installed packages that require something of the package."""
    return [one for one in sack.query().installed().filterm(requires=[pkg]) if one != pkg]


def replaced(sack, pkg):
    """The installed packages of other names that the package obsoletes."""
    names = [str(relation).split(" ")[0] for relation in pkg.obsoletes]
    if not names:
        return []
    itself = sack.query().filterm(pkg=[pkg])
    return [one for one in sack.query().installed().filterm(name=names)
            if one.name != pkg.name and itself.filter(obsoletes=[one])]
