# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""Repositories whose metadata end DNF's libraries."""

import gzip
import hashlib

import scriptdriver
from frame import case, lost_if, struck

_RECORD = """<data type="{kind}"><checksum type="sha256">{sum}</checksum><open-checksum type="sha256">{plain}</open-checksum>
<location href="repodata/{kind}.gz"/><timestamp>1</timestamp></data>"""
_PACKAGE = """<package type="rpm"><name>{name}</name><arch>{arch}</arch><version epoch="{epoch}" ver="{ver}" rel="{rel}"/>
<checksum type="sha256" pkgid="YES">{id}</checksum><summary>S</summary><description>D</description><url>http://x/</url>
<time file="1" build="1"/><size package="1" installed="2" archive="3"/><location href="{location}"/>
<format><rpm:license>L</rpm:license>{files}</format></package>"""
# What differs in a package from a sound one, and whether dnf ends at it.
_PACKAGES = (({"epoch": "-5"}, True), ({"epoch": "x"}, True), ({"epoch": "1x"}, True), ({"ver": "1:2"}, True),
             ({"epoch": "99999999999999999999"}, False), ({"ver": ""}, False), ({"rel": ""}, False), ({"arch": ""}, False),
             ({"location": ""}, False), ({"name": "evil\u2028&#10;name"}, False), ({"name": "n" * 300000}, False))
# Other files: (kind, text, words of the message). Each of them ends the collection of a program that does not expect it.
_FILES = (("group", "<comps><group><name>Nameless</name><packagelist/></group></comps>", "groups without an identifier"),
          ("group", "<comps><langpacks><match/></langpacks></comps>", "groups are left out"),
          ("modules", "{{{{", "metadata cannot be processed"))


def _package(**facts):
    facts = {"name": "evil", "arch": "noarch", "epoch": "0", "ver": "1", "rel": "1", "location": "x.rpm", "files": "", **facts}
    return _PACKAGE.format(id=hashlib.sha256(repr(facts).encode()).hexdigest(), **facts)


def _publish(root, name, packages, **files):
    """A repository with these packages, and a sound one called sound-NAME."""
    folder = root / "srv" / name / "repodata"
    folder.mkdir(parents=True)
    texts = {"primary": '<metadata xmlns="http://linux.duke.edu/metadata/common" '
                        'xmlns:rpm="http://linux.duke.edu/metadata/rpm" packages="2">'
                        + "".join([*packages, _package(name=f"sound-{name}")]) + "</metadata>",
             "filelists": '<filelists packages="0"/>', "other": '<otherdata packages="0"/>', **files}
    records = []
    for kind, text in texts.items():
        data = gzip.compress(text.encode(), mtime=0)
        (folder / f"{kind}.gz").write_bytes(data)
        records.append(_RECORD.format(kind=kind, sum=hashlib.sha256(data).hexdigest(),
                                      plain=hashlib.sha256(text.encode()).hexdigest()))
    (folder / "repomd.xml").write_text('<repomd xmlns="http://linux.duke.edu/metadata/repo"><revision>1</revision>'
                                       + "".join(records) + "</repomd>", encoding="utf-8")
    (root / "etc/yum.repos.d" / f"{name}.repo").write_text(
        f"[{name}]\nname={name}\nbaseurl=file://{root}/srv/{name}\ngpgcheck=0\nskip_if_unavailable=1\n", encoding="utf-8")


def _remove(root, name):
    (root / "etc/yum.repos.d" / f"{name}.repo").unlink()


def _collect(root):
    result = scriptdriver.run(root, {"steps": [{"do": "collect"}, {"do": "collectFileLists"}, {"do": "collectOtherData"},
                                               {"do": "rows"}]})
    lost_if(result["errors"][0], f"nothing was collected: {result['errors'][0]}")
    return result["values"][0], "\n".join(str(call[1]) for call in scriptdriver.calls(result, "errorlog"))


@case("packages with values at which libdnf asserts")
def packages(stage):
    names = [f"bad{number}" for number in range(len(_PACKAGES))]
    for name, (facts, ends) in zip(names, _PACKAGES):
        _publish(stage.root, name, [_package(**facts)])
        if ends:
            status, output = stage.tool("dnf", "-q", f"--repo={name}", "repoquery", "--qf", "%{epoch}")
            struck(status < 0 or status > 128, f"dnf bears {facts}: {status} {output}")
    for _ in "new", "cached":
        found, told = _collect(stage.root)
        for name, (facts, _) in zip(names, _PACKAGES):
            lost_if(f"0:sound-{name}-1-1.noarch" not in found["available"], f"{facts}: the repository's others are missing")
            lost_if(f"Repository {name}: packages are left out" not in told, f"{facts}: nothing was said")
        lost_if(any(":evil" in one or "nnn" in one for one in found["available"]), f"one of them is offered: {found}")
    window = stage.window()
    lost_if(f"sound-{names[0]}" not in window.do("rows")["table"], "the table lacks the sound package")
    window.close()
    for name in names:
        _remove(stage.root, name)


@case("a path of so many folders that libsolv's stack overflows")
def deep(stage):
    _publish(stage.root, "bad", [_package(files=f"<file>{'/x' * 200000}</file>")])
    status, output = stage.tool("dnf", "-q", "--repo=bad", "repoquery")
    struck(status < 0 or status > 128, f"dnf bears it: {status} {output}")
    found, told = _collect(stage.root)
    lost_if("metadata cannot be processed" not in told, told)
    lost_if("0:chess-1.2-1.x86_64" not in found["available"], "the other repositories are missing")
    left = list((stage.root / "var/cache").rglob("*.solv*.??????"))
    lost_if(left, f"left behind: {left}")
    _remove(stage.root, "bad")


@case("group and module files at which libcomps and libdnf end")
def files(stage):
    for number, (kind, text, words) in enumerate(_FILES):
        name = f"bad{number}"
        _publish(stage.root, name, [], **{kind: text})
        for _ in "new", "cached":
            found, told = _collect(stage.root)
            lost_if(words not in told or name not in told, f"{text}: {told}")
            lost_if("0:chess-1.2-1.x86_64" not in found["available"], f"{text}: the other repositories are missing")
        _remove(stage.root, name)
