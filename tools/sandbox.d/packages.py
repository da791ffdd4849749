# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""The packages that behave, and the base system. README.md says what each is for."""

import pathlib
import shutil

import texts
from table import Table

APPLETS = ("sh", "cat", "chmod", "cp", "date", "echo", "env", "expr", "false", "grep", "head", "ln",
           "ls", "mkdir", "mv", "printf", "rm", "sed", "seq", "sleep", "sort", "test", "touch", "tr",
           "true", "yes")


def busybox():
    """The files of the package that gives scriptlets their shell."""
    program = shutil.which("busybox") or "/bin/busybox"
    files = {"/bin/busybox": pathlib.Path(program).read_bytes()}
    files.update({f"/bin/{applet}": ("link", "busybox") for applet in APPLETS})
    return files


def system(table):
    """What every root has and what keeps it standing."""
    release = {"/etc/os-release": 'NAME="Aster Linux"\nID=aster\nVERSION_ID=9\n'
                                  'PRETTY_NAME="Aster Linux 9 (Borealis)"\n',
               "/etc/aster-release": "Aster Linux release 9 (Borealis)\n"}
    protected = {"/etc/dnf/protected.d/aster-release.conf": "aster-release\n"}
    table.add("aster-release", base="9-1*", updates="9-3", files=release, configs=protected,
              provides=("system-release = 9", "system-release(releasever) = 9", "redhat-release = 9"),
              summary="Aster Linux release files", group="System Environment/Base")
    table.add("filesystem", base="3.1-1*", summary="The basic directory layout",
              group="System Environment/Base", arch="x86_64",
              files={"/var/lib/filesystem/made": "yes\n"})
    table.add("busybox", base="1.35-1*", arch="x86_64", files=busybox(), license="GPL-2.0-only",
              summary="The shell and the small tools of this system",
              group="System Environment/Shells")
    table.add("vital", base="1.0-1*", updates="1.1-1", group="System Environment/Base",
              configs={"/etc/dnf/protected.d/vital.conf": "vital\n"}, requires=("vital-libs",),
              summary="A protected package: it may be updated, never removed")
    table.add("vital-libs", base="1.0-1*", updates="1.1-1", arch="x86_64",
              summary="What the protected package stands on", group="System Environment/Libraries")
    table.add("kernel", base="6.1.0-1* 6.1.0-5*", updates="6.1.0-9", arch="x86_64", side_by_side=True,
              summary="The kernel, kept in several versions", group="System Environment/Kernel",
              license="GPL-2.0-only", url="https://kernel.aster.example/")


def tools(table):
    """Everyday packages with and without updates."""
    for name, summary, group, now, new in (
            ("archiver", "Packs and unpacks archives", "Applications/Archiving", "4.2-1", "4.3-1"),
            ("calendar", "Shows days and appointments", "Applications/Productivity", "2.0-3", ""),
            ("clock", "Shows the time in several zones", "Applications/Productivity", "1.0-1", "1.0-2"),
            ("compass", "Draws maps of hiking trails", "Applications/Engineering", "0.8-1", ""),
            ("dictionary", "Words and their meanings", "Applications/Text", "9.1-1", "9.10-1"),
            ("notebook", "Keeps notes", "Applications/Editors", "3.1~rc2-1", "3.1-1"),
            ("plotter", "Plots functions", "Applications/Engineering", "7.0-1", ""),
            ("spellcheck", "Finds spelling mistakes", "Applications/Text", "1.9-1", "2.0-1")):
        table.add(name, base=f"{now}*", **({"updates": new} if new else {}), arch="x86_64",
                  summary=summary, group=group)
    for name, summary, group in (
            ("abacus", "A small calculator", "Applications/Engineering"),
            ("chess", "Plays chess against you", "Amusements/Games"),
            ("lantern", "Shows slides", "Applications/Multimedia"),
            ("mandolin", "Tunes string instruments", "Applications/Multimedia"),
            ("typewriter", "A plain editor", "Applications/Editors")):
        table.add(name, extras="1.0-1 1.2-1", arch="x86_64", summary=summary, group=group)
    table.add("weather", base="1.0-1*", updates="1.1-1 1.2-1", extras="1.2-2",
              summary="Forecasts from several stations, in several versions at once",
              configs={"/etc/weather.conf": "station=here\n"},
              conflicts=("storm < 1",), provides=("forecast = 3", "config(weather)"),
              recommends=("compass",), license="GPL-3.0-or-later and MIT")
    table.add("twice", base="1.0-1", extras="1.0-1", summary="The same version in two repositories")
    table.add("epochal", base="5.0-1*", updates="1:1.2-1",
              summary="Its newest version is smaller and has an epoch")
    table.add("orphan", local="1.0-1*", summary="Installed by hand, in no repository")
    table.add("orphan-notes", local="1.0-1*", requires=("orphan",),
              summary="Installed by hand, needs another such package")
    table.add("relocatable", extras="1.0-1", prefixes=("/opt/relocatable",),
              files={"/opt/relocatable/file": "here\n"}, summary="Can be moved below another directory")
    table.add("confy", base="1.0-1*", configs={"/etc/confy.conf": "colour=red\n"},
              ghosts=("/var/log/confy.log",), summary="Has a configuration file to keep")
    table.add("confy", updates="2.0-1", configs={"/etc/confy.conf": "colour=blue\n"},
              ghosts=("/var/log/confy.log",), summary="Has a configuration file to keep")


