# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""The ways in which a root is configured."""

import fnmatch
import re

# Of each line one root has at most one.
LINES = {
    "installonly_limit": ("main", ("2", "2", "4")),
    "base priority": ("base", ("10",)),
    "updates priority": ("updates", ("10", "150")),
    "extras priority": ("extras", ("120", "50")),
    "exclude": ("main", ("kernel*", "weather libtwin chess", "stack-ground vital-libs",
                         "notebook-3.1-1 *-data", "mail-reader twin-guest stack-roof *suite")),
    "updates exclude": ("updates", ("weather* stack-ground notebook", "*.i686 merged")),
    "includepkgs": ("main", ("kernel weather chess notebook stack-* *twin* office-suite newname easel",)),
    "updates includepkgs": ("updates", ("stack-* kernel vital* lockstep* newname aster-release",)),
    "allow_vendor_change": ("main", ("0", "0")),
    "clean_requirements_on_remove": ("main", ("1",)),
    "best": ("main", ("1",)),
    "strict": ("main", ("0",)),
    "obsoletes": ("main", ("0",)),
    "install_weak_deps": ("main", ("0",)),
    "multilib_policy": ("main", ("all",)),
}
_OF_PACKAGES = ("exclude", "includepkgs")
_REPOSITORIES = ("base", "updates", "extras")


def spreads(lines):
    """Whether `spread` makes a difference to them."""
    return any(option in lines for option in _OF_PACKAGES)


def hides(lines, name, version, arch):
    """Whether what the main file says of packages excludes that one."""
    forms = (name, f"{name}.{arch}", f"{name}-{version}", f"{name}-{version}.{arch}")

    def matches(option):
        return any(fnmatch.fnmatchcase(form, pattern) for form in forms for pattern in lines[option].split())

    return "exclude" in lines and matches("exclude") or "includepkgs" in lines and not matches("includepkgs")


def choose(random):
    """{name: value} of a few lines; now and then of none."""
    names = random.sample(sorted(LINES), random.choice((0, 1, 1, 1, 2, 2, 3)))
    return {name: random.choice(LINES[name][1]) for name in names}


def configure(place, lines, spread=False):
    """Writes the lines into the root's configuration. With `spread`, what the main file says of packages
    is said for each repository instead: dnf then hides no installed packages."""
    for name, value in lines.items():
        section, option = LINES[name][0], name.split()[-1]
        spreads = spread and section == "main" and option in _OF_PACKAGES
        for one in _REPOSITORIES if spreads else (section,):
            for path in (place / "etc/yum.conf", *sorted(place.glob("etc/yum.repos.d/*.repo"))):
                text = path.read_text(encoding="utf-8")
                path.write_text(re.sub(rf"(?ms)^\[{one}\]$.*?(?=^\[|\Z)",
                                       lambda found: _with_line(found[0], option, value), text),
                                encoding="utf-8")


def _with_line(section, option, value):
    """The text of a section with an option set; packages come beside those that are named there."""
    line = re.search(rf"(?m)^{option}\s*=\s*(.*)\n", section)
    if line:
        section = section.replace(line[0], "")
        if option in _OF_PACKAGES:
            value = f"{line[1]} {value}"
    return section.replace("]\n", f"]\n{option}={value}\n", 1)
