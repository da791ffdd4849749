# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""DNF's plug-ins. One that fails is told of once, by its name, and does no more until VOK ends; the rest
goes on."""

import dnf.exceptions
import dnf.plugin

from . import config, report, root
from .translation import tr

# Those that run programs, or write files, as their configuration says: that of a system in a directory must not
# have it done on this one.
_NOT_FOR_A_DIRECTORY = ("etckeeper", "local", "post-transaction-actions", "pre-transaction-actions", "snapper")
# Here an error of DNF's own classes is what the plug-in has to say about the transaction.
_OBJECTIONS = ("resolved", "pre_transaction")


class Plugins(dnf.plugin.Plugins):
    """The plug-ins of one base. DNF loads their classes once in a process."""

    _classes = None
    directories = ()  # of their configuration

    def start(self, base):
        """Loads and makes the plug-ins."""
        Plugins.directories = tuple(base.conf.pluginconfpath)
        if Plugins._classes is None:
            Plugins._classes = []
            with _Guarded(None):
                self._load(base.conf, (), ())
            Plugins._classes = list(self.plugin_cls)
        self.plugin_cls = list(Plugins._classes)
        self._run_init(base)

    def _check_enabled(self, conf, enable_plugins):
        enabled = []
        for kind in self.plugin_cls:
            if root.prefix() and kind.name in _NOT_FOR_A_DIRECTORY:
                continue
            alone = dnf.plugin.Plugins()
            alone.plugin_cls = [kind]
            with _Guarded(kind):
                alone._check_enabled(conf, enable_plugins)
                enabled += alone.plugin_cls
        self.plugin_cls = enabled

    def _run_init(self, base, cli=None):
        for kind in list(self.plugin_cls):
            with _Guarded(kind):
                self.plugins.append(kind(base, cli))

    def _caller(self, method):
        for plugin in list(self.plugins):
            guarded = _Guarded(type(plugin), dnf.exceptions.Error if method in _OBJECTIONS else ())
            with guarded:
                getattr(plugin, method)()
            if guarded.failed:
                self.plugins.remove(plugin)


class _Guarded:
    """Runs its block, a step of the plug-in of class `kind`, and tells of its failure; what is of the
    classes `passed` goes through."""

    def __init__(self, kind, passed=()):
        self._kind = kind
        self._passed = passed
        self.failed = False

    def __enter__(self):
        return self

    def __exit__(self, _, error, __):
        if not isinstance(error, (Exception, SystemExit)) or isinstance(error, self._passed):
            return False
        self.failed = True
        if self._kind in (Plugins._classes or ()):
            Plugins._classes.remove(self._kind)
        name = getattr(self._kind, "name", None)
        cause = _in_configuration(self._kind, error) or report.clean(error) or type(error).__name__
        report.errorlog(0, tr("The plug-in %s fails and is left out: %s") % (name, cause) if name
                        else tr("A plug-in of DNF fails and is left out: %s") % cause)
        return True


def _in_configuration(kind, error):
    """Where in the configuration of a plug-in the text is that is not UTF-8, when `error` comes of one; else ""."""
    name = getattr(kind, "config_name", None) or getattr(kind, "name", None)
    if isinstance(error, (TypeError, UnicodeError)):
        for directory in Plugins.directories:
            path = "%s/%s.conf" % (directory, name)
            number = config.line_not_utf8(path)
            if number:
                return "%s: %s" % (root.shown(path), tr("line %d is not UTF-8") % number)
    return ""
