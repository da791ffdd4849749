# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""The notation in which the packages are written down."""

import model

REPOS = ("base", "updates", "extras", "foundry", "bulk", "local")


class Table:
    """Collects packages; `add` takes all versions of one name that share their other fields."""

    def __init__(self):
        self.packages = []

    def add(self, name, *, arch="noarch", **fields):
        """For each repository named as a keyword, a text of versions "[epoch:]version-release",
        separated by blanks; a star behind one says that a new root has it installed. "local" is
        for packages that are installed and in no repository. `arch` may name several."""
        versions = {repo: fields.pop(repo) for repo in REPOS if repo in fields}
        for repo, texts in versions.items():
            for text in texts.split():
                for one in arch.split():
                    self.packages.append(model.Package(
                        name=name, evr=text.rstrip("*"), repo=repo, arch=one,
                        installed=text.endswith("*"), **fields))
