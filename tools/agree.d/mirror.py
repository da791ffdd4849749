# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""DNF's side: the same marks on a copy of the root, removals alone by `dnf remove`, others by one run of
`dnf shell`."""

import subprocess
import tempfile

import comps
import records
import root
from window import GROUP, INSTALL, INSTALLED, REMOVE, UPDATE

# What VOK sets whatever the configuration says, and what it protects when nothing else is configured.
_OPTIONS = ["--setopt=clean_requirements_on_remove=0", "--setopt=strict=1"]
_FOUNDATIONS = {"dnf", "filesystem", "glibc", "rpm", "setup", "systemd", "yum"}
KEEP = "keep"  # an action of the mirror alone: the installed package stays
_VERBS = {UPDATE: "upgrade", INSTALL: "install", KEEP: "install", REMOVE: "remove"}
_HEADER = "Available Upgrades\n"
_END = "Leaving Shell"
# The library that reads the groups loses a blank beside markup.
_GROUPS = {"".join(name.split()): (identifier, members)
           for identifier, names, _, _, members in (*comps.GROUPS, *comps.EXTRA_GROUPS)
           for name in names.values()}


def group(row):
    """The identifier of a group's row, and its members, each (kind, name, ...)."""
    return _GROUPS["".join(row.name.split())]


def installed(row):
    """[(version, architecture)] of what is installed of a row."""
    return list(((row.version, row.arch),) * (row.state == INSTALLED) + row.chain)


def designations(row, action):
    """What a mark on a row means: the new package, or all installed versions."""
    if action not in (REMOVE, KEEP):
        return [f"{row.name}-{row.version}.{row.arch}"]
    return [f"{row.name}-{version}.{arch}" for version, arch in installed(row)]


class Mirror:
    """A root on which dnf does what is marked in the window. `upgrades` is what it lists as such:
    {"name.arch version"}."""

    def __init__(self, place):
        self.place = place
        self.output = ""
        self.upgrades = set()
        self.run([])

    def _dnf(self, *arguments):
        """The output of dnf."""
        command = root.dnf_command(self.place, ["-y", *_OPTIONS, *arguments])
        for index, word in enumerate(command):
            name, _, value = word.partition("protected_packages=")
            if value:
                both = sorted(_FOUNDATIONS.union(value.split(",")))
                command[index] = f"{name}protected_packages={','.join(both)}"
        done = subprocess.run(root.in_root(command), env=dict(root.environment(self.place), LC_ALL="C.UTF-8"),
                              text=True, errors="replace", stdin=subprocess.DEVNULL,
                              stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
        return done.stdout

    def run(self, lines, *options):
        """Runs lines of dnf's shell, and lists the upgrades that are left."""
        with tempfile.NamedTemporaryFile("w", suffix=".shell") as script:
            script.write("\n".join([*lines, "list --upgrades", "quit"]) + "\n")
            script.flush()
            self.output = self._dnf(*options, "shell", script.name)
        words = self.output.rpartition(_HEADER)[2].partition(_END)[0].split() \
            if _HEADER in self.output else []
        self.output = self.output.partition(_HEADER)[0]
        self.upgrades = {f"{words[at]} {words[at + 1]}" for at in range(0, len(words) - 2, 3)}

    def become(self, place):
        """Makes the packages and records those of another root; the configuration stays."""
        files = [self.place / "etc/yum.conf", *self.place.glob("etc/yum.repos.d/*")]
        texts = [path.read_bytes() for path in files]
        root.copy(place, self.place)
        for path, text in zip(files, texts):
            path.write_bytes(text)
        self.run([])

    def remove(self, rows, *options):
        """Does what `dnf remove` makes of rows. With a group among them it takes a shell, which then knows the
        installed packages alone, as `dnf remove` does."""
        if any(row.kind == GROUP for row in rows):
            self.run([*self._lines([(row, REMOVE) for row in rows], ""), "run"], "--disablerepo=*", *options)
            output = self.output
        else:
            names = [name for row in rows for name in designations(row, REMOVE)]
            output = self._dnf("--noautoremove", *options, "remove", *names)
        self.run([])
        self.output = output

    def apply(self, marks, *options, upgrading=False):
        """Does [(row, action)]. With `upgrading`, returns of the updates those that `dnf upgrade` would not
        bring, as row texts "name.arch version"."""
        lines = [*self._lines(marks, "install"), "run"]
        if upgrading:
            lines = [*self._lines(marks, "upgrade"), "transaction list", "transaction reset", *lines]
        self.run(lines, *options)
        if not upgrading:
            return []
        listed = self.output.partition("Transaction Summary")[0].partition("\nSkipping ")[0].split()
        found = {tuple(listed[at:at + 3]) for at in range(len(listed))}
        return [f"{row.name}.{row.arch} {row.version}" for row, action in marks if row.kind != GROUP
                and action == UPDATE and (row.name, row.arch, row.version) not in found]

    def can(self, marks, *options):
        """Whether dnf finds a way to do that, exactly as marked; nothing is changed."""
        self.run([*self._lines(marks, "install"), "transaction list", "transaction reset"], *options)
        return "Transaction Summary" in self.output

    def _lines(self, marks, updating):
        lines = []
        recorded = records.groups(self.place)
        for action, verb in _VERBS.items():
            rows = [row for row, one in marks if one == action]
            names = [name for row in rows if row.kind != GROUP for name in designations(row, action)]
            if names:
                lines.append(" ".join([updating if action == UPDATE else verb, *names]))
            for identifier in (group(row)[0] for row in rows if row.kind == GROUP):
                # What is there without being recorded cannot be upgraded by dnf.
                known = identifier in recorded or action != UPDATE
                lines.append(f"group {verb if known else 'install'} {identifier}")
        return lines
