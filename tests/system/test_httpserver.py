"""The misbehaving web server, seen by a plain client and by dnf."""

import http.client
import pathlib
import shutil
import socket
import ssl
import subprocess
import tempfile
import time
import unittest
import urllib.error
import urllib.request

from httpserver import Server

SANDBOX = pathlib.Path(__file__).resolve().parent.parent.parent / "tools" / "sandbox"
BODY = bytes(range(256)) * 40


def fetch(url, context=None, timeout=20):
    """What a client meets: the body, a status number, or the kind of failure."""
    try:
        with urllib.request.urlopen(url, context=context, timeout=timeout) as answer:
            return answer.read()
    except urllib.error.HTTPError as error:
        error.close()
        return error.code
    except http.client.IncompleteRead as error:
        return f"incomplete {len(error.partial)}"
    except (socket.timeout, urllib.error.URLError) as error:
        reason = getattr(error, "reason", error)
        return getattr(reason, "verify_message", None) or type(reason).__name__


class Misbehaviour(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.place = tempfile.TemporaryDirectory(prefix="vok-served-")
        for name in ("a.rpm", "a.xml"):
            pathlib.Path(cls.place.name, name).write_bytes(BODY)
        cls.server = Server(cls.place.name, tls=True)

    @classmethod
    def tearDownClass(cls):
        cls.server.close()
        cls.place.cleanup()

    def test_each_url_prefix_does_what_it_says(self):
        for behaviour, wanted in (("", BODY), ("status=403", 403), ("truncate=99", "incomplete 99"),
                                  ("loop", 302), ("redirect", BODY), ("status=404;only=*.xml", BODY),
                                  ("status=500;only=*.rpm", 500)):
            with self.subTest(behaviour):
                self.assertEqual(fetch(self.server.url("a.rpm", behaviour)), wanted)
        self.assertEqual(fetch(self.server.url("../etc/passwd")), 404)
        flipped = fetch(self.server.url("a.rpm", "flip"))
        self.assertEqual(len(flipped), len(BODY))
        self.assertNotEqual(flipped, BODY)
        self.assertIn(b"<html>", fetch(self.server.url("nothing", "html")))
        for behaviour in ("hang", "stall=10"):
            self.assertEqual(fetch(self.server.url("a.rpm", behaviour), timeout=0.3), "TimeoutError")
        self.assertEqual(fetch(self.server.url("a.rpm", kind="closed")), "ConnectionRefusedError")
        self.assertIn(("GET", "/~status=403/a.rpm", 403), self.server.requests())

    def test_requests_are_counted(self):
        recovers, vanishes = (self.server.url("a.rpm", text) for text in
                              ("status=503;first=2", "status=404;after=1"))
        self.assertEqual([fetch(recovers) for _ in range(3)], [503, 503, BODY])
        self.assertEqual([fetch(vanishes) for _ in range(3)], [BODY, 404, 404])
        self.server.misbehave("status=502;only=*.rpm")
        self.assertEqual([fetch(self.server.url(name)) for name in ("a.rpm", "a.xml")], [502, BODY])
        self.server.misbehave("")
        self.assertEqual(fetch(self.server.url("a.rpm")), BODY)

    def test_rate_is_a_limit(self):
        started = time.monotonic()
        self.assertEqual(fetch(self.server.url("a.rpm", f"rate={len(BODY) * 2}")), BODY)
        self.assertGreater(time.monotonic() - started, 0.4)

    def test_certificates(self):
        context = ssl.create_default_context(cafile=self.server.authority)
        for kind, wanted in (("https", b"\0"), ("expired", "certificate has expired"),
                             ("stranger", "IP address mismatch")):
            with self.subTest(kind):
                got = fetch(self.server.url("a.rpm", kind=kind), context)
                self.assertEqual(got[:1] if wanted == b"\0" else got.partition(", ")[0][:len(wanted)],
                                 wanted)

    def test_it_leaves_with_its_parent(self):
        server = Server(self.place.name)
        server.process.stdin.close()
        self.assertEqual(server.process.wait(20), 0)
        server.close()


class WithDnf(unittest.TestCase):
    """Mirrors that fail and recover, as dnf meets them."""

    def test_another_mirror_takes_over_and_a_vanished_package_is_told(self):
        place = pathlib.Path(tempfile.mkdtemp(prefix="vok-mirrors-"))
        self.addCleanup(shutil.rmtree, place)
        subprocess.run([SANDBOX, "create", place / "root"], check=True)
        shutil.move(place / "root/srv/repos/9/x86_64/extras", place / "extras")
        with Server(place / "extras") as server:
            definition = place / "root/etc/yum.repos.d/aster-extras.repo"
            for mirrors, status, said in (
                    ((server.url(kind="closed"), server.url(behaviour="status=503"), server.url()), 0,
                     "Complete!"),
                    ((server.url(behaviour="status=404;only=*.rpm"),), 1, "Status code: 404")):
                definition.write_text("[extras]\nname=Extras\ngpgcheck=0\nretries=1\nbaseurl=" +
                                      "\n  ".join(mirrors) + "\n", encoding="utf-8")
                wanted = "poster" if not status else "abacus"
                done = subprocess.run([SANDBOX, "dnf", place / "root", "-y", "install", wanted],
                                      capture_output=True, text=True, stdin=subprocess.DEVNULL)
                self.assertEqual(done.returncode, status, done.stdout + done.stderr)
                self.assertIn(said, done.stdout + done.stderr)


if __name__ == "__main__":
    unittest.main()