def architectures(table):
    """Packages that change or share architectures."""
    table.add("swift-data", base="1.0-1*", summary="Was noarch, its update is x86_64")
    table.add("swift-data", updates="2.0-1", arch="x86_64", summary="Was noarch, its update is x86_64")
    table.add("swallow-data", base="1.0-1*", arch="x86_64", summary="Was x86_64, its update is noarch")
    table.add("swallow-data", updates="2.0-1", summary="Was x86_64, its update is noarch")
    table.add("libtwin", base="1.0-1*", updates="1.1-1", arch="x86_64 i686",
              group="System Environment/Libraries",
              summary="Installed for two architectures, updated together")
    table.add("twin-guest", base="1.0-1*", arch="i686", requires=("libtwin(x86-32)",),
              summary="Needs one of two architectures of a library")
    table.add("heron", base="1.0-1*", summary="Was noarch, its update is i686")
    table.add("heron", updates="2.0-1", arch="i686", summary="Was noarch, its update is i686")
    table.add("stork", base="1.0-1*", arch="i686", summary="Was i686, its update is noarch")
    table.add("stork", updates="2.0-1", summary="Was i686, its update is noarch")
    table.add("libsolo", base="1.0-1", updates="1.1-1", arch="x86_64 i686",
              group="System Environment/Libraries", summary="Offered for two architectures")
    table.add("libhalf", base="1.0-1*", arch="x86_64", group="System Environment/Libraries",
              summary="Installed for x86_64, offered for i686 too")
    table.add("libhalf", base="1.0-1", updates="1.1-1", arch="i686",
              group="System Environment/Libraries", summary="Only its i686 side has an update")


def relations(table):
    """Dependencies of every kind."""
    chain = ("chain-one", "chain-two", "chain-three", "chain-four")
    for name, needs in zip(chain, chain[1:] + ("",)):
        table.add(name, extras="1.0-1", requires=(f"{needs} >= 1.0",) if needs else (),
                  summary="A link of a dependency chain, four deep")
    stack = ("stack-roof", "stack-wall", "stack-floor", "stack-ground")
    for name, needs in zip(stack, stack[1:] + ("",)):
        table.add(name, base="1.0-1*", updates="1.1-1", requires=(f"{needs} >= 1.0",) if needs else (),
                  summary="A storey of an installed stack: removing the ground takes all")
    table.add("bellows", base="2.0-1*", summary="Its update needs a package that is not installed")
    table.add("bellows", updates="3.0-1", requires=("airpipe >= 1",),
              summary="Its update needs a package that is not installed")
    table.add("airpipe", updates="1.0-1", summary="Comes along with the update of bellows")
    table.add("lockstep", base="1.0-1*", requires=("lockstep-libs >= 1.0",),
              summary="Its update takes an update of another package along")
    table.add("lockstep", updates="2.0-1", requires=("lockstep-libs = 2.0-1",),
              summary="Its update takes an update of another package along")
    table.add("lockstep-libs", base="1.0-1*", updates="2.0-1",
              summary="Has to be as new as lockstep")
    table.add("hinge", base="1.0-1*", extras="2.0-1",
              summary="Newer in another repository, where a package needs that")
    table.add("hinged", extras="1.0-1", requires=("hinge >= 2",),
              summary="Takes an update from another repository along")
    table.add("oldname", base="1.0-1*", summary="Replaced by a package of another name")
    table.add("newname", updates="2.0-1", obsoletes=("oldname < 2",), provides=("oldname = 2.0",),
              summary="Replaces a package of another name")
    table.add("oldtwin", base="1.0-1*", summary="Replaced by a package that is installed too")
    table.add("merged", base="1.0-1*", summary="Takes over another installed package")
    table.add("merged", updates="2.0-1", obsoletes=("oldtwin < 2",),
              summary="Takes over another installed package")
    table.add("mail-alpha", base="1.0-1*", provides=("mail-server",), conflicts=("mail-beta",),
              summary="A mail server, not beside the other one")
    table.add("mail-beta", base="1.0-1", provides=("mail-server",), conflicts=("mail-alpha",),
              summary="A mail server, not beside the other one")
    table.add("mail-reader", base="1.0-1*", requires=("mail-server",),
              summary="Needs either mail server")
    for name in ("font-serif", "font-sans"):
        table.add(name, extras="1.0-1", provides=("any-font",), group="User Interface/X",
                  summary="One of two that satisfy the same need")
    table.add("poster", extras="1.0-1", requires=("any-font",), summary="Needs any font")
    table.add("libpin", base="1.0-1", updates="2.0-1*", arch="x86_64",
              summary="Installed in its newest version")
    table.add("pins-old", extras="1.0-1", requires=("libpin = 1.0",),
              summary="Needs an older version of an installed package: a downgrade")
    table.add("richly", extras="1.0-1", requires=("(any-font if poster)", "libpin >= 1.0"),
              recommends=("chess",), summary="Has a rich dependency and a weak one")


