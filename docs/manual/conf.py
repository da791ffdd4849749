# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""How the manuals are made. The version is given on the command line."""

project = "VOK"
author = "the developers of VOK"
language = "en"
extensions = []
exclude_patterns = ["theme"]
nitpicky = True
smartquotes = False

html_theme = "theme"
html_theme_path = ["."]
html_title = "VOK manual"
html_copy_source = False
html_show_sourcelink = False
html_use_index = False
html_domain_indices = False
html_permalinks = False
html_secnumber_suffix = " "


def without_search(app):
    """The pages stand alone and run nothing."""
    app.builder.search = False


def setup(app):
    """Called by the tool."""
    app.connect("builder-inited", without_search)
