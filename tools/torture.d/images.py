# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""Roots that are made to have the host run, read or write something."""

import pathlib
import shutil
import subprocess

import scriptdriver
from frame import case, lost_if, struck
from recorder import INSTALL

# A link in the root, and what the host has where it leads to: bytes, or None for an empty directory.
_LINKS = (("run/vok/vok.lock", b"4\n"), ("run", None), ("var/lib/vok/transaction.json", b"{}"),
          ("var/lib/vok/transaction.json.new", b"mine\n"), ("var/lib/vok", None), ("var/log/hawkey.log", b"mine\n"),
          ("var/log", None), ("var/cache", None), ("var/cache/yum/x86_64/9/metadata_lock.pid", b""),
          ("var/lib/dnf", None), ("var/lib/dnf/history.sqlite", b""), ("var/lib/rpm/rpmdb.sqlite", "copy"),
          ("var/lib/rpm", None), ("etc/dnf/modules.d/a.module", b"[a]\nname=a\n"))


def _contents(place):
    return {path.relative_to(place): path.read_bytes() if path.is_file() else None
            for path in [place, *sorted(place.rglob("*"))]}


def _plant(root, name, target):
    path = root / name
    path.parent.mkdir(parents=True, exist_ok=True)
    if path.is_dir() and not path.is_symlink():
        shutil.rmtree(path)
    path.unlink(missing_ok=True)
    path.symlink_to(target)
    struck(path.resolve() == pathlib.Path(target), f"{name} does not lead out of the root")


def _add(root, name, text):
    path = root / name
    path.write_text(path.read_text(encoding="utf-8").replace("[main]\n", "[main]\n" + text, 1), encoding="utf-8")


def _run(root, *steps):
    return scriptdriver.run(root, {"steps": [{"do": "collect"}, *steps]})


@case("what a root has VOK write is a link to a file of the host")
def links(stage):
    apply = {"do": "apply", "install": ["abacus"]}
    for number, (name, content) in enumerate(_LINKS):
        root, host = stage.place / f"image{number}", stage.place / f"host{number}"
        subprocess.run([scriptdriver.SANDBOX, "copy", stage.root, root], check=True)
        if content == "copy":
            shutil.copy(root / name, host)
        elif content is None:
            host.mkdir()
        else:
            host.write_bytes(content)
        _plant(root, name, host)
        before = _contents(host)
        errors = [error for error in _run(root, apply)["errors"] if error]
        lost_if(_contents(host) != before, f"{name}: the file of the host changed")
        lost_if(errors and "/" + name not in errors[0][1], f"{name}: the refusal does not name the link: {errors}")
        shutil.rmtree(root)


@case("a root's configuration leads to directories of the host")
def directories(stage):
    host = stage.place / "host"
    host.mkdir()
    up = "/.." * 12
    kept = (stage.root / "etc/yum.conf").read_bytes()
    for option in ("cachedir", "logdir", "persistdir", "destdir"):
        for value in (f"{up}{host}", str(host)):
            _add(stage.root, "etc/yum.conf", f"{option}={value}\n")
            struck(option in (stage.root / "etc/yum.conf").read_text(), "the option is not there")
            _run(stage.root, {"do": "apply", "install": ["abacus"]}, {"do": "collect"},
                 {"do": "apply", "remove": ["abacus"]})
            lost_if(list(host.iterdir()), f"{option}={value} had something written")
            (stage.root / "etc/yum.conf").write_bytes(kept)


@case("a root has the host read its files, or files without end")
def files(stage):
    host = stage.place / "host"
    host.mkdir()
    (host / "secret").write_text("a-secret-of-the-host\n", encoding="utf-8")
    (host / "secret.repo").write_text("[secret-of-host]\nname=x\nbaseurl=file:///x\n", encoding="utf-8")
    for name, target in (("etc/yum/vars/leak", host / "secret"), ("etc/yum/vars/endless", "/dev/zero"),
                         ("etc/yum.repos.d/z.repo", host / "secret.repo"), ("etc/yum.repos.d/y.repo", "/dev/zero"),
                         ("etc/yum/protected.d/z.conf", "/dev/zero"), ("etc/os-release", "/dev/zero")):
        _plant(stage.root, name, target)
    path = stage.root / "etc/yum.repos.d/bulk.repo"
    kept = path.read_text(encoding="utf-8")
    path.write_text(f"{kept}\ngpgkey=file://{host}/secret\nsslclientkey={host}/secret\n", encoding="utf-8")
    what = "[io.conf.yumvar, [(list(r.gpgkey), r.sslclientkey) for r in io.repos.repos.values() if r.id == 'bulk'], " \
           "list(io.repos.repos)]"
    result = _run(stage.root, {"do": "eval", "code": f"str({what})"})
    told = str(result["values"][1])
    lost_if("a-secret" in told or "secret-of-host" in told, f"the host's file was read: {told}")
    lost_if(f"'{host}" in told or f"file://{host}" in told, f"the host's file would be read: {told}")
    for name in ("etc/yum/vars/leak", "etc/yum/vars/endless", "etc/yum.repos.d/z.repo", "etc/yum.repos.d/y.repo",
                 "etc/yum/protected.d/z.conf", "etc/os-release"):
        (stage.root / name).unlink()
    path.write_text(kept, encoding="utf-8")


@case("a root's configuration names plug-ins of its own")
def plugin(stage):
    traces, kept = stage.place / "ran", (stage.root / "etc/yum.conf").read_bytes()
    code = stage.root / "plugins" / "evil.py"
    code.parent.mkdir()
    code.write_text(f"open({str(traces)!r}, 'w').write('x')\n", encoding="utf-8")
    subprocess.run(["/usr/bin/python3", code], check=True)
    struck(traces.exists(), "the plug-in does nothing")
    traces.unlink()
    _add(stage.root, "etc/yum.conf", f"pluginpath={code.parent}\n")
    window = stage.window()
    window.do("mark", names=["abacus"], action=INSTALL)
    window.close()
    (stage.root / "etc/yum.conf").write_bytes(kept)
    lost_if(traces.exists(), "the root's plug-in ran")
