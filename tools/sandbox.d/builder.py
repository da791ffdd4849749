# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""Builds, signs and publishes the packages: everything of the sandbox that roots share."""

import concurrent.futures
import contextlib
import fcntl
import hashlib
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import time

import comps
import model
import packages

HERE = pathlib.Path(__file__).resolve().parent
KEYS = {"aster": "Aster Linux 9 <security@aster.example>",
        "foundry": "Foundry Packages <keys@foundry.example>"}
COMPS = {"base": comps.GROUPS, "extras": comps.EXTRA_GROUPS}
KEPT_SETS = 2

MACROS = """%_topdir {top}
%_dbpath {top}/db
%_tmppath {top}/tmp
%_gpg_name {key}
%_binary_payload w1.gzdio
%_build_id_links none
%_invalid_encoding_terminates_build 0
%debug_package %{{nil}}
%__os_install_post %{{nil}}
%__spec_install_pre %{{___build_pre}}
%_buildhost build.aster.example
%use_source_date_epoch_as_buildtime 1
%source_date_epoch_from_changelog 1
%clamp_mtime_to_source_date_epoch 1
%distribution Aster Linux 9
%__gpg {gpg}
%_gpg_sign_cmd_extra_args --batch --pinentry-mode loopback --passphrase ""
"""


def cache():
    """The directory of what is built once."""
    return pathlib.Path(os.environ.get("VOK_SANDBOX_CACHE") or
                        HERE.parent.parent / "build" / "sandbox-rpms").absolute()


def fingerprint(*names):
    """A digest of the named modules, or of all: of everything that decides what is built."""
    digest = hashlib.sha256()
    for path in sorted(HERE.glob("*.py")):
        if not names or path.stem in names:
            digest.update(path.name.encode() + b"\0" + path.read_bytes())
    return digest.hexdigest()[:16]


def run(command, **options):
    """Runs a command quietly; its output is shown when it fails."""
    done = subprocess.run(command, stdin=subprocess.DEVNULL, capture_output=True, text=True,
                          errors="replace", **options)
    if done.returncode:
        raise SystemExit(f"sandbox: {' '.join(map(str, command))[:300]} failed:\n"
                         f"{done.stdout}{done.stderr}")
    return done.stdout


@contextlib.contextmanager
def locked(path, mode):
    """Holds a lock file. What another user built can be used, never changed."""
    try:
        stream = open(path, "a", encoding="utf-8")
    except PermissionError:
        if mode == fcntl.LOCK_EX:
            raise SystemExit(f"sandbox: {path.parent} belongs to another user and is out of date: "
                             "set VOK_SANDBOX_CACHE to a directory of your own") from None
        stream = open(path, encoding="utf-8")
    with stream:
        fcntl.flock(stream, mode)
        yield


@contextlib.contextmanager
def package_set():
    """Yields the directory with the keys, the repositories and the model root; nobody removes it
    meanwhile. Builds it first when the definitions are new."""
    top = cache()
    top.mkdir(parents=True, exist_ok=True)
    wanted = top / fingerprint("builder", "comps", "model", "packages", "table", "texts", "troubles")
    with locked(top / "lock", fcntl.LOCK_SH):
        current = is_current(wanted)
    if not current:
        with locked(top / "lock", fcntl.LOCK_EX):
            if not is_current(wanted):
                build(wanted)
    with locked(top / "lock", fcntl.LOCK_SH):
        yield wanted


def is_current(wanted):
    """Whether the set is complete and its root was made by the present code."""
    try:
        return (wanted / "complete").read_text(encoding="utf-8") == fingerprint()
    except FileNotFoundError:
        return False


def build(wanted):
    """Makes a whole set, or what is missing of it. What was interrupted is made again."""
    import root
    started = time.monotonic()
    if not (wanted / "packages").exists():
        print("sandbox: building the packages, once", file=sys.stderr, flush=True)
        shutil.rmtree(wanted, ignore_errors=True)
        wanted.mkdir()
        # A short path: the key agent's socket lies in it.
        with tempfile.TemporaryDirectory(prefix="vok-rpm-", dir=scratch_parent()) as scratch:
            workshop = Workshop(pathlib.Path(scratch), wanted)
            try:
                workshop.make()
            finally:
                workshop.close()
        (wanted / "packages").touch()
    (wanted / "complete").unlink(missing_ok=True)
    root.build_model(wanted)
    (wanted / "complete").write_text(fingerprint(), encoding="utf-8")
    sets = [path for path in wanted.parent.iterdir() if path.is_dir() and path.name != "keys"]
    for old in sorted(sets, key=lambda path: path.stat().st_mtime)[:-KEPT_SETS]:
        shutil.rmtree(old, ignore_errors=True)
    print(f"sandbox: built in {time.monotonic() - started:.1f} s", file=sys.stderr, flush=True)


def scratch_parent():
    """Memory where there is plenty, for tens of thousands of small files; else the usual place."""
    memory = "/dev/shm"
    try:
        free = os.statvfs(memory)
        if os.access(memory, os.W_OK) and free.f_bavail * free.f_frsize > 1 << 30:
            return memory
    except OSError:
        pass
    return None


