# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""The library's version as the engine asks for it: DNF's."""

import dnf.const

__version__ = dnf.const.VERSION
