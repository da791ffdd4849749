# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""The solver's reasons in words for the user."""

import fnmatch
import re

from . import report
from .translation import tr, tr_later

_MANY = 20  # packages named at once; the rest is counted
_PACKAGE = r"(\S+)(?: from \S+)?"  # newer versions name the repository too
_RULES = [(re.compile("^%s$" % pattern), text) for pattern, text in (
    (r"nothing provides (.+) needed by " + _PACKAGE,
     tr_later("{1} needs {0}, which no enabled repository offers.")),
    (r"nothing provides requested (.+)", tr_later("No enabled repository offers {0}.")),
    (r"package %s requires (.+), but none of the providers can be installed" % _PACKAGE,
     tr_later("{0} needs {1}, and nothing that offers it can be installed.")),
    (r"cannot install both %s and %s" % (_PACKAGE, _PACKAGE),
     tr_later("{0} and {1} cannot be installed together.")),
    (r"package %s conflicts with (.+) provided by itself" % _PACKAGE, tr_later("{0} conflicts with itself.")),
    (r"package %s conflicts with (.+) provided by %s" % (_PACKAGE, _PACKAGE),
     tr_later("{0} cannot be there together with {2}.")),
    (r"(?:installed )?package %s (?:implicitly )?obsoletes (.+) provided by %s"
     % (_PACKAGE, _PACKAGE), tr_later("{0} replaces {2}.")),
    (r"both package %s and %s obsolete (.+)" % (_PACKAGE, _PACKAGE),
     tr_later("{0} and {1} both replace {2}.")),
    (r"problem with installed package " + _PACKAGE,
     tr_later("The installed package {0} would be left without what it needs.")),
    (r"package %s is not installable" % _PACKAGE, tr_later("{0} cannot be installed.")),
    (r"package %s does not have a compatible architecture" % _PACKAGE,
     tr_later("{0} is for another kind of machine.")),
    (r"cannot install the best (?:update )?candidate.*",
     tr_later("The newest version cannot be installed.")),
    (r"The operation would result in removing the following protected packages: (.+)",
     tr_later("The removal would take {0}, which is protected because this system needs it.")),
    (r"The operation would result in broken dependencies for the following protected packages: (.+)",
     tr_later("The removal would leave {0}, which is protected because this system needs it, without "
              "what it needs.")),
)]
_EXCLUDED = re.compile("^package %s is filtered out by exclude filtering$" % _PACKAGE)
_NO_REASON = "conflicting requests"  # it stands before the reasons, and alone where there are none


def explain(problems, base, marks):
    """Lines for the user about the solver's `problems` (lists of its sentences); `marks` are those that
    it was given."""
    lines = {}
    for problem in problems:
        for sentence in map(str.strip, map(report.clean, problem)):
            if sentence != _NO_REASON:
                lines[_sentence(sentence, base)] = None
    return list(lines) or [tr("What was marked cannot be had all together: %s.")
                           % ", ".join(names(marks.wanted + marks.unwanted))]


def names(pkgs):
    """The names of DNF's packages, sorted; of many the first and how many there are beside them."""
    found = sorted(report.clean(pkg) for pkg in pkgs)
    more = [tr("and %d more") % (len(found) - _MANY)] if len(found) > _MANY else []
    return found[:_MANY] + more


def exclusions(pkgs, base):
    """Lines that say why removals do not take these excluded packages along."""
    lines = [_exclusion(report.clean(pkg), base) for pkg in sorted(pkgs)[:_MANY]]
    return [*lines, tr("An excluded package is removed only if it is marked for removal itself.")] if lines else []


def _sentence(sentence, base):
    excluded = _EXCLUDED.match(sentence)
    if excluded:
        return _exclusion(excluded.group(1), base)
    for pattern, text in _RULES:
        found = pattern.match(sentence)
        if found:
            return tr(text).format(*found.groups())
    return sentence[:1].upper() + sentence[1:]


def _exclusion(package, base):
    """Which setting excludes a package (name-[epoch:]version-release.arch)."""
    name = package.rsplit("-", 2)[0]
    for settings in (base.conf, *base.repos.iter_enabled()):
        for pattern in settings.excludepkgs:
            if not fnmatch.fnmatchcase(name, pattern) and not fnmatch.fnmatchcase(package, pattern):
                continue
            if settings is base.conf:
                return tr("%s is excluded by the main configuration file (exclude=%s).") \
                    % (package, pattern)
            return tr("%s is excluded by the settings of the repository %s (exclude=%s).") \
                % (package, settings.id, pattern)
    return tr("%s is excluded by the configuration.") % package
