# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""The library's version under its other name."""

import dnf.const

__version__ = dnf.const.VERSION