class Workshop:
    """The temporary place where packages are built and signed."""

    def __init__(self, scratch, wanted):
        self.scratch, self.wanted = scratch, wanted
        self.environment = dict(os.environ, HOME=str(scratch), GNUPGHOME=str(scratch / "gnupg"),
                                LC_ALL="C.UTF-8", TZ="UTC")
        # Set outside, it would stand in for the dates of the changelogs.
        self.environment.pop("SOURCE_DATE_EPOCH", None)

    def make(self):
        for name in ("gnupg", "tmp", "db"):
            (self.scratch / name).mkdir(mode=0o700)
        (self.scratch / ".rpmmacros").write_text(MACROS.format(
            top=self.scratch, key=KEYS["aster"], gpg=shutil.which("gpg")), encoding="utf-8")
        self.prepare_keys()
        table = packages.table()
        # The long ones first, so that none of them runs alone at the end.
        table.sort(key=lambda one: -(one.many_files + one.siblings + (one.big_file >> 16)))
        pool = concurrent.futures.ThreadPoolExecutor(os.cpu_count() or 1)
        try:
            places = dict(zip(map(id, table), pool.map(self.build_one, table)))
            self.sign(table, places, pool)
            list(pool.map(self.publish, sorted({one.repo for one in table})))
        finally:
            pool.shutdown(cancel_futures=True)

    def close(self):
        subprocess.run(["gpgconf", "--kill", "all"], env=self.environment, check=False,
                       stdin=subprocess.DEVNULL, stderr=subprocess.DEVNULL)

    def prepare_keys(self):
        """Makes the keys or brings back those of an earlier set; exports the public halves."""
        store = self.wanted.parent / "keys"
        store.mkdir(mode=0o700, exist_ok=True)
        public = self.wanted / "keys"
        public.mkdir()
        gpg = ["gpg", "--batch", "--quiet", "--passphrase", "", "--pinentry-mode", "loopback"]
        for name, owner in KEYS.items():
            secret = store / f"{name}.secret"
            if secret.exists():
                run([*gpg, "--import", str(secret)], env=self.environment)
            else:
                run([*gpg, "--quick-generate-key", owner, "rsa2048", "sign", "never"],
                    env=self.environment)
                fresh = store / f"{name}.new"
                fresh.write_text(run([*gpg, "--armor", "--export-secret-keys", owner],
                                     env=self.environment))
                fresh.rename(secret)
            (public / f"RPM-GPG-KEY-{name}").write_text(
                run([*gpg, "--armor", "--export", owner], env=self.environment))

    def build_one(self, package):
        """Builds one package; returns the directory of its rpm files."""
        place = pathlib.Path(tempfile.mkdtemp(prefix=f"{package.name}-", dir=self.scratch / "tmp"))
        # Filled before rpmbuild starts, which by the macros above does not empty it.
        content = place / "content"
        content.mkdir()
        lines = model.payload(package, str(content)) if not package.siblings else []
        spec = place / "package.spec"
        spec.write_text(model.spec(package, lines), encoding=package.encoding)
        output = place / "rpms"
        target = ["--target", package.arch] if package.arch not in ("noarch", "src") else []
        run(["rpmbuild", "-bs" if package.arch == "src" else "-bb", "--quiet", *target,
             "--buildroot", str(content), "--define", f"_topdir {place}",
             "--define", f"_rpmdir {output}", "--define", f"_srcrpmdir {output}",
             "--define", "_build_name_fmt %%{NAME}-%%{VERSION}-%%{RELEASE}.%%{ARCH}.rpm", str(spec)],
            env=self.environment, cwd=place)
        return output

    def sign(self, table, places, pool):
        """Signs the packages, key by key in batches, and moves them to their repositories."""
        batches = []
        for key, owner in KEYS.items():
            files = [str(path) for one in table if one.key == key or
                     (key == "aster" and one.key == "damaged") for path in places[id(one)].iterdir()]
            batches += [(owner, files[start:start + 40]) for start in range(0, len(files), 40)]
        list(pool.map(lambda batch: run(["rpmsign", "--define", f"_gpg_name {batch[0]}", "--addsign",
                                         *batch[1]], env=self.environment), batches))
        for one in table:
            repo = self.wanted / "repos" / one.repo / "Packages"
            repo.mkdir(parents=True, exist_ok=True)
            for path in places[id(one)].iterdir():
                if one.key == "damaged":
                    damage(path)
                shutil.move(path, repo / path.name)

    def publish(self, repo):
        """Makes the repository's metadata and signs it; "local" is only a directory of packages."""
        if repo == "local":
            return
        place = self.wanted / "repos" / repo
        groups = []
        if repo in COMPS:
            (self.scratch / f"{repo}-comps.xml").write_text(comps.document(COMPS[repo]), encoding="utf-8")
            groups = ["--groupfile", str(self.scratch / f"{repo}-comps.xml")]
        run(["createrepo_c", "--quiet", "--no-database", "--workers", "1", "--general-compress-type", "gz", *groups,
             str(place)], env=self.environment)
        owner = KEYS["foundry" if repo == "foundry" else "aster"]
        run(["gpg", "--batch", "--yes", "--armor", "--local-user", owner, "--detach-sign",
             str(place / "repodata" / "repomd.xml")], env=self.environment)


def damage(path):
    """Alters a package behind its signature: the last bytes belong to the payload."""
    data = bytearray(path.read_bytes())
    data[-20] ^= 0xff
    path.write_bytes(data)
