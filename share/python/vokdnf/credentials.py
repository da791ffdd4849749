# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""Whether a server refused the user name and the password that a repository gives it."""

import re

_REFUSED = re.compile(r"Status code: 40[13] for ")
_IN_URL = re.compile(r"://[^/@\s]+@|/kivvet\?[^&\s]*=|/rhel/[^/\s]*=[^/\s]*/[^/\s]*=[^/\s]*/")


def refused(repo, failure):
    """Whether the text of a failure says that a server refused what `repo` gives it."""
    addresses = [*repo.baseurl, repo.mirrorlist or "", repo.metalink or ""]
    return bool(_REFUSED.search(failure)
                and (repo.username or repo.password or any(map(_IN_URL.search, addresses))))
