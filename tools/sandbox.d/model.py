# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""A package of the sandbox as plain data, and its spec file."""

import dataclasses
import datetime
import pathlib

VENDOR = "Aster Project"
PACKAGER = "Aster Builders <builders@aster.example>"
FIRST_DAY = datetime.date(2023, 1, 2)


@dataclasses.dataclass(frozen=True)
class Package:
    """One version of one package. `evr` is [epoch:]version-release; relations are rpm's own texts.

    `files` maps absolute paths to a text (a regular file), bytes, or ("link", target); what lies
    below /usr/share/NAME is owned as a whole directory. `side_by_side` keeps the files of several
    versions apart; `encoding` is that of the texts in the header. `scripts` maps a scriptlet's section with
    its options, such as "post" or "pre -p <lua>", to its body; `triggers` is a list of (section
    with its condition, body). `key` names the signing key: "aster", "foundry", "none" for an
    unsigned package, "damaged" for one whose payload is altered after it was signed. `installed`
    says that a new root has this version. `arch` "src" makes a source package, in a repository of
    binary ones.
    """

    name: str
    evr: str
    repo: str
    arch: str = "noarch"
    summary: str = ""
    description: str = ""
    group: str = "Applications/System"
    license: str = "MIT"
    url: str = ""
    requires: tuple = ()
    recommends: tuple = ()
    provides: tuple = ()
    obsoletes: tuple = ()
    conflicts: tuple = ()
    prefixes: tuple = ()
    files: dict = dataclasses.field(default_factory=dict)
    configs: dict = dataclasses.field(default_factory=dict)
    ghosts: tuple = ()
    scripts: dict = dataclasses.field(default_factory=dict)
    triggers: tuple = ()
    changelog: tuple = ()
    many_files: int = 0
    big_file: int = 0
    siblings: int = 0
    side_by_side: bool = False
    encoding: str = "utf-8"
    key: str = "aster"
    vendor: str = ""
    installed: bool = False

    @property
    def epoch(self):
        return self.evr.partition(":")[0] if ":" in self.evr else ""

    @property
    def version(self):
        return self.evr.rpartition(":")[2].partition("-")[0]

    @property
    def release(self):
        return self.evr.rpartition(":")[2].partition("-")[2]

    @property
    def nevra(self):
        """The designation without a zero epoch, as dnf takes it on its command line."""
        return f"{self.name}-{self.evr}.{self.arch}"

    @property
    def filename(self):
        return f"{self.name}-{self.version}-{self.release}.{self.arch}.rpm"


def escape(text):
    """A text that a spec file's macro expansion leaves as it is."""
    return text.replace("%", "%%")


def payload(package, top):
    """Writes the package's files below `top`; returns the lines of its files section."""
    own = f"/usr/share/{package.name}"
    files = {f"{own}/about": f"{package.name} {package.evr} ({package.arch})\n"}
    if package.arch in ("x86_64", "i686"):
        directory = "lib64" if package.arch == "x86_64" else "lib"
        unit = f"{package.name}-{package.evr}" if package.side_by_side else package.name
        files = {f"/usr/{directory}/{unit}/module": f"{package.nevra}\n"}
    for number in range(package.many_files):
        # rpmbuild knows this ending and asks libmagic about none of these files: 10 s less.
        files[f"{own}/{number // 200:03}/Module{number:05}.pm"] = f"{number}\n"
    files.update(package.files)
    lines = []
    for path, content in {**files, **package.configs}.items():
        target = pathlib.Path(top + path)
        target.parent.mkdir(parents=True, exist_ok=True)
        if isinstance(content, tuple):
            target.symlink_to(content[1])
        elif isinstance(content, bytes):
            target.write_bytes(content)
            target.chmod(0o755)
        else:
            target.write_text(content, encoding="utf-8")
        if path in package.configs:
            lines.append(f'%config(noreplace) "{path}"')
        elif not path.startswith(own + "/"):
            lines.append(f'"{path}"')
    if package.big_file:
        target = pathlib.Path(f"{top}{own}/big")
        target.parent.mkdir(parents=True, exist_ok=True)
        with target.open("wb") as stream:
            stream.truncate(package.big_file)
    if pathlib.Path(top + own).exists():
        lines.append(own)
    lines += [f'%ghost "{path}"' for path in package.ghosts]
    return lines


def default_changelog(package):
    """Two entries that differ from package to package."""
    day = FIRST_DAY + datetime.timedelta(days=sum(package.name.encode()) % 400)
    older = day - datetime.timedelta(days=90)
    return ((day, "Ada Stone <ada@aster.example>", package.evr,
             [f"Update {package.name} to {package.version}", "Fix a leak when the input is empty"]),
            (older, "Bo Lind <bo@aster.example>", "0.9-1", [f"First package of {package.name}"]))


def header(package):
    """The tags of the preamble."""
    article = f"The {package.name} package"
    tags = [("Name", package.name), ("Epoch", package.epoch), ("Version", package.version),
            ("Release", package.release), ("Summary", package.summary or article),
            ("Group", package.group), ("License", package.license),
            ("URL", package.url or f"https://aster.example/{package.name}/"),
            ("Vendor", package.vendor or (VENDOR if package.key != "foundry" else "Foundry Ltd.")),
            ("Packager", PACKAGER), ("AutoReqProv", "no")]
    if package.arch in ("noarch", "src"):
        tags.append(("BuildArch", "noarch"))
    for tag, values in (("Requires", package.requires), ("Recommends", package.recommends),
                        ("Provides", package.provides), ("Obsoletes", package.obsoletes),
                        ("Conflicts", package.conflicts), ("Prefix", package.prefixes)):
        tags += [(tag, value) for value in values]
    return [f"{tag}: {escape(value)}" for tag, value in tags if value]


def siblings(package):
    """Sub-packages NAME-001, NAME-002, ... with one small file each, for bulk."""
    lines, copies = [], []
    for number in range(1, package.siblings + 1):
        name = f"{package.name}-{number:03}"
        lines += [f"%package -n {name}", f"Summary: Number {number} of the {package.name} packages",
                  f"%description -n {name}", f"One small file, number {number}.",
                  f"%files -n {name}", f"/usr/share/{name}"]
        copies += [f"mkdir -p %{{buildroot}}/usr/share/{name}",
                   f"echo {number} >%{{buildroot}}/usr/share/{name}/about"]
    return lines, copies


def spec(package, payload_lines):
    """The whole spec file, for a build root that holds the payload."""
    text = header(package)
    extra, copies = siblings(package)
    text += ["%description", escape(package.description or f"This is {package.name}, a package of "
                                    "the Aster system.\nIt holds a few small files."), ""]
    text += ["%install"] + copies
    for section, body in package.scripts.items():
        text += [f"%{section}", escape(body)]
    for section, body in package.triggers:
        text += [f"%{section}", escape(body)]
    if not package.siblings:
        text += ["%files", "%defattr(-,root,root,-)"] + payload_lines
    text += extra + ["%changelog"]
    for day, author, evr, notes in package.changelog or default_changelog(package):
        text.append(f"* {day.strftime('%a %b %d %Y')} {escape(author)} - {evr}")
        text += [f"- {escape(note)}" for note in notes] + [""]
    return "\n".join(text) + "\n"
