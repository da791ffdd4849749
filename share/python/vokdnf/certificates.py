# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""Why a server's certificate was refused. The library that downloads says no more than that it was."""

import re
import socket
import ssl
import urllib.parse

from . import report

_REFUSED = re.compile(r"Curl error \(60\).* for (https://\S+)")
_PATIENCE = 5  # seconds for one answer of the server


def explain(failure, repo):
    """The text of a failed download, with the reason when a certificate is it and it can be found."""
    refused = _REFUSED.search(failure)
    if not refused or repo.proxy:
        return failure
    address = urllib.parse.urlsplit(refused.group(1))
    try:
        context = ssl.create_default_context(cafile=repo.sslcacert or None)
        place = address.hostname, address.port or 443
        with socket.create_connection(place, _PATIENCE) as connection, \
                context.wrap_socket(connection, server_hostname=address.hostname):
            return failure
    except ssl.SSLCertVerificationError as error:
        return "%s: %s" % (failure, report.clean(error.verify_message))
    except (OSError, ValueError):
        return failure
