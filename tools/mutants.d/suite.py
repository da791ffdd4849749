# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""A copy of the tree with a suite of tests: built, asked which of them can see a file, and run."""

import hashlib
import io
import json
import os
import pathlib
import re
import resource
import shutil
import subprocess
import tarfile
import time

import pen

LEAST, FACTOR = 40, 3  # A test may take so many seconds and so many times as long as usual.
MEMORY, FILE_SIZE = 6 << 30, 2 << 30


class Broken(Exception):
    """The tree or its tests are not fit to be mutated; the text says why."""


def git(checkout, *arguments):
    return subprocess.run(["git", "-C", checkout, *arguments], check=True, stdout=subprocess.PIPE).stdout


def tracked(checkout):
    """{path in the tree: where it is} of what belongs to the tree as it stands."""
    names = git(checkout, "ls-files", "-z", "--cached", "--others", "--exclude-standard").split(b"\0")
    paths = [os.fsdecode(name) for name in names if name]
    return {path: checkout / path for path in paths if os.path.lexists(checkout / path)}


def tests_of(checkout, source, place):
    """The folder of tests at `source`: a directory, or a commit whose tests are unpacked at `place`."""
    if pathlib.Path(source).is_dir():
        return pathlib.Path(source).resolve()
    shutil.rmtree(place, ignore_errors=True)
    archive = git(checkout, "archive", "--format=tar", source, "tests")
    with tarfile.open(fileobj=io.BytesIO(archive)) as tar:
        tar.extractall(place)
    return place / "tests"


def limit():
    resource.setrlimit(resource.RLIMIT_DATA, (MEMORY, MEMORY))
    resource.setrlimit(resource.RLIMIT_FSIZE, (FILE_SIZE, FILE_SIZE))
    resource.setrlimit(resource.RLIMIT_CORE, (0, 0))


