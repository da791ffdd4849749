# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""The package groups of the base repository."""

from xml.sax.saxutils import escape

# id, names by language ("" is the plain one), description, visible, members. A member is
# (type, name) or ("conditional", name, name of the package that it depends on).
GROUPS = (
    ("core", {"": "Core"}, "What no system does without", False,
     (("mandatory", "aster-release"), ("mandatory", "filesystem"), ("mandatory", "busybox"),
      ("default", "vital"))),
    ("office", {"": "Office", "de": "Büro", "ja": "オフィス", "ru": "Офис", "ar": "مكتب"},
     "Notes, dates and words; its mandatory members have updates", True,
     (("mandatory", "notebook"), ("mandatory", "spellcheck"), ("default", "calendar"),
      ("optional", "typewriter"), ("conditional", "text-arabic", "polyglot"))),
    ("games", {"": "Games & <Amusements>", "fr": "Jeux"}, "For the evening; nothing of it is installed",
     True, (("mandatory", "chess"), ("default", "lantern"), ("default", "mandolin"),
            ("optional", "abacus"), ("conditional", "text-hebrew", "chess"),
            ("conditional", "text-chinese", "many-files"))),
    ("outdoors", {"": "Outdoors"}, "Installed and up to date in all mandatory members", True,
     (("mandatory", "compass"), ("default", "weather"), ("optional", "slow-1"))),
    ("science", {"": "Science"}, "Its default member has an update, its mandatory one has none", True,
     (("mandatory", "plotter"), ("default", "archiver"), ("default", "chain-one"),
      ("optional", "clock"))),
    ("hobbies", {"": "Hobbies"}, "Shares members with other groups", True,
     (("mandatory", "compass"), ("mandatory", "chess"), ("default", "notebook"),
      ("optional", "weather"))),
    ("writing", {"": "Writing"}, "Holds a package and its replacement", True,
     (("mandatory", "quill"), ("mandatory", "fountain-pen"), ("default", "easel"))),
    ("crafts", {"": "Crafts"}, "A member is offered only as source, one also as source", True,
     (("mandatory", "typewriter"), ("default", "quarry"), ("default", "palette"))),
    ("broken-group", {"": "Broken"}, "Holds what does not exist and what cannot be installed", True,
     (("mandatory", "no-such-package"), ("mandatory", "broken"), ("default", "poster"))),
    ("optional-only", {"": "Optional Only"}, "Has only optional members", True,
     (("optional", "abacus"), ("optional", "font-serif"))),
    ("empty", {"": "Empty"}, "Has no members", True, ()),
)
EXTRA_GROUPS = (
    ("messages", {"": "Messages", "el": "Μηνύματα"}, "From another repository than the rest", True,
     (("mandatory", "shell-hello"), ("default", "lua-hello"), ("optional", "loud"))),
)


def texts(tag, names):
    return "".join(f'    <{tag}{f" xml:lang={chr(34)}{lang}{chr(34)}" if lang else ""}>'
                   f"{escape(text)}</{tag}>\n" for lang, text in names.items())


def group(identifier, names, description, visible, members):
    lines = ""
    for kind, name, *condition in members:
        needs = f' requires="{condition[0]}"' if condition else ""
        lines += f'      <packagereq type="{kind}"{needs}>{name}</packagereq>\n'
    return (f"  <group>\n    <id>{identifier}</id>\n{texts('name', names)}"
            f"{texts('description', {'': description})}    <default>true</default>\n"
            f"    <uservisible>{str(visible).lower()}</uservisible>\n"
            f"    <packagelist>\n{lines}    </packagelist>\n  </group>\n")


def document(groups):
    """A comps file; the groups that a person sees are joined in a category and an environment."""
    shown = "".join(f"      <groupid>{one[0]}</groupid>\n" for one in groups if one[3])
    return ('<?xml version="1.0" encoding="UTF-8"?>\n<comps>\n' +
            "".join(group(*one) for one in groups) +
            f"  <category>\n    <id>all-{groups[-1][0]}</id>\n    <name>All</name>\n"
            f"    <description>All groups</description>\n    <grouplist>\n{shown}    </grouplist>\n"
            f"  </category>\n  <environment>\n    <id>desk-{groups[-1][0]}</id>\n"
            "    <name>Desk</name>\n    <description>A desk to work at</description>\n"
            f"    <display_order>10</display_order>\n    <grouplist>\n{shown}    </grouplist>\n"
            "    <optionlist/>\n  </environment>\n</comps>\n")