def origins(table):
    """Packages of several vendors, sources among the packages, members of a group that exclude one
    another."""
    table.add("easel", base="1.0-1*", updates="1.1-1", summary="A rival offers a newer version of it")
    table.add("easel", extras="2.0-1", vendor="Rival Ltd.",
              summary="A rival offers a newer version of it")
    table.add("palette", base="1.0-1*", summary="Only a rival offers an update of it")
    table.add("palette", updates="2.0-1", vendor="Rival Ltd.",
              summary="Only a rival offers an update of it")
    table.add("typewriter", extras="1.3-1", arch="src", summary="A plain editor")
    table.add("quarry", extras="1.0-1", arch="src", summary="Offered as source only")
    table.add("quill", base="1.0-1", summary="Replaced by another package of its group")
    table.add("fountain-pen", extras="1.0-1", obsoletes=("quill < 2",), provides=("quill = 2",),
              summary="Replaces another package of its group")


def suites(table):
    """Packages whose group makes them suites."""
    table.add("office-suite", base="1.0-1*", updates="2.0-1", group="Suite",
              requires=("notebook", "calendar", "spellcheck"), summary="All that an office needs")
    table.add("games-suite", extras="1.0-1", group="Suite", requires=("chess", "mandolin"),
              summary="All that an evening needs")


def texts_and_sizes(table):
    """Texts that are hard to show, and sheer amounts."""
    table.add("polyglot", base="1.0-1*", updates="1.1-1", summary=texts.SCRIPTS["Latin"],
              description=texts.all_scripts(), changelog=texts.long_changelog(40))
    for name, script in (("text-arabic", "Arabic"), ("text-chinese", "Chinese"),
                         ("text-hebrew", "Hebrew"), ("text-symbols", "symbols")):
        table.add(name, extras="1.0-1", summary=texts.SCRIPTS[script],
                  description=texts.SCRIPTS[script] * 3)
    table.add("latin-text", local="1.0-1*", extras="1.1-1", encoding="latin-1",
              summary="Smørrebrød in Latin-1", description="Façade, naïve, Ångström.")
    table.add("markup", base="1.0-1*", summary=texts.MARKUP, description=texts.MARKUP * 3,
              license="<i>MIT</i>", url="https://aster.example/?a=1&b=<2>\"'",
              files={"/usr/share/markup/<b>&amp;": "odd\n", "/usr/share/markup/two words": "odd\n"})
    table.add("longwinded", base="1.0-1*", updates="1.1-1", summary=texts.LONG_LINE.strip(),
              description=f"{texts.LONG_WORD}\n\n{texts.LONG_LINE}\n\n" + "A short line.\n" * 300,
              files={"/usr/share/longwinded/" + "deep/" * 40 + "n" * 200: "far\n"})
    table.add("chronicle", base="1.200-1*", updates="1.400-1", changelog=texts.long_changelog(400),
              summary="Has a changelog of hundreds of entries")
    table.add("many-files", extras="1.0-1", many_files=20000, summary="Holds 20,000 files")
    table.add("heavy", extras="1.0-1", big_file=64 << 20, summary="Holds one file of 64 MiB")
    table.add("bulk", bulk="1.0-1", siblings=300, summary="Three hundred small packages")


def table():
    """All packages of the sandbox."""
    import troubles
    result = Table()
    for part in (system, tools, architectures, relations, origins, suites, texts_and_sizes):
        part(result)
    troubles.fill(result)
    return result.packages
