"""The library's version as the engine asks for it: DNF's."""

import dnf.const

__version__ = dnf.const.VERSION