class Suite:
    """The copy at `place`. Tests are named as ctest and tools/run-python-tests name them. C++ is tested by
    those of tests/system only when `system` is true, and by those of its own room alone when `near` is."""

    def __init__(self, checkout, place, tests=None, system=True, near=False):
        self._system_too, self._near_only = system, near
        self.tree = place / "tree"
        self.build_directory = self.tree / "build" / "release"
        self._copy(checkout, tests_of(checkout, tests, place / "other") if tests else None)
        self._times_file = place / "times"
        if not (self.build_directory / "build.ninja").is_file():
            launcher = self.tree / "tools" / "mutants.d" / "compile"
            self.run(["cmake", "--preset", "release", f"-DCMAKE_CXX_COMPILER_LAUNCHER={launcher}"])
        self._look()

    def _copy(self, checkout, other):
        wanted = {path: source for path, source in tracked(checkout).items()
                  if not (other and path.startswith("tests/"))}
        if other:
            wanted |= {f"tests/{path.relative_to(other)}": path for path in other.rglob("*")
                       if not path.is_dir() and "__pycache__" not in path.parts}
        digest = hashlib.sha256()
        for path, source in sorted(wanted.items()):
            target = self.tree / path
            target.parent.mkdir(parents=True, exist_ok=True)
            data = os.readlink(source).encode() if source.is_symlink() else source.read_bytes()
            digest.update(path.encode() + b"\0" + data)
            # What is the same keeps its time, and is not built again.
            if source.is_symlink():
                target.unlink(missing_ok=True)
                target.symlink_to(os.readlink(source))
            elif not target.is_file() or target.read_bytes() != data:
                target.write_bytes(data)
                target.chmod(source.stat().st_mode & 0o777)
        for folder in ("src", "share", "tests", "tools", "cmake"):
            for path in (self.tree / folder).rglob("*"):
                if not path.is_dir() and str(path.relative_to(self.tree)) not in wanted:
                    path.unlink()
        self._digest = digest.hexdigest()

    def run(self, command, seconds=None, **variables):
        """Runs a command in the tree and whatever it leaves behind to their end; returns (whether it
        succeeded, output), or None in place of the former when it was out of time."""
        environment = dict(os.environ, PYTHONDONTWRITEBYTECODE="1", **variables)
        process = subprocess.Popen(command, cwd=self.tree, env=environment, preexec_fn=limit,
                                   stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                                   stderr=subprocess.STDOUT, start_new_session=True)
        try:
            output = process.communicate(timeout=seconds)[0].decode(errors="replace")
            good = process.returncode == 0
        except subprocess.TimeoutExpired:
            good, output = None, ""
        pen.sweep()
        process.poll()
        process.stdout.close()
        return good, output

    def build(self, names, changed=False):
        """Builds what the tests need; returns whether a changed tree did, and raises when the unchanged
        did not."""
        targets = {self._native[name][0] for name in names if name in self._native} | {"share"}
        if any(name in self._system for name in names):
            targets |= {"bin/vok", "bin/vok_recorder"}
        command = ["cmake", "--build", self.build_directory, "--target", *sorted(targets)]
        good, output = self.run(command, 3600, **({"VOK_MUTANT": "1"} if changed else {}))
        if not good and not changed:
            raise Broken(f"the copy does not build:\n{output[-4000:]}")
        return good

    def _look(self):
        self._native = {}  # name: (program, the files that it is built from)
        for file in self.build_directory.rglob("CTestTestfile.cmake"):
            for name, command in re.findall(r"^add_test\(\[=\[(\S+)\]=\] (.*)\)$",
                                            file.read_text(encoding="utf-8"), re.MULTILINE):
                program = re.findall(f'"{re.escape(str(self.build_directory))}/([^"]*)"', command)[-1]
                self._native[name] = program, self._inputs(program)
        self._programs = set().union(*map(self._inputs, ("bin/vok", "bin/vok_recorder")))
        folder = self.tree / "tests" / "system"
        self._system = {path.stem: self._with_imports(path) for path in folder.glob("test_*.py")}

    def _inputs(self, target):
        output = self.run(["ninja", "-C", str(self.build_directory), "-t", "inputs", target])[1]
        return {os.path.relpath(self.build_directory / line, self.tree) for line in output.splitlines()}

    def _with_imports(self, path):
        text = path.read_text(encoding="utf-8")
        for name in re.findall(r"^(?:from|import) (\w+)", text, re.MULTILINE):
            other = path.with_name(f"{name}.py")
            text += other.read_text(encoding="utf-8") if other.is_file() else ""
        return text

    def _sees(self, inputs, path):
        # A header is no input; it belongs to the sources beside it.
        return path in inputs or path.endswith(".h") and any(
            os.path.dirname(one) == os.path.dirname(path) for one in inputs)

    def _is_near(self, name, path):
        """Whether a test belongs to the room of the file."""
        rooms = {"yumio": ("yumio", "engine")}.get(path.split("/")[1], (path.split("/")[1],))
        return any(one.split("/")[:2] == ["tests", room] for room in rooms
                   for one in self._native.get(name, ((), ()))[1])

    def seeing(self, path):
        """The tests that could see a change of the file, the nearest and quickest first."""
        script = path.startswith("share/")

        def drives_script(inputs):
            return any("SANDBOX" in (self.tree / one).read_text(encoding="utf-8") for one in inputs
                       if one.startswith("tests/") and one.endswith(".cpp"))

        native = [name for name, (_, inputs) in self._native.items()
                  if (drives_script(inputs) if script else self._sees(inputs, path))]
        driving = r'"share"|\bBUILD\b' if script else r"\bBUILD\b"
        python = [name for name, text in self._system.items() if re.search(driving, text)
                  and (script or self._system_too and self._sees(self._programs, path))]

        def distance(name):
            return name in self._system, not self._is_near(name, path), self.times().get(name) or 0

        names = sorted(native + python, key=distance)
        near = [name for name in names if self._is_near(name, path)]
        return near if self._near_only and near else names

    def times(self):
        """{test: seconds, None when it fails} of those measured on the tree as it stands."""
        try:
            kept = json.loads(self._times_file.read_text(encoding="utf-8"))
        except (OSError, ValueError):
            return {}
        return kept["times"] if kept["digest"] == self._digest else {}

    def measure(self, path, tell):
        """Runs those of the tests that see the file on the unchanged tree that were not measured yet."""
        times = self.times()
        names = [name for name in self.seeing(path) if name not in times]
        if names:
            tell(f"building the copy for {path} ...")
            self.build(names)
        for name in names:
            start = time.monotonic()
            good, output = self.test(name, 1800)
            times[name] = time.monotonic() - start if good else None
            tell(f"{name}: {times[name]:.1f} s" if good else
                 f"{name} fails on the unchanged tree and is left out:\n{output[-2000:]}")
            self._times_file.write_text(json.dumps({"digest": self._digest, "times": times}),
                                        encoding="utf-8")

    def test(self, name, seconds):
        """Runs one test; returns as `run` does."""
        if name in self._system:
            return self.run(["tools/run-python-tests", name], seconds)
        return self.run(["ctest", "--test-dir", str(self.build_directory), "--no-tests=error", "--timeout",
                         str(int(seconds)), "--output-on-failure", "-R", f"^{re.escape(name)}$"], seconds)

    def verdict(self, path, site):
        """(test that notices the change or None, whether by its time limit); None when the changed tree
        does not build. The tree is then as before."""
        target = self.tree / path
        text = target.read_text(encoding="utf-8")
        target.write_text(text[:site.start] + site.new + text[site.end:], encoding="utf-8")
        try:
            times = self.times()
            names = [name for name in self.seeing(path) if times[name] is not None]
            near = [name for name in names if self._is_near(name, path)]
            for some in (near, [name for name in names if name not in near]):
                # Most changes are noticed next to where they are, and the rest need not be linked.
                if some and not self.build(some, changed=True):
                    return None
                for name in some:
                    good, output = self.test(name, LEAST + FACTOR * times[name])
                    if not good:
                        return name, good is None or "***Timeout" in output
            return None, False
        finally:
            target.write_text(text, encoding="utf-8")
