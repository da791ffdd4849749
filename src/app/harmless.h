// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

// A text of unknown origin for showing: what would hide, reorder or break the text around it
// (control characters except tab and newline, bidirectional embeddings, overrides and isolates,
// lone surrogates, characters that text documents use for themselves) becomes the replacement
// character, and a carriage return before a newline goes. Nothing else changes.
QString harmless(const QString &text);
