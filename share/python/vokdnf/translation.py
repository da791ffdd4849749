# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""The user's language, which the program speaks. What it reads again, and DNF's sentences, stay as they
are."""

import yumIOC


def tr(text):
    """`text` in the user's language; as it is where the program has no callback for it, or no translation.
    The text stands in the call itself, with places for what varies: tr("%s has gone") % name."""
    return yumIOC.tr(text) if hasattr(yumIOC, "tr") else text


def tr_later(text):
    """`text` itself; marks a text of a table that tr gets when it is said."""
    return text
