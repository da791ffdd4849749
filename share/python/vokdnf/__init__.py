# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""VOK's engine over DNF; YumIO.py is the door to it."""
