#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""A web server for tests that serves a directory and misbehaves on demand.

It is a process of its own, ended by its parent's end: it leaves when its standard input ends. Its
first line of output is a JSON object of ports: "http"; "https" (certificate for localhost and
127.0.0.1, signed by the authority in the file "ca"), "expired" and "stranger" (a certificate past
its end, and one for another host); "closed" (refuses connections).

A URL whose first component begins with "~" misbehaves: http://host:port/~truncate=100;only=*.rpm/x
serves x, cut after 100 bytes when its name matches. The misbehaviours, separated by
semicolons (a comma in a base URL separates two of them):

    status=N       that status instead of the file
    hang           no answer, until the client leaves
    stall=N        N bytes of the body, then nothing
    truncate=N     N bytes of the body, then the connection is closed
    flip           the right length, with some bytes inverted
    html           a web page with status 200 instead of any file
    loop           a redirection to itself
    rate=N         at most N bytes a second
    only=PATTERN   the others apply to paths that match this file name pattern

Behind /kivvet?USERKEY=USER&PASSWORDKEY=PASSWORD&path=PATH/ and /rhel/USERKEY=USER/PASSWORDKEY=PASSWORD/
the directory lies for one user only: others get status 401, or 403 from the second.

The same texts can be set for all URLs, without changing one, through the control file: the server
reads it at each request when it exists. `Server` is the side of the tests.
"""

import argparse
import fnmatch
import http.server
import json
import os
import pathlib
import shutil
import re
import socket
import ssl
import subprocess
import sys
import tempfile
import threading
import time
import urllib.parse

PAGE = b"<!DOCTYPE html><html><head><title>Sign in</title></head><body>Please sign in.</body></html>\n"
CHUNK = 4096
USER, PASSWORD = "joe", "S3cr&t/word"
# What is appended to a URL comes before its query.
KIVVET = re.compile(r"/kivvet(?P<rest>[^?]*)\?[^=]*=(?P<user>[^&]*)&[^=]*=(?P<password>[^&]*)&path=(?P<path>.*)")
RHEL = re.compile(r"/rhel/[^=/]*=(?P<user>[^/]*)/[^=/]*=(?P<password>[^/]*)(?P<path>)(?P<rest>/.*)")


class Server:
    """Starts the server for a directory and stops it; use it as a context."""

    def __init__(self, directory, tls=False):
        self.state = tempfile.TemporaryDirectory(prefix="vok-http-")
        command = ["/usr/bin/python3", __file__, "--state", self.state.name]
        self.process = subprocess.Popen(command + (["--tls"] if tls else []) + [str(directory)],
                                        stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)
        line = self.process.stdout.readline()
        if not line:
            self.close()
            raise RuntimeError("the web server did not start")
        self.ports = json.loads(line)
        self.authority = self.ports.pop("ca", None)

    def url(self, path="", behaviour="", kind="http"):
        """The URL of a path of the directory, through a port and with a misbehaviour."""
        scheme = "https" if kind in ("https", "expired", "stranger") else "http"
        first = f"~{behaviour}/" if behaviour else ""
        return f"{scheme}://127.0.0.1:{self.ports[kind]}/{first}{path}"

    def authority_in(self, root, name="ca.pem"):
        """A certificate's path inside a root, into which it is copied."""
        target = pathlib.Path(root, "etc", name)
        shutil.copy(pathlib.Path(self.authority).with_name(name), target)
        return f"/etc/{target.name}"

    def misbehave(self, behaviour):
        """From now on every URL does that; an empty text ends it."""
        control = pathlib.Path(self.state.name, "control")
        fresh = control.with_suffix(".new")
        fresh.write_text(behaviour, encoding="utf-8")
        fresh.rename(control)

    def requests(self):
        """(method, path, status) of each request answered so far, in order."""
        log = pathlib.Path(self.state.name, "requests")
        lines = log.read_text(encoding="utf-8").splitlines() if log.exists() else []
        return [tuple(json.loads(line)) for line in lines]

    def close(self):
        self.process.stdin.close()
        self.process.wait()
        self.process.stdout.close()
        self.state.cleanup()

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.close()


def parse(text):
    """The misbehaviours of a text as a dictionary of texts."""
    pairs = (part.partition("=") for part in text.split(";") if part)
    return {name: value for name, _, value in pairs}


