"""The solver's reasons in words for the user."""

import fnmatch
import re

from . import report

_PACKAGE = r"(\S+)"
_RULES = [(re.compile("^%s$" % pattern), text) for pattern, text in (
    (r"nothing provides (.+) needed by " + _PACKAGE,
     "{1} needs {0}, which no enabled repository offers."),
    (r"nothing provides requested (.+)", "No enabled repository offers {0}."),
    (r"package %s requires (.+), but none of the providers can be installed" % _PACKAGE,
     "{0} needs {1}, and nothing that offers it can be installed."),
    (r"cannot install both %s and %s" % (_PACKAGE, _PACKAGE),
     "{0} and {1} cannot be installed together."),
    (r"package %s conflicts with (.+) provided by itself" % _PACKAGE, "{0} conflicts with itself."),
    (r"package %s conflicts with (.+) provided by %s" % (_PACKAGE, _PACKAGE),
     "{0} cannot be there together with {2}."),
    (r"(?:installed )?package %s (?:implicitly )?obsoletes (.+) provided by %s"
     % (_PACKAGE, _PACKAGE), "{0} replaces {2}."),
    (r"both package %s and %s obsolete (.+)" % (_PACKAGE, _PACKAGE), "{0} and {1} both replace {2}."),
    (r"problem with installed package " + _PACKAGE,
     "The installed package {0} would be left without what it needs."),
    (r"package %s is not installable" % _PACKAGE, "{0} cannot be installed."),
    (r"package %s does not have a compatible architecture" % _PACKAGE,
     "{0} is for another kind of machine."),
    (r"conflicting requests", "What was marked cannot be had all together."),
    (r"cannot install the best (?:update )?candidate.*",
     "The newest version cannot be installed."),
)]
_EXCLUDED = re.compile(r"^package (\S+) is filtered out by exclude filtering$")
_PROTECTED = "The operation would result in removing the following protected packages: "


def explain(problems, base):
    """Lines for the user about the solver's `problems` (lists of its sentences)."""
    lines = []
    for problem in problems:
        for sentence in problem:
            for line in _sentence(report.clean(sentence).strip(), base):
                if line not in lines:
                    lines.append(line)
    return lines


def _sentence(sentence, base):
    if sentence.startswith(_PROTECTED):
        return ["The removal would take %s, which is protected because this system needs it."
                % sentence[len(_PROTECTED):]]
    excluded = _EXCLUDED.match(sentence)
    if excluded:
        return ["%s is excluded%s." % (excluded.group(1), _excluder(excluded.group(1), base))]
    for pattern, text in _RULES:
        found = pattern.match(sentence)
        if found:
            return [text.format(*found.groups())]
    return [sentence[:1].upper() + sentence[1:]]


def _excluder(package, base):
    """Which setting excludes a package (name-[epoch:]version-release.arch), as the rest of a
    sentence."""
    name = package.rsplit("-", 2)[0]
    wheres = [("by the main configuration file", base.conf)]
    wheres += [("by the settings of the repository %s" % repo.id, repo)
               for repo in base.repos.iter_enabled()]
    for where, settings in wheres:
        for pattern in settings.excludepkgs:
            if fnmatch.fnmatchcase(name, pattern) or fnmatch.fnmatchcase(package, pattern):
                return " %s (exclude=%s)" % (where, pattern)
    return " by the configuration"
