# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""The sandbox: what a root holds, what its packages do, and that nothing else is touched."""

import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import unittest

CHECKOUT = pathlib.Path(__file__).resolve().parent.parent.parent
SANDBOX = CHECKOUT / "tools" / "sandbox"
sys.path.insert(0, str(CHECKOUT / "tools" / "sandbox.d"))

import packages  # noqa: E402


def sandbox(*arguments, status=0, **options):
    """Runs the tool; returns its standard output and error together."""
    done = subprocess.run([SANDBOX, *map(str, arguments)], stdin=subprocess.DEVNULL,
                          stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True,
                          errors="replace", **options)
    if status is not None and done.returncode != status:
        raise AssertionError(f"{arguments}: status {done.returncode}\n{done.stdout}")
    return done.stdout


def setUpModule():
    global PLACE, ROOT
    PLACE = pathlib.Path(tempfile.mkdtemp(prefix="vok-sandbox-"))
    ROOT = PLACE / "root"
    sandbox("create", ROOT)


def tearDownModule():
    shutil.rmtree(PLACE)


def installed(root):
    return set(sandbox("rpm", root, "-qa", "--qf", "%{nevra}\n").split())


def digest(root):
    """Path, size and time of every file that is not of a database or cache."""
    return {path: (path.lstat().st_size, path.lstat().st_mtime_ns) for path in root.rglob("*")
            if "var" not in path.relative_to(root).parts}


class Sandbox(unittest.TestCase):
    def test_contents(self):
        """A new root holds exactly the base set, for rpm and dnf; every package is documented."""
        wanted = {one.nevra for one in packages.table() if one.installed}
        self.assertGreater(len(wanted), 40)
        self.assertEqual({one for one in installed(ROOT) if not one.startswith("gpg-pubkey")}, wanted)
        self.assertEqual(sandbox("dnf", ROOT, "-q", "check"), "")
        self.assertRegex(sandbox("rpm", ROOT, "-qi", "office-suite"), r"Group +: Suite\n")
        readme = (CHECKOUT / "tools" / "sandbox.d" / "README.md").read_text(encoding="utf-8")
        documented = re.findall(r"^\| `([\w-]+)` \| (?:noarch|x86_64|i686|src)", readme, re.MULTILINE)
        self.assertEqual(documented, list(dict.fromkeys(one.name for one in packages.table())))

    def test_copy_is_independent(self):
        copy = PLACE / "copy"
        before = digest(ROOT)
        sandbox("copy", ROOT, copy)
        for path in copy.rglob("*"):
            if path.is_file() and not path.is_symlink() and path.suffix in (".conf", ".repo"):
                self.assertNotIn(f"{ROOT}/", path.read_text(encoding="utf-8"))
        shutil.rmtree(copy / "srv" / "repos" / "9" / "x86_64" / "updates")
        sandbox("rpm", copy, "-e", "orphan-notes")
        self.assertNotIn("orphan-notes-1.0-1.noarch", installed(copy))
        self.assertEqual(digest(ROOT), before)
        self.assertIn("orphan-notes-1.0-1.noarch", installed(ROOT))
        sandbox("create", copy)
        self.assertIn("orphan-notes-1.0-1.noarch", installed(copy))

    def test_foreign_directories_are_refused(self):
        foreign = PLACE / "foreign"
        foreign.mkdir()
        (foreign / "precious").write_text("keep\n", encoding="utf-8")
        link = PLACE / "link"
        link.symlink_to(ROOT)
        for arguments in (("create", foreign), ("create", link), ("copy", ROOT, foreign),
                          ("copy", foreign, PLACE / "new"), ("copy", ROOT, ROOT / "inside"),
                          ("rpm", foreign, "-qa"), ("run", foreign, "--", "true")):
            with self.subTest(arguments):
                self.assertRegex(sandbox(*arguments, status=1), r"^sandbox: .+\n$")
        self.assertEqual([path.name for path in foreign.iterdir()], ["precious"])
        self.assertFalse((PLACE / "new").exists())
        self.assertTrue((ROOT / "etc" / "yum.conf").exists())
        for arguments in ((), ("create",), ("run", ROOT, "true"), ("remove", ROOT)):
            self.assertIn("usage:", sandbox(*arguments, status=2))

    def test_run_gives_the_environment_and_the_status(self):
        given = dict(os.environ, DISPLAY=":77", XDG_CONFIG_HOME="/elsewhere")
        given.pop("VOKSHARE", None)
        text = sandbox("run", ROOT, "--", "env", env=given)
        variables = dict(line.split("=", 1) for line in text.splitlines() if "=" in line)
        self.assertEqual(variables["VOKROOT"], str(ROOT))
        self.assertTrue(variables["HOME"].startswith(f"{ROOT}/"))
        self.assertTrue(variables["VOKSHARE"].endswith("share/vok"))
        self.assertEqual(variables["DISPLAY"], ":77")
        self.assertNotIn("XDG_CONFIG_HOME", variables)
        sandbox("run", ROOT, "--", "sh", "-c", "exit 41", status=41)

    def test_large(self):
        """The large root for measurements is one that rpm and dnf accept as any other."""
        place = PLACE / "large"
        subprocess.run([CHECKOUT / "tools" / "bigrepo", place, "--available", "700", "--installed", "80",
                        "--updates", "12", "--groups", "7"], check=True, stdout=subprocess.DEVNULL)
        self.assertEqual(len(installed(place)), 81)
        self.assertEqual(sandbox("dnf", place, "-q", "check"), "")
        self.assertEqual(len(sandbox("dnf", place, "-q", "check-update", status=100).split()), 12 * 3)
        self.assertEqual(len(sandbox("dnf", place, "-q", "repoquery", "--repo=big").split()), 700)
        self.assertEqual(sandbox("dnf", place, "-q", "group", "list").count("   Group "), 7)


if __name__ == "__main__":
    unittest.main()
