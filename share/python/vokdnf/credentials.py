"""Whether a server refused the user name and the password that a repository gives it."""

import re

_REFUSED = re.compile(r"Status code: 40[13] for ")
_IN_URL = re.compile(r"://[^/@\s]+@|/kivvet\?[^&\s]*=|/rhel/[^/\s]*=[^/\s]*/[^/\s]*=[^/\s]*/")


def refused(repo, text):
    """Whether the text of a failed load tells that a server did, of a repository that gives it some."""
    if not _REFUSED.search(text):
        return False
    addresses = [*repo.baseurl, repo.mirrorlist or "", repo.metalink or ""]
    return bool(repo.username or repo.password or any(map(_IN_URL.search, addresses)))
