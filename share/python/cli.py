"""The library's version under its other name."""

import dnf.const

__version__ = dnf.const.VERSION
