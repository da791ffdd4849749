// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>
#include <QStringList>

// What the library would make of a repository definition beyond what a file can hold.
namespace EntryCheck {

// Why the library leaves out a repository of that identifier; empty when it does not.
QString identifierWarning(const QString &id);
// Which of the other identifiers differs from it in case only, in words; empty for none.
QString twinWarning(const QString &id, const QStringList &others);
// Why a password is refused that consists of mask characters alone.
QString maskAsPassword();
// A text for each of the lines that the library does not read, and for each option that is not among
// the known ones, with the most similar of these where one is similar. Without known ones no option
// is unknown.
QStringList optionHints(const QString &otherOptions, const QStringList &known);

} // namespace EntryCheck
