# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""Roots: made from the package set, copied, and what runs on them."""

import json
import os
import pathlib
import shutil
import sys

import builder
import config
import packages

MARKER = ".vok-sandbox"
RELEASE, BASEARCH = "9", "x86_64"
# The files that hold the root's own path.
CONFIGURED = ("etc/yum.conf", "etc/dnf/dnf.conf", "etc/yum.repos.d/*", "etc/yum/repos.d/*")


class Refused(Exception):
    """What was asked for would touch something that is not ours, or makes no sense."""


def read_marker(place):
    """The path that a root was made for; refuses a directory that is no sandbox."""
    try:
        marker = json.loads((place / MARKER).read_text(encoding="utf-8"))
        return marker["root"]
    except (OSError, ValueError, TypeError, KeyError):
        raise Refused(f"{place} is not a sandbox") from None


def write_marker(place, root):
    (place / MARKER).write_text(json.dumps({"root": str(root)}) + "\n", encoding="utf-8")


def clear(place):
    """Removes a former sandbox at `place`, the marker last; refuses anything else."""
    if place.is_symlink() or (place.exists() and not (place / MARKER).is_file()):
        raise Refused(f"{place} exists and was not made by this program: choose another directory")
    if not place.exists():
        return
    read_marker(place)
    inside = [str(path) for path in place.iterdir() if path.name != MARKER]
    if inside:
        builder.run(["rm", "-rf", "--one-file-system", "--", *inside])
    (place / MARKER).unlink()
    place.rmdir()


def in_root(command, environment=None):
    """The command with what it needs to change its root directory and to own files."""
    if os.geteuid():
        command = ["unshare", "--user", "--map-root-user", "--", *command]
    return command


def environment(place, share=None):
    """The environment of a command that works on a root. The user's own configuration and caches
    stay out of it, the display and its authority stay."""
    result = {key: value for key, value in os.environ.items()
              if key not in ("XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME")}
    authority = pathlib.Path(os.environ.get("HOME", "/nonexistent"), ".Xauthority")
    if "XAUTHORITY" not in result and authority.exists():
        result["XAUTHORITY"] = str(authority)
    result.update(VOKROOT=str(place), HOME=str(place / "root"))
    if not result.get("VOKSHARE"):
        checkout = builder.HERE.parent.parent
        result["VOKSHARE"] = str(checkout / "build" / "release" / "share" / "vok")
    return result


def rpm_command(place, arguments):
    return ["rpm", f"--root={place}", *arguments]


def dnf_command(place, arguments):
    """dnf with everything taken from the root, its list of protected packages included."""
    protected = {"dnf"}
    for listing in [*place.glob("etc/yum/protected.d/*.conf"), *place.glob("etc/dnf/protected.d/*.conf")]:
        protected.update(listing.read_text(encoding="utf-8").split())
    return ["dnf", f"--installroot={place}", f"--config={place}/etc/yum.conf",
            f"--setopt=reposdir={place}/etc/yum.repos.d", f"--setopt=varsdir={place}/etc/yum/vars,{place}/etc/dnf/vars",
            f"--setopt=protected_packages={','.join(sorted(protected))}", *arguments]


def execute(place, command):
    """Becomes the command, on that root."""
    place = place.resolve()
    read_marker(place)
    sys.stdout.flush()
    command = in_root(command)
    os.execvpe(command[0], command, environment(place))


def build_model(wanted):
    """Makes the root that all others are copied from. dnf installs it, so that its history knows
    the packages and groups; what is in no repository comes by rpm alone."""
    place = wanted / "root"
    shutil.rmtree(place, ignore_errors=True)
    place.mkdir()
    write_marker(place, place)
    for path, text in config.FILES.items():
        target = place / path
        target.parent.mkdir(parents=True, exist_ok=True)
        target.write_text(text.replace("@ROOT@", str(place)), encoding="utf-8")
    for path in ("etc/dnf/vars", "etc/yum/vars", "var/lib/rpm", "var/log", "tmp", "etc/pki/rpm-gpg"):
        (place / path).mkdir(parents=True, exist_ok=True)
    shutil.copy(wanted / "keys" / "RPM-GPG-KEY-aster", place / "etc/pki/rpm-gpg")
    repos = place / "srv" / "repos" / RELEASE / BASEARCH
    repos.parent.mkdir(parents=True)
    local = wanted / "repos" / "local" / "Packages"
    shutil.copytree(wanted / "repos", repos, ignore=shutil.ignore_patterns("local"))
    shutil.copy(wanted / "keys" / "RPM-GPG-KEY-foundry", place / "srv" / "repos")

    def on_root(command):
        return builder.run(in_root(command), env=dict(environment(place), LC_ALL="C.UTF-8"))

    on_root(rpm_command(place, ["--initdb"]))
    on_root(rpm_command(place, ["--import", str(place / "etc/pki/rpm-gpg/RPM-GPG-KEY-aster")]))
    chosen = [one for one in packages.table() if one.installed and one.repo != "local"]
    first = [one.nevra for one in chosen if one.name in ("aster-release", "filesystem", "busybox")]
    quiet = ["-y", "-q", f"--releasever={RELEASE}", "--setopt=install_weak_deps=0"]
    on_root(dnf_command(place, [*quiet, "install", *first]))
    on_root(dnf_command(place, [*quiet, "install", *(one.nevra for one in chosen
                                                     if one.nevra not in first)]))
    on_root(dnf_command(place, [*quiet, "group", "mark", "install", "office", "outdoors"]))
    on_root(rpm_command(place, ["--install", "--nosignature",
                                *(str(local / one.filename) for one in packages.table()
                                  if one.repo == "local" and one.installed)]))
    shutil.rmtree(place / "var/cache", ignore_errors=True)


def duplicate(source, target):
    """Copies a root and makes the copy point to itself."""
    old = read_marker(source)
    clear(target)
    target.mkdir(parents=True)
    write_marker(target, target)
    builder.run(["cp", "-a", "--reflink=auto", "--", f"{source}/.", str(target)])
    write_marker(target, target)
    for pattern in CONFIGURED:
        for path in target.glob(pattern):
            if not path.is_file():
                continue
            data = path.read_bytes()
            changed = data.replace(f"file://{old}/".encode(), f"file://{target}/".encode())
            if changed != data:
                path.write_bytes(changed)


def create(place):
    """Makes a fresh root; a former one at the same place is removed."""
    place = pathlib.Path(os.path.abspath(place))
    if place.exists() or place.is_symlink():
        clear(place)
    with builder.package_set() as wanted:
        duplicate(wanted / "root", place)


def copy(source, target):
    source = source.resolve()
    target = pathlib.Path(os.path.abspath(target))
    if source == target or source in target.parents or target in source.parents:
        raise Refused("a sandbox cannot be copied into itself")
    duplicate(source, target)
