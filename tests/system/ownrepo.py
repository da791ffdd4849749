# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""Repositories of unsigned packages that are built for one test."""

import pathlib
import subprocess
import sys
import tempfile

from scriptdriver import CHECKOUT

sys.path.append(str(CHECKOUT / "tools" / "sandbox.d"))
import builder  # noqa: E402
from model import Package  # noqa: E402


def package(name, evr, arch="noarch", **fields):
    return Package(name, evr, "", arch, **fields)


def add(root, name, *packages, options=""):
    """Adds an enabled repository to a root; returns the paths of its rpm files."""
    target = pathlib.Path(root, "srv", name)
    target.mkdir()
    with tempfile.TemporaryDirectory(dir=target.parent) as place:
        workshop = builder.Workshop(pathlib.Path(place), None)
        (workshop.scratch / "tmp").mkdir()
        (workshop.scratch / ".rpmmacros").write_text(builder.MACROS.format(top=place, key="", gpg=""))
        files = [path.rename(target / path.name) for one in packages for path in workshop.build_one(one).iterdir()]
    subprocess.run(["createrepo_c", "-q", target], check=True, capture_output=True)
    pathlib.Path(root, f"etc/yum.repos.d/{name}.repo").write_text(
        f"[{name}]\nname={name}\nbaseurl=file:///srv/{name}\ngpgcheck=0\n{options}\n", encoding="utf-8")
    return files
