# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""What rpm does although a resolved transaction does not say it: to rpm, whose packages of one name may
stand beside each other only where their programs differ in kind, an update of one architecture may
replace the other."""

import dnf.rpm.transaction
import rpm

from . import packages


def removals(base, elements):
    """The installed packages (DNF's) that rpm would remove beside `elements`, those of the transaction
    that base holds. All that is to be installed must be there as files."""
    planned = dnf.rpm.transaction.TransactionWrapper(base.conf.installroot)
    try:
        base.transaction._populate_rpm_ts(planned)
        gone = {"%s:%s-%s-%s.%s" % (one.E() or 0, one.N(), one.V(), one.R(), one.A())
                for one in planned if one.Type() == rpm.TR_REMOVED}
    finally:
        planned.close()
    gone -= {element.envra for element in elements if element.erases}
    return [pkg for pkg in base.sack.query().installed() if packages.envra(pkg) in gone] if gone else []