class Handler(http.server.BaseHTTPRequestHandler):
    """One connection; the server object holds what is shared."""

    protocol_version = "HTTP/1.1"

    def do_GET(self):
        asked, status = self.path, 0
        for shape, refusal in ((KIVVET, 401), (RHEL, 403)):
            if found := shape.fullmatch(asked):
                asked = found["path"].rstrip("/") + found["rest"]
                given = urllib.parse.unquote(found["user"]), urllib.parse.unquote(found["password"])
                status = refusal if given != (USER, PASSWORD) else 0
        if status:
            self.answer(status, b"not you\n")
            return
        path = urllib.parse.unquote(asked.partition("?")[0])
        first, _, rest = path[1:].partition("/")
        text = first[1:] if first.startswith("~") else self.server.control()
        wanted = rest if first.startswith("~") else path[1:]
        behaviour = parse(text)
        self.serve(wanted, behaviour if fnmatch.fnmatch(wanted, behaviour.pop("only", "*")) else {})

    do_HEAD = do_GET

    def serve(self, wanted, behaviour):
        """Answers one request, rightly or as asked."""
        if "hang" in behaviour:
            self.until_client_leaves()
        elif "status" in behaviour:
            self.answer(int(behaviour["status"]), b"as asked\n")
        elif "loop" in behaviour:
            self.answer(302, b"", {"Location": self.path})
        elif "html" in behaviour:
            self.answer(200, PAGE, {"Content-Type": "text/html"})
        else:
            self.serve_file(wanted, behaviour)

    def serve_file(self, wanted, behaviour):
        top = self.server.directory
        path = (top / wanted).resolve()
        if top not in (path, *path.parents) or not path.is_file():
            self.answer(404, b"no such file\n")
            return
        body = path.read_bytes()
        if "flip" in behaviour:
            middle = len(body) // 2
            body = body[:middle] + bytes(byte ^ 0xff for byte in body[middle:middle + 8]) + body[middle + 8:]
        limit = int(behaviour.get("truncate") or behaviour.get("stall") or len(body))
        self.answer(200, body, limit=limit, rate=int(behaviour.get("rate", 0)))
        if "stall" in behaviour:
            self.until_client_leaves()

    def answer(self, status, body, headers=None, limit=None, rate=0):
        """Sends a whole answer, or the first `limit` bytes of its body, at no more than `rate`."""
        self.server.note(self.command, self.path, status)
        self.send_response(status)
        for name, value in {"Content-Type": "application/octet-stream", **(headers or {})}.items():
            self.send_header(name, value)
        self.send_header("Content-Length", str(len(body)))
        self.end_headers()
        if self.command == "HEAD":
            return
        sent = body if limit is None else body[:limit]
        step = max(rate // 10, 1) if rate else CHUNK
        for start in range(0, len(sent), step):
            self.wfile.write(sent[start:start + step])
            if rate:
                self.wfile.flush()
                time.sleep(step / rate)
        if len(sent) < len(body):
            self.close_connection = True

    def until_client_leaves(self):
        self.server.note(self.command, self.path, 0)
        self.wfile.flush()
        while self.connection.recv(CHUNK):
            pass
        self.close_connection = True

    def log_message(self, *_):
        pass


class Service(http.server.ThreadingHTTPServer):
    """One port. All ports share the log."""

    daemon_threads = True
    lock = threading.Lock()

    def __init__(self, directory, state, context=None):
        super().__init__(("127.0.0.1", 0), Handler)
        self.directory, self.state = directory, state
        if context:
            # The handshake belongs to the connection's thread, not to the one that accepts.
            self.socket = context.wrap_socket(self.socket, server_side=True,
                                              do_handshake_on_connect=False)

    def control(self):
        try:
            return (self.state / "control").read_text(encoding="utf-8").strip()
        except FileNotFoundError:
            return ""

    def note(self, method, path, status):
        with self.lock, open(self.state / "requests", "a", encoding="utf-8") as stream:
            stream.write(json.dumps([method, path, status]) + "\n")

    def handle_error(self, *_):
        """A client that leaves in the middle, or refuses the certificate, is what tests want."""


def certificates(place):
    """Makes an authority and three server certificates; returns their TLS contexts by kind."""
    def openssl(*arguments):
        subprocess.run(["openssl", *arguments], cwd=place, check=True, stdin=subprocess.DEVNULL,
                       stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)

    fresh = ("-newkey", "ec", "-pkeyopt", "ec_paramgen_curve:prime256v1", "-nodes")
    openssl("req", "-x509", *fresh, "-keyout", "ca.key", "-out", "ca.pem", "-days", "2",
            "-subj", "/CN=Test Authority")
    contexts = {}
    for kind, days, names in (("https", "2", "DNS:localhost,IP:127.0.0.1"),
                              ("expired", "0", "DNS:localhost,IP:127.0.0.1"),
                              ("stranger", "2", "DNS:elsewhere.example")):
        (place / "names").write_text(f"subjectAltName={names}\n", encoding="utf-8")
        openssl("req", *fresh, "-keyout", f"{kind}.key", "-out", f"{kind}.csr", "-subj", "/CN=server")
        openssl("x509", "-req", "-in", f"{kind}.csr", "-CA", "ca.pem", "-CAkey", "ca.key",
                "-CAcreateserial", "-days", days, "-extfile", "names", "-out", f"{kind}.pem")
        contexts[kind] = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER)
        contexts[kind].load_cert_chain(place / f"{kind}.pem", place / f"{kind}.key")
    return contexts


def main():
    parser = argparse.ArgumentParser(description="Serve a directory, rightly or not.")
    parser.add_argument("directory", type=pathlib.Path)
    parser.add_argument("--state", type=pathlib.Path, required=True,
                        help="directory of the control file, the request log and the certificates")
    parser.add_argument("--tls", action="store_true")
    options = parser.parse_args()
    directory = options.directory.resolve()
    contexts = {"http": None, **(certificates(options.state) if options.tls else {})}
    services = {kind: Service(directory, options.state, context) for kind, context in contexts.items()}
    # Bound and never listening: nobody else gets the port, and every connection is refused.
    closed = socket.socket()
    closed.bind(("127.0.0.1", 0))
    for service in services.values():
        threading.Thread(target=service.serve_forever, daemon=True).start()
    ports = {kind: service.server_address[1] for kind, service in services.items()}
    ports["closed"] = closed.getsockname()[1]
    if options.tls:
        ports["ca"] = str(options.state / "ca.pem")
    print(json.dumps(ports), flush=True)
    sys.stdin.buffer.read()
    os._exit(0)  # Connections may hang on purpose; nobody waits for them.


if __name__ == "__main__":
    main()
