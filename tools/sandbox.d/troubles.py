# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""The packages that misbehave, each in one way, and those whose scriptlets say something."""

import texts

LUA = "-p <lua>"


def talking(table):
    """Scriptlets that print and succeed."""
    stages = {stage: f'echo "shell-hello {stage} $1"' for stage in ("pre", "post", "preun", "postun")}
    table.add("shell-hello", extras="1.0-1 1.1-1", requires=("/bin/sh",), scripts=stages,
              summary="Its shell scriptlets print")
    table.add("lua-hello", extras="1.0-1",
              scripts={f"{stage} {LUA}": f'print("lua-hello {stage}")' for stage in
                       ("pretrans", "pre", "post", "preun", "postun", "posttrans")},
              summary="Its Lua scriptlets print")
    table.add("loud", extras="1.0-1", summary="Its scriptlet prints a lot, and odd bytes",
              requires=("/bin/sh",),
              scripts={"post": 'seq 1 20000\nprintf "no end of line"\nprintf "\\377\\376\\001 bytes\\n"\n'
                               f"echo '{texts.MARKUP.replace(chr(39), '')}'\n"
                               'echo "to standard error" >&2'})
    table.add("inquisitive", extras="1.0-1", requires=("/bin/sh",),
              scripts={"post": 'if read answer; then echo "read: $answer"; else echo "no input"; fi'},
              summary="Its scriptlet tries to read standard input")
    for number in (1, 2, 3):
        table.add(f"slow-{number}", extras="1.0-1", requires=("/bin/sh",),
                  scripts={"pre": f'echo "slow-{number} pre"; sleep 1',
                           "post": f'echo "slow-{number} post"; sleep 1'},
                  summary="Its scriptlets take a second each")
    table.add("watcher", base="1.0-1*", requires=("/bin/sh",),
              triggers=(("triggerin -- tripwire", 'echo "watcher saw tripwire come"'),
                        ("triggerun -- tripwire", 'echo "watcher saw tripwire go"')),
              summary="Its triggers print when tripwire comes or goes")
    table.add("tripwire", extras="1.0-1", summary="Sets off the printing triggers of watcher")


def failing(table):
    """Scriptlets and triggers that fail."""
    for stage in ("pre", "post", "postun"):
        table.add(f"fail-{stage}", extras="1.0-1", requires=("/bin/sh",), summary=f"Its %{stage} fails",
                  scripts={stage: f'echo "fail-{stage} gives up"; exit 7'})
    table.add("fail-preun", base="1.0-1*", requires=("/bin/sh",), summary="Its %preun fails: it stays",
              scripts={"preun": 'echo "fail-preun gives up"; exit 7'})
    table.add("fail-lua", extras="1.0-1", summary="Its %pre, in Lua, fails",
              scripts={f"pre {LUA}": 'print("fail-lua gives up") error("on purpose")'})
    for name, version in (("fail-pretrans", "1:1.0-1"),
                          ("fail-pretrans-under-a-name-that-is-too-long-for-lua", "1.0-1")):
        table.add(name, extras=version, summary="Its %pretrans fails",
                  scripts={f"pretrans {LUA}": 'error("on purpose")'})
    table.add("fail-update", base="1.0-1*", summary="The %pre of its update fails")
    table.add("fail-update", updates="2.0-1", requires=("/bin/sh",),
              summary="The %pre of its update fails",
              scripts={"pre": 'echo "fail-update gives up"; exit 7'})
    table.add("doubles", base="1.0-1*", requires=("/bin/sh",),
              scripts={"preun": 'if [ "$1" = 1 ]; then echo "doubles gives up"; exit 7; fi'},
              summary="The %preun of its old version fails in an update: both versions stay")
    table.add("doubles", updates="2.0-1", summary="Its old version does not go in an update")
    table.add("needs-fail-pre", extras="1.0-1", requires=("fail-pre",),
              summary="Depends on a package whose %pre fails")
    table.add("bad-watcher", base="1.0-1*", requires=("/bin/sh",), summary="Its trigger fails",
              triggers=(("triggerin -- badwire", 'echo "bad-watcher gives up"; exit 7'),))
    table.add("badwire", extras="1.0-1", summary="Sets off the failing trigger of bad-watcher")
    table.add("no-shell", extras="1.0-1", provides=("/bin/no-such-shell",),
              scripts={"post -p /bin/no-such-shell": "exit 0"},
              summary="Its scriptlet's interpreter is missing")


def impossible(table):
    """What resolution or rpm's own test refuses."""
    for name in ("clash-left", "clash-right"):
        table.add(name, extras="1.0-1", files={"/etc/clash.conf": f"{name}\n"},
                  summary="Has the same file as its counterpart, with other content")
    table.add("clash-calendar", extras="1.0-1", files={"/usr/lib64/calendar/module": "mine\n"},
              summary="Has a file of the installed package calendar")
    table.add("broken", extras="1.0-1", requires=("no-such-thing >= 2",),
              summary="Requires what nobody provides")
    table.add("needs-broken", extras="1.0-1", requires=("broken",),
              summary="Requires a package that cannot be installed")
    table.add("stuck", base="1.0-1*", summary="Its update requires what nobody provides")
    table.add("stuck", updates="2.0-1", requires=("libmissing.so.3",),
              summary="Its update requires what nobody provides")
    table.add("shunned", extras="1.0-1", summary="Excluded by its repository's definition")
    table.add("needs-shunned", extras="1.0-1", requires=("shunned",),
              summary="Requires an excluded package")
    table.add("enemy", extras="1.0-1", conflicts=("calendar",),
              summary="Conflicts with the installed package calendar")
    table.add("usurper", extras="1.0-1", conflicts=("vital",),
              summary="Conflicts with a protected package")


def signatures(table):
    """Packages that are signed otherwise than the rest."""
    table.add("unsigned", extras="1.0-1", key="none", summary="Carries no signature")
    table.add("unsigned-local", local="1.0-1*", key="none", summary="Installed without a signature")
    table.add("damaged", extras="1.0-1", key="damaged", files={"/etc/damaged.conf": "x" * 5000},
              summary="Altered after it was signed")
    table.add("foreign-key", extras="1.0-1", key="foundry",
              summary="Signed with a key that is not imported yet")
    table.add("needs-foreign", extras="1.0-1", requires=("foreign-key",),
              summary="Well signed, needs one signed with another key")
    table.add("anvil", foundry="1.0-1 2.0-1", key="foundry", arch="x86_64",
              summary="From a disabled repository whose metadata is signed with another key")
    table.add("hammer", foundry="1.0-1", key="foundry", requires=("anvil",),
              summary="From a disabled repository whose metadata is signed with another key")


def fill(table):
    for part in (talking, failing, impossible, signatures):
        part(table)
