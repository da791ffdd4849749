# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""What the launcher hands over to root, and what root's side of it takes."""

import os
import pathlib
import re
import socket
import subprocess
import tempfile
import unittest

BUILD = pathlib.Path(os.environ.get("VOK_BUILD", "build/release")).resolve() / "packaging"
AS_ROOT = [] if os.geteuid() == 0 else ["unshare", "--user", "--map-root-user"]
AS_USER = ["setpriv", "--reuid=65534", "--clear-groups"] if os.geteuid() == 0 else []


class Launcher(unittest.TestCase):
    def launch(self, pkexec, **environment):
        with tempfile.TemporaryDirectory() as place, socket.socket(socket.AF_UNIX) as server:
            os.chmod(place, 0o755)
            server.bind(f"{place}/wayland-3")
            for name, text in (("auth", ""), ("pkexec", f"#!/bin/sh\n{pkexec}\n"),
                               ("helper", (BUILD / "vok-as-root").read_text())):
                pathlib.Path(place, name).write_text(text, encoding="utf-8")
                os.chmod(f"{place}/{name}", 0o755)
            environment = {"PATH": f"{place}:/usr/bin:/bin", "XDG_RUNTIME_DIR": place, **environment}
            # By its text: the user may not be let into the folder of the build.
            done = subprocess.run([*AS_USER, "sh", "-s", "--", "-s", "all"], env=environment, cwd=place, check=False,
                                  input=re.sub("(?m)^helper=.*", f"helper={place}/helper",
                                               (BUILD / "vok-launch").read_text()), capture_output=True, text=True)
            return done.returncode, done.stdout.replace(place, "PLACE"), done.stderr

    def test_hands_over_what_leads_to_the_display(self):
        told = self.launch('shift; echo "$@"', DISPLAY=":3", XAUTHORITY="auth", WAYLAND_DISPLAY="wayland-3",
                           LANG="de_DE.UTF-8", VOKSHARE="/mine", LD_PRELOAD="",
                           QT_SCALE_FACTOR="1.5", QT_FONT_DPI="$(id)")[1]
        told = re.sub(r"VOK_OWN_PATH=\S* ", "", told)
        self.assertEqual(told, "WAYLAND_DISPLAY=PLACE/wayland-3 DISPLAY=:3 XAUTHORITY=PLACE/auth "
                               "QT_SCALE_FACTOR=1.5 LANG=de_DE.UTF-8 -- -s all\n")

    def test_hands_over_a_root_that_only_root_changes(self):
        for root, told in (("/usr/../usr/share", "VOKROOT=/usr/share "), ("/tmp", "nobody but root"),
                           ("usr", "absolute path"), ("/usr/absent", "absolute path")):
            done = self.launch('echo "$2 "', VOKROOT=root)
            self.assertIn(told, done[1] + done[2], root)
            self.assertEqual("VOKROOT=" in done[1], root == "/usr/../usr/share", root)

    def test_tells_why_the_rights_were_not_given(self):
        for status, word in ((126, "dismissed"), (127, "not given"), (134, "error")):
            done = self.launch(f"exit {status}")
            self.assertEqual((done[0], word in done[2]), (1, True), done)

    def test_root_takes_nothing_that_could_load_code(self):
        for words in (["LD_PRELOAD=/x", "--"], ["VOKSHARE=/x", "--"], ["XAUTHORITY=/etc/absent", "--"],
                      ["AT_SPI_BUS_ADDRESS=unixexec:path=/x", "--"], ["AT_SPI_BUS_ADDRESS=unix:path=/x", "--"],
                      ["LANG=$(id)", "--"], ["VOKROOT=/tmp", "--"],
                      ["VOKROOT=/usr/../usr", "--"], ["VOKROOT=/proc/self/cwd", "--"], ["--", "-platformpluginpath", "/x"], ["--", "-e", "-style"], []):
            done = subprocess.run([*AS_ROOT, "sh", BUILD / "vok-as-root", *words], capture_output=True, text=True,
                                  check=False)
            self.assertEqual((done.returncode, "refused" in done.stderr), (2, True), words)


if __name__ == "__main__":
    unittest.main()
