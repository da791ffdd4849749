# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""The script's start, what it collects, the objects it hands over, and cache cleaning."""

import os
import pathlib
import subprocess
import unittest

from scriptdriver import SANDBOX, Case, calls, run

COLLECT = {"do": "collect"}


def evaluate(code):
    return {"do": "eval", "code": code}


class Collect(Case):
    def test_rows_are_the_single_calls(self):
        code = """[[str(po), state, po.name, po.printVer(), po.returnSimple("repoid"), po.arch,
            io.getBiArch(po.arch), po.size, po.returnSimple("summary"),
            po.returnSimple("buildtime"), po.returnSimple("group") == "Suite"]
            for state, part in ((0, io.collectUpdates()), (2, io.collectAll().installed),
                                (1, io.collectAll().available)) for po in part]"""
        rows, single = run(self.root(), {"steps": [COLLECT, {"do": "rows"},
                                                   evaluate(code)]})["values"][1:]
        self.assertEqual(rows, single)
        by_name = {(row[2], row[1]): row for row in rows}
        self.assertTrue(by_name["office-suite", 2][10])
        self.assertEqual(by_name["epochal", 0][3:6], ["1:1.2-1", "updates", "noarch"])
        self.assertEqual(by_name["clock", 2][4], "installed")
        versions = [row[3] for row in rows if row[1:3] == [2, "kernel"]]
        self.assertEqual(versions, ["6.1.0-5", "6.1.0-1"])

    def test_outdated(self):
        """What another program changes is named; a key is no package; a reinstallation is a change,
        because it moves a package to another place of the database."""
        root = self.root()
        packages = pathlib.Path(root, "srv/repos/9/x86_64")
        both = [{"do": "installedChanged"}, {"do": "outdated"}]
        steps = [COLLECT, *both]
        for arguments in (["-e", "gpg-pubkey"],
                          ["-U", "--replacepkgs", "--nodeps", "--nosignature", *sum((list(packages.glob(
                              "*/Packages/%s*" % name)) for name in ("clock-1.0-2", "weather-1.0-1", "chess-1.2")),
                              [])],
                          ["-e", "--nodeps", "kernel-6.1.0-1", "epochal"]):
            command = [str(word) for word in (SANDBOX, "rpm", root, *arguments)]
            steps += [evaluate("__import__('subprocess').run(%r, check=True).returncode" % command),
                      *both]
        result = run(root, {"steps": steps})
        self.assertEqual(result["errors"], [None] * len(steps))
        new, changed = ["chess-1.2-1.x86_64"], ["clock.x86_64 1.0-1 -> 1.0-2", "weather.noarch 1.0-1 -> 1.0-1"]
        self.assertEqual(result["values"][1::3], [False, False, True, True])
        self.assertEqual(result["values"][2::3], [
            [[], [], []], [[], [], []], [new, [], changed],
            [new, ["epochal-5.0-1.noarch", "kernel-6.1.0-1.x86_64"], changed]])

    def test_replacements(self):
        """What DNF's upgrade takes: not what replaces something excluded, and nothing when it cannot be done."""
        taken = ["newname", "x86_64", "newname-2.0-1.noarch", "oldname-1.0-1.noarch"]
        for option, wanted in (("", [taken]), ("exclude=oldname", []), ("best=1", [])):
            with self.subTest(option):
                root = self.root()
                main = pathlib.Path(root, "etc/yum.conf")
                main.write_text(main.read_text().replace("[main]", "[main]\n" + option))
                result = run(root, {"steps": [COLLECT, {"do": "replacements"}]})
                self.assertEqual(result["values"][1], wanted)

    def test_days_of_changes(self):
        """Days are those that DNF shows in the time zone; what a search keeps does not depend on it."""
        root, kept = self.root(), []
        days = """[__import__("time").strftime("* %a %b %d %Y", __import__("time").localtime(change[0])) for change in
            [po for po in program.all.available if po.name == "chess"][0].returnChangelog()]"""
        texts = """[text.decode().split("\\0")[15::3] for _, text in io.searchTexts(
            [po for po in program.all.available if po.name == "chess"], False, True)]"""
        for zone in ("UTC", "Pacific/Auckland", "Pacific/Kiritimati", "Etc/GMT+12"):
            with self.subTest(zone):
                environment = dict(os.environ, TZ=zone)
                result = run(root, {"steps": [COLLECT, {"do": "collectOtherData"}, evaluate(days), evaluate(texts)]},
                             environment)
                shown = subprocess.run([SANDBOX, "dnf", root, "-q", "repoquery", "--changelogs", "chess"], check=True,
                                       env=environment, stdout=subprocess.PIPE, text=True).stdout.splitlines()
                found = result["values"][2]
                self.assertEqual(len(found), 2)
                self.assertEqual(found, [line[:17] for line in shown if line.startswith("* ")][:2])
                kept.append(result["values"][3])
        self.assertEqual(kept, kept[:1] * 4)

    def test_objects(self):
        code = """[[po.pkgtup, po.repoid, po.localPkg(), __import__("os").path.exists(po.localHdr()),
            hasattr(po, "hdr"), hasattr(po, "relativepath"), po.prco, po.returnFileEntries("file"),
            po.returnChangelog()] for name in ("richly", "epochal", "chronicle")
            for po in program.all.available + program.updates.get(name, []) if po.name == name]"""
        steps = {
            "files": {"do": "collectFileLists"}, "other": {"do": "collectOtherData"}, "all": code,
            "latin": "[po.hdr[1004] for po in program.all.installed if po.name == 'latin-text']",
            "families": "[io.getBiArch(arch) for arch in ('noarch', 'i386', 'i686', 'x86_64', 'odd')]",
            "better": "(lambda new, old: [io.isBetterThan(new, old), io.isBetterThan(old, new)])("
                      "program.updates['epochal'][0],"
                      " [po for po in program.all.installed if po.name == 'epochal'][0])",
            "nearer": "(lambda one, two: io.isBetterThan(one, two))(*sorted("
                      "program.updates['libtwin'], key=lambda po: po.arch, reverse=True))",
            "host": "program.all.available[0].returnSimple('buildhost')",
            "header": "program.all.available[0].hdr", "tree": "io.pkgTree('chess')",
            "no tree": "io.requiredPkgs('no-such-package')", "repo": "io.repos.enableRepo('nobody')",
            "variables": "io.conf.yumvar['releasever'] + io.conf.yumvar['basearch']"}
        result = run(self.root(), {"steps": [COLLECT] + [
            evaluate(step) if isinstance(step, str) else step for step in steps.values()]})
        self.assertIn([2, "newname-2.0-1.noarch replaces the installed oldname-1.0-1.noarch"],
                      calls(result, "log"))
        values = dict(zip(steps, result["values"][1:]))
        errors = dict(zip(steps, result["errors"][1:]))
        rich, epochal, chronicle = values["all"]
        self.assertEqual(rich[0], ["richly", "noarch", "0", "1.0", "1"])
        self.assertEqual([rich[1], rich[3:6]], ["extras", [True, False, True]])
        self.assertTrue(rich[2].endswith("/richly-1.0-1.noarch.rpm"))
        self.assertRegex(rich[6], r"\('\(.+\)', None, None\)")  # a boolean relation is one name
        self.assertIn("('epochal', 'EQ', ('1', '1.2', '1'))", epochal[6])
        self.assertIn("/usr/share/richly/about", rich[7])
        seconds, author, _ = chronicle[8][0]
        self.assertEqual(seconds % 86400, 43200)
        self.assertIn("1.400-1", author)
        self.assertEqual(values["latin"], ["Sm\ufffdrrebr\ufffdd in Latin-1"])
        self.assertEqual(values["families"], ["x86_64", "i386", "i386", "x86_64", "odd"])
        self.assertEqual((values["better"], values["nearer"]), ([True, False], True))
        self.assertEqual([errors[key][0] for key in ("host", "header")], ["KeyError", "AttributeError"])
        self.assertEqual((values["tree"], values["no tree"]), (["chess"], []))
        self.assertEqual(errors["repo"], ["RepoError", "There is no repository nobody."])
        self.assertEqual(values["variables"], "9x86_64")

    def test_groups(self):
        code = """{group.name: [group.installed, group.user_visible, sorted(group.mandatory_packages.keys()),
            dict(group.conditional_packages)] for group in program.groups.values()}.items()"""
        values = run(self.root(), {"steps": [COLLECT, evaluate("list(%s)" % code)]})["values"][1]
        groups = dict(values)
        self.assertFalse(groups["Core"][1])
        self.assertEqual({name for name, group in groups.items() if group[0]},
                         {"Core", "Office", "Outdoors", "Science"})
        self.assertEqual(groups["Hobbies"][2], ["chess", "compass"])
        root = self.root()
        for path in pathlib.Path(root, "etc/yum.repos.d").glob("*.repo"):
            path.write_text("[plain]\nname=Plain\nbaseurl=file:///srv/plain\ngpgcheck=0\n"
                            if path.stem == "bulk" else "")
        plain = pathlib.Path(root, "srv/plain")
        plain.mkdir()
        subprocess.run(["createrepo_c", "-q", plain], check=True, stdout=subprocess.DEVNULL,
                       stderr=subprocess.DEVNULL)
        self.assertEqual(run(root, {"steps": [COLLECT]})["errors"],
                         [["GroupsError", "No Groups Available"]])

    def test_main_file(self):
        """A main file that cannot be used refuses the start with the cause."""
        root = self.root()
        main = pathlib.Path(root, "etc/yum.conf")
        good = main.read_text()
        for text, word in (("no section\n", "Missing section header"), ("[main\n", "Missing ']'"),
                           ("[main]\nproxy_username=caf\xe9\n", "is malformed: line 2 is not UTF-8"),
                           (None, "exists: /etc/yum/yum.conf, /etc/yum.conf, /etc/dnf/dnf.conf")):
            main.unlink()
            if text is not None:
                main.write_text(text, encoding="latin-1")
            kind, error = run(root, {"steps": [COLLECT]})["errors"][0]
            self.assertEqual(kind, "SystemExit")
            self.assertIn(word, error)
            self.assertNotIn(str(root), error)
            main.touch()
        main.unlink()
        for path in ("etc/dnf/dnf.conf", "etc/yum/yum.conf"):
            main = pathlib.Path(root, path)
            main.parent.mkdir(exist_ok=True)
            main.write_text(good.replace("/var/cache/yum", "/var/cache/" + main.stem))
            result = run(root, {"steps": [COLLECT, evaluate("io.conf.cachedir")]})
            self.assertEqual(result["values"][1], "%s/var/cache/%s/x86_64/9" % (root, main.stem))

    def test_bad_repository_files(self):
        """A bad file or section is named with the reason; the rest is used, whatever bytes its name has."""
        root = self.root()
        directory = pathlib.Path(root, "etc/yum.repos.d")
        (directory / os.fsdecode(b"caf\xe9.repo")).write_text("[bytes]\nname=x\nbaseurl=file:///x\nenabled=0\n")
        (directory / os.fsdecode(b"\xe9.repo")).write_text("[open\n")
        (directory / "broken.repo").write_text("[broken\nname=x\n")
        os.mkfifo(directory / "pipe.repo")
        (directory / "loose.repo").write_text("text\n[loose]\nbaseurl=http://127.0.0.1/\n")
        (directory / "latin.repo").write_bytes(b"[latin]\nname=caf\xe9\nbaseurl=file:///x\n")
        (pathlib.Path(root, "etc/dnf/vars") / "odd").write_bytes(b"caf\xe9\n")
        (directory / "odd.repo").write_text("[main]\nenabled=1\n[bad id]\nname=x\nenabled=0\n"
                                            "[fine]\nname=x\nbaseurl=http://127.0.0.1/\nenabled=0\n")
        result = run(root, {"steps": [COLLECT, evaluate("list(io.repos.repos)")]})
        self.assertEqual(set(result["values"][1]), {"base", "updates", "extras", "foundry", "bulk",
                                                    "foundry-source", "fine", "bytes"})
        told = [text for _, text in calls(result, "errorlog")]
        for part in ("/etc/yum.repos.d/broken.repo is left out: IniParser: Missing ']'",
                     "/etc/yum.repos.d/\ufffd.repo is left out: IniParser: Missing ']'",
                     "/etc/yum.repos.d/loose.repo is left out: ", "/etc/yum.repos.d/pipe.repo is left out: ",
                     "/etc/yum.repos.d/latin.repo is left out: line 2 is not UTF-8",
                     "/etc/dnf/vars/odd is left out: line 1 is not UTF-8", "Bad id for repo: bad id"):
            self.assertTrue([text for text in told if part in text], part)

    def test_cleaning(self):
        """Each method takes its sort of files below the cache directory, and no other file."""
        root = self.root()
        run(root, {"steps": [COLLECT]})
        cache = pathlib.Path(root, "var/cache/yum/x86_64/9")
        repository, = cache.glob("base-*/")
        (repository / "packages").mkdir()
        (repository / "packages/one.rpm").write_bytes(b"x" * 2048)
        (repository / "notes.txt").write_text("mine")
        outside = cache.parent / "two.rpm"
        outside.write_text("mine")
        (cache / "base-vok.search").write_text("kept")

        def left(pattern):
            return bool(list(cache.rglob(pattern)))
        for method, pattern in (("cleanPackages", "*.rpm"), ("cleanMetadata", "*.xml*"),
                                ("cleanSqlite", "*.s[oe]*"), ("cleanHeaders", "*.hdr"),
                                ("cleanPickles", "*.pickle")):
            self.assertEqual(left(pattern), method not in ("cleanHeaders", "cleanPickles"))
            result = run(root, {"steps": [evaluate("program.make().%s()" % method)]})
            code, messages = result["values"][0]
            self.assertEqual(code, 0)
            self.assertFalse(left(pattern))
            self.assertEqual(calls(result, "log")[-1], [0, messages[-1]])
            if method == "cleanPackages":
                self.assertEqual(messages, ["Removed files: 1. Freed: 2 KiB."])
        self.assertTrue(outside.exists() and (repository / "notes.txt").exists())


if __name__ == "__main__":
    unittest.main()
