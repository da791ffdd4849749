// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

// Texts of packages, repositories, keys, configuration files and scriptlets may say anything. They are shown through
// one of these functions; tools/foreigntexts finds places that do not use them.

// What would hide, reorder or break the text around it (control characters except tab and newline, bidirectional
// embeddings, overrides and isolates, lone surrogates, characters that text documents use for themselves) becomes the
// replacement character. Bidirectional marks, and a carriage return before a newline, are left out.
QString harmless(const QString &text);

// The same for a page of text: a line that is longer than 10,000 characters, whose layout takes too long, is cut, and
// so is what goes beyond a million characters. Without such it is the same as harmless(text).
QString harmlessPage(const QString &text);

// The same for a cell, a title, or another place for one line: white space is one blank, and what is longer than
// 1,000 characters is cut.
QString harmlessLine(const QString &text);

// The same for a tip: long lines are wrapped, and what is more than 20 of them is cut. Qt would take a tip that holds a
// tag for rich text, and open the files that it names; PlainTexts keeps it from that.
QString harmlessTip(const QString &text);

// The same for a button, a menu entry or a label with a buddy, where an ampersand underlines a character.
QString harmlessLabel(const QString &text);
