"""What a resolved transaction holds, in the lists that the program shows and weighs."""

from libdnf import transaction as kinds

from . import packages, report

NAMES = ("updated", "installed", "removed", "obsoleted", "depupdated", "depinstalled", "depremoved")
UPGRADE = kinds.TransactionItemAction_UPGRADE
INSTALLING = (kinds.TransactionItemAction_INSTALL, kinds.TransactionItemAction_OBSOLETE,
              kinds.TransactionItemAction_DOWNGRADE, kinds.TransactionItemAction_REINSTALL)
REMOVE = kinds.TransactionItemAction_REMOVE
OBSOLETED = kinds.TransactionItemAction_OBSOLETED
# The erased side of an installation, which has no line of its own.
REPLACED = (kinds.TransactionItemAction_UPGRADED, kinds.TransactionItemAction_DOWNGRADED,
            kinds.TransactionItemAction_REINSTALLED)
# The element that stands for one step of rpm; DNF lists a reinstallation twice.
ERASING = (REMOVE, OBSOLETED) + REPLACED


def elements(transaction):
    """The items of a transaction of DNF that stand for a package: a removal also changes the reasons of
    what it leaves without a need, in items that have none."""
    return [item for item in transaction
            if item.action != kinds.TransactionItemAction_REASON_CHANGE]


class Member:
    """One package of a transaction. Texts: `repoid`, `epoch`, `ver`, `rel`; `pkgtup` is (name, arch,
    epoch, version, release); `po` the package object; `relatedto` pairs of such a tuple and a relation,
    of which "obsoletedby" is used."""

    __slots__ = ("pkgtup", "repoid", "po", "epoch", "ver", "rel", "relatedto")

    def __init__(self, po, relatedto=()):
        self.po = po
        self.pkgtup = po.pkgtup
        self.repoid = po.repoid
        self.epoch, self.ver, self.rel = self.pkgtup[2:]
        self.relatedto = list(relatedto)


class TsInfo:
    """The seven lists of Members, as attributes; empty before a transaction is resolved."""

    def __init__(self):
        for name in NAMES:
            setattr(self, name, [])

    def makelists(self):
        """The lists as a tuple, in the order of NAMES."""
        return tuple(getattr(self, name) for name in NAMES)

    def fill(self, items, marks, has_row):
        """Sorts transaction items of DNF into the lists. `marks` has `installs`, `updates` and
        `removes`, sets of what the user marked (epoch:name-version-release.arch); `has_row` tells of a
        DNF package whether an update row stands for it."""
        for name in NAMES:
            getattr(self, name).clear()
        for item in items:
            name = _list_of(item, marks, has_row)
            if name:
                relations = [(_tuple_of(new), "obsoletedby") for new in item._item.getReplacedBy()] \
                    if item.action == OBSOLETED else ()
                getattr(self, name).append(Member(packages.Package(item.pkg), relations))


def _tuple_of(item):
    """The package tuple of an item of DNF's history."""
    rpm = item.getRPMItem()
    return tuple(report.clean(part) for part in (rpm.getName(), rpm.getArch(), rpm.getEpoch(),
                                                 rpm.getVersion(), rpm.getRelease()))


def _list_of(item, marks, has_row):
    action, key = item.action, packages.envra(item.pkg) if item.action not in REPLACED else None
    if action == UPGRADE:
        return "updated" if key in marks.updates or key in marks.installs else "depupdated"
    if action in INSTALLING:
        if key in marks.updates:
            return "updated"
        if key in marks.installs:
            return "installed"
        return "depupdated" if has_row(item.pkg) and action == INSTALLING[0] else "depinstalled"
    if action == REMOVE:
        return "removed" if key in marks.removes else "depremoved"
    return "obsoleted" if action == OBSOLETED else None
